// Rows of texts under headings, written for people and for other programs.
#pragma once

#include <QList>
#include <QStringList>

namespace Records {

enum class Format { Table, Csv, Tsv };

struct Sheet {
    /// CSV and TSV can do without any.
    QStringList headings;
    /// As many cells a row as there are headings, if there are any.
    QList<QStringList> rows;
};

/// Lines with their ends. A table is aligned and has its headings above a rule; a text of several lines takes
/// as many in it. CSV is that of RFC 4180, with LF unless another end of the lines is given; TSV has blanks
/// in the place of tabs and line ends.
QString written(const Sheet &sheet, Format format, const QString &lineEnd = QStringLiteral("\n"));

} // namespace Records
