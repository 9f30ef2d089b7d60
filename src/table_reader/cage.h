// What shuts this process in before it looks at a file that anyone may have made.
#pragma once

namespace cage {

/// From now on the process may read `file`, read its standard input, write its standard output, ask for
/// memory and end. Anything else the system is asked for ends it at once with SIGSYS: it cannot open a file,
/// reach the network, start a program, or touch another process, whatever a damaged file makes of it. False
/// where the system knows no such filter.
bool shut(int file);

} // namespace cage
