// A program of ours that runs beside this one and answers requests.
#pragma once

#include <cstddef>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>

/// Its standard input and output are one end of a socket pair, so that a child that has gone is an error here
/// and no signal. Whatever the child does, no call waits longer than the patience given for the next byte to
/// pass, and nothing is raised.
class ChildProcess {
public:
    ChildProcess(QString program, QStringList arguments, int patienceInMilliseconds);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// False where the program cannot be run. A child that still runs is ended first.
    bool start();
    /// False also for a child that has gone by itself.
    bool isRunning();
    /// At once, whatever it is doing.
    void stop();
    const QString &program() const { return m_program; }
    pid_t id() const { return m_id; }

    /// False where the child has gone, or takes nothing for longer than the patience.
    bool send(const QByteArray &bytes);
    /// False where the child has gone, or stays silent for longer than the patience.
    bool receive(void *to, std::size_t size);

private:
    bool waitFor(short event);
    bool receiveSome();

    QString m_program;
    QStringList m_arguments;
    int m_patience;
    pid_t m_id = -1;
    int m_socket = -1;
    QByteArray m_buffer;
    std::size_t m_begin = 0; // of what is in the buffer and has not been asked for
    std::size_t m_end = 0;
};
