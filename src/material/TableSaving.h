// "Save Table As..." of the pages that are tables.
#pragma once

class DesignPage;
class Material;
class QString;
class WindowTables;
struct MaterialControls;

/// What is saved is what the page shows, without another query.
class TableSaving {
public:
    TableSaving(MaterialControls &controls, const WindowTables &tables, const DesignPage &design);

    /// For the page of `key`, a table's key or "Design", that has just been shown. A page without a value, or
    /// with design values of no temperature, offers nothing.
    void Offer(const Material &material, const QString &key);
    void Withdraw();

private:
    void offerTable(const Material &material, const QString &key);
    void offerDesignValues(const Material &material);

    MaterialControls &m_controls;
    const WindowTables &m_tables;
    const DesignPage &m_design;
};
