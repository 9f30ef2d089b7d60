#include "design/temperature_input.h"

#include <algorithm>

#include "platform/runtime/regional_settings.h"

namespace {

constexpr QChar Backspace(u'\b');
constexpr QChar Comma(u',');
constexpr QChar Point(u'.');
constexpr int MostCharacters = 6;
/// From this length on only a decimal sign may follow, so that no whole number fills the box.
constexpr int MostWholeCharacters = 4;

bool isDigit(QChar key) {
    return key >= QLatin1Char('0') && key <= QLatin1Char('9');
}

bool isDecimalSign(QChar key) {
    return key == Comma || key == Point;
}

} // namespace

bool TemperatureInput::keyPress(QChar key) {
    const bool hadSelection = dropSelection();
    if (text.size() >= MostCharacters && key != Backspace) return false;
    if (text.size() == MostWholeCharacters && !bDecimalTyped && !isDecimalSign(key) && key != Backspace)
        return false;

    const bool accepted = accepts(key);
    if (becameSource) becameSource();
    if (!accepted) return false;
    if (key != Backspace) {
        text.insert(caret, key);
        ++caret;
        changed();
    } else if (!hadSelection && caret > 0) {
        --caret;
        erase(caret, 1);
    }
    return true;
}

void TemperatureInput::backspaceDown() {
    if (bDecimalTyped) prepareDeletion(text.size());
}

void TemperatureInput::deleteDown() {
    if (bDecimalTyped) prepareDeletion(text.size() - 1);
    if (selectionLength == 0) {
        if (caret < text.size()) erase(caret, 1);
        return;
    }
    const int length = selectionLength;
    selectionLength = 0;
    const QString rest = text.left(caret) + text.mid(caret + length);
    if (!rest.contains(Comma) && !rest.contains(Point)) forgetDecimals();
    erase(caret, length);
}

void TemperatureInput::textReplaced() {
    text = text.trimmed();
    // A point would be a group sign to some systems, and 12.5 a hundred and twenty-five. Where a comma is no
    // sign of a number at all, the point stays: it is the one that converts.
    const RegionalSettings &settings = RegionalSettings::current();
    if (settings.decimalSign == Comma || settings.groupSign == Comma) text.replace(Point, Comma);
    countDecimals();
}

// The flags start anew for every key, also where a decimal sign stays behind outside the selection: else the
// number typed over another one would be refused its decimals.
bool TemperatureInput::dropSelection() {
    if (selectionLength == 0) return false;
    forgetDecimals();
    const int length = selectionLength;
    selectionLength = 0;
    erase(caret, length);
    return true;
}

bool TemperatureInput::accepts(QChar &key) {
    if (isDigit(key)) return acceptsDigit();
    if (key == QLatin1Char('-')) return text.isEmpty();
    if (isDecimalSign(key)) {
        key = Comma;
        return acceptsDecimalSign();
    }
    return key == Backspace;
}

bool TemperatureInput::acceptsDigit() {
    if (iDecimalDigits > 0 && caret > text.size() - 2) return false;
    // Wherever the caret stands: the box must not come to two decimals by way of its front.
    if (bDecimalTyped) iDecimalDigits = std::max(iDecimalDigits, 1);
    return true;
}

bool TemperatureInput::acceptsDecimalSign() {
    if (bDecimalTyped || text.isEmpty() || text == QLatin1String("-") || caret < text.size() - 1)
        return false;
    bDecimalTyped = true;
    if (caret < text.size()) iDecimalDigits = 1;
    return true;
}

// `place` is where the caret stands when the last character is the one that goes.
void TemperatureInput::prepareDeletion(qsizetype place) {
    if (iDecimalDigits > 1) return; // pasted, and counted anew when the key has done its work
    if (caret == place) {
        if (iDecimalDigits > 0)
            --iDecimalDigits;
        else
            bDecimalTyped = false;
    } else if (caret == place - 1 && iDecimalDigits > 0) {
        // The decimal sign goes, so its digit goes too; else 12,5 would become 125.
        bDecimalTyped = false;
        --iDecimalDigits;
        selectionLength = 0;
        erase(text.size() - 1, 1);
    }
}

// Without a sign in the text the flags would keep refusing digits.
void TemperatureInput::forgetDecimals() {
    bDecimalTyped = false;
    iDecimalDigits = 0;
}

void TemperatureInput::countDecimals() {
    const qsizetype sign = std::max(text.lastIndexOf(Comma), text.lastIndexOf(Point));
    bDecimalTyped = sign >= 0;
    iDecimalDigits = bDecimalTyped ? static_cast<int>(text.size() - sign - 1) : 0;
}

void TemperatureInput::erase(qsizetype from, qsizetype length) {
    text.remove(from, length);
    if (iDecimalDigits > 1) countDecimals();
    changed();
}

void TemperatureInput::changed() {
    if (textChanged) textChanged();
    caret = std::min(caret, static_cast<int>(text.size()));
}
