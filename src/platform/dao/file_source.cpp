#include "platform/dao/file_source.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <optional>

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopedValueRollback>

#include "platform/dao/date_number.h"
#include "platform/dao/date_serial.h"
#include "platform/dao/sqlite_file_check.h"
#include "platform/dao/sqlite_values.h"
#include "platform/dao/table_protocol.h"
#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"

using TableProtocol::CellType;
using TableProtocol::Reply;
using TableProtocol::ValueKind;

namespace {

constexpr qsizetype PieceOfFrame = 1 << 20;

FieldType fieldType(CellType type) {
    switch (type) {
    case CellType::Boolean:
        return FieldType::Boolean;
    case CellType::Byte:
        return FieldType::Byte;
    case CellType::Integer:
        return FieldType::Integer;
    case CellType::Long:
        return FieldType::Long;
    case CellType::Currency:
        return FieldType::Currency;
    case CellType::Single:
        return FieldType::Single;
    case CellType::Double:
        return FieldType::Double;
    case CellType::Date:
        return FieldType::Date;
    case CellType::Text:
        return FieldType::Text;
    case CellType::Memo:
        return FieldType::Memo;
    case CellType::Unsupported:
        return FieldType::Unsupported;
    }
    throw MalformedFrame();
}

/// As the moment's number in the store, where it is one to the millisecond.
double dateNumberOfSerial(double serial) {
    const std::optional<QDateTime> moment = fromDateSerial(serial);
    if (!moment) throw MalformedFrame();
    return dateNumber(*moment);
}

void readCell(FrameReader &frame, FieldType type, TableColumns &rows, int column) {
    switch (type) {
    case FieldType::Boolean:
        return rows.appendInteger(column, frame.number<quint8>() != 0 ? -1 : 0);
    case FieldType::Byte:
        return rows.appendInteger(column, frame.number<quint8>());
    case FieldType::Integer:
        return rows.appendInteger(column, frame.number<qint16>());
    case FieldType::Long:
        return rows.appendInteger(column, frame.number<qint32>());
    case FieldType::Currency:
        return rows.appendNumber(column, double(frame.number<qint64>()) / 10000);
    case FieldType::Single:
        return rows.appendNumber(column, double(frame.number<float>()));
    case FieldType::Double:
        return rows.appendNumber(column, frame.number<double>());
    case FieldType::Date: {
        const auto serial = frame.number<double>();
        const bool isDay = serial == std::floor(serial) && isDateSerial(serial);
        return rows.appendNumber(column, isDay ? serial : dateNumberOfSerial(serial));
    }
    case FieldType::Text:
    case FieldType::Memo: {
        const qsizetype units = frame.number<quint32>();
        return rows.appendText(column, frame.take(units * qsizetype(sizeof(char16_t))), units);
    }
    case FieldType::Unsupported:
        break;
    }
    throw MalformedFrame();
}

FieldDefinitions readFields(FrameReader &frame) {
    FieldDefinitions fields(frame.number<quint16>());
    for (FieldDefinition &field : fields) {
        field.name = frame.name();
        field.type = fieldType(frame.number<CellType>());
        field.size = frame.number<quint16>();
    }
    return fields;
}

/// Rows until the end of the frame, of which those stay that meet the conditions on texts.
void readRows(FrameReader &frame, TableColumns &rows, const QVector<BoundCondition> &conditions) {
    const FieldDefinitions &fields = rows.fields();
    while (!frame.atEnd()) {
        const char *nulls = frame.take((fields.size() + 7) / 8);
        for (int i = 0; i < fields.size(); ++i) {
            if ((nulls[i / 8] >> i % 8 & 1) != 0)
                rows.appendNull(i);
            else
                readCell(frame, fields[i].type, rows, i);
        }
        rows.endRow();
        if (!meetsTexts(rows, rows.rowCount() - 1, conditions)) rows.truncate(rows.rowCount() - 1);
    }
}

/// `systemError` is what the system says against running the program. It finds no file, too, where the
/// program is there and what it needs is not.
RuntimeError notRun(const QString &program, int systemError) {
    const bool isDenied = systemError == EACCES || systemError == EPERM;
    return RuntimeError::ofFile(isDenied ? 70 : QFileInfo::exists(program) ? 75 : 53, program);
}

template <typename Number>
void append(QByteArray &request, Number value) {
    request.append(reinterpret_cast<const char *>(&value), sizeof value);
}

void append(QByteArray &request, const QString &text) {
    append(request, static_cast<quint32>(text.size()));
    request.append(reinterpret_cast<const char *>(text.constData()), text.size() * qsizetype(sizeof(QChar)));
}

QByteArray framed(const QByteArray &request) {
    QByteArray frame;
    append(frame, static_cast<quint32>(request.size()));
    return frame + request;
}

QByteArray openRequest(const QString &password) {
    QByteArray request;
    append(request, TableProtocol::Request::Open);
    append(request, password);
    return framed(request);
}

QByteArray tableRequest(TableProtocol::Request kind, qsizetype table) {
    QByteArray request;
    append(request, kind);
    append(request, static_cast<quint16>(table));
    return framed(request);
}

QByteArray rowsRequest(qsizetype table, const QVector<BoundCondition> &conditions) {
    QByteArray request;
    append(request, TableProtocol::Request::Rows);
    append(request, static_cast<quint16>(table));
    append(request, static_cast<quint16>(conditions.size()));
    for (const BoundCondition &condition : conditions) {
        append(request, static_cast<quint16>(condition.column));
        append(request, condition.isText ? ValueKind::Text : ValueKind::Integer);
        if (condition.isText) {
            append(request, condition.text);
        } else {
            append(request, condition.integer);
        }
    }
    return framed(request);
}

QByteArray lookAheadRequest(qsizetype table, const QVector<int> &columns) {
    QByteArray request;
    append(request, TableProtocol::Request::LookAhead);
    append(request, static_cast<quint16>(table));
    append(request, static_cast<quint16>(columns.size()));
    for (const int column : columns)
        append(request, static_cast<quint16>(column));
    return framed(request);
}

} // namespace

FileSource::FileSource(QString path, const QString &helper, WaitsOn waitsOn, int patience, QString password)
    : m_path(std::move(path))
    , m_password(std::move(password))
    , m_waitsOn(std::move(waitsOn))
    , m_file(m_path)
    , m_helper(helper, patience, [this](bool isBusy) { return onSilence(isBusy); }) {
    if (!m_file.open(QIODevice::ReadOnly)) raiseDamaged();
    checkSqliteSettled(m_path);
    m_catalog = openHelper();
}

QString FileSource::helperProgram() {
    const App &app = App::current();
    const QString name = QStringLiteral("/table_reader");
    const QString expected = (app.helperPath.isEmpty() ? app.path : app.helperPath) + name;
    const QString besideProgram = QCoreApplication::applicationDirPath() + name;
    for (const QString &candidate : {expected, besideProgram})
        if (QFileInfo(candidate).isExecutable()) return candidate;
    // Of two that cannot be run, the one that is there tells more.
    return QFileInfo::exists(besideProgram) && !QFileInfo::exists(expected) ? besideProgram : expected;
}

QStringList FileSource::tableNames() {
    QStringList names;
    for (const Table &table : m_catalog.tables)
        names << table.name;
    return names;
}

QString FileSource::whatElse(const QString &name) {
    const auto found = std::find_if(m_catalog.others.begin(), m_catalog.others.end(),
                                    [&](const Other &other) { return isSameName(other.name, name); });
    if (found == m_catalog.others.end()) return {};
    return found->kind == TableProtocol::OtherKind::Query ? QStringLiteral("a stored query")
                                                          : QStringLiteral("a link to another file");
}

FieldDefinitions FileSource::fields(const QString &table) {
    return fieldsOf(indexOf(table));
}

qint64 FileSource::rowCount(const QString &table) {
    const qsizetype index = indexOf(table);
    const quint32 rows = m_catalog.tables[index].rows;
    if (rows != TableProtocol::NotCounted) return rows;
    if (!m_counts.contains(index))
        exchange(tableRequest(TableProtocol::Request::Count, index), [&](Reply kind, FrameReader &frame) {
            if (kind != Reply::Count) throw MalformedFrame();
            m_counts.insert(index, frame.number<quint32>());
            return true;
        });
    return m_counts[index];
}

void FileSource::readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived) {
    read(indexOf(table), {}, rows, arrived);
}

void FileSource::readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                              TableColumns &rows) {
    const qsizetype index = indexOf(table);
    if (const auto bound = bindConditions(fieldsOf(index), conditions)) read(index, *bound, rows);
}

void FileSource::lookAhead(const QString &table, const QVector<int> &columns) {
    // A helper that has gone is started again by the next one who wants an answer, and then works for him.
    if (!m_isReading && m_helper.isRunning()) m_helper.send(lookAheadRequest(indexOf(table), columns));
}

qsizetype FileSource::indexOf(const QString &table) const {
    const auto found = std::find_if(m_catalog.tables.begin(), m_catalog.tables.end(),
                                    [&](const Table &each) { return each.name == table; });
    if (found == m_catalog.tables.end()) throw RuntimeError(3078);
    return found - m_catalog.tables.begin();
}

const FieldDefinitions &FileSource::fieldsOf(qsizetype table) {
    if (!m_catalog.tables[table].fields.isEmpty()) return m_catalog.tables[table].fields;
    if (!m_fields.contains(table))
        exchange(tableRequest(TableProtocol::Request::Columns, table), [&](Reply kind, FrameReader &frame) {
            if (kind != Reply::Columns) throw MalformedFrame();
            const FieldDefinitions fields = readFields(frame);
            // Its rows would take no bytes, and a frame of them would never end.
            if (fields.isEmpty()) throw MalformedFrame();
            m_fields.insert(table, fields);
            return true;
        });
    return m_fields[table];
}

void FileSource::read(qsizetype table, const QVector<BoundCondition> &conditions, TableColumns &rows,
                      const RowsArrived &arrived) {
    exchange(rowsRequest(table, conditions), [&](Reply kind, FrameReader &frame) {
        if (kind == Reply::Rows)
            readRows(frame, rows, conditions);
        else if (kind == Reply::StoredRows)
            readStoredRows(frame, rows, conditions, {m_path, m_catalog.tables[table].name});
        else
            throw MalformedFrame();
        if (arrived) arrived();
        return false;
    });
}

void FileSource::exchange(const QByteArray &request,
                          const std::function<bool(Reply kind, FrameReader &frame)> &take) {
    // Whoever is asked whether to wait on may come back here; the two answers would be mixed up.
    if (m_isReading) raiseSilent();
    const QScopedValueRollback<bool> reading(m_isReading, true);
    if (!m_helper.isRunning() && openHelper() != m_catalog) raiseDamaged();
    try {
        if (!m_helper.send(request)) raiseDamaged();
        while (true) {
            const Frame answer = receiveFrame();
            FrameReader frame(answer.content);
            if (answer.kind == Reply::Failure) raiseFailure(frame);
            if (answer.kind == Reply::End) return;
            if (answer.kind != Reply::Busy && take(answer.kind, frame)) return;
        }
    } catch (const MalformedFrame &) {
        m_helper.stop();
        raiseDamaged();
    } catch (...) {
        // The rest of the answer would be taken for the next one's.
        m_helper.stop();
        throw;
    }
}

FileSource::Catalog FileSource::openHelper() {
    if (const int failure = m_helper.start(m_file.handle(), TableProtocol::FileDescriptor))
        throw notRun(m_helper.program(), failure);
    try {
        if (!m_helper.send(openRequest(m_password))) raiseDamaged();
        Frame answer = receiveFrame();
        while (answer.kind == Reply::Busy)
            answer = receiveFrame();
        FrameReader frame(answer.content);
        if (answer.kind != Reply::Catalog) raiseFailure(frame);
        return readCatalog(frame);
    } catch (const MalformedFrame &) {
        m_helper.stop();
        raiseDamaged();
    } catch (...) {
        m_helper.stop();
        throw;
    }
}

void FileSource::tellOfMissingCage() {
    static bool isTold = false;
    if (!std::exchange(isTold, true))
        qInfo("This system has no filter of system calls: table_reader reads files under its limits alone.");
}

FileSource::Catalog FileSource::readCatalog(FrameReader &frame) {
    Catalog catalog;
    if (frame.number<quint8>() == 0) tellOfMissingCage();
    catalog.file = frame.number<FileIdentity>();
    catalog.tables.resize(frame.number<quint16>());
    for (Table &table : catalog.tables) {
        table.name = frame.name();
        table.rows = frame.number<quint32>();
        table.fields = readFields(frame);
    }
    catalog.others.resize(frame.number<quint16>());
    for (Other &other : catalog.others) {
        other.name = frame.name();
        other.kind = frame.number<TableProtocol::OtherKind>();
    }
    return catalog;
}

FileSource::Frame FileSource::receiveFrame() {
    quint32 length = 0;
    Frame frame;
    if (!m_helper.receive(&length, sizeof length)) raiseDamaged();
    if (length == 0 || length > TableProtocol::LongestFrame) throw MalformedFrame();
    if (!m_helper.receive(&frame.kind, sizeof frame.kind)) raiseDamaged();
    --length;
    while (frame.content.size() < qsizetype(length)) {
        const qsizetype have = frame.content.size();
        // A length is believed only as far as there are bytes.
        const qsizetype piece = std::min(PieceOfFrame, qsizetype(length) - have);
        frame.content.resize(have + piece);
        if (!m_helper.receive(frame.content.data() + have, static_cast<std::size_t>(piece))) raiseDamaged();
    }
    return frame;
}

bool FileSource::onSilence(bool isBusy) const {
    if (isBusy) return false; // a damaged file has made it spin
    if (!m_waitsOn || !m_waitsOn(m_path)) raiseSilent();
    return true;
}

void FileSource::raiseSilent() const {
    throw RuntimeError(3043, "Disk or network error: the file '" + m_path + "' does not answer.");
}

void FileSource::raiseFailure(FrameReader &frame) const {
    switch (frame.number<TableProtocol::FailureKind>()) {
    case TableProtocol::FailureKind::WrongPassword:
        throw RuntimeError(3031);
    case TableProtocol::FailureKind::Refused:
        raiseDamaged(frame.rest());
    case TableProtocol::FailureKind::CutOff:
        raiseCutOff(frame);
    case TableProtocol::FailureKind::Damaged:
        break;
    }
    raiseDamaged();
}

void FileSource::raiseCutOff(FrameReader &frame) const {
    const auto size = frame.number<quint64>();
    const auto expected = frame.number<quint64>();
    throw RuntimeError(3049, QString("Can't open database '%1'. The file is cut off: it has %2 bytes, and "
                                     "%3 belong to it.")
                                 .arg(QFileInfo(m_path).canonicalFilePath())
                                 .arg(size)
                                 .arg(expected));
}

void FileSource::raiseDamaged(const QString &reason) const {
    throw RuntimeError(3343, "Unrecognized database format '" + m_path + '\'' +
                                 (reason.isEmpty() ? reason : ": " + reason) + '.');
}
