// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_TESTS_PRINTHARNESS_H
#define VELLUMIO_TESTS_PRINTHARNESS_H

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QThread>

#include <csignal>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

// What the print path's tests and benchmark need of a real system: throwaway users, processes run
// as them, a private CUPS scheduler and a virtual display, each in the caller's own folder and gone
// when done. The system's own CUPS, spool and users are never touched. Needs root.
namespace PrintHarness {

constexpr char userPrefix[] = "vlmt";

// useradd and userdel refuse while another run holds the lock on /etc/passwd: try again.
inline bool retried(const QString &program, const QStringList &arguments)
{
    for (int tries = 0; tries < 50; ++tries) {
        if (QProcess::execute(program, arguments) == 0)
            return true;
        QThread::msleep(100);
    }
    return false;
}

inline void removeUser(const QString &name)
{
    retried(QStringLiteral("userdel"), {name});
}

// Users left by runs that died before removing them: named after a process that is gone.
inline void removeStaleUsers()
{
    QFile passwd(QStringLiteral("/etc/passwd"));
    if (!passwd.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : passwd.readAll().split('\n')) {
        const QString name = QString::fromLatin1(line.left(line.indexOf(':')));
        const int pid = name.mid(int(sizeof userPrefix) - 1).chopped(1).toInt();
        if (name.startsWith(QLatin1String(userPrefix)) && pid > 0 && ::kill(pid, 0) != 0)
            removeUser(name);
    }
}

// A user made for one run, "vlmt<pid><letter>", with a home of mode 0700 under `folder`; removed
// with the object.
struct ThrowawayUser
{
    ThrowawayUser(char letter, const QString &folder)
        : name(QLatin1String(userPrefix) + QString::number(::getpid()) + QLatin1Char(letter))
        , home(folder + QLatin1Char('/') + name)
    {
        retried(QStringLiteral("useradd"),
            {QStringLiteral("-M"), QStringLiteral("-d"), home, QStringLiteral("-s"),
                QStringLiteral("/bin/sh"), name});
        if (const passwd *entry = ::getpwnam(name.toLocal8Bit().constData())) {
            uid = entry->pw_uid, gid = entry->pw_gid;
            makeFolder(home, 0700);
        }
    }
    ~ThrowawayUser()
    {
        if (uid)
            removeUser(name);
    }
    bool makeFolder(const QString &path, mode_t mode) const
    {
        const QByteArray local = QFile::encodeName(path);
        return QDir().mkpath(path) && ::chown(local, uid, gid) == 0 && ::chmod(local, mode) == 0;
    }
    // The desktop session of this user: home, settings, runtime folder, display, spool root.
    QProcessEnvironment session(const QString &display, const QString &spoolRoot) const
    {
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("USER"), name);
        environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home + QStringLiteral("/run"));
        environment.insert(QStringLiteral("VELLUMIO_SPOOL"), spoolRoot);
        if (display.startsWith(QLatin1Char(':')))
            environment.insert(QStringLiteral("DISPLAY"), display);
        else
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), display);
        makeFolder(home + QStringLiteral("/run"), 0700);
        makeFolder(home + QStringLiteral("/.config/Tarnwick"), 0700);
        return environment;
    }
    // The user's settings file, as the dialog and the agent find it in this session.
    QString settingsFile() const
    {
        return home + QStringLiteral("/.config/Tarnwick/Vellumio.conf");
    }
    // Values written into it as the dialog leaves them.
    void writeSettings(const QVariantMap &values) const
    {
        {
            QSettings file(settingsFile(), QSettings::IniFormat);
            for (auto it = values.begin(); it != values.end(); ++it)
                file.setValue(it.key(), it.value());
        }
        ::chown(QFile::encodeName(settingsFile()), uid, gid);
        ::chmod(QFile::encodeName(settingsFile()), 0600);
    }

    QString name, home;
    uid_t uid = 0;
    gid_t gid = 0;
};

// Starts a process as `user` (root when null); it dies with the test.
inline void startAs(QProcess &process, const ThrowawayUser *user, const QString &program,
    const QStringList &arguments, const QProcessEnvironment &environment)
{
    const uid_t uid = user ? user->uid : 0;
    const gid_t gid = user ? user->gid : 0;
    process.setChildProcessModifier([uid, gid] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (uid && (::setgroups(1, &gid) != 0 || ::setgid(gid) != 0 || ::setuid(uid) != 0))
            ::_exit(127);
    });
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
}

// Runs a program to its end; its exit status, -1 when it did not end normally.
inline int runAs(const ThrowawayUser *user, const QString &program, const QStringList &arguments,
    const QProcessEnvironment &environment, QByteArray *output = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    startAs(process, user, program, arguments, environment);
    const bool ended = process.waitForFinished(60000);
    if (output)
        *output = process.readAll();
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// Everything in a folder, hidden entries too, by name.
inline QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

// The spool root as the installation leaves it: root's, 0711, with the stamp agents wait on.
inline bool makeSpoolRoot(const QString &root)
{
    return QDir().mkpath(root) && ::chmod(QFile::encodeName(root), 0711) == 0
        && writeFile(root + QStringLiteral("/folders.stamp"), QByteArray());
}

// A scheduler of its own: configuration, spool, logs and socket in `folder`, a free loopback port,
// the backend given copied into its backend folder with the mode CUPS wants, the system's filters
// linked. Its backends spool into `spoolRoot`.
struct PrivateCups
{
    PrivateCups(const QString &folder, const QString &spoolRoot)
        : dir(folder)
        , spool(spoolRoot)
    { }
    ~PrivateCups()
    {
        cupsd.kill();
        cupsd.waitForFinished();
    }

    QString path(const QString &name) const { return dir + QLatin1Char('/') + name; }
    QString socket() const { return path(QStringLiteral("cups.sock")); }

    bool start(const QString &backend, const QString &policyFile)
    {
        for (const char *sub :
            {"conf", "serverbin/backend", "spool", "cache", "state", "log", "tmp"})
            QDir().mkpath(path(QLatin1String(sub)));
        const QFileInfoList system = QDir(QStringLiteral("/usr/lib/cups"))
                                         .entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : system)
            if (entry.fileName() != QLatin1String("backend"))
                QFile::link(
                    entry.filePath(), path(QStringLiteral("serverbin/")) + entry.fileName());
        const QString installed = path(QStringLiteral("serverbin/backend/vellumio"));
        const group *lp = ::getgrnam("lp");
        if (!QFile::copy(backend, installed) || ::chmod(QFile::encodeName(installed), 0700) != 0
            || !lp || ::chown(QFile::encodeName(path(QStringLiteral("tmp"))), 0, lp->gr_gid) != 0
            || ::chmod(QFile::encodeName(path(QStringLiteral("tmp"))), 01770) != 0)
            return false;
        QFile policy(policyFile);
        if (!policy.open(QIODevice::ReadOnly))
            return false;
        const QString files = QStringLiteral(
            "ServerRoot %1/conf\nServerBin %1/serverbin\nDataDir /usr/share/cups\n"
            "RequestRoot %1/spool\nTempDir %1/tmp\nCacheDir %1/cache\nStateDir %1/state\n"
            "AccessLog %1/log/access_log\nErrorLog %1/log/error_log\nPageLog %1/log/page_log\n"
            "User lp\nGroup lp\nSystemGroup root\nFileDevice No\nSetEnv VELLUMIO_SPOOL %2\n")
                                  .arg(dir, spool);
        const QString conf = QStringLiteral(
            "Listen 127.0.0.1:%1\nListen %2\nBrowsing Off\nDefaultAuthType Basic\nWebInterface No\n"
            "LogLevel warn\n<Location />\n  Order allow,deny\n  Allow localhost\n</Location>\n"
            "<Policy default>\n  <Limit All>\n    Order deny,allow\n  </Limit>\n</Policy>\n")
                                 .arg(freePort())
                                 .arg(socket());
        if (!writeFile(path(QStringLiteral("conf/cups-files.conf")), files.toUtf8())
            || !writeFile(
                path(QStringLiteral("conf/cupsd.conf")), conf.toUtf8() + policy.readAll()))
            return false;
        startAs(cupsd, nullptr, QStringLiteral("cupsd"),
            {QStringLiteral("-f"), QStringLiteral("-c"), path(QStringLiteral("conf/cupsd.conf")),
                QStringLiteral("-s"), path(QStringLiteral("conf/cups-files.conf"))},
            QProcessEnvironment::systemEnvironment());
        cupsd.waitForStarted();
        for (int tries = 0; tries < 200 && cupsd.state() == QProcess::Running; ++tries) {
            QByteArray answer;
            runAs(nullptr, QStringLiteral("lpstat"),
                {QStringLiteral("-h"), socket(), QStringLiteral("-r")},
                QProcessEnvironment::systemEnvironment(), &answer);
            if (answer.contains("is running"))
                return true;
            QThread::msleep(25);
        }
        return false;
    }

    // A queue with the description `ppd` for the project's backend, under its own policy.
    bool addQueue(const QString &ppd, const QString &name = QStringLiteral("Vellumio"))
    {
        return runAs(nullptr, QStringLiteral("lpadmin"),
                   {QStringLiteral("-h"), socket(), QStringLiteral("-p"), name,
                       QStringLiteral("-E"), QStringLiteral("-v"), QStringLiteral("vellumio:/"),
                       QStringLiteral("-P"), ppd, QStringLiteral("-o"),
                       QStringLiteral("printer-is-shared=false"), QStringLiteral("-o"),
                       QStringLiteral("printer-op-policy=vellumio")},
                   QProcessEnvironment::systemEnvironment())
            == 0;
    }

    static int freePort()
    {
        const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        ::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address);
        ::getsockname(fd, reinterpret_cast<sockaddr *>(&address), &length);
        ::close(fd);
        return ntohs(address.sin_port);
    }

    QString dir, spool;
    QProcess cupsd;
};

// A virtual X display run by `user`, as their desktop session would be.
inline QString startDisplay(QProcess &xvfb, const ThrowawayUser &user)
{
    startAs(xvfb, &user, QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
            QStringLiteral("tcp"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("1280x1024x24")},
        QProcessEnvironment::systemEnvironment());
    while (xvfb.waitForReadyRead(10000) && !xvfb.canReadLine()) { }
    const QByteArray number = xvfb.readLine().trimmed();
    return number.isEmpty() ? QString() : QLatin1Char(':') + QString::fromLatin1(number);
}

} // namespace PrintHarness

#endif // VELLUMIO_TESTS_PRINTHARNESS_H
