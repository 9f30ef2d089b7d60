// An event procedure: the place where a run-time error ends.
#pragma once

#include <functional>

class RuntimeError;

namespace EventProcedure {

/// Runs it, and hands a run-time error, or memory that has run out (7), to the report. Where nobody reports,
/// as without an application object, errors pass.
void run(const std::function<void()> &procedure);

/// An empty one for none.
void setReport(std::function<void(const RuntimeError &)> report);

} // namespace EventProcedure
