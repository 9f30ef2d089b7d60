#include "reports/ReportSource.h"

#include "data/Material.h"
#include "platform/forms/form.h"
#include "platform/runtime/runtime_error.h"

ReportSource &ReportSource::of(const Material &material) {
    auto *source = dynamic_cast<ReportSource *>(material.MyForm());
    if (source == nullptr) throw RuntimeError(91);
    return *source;
}
