// The window of a material whose tables are printed without being looked at.
#pragma once

#include "material/GradeWindow.h"
#include "platform/runtime/runtime_error.h"

/// It has no controls: of thirty windows these are the most that is made, and all that is kept.
class UnseenMaterial : public GradeWindow {
    Q_OBJECT
public:
    /// Nobody can enter one.
    QString designTemperature() const override { return {}; }
    /// Raises 91.
    const MSChart &chart() const override { throw RuntimeError(91); }
};
