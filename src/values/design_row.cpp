#include "values/design_row.h"

#include "data/source_array.h"
#include "platform/runtime/runtime_error.h"

DesignRow DesignRow::of(const SourceArray &source, const Interpolation::Temperature &temperature,
                        bool bDecimalPoint) {
    DesignRow row;
    if (source.lastColumn() < 1) return row;
    try {
        Interpolation::designValues(source, temperature, bDecimalPoint,
                                    [&row](int, const QString &cell) { row.texts << cell; });
    } catch (const RuntimeError &error) {
        row.failure = error.description();
    }
    return row;
}
