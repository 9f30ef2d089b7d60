#include "exchange/database_texts.h"

#include <cmath>

#include <QDateTime>
#include <QLocale>

#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/conversions.h"

namespace {

const QString Null = QStringLiteral("\\N");

QString typeName(const FieldDefinition &field) {
    switch (field.type) {
    case FieldType::Boolean:
        return QStringLiteral("BOOLEAN");
    case FieldType::Byte:
        return QStringLiteral("BYTE");
    case FieldType::Integer:
        return QStringLiteral("INT");
    case FieldType::Long:
        return QStringLiteral("LONG");
    case FieldType::Currency:
        return QStringLiteral("CURRENCY");
    case FieldType::Single:
        return QStringLiteral("SINGLE");
    case FieldType::Double:
        return QStringLiteral("DOUBLE");
    case FieldType::Date:
        return QStringLiteral("DATE");
    case FieldType::Memo:
        return QStringLiteral("MEMO");
    default:
        return field.size > 0 ? QStringLiteral("TEXT(%1)").arg(field.size) : QStringLiteral("TEXT");
    }
}

/// The shortest text that reads back as the same number.
QString doubleText(double value) {
    const double size = std::abs(value);
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e15);
    return QString::number(value, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

QString singleText(float value) {
    for (int digits = 1; digits < 9; ++digits) {
        const QString text = QString::number(static_cast<double>(value), 'g', digits);
        if (text.toFloat() == value) return doubleText(text.toDouble());
    }
    return QString::number(static_cast<double>(value), 'g', 9);
}

QString dateText(const QDateTime &date) {
    return date.toString(date.time() == QTime(0, 0) ? QStringLiteral("yyyy-MM-dd")
                                                    : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString quoted(const QString &text) {
    const bool plain = text != Null && !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
                       !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'));
    if (plain) return text;
    return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QString cellText(const QVariant &value, FieldType type) {
    if (IsNull(value)) return Null;
    switch (type) {
    case FieldType::Boolean:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case FieldType::Single:
        return singleText(value.toFloat());
    case FieldType::Double:
    case FieldType::Currency:
        return doubleText(value.toDouble());
    case FieldType::Date:
        return dateText(value.toDateTime());
    default:
        return quoted(value.toString());
    }
}

QByteArray line(const QStringList &cells) {
    return cells.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

} // namespace

const QStringList &DatabaseTexts::tables() {
    static const QStringList names{"materials",
                                   "standard",
                                   "ProdForm",
                                   "StandProdForm",
                                   "StandardProdForm",
                                   "Chemical",
                                   "OtherElem",
                                   "Columns",
                                   "Units",
                                   "MechMatTable",
                                   "CreepPropTable",
                                   "MechPropData",
                                   "CreepProperties",
                                   "Rp02",
                                   "Rp10",
                                   "Rm",
                                   "ModElast",
                                   "ThermExp",
                                   "ThermCond",
                                   "SpecThermCap",
                                   "SpecElecRes",
                                   "ImpEnergy",
                                   "MatNotes",
                                   "TableNotes",
                                   "GetInfo",
                                   "InfoTitle",
                                   "CompatibleGroup"};
    return names;
}

QByteArray DatabaseTexts::written(Database &database, const QString &table) {
    const auto rows = database.OpenRecordset(QStringLiteral("select * from ") + table);
    const FieldDefinitions &fields = rows->fieldDefinitions();
    QStringList cells;
    for (const FieldDefinition &field : fields)
        cells << quoted(field.name + QLatin1Char(':') + typeName(field));
    QByteArray text = line(cells);
    for (; !rows->Eof(); rows->MoveNext()) {
        cells.clear();
        for (int i = 0; i < fields.size(); ++i)
            cells << cellText(rows->Fields(i), fields[i].type);
        text += line(cells);
    }
    return text;
}
