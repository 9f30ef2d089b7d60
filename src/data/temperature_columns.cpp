#include "data/temperature_columns.h"

#include "data/cell_values.h"
#include "data/table_vocabulary.h"
#include "platform/dao/recordset.h"

namespace {

constexpr int FirstImpactField = 2;

} // namespace

QVector<TemperatureColumn> temperatureColumns(const QString &key) {
    const auto text = [](const char16_t *known) { return known ? QString::fromUtf16(known) : QString(); };
    QVector<TemperatureColumn> columns;
    if (const TableVocabulary::Table *table = TableVocabulary::find(key))
        for (const TableVocabulary::Column &column : table->columns)
            columns << TemperatureColumn{text(column.field), text(column.heading), text(column.unit),
                                         text(column.picture)};
    return columns;
}

QVector<qint16> bandLimits(Recordset &rows) {
    QVector<qint16> limits{0};
    for (; !rows.Eof(); rows.MoveNext()) {
        const qint16 thickness = CInt(rows.Fields("thickness"));
        if (limits.size() == 1 || limits.last() != thickness) limits << thickness;
    }
    return limits;
}

QString bandHeading(const QVector<qint16> &limits, int band) {
    const QString from = band == 1 ? QStringLiteral("   ") : QString::number(limits[band - 1]);
    return "(" + from + ") - " + LineEnd + LineEnd + QString::number(limits[band]) + "mm";
}

qint16 EmptyImpactColumns::columnsWithValues() const {
    return static_cast<qint16>(7 - (kv ? 1 : 0) - (kvLong ? 2 : 0) - (kvTrans ? 4 : 0));
}

EmptyImpactColumns emptyImpactColumns(Recordset &rows) {
    bool empty[3] = {};
    for (bool firstRow = true; !rows.Eof(); rows.MoveNext(), firstRow = false) {
        for (int i = 0; i < 3; ++i) {
            const bool noValue = isNoValue(cellText(rows.Fields(FirstImpactField + i)));
            if (!noValue)
                empty[i] = false;
            else if (firstRow)
                empty[i] = true;
        }
    }
    return {empty[0], empty[1], empty[2]};
}
