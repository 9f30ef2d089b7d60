#include "bench/reports.h"

#include <QAction>
#include <QTest>

#include "bench/program.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "platform/forms/msg_box.h"
#include "reports/actRepBatchPrint.h"
#include "reports/report_commands.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"

namespace Bench {

void readyForReport(Program &program) {
    frmMaterial2 &window = *program.windows().first();
    window.CheckTablesForRecords();
    for (int i = 0; i < TableVocabulary::TableCount; ++i)
        window.mMat()->setPrintTable(i, window.mMat()->TableHasData(TableVocabulary::GetShortTableName(i)));
    paint();
}

void saveReport(Program &program, int format) {
    static const char *const Names[] = {"report.pdf", "report.rtf", "report.txt"};
    program.boxes().chooseFile(program.output(Names[format]));
    program.boxes().answerMsgBox(vbOK);
    ReportCommands::saveReport(format);
}

void backToEmptySearch(Program &program) {
    mdiVelmar::instance().SelectMaterials();
    program.search().cmdSelections(1)->click();
    paint();
}

void selectForBatch(Program &program, const QVector<int> &grades) {
    frmSearch &search = program.search();
    search.txtSearch(1)->setText("ZORBALTIKREMO");
    search.chkListAll->setChecked(true);
    program.select(grades);
}

int printBatch(Program &program) {
    int pages = 0;
    program.boxes().driveForm([&](Form &window) {
        pages = static_cast<int>(actRepBatchPrint::instance().document().pages.size());
        program.boxes().chooseFile(program.output("batch.pdf"));
        program.boxes().answerMsgBox(vbOK);
        window.findChild<QAction *>("save")->trigger();
        window.Unload();
    });
    program.search().cmdBatch(0)->click();
    paint();
    return pages;
}

} // namespace Bench
