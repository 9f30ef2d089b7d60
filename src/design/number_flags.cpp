#include "design/number_flags.h"

#include "platform/runtime/conversions.h"

NumberFlags NumberFlags::fromSystem() {
    const QString formatted = Format("1,5", "##0.00");
    return {CStr(1.5) == QLatin1String("1.5"),
            formatted == QLatin1String("15.00") || formatted == QLatin1String("15,00")};
}
