// The search window as it opens and closes: its sizes, its columns, its tips, what it keeps from run to run.
#include <QFile>
#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "platform/forms/grid_footer.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/text_file.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"

namespace {

class SearchWindowTest : public ProgramFixture {
protected:
    QStringList settingsFile() { return TextFile::readLines(program().userFolder() + "Settings.vlp"); }
    static QHeaderView *headings(TDBGrid *grid) {
        const auto headers = grid->findChildren<QHeaderView *>();
        return headers[headers.first()->orientation() == Qt::Horizontal ? 0 : 1];
    }
    /// The user drags the edge of a heading.
    static void widen(TDBGrid *grid, int column, int pixels) {
        QHeaderView *header = headings(grid);
        header->resizeSection(column, header->sectionSize(column) + pixels);
    }
    /// What the resting mouse brings up over a column's heading, footer or first cell.
    QString tip(GridArea area, int column) {
        TDBGrid *grid = search().tdbMaterials;
        const QHeaderView *header = headings(grid);
        const int x = header->sectionViewportPosition(column) + 5;
        QWidget *place = area == GridArea::Header
                             ? header->viewport()
                             : qobject_cast<QAbstractItemView *>(grid->focusProxy())->viewport();
        QPoint at(x, 5);
        if (area == GridArea::Footer) {
            place = grid->findChild<GridFooter *>();
            at.rx() += header->x();
        }
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, at, place->mapToGlobal(at));
        QCoreApplication::sendEvent(place, &event);
        return QToolTip::text();
    }
    /// Every control that shows, with the frame that it stands in.
    void expectAllInside() {
        for (QWidget *control : search().framStandDesc->findChildren<QWidget *>()) {
            const bool named = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_");
            if (!named || control->isHidden() || control->parentWidget()->inherits("TDBGrid")) continue;
            const QRect room = control->parentWidget() == search().framStandDesc
                                   ? search().rect().translated(-search().framStandDesc->pos())
                                   : control->parentWidget()->rect();
            EXPECT_TRUE(room.contains(control->geometry())) << qPrintable(control->objectName());
        }
    }
    /// What stands in one frame does not overlap, and no text is wider than its place.
    void expectLegible() {
        for (QWidget *control : search().framStandDesc->findChildren<QWidget *>()) {
            if (control->isHidden()) continue;
            const QString name = control->objectName();
            if (auto *button = qobject_cast<QAbstractButton *>(control);
                button != nullptr && !name.isEmpty()) {
                const QString text = button->text().remove('&');
                EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(text)) << qPrintable(name);
            }
            auto *label = qobject_cast<QLabel *>(control);
            if (label == nullptr || label->text().isEmpty()) continue;
            const int needed =
                label->wordWrap() ? label->heightForWidth(label->width()) : label->fontMetrics().height();
            EXPECT_LE(needed, label->height()) << qPrintable(name);
            EXPECT_TRUE(label->wordWrap() || label->sizeHint().width() <= label->width()) << qPrintable(name);
        }
    }
};

TEST_F(SearchWindowTest, OpensOnTheWholeListWhateverWasKept) {
    TestProgram::Given given;
    given.settings = QStringList(19) + QStringList({"EN 1", "P2", "", "", "", "", "Plate", "2"});
    start(given);
    for (const auto &[index, box] : search().txtSearch)
        EXPECT_EQ(box->text(), "");
    EXPECT_EQ(search().cmbChooseStd->currentText(), "EN");
    EXPECT_TRUE(search().chkListAll->isChecked());
    EXPECT_EQ(search().lblMatCount->text(), "38");
    EXPECT_EQ(search().dtaMaterials->RecordSource(), "select * from materials order by standard,name");
    EXPECT_EQ(search().mLatestRevision.date(), QDate(2021, 11, 8));
    EXPECT_EQ(search().Caption(), "Select Material(s)...");
    EXPECT_EQ(search().focusWidget(), search().txtSearch(0));
    EXPECT_FALSE(search().cmdShowPmaIndex->isHidden());

    type(search().txtSearch(1), "16Mo3");
    EXPECT_FALSE(search().Unload(vbFormControlMenu)) << "the user cannot close it";
    search().cmbChooseStd->setCurrentIndex(1);
    type(search().txtSearch(1), "21");
    main().Unload();
    EXPECT_EQ(settingsFile().mid(19), QStringList({"", "21", "", "", "", "", "", "1"}));
}

TEST_F(SearchWindowTest, WithoutAPmaIndexItsButtonIsHidden) {
    TestProgram::Given given;
    given.pmaIndex = false;
    start(given);
    EXPECT_TRUE(search().cmdShowPmaIndex->isHidden());
}

TEST_F(SearchWindowTest, BothSizesHoldEverything) {
    const struct {
        QSize screen;
        int width, height;
    } cases[] = {{{1024, 768}, 15090, 10020}, {{1000, 768}, 11700, 7470}};
    for (const auto &item : cases) {
        TestProgram::Given given;
        given.screen = item.screen;
        start(given);
        search().setWidth(3000);
        search().setHeight(3000);
        EXPECT_EQ(QSize(search().Width(), search().Height()), QSize(item.width, item.height));
        for (const int kind : {0, 1, 2}) {
            search().cmbChooseStd->setCurrentIndex(kind);
            expectAllInside();
            expectLegible();
        }
    }
    EXPECT_TRUE(search().lblSearch->isHidden());
    for (const auto &[index, panel] : search().lblBack)
        EXPECT_TRUE(panel->isHidden());
    const struct {
        QWidget *control;
        QRect place;
    } fitted[] = {
        {search().framStandDesc, {120, 0, 11700, 7470}},
        {search().cmdSelect(4), {1800, 4080, 375, 285}},
        {search().framSelTabNav, {120, 2280, 1395, 375}},
        {search().framMatTable, {2640, 120, 8730, 4095}},
        {search().cmdSelections(1), {3120, 2280, 1455, 375}},
        {search().imgBin, {8280, 2280, 375, 375}},
    };
    for (const auto &item : fitted)
        EXPECT_EQ(placeOf(item.control), item.place) << qPrintable(item.control->objectName());
}

TEST_F(SearchWindowTest, TheTabKeyFollowsTheWork) {
    search();
    QStringList order;
    for (int i = 0; i < 10; ++i) {
        QWidget *control = search().focusWidget();
        while (control != nullptr && control->objectName().startsWith("qt_"))
            control = control->parentWidget();
        if (control != nullptr && control->parentWidget()->inherits("TDBGrid"))
            control = control->parentWidget();
        order << (control != nullptr ? control->objectName() : QString());
        press(search().focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"txtSearch(0)", "txtSearch(6)", "txtSearch(1)", "txtSearch(2)",
                                  "txtSearch(3)", "txtSearch(4)", "txtSearch(5)", "tdbMaterials",
                                  "cmdSelectMat", "cmdSelections(0)"}));
}

TEST_F(SearchWindowTest, OnlyWidthsOfTheUpperGridAreRemembered) {
    EXPECT_EQ(main().ColumnSize(3), search().tdbMaterials->Columns(3).Width()) << "the first run's widths";
    const double number = search().tdbMaterials->Columns(2).Width();
    const double name = search().tdbMaterials->Columns(1).Width();
    widen(search().tdbMaterials, 2, 20);
    widen(search().tdbSelected, 1, -10);
    widen(search().tdbMaterials, 8, 30);
    EXPECT_EQ(search().tdbSelected->Columns(2).Width(), number + 300);
    EXPECT_EQ(search().tdbMaterials->Columns(1).Width(), name - 150);
    click(search().chkSearch(4));
    restart();
    EXPECT_EQ(settingsFile().mid(7, 3),
              QStringList({"1500", QString::number(name), QString::number(number + 300)}));
    EXPECT_EQ(search().tdbMaterials->Columns(2).Width(), number + 300);
    EXPECT_EQ(search().tdbMaterials->Columns(1).Width(), name);
    EXPECT_FALSE(search().chkSearch(4)->isChecked());
    EXPECT_TRUE(search().tdbMaterials->Columns(4).Visible()) << "shown again by the standards system";
}

TEST_F(SearchWindowTest, TipsOfTheGrid) {
    EXPECT_EQ(tip(GridArea::Header, 1), " Order by 'EN Name' - Ascending ");
    EXPECT_EQ(tip(GridArea::Footer, 8), " Order by 'ASME Grade' - Descending ");
    const QString ofTheGrid = search().tdbMaterials->toolTip();
    EXPECT_TRUE(ofTheGrid.startsWith("To select, press 'Select Material'"));
    EXPECT_EQ(tip(GridArea::Cell, 1), ofTheGrid);
    type(search().txtSearch(1), "no such");
    QToolTip::hideText();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(tip(GridArea::Header, 1), "") << "an empty list has no order";
    EXPECT_EQ(tip(GridArea::Cell, 1), "") << "and nothing to select";
}

TEST_F(SearchWindowTest, ToolTipsGoAndComeBackEverywhere) {
    const auto tips = [this] {
        QStringList result;
        for (QWidget *control : search().framStandDesc->findChildren<QWidget *>())
            if (!control->toolTip().isEmpty()) result << control->objectName() + '=' + control->toolTip();
        for (int i = 1; i <= 24; ++i)
            result << main().Toolbar1->Buttons(i).ToolTipText();
        return result;
    };
    const auto toggle = [this] { main().menu.mnuSettingsElem(3).trigger(); };
    const QStringList before = tips();
    toggle();
    EXPECT_EQ(tips().join(""), "");
    toggle();
    EXPECT_EQ(tips(), before);
}

} // namespace
