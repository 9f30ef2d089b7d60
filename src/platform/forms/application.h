// The application object: one look for all windows, and the one place where a run-time error ends.
#pragma once

#include <functional>
#include <memory>

#include <QApplication>

class EndSignals;
class RuntimeError;

/// An error that reaches an event procedure is told by the standard report; then the end hook runs and the
/// process ends with status 1, so that no statement below the failed one is ever run.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int &argc, char **argv);
    ~Application() override;

    static Application *instance();

    bool notify(QObject *receiver, QEvent *event) override;

    /// The event loop, until the last form is unloaded; at once where none is loaded. The status of the
    /// process.
    int run();

    /// Closes the database, keeps the settings. Its own errors are passed over.
    void setEndHook(std::function<void()> hook) { m_endHook = std::move(hook); }

    /// The system may ask the program to end, by SIGTERM, SIGHUP, SIGINT or by its session manager: then the
    /// end hook runs and the process ends with status 0, in whatever window the user is, and nobody is asked.
    /// Status 1 where the hook fails. A session that may yet go on only has its settings kept.
    void endOnRequest(std::function<void()> keepSettings);

    /// A test reads the error here, and the program goes on.
    void setFaultSeam(std::function<void(const RuntimeError &)> seam) { m_faultSeam = std::move(seam); }

    /// "Run-time error '3075':", an empty line, the description.
    static QString reportText(const RuntimeError &error);

protected:
    bool event(QEvent *event) override;

private:
    [[noreturn]] void leave();
    [[noreturn]] static void endProcess(int status);
    void report(const RuntimeError &error);

    std::function<void()> m_endHook;
    std::function<void(const RuntimeError &)> m_faultSeam;
    std::function<void()> m_keepSettings;
    std::unique_ptr<EndSignals> m_endSignals;
    bool m_reporting = false;
    bool m_running = false;
};
