// Opening documents in the application that the desktop associates with them.
#pragma once

#include <QString>

class QWidget;

namespace modDocument {

/// True for something that exists and is not a folder.
bool FileExists(const QString &path);

/// Opens the file by its association. Returns the error's text, which a message box has shown, or an empty
/// text. Where no application is associated the desktop's choice of applications shows above `window`, and
/// the text is empty.
QString OpenDocument(QWidget *window, const QString &fileName);

} // namespace modDocument
