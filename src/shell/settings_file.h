// The settings file: one value a line, 27 lines, no keys.
#pragma once

#include <array>
#include <optional>

#include <QString>
#include <QStringList>

/// What the user set in the menus and the layout of the search grid, from one run to the next. The start
/// values are those of a user who has no file yet.
struct Settings {
    bool tileHorizontal = false;
    bool toolbarShown = true;
    bool toolbarAtBottom = false;
    bool statusShown = true;
    /// As it stands in the file, since a hand-edited one may be no number.
    QString backColorText;
    bool coloursOff = false;
    bool toolTips = true;
    /// Twips.
    std::array<float, 6> columnSize{};
    std::array<bool, 6> columnVisible{true, true, true, true, true, true};
    /// Seven search boxes and the index of the standards system.
    std::array<QString, 8> savedSearch;

    /// Nothing for an empty text. Raises 13 for one that is no number, 6 beyond 32 bits.
    std::optional<qint32> backColor() const;
    void setBackColor(qint32 color);
};

namespace SettingsFile {

/// Never fails: a missing line counts as empty, one behind the 27th does not count, and a line of columnSize
/// or columnVisible that cannot be converted leaves its start value.
Settings fromLines(const QStringList &lines);
QStringList toLines(const Settings &settings);

/// A file that is missing or cannot be read gives the start values.
Settings read(const QString &path);
/// Raises TextFile::writeLines' errors.
void write(const QString &path, const Settings &settings);

} // namespace SettingsFile
