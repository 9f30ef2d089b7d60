// The help file and its pages.
#pragma once

#include <QString>

/// All callers pass the file number 1, the help file beside the program.
namespace HTMLHelp {

/// An empty text for any other number than 1.
QString HelpFilePath(int fileNumber);
void ShowHelpContents(int fileNumber);
void ShowHelpIndex(int fileNumber);
void ShowHelpSearch(int fileNumber);
void ShowHelpTopic(int fileNumber, const QString &topic);

} // namespace HTMLHelp
