#pragma once

#include <QByteArray>
#include <QFile>

#include <functional>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

enum class Answer { Yes, No, Unknown };

/// Runs @p question in a child process that @p setUp has changed for good. Unknown where the set-up failed.
/// Neither may use the event loop or QTest.
inline Answer askInChild(const std::function<bool()>& setUp, const std::function<bool()>& question)
{
    enum Code { yes = 0, no = 1, failed = 2 };
    const pid_t child = fork();
    if (child == 0) {
        if (!setUp()) {
            _exit(failed);
        }
        _exit(question() ? yes : no);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return Answer::Unknown;
    }
    switch (WEXITSTATUS(status)) {
    case yes:
        return Answer::Yes;
    case no:
        return Answer::No;
    default:
        return Answer::Unknown;
    }
}

/// Mounts an empty file system for this process alone, so that nothing is left when it dies. False where a
/// user may not.
inline bool mountEmpty(const QByteArray& folder, unsigned long flags = 0)
{
    const uid_t user = getuid();
    if (unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) {
        return false;
    }
    QFile map(QStringLiteral("/proc/self/uid_map"));
    const bool isMapped = user == 0 || (map.open(QIODevice::WriteOnly) &&
                                        map.write("0 " + QByteArray::number(user) + " 1") > 0);
    map.close();
    return isMapped && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.constData(), "tmpfs", flags, "mode=0777") == 0;
}

/// Runs @p question as a user without privileges: directly where the tests run as one, and otherwise in a
/// child process that gives up root's.
inline Answer askAsNormalUser(const std::function<bool()>& question)
{
    if (geteuid() != 0) {
        return question() ? Answer::Yes : Answer::No;
    }
    const auto giveUpPrivileges = [] {
        constexpr unsigned nobody = 65534;
        return setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
    };
    return askInChild(giveUpPrivileges, question);
}
