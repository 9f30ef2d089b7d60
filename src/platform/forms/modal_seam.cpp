#include "platform/forms/modal_seam.h"

#include <utility>

#include "platform/forms/msg_box.h"
#include "platform/runtime/runtime_error.h"

namespace {

ModalSeam *theSeam = nullptr;

int leastAnswer(int style) {
    switch (style & 0xF) {
    case vbOKOnly:
        return vbOK;
    case vbYesNo:
        return vbNo;
    case vbAbortRetryIgnore:
        return vbAbort;
    default:
        return vbCancel;
    }
}

template <class Answer>
Answer takeFirst(std::deque<Answer> &queue) {
    if (queue.empty()) return {};
    Answer first = std::move(queue.front());
    queue.pop_front();
    return first;
}

} // namespace

ModalSeam::ModalSeam() {
    theSeam = this;
}

ModalSeam::~ModalSeam() {
    theSeam = nullptr;
}

ModalSeam *ModalSeam::active() {
    return theSeam;
}

ModalSeam::Pause::Pause()
    : m_paused(std::exchange(theSeam, nullptr)) {}

ModalSeam::Pause::~Pause() {
    theSeam = m_paused;
}

void ModalSeam::answerMsgBox(int result) {
    answerMsgBox([result](const Request &) { return result; });
}

void ModalSeam::answerMsgBox(std::function<int(const Request &)> answer) {
    m_answers.push_back(std::move(answer));
}

void ModalSeam::chooseFile(const QString &path) {
    chooseFile([path](const Request &) { return path; });
}

void ModalSeam::chooseFile(std::function<QString(const Request &)> choice) {
    m_files.push_back(std::move(choice));
}

void ModalSeam::driveForm(std::function<void(Form &)> drive) {
    m_drives.push_back(std::move(drive));
}

const ModalSeam::Request &ModalSeam::lastAsked() const {
    if (m_asked.isEmpty()) throw RuntimeError(9);
    return m_asked.last();
}

int ModalSeam::pending() const {
    return static_cast<int>(m_answers.size() + m_files.size() + m_drives.size());
}

void ModalSeam::clear() {
    m_asked.clear();
    m_answers.clear();
    m_files.clear();
    m_drives.clear();
}

int ModalSeam::takeMsgBoxAnswer(const Request &request) {
    m_asked.append(request);
    if (const auto answer = takeFirst(m_answers)) return answer(request);
    unexpected(QStringLiteral("message box \"%1\": %2").arg(request.title, request.text));
    return leastAnswer(request.style);
}

QString ModalSeam::takeFile(const Request &request) {
    m_asked.append(request);
    if (const auto choice = takeFirst(m_files)) return choice(request);
    unexpected(QStringLiteral("file dialog \"%1\" for %2").arg(request.title, request.fileName));
    return {};
}

std::function<void(Form &)> ModalSeam::takeDrive(const Request &request) {
    m_asked.append(request);
    auto drive = takeFirst(m_drives);
    if (!drive) unexpected(QStringLiteral("modal window %1 \"%2\"").arg(request.text, request.title));
    return drive;
}

void ModalSeam::unexpected(const QString &message) const {
    if (m_unexpected)
        m_unexpected(message);
    else
        qFatal("nobody answers: %s", qUtf8Printable(message));
}
