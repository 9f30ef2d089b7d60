#include "shell/HTMLHelp.h"

#include "platform/desktop/help.h"
#include "platform/runtime/app.h"

namespace HTMLHelp {

QString HelpFilePath(int fileNumber) {
    return fileNumber == 1 ? App::current().path + "/Velmar_PED_HELP.chm" : QString();
}

void ShowHelpContents(int fileNumber) {
    HtmlHelp(HelpFilePath(fileNumber), HelpContents);
}

void ShowHelpIndex(int fileNumber) {
    HtmlHelp(HelpFilePath(fileNumber), HelpIndex);
}

void ShowHelpSearch(int fileNumber) {
    HtmlHelp(HelpFilePath(fileNumber), HelpSearch);
}

void ShowHelpTopic(int fileNumber, const QString &topic) {
    HtmlHelp(HelpFilePath(fileNumber), HelpTopic, topic);
}

} // namespace HTMLHelp
