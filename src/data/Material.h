// One grade that the user has opened, and what was found out about its tables.
#pragma once

#include <array>
#include <map>

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

#include "data/table_vocabulary.h"
#include "platform/runtime/x_array_db.h"

class Form;
class Recordset;

/// The memory of a material: the windows write what they found, table by table, and the reports read it
/// without a query of their own. A table is addressed by its key or by its index 0 to 13
/// (data/table_vocabulary.h). An index or a position out of bounds raises 9.
class Material {
public:
    /// Reads both current records once; the recordsets are not kept. Raises 94 for a Null where none may be:
    /// everywhere but in the two descriptions and in the group.
    void SetProperties(const Recordset &materials, const Recordset &standard);

    const QDateTime &RevisionDate() const { return m_revisionDate; }
    qint16 ID() const { return m_id; }
    const QString &Name() const { return m_name; }
    const QString &Number() const { return m_number; }
    const QString &Description() const { return m_description; }
    const QString &Group() const { return m_group; }
    const QString &Standard() const { return m_standard; }
    qint16 StandardID() const { return m_standardID; }
    const QDateTime &StandardRevisionDate() const { return m_standardRevisionDate; }
    const QString &StandardDescription() const { return m_standardDescription; }
    /// The standard has further elements, told in OthersText.
    bool OthersElement() const { return m_othersElement; }
    const QString &OthersText() const { return m_othersText; }
    void setOthersText(const QString &text) { m_othersText = text; }

    /// The greatest number of value columns seen in a temperature table.
    qint16 MaxDesignCols() const { return m_maxDesignCols; }
    void setMaxDesignCols(qint16 count) { m_maxDesignCols = count; }

    const QStringList &ProductForms() const { return m_productForms; }
    void setProductForms(const QStringList &names);
    /// Product forms were written, were it none.
    bool HasProductForms() const { return m_hasProductForms; }

    /// Column widths in twips of "MechProp"; every other key reads those of "CreepProp".
    const QVector<float> &MechCreepColSize(const QString &key) const;
    /// A key other than those two is ignored.
    void setMechCreepColSize(const QString &key, const QVector<float> &widths);

    /// Which impact energy columns have data: 1 for kv, 2 for kvLong, 4 for kvTrans.
    qint16 ImpEnergyCols() const { return m_impEnergyCols; }
    void setImpEnergyCols(qint16 columns) { m_impEnergyCols = columns; }

    /// The window that shows this material; it outlives the material's use of it. A new window knows nothing
    /// of the tables yet, so writing clears TableChecked for all of them; TableHasData keeps its values.
    Form *MyForm() const { return m_myForm; }
    void setMyForm(Form *form);

    bool TableHasData(const QString &key) const;
    /// Also sets the table's TableChecked.
    void setTableHasData(const QString &key, bool value);
    bool TableChecked(const QString &key) const;
    /// The table goes into the report. Index 0 to 13.
    bool PrintTable(int index) const;
    void setPrintTable(int index, bool value);

    const QString &AddInfo() const { return m_addInfo; }
    void setAddInfo(const QString &text) { m_addInfo = text; }
    /// Index 1 to 13: the references have no notes.
    const QString &TableNotes(int index) const;
    void setTableNotes(int index, const QString &text);

    /// Puts a heading behind those that `key` ("ChemComp", "MechProp" or "CreepProp") has; any other key does
    /// nothing.
    void AddColCaption(const QString &key, const QString &caption);
    /// "ChemComp" counts its headings from 1 and has an empty element 0, the others count from 0. Raises 9
    /// before the first AddColCaption for the key.
    QString ColCaption(const QString &key, int position) const;

    /// Copies every cell as a text, Null as an empty one, for one of the same three keys.
    void SetUnboundArrayData(const QString &key, const XArrayDB &cells);
    /// The copy, with the bounds it was made with; an empty array for any other key.
    XArrayDB UnboundTableData(const QString &key) const;

    /// "Rp02", "Rp10" and "Rm" may have thickness bands; any other key reads as False and writes nothing.
    bool ElevatedMultiCol(const QString &key) const;
    void setElevatedMultiCol(const QString &key, bool value);
    /// The upper limits of the bands in mm. The first band is element 1; element 0 is not used.
    QVector<qint16> ElevatedColumns(const QString &key) const;
    void setElevatedColumns(const QString &key, const QVector<qint16> &limits);

    /// Table keys on their way from the main report to its sub-reports.
    QStringList &colUnBoundTables() { return m_unboundTables; }
    QStringList &colBoundTables() { return m_boundTables; }

private:
    struct UnboundTable {
        /// No element until the first heading arrives.
        QStringList captions;
        XArrayDB cells;
    };
    struct ElevatedTable {
        bool multiCol = false;
        QVector<qint16> columns;
    };

    QDateTime m_revisionDate;
    qint16 m_id = 0;
    QString m_name;
    QString m_number;
    QString m_description;
    QString m_group;
    QString m_standard;
    qint16 m_standardID = 0;
    QDateTime m_standardRevisionDate;
    QString m_standardDescription;
    bool m_othersElement = false;
    QString m_othersText;
    qint16 m_maxDesignCols = 0;
    QStringList m_productForms;
    bool m_hasProductForms = false;
    QVector<float> m_mechWidths;
    QVector<float> m_creepWidths;
    qint16 m_impEnergyCols = 0;
    Form *m_myForm = nullptr;
    std::array<bool, TableVocabulary::TableCount> m_tableHasData{};
    std::array<bool, TableVocabulary::TableCount> m_tableChecked{};
    std::array<bool, TableVocabulary::TableCount> m_printTable{};
    QString m_addInfo;
    std::array<QString, TableVocabulary::TableCount - 1> m_tableNotes;
    std::map<QString, UnboundTable> m_unbound;
    std::map<QString, ElevatedTable> m_elevated;
    QStringList m_unboundTables;
    QStringList m_boundTables;
};
