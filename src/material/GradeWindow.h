// What every window of a material has, whether it is seen or not: the tables, and its place in the program.
#pragma once

#include <memory>

#include "material/WindowTables.h"
#include "platform/forms/form.h"
#include "reports/ReportSource.h"

class Material;

class GradeWindow : public Form, public ReportSource {
    Q_OBJECT
    Q_PROPERTY(QString strCurrentTable MEMBER strCurrentTable)

public:
    GradeWindow();

    /// Reads the open database. The caller has set the caption and shows the first table.
    void SetMaterial(const std::shared_ptr<Material> &material);
    const std::shared_ptr<Material> &mMat() const { return m_material; }

    /// Reads every table that was not read yet. Raises 91 before SetMaterial.
    Q_INVOKABLE virtual void CheckTablesForRecords();

    ReportKind reportKind() const override { return iReportType; }
    void setReportKind(ReportKind kind) override { iReportType = kind; }
    std::shared_ptr<XArrayDB> designValues() const override { return xDesignDB(); }
    QVector<bool> EmptyCreepCols() const override { return m_tables.values.creep().EmptyCreepCols; }
    QString currentTable() const override { return strCurrentTable; }

    /// What the next report holds.
    ReportKind iReportType = ReportKind::Tables;
    /// The key of the table on show.
    QString strCurrentTable = QStringLiteral("Ref");
    /// The design values: three rows a table.
    const std::shared_ptr<XArrayDB> &xDesignDB() const { return m_tables.values.xDesignDB; }

protected:
    void Form_Unload(bool &cancel) override;
    /// Of the material that the window was given.
    virtual void showReferences(const LoadedTable &references) { Q_UNUSED(references) }
    /// Without showing it.
    virtual LoadedTable load(const QString &key);

    std::shared_ptr<Material> m_material;
    WindowTables m_tables;
};
