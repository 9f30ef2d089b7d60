// A program of ours that runs beside this one and answers requests.
#pragma once

#include <cstddef>
#include <functional>

#include <QByteArray>
#include <QString>

#include <sys/types.h>

/// Its standard input and output are one end of a socket pair, so that a child that has gone is an error here
/// and no signal. Whatever the child does, no call waits longer than the patience given for the next byte to
/// pass, unless `OnSilence` wants it to; nothing is raised but by that one.
class ChildProcess {
public:
    /// Asked each time the patience has come to its end: true waits on. `isBusy` where the child has used a
    /// good deal of processor time meanwhile, and so does not wait for anything itself.
    using OnSilence = std::function<bool(bool isBusy)>;

    ChildProcess(QString program, int patienceInMilliseconds, OnSilence onSilence);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// 0, or the system's error number where the program cannot be run. A child that still runs is ended
    /// first. The child has `file` open as `asFile`, from 3 on, and nothing else but its standard files.
    int start(int file, int asFile);
    /// False also for a child that has gone by itself.
    bool isRunning();
    /// At once, whatever it is doing.
    void stop();
    const QString &program() const { return m_program; }
    pid_t id() const { return m_id; }

    /// False where the child has gone, or takes nothing and nobody waits on.
    bool send(const QByteArray &bytes);
    /// False where the child has gone, or stays silent and nobody waits on.
    bool receive(void *to, std::size_t size);

private:
    bool waitFor(short event);
    /// 0 where poll() fails, 1 for the event, -1 for silence.
    int waitOnce(short event);
    /// In milliseconds.
    qint64 processorTime() const;
    bool receiveSome();

    QString m_program;
    int m_patience;
    OnSilence m_onSilence;
    pid_t m_id = -1;
    int m_socket = -1;
    QByteArray m_buffer;
    std::size_t m_begin = 0; // of what is in the buffer and has not been asked for
    std::size_t m_end = 0;
};
