#include "design/design_headings.h"

#include "data/table_vocabulary.h"

namespace {

QStringList bandCaptions(const QVector<qint16> &aThickness) {
    QStringList captions;
    for (qsizetype i = 1; i < aThickness.size(); ++i) {
        // Two blanks in the first brackets, where a graph's legend has three: design files of one grade are
        // compared as texts, and one blank more would differ in each.
        const QString from = i == 1 ? QStringLiteral("  ") : QString::number(aThickness[i - 1]);
        captions << QStringLiteral("(%1) - %2mm").arg(from, QString::number(aThickness[i]));
    }
    return captions;
}

} // namespace

DesignHeadings designHeadings(const QString &key, const QVector<qint16> &aThickness,
                              const QStringList &aCreepCaptions) {
    const QString label = TableVocabulary::GetCaption(key);
    if (key == QLatin1String("CreepProp")) return {label, aCreepCaptions.mid(1)};
    if (!aThickness.isEmpty()) return {label, bandCaptions(aThickness)};
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    if (!table) return {label, {}};
    QStringList columns;
    if (table->designUnit)
        columns << QString::fromUtf16(table->designUnit);
    else
        for (const TableVocabulary::Column &column : table->columns)
            columns << QString::fromUtf16(column.heading).simplified();
    return {table->designByKey ? key : label, columns};
}
