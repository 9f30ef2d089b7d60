#include "table_reader/cage.h"

#include <memory>

#include <seccomp.h>
#include <sys/mman.h>
#include <unistd.h>

namespace cage {

#ifdef __SANITIZE_ADDRESS__ // which looks at more than a helper may

bool shut(int) {
    return false;
}

#else

namespace {

using Filter = std::unique_ptr<void, void (*)(scmp_filter_ctx)>;

/// Adds rules, and remembers whether one was refused. A call that the processor does not have is no fault.
class Rules {
public:
    explicit Rules(scmp_filter_ctx filter)
        : m_filter(filter) {}

    bool areGood() const { return m_areGood; }

    void allow(int call) { note(seccomp_rule_add_array(m_filter, SCMP_ACT_ALLOW, call, 0, nullptr)); }
    void allow(int call, const scmp_arg_cmp &condition) {
        note(seccomp_rule_add_array(m_filter, SCMP_ACT_ALLOW, call, 1, &condition));
    }
    /// The call with this file as its first word.
    void allowOn(int call, int file) { allow(call, SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(file))); }

private:
    void note(int result) { m_areGood = m_areGood && result == 0; }

    scmp_filter_ctx m_filter;
    bool m_areGood = true;
};

void allowFiles(Rules &rules, int file) {
    for (const int readable : {STDIN_FILENO, file})
        rules.allowOn(SCMP_SYS(read), readable);
    rules.allowOn(SCMP_SYS(pread64), file);
    rules.allowOn(SCMP_SYS(write), STDOUT_FILENO);
    // Whether the file has changed: the C library asks by either name.
    rules.allowOn(SCMP_SYS(fstat), file);
    rules.allowOn(SCMP_SYS(newfstatat), file);
    // Whether a request has come.
    rules.allow(SCMP_SYS(poll));
    rules.allow(SCMP_SYS(ppoll));
}

void allowMemory(Rules &rules) {
    rules.allow(SCMP_SYS(brk));
    rules.allow(SCMP_SYS(mmap), SCMP_A3(SCMP_CMP_MASKED_EQ, MAP_ANONYMOUS, MAP_ANONYMOUS));
    rules.allow(SCMP_SYS(mremap));
    rules.allow(SCMP_SYS(munmap));
    rules.allow(SCMP_SYS(madvise));
    rules.allow(SCMP_SYS(futex));
    rules.allow(SCMP_SYS(getrandom)); // with which the C library guards its lists of memory
}

void allowTimeAndEnd(Rules &rules) {
    rules.allow(SCMP_SYS(clock_gettime));
    rules.allow(SCMP_SYS(getrusage));
    // Its own limits, by either name: what it has given up it does not get back.
    rules.allow(SCMP_SYS(setrlimit));
    rules.allow(SCMP_SYS(getrlimit));
    rules.allowOn(SCMP_SYS(prlimit64), 0);
    rules.allow(SCMP_SYS(restart_syscall));
    rules.allow(SCMP_SYS(exit));
    rules.allow(SCMP_SYS(exit_group));
}

} // namespace

bool shut(int file) {
    const Filter filter(seccomp_init(SCMP_ACT_KILL_PROCESS), seccomp_release);
    if (!filter) return false;
    Rules rules(filter.get());
    allowFiles(rules, file);
    allowMemory(rules);
    allowTimeAndEnd(rules);
    return rules.areGood() && seccomp_load(filter.get()) == 0;
}

#endif

} // namespace cage
