// The running texts of a material: notes, other elements, additional information, product forms.
#pragma once

#include <functional>

#include <QStringList>
#include <QVector>

class Recordset;

/// The other elements stand before the notes.
QString textWithOtherElements(const QString &other, const QString &notes);

/// One paragraph of the additional information.
struct InfoParagraph {
    int titleID = 0;
    QString text;
};

/// Titles and their paragraphs, and last, behind two line ends, the paragraphs that have no title: those of
/// title 0 and those of a title "[NoTitle]".
QString additionalInfoText(const QVector<InfoParagraph> &paragraphs,
                           const std::function<QString(int titleID)> &titleOf);

/// As many names as there are ids. Raises 3021 where an id has no name.
QStringList readProductForms(Recordset &names, int ids);
