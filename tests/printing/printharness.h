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
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

// What the print path's tests and benchmarks need of a real system: throwaway users, processes run
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

// Users left by runs that died before removing them: named after a process that is gone.
inline void removeStaleUsers()
{
    QFile passwd("/etc/passwd");
    const QByteArrayList lines
        = passwd.open(QIODevice::ReadOnly) ? passwd.readAll().split('\n') : QByteArrayList();
    for (const QByteArray &line : lines) {
        const QString name = QString::fromLatin1(line.left(line.indexOf(':')));
        const int pid = name.mid(int(sizeof userPrefix) - 1).chopped(1).toInt();
        if (name.startsWith(userPrefix) && pid > 0 && ::kill(pid, 0) != 0)
            retried("userdel", {name});
    }
}

inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// A user made for one run, "vlmt<pid><letter>", with a home of mode 0700 under `folder`; removed
// with the object.
struct ThrowawayUser
{
    ThrowawayUser(char letter, const QString &folder)
        : name(userPrefix + QString::number(::getpid()) + letter)
        , home(folder + '/' + name)
    {
        retried("useradd", {"-M", "-d", home, "-s", "/bin/sh", name});
        if (const passwd *entry = ::getpwnam(name.toLocal8Bit().constData())) {
            uid = entry->pw_uid, gid = entry->pw_gid;
            makeFolder(home, 0700);
        }
    }
    ~ThrowawayUser()
    {
        if (uid)
            retried("userdel", {name});
    }
    bool makeFolder(const QString &path, mode_t mode) const
    {
        const QByteArray local = QFile::encodeName(path);
        return QDir().mkpath(path) && ::chown(local, uid, gid) == 0 && ::chmod(local, mode) == 0;
    }
    // The desktop session of this user: home, settings, runtime folder, display, spool root.
    QProcessEnvironment session(const QString &display, const QString &spoolRoot) const
    {
        const QStringList values {"PATH", qEnvironmentVariable("PATH"), "HOME", home, "USER", name,
            "LANG", "C.UTF-8", "XDG_CONFIG_HOME", home + "/.config", "XDG_RUNTIME_DIR",
            home + "/run", "VELLUMIO_SPOOL", spoolRoot,
            display.startsWith(':') ? "DISPLAY" : "QT_QPA_PLATFORM", display};
        QProcessEnvironment environment;
        for (qsizetype i = 0; i < values.size(); i += 2)
            environment.insert(values[i], values[i + 1]);
        makeFolder(home + "/run", 0700);
        makeFolder(home + "/.config/Tarnwick", 0700);
        return environment;
    }
    // The user's settings file, as the dialog and the agent find it in this session.
    QString settingsFile() const { return home + "/.config/Tarnwick/Vellumio.conf"; }
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
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
    QByteArray *output = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    startAs(process, user, program, arguments, environment);
    const bool ended = process.waitForFinished(60000);
    if (output)
        *output = process.readAll();
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// Everything in a folder, hidden entries too, by name.
inline QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

// Ghostscript's PDF of a PostScript program, its pages A4 unless `options` say otherwise.
inline bool writePdf(
    const QString &file, const QString &program, const QStringList &options = {"-sPAPERSIZE=a4"})
{
    return runAs(nullptr, "gs",
               QStringList {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite"} + options
                   + QStringList {"-o", file, "-c", program})
        == 0;
}

// The spool root as the installation leaves it: root's, 0711, with the stamp agents wait on.
inline bool makeSpoolRoot(const QString &root)
{
    return QDir().mkpath(root) && ::chmod(QFile::encodeName(root), 0711) == 0
        && writeFile(root + "/folders.stamp", QByteArray());
}

// A scheduler of its own, reached only through its socket: configuration, spool, logs and socket in
// `folder`, the backend given copied into its backend folder with the mode CUPS wants, the
// system's filters linked. Its backends spool into `spoolRoot`.
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

    QString path(const QString &name) const { return dir + '/' + name; }
    QString socket() const { return path("cups.sock"); }

    bool start(const QString &backend, const QString &policyFile)
    {
        for (const char *sub :
            {"conf", "serverbin/backend", "spool", "cache", "state", "log", "tmp"})
            QDir().mkpath(path(sub));
        const QFileInfoList system
            = QDir("/usr/lib/cups").entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : system)
            if (entry.fileName() != "backend")
                QFile::link(entry.filePath(), path("serverbin/") + entry.fileName());
        const QByteArray installed = QFile::encodeName(path("serverbin/backend/vellumio")),
                         temporary = QFile::encodeName(path("tmp"));
        const group *lp = ::getgrnam("lp");
        QFile policy(policyFile);
        if (!QFile::copy(backend, installed) || ::chmod(installed, 0700) != 0 || !lp
            || ::chown(temporary, 0, lp->gr_gid) != 0 || ::chmod(temporary, 01770) != 0
            || !policy.open(QIODevice::ReadOnly))
            return false;
        const QString files
            = QString("ServerRoot %1/conf\nServerBin %1/serverbin\nDataDir /usr/share/cups\n"
                      "RequestRoot %1/spool\nTempDir %1/tmp\nCacheDir %1/cache\nStateDir %1/state\n"
                      "AccessLog %1/log/access_log\nErrorLog %1/log/error_log\n"
                      "PageLog %1/log/page_log\nUser lp\nGroup lp\nSystemGroup root\n"
                      "FileDevice No\nSetEnv VELLUMIO_SPOOL %2\n")
                  .arg(dir, spool);
        const QString conf = "Listen " + socket()
            + "\nBrowsing Off\nDefaultAuthType Basic\nWebInterface No\nLogLevel warn\n"
              "<Location />\n  Order allow,deny\n  Allow localhost\n</Location>\n"
              "<Policy default>\n  <Limit All>\n    Order deny,allow\n  </Limit>\n</Policy>\n";
        if (!writeFile(path("conf/cups-files.conf"), files.toUtf8())
            || !writeFile(path("conf/cupsd.conf"), conf.toUtf8() + policy.readAll()))
            return false;
        startAs(cupsd, nullptr, "cupsd",
            {"-f", "-c", path("conf/cupsd.conf"), "-s", path("conf/cups-files.conf")},
            QProcessEnvironment::systemEnvironment());
        cupsd.waitForStarted();
        for (int tries = 0; tries < 200 && cupsd.state() == QProcess::Running; ++tries) {
            QByteArray answer;
            runAs(nullptr, "lpstat", {"-h", socket(), "-r"},
                QProcessEnvironment::systemEnvironment(), &answer);
            if (answer.contains("is running"))
                return true;
            QThread::msleep(25);
        }
        return false;
    }

    // A queue with the description `ppd` for the project's backend, under its own policy.
    bool addQueue(const QString &ppd, const QString &name = "Vellumio")
    {
        return runAs(nullptr, "lpadmin",
                   {"-h", socket(), "-p", name, "-E", "-v", "vellumio:/", "-P", ppd, "-o",
                       "printer-is-shared=false", "-o", "printer-op-policy=vellumio"})
            == 0;
    }

    QString dir, spool;
    QProcess cupsd;
};

// A virtual X display run by `user`, as their desktop session would be.
inline QString startDisplay(QProcess &xvfb, const ThrowawayUser &user)
{
    startAs(xvfb, &user, "Xvfb",
        {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "1280x1024x24"},
        QProcessEnvironment::systemEnvironment());
    while (xvfb.waitForReadyRead(10000) && !xvfb.canReadLine()) { }
    const QByteArray number = xvfb.readLine().trimmed();
    return number.isEmpty() ? QString() : ':' + QString::fromLatin1(number);
}

} // namespace PrintHarness

#endif // VELLUMIO_TESTS_PRINTHARNESS_H
