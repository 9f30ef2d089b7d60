// What the help shows of tables, graphs and design values; the PMA index, the help itself, the about window,
// and the search on small screens.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

#include "platform/desktop/help_viewer.h"
#include "platform/desktop/shell_execute.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/screen.h"
#include "shell/HTMLHelp.h"
#include "start/frmSplash.h"
#include "tour/tour.h"

namespace {

HelpViewer *helpWindow() {
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *viewer = qobject_cast<HelpViewer *>(widget)) return viewer;
    return nullptr;
}

} // namespace

void showPmaIndex(Tour &tour) {
    const ShellSeam nothingIsStarted;
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("pma-index", form);
        auto &box = tour.control<QLineEdit>(form, "txtSearchString");
        tour.type(box, "plate");
        tour.press(box, Qt::Key_Return);
        tour.picture("pma-search", form);
        form.Unload();
    });
    tour.click(tour.control<QAbstractButton>(tour.form("frmSearch"), "cmdShowPmaIndex"));
}

void showAbout(Tour &tour) {
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("about", form);
        form.Unload();
    });
    tour.menu("mnuHelpElem(4)");
}

void readHelp(Tour &tour) {
    tour.menu("mnuHelpElem(0)");
    HelpViewer &help = *helpWindow();
    auto *text = help.findChild<QTextBrowser *>("HelpText");
    (void)QTest::qWaitFor([text] { return !text->source().isEmpty(); });
    tour.picture("help-contents", help);
    HTMLHelp::ShowHelpTopic(1, "Design_Values.htm");
    tour.menu("mnuHelpElem(1)");
    tour.type(*help.findChild<QLineEdit *>("HelpIndexFilter"), "de");
    tour.picture("help-index", help);

    tour.menu("mnuHelpElem(2)");
    auto *words = help.findChild<QHelpSearchQueryWidget *>()->findChild<QLineEdit *>();
    const auto *engine = help.findChild<QHelpSearchEngine *>();
    // the pages are read in the background at first
    (void)QTest::qWaitFor([&] {
        tour.retype(*words, "thickness");
        tour.press(*words, Qt::Key_Return);
        return engine->searchResultCount() > 0;
    });
    tour.picture("help-search", help);
    help.close();
}

void useSmallScreens(Tour &tour) {
    for (const QSize &screen : {QSize(800, 600), QSize(640, 480)}) {
        tour.leave();
        Screen::setSizeForTest(screen);
        const bool tooSmall = screen.width() < 800;
        if (tooSmall) tour.boxes().answerMsgBox(vbOK);
        tour.press(DefaultInstance<frmSplash>(), Qt::Key_Space);
        const QString name = QStringLiteral("search-%1x%2").arg(screen.width()).arg(screen.height());
        tour.picture(name);
        tour.control<QComboBox>(tour.form("frmSearch"), "cmbChooseStd").setCurrentIndex(2);
        tour.picture(name + "-asme");
    }
    Screen::setSizeForTest({});
}

/// The smallest screen that the program is made for, with a panel above and one below.
void useAScreenWithPanels(Tour &tour) {
    tour.leave();
    Screen::setSizeForTest({800, 600}, {0, 28, 800, 536});
    tour.press(DefaultInstance<frmSplash>(), Qt::Key_Space);
    tour.screenPicture("panels-search", {&tour.main()});

    FormBase &search = tour.form("frmSearch");
    tour.boxes().driveForm([&](Form &form) {
        tour.screenPicture("panels-pma-index", {&tour.main(), &form});
        form.Unload();
    });
    tour.click(tour.control<QAbstractButton>(search, "cmdShowPmaIndex"));

    tour.menu("mnuHelpElem(0)");
    HelpViewer &help = *helpWindow();
    HTMLHelp::ShowHelpTopic(1, "Graphs.htm");
    tour.screenPicture("panels-help", {&tour.main(), &help});
    help.close();

    auto &name = tour.control<QLineEdit>(search, "txtSearch(1)");
    tour.type(name, "16Mo3");
    tour.press(name, Qt::Key_Return);
    tour.menu("mnuFileElem(0)");
    tour.menu("mnuViewMechElem(1)");
    FormBase &window = tour.windowOf("16Mo3");
    tour.boxes().driveForm([&](Form &form) {
        tour.screenPicture("panels-enlarged-graph", {&tour.main(), &form});
        form.resize(form.minimumSize());
        tour.picture("smallest-enlarged-graph", form);
        form.Unload();
    });
    tour.click(window, "CommandShowGraph");
    tour.click(window, "cmdPrintSave(2)");
    Screen::setSizeForTest({});
}
