#include "shell/DatabaseBoxes.h"

#include "platform/forms/common_dialog.h"
#include "platform/forms/msg_box.h"
#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"
#include "shell/HTMLHelp.h"

namespace {
constexpr int CancelSelected = 32755;
}

bool DatabaseBoxes::ask(DatabaseQuestion question, const QString &text, const QString &title) {
    switch (question) {
    case DatabaseQuestion::LookForAnother:
        return MsgBox(text, vbYesNo + vbCritical, title,
                      [] { HTMLHelp::ShowHelpTopic(1, "Cant_Start.htm"); }) == vbYes;
    case DatabaseQuestion::ChooseAgain:
        return MsgBox(text, vbYesNo + vbInformation, title) == vbYes;
    default:
        return MsgBox(text, vbYesNo + vbExclamation, title) == vbYes;
    }
}

void DatabaseBoxes::tell(const QString &text, const QString &title) {
    MsgBox(text, vbOKOnly, title);
}

std::optional<QString> DatabaseBoxes::locate(const QString &dbName) {
    m_dialog.InitDir = App::current().path + '/';
    m_dialog.DialogTitle = "Locate " + dbName + "...";
    m_dialog.FileName = dbName;
    m_dialog.Filter = "Access files (*.mdb)|*.mdb";
    m_dialog.CancelError = true;
    try {
        m_dialog.ShowOpen();
    } catch (const RuntimeError &error) {
        if (error.number() != CancelSelected) throw;
        return std::nullopt;
    }
    return m_dialog.FileName;
}
