// The help file, shown in a window of its own beside the program.
#pragma once

#include <QString>

enum HelpCommand { HelpTopic = 0, HelpContents = 1, HelpIndex = 2, HelpSearch = 3 };

/// Shows a page of the help window, or with HelpTopic the topic of that file name. A path that ends in .chm
/// means the compiled Qt help of the same name beside it; capitals in the file's name do not count. A missing
/// or damaged help file is told by a message box, and nothing else happens.
void HtmlHelp(const QString &file, HelpCommand command, const QString &topic = {});
