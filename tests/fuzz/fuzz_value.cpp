// Any texts as the cells of a table, and the values between them at any temperature.
#include <cmath>

#include "data/source_array.h"
#include "design/interpolation.h"
#include "design/value_text.h"
#include "platform/runtime/conversions.h"
#include "tests/fuzz/fuzz_input.h"

namespace {

/// The parts are the text again, but for the notation of the number.
void expectWhole(const QString &text, const ValueText::Parts &parts) {
    const auto plain = [](QString value) { return value.replace(',', '.'); };
    fuzz::expect(plain(parts.prefix + parts.number + parts.suffix) == plain(text), "no part is lost");
    for (const QChar ch : parts.number)
        fuzz::expect(ValueText::IsNumberChar(ch), "a number has characters of numbers");
}

/// Lines are rows, "|" stands between cells.
SourceArray sourceOf(const QStringList &rows) {
    SourceArray source(static_cast<int>(rows.size()), 2);
    for (int row = 0; row < rows.size(); ++row)
        for (int column = 0; column <= 2; ++column)
            source.setText(row + 1, column, rows[row].section('|', column, column));
    return source;
}

/// An interpolated value stands between its neighbours, and is never one beyond the table.
void expectInside(const QString &cell, const SourceArray &source, int column, bool bDecimalPoint) {
    if (cell == "-" || cell == "+" || cell == "x") return;
    double least = HUGE_VAL;
    double most = -HUGE_VAL;
    for (int row = 1; row <= source.rowCount(); ++row) {
        const auto parts = ValueText::SplitValueText({source.text(row, column), QString()}, bDecimalPoint)[0];
        double number = 0;
        try {
            number = CDbl(parts.number);
        } catch (const RuntimeError &) {
            continue; // not one that a value was made from
        }
        least = std::min(least, number);
        most = std::max(most, number);
    }
    // Cells of an exact row stand as they are; the others have two decimals behind a comma.
    const QString number = ValueText::SplitValueText({cell, QString()}, false)[0].number;
    bool isNumber = false;
    const double shown = QString(number).replace(',', '.').toDouble(&isNumber);
    if (!isNumber || number.count(',') > 1) return;
    const double margin = 0.0051 + 1e-9 * std::max(std::abs(least), std::abs(most));
    fuzz::expect(shown >= least - margin && shown <= most + margin, "nothing is extrapolated");
}

bool ascending(const SourceArray &source) {
    try {
        for (int row = 2; row <= source.rowCount(); ++row)
            if (CDbl(source.text(row - 1, 0)) >= CDbl(source.text(row, 0))) return false;
    } catch (const RuntimeError &) {
        return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Input input(data, size);
    fuzz::setRegion(input.flags);
    const RegionalSettings &region = RegionalSettings::current();
    const bool bDecimalPoint = region.decimalSign == '.';
    const bool bCommaGroup = region.groupSign == ',';

    QStringList lines = input.text.split('\n');
    const QString box = lines.takeFirst();
    const auto parts = ValueText::SplitValueText({box, lines.value(0)}, bDecimalPoint);
    expectWhole(lines.value(0), parts[1]);
    expectWhole(box, ValueText::SplitValueText({box, QString()}, bDecimalPoint)[0]);
    for (const QChar ch : ValueText::GetNumberText(box, bDecimalPoint))
        fuzz::expect(ValueText::IsNumberChar(ch), "a chart's number has characters of numbers");
    fuzz::allowing({6, 13}, [&] { ValueText::designValueText(CDbl(box)); });

    const SourceArray source = sourceOf(lines);
    fuzz::allowing({6, 9, 11, 13}, [&] {
        const Interpolation::Temperature temperature = Interpolation::typedTemperature(box, bCommaGroup);
        Interpolation::designValues(source, temperature, bDecimalPoint, [&](int column, const QString &cell) {
            if (ascending(source)) expectInside(cell, source, column, bDecimalPoint);
        });
    });
    return 0;
}
