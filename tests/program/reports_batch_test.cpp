// The batch: all selected materials in one document.
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QProgressBar>
#include <QTimer>

#include "material/GradeWindow.h"
#include "platform/forms/forms.h"
#include "platform/forms/status_bar.h"
#include "platform/runtime/app.h"
#include "reports/actRepBatchPrint.h"
#include "search/frmSearch.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"

using namespace Printing;

namespace {

class Batch : public ProgramFixture {
protected:
    void select(const QList<int> &ids) {
        for (int id : ids)
            main().colMaterials.Add(program().material(id));
    }
    /// Prints by the button; `look` sees the report while its preview is open.
    void run(const std::function<void(const actRepBatchPrint &report)> &look) {
        modal().driveForm([&](Form &preview) {
            EXPECT_EQ(preview.Name(), "actRepBatchPrint");
            EXPECT_TRUE(main().bBatchPrint);
            EXPECT_EQ(Forms::byName("frmMaterial2"), nullptr);
            look(actRepBatchPrint::instance());
            preview.Unload();
        });
        search().cmdBatch(0)->show();
        click(search().cmdBatch(0));
    }
};

int pageBreaks(const Report &report) {
    int count = 0;
    for (const auto &control : report.Sections("Detail").Controls)
        count += dynamic_cast<const PageBreak *>(control.get()) != nullptr;
    return count;
}

} // namespace

TEST_F(Batch, PrintsEveryTableWithDataAndReturnsToTheSearch) {
    select({SampleGrades::P265GH, SampleGrades::ReferenceOnly});
    const auto rich = main().colMaterials.Item(1);
    const auto poor = main().colMaterials.Item(2);
    run([](const actRepBatchPrint &report) {
        const QString name = App::current().title + "_MATERIALS_BATCH_PRINT";
        EXPECT_EQ(report.DocumentName, name);
        EXPECT_EQ(controlOf(report, "PageFooter", "lblDocName").Text, name);
    });
    for (const char *key : {"ChemComp", "CreepProp", "AddInfo"})
        EXPECT_TRUE(rich->PrintTable(main().GetTableIndex(key))) << key;
    EXPECT_FALSE(rich->PrintTable(0)); // the references are not forced on
    EXPECT_FALSE(rich->PrintTable(main().GetTableIndex("Rm")));
    for (int i = 0; i < TableVocabulary::TableCount; ++i)
        EXPECT_FALSE(poor->PrintTable(i)) << i;
    EXPECT_FALSE(main().bBatchPrint);
    EXPECT_TRUE(search().isVisible());
    EXPECT_TRUE(main().stbStatus->PanelText(1).startsWith("You can search"));
    EXPECT_EQ(main().colMaterials.Count(), 2);
}

TEST_F(Batch, EachMaterialBeginsAPageAndStandsOnTopInTheOutline) {
    select({SampleGrades::P265GH, SampleGrades::ReferenceOnly});
    run([](const actRepBatchPrint &report) {
        EXPECT_EQ(pageBreaks(report), 1);
        EXPECT_EQ(report.colBatchMaterials.Count(), 0);
        const Document &document = report.document();
        const QStringList headings = headingsOf(document);
        EXPECT_EQ(headings.mid(0, 4),
                  QStringList({"1 P265GH 1.0425 EN 10028-2", "2 Chemical Composition P265GH_1.0425",
                               "2 Mechanical Properties",
                               "3 Mechanical properties at room temperature P265GH_1.0425"}));
        EXPECT_TRUE(headings.contains("3 Thermal expansion P265GH_1.0425"));
        EXPECT_TRUE(headings.contains("2 Additional Information... P265GH_1.0425"));
        EXPECT_EQ(headings.last(), "1 Reference only 0.0000 EN 10254");
        EXPECT_EQ(document.headings.back().page, int(document.pages.size()) - 1);
        EXPECT_EQ(document.headings[document.headings.size() - 2].page, int(document.pages.size()) - 2);
    });
}

TEST_F(Batch, OneMaterialNeedsNoPageBreak) {
    select({SampleGrades::ReferenceOnly});
    run([](const actRepBatchPrint &report) {
        EXPECT_EQ(pageBreaks(report), 0);
        EXPECT_EQ(report.document().pages.size(), 1u);
    });
}

/// From an event loop, as in the program: what is only deleted later is there until that loop goes on.
TEST_F(Batch, KeepsNothingOfWhatIsLaidOutWhileThePagesAreLookedAt) {
    select({SampleGrades::P265GH, SampleGrades::ReferenceOnly});
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        run([](const actRepBatchPrint &report) {
            for (const QWidget *widget : QApplication::allWidgets())
                EXPECT_EQ(qobject_cast<const GradeWindow *>(widget), nullptr);
            for (const char *place : {"SubReport1", "SubReport2"})
                EXPECT_TRUE(report.Sections("Detail").Controls.Item<SubReport>(place).Object == nullptr);
        });
        loop.quit();
    });
    loop.exec();
}

/// The painted steps of every progress bar.
class PaintedSteps : public QObject {
public:
    PaintedSteps() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override {
        const auto *bar = qobject_cast<QProgressBar *>(watched);
        if (bar != nullptr && event->type() == QEvent::Paint) {
            if (steps.isEmpty() || steps.last() != bar->text()) steps << bar->text();
            waits = waits && QGuiApplication::overrideCursor() != nullptr;
        }
        return false;
    }
    QStringList steps;
    bool waits = true;
};

TEST_F(Batch, ShowsHowFarReadingAndMakingUpHaveCome) {
    select({SampleGrades::P265GH, SampleGrades::ReferenceOnly});
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&main()));
    QStringList steps;
    {
        const PaintedSteps painted;
        run([](const actRepBatchPrint &) {});
        steps = painted.steps;
        EXPECT_TRUE(painted.waits);
    }
    const QStringList once{"0 / 2", "1 / 2", "2 / 2"};
    EXPECT_EQ(steps, once + once);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(main().findChild<QProgressBar *>(), nullptr);
}

TEST_F(Batch, WithoutASelectionNothingHappens) {
    search().cmdBatch(0)->show();
    click(search().cmdBatch(0));
    EXPECT_FALSE(main().bBatchPrint);
    EXPECT_TRUE(search().isVisible());
}
