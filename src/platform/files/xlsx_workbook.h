// An XLSX file of plain worksheets, made in memory.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

struct XlsxCell {
    enum class Kind { Text, Number, Heading };

    QString text = {};
    Kind kind = Kind::Text;
    /// Of a number, which then is what counts and not the text.
    double number = 0;
    /// How many decimals of a number are shown.
    int decimals = 0;
};

struct XlsxSheet {
    /// Cut to what a worksheet may be called, and told from the others by a count.
    QString name;
    QVector<QVector<XlsxCell>> rows;
    /// The rows that stay at the top while the others move.
    int headingRows = 0;
};

struct XlsxWorkbook {
    QString title;
    /// The one thing that makes two files of the same cells differ.
    QDateTime made;
    QVector<XlsxSheet> sheets;

    /// The file. Raises 6 for more rows, columns or signs in a cell than a worksheet holds, 7 (out of
    /// memory), 75, 61 and 57 where the system's temporary folder cannot be written, is full or fails.
    QByteArray bytes() const;
};
