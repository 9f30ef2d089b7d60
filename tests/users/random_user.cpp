#include "tests/users/random_user.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "platform/desktop/help_viewer.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/menu_entry.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/tdb_grid.h"
#include "shell/mdiVelmar.h"

namespace {

constexpr int MostModalWindows = 3;
constexpr int WatchEvery = 20; // milliseconds
constexpr int BrokenOff = 4;

QString nameOf(const QWidget &widget) {
    const QString name = widget.objectName();
    const QWidget &window = *widget.window();
    if (&window != &widget && !name.isEmpty() && WorkbenchUser::knows(window))
        return window.objectName() + "/" + name;
    if (!name.isEmpty()) return name;
    const QWidget *parent = widget.parentWidget();
    const QString within =
        parent != nullptr && !parent->objectName().isEmpty() ? parent->objectName() + "/" : "";
    return within + widget.metaObject()->className();
}

/// Where a key arrives that is meant for the widget: a grid hands the focus on to its rows.
QWidget *keysOf(QWidget *widget) {
    return widget->focusProxy() != nullptr ? widget->focusProxy() : widget;
}

void leaves(const QMenu &menu, QList<QAction *> &found) {
    for (QAction *action : menu.actions()) {
        if (!action->isVisible() || !action->isEnabled() || action->isSeparator()) continue;
        if (action->menu() != nullptr)
            leaves(*action->menu(), found);
        else
            found.append(action);
    }
}

} // namespace

RandomUser::RandomUser(TestRun &testRun, unsigned seed, const QString &folder)
    : m_testRun(testRun)
    , m_chance(seed)
    , m_watch(seed)
    , m_folder(folder + "/saved")
    , m_workbench(m_chance, [this](const QString &action) { note(action); }) {
    QDir().mkpath(m_folder);
    testRun.answerBox = [this](const ModalSeam::Request &request) { return answer(request); };
    testRun.chooseFile = [this](const ModalSeam::Request &) { return file(); };
    testRun.useWindow = [this](Form &window) { use(window); };
    keepWatch();
}

void RandomUser::work(int actions) {
    for (int i = 0; i < actions && isRunning(); ++i) {
        act();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        check();
    }
}

void RandomUser::check() {
    if (const QString fault = WorkbenchCheck::fileFault(m_folder); !fault.isEmpty()) breakOff(fault);
    FormBase *active = Forms::active();
    if (!isRunning() || active == nullptr || !active->Visible()) return;
    if (const QString fault = m_check.fault(*active->asWidget()); !fault.isEmpty()) breakOff(fault);
}

void RandomUser::breakOff(const QString &fault) {
    m_testRun.note("broken: " + fault);
    std::_Exit(BrokenOff);
}

bool RandomUser::isRunning() const {
    return LoadedInstance<mdiVelmar>() != nullptr;
}

QWidget *RandomUser::scope() const {
    if (QWidget *popup = QApplication::activePopupWidget()) return popup;
    if (QWidget *modal = QApplication::activeModalWidget()) return modal;
    if (m_beside) return m_beside;
    return LoadedInstance<mdiVelmar>();
}

QWidget *RandomUser::helpWindow() {
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<HelpViewer *>(window) != nullptr) return window;
    return nullptr;
}

QWidget *RandomUser::chooseBeside() {
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr)
        return nullptr;
    if (helpWindow() != nullptr && below(3) == 0) return helpWindow();
    auto *main = LoadedInstance<mdiVelmar>();
    FormBase *active = Forms::active();
    if (main == nullptr || active == nullptr) return nullptr;
    // Hardly anything is done by somebody who changes from window to window.
    const bool isBeside = WorkbenchUser::knows(*active->asWidget());
    if (isBeside && active->Visible() && active->WindowState() != vbMinimized && below(8) > 0)
        return active->asWidget();
    if (QWidget *window = below(3) == 0 ? m_workbench.bringForward() : nullptr) return window;
    if (isBeside) main->SetFocus();
    return nullptr;
}

void RandomUser::note(const QString &action) {
    m_testRun.note("do: " + action);
}

void RandomUser::act() {
    m_beside = chooseBeside();
    const bool reaches = m_beside && scope() == m_beside;
    if (reaches && WorkbenchUser::knows(*m_beside))
        return below(10) < 8 ? m_workbench.act(*m_beside) : actAnywhere();
    if (reaches && below(8) == 0) {
        note("close the help");
        m_beside->close();
        return;
    }
    auto *window = LoadedInstance<mdiVelmar>();
    if (window != nullptr && scope() == window && window->WindowState() == vbMinimized) {
        note("restore " + window->Name());
        window->setWindowState(vbNormal);
        return;
    }
    if (window != nullptr && scope() == window && below(12) == 0) return m_workbench.open();
    actAnywhere();
}

void RandomUser::actAnywhere() {
    static const QList<std::pair<int, void (RandomUser::*)()>> actions = {
        {25, &RandomUser::click},           {15, &RandomUser::pressKey},
        {3, &RandomUser::pressShortcut},    {8, &RandomUser::type},
        {12, &RandomUser::typeTemperature}, {1, &RandomUser::paste},
        {10, &RandomUser::useGrid},         {2, &RandomUser::dragGrade},
        {13, &RandomUser::chooseFromMenu},  {3, &RandomUser::useWindowFrame},
        {2, &RandomUser::turnWheel},        {6, &RandomUser::selectAndShow}};
    int ticket = below(100);
    for (const auto &[share, action] : actions) {
        ticket -= share;
        if (ticket >= 0) continue;
        (this->*action)();
        return;
    }
}

QWidget *RandomUser::anyWidget(const std::function<bool(QWidget &)> &fits) {
    QWidget *within = scope();
    if (within == nullptr) return nullptr;
    QList<QWidget *> found;
    for (QWidget *widget : within->findChildren<QWidget *>())
        if (widget->isVisible() && widget->isEnabled() && !widget->size().isEmpty() && fits(*widget))
            found.append(widget);
    return found.isEmpty() ? nullptr : oneOf(found);
}

template <class Widget>
Widget *RandomUser::any() {
    return static_cast<Widget *>(
        anyWidget([](QWidget &widget) { return qobject_cast<Widget *>(&widget) != nullptr; }));
}

void RandomUser::click() {
    const bool onButton = below(3) == 0;
    QWidget *widget = anyWidget(
        [onButton](QWidget &each) { return !onButton || qobject_cast<QAbstractButton *>(&each) != nullptr; });
    if (widget == nullptr) return;
    const QPoint at(below(widget->width()), below(widget->height()));
    const int kind = below(10);
    note(QString("%1 %2 at %3, %4")
             .arg(kind == 0   ? "right click on"
                  : kind == 1 ? "double click on"
                              : "click on",
                  nameOf(*widget))
             .arg(at.x())
             .arg(at.y()));
    if (kind == 0) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
        QTest::mouseClick(widget, Qt::RightButton, {}, at);
    } else if (kind == 1) {
        QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    } else {
        QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    }
}

void RandomUser::pressKey() {
    static const QList<Qt::Key> keys = {
        Qt::Key_Return,    Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,        Qt::Key_Backtab, Qt::Key_Delete,
        Qt::Key_Backspace, Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,       Qt::Key_Right,   Qt::Key_PageUp,
        Qt::Key_PageDown,  Qt::Key_Home,  Qt::Key_End,    Qt::Key_Space,      Qt::Key_Insert,  Qt::Key_F2,
        Qt::Key_F4,        Qt::Key_Menu,  Qt::Key_A,      Qt::Key_Apostrophe, Qt::Key_Asterisk};
    static const QList<Qt::KeyboardModifiers> modifiers = {
        {}, {}, {}, {}, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    QWidget *target = QApplication::focusWidget();
    if (target == nullptr || scope() == nullptr || !scope()->isAncestorOf(target)) target = scope();
    if (target == nullptr) return;
    const Qt::Key key = oneOf(keys);
    const Qt::KeyboardModifiers with = oneOf(modifiers);
    note(QString("key %1 in %2").arg(QKeySequence(QKeyCombination(with, key)).toString(), nameOf(*target)));
    QTest::keyClick(target, key, with);
}

void RandomUser::pressShortcut() {
    static const QList<Qt::Key> keys = {Qt::Key_M,   Qt::Key_M,  Qt::Key_S, Qt::Key_P, Qt::Key_G,
                                        Qt::Key_Tab, Qt::Key_F4, Qt::Key_C, Qt::Key_A, Qt::Key_Z};
    auto *window = LoadedInstance<mdiVelmar>();
    if (window == nullptr || scope() != window) return;
    const Qt::Key key = oneOf(keys);
    note("short cut Ctrl+" + QKeySequence(key).toString());
    QTest::keyClick(window, key, Qt::ControlModifier);
}

QString RandomUser::anyText() {
    static const QStringList words = {"P2",    "P235GH", "1.0345", "EN 10028",     "x",      "2017",
                                      "plate", "1.1",    "S",      "ASME",         "SA-516", "14",
                                      "*",     "?",      "#",      "ZORBALTIKREMO"};
    if (below(3) > 0) return oneOf(words);
    QString text;
    for (int length = 1 + below(6); length > 0; --length)
        text += QChar(below(8) == 0 ? 0xa0 + below(0x2000) : 0x20 + below(0x5f));
    return text;
}

void RandomUser::type() {
    auto *box = any<QLineEdit>();
    if (box == nullptr) return;
    const QString text = anyText();
    note("type \"" + text + "\" in " + nameOf(*box));
    box->setFocus();
    for (const QChar sign : text) {
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, sign, Qt::NoModifier);
        if (!isRunning() || QApplication::activeModalWidget() != nullptr) return;
    }
}

void RandomUser::typeTemperature() {
    static const QString keys = "0123456789,.-\b\x7f";
    const auto isBox = [](QWidget &widget) { return widget.objectName() == "txtDesignTemp"; };
    QWidget *box = anyWidget(isBox);
    if (box == nullptr) {
        auto *window = LoadedInstance<mdiVelmar>();
        if (window == nullptr || scope() != window || !window->menu.mnuView->Visible() || below(2) == 0)
            return;
        note("menu Design Values, for a temperature");
        window->menu.mnuViewElem(6).trigger();
        box = anyWidget(isBox);
    }
    if (box == nullptr) return;
    const QPointer<QWidget> stillThere(box);
    box->setFocus();
    for (int count = 1 + below(5); count > 0 && stillThere; --count) {
        const QChar key = keys[below(static_cast<int>(keys.size()))];
        note(QString("key %1 in txtDesignTemp")
                 .arg(key.isPrint() ? QString(key)
                      : key == '\b' ? "Back"
                                    : "Del"));
        if (key == '\b')
            QTest::keyClick(box, Qt::Key_Backspace);
        else if (key == '\x7f')
            QTest::keyClick(box, Qt::Key_Delete);
        else
            QTest::keyClick(box, key.toLatin1());
    }
}

void RandomUser::paste() {
    static const QStringList texts = {
        "'",    "x'y",         "[a-",       "]",           "\"",
        "%1",   "P235\tGH\nx", "1e400",     "-1e39",       "12.5",
        " 20 ", "- 5",         "999999999", "' or '1'='1", "' union select * from materials"};
    auto *box = any<QLineEdit>();
    if (box == nullptr) return;
    const QString text = below(10) == 0 ? QString(40000, 'y') : oneOf(texts);
    note("paste \"" + text.left(40) + "\" in " + nameOf(*box));
    QApplication::clipboard()->setText(text);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

void RandomUser::useGrid() {
    QWidget *widget = anyWidget([](QWidget &each) { return qobject_cast<TDBGrid *>(&each) != nullptr; });
    if (widget == nullptr) return;
    const int kind = below(4);
    if (kind == 0) {
        const auto headers = widget->findChildren<QHeaderView *>();
        if (headers.isEmpty()) return;
        QHeaderView *header = oneOf(headers);
        if (!header->isVisible() || header->viewport()->size().isEmpty()) return;
        const QPoint at(below(header->viewport()->width()), below(header->viewport()->height()));
        note(QString("click on a header of %1 at %2").arg(nameOf(*widget)).arg(at.x()));
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
        return;
    }
    static const QList<Qt::Key> keys = {Qt::Key_Down, Qt::Key_Up,     Qt::Key_PageDown, Qt::Key_End,
                                        Qt::Key_Home, Qt::Key_Return, Qt::Key_Left,     Qt::Key_Right};
    const QPointer<QWidget> stillThere(widget);
    widget->setFocus();
    for (int count = 1 + below(4); count > 0 && stillThere; --count) {
        const Qt::Key key = oneOf(keys);
        note("key " + QKeySequence(key).toString() + " in " + nameOf(*widget));
        QTest::keyClick(keysOf(widget), key);
    }
}

void RandomUser::dragGrade() {
    static const QStringList sources = {"tdbMaterials", "tdbSelected", "imgFolder", "nothing"};
    QWidget *target = anyWidget([](QWidget &widget) { return widget.acceptDrops(); });
    if (target == nullptr) return;
    const QString source = oneOf(sources);
    note("drop " + source + " on " + nameOf(*target));
    QMimeData data;
    data.setData("application/x-control-name", source.toUtf8());
    const QPointer<QWidget> stillThere(target);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    if (!stillThere) return;
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

void RandomUser::chooseFromMenu() {
    auto *window = LoadedInstance<mdiVelmar>();
    if (window == nullptr || scope() != window) return;
    QList<QAction *> found;
    for (QAction *entry : window->menuBar()->actions()) {
        if (!entry->isVisible() || !entry->isEnabled() || entry->menu() == nullptr) continue;
        Q_EMIT entry->menu()->aboutToShow();
        leaves(*entry->menu(), found);
    }
    if (found.isEmpty()) return;
    QAction *action = oneOf(found);
    // Leaving would end most runs early.
    if (action->text() == "E&xit" && below(20) > 0) return;
    note("menu " + QString(action->text()).remove('&'));
    action->trigger();
}

void RandomUser::useWindowFrame() {
    auto *window = LoadedInstance<mdiVelmar>();
    if (window == nullptr || scope() != window) return;
    QList<FormBase *> forms;
    for (FormBase &form : Forms())
        if (form.Visible()) forms.append(&form);
    if (forms.isEmpty()) return;
    FormBase &form = *oneOf(forms);
    const QString which = form.Name() + " \"" + form.Caption() + "\"";
    const bool isMain = &form == window;
    switch (below(isMain ? 3 : 5)) {
    case 0:
        note("maximise or restore " + which);
        form.setWindowState(form.WindowState() == vbMaximized ? vbNormal : vbMaximized);
        break;
    case 1:
        note("minimise or restore " + which);
        form.setWindowState(form.WindowState() == vbMinimized ? vbNormal : vbMinimized);
        break;
    case 2:
        note("resize " + which);
        form.asWidget()->window()->resize(200 + below(1400), 150 + below(900));
        break;
    case 3:
        note("bring forward " + which);
        form.SetFocus();
        break;
    default:
        note("close " + which);
        form.asWidget()->close();
    }
}

void RandomUser::turnWheel() {
    QWidget *widget = anyWidget([](QWidget &) { return true; });
    if (widget == nullptr) return;
    note("turn the wheel over " + nameOf(*widget));
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, below(2) == 0 ? 120 : -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

// By chance alone hardly anybody gets as far as the windows of several grades.
void RandomUser::selectAndShow() {
    FormBase *search = Forms::byName("frmSearch");
    auto *window = LoadedInstance<mdiVelmar>();
    if (search == nullptr || !search->Visible() || scope() != window) return;
    auto *grid = search->asWidget()->findChild<TDBGrid *>("tdbMaterials");
    if (grid == nullptr || !grid->isVisible()) return;
    if (grid->RowCount() == 0) emptyBoxes(*search->asWidget());
    grid->setFocus();
    for (int grades = 1 + below(4); grades > 0 && isRunning() && grid->isVisible(); --grades) {
        note("select a grade");
        for (int rows = below(8); rows > 0; --rows)
            QTest::keyClick(keysOf(grid), Qt::Key_Down);
        QTest::keyClick(keysOf(grid), Qt::Key_Return);
    }
    if (!isRunning() || scope() != window) return;
    note("show the selected grades");
    window->menu.mnuFileElem(0).trigger();
}

void RandomUser::emptyBoxes(QWidget &window) {
    note("empty the boxes");
    for (QLineEdit *box : window.findChildren<QLineEdit *>())
        if (box->isVisible() && box->isEnabled() && !box->text().isEmpty()) {
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Delete);
        }
}

int RandomUser::answer(const ModalSeam::Request &request) {
    if (m_workbench.isTyping()) breakOff("a box while typing: " + request.text);
    const auto either = [this](int a, int b) { return below(2) == 0 ? a : b; };
    switch (request.style & 0xf) {
    case vbOKCancel:
        return either(vbOK, vbCancel);
    case vbYesNo:
        return either(vbYes, vbNo);
    case vbYesNoCancel:
        return below(3) == 0 ? int(vbCancel) : either(vbYes, vbNo);
    case vbRetryCancel:
        return either(vbRetry, vbCancel);
    default:
        return vbOK;
    }
}

QString RandomUser::file() {
    if (m_workbench.isTyping()) breakOff("a dialog while typing");
    static const QStringList endings = {".pdf", ".rtf", ".txt", ".xlsx", ".csv", ".tsv", ".inp", ".mac", ""};
    const QString name = "/saved" + oneOf(endings);
    const QStringList files = {QString(), m_folder + name, m_folder + name, m_folder + "/no folder" + name,
                               m_folder};
    return oneOf(files);
}

void RandomUser::use(Form &window) {
    if (m_depth >= MostModalWindows) return;
    ++m_depth;
    const QPointer<Form> shown(&window);
    for (int actions = below(30); actions > 0 && shown && shown->Visible() && isRunning(); --actions) {
        act();
        QCoreApplication::processEvents();
    }
    --m_depth;
}

void RandomUser::keepWatch() {
    QTimer::singleShot(WatchEvery, this, [this] {
        keepWatch();
        QDrag::cancel();
        if (QWidget *popup = QApplication::activePopupWidget()) {
            static const QList<Qt::Key> keys = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape,
                                                Qt::Key_Right};
            QTest::keyClick(popup, m_watch.oneOf(keys));
        } else if (QWidget *modal = QApplication::activeModalWidget();
                   modal != nullptr && qobject_cast<Form *>(modal) == nullptr) {
            QTest::keyClick(modal, m_watch.below(3) == 0 ? Qt::Key_Return : Qt::Key_Escape);
        }
    });
}
