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
    if (switched && switching())
        return QStringLiteral("nobody");
    return self ? QString::fromLocal8Bit(self->pw_name) : QString::number(::geteuid());
}

// Why processes cannot switch here; empty when they can.
inline QString obstacle()
{
    if (switching() && QStandardPaths::findExecutable(QStringLiteral("setpriv")).isEmpty())
        return QStringLiteral("setpriv is missing");
    return switching() && !::getpwnam("nobody") ? QStringLiteral("there is no user nobody")
                                                : QString();
}

// Hands a folder and everything in it to nobody, so a switched process may use it, and lets
// everyone pass through it (its parents are the test's own temporary folders).
inline bool handOver(const QString &folder)
{
    const passwd *nobody = ::getpwnam("nobody");
    bool handed = !switching()
        || (nobody && ::chown(QFile::encodeName(folder), nobody->pw_uid, nobody->pw_gid) == 0);
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
        QDirIterator::Subdirectories);
    while (switching() && handed && it.hasNext())
        handed = ::lchown(QFile::encodeName(it.next()), nobody->pw_uid, nobody->pw_gid) == 0;
    return handed && QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ExeOther);
}

// Starts a program as nobody when switching, from a copy in a folder nobody may use so that it
// runs wherever the build tree lies; else the program itself as the test's own user.
inline void start(
    QProcess &process, const QString &program, const QStringList &arguments, const QString &folder)
{
    if (!switching())
        return process.start(program, arguments);
    const QString copy = folder + QStringLiteral("/") + QFileInfo(program).fileName();
    QFile::copy(program, copy);
    process.start(QStringLiteral("setpriv"),
        QStringList {QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
            QStringLiteral("--clear-groups"), copy}
            + arguments);
}

} // namespace Unprivileged

#endif // FMTASK_TESTS_UNPRIVILEGED_H
