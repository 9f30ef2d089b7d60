#include "values/thickness_bands.h"

#include "design/design_headings.h"
#include "platform/runtime/conversions.h"

int ThicknessBands::of(double thickness) const {
    for (int band = 1; band <= count(); ++band)
        if (thickness > limits[band - 1] && thickness <= limits[band]) return band;
    return 0;
}

QString ThicknessBands::heading(int band) const {
    return designHeadings({}, limits, {}).columns.value(band - 1);
}

QString ThicknessBands::missing(double thickness) const {
    return CStr(thickness) + " mm is above the last thickness band, which ends at " +
           QString::number(limits.last()) + " mm.";
}
