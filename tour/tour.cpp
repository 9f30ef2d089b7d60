#include "tour/tour.h"

#include <cstdio>
#include <cstdlib>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPainter>
#include <QProcess>
#include <QTest>
#include <QWindow>

#include "platform/forms/forms.h"
#include "platform/forms/mdi_form.h"
#include "platform/forms/screen.h"

namespace {

[[noreturn]] void giveUp(const QString &why) {
    std::fprintf(stderr, "tour: %s\n", qPrintable(why));
    std::exit(1);
}

} // namespace

Tour::Tour(const QString &folder)
    : m_folder(QDir(folder).absolutePath()) {
    QDir(m_folder).removeRecursively();
    QDir().mkpath(m_folder);
    qputenv("APPDATA", m_user.path().toUtf8());
    m_boxes.setUnexpectedHandler([](const QString &message) { giveUp("unexpected box: " + message); });
}

void Tour::pagePictures(const QString &pdf) {
    const QFileInfo file(pdf);
    QProcess::execute("pdftoppm", {"-png", "-r", "70", pdf, file.path() + "/page-" + file.baseName()});
}

QWidget &Tour::main() const {
    MDIForm *window = MDIForm::current();
    if (window == nullptr) giveUp("there is no main window");
    return *window;
}

FormBase &Tour::form(const QString &name, int index) const {
    for (FormBase &form : Forms())
        if (form.Name() == name && index-- == 0) return form;
    giveUp("there is no form " + name);
}

FormBase &Tour::windowOf(const QString &grade) {
    const QString materialWindow = QStringLiteral("frmMaterial2");
    for (FormBase &form : Forms()) {
        if (form.Name() != materialWindow || !form.Caption().contains(grade)) continue;
        form.SetFocus();
        settle();
        return form;
    }
    return form(materialWindow);
}

void Tour::picture(const QString &name) {
    picture(name, main());
}

QString Tour::nextFile(const QString &name) {
    return QStringLiteral("%1/%2-%3.png").arg(m_folder).arg(++m_number, 2, 10, QLatin1Char('0')).arg(name);
}

void Tour::screenPicture(const QString &name, const QList<QWidget *> &windows) {
    settle();
    QImage screen(Screen::Width() / Screen::TwipsPerPixelX(), Screen::Height() / Screen::TwipsPerPixelX(),
                  QImage::Format_RGB32);
    screen.fill(Qt::black);
    QPainter painter(&screen);
    painter.fillRect(Screen::freeArea(main()), QColor(0x5a, 0x78, 0x6e));
    for (QWidget *window : windows) {
        const QMargins frame = window->windowHandle()->frameMargins();
        QRect place = window->geometry();
        if (!window->testAttribute(Qt::WA_Moved)) // the desktop places it
            place.moveTopLeft(Screen::freeArea(*window).topLeft() + QPoint(frame.left(), frame.top()));
        painter.fillRect(place.marginsAdded(frame), QColor(0x30, 0x50, 0x90));
        painter.drawPixmap(place.topLeft(), window->grab());
    }
    painter.end();
    const QString file = nextFile(name);
    if (!screen.save(file)) giveUp("cannot write " + file);
    std::printf("%s\n", qPrintable(file));
}

void Tour::picture(const QString &name, QWidget &window) {
    settle();
    const QString file = nextFile(name);
    if (!window.grab().save(file)) giveUp("cannot write " + file);
    std::printf("%s\n", qPrintable(file));
}

QWidget *Tour::find(QWidget &parent, const QString &name, const QMetaObject *type) const {
    const QList<QWidget *> found = parent.findChildren<QWidget *>(name);
    for (QWidget *widget : found)
        if (widget->metaObject()->inherits(type)) return widget;
    giveUp("there is no control " + name + " on " + parent.objectName());
}

void Tour::type(QWidget &box, const QString &text) {
    box.setFocus();
    QTest::keyClicks(&box, text);
    settle();
}

void Tour::retype(QWidget &box, const QString &text) {
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Backspace);
    type(box, text);
}

void Tour::press(QWidget &widget, Qt::Key key) {
    QTest::keyClick(&widget, key);
    settle();
}

void Tour::click(QWidget &widget) {
    // an option is chosen at its mark: beside its text a click does nothing
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
    settle();
}

void Tour::click(FormBase &form, const QString &button) {
    click(control<QAbstractButton>(form, button));
}

void Tour::menu(const QString &entry) {
    auto *action = main().findChild<QAction *>(entry);
    if (action == nullptr) giveUp("there is no menu entry " + entry);
    if (!action->isEnabled()) giveUp("the menu entry is off: " + entry);
    action->trigger();
    settle();
}

void Tour::leave() {
    menu("mnuFileElem(7)");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Tour::settle() {
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents();
    } while (timer.elapsed() < 30);
}
