// A data source on a window: a database's name, a statement, and the rows it gives.
#pragma once

#include <memory>

#include <QObject>
#include <QString>

class Database;
class Recordset;

/// What is set here shows in the recordset only after Refresh().
class DataControl : public QObject {
    Q_OBJECT
public:
    explicit DataControl(QObject *parent = nullptr);
    ~DataControl() override;

    /// The full path of the database file.
    const QString &DatabaseName() const { return m_databaseName; }
    void setDatabaseName(const QString &path) { m_databaseName = path; }
    /// "Access 2000;" at first.
    const QString &Connect() const { return m_connect; }
    void setConnect(const QString &connect) { m_connect = connect; }
    /// A statement or a table's name.
    const QString &RecordSource() const { return m_recordSource; }
    void setRecordSource(const QString &source) { m_recordSource = source; }

    /// Runs the source and puts its rows in the place of the present recordset, standing on the first. Raises
    /// 3055 without a database name, and whatever opening the database or the statement raises; the present
    /// recordset then stays.
    void Refresh();

    /// Raises 91 before the first Refresh().
    const std::shared_ptr<Recordset> &recordset() const;
    bool hasRecordset() const { return m_recordset != nullptr; }
    /// Rows that came about elsewhere take the place of the recordset.
    void setRecordset(std::shared_ptr<Recordset> recordset);

Q_SIGNALS:
    /// Another recordset stands in the place of the present one. Reposition follows.
    void recordsetReplaced();
    /// The current row has changed, whoever moved it; also after each Refresh(), with or without rows.
    void Reposition();

private:
    std::shared_ptr<Database> openDatabase() const;

    QString m_databaseName;
    QString m_connect;
    QString m_recordSource;
    std::shared_ptr<Database> m_database;
    std::shared_ptr<Recordset> m_recordset;
};
