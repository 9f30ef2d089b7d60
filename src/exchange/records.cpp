#include "exchange/records.h"

#include <algorithm>

#include <QRegularExpression>

namespace {

QStringList linesOf(const QString &cell) {
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    return cell.split(lineEnd);
}

QVector<qsizetype> widthsOf(const Records::Sheet &sheet) {
    QVector<qsizetype> widths(sheet.headings.size(), 0);
    const auto widen = [&widths](const QStringList &cells) {
        for (qsizetype i = 0; i < cells.size(); ++i)
            for (const QString &line : linesOf(cells[i]))
                widths[i] = std::max(widths[i], line.size());
    };
    widen(sheet.headings);
    for (const QStringList &row : sheet.rows)
        widen(row);
    return widths;
}

QString withoutEndBlanks(QString line) {
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line + QLatin1Char('\n');
}

/// As many lines as the highest cell has.
QString aligned(const QStringList &cells, const QVector<qsizetype> &widths) {
    QList<QStringList> lines;
    qsizetype height = 1;
    for (const QString &cell : cells) {
        lines << linesOf(cell);
        height = std::max(height, lines.last().size());
    }
    QString text;
    for (qsizetype line = 0; line < height; ++line) {
        QStringList parts;
        for (qsizetype i = 0; i < cells.size(); ++i)
            parts << lines[i].value(line).leftJustified(widths[i]);
        text += withoutEndBlanks(parts.join(QStringLiteral("  ")));
    }
    return text;
}

QString asTable(const Records::Sheet &sheet) {
    const QVector<qsizetype> widths = widthsOf(sheet);
    QStringList rules;
    for (const qsizetype width : widths)
        rules << QString(width, QLatin1Char('-'));
    QString text = aligned(sheet.headings, widths) + rules.join(QStringLiteral("  ")) + QLatin1Char('\n');
    for (const QStringList &row : sheet.rows)
        text += aligned(row, widths);
    return text;
}

QString csvCell(const QString &cell) {
    static const QRegularExpression special(QStringLiteral("[\",\r\n]"));
    if (!cell.contains(special)) return cell;
    return QLatin1Char('"') + QString(cell).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QString tsvCell(const QString &cell) {
    static const QRegularExpression breaks(QStringLiteral("\r\n|[\t\r\n]"));
    return QString(cell).replace(breaks, QStringLiteral(" "));
}

} // namespace

QString Records::written(const Sheet &sheet, Format format, const QString &lineEnd) {
    if (format == Format::Table) return asTable(sheet);
    const bool csv = format == Format::Csv;
    const auto line = [csv, &lineEnd](const QStringList &cells) {
        QStringList parts;
        for (const QString &cell : cells)
            parts << (csv ? csvCell(cell) : tsvCell(cell));
        return parts.join(QLatin1Char(csv ? ',' : '\t')) + lineEnd;
    };
    QString text = sheet.headings.isEmpty() ? QString() : line(sheet.headings);
    for (const QStringList &row : sheet.rows)
        text += line(row);
    return text;
}
