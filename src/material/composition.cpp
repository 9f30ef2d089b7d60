#include "material/composition.h"

#include "data/cell_values.h"
#include "platform/dao/recordset.h"

namespace {
constexpr int Minima = 1;
constexpr int Maxima = 2;
} // namespace

Composition readComposition(Recordset &limits, bool withMarkers) {
    const int elements = CInt(limits.RecordCount() / 2.0);
    Composition result;
    result.cells.ReDim(Minima, Maxima, 0, elements);
    result.cells.Set(Minima, 0, QStringLiteral("min"));
    result.cells.Set(Maxima, 0, QStringLiteral("max"));
    for (int i = 1; i <= elements; ++i) {
        if (i > 1) limits.MoveNext();
        result.cells.Set(Minima, i, cellValue(limits.Fields("val")));
        limits.MoveNext();
        result.cells.Set(Maxima, i, cellValue(limits.Fields("val")));
        const QString marker = withMarkers ? cellText(limits.Fields("note")) : QString();
        result.headings << cellText(limits.Fields("element")) + LineEnd + LineEnd + marker;
    }
    return result;
}
