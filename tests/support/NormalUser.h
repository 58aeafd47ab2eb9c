#pragma once

#include <functional>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

enum class Answer { Yes, No, Unknown };

/// Runs @p question as a user without privileges: directly where the tests run as one, and otherwise in a
/// child process that gives up root's. Unknown where that did not work. The question must not use the
/// event loop or QTest.
inline Answer askAsNormalUser(const std::function<bool()>& question)
{
    if (geteuid() != 0) {
        return question() ? Answer::Yes : Answer::No;
    }
    constexpr unsigned nobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0) {
            _exit(2);
        }
        _exit(question() ? 0 : 1);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return Answer::Unknown;
    }
    switch (WEXITSTATUS(status)) {
    case 0:
        return Answer::Yes;
    case 1:
        return Answer::No;
    default:
        return Answer::Unknown;
    }
}
