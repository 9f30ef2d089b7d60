// How the routines of modDBase pass an error up.
#pragma once

#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"

namespace modDBase {

/// Runs `routine`; an error goes up with this module's own source.
template <class Routine>
auto passingUp(const char *name, Routine routine) {
    try {
        return routine();
    } catch (const RuntimeError &error) {
        throw RuntimeError(error.number(), error.description(), App::current().exeName + "modDBase." + name);
    }
}

} // namespace modDBase
