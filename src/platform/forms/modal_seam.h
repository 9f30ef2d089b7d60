// Where a test answers modal boxes instead of a person.
#pragma once

#include <deque>
#include <functional>

#include <QList>
#include <QString>

class Form;

/// While one exists no box waits for a person: each takes the next queued answer of its kind and leaves word
/// of what it asked. A box that no answer was queued for is told to the handler and gets the answer that
/// changes least (OK, Cancel, No; no file; the form is hidden).
class ModalSeam {
public:
    enum class Kind { MessageBox, OpenFile, SaveFile, Window };

    /// A message box fills text, style and title, and help where it has a Help button; a file dialog title,
    /// initDir, fileName, filter and defaultExt as the program set them; a window its name as text and its
    /// caption as title.
    struct Request {
        Kind kind = Kind::MessageBox;
        QString text;
        int style = 0;
        QString title;
        QString initDir;
        QString fileName;
        QString filter;
        QString defaultExt;
        std::function<void()> help;
    };

    ModalSeam();
    ~ModalSeam();
    ModalSeam(const ModalSeam &) = delete;
    ModalSeam &operator=(const ModalSeam &) = delete;

    /// Null where boxes are shown to a person.
    static ModalSeam *active();
    /// Lets boxes wait for a person again, while one of these lives.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        ModalSeam *m_paused;
    };

    void answerMsgBox(int result);
    void answerMsgBox(std::function<int(const Request &)> answer);
    /// An empty path is Cancel.
    void chooseFile(const QString &path);
    void chooseFile(std::function<QString(const Request &)> choice);
    /// Runs once the form shows, in its own event loop; the form must be hidden or unloaded when `drive` is
    /// done.
    void driveForm(std::function<void(Form &)> drive);

    const QList<Request> &asked() const { return m_asked; }
    /// Raises 9 where nothing was asked.
    const Request &lastAsked() const;
    /// Answers that were queued and not taken.
    int pending() const;
    /// Forgets what was asked and what is queued.
    void clear();

    void setUnexpectedHandler(std::function<void(const QString &)> handler) {
        m_unexpected = std::move(handler);
    }

    /// For the boxes themselves.
    int takeMsgBoxAnswer(const Request &request);
    QString takeFile(const Request &request);
    std::function<void(Form &)> takeDrive(const Request &request);
    void unexpected(const QString &message) const;

private:
    QList<Request> m_asked;
    std::deque<std::function<int(const Request &)>> m_answers;
    std::deque<std::function<QString(const Request &)>> m_files;
    std::deque<std::function<void(Form &)>> m_drives;
    std::function<void(const QString &)> m_unexpected;
};
