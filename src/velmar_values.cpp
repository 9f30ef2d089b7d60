// The program without windows: finds grades and writes their tables and design values to the standard output.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <QCoreApplication>

#include "data/database_names.h"
#include "data/modFileHandler.h"
#include "data/path_file.h"
#include "data/program_version.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"
#include "velmar_values/commands.h"

namespace {

enum Status { Done = 0, Failed = 1, WrongUsage = 2 };

int tell(Status status, const QString &text) {
    std::fprintf(stderr, "velmar-values: %s\n", text.simplified().toUtf8().constData());
    return status;
}

/// Whoever reads may have had enough, as `head` has: that is no fault.
int put(const QByteArray &output) {
    const auto size = static_cast<std::size_t>(output.size());
    if (std::fwrite(output.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) return Done;
    return errno == EPIPE ? int(Done) : tell(Failed, "the output cannot be written");
}

/// As the program finds it, without a question.
QString databasePath(const CommandLine &line) {
    if (!line.database.isEmpty()) return line.database;
    if (const auto error = modFileHandler::SetupFileEnvironment()) throw *error;
    const QString path = PathFile::ReadPathFile(DatabasePathFile);
    return path.isEmpty() ? App::current().path + '/' + DatabaseFile : path;
}

int run(const CommandLine &line) {
    if (line.command == CommandLine::Command::Help) return put(CommandLine::usage().toUtf8());
    const App &app = App::current();
    if (line.command == CommandLine::Command::Version)
        return put(QStringLiteral("velmar-values %1.%2.%3\n")
                       .arg(app.major)
                       .arg(app.minor)
                       .arg(app.revision)
                       .toUtf8());
    try {
        const auto database = DBEngine::instance().OpenBeside(databasePath(line), ";Pwd=" + DatabasePassword);
        const Answer answer = Commands::run(*database, line);
        const int status = put(answer.output);
        return answer.note.isEmpty() ? status : std::max(status, tell(Done, answer.note));
    } catch (const NotFound &missing) {
        return tell(Failed, QString::fromStdString(missing.what()));
    } catch (const RuntimeError &error) {
        return tell(Failed, QStringLiteral("error %1: %2").arg(error.number()).arg(error.description()));
    }
}

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGPIPE, SIG_IGN);
    // Without a name the C library looks at the time zone's file anew for each date of local time.
    if (!qEnvironmentVariableIsSet("TZ")) qputenv("TZ", ":/etc/localtime");
    // What the library has to say of the locale is not for whoever reads our errors, a line each.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QCoreApplication application(argc, argv);
    ProgramVersion::apply(QCoreApplication::applicationDirPath());
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    try {
        return run(CommandLine::parse(QCoreApplication::arguments().mid(1)));
    } catch (const UsageError &error) {
        return tell(WrongUsage, QString::fromStdString(error.what()) + "; velmar-values --help tells more");
    }
}
