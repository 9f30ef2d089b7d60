#include "design/design_headings.h"

#include "data/table_vocabulary.h"

namespace {

struct KnownHeadings {
    const char16_t *key;
    const char16_t *first;
    const char16_t *second;
};

constexpr char16_t MegaPascal[] = u"[MPa]";

// These are labelled by their bare key.
constexpr KnownHeadings LabelledByKey[] = {
    {u"ThermExp", u"\u00DF20, t [E-6/K]", u"\u00DFdiff, t [E-6/K]"},
    {u"SpecThermCap", u"Cp20, t [J/kgK]", u"Cp diff, t [J/kgK]"},
    {u"ThermCond", u"[W/m*K]", nullptr},
    {u"ModElast", u"[kN/mm]", nullptr},
};

QStringList bandCaptions(const QVector<qint16> &aThickness) {
    QStringList captions;
    for (qsizetype i = 1; i < aThickness.size(); ++i) {
        // Two blanks in the first brackets, where a graph's legend has three: meant so.
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
    for (const KnownHeadings &known : LabelledByKey) {
        if (key != QStringView(known.key)) continue;
        QStringList columns{QString::fromUtf16(known.first)};
        if (known.second != nullptr) columns << QString::fromUtf16(known.second);
        return {key, columns};
    }
    // Also over a resistivity: meant so.
    return {label, {QString::fromUtf16(MegaPascal)}};
}
