#include "shell/settings_file.h"

#include <cmath>

#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/text_file.h"

namespace {

constexpr int LineCount = 27;
constexpr int FirstColumnSize = 7;
constexpr int FirstColumnVisible = 13;
constexpr int FirstSavedSearch = 19;

float columnSizeOf(const QString &line) {
    const float size = CSng(line);
    // A file written under a decimal comma and read under a decimal point comes back a thousand times too
    // large.
    return size > 9999 ? size / 1000 : size;
}

QString columnSizeLine(float size) {
    // Above 9999 a size comes back divided anyway; that one column must not cost the user all other settings.
    const float within = std::isnan(size) ? 0 : std::clamp(size, -32768.0F, 32767.0F);
    return QString::number(CInt(within));
}

// These characters would break the search statement that the text goes into.
QString withoutQuoting(QString line) {
    return line.remove(QLatin1Char('[')).remove(QLatin1Char(']')).remove(QLatin1Char('\''));
}

// A line end inside a value would shift the meaning of all lines behind it.
QString onOneLine(QString text) {
    return text.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

template <typename Value, typename Convert>
void convertOrKeep(Value &value, const QString &line, Convert convert) {
    if (line.isEmpty()) return;
    try {
        value = convert(line);
    } catch (const RuntimeError &) {
        // one bad line costs its own value only
    }
}

QString word(bool condition, const char *yes, const char *no) {
    return QLatin1String(condition ? yes : no);
}

} // namespace

std::optional<qint32> Settings::backColor() const {
    if (backColorText.isEmpty()) return std::nullopt;
    return CLng(backColorText);
}

void Settings::setBackColor(qint32 color) {
    backColorText = QString::number(color);
}

Settings SettingsFile::fromLines(const QStringList &lines) {
    const auto line = [&](int index) { return index < lines.size() ? lines[index] : QString(); };
    Settings settings;
    settings.tileHorizontal = line(0) == QLatin1String("Tile_Horizontal");
    settings.toolbarShown = line(1) != QLatin1String("Tool_HIDE");
    settings.toolbarAtBottom = line(2) == QLatin1String("Tool_BOTTOM");
    settings.statusShown = line(3) != QLatin1String("Status_HIDE");
    settings.backColorText = line(4);
    settings.coloursOff = line(5) == QLatin1String("Colours_OFF");
    settings.toolTips = line(6) != QLatin1String("ToolTips_OFF");
    for (int i = 0; i < 6; ++i) {
        const auto column = static_cast<std::size_t>(i);
        convertOrKeep(settings.columnSize[column], line(FirstColumnSize + i), columnSizeOf);
        convertOrKeep(settings.columnVisible[column], line(FirstColumnVisible + i),
                      [](const QString &text) { return CBool(text); });
    }
    for (int i = 0; i < 8; ++i)
        settings.savedSearch[static_cast<std::size_t>(i)] = withoutQuoting(line(FirstSavedSearch + i));
    return settings;
}

QStringList SettingsFile::toLines(const Settings &settings) {
    QStringList lines;
    lines.reserve(LineCount);
    lines << word(settings.tileHorizontal, "Tile_Horizontal", "Cascade");
    lines << word(settings.toolbarShown, "Tool_SHOW", "Tool_HIDE");
    lines << word(settings.toolbarAtBottom, "Tool_BOTTOM", "Tool_TOP");
    lines << word(settings.statusShown, "Status_SHOW", "Status_HIDE");
    lines << onOneLine(settings.backColorText);
    lines << word(settings.coloursOff, "Colours_OFF", "Colours_ON");
    lines << word(settings.toolTips, "ToolTips_ON", "ToolTips_OFF");
    for (const float size : settings.columnSize)
        lines << columnSizeLine(size);
    for (const bool visible : settings.columnVisible)
        lines << CStr(visible);
    for (const QString &search : settings.savedSearch)
        lines << onOneLine(search);
    return lines;
}

Settings SettingsFile::read(const QString &path) {
    QStringList lines;
    try {
        lines = TextFile::readLines(path);
    } catch (const RuntimeError &) {
        return {};
    }
    return fromLines(lines);
}

void SettingsFile::write(const QString &path, const Settings &settings) {
    TextFile::writeLines(path, toLines(settings));
}
