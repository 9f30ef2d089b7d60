// The one file that SQLite sees: an open descriptor.
#pragma once

namespace DescriptorVfs {

/// Makes the file known to SQLite, once in a process, and gives the name of the system to open it with, under
/// any name. It is one that nobody writes: nothing is locked, and nothing beside it is looked for. Every
/// other file that SQLite would open is refused.
const char *install(int file);

} // namespace DescriptorVfs
