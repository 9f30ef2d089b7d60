// A run of the real program in a process of its own, with somebody at its windows.
#pragma once

#include <functional>
#include <memory>

#include <QElapsedTimer>
#include <QStringList>
#include <QTemporaryFile>

#include "platform/forms/modal_seam.h"

#include <sys/types.h>

class Form;

/// How a run came to its end.
struct Ending {
    /// What the process returned; less a signal's number where one ended it.
    int status = 0;
    qint64 milliseconds = 0;
    /// The most memory that it held.
    long kilobytes = 0;
    /// What was noted, each box that was asked among it, and what the process printed.
    QStringList log;

    /// The number of the run-time error that ended the run, 0 for none.
    int error() const;
    /// The lines of the log that begin so, without this.
    QStringList noted(const QString &beginning) const;
};

/// Handed to whoever sits at the windows.
class TestRun {
public:
    using User = std::function<void(TestRun &testRun)>;

    struct Folders {
        /// Holds what comes with the program, the database among it.
        QString program;
        /// Where the user's files are, as "APPDATA" names it.
        QString user;

        QString userFile(const QString &name) const { return user + "/Harmotek/Velmar_PED/" + name; }
    };

    /// Ends the start window as a key does.
    void start();
    /// The Exit command.
    void leave();

    void note(const QString &line);

    /// How boxes are answered from here on. Without a word message boxes get OK, Cancel or No, file dialogs
    /// are cancelled, and windows closed.
    std::function<int(const ModalSeam::Request &request)> answerBox;
    std::function<QString(const ModalSeam::Request &request)> chooseFile;
    std::function<void(Form &window)> useWindow;

private:
    friend class ProgramRun;

    explicit TestRun(int log)
        : m_log(log) {}
    int live(const Folders &folders, const User &user);
    void queueAnswers();
    void queueBoxAnswer();
    void queueFile();
    void queueWindow();

    int m_log;
    ModalSeam *m_seam = nullptr;
    bool m_hasWarned = false;
};

class ProgramRun {
public:
    /// Starts the program, and lets `user` work once its start window shows. A run that has not ended after
    /// so many seconds is ended by a signal. The calling process must not have an application object, nor
    /// threads.
    ProgramRun(const TestRun::Folders &folders, const TestRun::User &user, unsigned seconds = 60);
    ~ProgramRun();
    ProgramRun(const ProgramRun &) = delete;
    ProgramRun &operator=(const ProgramRun &) = delete;

    pid_t id() const { return m_child; }
    /// Whether it has noted the line.
    bool hasNoted(const QString &line);
    /// The same, waiting for it; false where the run ends without.
    bool waitUntilNoted(const QString &line);
    Ending wait();

    static Ending whole(const TestRun::Folders &folders, const TestRun::User &user, unsigned seconds = 60) {
        return ProgramRun(folders, user, seconds).wait();
    }

private:
    QStringList log() const;

    QTemporaryFile m_log;
    QElapsedTimer m_clock;
    pid_t m_child = -1;
};
