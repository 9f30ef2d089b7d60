#include "data/material_texts.h"

#include "data/cell_values.h"
#include "platform/dao/recordset.h"

QString textWithOtherElements(const QString &other, const QString &notes) {
    return "Other Elements - " + other + LineEnd + LineEnd + notes;
}

QString additionalInfoText(const QVector<InfoParagraph> &paragraphs,
                           const std::function<QString(int)> &titleOf) {
    QString text;
    QString loose;
    QString title;
    int lastTitle = 0;
    for (const InfoParagraph &paragraph : paragraphs) {
        if (paragraph.titleID != lastTitle) {
            lastTitle = paragraph.titleID;
            title = titleOf(lastTitle);
            if (title == QLatin1String("[NoTitle]")) {
                title.clear();
            } else {
                const QString gap = text.isEmpty() ? QString() : LineEnd;
                text += gap + gap + title + LineEnd;
            }
        }
        (title.isEmpty() ? loose : text) += LineEnd + paragraph.text;
    }
    return text + LineEnd + LineEnd + loose;
}

QStringList readProductForms(Recordset &names, int ids) {
    QStringList forms;
    for (int i = 0; i < ids; ++i) {
        if (i > 0) names.MoveNext();
        forms << cellText(names.Fields("productForm"));
    }
    return forms;
}
