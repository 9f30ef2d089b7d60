#include "platform/forms/event_procedure.h"

#include <new>

#include "platform/runtime/runtime_error.h"

namespace EventProcedure {

namespace {

std::function<void(const RuntimeError &)> theReport;

} // namespace

void run(const std::function<void()> &procedure) {
    if (!theReport) {
        procedure();
        return;
    }
    try {
        procedure();
    } catch (const RuntimeError &error) {
        theReport(error);
    } catch (const std::bad_alloc &) {
        theReport(RuntimeError(7));
    }
}

void setReport(std::function<void(const RuntimeError &)> report) {
    theReport = std::move(report);
}

} // namespace EventProcedure
