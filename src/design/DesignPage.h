// The design values of one material window: a table of what its tables hold at one temperature.
#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QStringList>

#include "platform/runtime/x_array_db.h"

class Form;
class Material;
class SourceArray;
class TemperatureBox;
struct CreepColumns;
struct MaterialControls;
struct SourceArrays;

class DesignPage : public QObject {
    Q_OBJECT
public:
    /// `showTable` loads a table by its key. `sources` and `creep` are read whenever values are computed.
    DesignPage(Form &window, MaterialControls &controls, SourceArrays &sources, const CreepColumns &creep,
               std::function<void(const QString &key)> showTable);

    /// Loads every table that was not seen yet, and makes xDesignDB with all its captions and no value.
    void BuildDesignTable(Material &material, const std::shared_ptr<XArrayDB> &xDesignDB);

    /// The table was built, which is done once in the life of the window.
    bool bDesignBuilt = false;

private:
    void connectBox();
    void textChanged();
    void spreadTemperature();
    void RecalcDesignValues();
    void CalcDesignValues();
    void computeTables();
    const SourceArray &sourceOf(const QString &key) const;
    void writeCaptions(const Material &material);
    void addGridColumns(int count);

    Form &m_window;
    MaterialControls &m_controls;
    SourceArrays &m_sources;
    const CreepColumns &m_creep;
    std::function<void(const QString &)> m_showTable;
    TemperatureBox *m_box;
    std::shared_ptr<XArrayDB> m_values;
    /// The keys of the tables with data, in the order of the design values; none before the table is built.
    QStringList strDesignTables;
};
