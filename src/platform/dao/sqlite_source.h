// The tables of an SQLite file.
#pragma once

#include <memory>

#include <QFile>

#include "platform/dao/bound_condition.h"
#include "platform/dao/file_identity.h"
#include "platform/dao/table_source.h"

struct sqlite3;
struct sqlite3_stmt;

/// The file is never written and nothing is written beside it. A view is a table like any other. The declared
/// types give the columns' types, under any of their usual names: see declaredField(); what a view calculates
/// has the type of its values. A value that its declared type cannot hold is an UnreadableCell: a text that
/// is no number among numbers, a blob. A date is a text of the ISO form or a number of days since 1899-12-30.
class SqliteSource : public TableSource {
public:
    /// Raises 3343 for what is no SQLite file, or a damaged one, and what checkSqliteFile() raises.
    /// A view can be written so that it never ends: after `mostSeconds` of work without a row it is 3343.
    explicit SqliteSource(QString path, int mostSeconds = 5);

    static bool isSqliteFile(const QString &path);
    /// "TEXT(80)", "varchar ( 20 )", "Yes/No", "LONG INTEGER", "datetime", ... An unknown type is a Text of
    /// 255 characters.
    static FieldDefinition declaredField(const QString &declaration);

    QStringList tableNames() override;
    FieldDefinitions fields(const QString &table) override;
    qint64 rowCount(const QString &table) override;
    void readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived) override;
    void readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                      TableColumns &rows) override;

private:
    struct Closer {
        void operator()(sqlite3 *database) const;
        void operator()(sqlite3_stmt *statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Closer>;
    struct Table {
        QString name;
        bool isView;
        /// Empty until somebody asks.
        FieldDefinitions fields;
        std::optional<qint64> rows;
    };

    void readCatalog();
    Table &find(const QString &table);
    const FieldDefinitions &fieldsOf(Table &table);
    FieldType typeOfValues(const QString &view, const QString &column) const;
    Statement prepare(const QString &sql) const;
    /// False after the last row.
    bool step(const Statement &statement) const;
    void read(Table &table, const QVector<BoundCondition> &conditions, TableColumns &rows,
              const RowsArrived &arrived);
    [[noreturn]] void raiseRefused() const;
    [[noreturn]] void raiseDamaged(const QString &reason = {}) const;

    QString m_path;
    int m_mostSeconds;
    QFile m_file;
    FileIdentity m_identity;
    std::unique_ptr<sqlite3, Closer> m_database;
    QVector<Table> m_tables;
    /// In seconds of work, for the statement at hand.
    mutable qint64 m_deadline = 0;
};
