#include "workbench/table_saving.h"

#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"

void TableSaving::ask(const TakenBook &book, const QString &title, const QString &topic) {
    CommonDialog dialog;
    dialog.DialogTitle = title;
    dialog.FileName = "c:\\" + book.tables.first().title + ".xlsx";
    dialog.InitDir = "c:\\";
    dialog.Filter =
        "Workbook (*.xlsx)|*.xlsx|Comma Separated Text (*.csv)|*.csv|Tab Separated Text (*.tsv)|*.tsv";
    dialog.Topic = topic;
    const QString offered = dialog.FileName;
    dialog.ShowSave();
    if (dialog.FileName == offered) return;
    const BusyPointer busy;
    TakenTables::save(book, dialog.FileName, TakenTables::formatOf(dialog.FileName));
}
