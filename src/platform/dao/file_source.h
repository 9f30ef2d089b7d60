// The tables of a file.
#pragma once

#include <functional>

#include <QFile>
#include <QHash>

#include "platform/dao/bound_condition.h"
#include "platform/dao/child_process.h"
#include "platform/dao/file_identity.h"
#include "platform/dao/frame_reader.h"
#include "platform/dao/table_protocol.h"
#include "platform/dao/table_source.h"

/// An Access file or an SQLite file. It is read by a helper program in a process of its own, so that whatever
/// is in it can bring down or hold up no other. A helper that has gone between two requests is started again;
/// one that goes, spins or talks nonsense while it answers is a damaged file, 3343. One that waits for the
/// file itself is waited for as long as somebody wants it; then comes 3043. A sink must not call back into
/// its source.
///
/// An SQLite file's views are tables like others, which are looked at when they are first asked for. Its
/// declared types give the columns' types, under any of their usual names; what a view calculates has the
/// type of its values. A value that its type cannot hold is an UnreadableCell.
class FileSource : public TableSource {
public:
    static constexpr int Patience = 5000; // milliseconds of silence

    /// Asked each time the file has been silent for the patience; true waits on.
    using WaitsOn = std::function<bool(const QString &path)>;

    /// Opens the file and reads its catalog. Raises 3343, 3031 and 3043; of an SQLite file 3045 for changes
    /// that stand beside it, and 3049 where its end is missing; 53 where the helper program is missing, 70
    /// where it may not be run, 75 where it cannot be.
    explicit FileSource(QString path, const QString &helper = helperProgram(), WaitsOn waitsOn = {},
                        int patience = Patience, QString password = {});

    /// `table_reader` among the program's helpers, or beside the program.
    static QString helperProgram();

    QStringList tableNames() override;
    QString whatElse(const QString &name) override;
    FieldDefinitions fields(const QString &table) override;
    qint64 rowCount(const QString &table) override;
    void readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived) override;
    void readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                      TableColumns &rows) override;
    void lookAhead(const QString &table, const QVector<int> &columns) override;

private:
    struct Table {
        QString name;
        FieldDefinitions fields; // empty until somebody asks
        quint32 rows = 0;        // or NotCounted, the same

        bool operator==(const Table &other) const = default;
    };
    struct Other {
        QString name;
        TableProtocol::OtherKind kind = TableProtocol::OtherKind::Query;

        bool operator==(const Other &other) const = default;
    };
    struct Catalog {
        FileIdentity file;
        QVector<Table> tables;
        QVector<Other> others;

        bool operator==(const Catalog &other) const = default;
    };
    struct Frame {
        TableProtocol::Reply kind = TableProtocol::Reply::Failure;
        QByteArray content;
    };

    /// Starts the helper and takes the catalog from it.
    Catalog openHelper();
    qsizetype indexOf(const QString &table) const;
    void read(qsizetype table, const QVector<BoundCondition> &conditions, TableColumns &rows,
              const RowsArrived &arrived = {});
    const FieldDefinitions &fieldsOf(qsizetype table);
    /// Hands on what comes before the End of the answer, or before `take` says that it has all.
    void exchange(const QByteArray &request,
                  const std::function<bool(TableProtocol::Reply kind, FrameReader &frame)> &take);
    static Catalog readCatalog(FrameReader &frame);
    static void tellOfMissingCage();
    Frame receiveFrame();
    bool onSilence(bool isBusy) const;
    [[noreturn]] void raiseFailure(FrameReader &frame) const;
    [[noreturn]] void raiseCutOff(FrameReader &frame) const;
    [[noreturn]] void raiseDamaged(const QString &reason = {}) const;
    [[noreturn]] void raiseSilent() const;

    QString m_path;
    QString m_password;
    WaitsOn m_waitsOn;
    QFile m_file;
    ChildProcess m_helper;
    Catalog m_catalog;
    // What the catalog leaves open, by position.
    QHash<qsizetype, FieldDefinitions> m_fields;
    QHash<qsizetype, qint64> m_counts;
    bool m_isReading = false;
};
