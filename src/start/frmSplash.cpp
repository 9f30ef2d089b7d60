#include "start/frmSplash.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

#include "data/modFileHandler.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/help_context.h"
#include "platform/forms/image_box.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/placement.h"
#include "platform/forms/screen.h"
#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"
#include "shell/mdiVelmar.h"

namespace {

QFont sized(QFont font, int points, bool bold) {
    font.setPointSize(points);
    font.setBold(bold);
    return font;
}

} // namespace

frmSplash::frmSplash()
    : Form("frmSplash")
    , Frame1(named(new QFrame(this), "Frame1", "Start window"))
    , imgLogo(named(new ImageBox(Frame1), "imgLogo"))
    , imgVelmar(named(new ImageBox(Frame1), "imgVelmar"))
    , Timer1(new QTimer(this))
    , Timer2(new QTimer(this)) {
    setBorderless();
    setAccessibleName("VELMAR-PED. Press any key to start");
    HelpContext::set(*this, "Cant_Start.htm");
    setScaleSize(7500, 4500);
    setFocusPolicy(Qt::StrongFocus);
    Frame1->setFrameStyle(QFrame::Box | QFrame::Plain);
    Frame1->setAutoFillBackground(true);
    Frame1->setBackgroundRole(QPalette::Base);
    Frame1->setToolTip("Double-Click To Start");
    place(Frame1, 0, 0, 7500, 4500);

    imgLogo->setPicture(":/velmar/app/velmar-ped.svg");
    place(imgLogo, 450, 600, 2100, 2100);
    imgVelmar->setPicture(":/velmar/app/logo.svg");
    place(imgVelmar, 450, 3450, 600, 600);

    lblProductName = addLabel("lblProductName", "VELMAR - PED", 2850, 600, 4350, 750);
    lblProductName->setFont(sized(font(), 24, true));
    lblPlatform = addLabel("lblPlatform", "Windows 2000 / XP", 2850, 1410, 4350, 360);
    lblPlatform->setFont(sized(font(), 12, false));
    lblVersion = addLabel("lblVersion", {}, 2850, 1860, 4350, 330);
    lblCopyright = addLabel("lblCopyright", {}, 2850, 2220, 4350, 480);
    lblCopyright->setWordWrap(true);
    lblPress = addLabel("lblPress", "Press Any Key To Start....", 2850, 3600, 4350, 330);

    Timer1->setObjectName("Timer1");
    Timer2->setObjectName("Timer2");
    Timer2->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &frmSplash::startProgram);
    connect(Timer2, &QTimer::timeout, this, &frmSplash::startProgram);
    const QList<QWidget *> clickable = {Frame1,      imgLogo,    imgVelmar,   lblProductName,
                                        lblPlatform, lblVersion, lblCopyright};
    for (QWidget *widget : clickable)
        widget->installEventFilter(this);
}

QLabel *frmSplash::addLabel(const QString &name, const QString &text, int left, int top, int width,
                            int height) {
    auto *label = named(new QLabel(text, Frame1), name, text);
    place(label, left, top, width, height);
    return label;
}

QString frmSplash::versionText() {
    const App &app = App::current();
    return QStringLiteral("Version %1.%2.%3").arg(app.major).arg(app.minor).arg(app.revision);
}

QString frmSplash::copyrightText() {
    return QChar(0xA9) + QStringLiteral(" ") + App::current().legalCopyright;
}

void frmSplash::Form_Load() {
    if (const auto error = modFileHandler::SetupFileEnvironment())
        MsgBox(QString::number(error->number()) +
                   ": Error in SetupFileEnvironment(). Error Description: " + error->description(),
               vbCritical, "Error");
    Timer1->setInterval(3000);
    Timer1->start();
    lblVersion->setText(versionText());
    lblCopyright->setText(copyrightText());
    setLeft((Screen::Width() - Width()) / 2);
    setTop((Screen::Height() - Height()) / 2);
    Show();
}

void frmSplash::keyPressEvent(QKeyEvent *) {
    startProgram();
}

bool frmSplash::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick) {
        startProgram();
        return true;
    }
    return Form::eventFilter(watched, event);
}

/// The timer goes on ticking and a key may come while the main window still asks for its database: the first
/// run is under way then, and this one has nothing to do.
void frmSplash::startProgram() {
    if (MDIForm::current() != nullptr || isUnloaded()) return;
    try {
        mdiVelmar::instance();
        Unload();
    } catch (const RuntimeError &) {
        return; // the window stays, and the next key or tick tries again
    }
}
