#include "workbench/save_taken.h"

#include <QApplication>
#include <QClipboard>

#include "data/modDBase.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"

void SaveTaken::copy(const TakenTable &table) {
    QApplication::clipboard()->setText(QString::fromUtf8(TakenTables::tsv(table)));
}

void SaveTaken::saveAsking(const TakenTable &table, const QVector<TakenFact> &facts, const QString &topic) {
    CommonDialog dialog;
    dialog.DialogTitle = "Save " + table.title;
    dialog.InitDir = "c:\\";
    dialog.Filter = "Workbook (*.xlsx)|*.xlsx|Comma-Separated Values (*.csv)|*.csv|"
                    "Tab-Separated Values (*.tsv)|*.tsv";
    dialog.FilterExt = true;
    dialog.Topic = topic;
    dialog.ShowSave();
    if (dialog.FileName.isEmpty()) return;
    const BusyPointer busy;
    TakenTables::save({{table}, facts + TakenTables::databaseFacts(*modDBase::dbMain())}, dialog.FileName,
                      TakenTables::formatOf(dialog.FileName));
}
