// random_users [ACTIONS] [SEED]: sets random users to the program until they have done so much, in runs of
// their own, and tells of each run-time error that ended one, with what led to it. The only errors that may
// are those of a statement that a typed or pasted quotation mark or bracket has spoilt. The users have the
// seeds SEED, SEED + 1 and so on, so that a seed near another one brings the same users again.
#include <cstdio>
#include <map>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/forms/screen.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/text_file.h"
#include "tests/support/test_run.h"
#include "tests/users/random_user.h"

namespace {

constexpr int ActionsOfARun = 400;
constexpr int ActionsTold = 12;
constexpr unsigned LongestRun = 600; // seconds

void copyFolder(const QString &from, const QString &to) {
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString target = to + path.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(path, target);
    }
}

/// Errors of the engine for a text that is no SQL, or that asks for what is not there.
bool isStatementError(int error) {
    return error == 93 || error == 3061 || error == 3070 || error == 3075 || error == 3077 || error == 3078 ||
           error == 3085 || error == 3131 || error == 3141 || error == 3142 || error == 3464;
}

bool isSpoilt(const QString &action) {
    if (action.contains(" in frm")) return false; // the tools' boxes go into no statement
    // What was copied may hold anything.
    if (action.startsWith("key Shift+Ins ")) return true;
    // A box takes Alt+' as the sign alone.
    const bool isKey = action.startsWith("key ");
    if (!isKey && !action.startsWith("type ") && !action.startsWith("paste ")) return false;
    const QString text = isKey ? action.section(' ', 1, 1).right(1) : action.section('"', 1, -2);
    return text.contains('\'') || text.contains('[') || text.contains('"');
}

/// The search makes a statement at each change of a box, so that the fault is in the last thing that was
/// done; the PMA index makes one when its button is pressed.
bool hasSpoiltText(const QStringList &actions) {
    const auto last = actions.last(std::min<qsizetype>(actions.size(), ActionsTold));
    for (qsizetype i = 0; i < last.size(); ++i)
        if ((last.size() - i <= 2 || last[i].endsWith(" in txtSearchString")) && isSpoilt(last[i]))
            return true;
    return false;
}

class Users {
public:
    Users(unsigned seed, const QString &help)
        : m_seed(seed)
        , m_folders{m_folder.filePath("program"), m_folder.filePath("user")} {
        copyFolder(SOURCE_FOLDER "/sample/PMA", m_folders.program + "/PMA");
        for (const char *file : {"Velmar_PED.mdb", "PMA_Index.mdb", "morepmainfo.pdf"})
            QFile::copy(QString(SOURCE_FOLDER "/sample/") + file, m_folders.program + "/" + file);
        if (!QFile::copy(help, m_folders.program + "/Velmar_PED_HELP.qch")) qFatal("no help");
        QDir().mkpath(m_folders.user);
    }

    int actions() const { return m_actions; }

    void next(int actions) {
        const unsigned seed = m_seed + static_cast<unsigned>(m_runs++);
        const Ending ending = ProgramRun::whole(
            m_folders,
            [&](TestRun &testRun) {
                chooseSurroundings(seed);
                RandomUser user(testRun, seed, m_folders.user);
                testRun.start();
                user.work(actions);
                testRun.leave();
            },
            LongestRun);
        judge(ending, seed);
    }

    bool report() const {
        std::printf("runs: %d; actions: %d\n", m_runs, m_actions);
        for (const auto &[kind, counts] : m_counts) {
            std::printf("%s\n", qPrintable(kind));
            for (const auto &[what, times] : counts)
                std::printf("    %5d %s\n", times, qPrintable(what));
        }
        for (const auto &[error, times] : m_errors)
            std::printf("run-time error %d: %d times\n", error, times);
        std::printf("most memory: %ld MB; faults: %d\n", m_memory / 1024, m_faults);
        return m_faults == 0;
    }

private:
    static void chooseSurroundings(unsigned seed) {
        const RegionalSettings regions[] = {{'.', ',', "M/d/yyyy", "h:mm:ss AP"},
                                            {',', '.', "dd.MM.yyyy", "HH:mm:ss"},
                                            {',', QChar(0x202f), "dd/MM/yyyy", "HH:mm:ss"}};
        RegionalSettings::setCurrent(regions[seed % 3]);
        const QSize screens[] = {{1280, 1024}, {1024, 768}, {800, 600}, {640, 480}};
        Screen::setSizeForTest(screens[seed / 3 % 4]);
    }

    void count(const QString &kind, const QStringList &what) {
        for (const QString &each : what)
            ++m_counts[kind][each];
    }

    void judge(const Ending &ending, unsigned seed) {
        const QStringList done = ending.noted("do: ");
        m_actions += static_cast<int>(done.size());
        count("menu entries", ending.noted("do: menu ").filter(QRegularExpression("^\\D")));
        QStringList inHelp;
        for (const QString &action : done.filter("elp"))
            inHelp += action.section(' ', 0, 0);
        count("in the help", inHelp);
        static const QRegularExpression inTool("^(\\w+).* (frm(Compare|FindValue|ValueSheet|Card))/");
        QStringList inTools;
        for (const QString &action : done)
            if (const auto match = inTool.match(action); match.hasMatch())
                inTools += match.captured(2) + ": " + match.captured(1);
        count("in the tools", inTools);
        count("modal windows", ending.noted("window: "));
        count("file dialogs", ending.noted("file dialog: "));
        QStringList titles;
        for (const QString &box : ending.noted("box: "))
            titles += box.section(": ", 0, 0);
        count("message boxes", titles);
        m_memory = std::max(m_memory, ending.kilobytes);
        const int error = ending.error();
        if (error != 0) ++m_errors[error];
        const bool allowed =
            error != 0 && ending.status == 1 && isStatementError(error) && hasSpoiltText(done);
        const QString settings = m_folders.userFile("Settings.vlp");
        const bool keptSettings = QFile::exists(settings) && TextFile::readLines(settings).size() == 27;
        if (!allowed && (ending.status != 0 || error != 0 || !keptSettings)) ++m_faults;
        if (ending.status == 0 && keptSettings) return;
        std::printf("%s seed %u, status %d%s; the last actions:\n", allowed ? "allowed:" : "FAULT:", seed,
                    ending.status, keptSettings ? "" : ", settings lost");
        for (const QString &line : ending.log.filter(QRegularExpression("^(Qt warns|broken): ")))
            std::printf("    %s\n", qPrintable(line));
        for (const QString &action : done.mid(std::max<qsizetype>(0, done.size() - ActionsTold)))
            std::printf("    %s\n", qPrintable(action));
        const qsizetype last = ending.log.lastIndexOf("do: " + (done.isEmpty() ? QString() : done.last()));
        for (const QString &line : ending.log.mid(last + 1).mid(0, allowed ? 3 : 80))
            if (!line.isEmpty()) std::printf("    -> %s\n", qPrintable(line.left(400)));
    }

    unsigned m_seed;
    QTemporaryDir m_folder;
    TestRun::Folders m_folders;
    int m_runs = 0;
    int m_actions = 0;
    std::map<QString, std::map<QString, int>> m_counts; // how far the users have got
    long m_memory = 0;
    std::map<int, int> m_errors;
    int m_faults = 0;
};

} // namespace

int main(int argc, char **argv) {
    const int actions = argc > 1 ? std::atoi(argv[1]) : 20'000;
    Users users(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 20260131,
                QFileInfo(argv[0]).path() + "/Velmar_PED_HELP.qch");
    while (users.actions() < actions)
        users.next(std::min(ActionsOfARun, actions - users.actions()));
    return users.report() ? 0 : 1;
}
