#include "platform/files/xlsx_workbook.h"

#include <algorithm>
#include <map>
#include <memory>

#include <xlsxwriter.h>

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include "platform/files/packed_xml.h"
#include "platform/runtime/runtime_error.h"

namespace {

constexpr int LongestName = 31;
constexpr qsizetype LeastWidth = 8;
constexpr qsizetype GreatestWidth = 60;

void check(lxw_error error) {
    switch (error) {
    case LXW_NO_ERROR:
        return;
    case LXW_ERROR_MEMORY_MALLOC_FAILED:
        throw RuntimeError(7);
    case LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED:
    case LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE:
        throw RuntimeError(6);
    case LXW_ERROR_CREATING_XLSX_FILE:
    case LXW_ERROR_CREATING_TMPFILE:
        throw RuntimeError(75);
    default:
        throw RuntimeError(61);
    }
}

/// What the library would write short, or not at all.
void checkSize(const XlsxSheet &sheet) {
    if (sheet.rows.size() > LXW_ROW_MAX) throw RuntimeError(6);
    for (const QVector<XlsxCell> &row : sheet.rows)
        if (row.size() > LXW_COL_MAX) throw RuntimeError(6);
}

/// Two names may not differ by capitals alone.
QString sheetName(const QString &wanted, QSet<QString> &taken) {
    QString base = wanted.simplified();
    base.replace(QLatin1Char('['), QLatin1Char('(')).replace(QLatin1Char(']'), QLatin1Char(')'));
    for (const char sign : {':', '*', '?', '/', '\\', '\''})
        base.replace(QLatin1Char(sign), QLatin1Char('-'));
    base = base.simplified().left(LongestName).trimmed();
    if (base.isEmpty()) base = QStringLiteral("Sheet");
    QString name = base;
    for (int count = 2; taken.contains(name.toLower()); ++count) {
        const QString end = QStringLiteral(" (%1)").arg(count);
        name = base.left(LongestName - end.size()) + end;
    }
    taken.insert(name.toLower());
    return name;
}

/// The formats of one workbook, each made once.
class Formats {
public:
    explicit Formats(lxw_workbook *book)
        : m_book(book)
        , m_heading(workbook_add_format(book))
        , m_text(workbook_add_format(book)) {
        for (lxw_format *format : {m_heading, m_text}) {
            format_set_text_wrap(format);
            format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
        }
        format_set_bold(m_heading);
        // A text that a person edits later must not become a date or a number by itself.
        format_set_num_format(m_text, "@");
    }

    lxw_format *heading() const { return m_heading; }
    lxw_format *text() const { return m_text; }
    lxw_format *number(int decimals) {
        lxw_format *&format = m_numbers[decimals];
        if (!format) {
            format = workbook_add_format(m_book);
            format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
            const QByteArray digits = decimals > 0 ? "0." + QByteArray(decimals, '0') : QByteArray("0");
            format_set_num_format(format, digits.constData());
        }
        return format;
    }

private:
    lxw_workbook *m_book;
    lxw_format *m_heading;
    lxw_format *m_text;
    std::map<int, lxw_format *> m_numbers;
};

qsizetype widthOf(const QString &text) {
    qsizetype width = 0;
    for (const QString &line : text.split(QLatin1Char('\n')))
        width = std::max(width, line.size());
    return width;
}

void writeCells(lxw_worksheet *sheet, const XlsxSheet &cells, Formats &formats) {
    QVector<qsizetype> widths;
    lxw_row_t at = 0;
    for (const QVector<XlsxCell> &row : cells.rows) {
        lxw_col_t column = 0;
        for (const XlsxCell &cell : row) {
            if (column == widths.size()) widths << LeastWidth;
            widths[column] = std::max(widths[column], widthOf(cell.text) + 2);
            const bool isHeading = cell.kind == XlsxCell::Kind::Heading;
            if (cell.kind == XlsxCell::Kind::Number)
                check(worksheet_write_number(sheet, at, column, cell.number, formats.number(cell.decimals)));
            else if (!cell.text.isEmpty())
                check(worksheet_write_string(sheet, at, column, cell.text.toUtf8().constData(),
                                             isHeading ? formats.heading() : formats.text()));
            ++column;
        }
        ++at;
    }
    for (qsizetype i = 0; i < widths.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        worksheet_set_column(sheet, column, column, static_cast<double>(std::min(widths[i], GreatestWidth)),
                             nullptr);
    }
    if (cells.headingRows > 0) worksheet_freeze_panes(sheet, static_cast<lxw_row_t>(cells.headingRows), 0);
}

/// Ends the library's object also where a cell raised an error.
struct Closing {
    void operator()(lxw_workbook *book) const { lxw_workbook_free(book); }
};

void writeFile(const XlsxWorkbook &workbook, const QByteArray &path, QByteArray folder) {
    lxw_workbook_options options{};
    options.tmpdir = folder.data();
    std::unique_ptr<lxw_workbook, Closing> book(workbook_new_opt(path.constData(), &options));
    if (!book) throw RuntimeError(7);
    QByteArray title = workbook.title.toUtf8();
    lxw_doc_properties properties{};
    properties.title = title.data();
    properties.created = static_cast<time_t>(workbook.made.toSecsSinceEpoch());
    check(workbook_set_properties(book.get(), &properties));
    Formats formats(book.get());
    QSet<QString> names;
    for (const XlsxSheet &sheet : workbook.sheets) {
        checkSize(sheet);
        const QByteArray name = sheetName(sheet.name, names).toUtf8();
        lxw_worksheet *worksheet = workbook_add_worksheet(book.get(), name.constData());
        if (!worksheet) throw RuntimeError(7);
        writeCells(worksheet, sheet, formats);
    }
    check(workbook_close(book.release()));
}

} // namespace

QByteArray XlsxWorkbook::bytes() const {
    const QTemporaryDir folder;
    if (!folder.isValid()) throw RuntimeError(75);
    const QString path = folder.filePath(QStringLiteral("workbook.xlsx"));
    writeFile(*this, QFile::encodeName(path), QFile::encodeName(folder.path()));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw RuntimeError(75);
    QByteArray bytes = file.readAll();
    // The library does not look whether its temporary files could be written, and packs what there is of
    // them.
    if (!holdsWholeXml(bytes)) throw RuntimeError(61);
    return bytes;
}
