#include "platform/dao/sqlite_values.h"

#include <cmath>
#include <limits>

#include <QDateTime>

#include "platform/dao/date_serial.h"
#include "platform/dao/table_protocol.h"

using TableProtocol::StoredKind;

namespace {

/// A value that its column's type cannot hold.
struct Misfit {
    QString reason = QStringLiteral("is not of the column's type");
};

struct StoredValue {
    StoredKind kind = StoredKind::Null;
    double number = 0; // of an Integer too: none of the types holds more of it
    QString text;
};

StoredValue takeValue(FrameReader &frame) {
    StoredValue value;
    value.kind = frame.number<StoredKind>();
    switch (value.kind) {
    case StoredKind::Integer:
        value.number = double(frame.number<qint64>());
        return value;
    case StoredKind::Real:
        value.number = frame.number<double>();
        return value;
    case StoredKind::Text:
        value.text = frame.text();
        return value;
    case StoredKind::Null:
    case StoredKind::Blob:
    case StoredKind::TooLong:
        return value;
    }
    throw MalformedFrame();
}

double number(const StoredValue &value) {
    if (value.kind != StoredKind::Text) return value.number;
    bool good = false;
    const double parsed = value.text.toDouble(&good);
    if (!good) throw Misfit();
    return parsed;
}

bool boolean(const StoredValue &value) {
    if (value.kind == StoredKind::Text) {
        const QString text = value.text.trimmed().toLower();
        if (text == QLatin1String("true") || text == QLatin1String("yes")) return true;
        if (text == QLatin1String("false") || text == QLatin1String("no")) return false;
    }
    return number(value) != 0;
}

int integer(const StoredValue &value) {
    const double exact = number(value);
    if (exact != std::floor(exact) || exact < std::numeric_limits<int>::min() ||
        exact > std::numeric_limits<int>::max())
        throw Misfit();
    return static_cast<int>(exact);
}

float single(const StoredValue &value) {
    const double exact = number(value);
    if (std::abs(exact) > double(std::numeric_limits<float>::max())) throw Misfit();
    return static_cast<float>(exact);
}

QDateTime date(const StoredValue &value) {
    if (value.kind == StoredKind::Text) {
        QString text = value.text.trimmed();
        if (text.size() == 10) text += QLatin1String("T00:00");
        if (text.size() > 10) text[10] = 'T';
        // As local time it would come back as another one where the clocks jump over it.
        QDateTime moment = QDateTime::fromString(text + 'Z', Qt::ISODate);
        if (!moment.isValid()) moment = QDateTime::fromString(text, Qt::ISODate); // it names its zone
        if (!moment.isValid()) throw Misfit();
        return calendarMoment(moment.date(), moment.time());
    }
    const std::optional<QDateTime> moment = fromDateSerial(value.number);
    if (!moment) throw Misfit();
    return *moment;
}

QVariant valueOfType(const StoredValue &value, FieldType type) {
    if (value.kind == StoredKind::Null) return {};
    if (value.kind == StoredKind::Blob) throw Misfit();
    if (value.kind == StoredKind::TooLong) throw Misfit{QStringLiteral("is too long")};
    if (isTextType(type)) {
        if (value.kind != StoredKind::Text) throw MalformedFrame();
        return value.text;
    }
    // What importing a CSV file leaves of an empty cell.
    if (value.kind == StoredKind::Text && value.text.trimmed().isEmpty()) return {};
    switch (type) {
    case FieldType::Boolean:
        return boolean(value);
    case FieldType::Single:
        return single(value);
    case FieldType::Currency:
    case FieldType::Double:
        return number(value);
    case FieldType::Date:
        return date(value);
    default:
        return integer(value);
    }
}

} // namespace

void readStoredRows(FrameReader &frame, TableColumns &rows, const QVector<BoundCondition> &conditions,
                    const StoredPlace &place) {
    const FieldDefinitions &fields = rows.fields();
    while (!frame.atEnd()) {
        for (int i = 0; i < fields.size(); ++i) {
            const StoredValue value = takeValue(frame);
            try {
                rows.appendCell(i, valueOfType(value, fields[i].type));
            } catch (const Misfit &misfit) {
                rows.appendCell(i, QVariant::fromValue(UnreadableCell{
                                       "Unrecognized database format '" + place.path + "': a value in " +
                                       place.table + "." + fields[i].name + " " + misfit.reason + "."}));
            }
        }
        rows.endRow();
        if (!meetsTexts(rows, rows.rowCount() - 1, conditions)) rows.truncate(rows.rowCount() - 1);
    }
}
