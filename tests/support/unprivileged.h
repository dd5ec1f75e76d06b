// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_UNPRIVILEGED_H
#define FMTASK_TESTS_UNPRIVILEGED_H

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

// Runs a test's own processes as the unprivileged user "nobody" where the test itself runs as
// root (as everything does in CI), so that rows about permissions meet them as a user would:
// root reads and writes regardless. Switching needs setpriv, part of every Debian system.
namespace Unprivileged {

// Whether processes must switch to be unprivileged: only root can, and only root needs to.
inline bool switching()
{
    return ::geteuid() == 0;
}

// Who a process started now runs as, switched or not, for the test's report.
inline QString user(bool switched = true)
{
    const passwd *self = ::getpwuid(::geteuid());
    return switched && switching() ? QStringLiteral("nobody")
        : self                     ? QString::fromLocal8Bit(self->pw_name)
                                   : QString::number(::geteuid());
}

// Why processes cannot switch here; empty when they can.
inline QString obstacle()
{
    if (switching() && QStandardPaths::findExecutable(QStringLiteral("setpriv")).isEmpty())
        return QStringLiteral("setpriv is missing");
    if (switching() && !::getpwnam("nobody"))
        return QStringLiteral("there is no user nobody");
    return QString();
}

// Hands a folder and everything in it to nobody, so a switched process may use it, and lets
// everyone pass through it (its parents are the test's own temporary folders).
inline bool handOver(const QString &folder)
{
    if (!switching())
        return true;
    const passwd *nobody = ::getpwnam("nobody");
    bool handed = nobody && ::chown(QFile::encodeName(folder), nobody->pw_uid, nobody->pw_gid) == 0;
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
        QDirIterator::Subdirectories);
    while (handed && it.hasNext())
        handed = ::lchown(QFile::encodeName(it.next()), nobody->pw_uid, nobody->pw_gid) == 0;
    return handed && QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ExeOther);
}

// A copy of a program in a folder nobody may use, so it runs wherever the build tree lies; the
// program itself where processes do not switch.
inline QString reachable(const QString &program, const QString &folder)
{
    if (!switching())
        return program;
    const QString copy = folder + QStringLiteral("/") + QFileInfo(program).fileName();
    QFile::copy(program, copy);
    return copy;
}

// Starts a program as nobody when switching, else as the test's own user.
inline void start(QProcess &process, const QString &program, const QStringList &arguments)
{
    if (!switching()) {
        process.start(program, arguments);
        return;
    }
    process.start(QStringLiteral("setpriv"),
        QStringList {QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
            QStringLiteral("--clear-groups"), program}
            + arguments);
}

} // namespace Unprivileged

#endif // FMTASK_TESTS_UNPRIVILEGED_H
