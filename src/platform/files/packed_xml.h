// Whether the XML files of a packed file are whole.
#pragma once

#include <QByteArray>

/// `bytes` is a ZIP file as this program makes them: deflated, without encryption, below 4 GB. True where
/// each file in it unpacks to the size that the directory tells, and ends with the end tag of its first
/// element.
bool holdsWholeXml(const QByteArray &bytes);
