// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jobfixture.h"

#include <QDeadlineTimer>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <pwd.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

// Root reads and writes regardless, so where the test runs as root (as in CI) the rows about
// permissions run the program as nobody: the job's folder is handed over and a copy of the program
// in it started with setpriv.
bool switching()
{
    return ::geteuid() == 0;
}

bool handOver(const QString &folder)
{
    const passwd *nobody = ::getpwnam("nobody");
    if (!switching() || !nobody || QStandardPaths::findExecutable("setpriv").isEmpty())
        return !switching();
    bool handed = ::chown(QFile::encodeName(folder), nobody->pw_uid, nobody->pw_gid) == 0;
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
        QDirIterator::Subdirectories);
    while (handed && it.hasNext())
        handed = ::lchown(QFile::encodeName(it.next()), nobody->pw_uid, nobody->pw_gid) == 0;
    return handed && QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ExeOther);
}

// Starts the program with the job's keys, its output going into the job's temporary folder.
void startProgram(QProcess &process, const JobFixture &job, const QStringList &arguments,
    bool unprivileged = false)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", job.path("user"));
    environment.insert("XDG_CONFIG_DIRS", job.path("machine"));
    environment.insert("FMTASK_OUTPUT_FOLDER", job.dir.path());
    process.setProcessEnvironment(environment);
    const QString copy = job.path("fmtask");
    if (!unprivileged || !switching())
        process.start(SCRIPTED_FMTASK, arguments);
    else if (QFile::copy(SCRIPTED_FMTASK, copy) && handOver(job.dir.path()))
        process.start("setpriv",
            QStringList {"--reuid=nobody", "--regid=nogroup", "--clear-groups", copy} + arguments);
}

// The program's own run, Print pressed once the dialog shows: its output, "FAILED " first unless
// it ended by itself with status 0.
QByteArray runProgram(const JobFixture &job, bool unprivileged = false)
{
    QProcess program;
    startProgram(program, job, {"Document1"}, unprivileged);
    if (!program.waitForFinished(30000))
        program.kill(), program.waitForFinished();
    const bool ended = program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0;
    return (ended ? "" : "FAILED ") + program.readAllStandardOutput();
}

// The save that wrote the key file's tagged values ("w<writer>r<round>"), or an empty text when
// the file does not parse or a value is not whole (cut short, spliced) or from another save.
QString saveIn(const QString &file, int filler)
{
    const QSettings settings(file, QSettings::IniFormat);
    const QString tag = settings.value("pdf_title").toString().section(':', 0, 0);
    const QString whole = tag + ':' + QString(filler, 'x') + ':' + tag;
    for (const char *name : {"pdf_title", "pdf_author", "pdf_keywords"})
        if (settings.value(name).toString() != whole)
            return QString();
    const bool parsed = settings.status() == QSettings::NoError;
    return parsed && settings.value("isabort").toString() == "false" ? tag : QString();
}

QStringList saving(int writer, int rounds, int filler)
{
    return {"--save", QString::number(writer), QString::number(rounds), QString::number(filler)};
}

} // namespace

// Each test prints its figures for CI's log.
class tst_Reliability : public QObject
{
    Q_OBJECT

private slots:
    // Processes saving to one user key at once, or killed in the middle of a save: the file always
    // parses, and every value in it comes whole from one save.
    void concurrentWriters()
    {
        const int processes = 4, rounds = 20, filler = 64 * 1024;
        JobFixture job;
        QProcess writers[processes];
        for (int writer = 0; writer < processes; ++writer)
            startProgram(writers[writer], job, saving(writer, rounds, filler));
        // Read while they save, as the driver might; empty only before the first save lands.
        int reads = 0;
        for (bool running = true; running;) {
            running = false;
            for (QProcess &writer : writers)
                running |= !writer.waitForFinished(1) && writer.state() != QProcess::NotRunning;
            if (!reads && QFileInfo(job.userFile()).size() == 0)
                continue;
            ++reads;
            QVERIFY2(!saveIn(job.userFile(), filler).isEmpty(), "a torn file while saving");
        }
        for (QProcess &writer : writers)
            QVERIFY(writer.exitStatus() == QProcess::NormalExit && writer.exitCode() == 0);
        qInfo("concurrent saves: %d processes x %d rounds of %d characters, %d reads, findings 0",
            processes, rounds, filler, reads);
    }

    // Each saver is killed once its second save writes into the key's folder (its lock aside), a
    // little later each time: from the first bytes written to past the end of the writing.
    void killedDuringSave()
    {
        const int kills = 20, filler = 1024 * 1024;
        JobFixture job;
        const QByteArray folder = QFile::encodeName(job.path("user/Tarnwick"));
        int killedMidSave = 0;
        for (int writer = 0; writer < kills; ++writer) {
            QProcess saver;
            startProgram(saver, job, saving(writer, 0, filler));
            QByteArray said;
            while (!said.contains("writing 1") && saver.waitForReadyRead(30000))
                said += saver.readAllStandardOutput();
            const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
            QVERIFY(::inotify_add_watch(watch, folder, IN_MODIFY) >= 0);
            alignas(inotify_event) char events[4096];
            QDeadlineTimer deadline(30000);
            for (bool writing = false; !writing && !deadline.hasExpired();) {
                const auto *event = reinterpret_cast<const inotify_event *>(events);
                for (ssize_t length = ::read(watch, events, sizeof events); length > 0;) {
                    writing |= !QByteArray(event->name).endsWith(".lock");
                    length -= sizeof(inotify_event) + event->len;
                    event = reinterpret_cast<const inotify_event *>(event->name + event->len);
                }
            }
            ::close(watch);
            ::usleep(3000 * writer);
            saver.kill();
            QVERIFY(saver.waitForFinished(30000));
            said += saver.readAllStandardOutput();
            killedMidSave += said.trimmed().split('\n').last().startsWith("writing");
            QVERIFY2(!saveIn(job.userFile(), filler).isEmpty(), "a killed save tore the file");
        }
        qInfo("killed saves: %d killed with SIGKILL, %d while saving, torn files 0", kills,
            killedMidSave);
    }

    // Whatever stands at the user key (the row's name; its bytes written into a file there), the
    // program's own run shows the dialog, closes it on Print and ends with status 0. The key holds
    // the scrambled passwords: with the most open umask, the file it is or links to ends up for its
    // owner only; a link to a device keeps the device.
    void programPrintsAndExits_data()
    {
        QTest::addColumn<QByteArray>("user");
        QTest::addColumn<uint>("mode"); // of the key's file afterwards; 0: not checked
        QTest::addColumn<bool>("unprivileged"); // run as nobody: the key is kept as it was
        const auto row = [](const char *key, const QByteArray &user, uint mode = 0,
                             bool unprivileged = false) {
            QTest::newRow(key) << user << mode << unprivileged;
        };
        const uint owner = S_IFREG | 0600;
        const QByteArray mega(1 << 20, 'm');
        QByteArray unknown = "format=png\n";
        for (int i = 0; i < 5000; ++i)
            unknown += "unknown_" + QByteArray::number(i) + "=text\n";
        row("megabyte values and name",
            "pdf_title=" + mega + "\nPath=" + mega + "\nq_pdf=" + mega + '\n' + mega + "=v\n",
            owner);
        row("thousands of unknown values", unknown, owner);
        row("invalid UTF-8",
            "format=\xff\xfe\nPath=\xc3\x28/\xed\xa0\x80/\nnewfilename=\xf8\x88\x80\n"
            "\xff\xfe=\xc0\xaf\nstyle=Windows\xe2\x82\n",
            owner);
        row("read-only file", "format=png\n", 0, true);
        row("read-only folder", "format=png\n", 0, true);
        row("unreadable file", "q_jpg=4\n", 0, true);
        row("folder", {});
        row("dangling link", {});
        row("named pipe", {});
        row("no file yet", {}, owner);
        row("link to a world-readable file", "format=pdf\n", owner);
        row("link to a device node", {}, S_IFCHR | 0666);
    }

    void programPrintsAndExits()
    {
        QFETCH(QByteArray, user);
        QFETCH(uint, mode);
        QFETCH(bool, unprivileged);
        const QByteArray key = QTest::currentDataTag();
        JobFixture job;
        ::umask(0);
        const QByteArray file = QFile::encodeName(job.userFile()),
                         folder = file.left(file.lastIndexOf('/'));
        const QByteArray target
            = key.startsWith("link") ? QFile::encodeName(job.path("elsewhere")) : file;
        QVERIFY(QDir().mkpath(folder));
        if (!user.isEmpty())
            job.writeFile(QFile::decodeName(target), user);
        QVERIFY(key != "read-only file" || ::chmod(file, 0400) == 0);
        QVERIFY(key != "read-only folder" || ::chmod(folder, 0500) == 0);
        QVERIFY(key != "unreadable file" || ::chmod(file, 0200) == 0);
        const auto restore = qScopeGuard([&folder] { ::chmod(folder, 0700); });
        QVERIFY(key != "folder" || QDir().mkdir(file));
        QVERIFY(key != "dangling link" || ::symlink("missing.conf", file) == 0);
        QVERIFY(key != "named pipe" || ::mkfifo(file, 0600) == 0);
        if (key.endsWith("device node") && ::mknod(target, S_IFCHR | 0666, makedev(1, 3)) != 0)
            QSKIP("making a device node needs root");
        QVERIFY(target == file || ::symlink(target, file) == 0);

        QCOMPARE(runProgram(job, unprivileged), QByteArray("closed-by-print\n"));
        if (!user.isEmpty())
            QVERIFY(unprivileged ? JobFixture::bytesOf(job.userFile()) == user
                                 : JobFixture::valueOf(job.userFile(), "isabort") == "false");
        struct stat status = {};
        QVERIFY(!mode || ::stat(target, &status) == 0);
        QCOMPARE(status.st_mode, mode);
        static int tried = 0, checked = 0;
        qInfo("settings keys: %d tried, closed by Print, status 0, %d checked for 0600; \"%s\" ran "
              "as %s",
            ++tried, checked += mode != 0, key.constData(),
            unprivileged && switching() ? "nobody" : ::getpwuid(::geteuid())->pw_name);
    }

    // Settings name a script that leaves a marker when run, in a watched folder named like the
    // custom style: nothing opens, lists or runs it while the program runs, prints and ends.
    void namedFilesUntouched()
    {
        JobFixture job;
        const QByteArray canary = QFile::encodeName(job.path("Windows")),
                         script = canary + "/run.sh";
        job.writeFile(QFile::decodeName(script), "#!/bin/sh\necho ran > '" + canary + "-ran'\n");
        QVERIFY(::chmod(script, 0755) == 0);
        QByteArray ini
            = "load_ext_app=true\nMail_Delivery=true\nFTP_Delivery=true\nBackgroundEnable=true\n";
        const char *const names[] = {"ext_app", "app_path", "ftp_server", "mail_to",
            "BackgroundImage", "style", "pdf_title", "pdf_user_pw", "newfilename"};
        for (const char *name : names)
            ini += name + ('=' + script + '\n');
        job.writeFile(job.userFile(), ini);
        const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        const auto closeWatch = qScopeGuard([watch] { ::close(watch); });
        QVERIFY(watch >= 0 && ::inotify_add_watch(watch, canary, IN_ALL_EVENTS) >= 0);

        QCOMPARE(runProgram(job), QByteArray("closed-by-print\n"));
        alignas(inotify_event) char events[4096];
        QVERIFY2(
            ::read(watch, events, sizeof events) <= 0, "a file named in the settings was opened");
        QVERIFY2(!QFile::exists(QFile::decodeName(canary + "-ran")), "a program named in them ran");
        qInfo("named files: 1 run, %d values naming a watched script, opened or run 0",
            int(std::size(names)));
    }
};

QTEST_GUILESS_MAIN(tst_Reliability)
#include "tst_reliability.moc"
