#include "data/modDBase.h"

#include <QDateTime>
#include <QFile>

#include "data/DatabaseHost.h"
#include "data/modFileHandler.h"
#include "data/passing_up.h"
#include "data/path_file.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/app.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/text_file.h"

namespace modDBase {

namespace {

struct State {
    std::shared_ptr<Database> dbMain;
    QString strSelectedValue;
    /// The path that was opened differs from what the path file holds.
    bool bPathChanged = false;
    bool bDatabaseFailed = false;
};
State state;

const QString LineEnd = QStringLiteral("\r\n");
const QString LogName = QStringLiteral("ErrorLog.txt");

constexpr int FileNotFound = 3024;
constexpr int PathNotValid = 3044;
constexpr int WrongFormat = 3343;

/// The loop of the choice. Empty when the user gives up.
QString LocateDatabase(DatabaseHost &host, const QString &dbName) {
    for (;;) {
        const std::optional<QString> chosen = host.locate(dbName);
        if (!chosen) return {};
        if (CheckName(*chosen, dbName)) {
            state.bPathChanged = true;
            return *chosen;
        }
        const QString text = "You attempted to open wrong file." + LineEnd + LineEnd + '\'' + *chosen + '\'' +
                             LineEnd + LineEnd + "Do you wish to try again ?";
        if (!host.ask(DatabaseQuestion::ChooseAgain, text, "Wrong Path...")) {
            state.bPathChanged = true;
            return {};
        }
    }
}

QString questionText(const RuntimeError &error, const QString &path, const QString &dbName,
                     const QString &missingMessage) {
    if (error.number() != WrongFormat)
        return "Error <" + QString::number(error.number()) + "> " + error.description() + LineEnd + LineEnd +
               missingMessage;
    // no blank stands between the name and the word behind it: reports of the error are found by the text as
    // it is
    return "You attempted to open a non-database file." + LineEnd + LineEnd + path + LineEnd + LineEnd +
           dbName + "is the necessary file" + LineEnd + LineEnd + "Do you wish to try again?";
}

/// Beside the program, or where that cannot be written in the user's own folder.
void writeErrorLog(const QStringList &lines) {
    QStringList log = lines;
    log.prepend(RegionalSettings::current().dateText(QDateTime::currentDateTime()));
    TextFile::writeLines(modFileHandler::CanWriteBesideProgram() ? App::current().path + '/' + LogName
                                                                 : modFileHandler::GetUserPath(LogName),
                         log);
}

void logError(DatabaseHost &host, const RuntimeError &error) {
    const QStringList lines = {
        "Error No. - " + QString::number(error.number()), "Application EXE - " + App::current().exeName,
        "Sub/Function - modDBase.OpenDBase", "Error Description - ", error.description()};
    // the folder named is the user's own, which takes the log only where the program's cannot be written:
    // whoever is sent the text knows both
    host.tell(lines.join(LineEnd) + LineEnd + LineEnd + "Error Log - '" + LogName +
                  "' has been created at..." + LineEnd + modFileHandler::GetUserFolder() + '/' + LineEnd +
                  "Report Error To Supplier, sending a copy of the Error Log",
              "Error Occurred!!");
    writeErrorLog(lines);
}

/// A file server may only have to wake.
bool waitsOn(DatabaseHost &host, const QString &path) {
    return host.ask(DatabaseQuestion::WaitOn,
                    "The database file does not answer." + LineEnd + LineEnd + path + LineEnd + LineEnd +
                        "Do you wish to wait on?",
                    "Database Not Answering");
}

bool isQuestion(int number) {
    return number == FileNotFound || number == PathNotValid || number == WrongFormat;
}

} // namespace

std::shared_ptr<Database> &dbMain() {
    return state.dbMain;
}

const QString &strSelectedValue() {
    return state.strSelectedValue;
}

bool bDatabaseFailed() {
    return state.bDatabaseFailed;
}

bool OpenDBase(DatabaseHost &host, const QString &dbName, const QString &pathFile, bool exclusive,
               bool readOnly, const QString &password, const QString &missingMessage) {
    DBEngine::instance().setWaitsOn([&host](const QString &path) { return waitsOn(host, path); });
    QString path = PathFile::ReadPathFile(pathFile);
    if (path.isEmpty()) path = App::current().path + '/' + dbName;
    for (;;) {
        try {
            path = PathFile::NetworkPath(path, state.bPathChanged);
            state.dbMain = DBEngine::instance().OpenDatabase(path, exclusive, readOnly, ";Pwd=" + password);
            if (state.bPathChanged) PathFile::WritePathFile(pathFile, path);
            return true;
        } catch (const RuntimeError &error) {
            if (!isQuestion(error.number())) {
                logError(host, error);
                break;
            }
            const QString title = error.number() == WrongFormat ? "Wrong file format" : "Database Missing";
            const QString text = questionText(error, path, dbName, missingMessage);
            if (!host.ask(DatabaseQuestion::LookForAnother, text, title)) break;
            path = LocateDatabase(host, dbName);
            if (path.isEmpty()) break;
        }
    }
    state.bDatabaseFailed = true;
    return false;
}

void CloseDBase() {
    passingUp("CloseDBase", [] {
        if (state.bDatabaseFailed) return;
        if (!state.dbMain) throw RuntimeError(91);
        state.dbMain->Close();
        state.dbMain.reset();
    });
}

bool CheckName(const QString &path, const QString &name) {
    return path.endsWith(name);
}

void RecordNavigate(Recordset &rs, int action) {
    passingUp("RecordNavigate", [&] {
        if (rs.Eof() || rs.Bof()) return;
        if (rs.EditMode() != 0) rs.CancelUpdate(1);
        switch (action) {
        case 0:
            rs.MoveFirst();
            break;
        case 1:
            rs.MovePrevious();
            if (rs.Bof()) rs.MoveFirst();
            break;
        case 2:
            rs.MoveNext();
            if (rs.Eof()) rs.MoveLast();
            break;
        case 3:
            rs.MoveLast();
            break;
        default:
            break;
        }
        if (rs.Eof()) rs.MoveLast();
    });
}

void SetSelectedValue(const QVariant &value) {
    state.strSelectedValue = CStr(value);
}

QString GetText(const Recordset &rs, int id, const QString &keyField, const QString &textField) {
    return passingUp("GetText", [&]() -> QString {
        const auto clone = rs.Clone();
        clone->FindFirst(keyField + '=' + QString::number(id));
        if (clone->NoMatch()) return {};
        const QVariant text = clone->Fields(textField);
        return IsNull(text) ? QString() : CStr(text);
    });
}

qint16 GetID(const Recordset &rs, const QString &text, const QString &textField, const QString &idField) {
    return passingUp("GetID", [&]() -> qint16 {
        const auto clone = rs.Clone();
        clone->FindFirst(textField + "='" + text + '\'');
        return clone->NoMatch() ? qint16(0) : CInt(clone->Fields(idField));
    });
}

void reset() {
    state = {};
}

} // namespace modDBase
