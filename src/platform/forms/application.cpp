#include "platform/forms/application.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <QDialog>
#include <QEvent>
#include <QFont>
#include <QKeyEvent>

#include "platform/forms/accessible_roles.h"
#include "platform/forms/end_signals.h"
#include "platform/forms/event_procedure.h"
#include "platform/forms/forms.h"
#include "platform/forms/help_context.h"
#include "platform/forms/modality.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/platform_style.h"
#include "platform/runtime/runtime_error.h"

namespace {

Application *theApplication = nullptr;

/// The library's dialogs and those that they open. At each showing: the kind is forgotten when one is left.
void narrowDialog(QObject *receiver, const QEvent *event) {
    if (event->type() != QEvent::Show) return;
    auto *dialog = qobject_cast<QDialog *>(receiver);
    if (dialog != nullptr && dialog->windowModality() == Qt::ApplicationModal) Modality::narrow(*dialog);
}

bool asksForHelp(QObject *receiver, QEvent *event) {
    return event->type() == QEvent::KeyPress && receiver->isWidgetType() &&
           HelpContext::pressed(*static_cast<QWidget *>(receiver), *static_cast<QKeyEvent *>(event));
}

} // namespace

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv) {
    theApplication = this;
    EventProcedure::setReport([this](const RuntimeError &error) { report(error); });
    Forms::setWhenEmpty([this] {
        if (m_running) exit(0);
    });
    // Without a name the C library looks at the time zone's file anew for each date of local time.
    if (!qEnvironmentVariableIsSet("TZ")) qputenv("TZ", ":/etc/localtime");
    setStyle(new PlatformStyle);
    AccessibleRoles::install();
    // The windows are laid out in twips for this font; a larger one would be cut off.
    QFont font(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPointSize(9);
    setFont(font);
    setQuitOnLastWindowClosed(false);
}

Application::~Application() {
    EventProcedure::setReport({});
    Forms::setWhenEmpty({});
    theApplication = nullptr;
}

Application *Application::instance() {
    return theApplication;
}

bool Application::notify(QObject *receiver, QEvent *event) {
    bool handled = true; // as an event is that an error has ended
    EventProcedure::run([&] {
        narrowDialog(receiver, event);
        handled = asksForHelp(receiver, event) || QApplication::notify(receiver, event);
    });
    return handled;
}

int Application::run() {
    if (Forms::Count() == 0) return 0;
    m_running = true;
    const int status = exec();
    m_running = false;
    return status;
}

void Application::endOnRequest(std::function<void()> keepSettings) {
    m_keepSettings = std::move(keepSettings);
    m_endSignals = std::make_unique<EndSignals>([this] { leave(); });
    const auto keep = [this] {
        try {
            m_keepSettings();
        } catch (const RuntimeError &) {
            return; // it is tried again at the end
        }
    };
    connect(this, &QGuiApplication::commitDataRequest, this, keep, Qt::DirectConnection);
    connect(this, &QGuiApplication::saveStateRequest, this, keep, Qt::DirectConnection);
}

bool Application::event(QEvent *event) {
    if (event->type() == QEvent::Quit && m_endSignals) leave(); // the session has come to its end
    return QApplication::event(event);
}

void Application::leave() {
    // Nobody reads another report, and what the one on the screen tells of is not undone.
    int status = std::exchange(m_reporting, true) ? EXIT_FAILURE : EXIT_SUCCESS;
    try {
        if (m_endHook) m_endHook();
    } catch (const RuntimeError &error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(reportText(error)));
        status = EXIT_FAILURE;
    }
    endProcess(status);
}

void Application::endProcess(int status) {
    std::fflush(nullptr);
    // Leaving by the event loop would first run on in every procedure that is still below this one.
    std::_Exit(status);
}

QString Application::reportText(const RuntimeError &error) {
    return QStringLiteral("Run-time error '%1':\r\n\r\n%2").arg(error.number()).arg(error.description());
}

void Application::report(const RuntimeError &error) {
    if (m_faultSeam) {
        m_faultSeam(error);
        return;
    }
    if (m_reporting) return;
    m_reporting = true;
    while (overrideCursor() != nullptr)
        restoreOverrideCursor();
    MsgBox(reportText(error), vbCritical);
    try {
        if (m_endHook) m_endHook();
    } catch (...) {
        // The run ends for the first error; what fails while it ends has nobody left to tell.
    }
    endProcess(EXIT_FAILURE);
}
