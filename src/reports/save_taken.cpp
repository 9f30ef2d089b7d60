#include "reports/save_taken.h"

#include <QApplication>
#include <QClipboard>
#include <QRegularExpression>

#include "data/modDBase.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_output.h"
#include "platform/runtime/runtime_error.h"
#include "reports/TableReport.h"

namespace {

using Output = void (*)(const Printing::Document &document, const QString &path);

/// By the ending of the file's name; null for one that is no report's.
Output reportOutput(const QString &path) {
    const std::pair<const char *, Output> outputs[] = {
        {".pdf", Printing::savePdf}, {".rtf", Printing::saveRtf}, {".txt", Printing::saveText}};
    for (const auto &[ending, output] : outputs)
        if (path.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) return output;
    return nullptr;
}

constexpr int Cancelled = 32755;

const QString TableFilter = QStringLiteral("Workbook (*.xlsx)|*.xlsx|Comma-Separated Values (*.csv)|*.csv|"
                                           "Tab-Separated Values (*.tsv)|*.tsv");
const QString ReportFilter =
    QStringLiteral("|Portable Document Format (*.pdf)|*.pdf|Rich Text Format (*.rtf)|*.rtf|"
                   "Text Format (*.txt)|*.txt");

/// What no system and no shell takes amiss.
QString fileName(const QString &text) {
    static const QRegularExpression others(QStringLiteral("[^\\w.,+-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    const QStringList parts = text.split(others, Qt::SkipEmptyParts);
    return parts.join(QLatin1Char('_'));
}

QVector<TakenFact> withDatabase(const QVector<TakenFact> &facts) {
    return facts + TakenTables::databaseFacts(*modDBase::dbMain());
}

/// Empty for Cancel.
QString askedPath(const QString &title, const QString &name, const QString &filter, const QString &topic) {
    CommonDialog dialog;
    dialog.DialogTitle = "Save " + title;
    dialog.InitDir = "c:\\";
    dialog.Filter = filter;
    dialog.FilterExt = true;
    dialog.Topic = topic;
    dialog.CancelError = true;
    dialog.FileName = name;
    try {
        dialog.ShowSave();
    } catch (const RuntimeError &error) {
        if (error.number() != Cancelled) throw;
        return {};
    }
    return dialog.FileName;
}

} // namespace

void SaveTaken::copy(const TakenTable &table) {
    QApplication::clipboard()->setText(QString::fromUtf8(TakenTables::tsv(table)));
}

void SaveTaken::saveAsking(const TakenTable &table, const QVector<TakenFact> &facts, const QString &topic) {
    const QString path = askedPath(table.title, {}, TableFilter + ReportFilter, topic);
    if (path.isEmpty()) return;
    const BusyPointer busy;
    if (const auto saveReport = reportOutput(path)) {
        TableReport report(table, withDatabase(facts));
        saveReport(report.Run(), path);
    } else {
        TakenTables::save({{table}, withDatabase(facts)}, path, TakenTables::formatOf(path));
    }
}

void SaveTaken::saveOfGrade(const Grades::Grade &grade, const TakenTable &table,
                            const QVector<TakenFact> &facts, const QString &topic) {
    const QString name = fileName(grade.name + ' ' + grade.number + ' ' + table.title);
    const QString path = askedPath(table.title, name, TableFilter, topic);
    if (path.isEmpty()) return;
    const BusyPointer busy;
    TakenTables::save({{table}, withDatabase(TakenTables::gradeFacts({grade}) + facts)}, path,
                      TakenTables::formatOf(path));
}
