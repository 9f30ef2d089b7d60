// A program in the helper's cage that tries what its one word says: caged_program WORD < FILE, with the file
// open as 3 as well. It ends with 0 where it got through, 2 where the system knows no cage.
#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/dao/file_identity.h"
#include "table_reader/cage.h"
#include "table_reader/limits.h"

namespace {

constexpr int File = 3;

/// What the helper does all day.
void work() {
    char bytes[16];
    if (pread(File, bytes, sizeof bytes, 0) < 0 || read(STDIN_FILENO, bytes, sizeof bytes) < 0) _exit(1);
    if (FileIdentity::of(File) == FileIdentity()) _exit(1);
    limits::allowProcessorTime();
    std::vector<char> large(50'000'000, 'x');
    large.resize(100'000'000);
    if (write(STDOUT_FILENO, large.data(), 1) != 1) _exit(1);
    try {
        throw std::runtime_error("a file is damaged");
    } catch (const std::runtime_error &) {
    }
}

const std::map<std::string, std::function<void()>> actions = {
    {"work", work},
    {"open", [] { open("/etc/passwd", O_RDONLY); }},
    {"create", [] { open("/tmp/made-in-the-cage", O_WRONLY | O_CREAT, 0600); }},
    {"connect",
     [] {
         const int made = socket(AF_INET, SOCK_STREAM, 0);
         sockaddr_in address = {};
         address.sin_family = AF_INET;
         connect(made, reinterpret_cast<const sockaddr *>(&address), sizeof address);
     }},
    {"execve",
     [] {
         char *const words[] = {nullptr};
         execve("/bin/true", words, words);
     }},
    {"fork", [] { fork(); }},
    {"ptrace", [] { ptrace(PTRACE_TRACEME, 0, nullptr, nullptr); }},
    {"kill", [] { kill(getppid(), 0); }},
    {"map the file", [] { mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE, File, 0); }},
    {"read another file", [] { read(STDERR_FILENO, nullptr, 0); }},
    {"write the file", [] { write(File, "x", 1); }},
};

} // namespace

int main(int argc, char **argv) {
    const auto action = argc == 2 ? actions.find(argv[1]) : actions.end();
    if (action == actions.end()) return 1;
    if (!cage::shut(File)) return 2;
    action->second();
    return 0;
}
