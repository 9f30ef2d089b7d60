#include "data/modVelmar.h"

#include "data/Material.h"
#include "data/table_vocabulary.h"

QString modVelmar::NoDataText(const Material &material, const QString &key, bool blankLines,
                              bool wideSpacing) {
    const QString lineEnd = QStringLiteral("\r\n");
    const QString lead = blankLines ? lineEnd + lineEnd : lineEnd;
    const QString indent = blankLines ? QStringLiteral("    ") : QStringLiteral("  ");
    QString gap;
    if (blankLines) gap = wideSpacing ? lineEnd + lineEnd : lineEnd;

    const QString table = TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(key));
    return lead + QStringLiteral("  * For this Grade - '") + material.Name() + QStringLiteral("',") + gap +
           indent + QStringLiteral("the Specification - '") + material.Standard() + QStringLiteral("',") +
           gap + indent + QStringLiteral("does not provide any data for - ") + gap + indent +
           QLatin1Char('\'') + table + QStringLiteral(".'");
}
