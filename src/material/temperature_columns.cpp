#include "material/temperature_columns.h"

#include "data/cell_values.h"
#include "data/table_vocabulary.h"
#include "platform/dao/recordset.h"

namespace {

constexpr int FirstImpactField = 2;

QString lines(const QString &symbol, const QString &unit) {
    return symbol + LineEnd + LineEnd + unit;
}

} // namespace

QVector<TemperatureColumn> temperatureColumns(const QString &key) {
    if (key == QLatin1String("ImpEnergy"))
        return {{"kv", lines("KV", "[Joule]")},
                {"kvLong", lines("KVL", "[Joule]")},
                {"kvTrans", lines("KVT", "[Joule]")}};
    // meant so: the sharp s stands for the symbol of the expansion coefficient
    if (key == QLatin1String("ThermExp"))
        return {{"ThermExp", lines("ß20, t", "[E-6/K]")}, {"ThermExpDiff", lines("ßdiff, t", "[E-6/K]")}};
    if (key == QLatin1String("SpecThermCap"))
        return {{"SpecThermCap", lines("Cp20, t", "[J/kgK]")},
                {"SpecThermCapDiff", lines("Cp diff, t", "[J/kgK]")}};
    return {{key, TableVocabulary::GetCaption(key)}};
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
    return lines("(" + from + ") - ", QString::number(limits[band]) + "mm");
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
