// What every test of windows may count on: no box waits for a person, no error ends the run.
#pragma once

#include <QList>

#include "platform/forms/modal_seam.h"
#include "platform/runtime/runtime_error.h"

/// Where a test queues answers for modal boxes. A box without an answer, and an answer that no box took, fail
/// the test.
ModalSeam &modal();

/// The run-time errors that reached an event procedure since the last call. One that no test takes fails it.
QList<RuntimeError> takeFaults();

/// Deletes the forms that were unloaded, as a return to the event loop would.
void deleteUnloaded();
