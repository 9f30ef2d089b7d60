#include "workbench/save_taken.h"

#include <QApplication>
#include <QClipboard>

#include "data/modDBase.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_output.h"
#include "workbench/TableReport.h"

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

} // namespace

void SaveTaken::copy(const TakenTable &table) {
    QApplication::clipboard()->setText(QString::fromUtf8(TakenTables::tsv(table)));
}

void SaveTaken::saveAsking(const TakenTable &table, const QVector<TakenFact> &facts, const QString &topic) {
    CommonDialog dialog;
    dialog.DialogTitle = "Save " + table.title;
    dialog.InitDir = "c:\\";
    dialog.Filter = "Workbook (*.xlsx)|*.xlsx|Comma-Separated Values (*.csv)|*.csv|"
                    "Tab-Separated Values (*.tsv)|*.tsv|Portable Document Format (*.pdf)|*.pdf|"
                    "Rich Text Format (*.rtf)|*.rtf|Text Format (*.txt)|*.txt";
    dialog.FilterExt = true;
    dialog.Topic = topic;
    dialog.ShowSave();
    if (dialog.FileName.isEmpty()) return;
    const BusyPointer busy;
    const QVector<TakenFact> all = facts + TakenTables::databaseFacts(*modDBase::dbMain());
    if (const auto saveReport = reportOutput(dialog.FileName)) {
        TableReport report(table, all);
        saveReport(report.Run(), dialog.FileName);
    } else {
        TakenTables::save({{table}, all}, dialog.FileName, TakenTables::formatOf(dialog.FileName));
    }
}
