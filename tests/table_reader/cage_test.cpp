// The helper's cage, as a program in it finds it.
#include <gtest/gtest.h>

#include <csignal>

#include <QFile>

#include <spawn.h>
#include <sys/wait.h>

namespace {

/// How the caged program ended, which has the file open as its standard input and as 3.
int ending(const char *action) {
    const QByteArray program = BINARY_FOLDER "/caged_program";
    const QByteArray file = SOURCE_FOLDER "/sample/Velmar_PED.mdb";
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (const int number : {0, 3})
        posix_spawn_file_actions_addopen(&files, number, file.constData(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
    char *const words[] = {const_cast<char *>(program.constData()), const_cast<char *>(action), nullptr};
    pid_t id = -1;
    const int failure = posix_spawn(&id, program.constData(), &files, nullptr, words, environ);
    posix_spawn_file_actions_destroy(&files);
    int status = -1;
    if (failure == 0) waitpid(id, &status, 0);
    return status;
}

} // namespace

TEST(Cage, LetsTheHelperDoItsWorkAndNothingElse) {
    const int work = ending("work");
    ASSERT_TRUE(WIFEXITED(work)) << "ended by signal " << WTERMSIG(work);
    if (WEXITSTATUS(work) == 2) GTEST_SKIP() << "the system knows no cage";
    EXPECT_EQ(WEXITSTATUS(work), 0);
    for (const char *action : {"open", "create", "connect", "execve", "fork", "ptrace", "kill",
                               "map the file", "read another file", "write the file"}) {
        const int status = ending(action);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS) << action << ": status " << status;
    }
}
