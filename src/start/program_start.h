// What stands between main() and the event loop.
#pragma once

class Application;
class QString;

namespace ProgramStart {

/// Says who the program is, how the system writes numbers, and what is kept when a run-time error ends it.
void prepare(Application &application, const QString &binaryFolder);

/// What menu and tool bar do; part of prepare(), for programs that prepare themselves otherwise.
void installActions();

/// Shows the start window.
void begin();

} // namespace ProgramStart
