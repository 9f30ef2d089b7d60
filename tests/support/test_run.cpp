#include "tests/support/test_run.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/desktop/shell_execute.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/msg_box.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "shell/mdiVelmar.h"
#include "start/frmSplash.h"
#include "start/program_start.h"
#include "tests/support/qt_warnings.h"

namespace {

/// What a run returns that came well to its end, but for a warning of Qt.
constexpr int WarnedOf = 3;

const QString ErrorReport = QStringLiteral("Run-time error '");

int leastAnswer(int style) {
    switch (style & 0xF) {
    case vbOKOnly:
        return vbOK;
    case vbYesNo:
        return vbNo;
    default:
        return vbCancel;
    }
}

} // namespace

int Ending::error() const {
    for (const QString &line : log)
        if (const qsizetype at = line.indexOf(ErrorReport); at >= 0)
            return line.mid(at + ErrorReport.size()).section('\'', 0, 0).toInt();
    return 0;
}

QStringList Ending::noted(const QString &beginning) const {
    QStringList found;
    for (const QString &line : log)
        if (line.startsWith(beginning)) found += line.mid(beginning.size());
    return found;
}

ProgramRun::ProgramRun(const TestRun::Folders &folders, const TestRun::User &user, unsigned seconds) {
    if (!m_log.open()) qFatal("no log");
    std::fflush(nullptr); // or both processes would print it
    m_clock.start();
    m_child = fork();
    if (m_child < 0) qFatal("no process");
    if (m_child > 0) return;
    alarm(seconds);
    dup2(m_log.handle(), STDERR_FILENO);
    dup2(m_log.handle(), STDOUT_FILENO);
    std::exit(TestRun(m_log.handle()).live(folders, user));
}

ProgramRun::~ProgramRun() {
    if (m_child < 0) return;
    kill(m_child, SIGKILL);
    wait();
}

QStringList ProgramRun::log() const {
    QFile file(m_log.fileName());
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split('\n');
}

bool ProgramRun::hasNoted(const QString &line) {
    return log().contains(line);
}

bool ProgramRun::waitUntilNoted(const QString &line) {
    while (!hasNoted(line)) {
        siginfo_t end = {};
        waitid(P_PID, static_cast<id_t>(m_child), &end, WEXITED | WNOHANG | WNOWAIT);
        if (end.si_pid != 0) return hasNoted(line);
        usleep(10'000);
    }
    return true;
}

Ending ProgramRun::wait() {
    int status = 0;
    rusage used = {};
    wait4(m_child, &status, 0, &used);
    m_child = -1;
    Ending ending;
    ending.status = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    ending.milliseconds = m_clock.elapsed();
    ending.kilobytes = used.ru_maxrss;
    ending.log = log();
    return ending;
}

int TestRun::live(const Folders &folders, const User &user) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("APPDATA", folders.user.toUtf8());
    qputenv("HOME", folders.user.toUtf8()); // nothing is left in the folders of the person who runs the tests
    if (chdir(folders.user.toUtf8().constData()) != 0) return EXIT_FAILURE;
    char name[] = "velmar-ped";
    char *arguments[] = {name, nullptr};
    int count = 1;
    onQtWarning([this](const QString &message) {
        m_hasWarned = true;
        note("Qt warns: " + message);
    });
    Application application(count, arguments);
    ModalSeam seam;
    ShellSeam shell;
    m_seam = &seam;
    queueAnswers();
    ProgramStart::prepare(application, folders.program);
    // In a changed root a process with mounts of its own does not learn where its program lies.
    App::current().helperPath = BINARY_FOLDER;
    RegionalSettings::setCurrent({});
    ProgramStart::begin();
    QTimer::singleShot(0, &application, [&] { user(*this); });
    const int status = application.run();
    return m_hasWarned && status == 0 ? WarnedOf : status;
}

void TestRun::start() {
    QTest::keyClick(&DefaultInstance<frmSplash>(), Qt::Key_A);
}

void TestRun::leave() {
    if (auto *window = LoadedInstance<mdiVelmar>()) window->menu.mnuFileElem(7).trigger();
}

void TestRun::note(const QString &line) {
    const QByteArray text = QString(line).replace('\n', ' ').remove('\r').toUtf8() + '\n';
    if (write(m_log, text.constData(), static_cast<std::size_t>(text.size())) < 0) std::abort();
}

void TestRun::queueAnswers() {
    queueBoxAnswer();
    queueFile();
    queueWindow();
}

// Each answer that is taken puts the next one in its place, so that a box within a box has one too.

void TestRun::queueBoxAnswer() {
    m_seam->answerMsgBox([this](const ModalSeam::Request &request) {
        queueBoxAnswer();
        note("box: " + request.title + ": " + request.text);
        return answerBox ? answerBox(request) : leastAnswer(request.style);
    });
}

void TestRun::queueFile() {
    m_seam->chooseFile([this](const ModalSeam::Request &request) {
        queueFile();
        note("file dialog: " + request.title);
        return chooseFile ? chooseFile(request) : QString();
    });
}

void TestRun::queueWindow() {
    m_seam->driveForm([this](Form &window) {
        queueWindow();
        note("window: " + window.Name());
        const QPointer<Form> shown(&window);
        if (useWindow) useWindow(window);
        if (shown && shown->Visible()) shown->Unload();
        if (shown && shown->Visible()) shown->Hide();
    });
}
