// Tables made in a test, and the texts of a recordset's rows to compare with.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QMap>

#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/dao/table_source.h"
#include "platform/dao/table_store.h"
#include "platform/runtime/runtime_error.h"

/// Tables that hold what a test gives them; remembers what it is asked for.
class ListSource : public TableSource {
public:
    /// `columns` is "matID:INT,name:TEXT(80)", a row "1|P235GH"; "\N" is Null, True is "1", a date ISO text.
    void add(const QString &table, const QString &columns, const QStringList &rows);

    QStringList tableNames() override { return m_tables.keys(); }
    FieldDefinitions fields(const QString &table) override { return m_tables[table].fields; }
    qint64 rowCount(const QString &table) override { return m_tables[table].rows.size(); }
    void readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived) override;
    void readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                      TableColumns &rows) override;

    /// "Rp02" for a whole table, "Rp02 matID=3" for a key.
    const std::shared_ptr<QStringList> &reads() const { return m_reads; }
    /// Raises 3343 after so many rows of any reading; -1 for never.
    void setDamagedAfter(int rows) { m_damagedAfter = rows; }

private:
    struct Table {
        FieldDefinitions fields;
        QVector<QVector<QVariant>> rows;
    };

    void send(const QVector<QVariant> &row, TableColumns &rows, int &sent) const;

    QMap<QString, Table> m_tables;
    std::shared_ptr<QStringList> m_reads = std::make_shared<QStringList>();
    int m_damagedAfter = -1;
};

Database databaseOver(std::unique_ptr<TableSource> source,
                      qint64 wholeTableLimit = TableStore::WholeTableLimit);
/// The project's sample file.
Database sampleDatabase(const QString &file = "Velmar_PED.mdb",
                        qint64 wholeTableLimit = TableStore::WholeTableLimit);

/// "-" for Null, otherwise the cell as the Basic run-time writes it.
std::string shownCell(const QVariant &cell);
/// One text for each row, cells divided by "|". Without `columns`, all of them.
std::vector<std::string> shownRows(const Recordset &recordset, const QStringList &columns = {});
std::vector<std::string> shownRows(Database &database, const QString &sql, const QStringList &columns = {});
/// The column names, divided by "|".
std::string fieldNames(const Recordset &recordset);

/// "3075: Syntax error ...", or "no error".
template <typename Action>
std::string errorText(Action action) {
    try {
        action();
    } catch (const RuntimeError &error) {
        return std::to_string(error.number()) + ": " + error.description().toStdString();
    }
    return "no error";
}
