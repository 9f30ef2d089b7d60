#include "tests/users/workbench_user.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTest>

#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/scatter_plot.h"
#include "shell/mdiVelmar.h"

bool WorkbenchUser::knows(const QWidget &window) {
    const auto *form = qobject_cast<const Form *>(&window);
    return form != nullptr && form->isBeside();
}

QWidget *WorkbenchUser::bringForward() {
    QList<FormBase *> open;
    for (FormBase &form : Forms())
        if (form.Visible() && knows(*form.asWidget())) open << &form;
    if (open.isEmpty()) return nullptr;
    auto &window = static_cast<Form &>(*m_chance.oneOf(open));
    if (Forms::active() != &window || window.WindowState() == vbMinimized) {
        m_note("bring forward " + window.Name());
        window.bringUp();
        QCoreApplication::processEvents();
    }
    return window.isVisible() ? &window : nullptr;
}

void WorkbenchUser::open() {
    const QList<int> entries{ToolsEntry::CompareGrades, ToolsEntry::FindByValue,
                             ToolsEntry::ValuesOverTemperature, ToolsEntry::MaterialCard};
    MenuEntry &entry = mdiVelmar::instance().menu.mnuToolsElem(m_chance.oneOf(entries));
    m_note("menu " + QString(entry.text()).remove('&'));
    entry.trigger();
}

void WorkbenchUser::act(QWidget &window) {
    static const QList<std::pair<int, void (WorkbenchUser::*)(QWidget &)>> actions = {
        {36, &WorkbenchUser::type},           {14, &WorkbenchUser::choose},
        {20, &WorkbenchUser::press},          {11, &WorkbenchUser::turnPage},
        {8, &WorkbenchUser::moveAbout},       {4, &WorkbenchUser::changeFrame},
        {4, &WorkbenchUser::changeSelection}, {3, &WorkbenchUser::disturbReading}};
    int ticket = m_chance.below(100);
    for (const auto &[share, action] : actions) {
        ticket -= share;
        if (ticket < 0) return (this->*action)(window);
    }
}

template <class Widget>
Widget *WorkbenchUser::any(QWidget &window) {
    QList<Widget *> found;
    for (Widget *widget : window.findChildren<Widget *>())
        if (widget->isVisible() && widget->isEnabled() && !widget->objectName().isEmpty()) found << widget;
    return found.isEmpty() ? nullptr : m_chance.oneOf(found);
}

void WorkbenchUser::note(const QString &action, const QWidget &widget) {
    m_note(action + " " + widget.window()->objectName() + "/" + widget.objectName());
}

QString WorkbenchUser::anyText(const QString &box) {
    static const QList<std::pair<QString, QStringList>> sound = {
        {"Temperature", {"20", "100", "300", "325,5", "250.5", "150"}},
        {"Thickness", {"", "", "5", "40", "60,01", "200"}},
        {"Least", {"", "", "0", "100", "150,5"}},
        {"Greatest", {"", "", "", "400", "250000"}},
        {"From", {"0", "20", "50,5"}},
        {"To", {"100", "400", "550"}},
        {"Step", {"5", "20", "12.5"}},
        {"Poisson", {"0.3", "0,28", ""}},
        {"Density", {"7850", "7.9e3", ""}}};
    static const QStringList words = {"",    "EN",  "10028", "SA", "*",     "?2", "[",   "'",
                                      "b e", "Rp0", "creep", "mm", "plate", "#",  "p 2", "1"};
    static const QStringList unsound = {"",  "-10",  "0",      "abc",   "999999999", "1.000,5", "-",   "1e3",
                                        "½", " 50 ", "0,0001", "200 x", "1,23456",   "'",       "40\n"};
    for (const auto &[part, texts] : sound)
        if (box.contains(part)) return m_chance.oneOf(m_chance.below(12) > 0 ? texts : unsound);
    return m_chance.below(3) == 0 ? m_chance.oneOf(words) : QString();
}

void WorkbenchUser::type(QWidget &window) {
    auto *box = any<QLineEdit>(window);
    if (box == nullptr) return;
    const QString text = anyText(box->objectName());
    note("type \"" + text + "\" in", *box);
    const QScopedValueRollback<bool> typing(m_typing, true);
    const QPointer<QLineEdit> stillThere(box);
    box->setFocus();
    if (m_chance.below(9) > 0) box->selectAll();
    if (text.isEmpty()) QTest::keyClick(box, Qt::Key_Delete);
    for (const QChar sign : text)
        if (stillThere) QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, sign, Qt::NoModifier);
}

void WorkbenchUser::choose(QWidget &window) {
    auto *list = any<QComboBox>(window);
    if (list == nullptr || list->count() == 0) return;
    const int item = m_chance.below(list->count());
    note(QString("choose %1 in").arg(item), *list);
    list->setFocus();
    list->setCurrentIndex(item);
}

void WorkbenchUser::press(QWidget &window) {
    auto *button = any<QAbstractButton>(window);
    if (button == nullptr || !button->objectName().startsWith("cmd")) return;
    note("press", *button);
    QTest::mouseClick(button, Qt::LeftButton);
}

void WorkbenchUser::turnPage(QWidget &window) {
    auto *pages = any<QTabWidget>(window);
    if (pages == nullptr) return;
    const int page = m_chance.below(pages->count());
    note(QString("turn to page %1 of").arg(page), *pages);
    pages->setCurrentIndex(page);
}

void WorkbenchUser::moveAbout(QWidget &window) {
    static const QList<Qt::Key> keys = {Qt::Key_Down, Qt::Key_Up,  Qt::Key_Right, Qt::Key_Left,
                                        Qt::Key_Home, Qt::Key_End, Qt::Key_Space, Qt::Key_Return};
    QWidget *place = any<QListWidget>(window);
    if (place == nullptr) place = any<ScatterPlot>(window);
    if (place == nullptr) return;
    note("move about in", *place);
    const QPointer<QWidget> stillThere(place);
    place->setFocus();
    for (int count = 1 + m_chance.below(8); count > 0 && stillThere; --count)
        QTest::keyClick(place, m_chance.oneOf(keys));
}

void WorkbenchUser::changeFrame(QWidget &window) {
    switch (m_chance.below(3)) {
    case 0:
        note("close", window);
        window.close();
        break;
    case 1:
        note("make small", window);
        window.resize(1, 1);
        break;
    default:
        note("make large", window);
        window.resize(300 + m_chance.below(1300), 200 + m_chance.below(800));
    }
}

void WorkbenchUser::changeSelection(QWidget &) {
    auto &main = mdiVelmar::instance();
    QList<QAbstractButton *> buttons =
        main.findChildren<QAbstractButton *>(QRegularExpression("^cmd(Selections\\(|SelectMat)"));
    buttons.removeIf(
        [](const QAbstractButton *button) { return !button->isVisible() || !button->isEnabled(); });
    if (buttons.isEmpty()) return;
    QAbstractButton *button = m_chance.oneOf(buttons);
    note("press", *button);
    main.SetFocus();
    QCoreApplication::processEvents();
    button->click();
}

void WorkbenchUser::disturbReading(QWidget &window) {
    const bool closes = m_chance.below(3) == 0;
    note(closes ? "close amid a choice" : "Escape amid a choice", window);
    // It arrives while the choice is at work on what it has to read.
    if (closes)
        QCoreApplication::postEvent(&window, new QCloseEvent);
    else
        QCoreApplication::postEvent(&window, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    m_chance.below(2) == 0 ? choose(window) : turnPage(window);
}
