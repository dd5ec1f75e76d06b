// SPDX-License-Identifier: GPL-3.0-or-later
// The backend and the agent run for real as throwaway users, without a scheduler, with the real
// program as the dialog (a scripted user pressing Print) and the real rendering.
#include "agent/jobrules.h"
#include "settings/passwordscrambling.h"
#include "tests/printing/printharness.h"

#include <QDBusConnection>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/mount.h>

using namespace PrintHarness;

namespace {

// Plays the desktop's notification service on a private session bus and keeps what it is told.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public slots:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
        const QStringList &, const QVariantMap &, int)
    {
        received += summary + ' ' + body;
        return uint(received.size());
    }

public:
    QStringList received;
};

// Processes whose first command-line word is `program`, and every command line seen.
QList<int> processesOf(const QString &program, QStringList *commandLines = nullptr)
{
    QList<int> found;
    const QStringList pids = QDir("/proc").entryList(QDir::Dirs);
    for (const QString &pid : pids) {
        QFile file("/proc/" + pid + "/cmdline");
        const QByteArray line = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (commandLines && !line.isEmpty())
            *commandLines += QString::fromUtf8(line).replace(QChar(0), ' ');
        if (!program.isEmpty() && line.startsWith(program.toUtf8() + '\0'))
            found += pid.toInt();
    }
    return found;
}

// A small file system of its own at `at` when `wanted`, so that a disk fills up; unmounted
// however the test ends.
auto mountSmallDisk(bool wanted, const QString &at, const QString &options)
{
    const QByteArray local = QFile::encodeName(at);
    const bool mounted
        = wanted && ::mount("tmpfs", local, "tmpfs", 0, options.toLatin1().constData()) == 0;
    if (wanted && !mounted)
        QTest::qFail("the small disk could not be mounted", __FILE__, __LINE__);
    return qScopeGuard([local, mounted] {
        if (mounted)
            ::umount(local);
    });
}

} // namespace

class tst_PrintAgent : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (::geteuid() != 0)
            QSKIP("needs root: throwaway users, a backend that drops to them, other users' files");
        removeStaleUsers();
        QVERIFY(m_dir.isValid() && ::chmod(QFile::encodeName(m_dir.path()), 0711) == 0);
        m_ann = std::make_unique<ThrowawayUser>('a', m_dir.path());
        m_bob = std::make_unique<ThrowawayUser>('b', m_dir.path());
        m_out = m_ann->home + "/out";
        QVERIFY(m_ann->uid && m_bob->uid && m_ann->makeFolder(m_out, 0700));
        QVERIFY(QDir().mkpath(path("bin")) && QFile::copy(VELLUMIO_AGENT, agent()));
        QVERIFY(QFile::link(SCRIPTED_FMTASK, path("bin/fmtask")) && makeSpoolRoot(m_spool));
        // The session bus lets every user in: the agent is ann's, the listening service root's.
        QVERIFY(writeFile(path("bus.conf"),
            "<busconfig><type>session</type><listen>unix:path=" + path("bus").toUtf8()
                + "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow user=\"*\"/>"
                  "<allow own=\"*\"/><allow send_destination=\"*\"/><allow receive_sender=\"*\"/>"
                  "</policy></busconfig>"));
        startAs(m_bus, nullptr, "dbus-daemon",
            {"--nofork", "--config-file=" + path("bus.conf"), "--print-address=1"},
            QProcessEnvironment::systemEnvironment());
        QVERIFY(m_bus.waitForReadyRead(10000));
        const QString address = QString::fromUtf8(m_bus.readLine().trimmed());
        QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
        QVERIFY(bus.registerService("org.freedesktop.Notifications"));
        QVERIFY(bus.registerObject(
            "/org/freedesktop/Notifications", &m_notifications, QDBusConnection::ExportAllSlots));
        m_session = m_ann->session("offscreen", m_spool);
        m_session.insert("DBUS_SESSION_BUS_ADDRESS", address);
        m_session.insert("VELLUMIO_DIALOG_LOG", m_ann->home + "/dialog.log");
    }

    void init()
    {
        for (const QString &name : entries(m_out))
            QFile::remove(m_out + '/' + name);
        QDir(m_spool + '/' + QString::number(m_ann->uid)).removeRecursively();
        QFile::remove(m_ann->home + "/dialog.log");
        QFile::remove(m_ann->settingsFile());
        m_ann->writeSettings({{"path", m_out + '/'}, {"format", "pdf"}});
        m_notifications.received.clear();
    }
    void cleanup()
    {
        m_agent.kill();
        m_agent.waitForFinished();
    }

    // A job is never shown to, readable by or written as another user. The row's name says how
    // the spool is prepared before the backend and then the agent meet it.
    void spoolFolders_data()
    {
        QTest::addColumn<int>("backendStatus"); // CUPS's: 0 ok, 1 failed, 5 cancel, 6 retry
        QTest::addColumn<int>("agentStatus"); // 0 done, 1 refused
        QTest::addColumn<int>("shown"); // dialogs the agent showed
        QTest::newRow("own user") << 0 << 0 << 1;
        QTest::newRow("nosuchuser") << 5 << 0 << 0;
        QTest::newRow("daemon") << 5 << 0 << 0;
        QTest::newRow("folder is a link") << 5 << 1 << 0;
        QTest::newRow("folder of another") << 5 << 1 << 0;
        QTest::newRow("folder open to others") << 5 << 1 << 0;
        QTest::newRow("root open to others") << 1 << 1 << 0;
        QTest::newRow("disk full") << 6 << 0 << 0;
    }
    void spoolFolders()
    {
        QFETCH(int, backendStatus);
        QFETCH(int, agentStatus);
        QFETCH(int, shown);
        const QString row = QTest::currentDataTag(), root = path("rows/") + row;
        const QString folder = root + '/' + QString::number(m_ann->uid);
        const QString elsewhere = root + ".elsewhere";
        QVERIFY(QDir().mkpath(root));
        const bool full = row == "disk full";
        const auto unmount = mountSmallDisk(full, root, "size=256k,mode=0711");
        if (row == "root open to others")
            ::chmod(QFile::encodeName(root), 0775);
        QVERIFY(row != "folder is a link"
            || (m_ann->makeFolder(elsewhere, 0700) && QFile::link(elsewhere, folder)));
        QVERIFY(row != "folder of another" || m_bob->makeFolder(folder, 0700));
        QVERIFY(row != "folder open to others" || m_ann->makeFolder(folder, 0755));
        const QString user = row.contains(' ') ? m_ann->name : row;
        const QByteArray document = pdfs({"private"}).value(0).leftJustified(full ? 1 << 20 : 0);
        QCOMPARE(spoolJob(root, user, "private", document), backendStatus);

        const QStringList jobs = entries(folder);
        if (backendStatus == 0) {
            QCOMPARE(jobs.size(), 1);
            const QString job = folder + '/' + jobs.first();
            for (const QString &file : {folder, job, job + "/job.pdf", job + "/job.info"}) {
                struct stat info;
                QVERIFY(::lstat(QFile::encodeName(file), &info) == 0);
                QCOMPARE(info.st_uid, m_ann->uid);
                QCOMPARE(info.st_mode & 0077, 0u);
            }
            QVERIFY(runAs(m_bob.get(), "cat", {job + "/job.pdf"}, m_session) != 0);
        } else {
            QVERIFY(jobs.isEmpty() && entries(elsewhere).isEmpty());
            // The agent must not take a job planted where the backend would refuse to write.
            if (!full && QFileInfo::exists(folder))
                plantJob(QFileInfo(folder).canonicalFilePath());
        }
        QProcessEnvironment session = m_session;
        session.insert("VELLUMIO_SPOOL", root);
        QCOMPARE(runAgent({"--once"}, session), agentStatus);
        QCOMPARE(dialogLog().count("open "), shown);
    }

    // Printed at once, the jobs come one dialog after another, each result from its own job.
    void twentyJobsAtOnce()
    {
        startAgent();
        QList<QByteArray> texts;
        for (int i = 1; i <= 20; ++i)
            texts += "job " + QByteArray::number(i).rightJustified(2, '0');
        const QList<QByteArray> documents = pdfs(texts);
        QProcess backends[20];
        for (int i = 0; i < 20; ++i)
            startBackend(backends[i], m_spool, m_ann->name, texts[i], documents[i]);
        for (QProcess &backend : backends)
            QVERIFY(backend.waitForFinished() && backend.exitCode() == 0);
        QTRY_COMPARE_WITH_TIMEOUT(entries(m_out).size(), 20, 60000);
        for (const QByteArray &text : texts) {
            QByteArray read;
            runAs(nullptr, "pdftotext", {m_out + '/' + text + ".pdf", "-"}, m_session, &read);
            QCOMPARE(read.trimmed(), text);
        }
        const QList<QByteArray> lines = dialogLog().trimmed().split('\n');
        QCOMPARE(lines.size(), 40);
        for (qsizetype i = 0; i + 1 < lines.size(); i += 2)
            QVERIFY2(lines[i].startsWith("open ") && lines[i + 1] == "close" + lines[i].mid(4),
                lines[i + 1].constData());
        QTRY_VERIFY(jobsIn(m_spool).isEmpty());
        QCOMPARE(runAgent({}, m_session), 3); // a second agent leaves the work to the first
        QCOMPARE(m_agent.state(), QProcess::Running);
    }

    // While a dialog is shown, the agent or the dialog is killed, or the user removes the job.
    void interrupted_data()
    {
        QTest::addColumn<bool>("killAgent"); // else the dialog is killed
        QTest::newRow("agent killed: done at the next start") << true;
        QTest::newRow("dialog killed: cancelled, not the previous Print") << false;
        QTest::newRow("job removed: the agent goes on") << false;
    }
    void interrupted()
    {
        QFETCH(bool, killAgent);
        const bool removeJob = QByteArray(QTest::currentDataTag()).startsWith("job removed");
        startAgent();
        QCOMPARE(spoolJob(m_spool, m_ann->name, "printed before", pdfs({"before"}).value(0)), 0);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_out + "/printed before.pdf"), 30000);
        QCOMPARE(spoolJob(m_spool, m_ann->name, "hang", pdfs({"hang"}).value(0)), 0);
        QTRY_VERIFY_WITH_TIMEOUT(dialogLog().contains("open hang"), 30000);
        if (removeJob)
            QVERIFY(QDir(jobsIn(m_spool).value(0)).removeRecursively());
        if (killAgent)
            m_agent.kill(), m_agent.waitForFinished();
        else
            ::kill(processesOf(path("bin/fmtask")).value(0), SIGKILL);
        // The dialog goes with its agent and the job stays, to be shown at the next start; a job
        // whose dialog was killed is dropped as cancelled and the user told, the next one printed.
        QTRY_VERIFY(processesOf(path("bin/fmtask")).isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(jobsIn(m_spool).size(), killAgent ? 1 : 0, 30000);
        if (killAgent)
            startAgent();
        else
            QCOMPARE(spoolJob(m_spool, m_ann->name, "after", pdfs({"after"}).value(0)), 0);
        QTRY_VERIFY_WITH_TIMEOUT(
            QFile::exists(m_out + (killAgent ? "/hang.pdf" : "/after.pdf")), 30000);
        QTRY_COMPARE(
            m_notifications.received.filter("ended unexpectedly").size(), killAgent ? 0 : 1);
        QCOMPARE(QFile::exists(m_out + "/hang.pdf"), killAgent);
    }

    // With the dialog turned off, hostile titles render at once under safe names, side by side,
    // protected: other users can read every command line, and no PDF password is ever on one.
    void hostileTitles()
    {
        const QString password = "Sesame-7761";
        m_ann->writeSettings({{"path", m_out + '/'}, {"format", "pdf"}, {"chDialog", "false"},
            {"pdf_protect", true}, {"pdf_user_pw", scramblePassword(password)},
            {"pdf_owner_pw", scramblePassword(password + "-owner")}});
        const QStringList titles {"../../escape", "-rf --no-preserve-root", "a/b/c", "\x1b[2J", "",
            "\n", QString(10000, 'x'), "..", ".hidden"};
        for (const QString &title : titles)
            QCOMPARE(spoolJob(m_spool, m_ann->name, title, pdfs({"hostile"}).value(0)), 0);
        const QStringList homeBefore = entries(m_ann->home);
        startAgent({"--once"});
        QStringList seen;
        while (m_agent.state() != QProcess::NotRunning) {
            processesOf(QString(), &seen);
            QCoreApplication::processEvents();
        }
        QCOMPARE(m_agent.exitCode(), 0);
        QVERIFY(dialogLog().isEmpty());
        QCOMPARE(entries(m_ann->home), homeBefore);
        QVERIFY(!QFile::exists(path("escape.pdf")));
        const QStringList made = entries(m_out);
        QCOMPARE(made.filter(QRegularExpression("\\.pdf$")).size(), titles.size());
        for (const QString &title : titles) {
            const QString name = JobRules::safeFileName(title);
            QVERIFY2(std::any_of(made.begin(), made.end(),
                         [&](const QString &file) { return file.startsWith(name); }),
                qPrintable(name));
        }
        QVERIFY(!seen.filter("qpdf").isEmpty());
        QVERIFY(seen.filter(password).isEmpty());
        QByteArray info;
        QVERIFY(runAs(nullptr, "pdfinfo", {m_out + '/' + made.value(0)}, m_session, &info) != 0);
        QVERIFY(info.contains("Incorrect password"));
    }

    // What goes wrong with the first of two jobs (the row's name): the user is told, the job kept
    // aside to be retried.
    void failures_data()
    {
        QTest::addColumn<QString>("told"); // part of the notification
        QTest::addColumn<bool>("nextPrinted"); // the job after it
        QTest::newRow("damaged document") << "could not print" << true;
        QTest::newRow("incomplete job") << "incomplete" << true;
        QTest::newRow("folder gone") << "could not print" << false;
        QTest::newRow("disk full") << "could not print" << true;
        QTest::newRow("dialog missing") << "cannot be started" << false;
    }
    void failures()
    {
        QFETCH(QString, told);
        QFETCH(bool, nextPrinted);
        const QString fault = QTest::currentDataTag();
        const QString out = m_out + (fault == "folder gone" ? "/gone" : "");
        const auto unmount = mountSmallDisk(
            fault == "disk full", m_out, "size=512k,mode=0700,uid=" + QString::number(m_ann->uid));
        if (fault != "dialog missing")
            m_ann->writeSettings({{"path", out + '/'}, {"format", "bmp"}, {"image_color", "24"},
                {"chDialog", "false"}});
        else
            QFile::rename(path("bin/fmtask"), path("bin/fmtask.away"));
        // An A4 page at 300 dpi in 24-bit BMP is 26 MB; a one-inch page 270 kB.
        const QByteArray document
            = fault == "damaged document" ? "%PDF-1.4\nnot really" : pdfs({"first"}).value(0);
        QCOMPARE(spoolJob(m_spool, m_ann->name, "first", document), 0);
        if (fault == "incomplete job")
            QVERIFY(QFile(QDir(jobsIn(m_spool).value(0)).filePath("job.pdf")).resize(100));
        QCOMPARE(spoolJob(m_spool, m_ann->name, "next", pdfs({"next"}, 72).value(0)), 0);
        QCOMPARE(runAgent({"--once"}, m_session), 0);
        QFile::rename(path("bin/fmtask.away"), path("bin/fmtask"));
        const QString failed = m_spool + '/' + QString::number(m_ann->uid) + "/failed";
        QVERIFY2(!m_notifications.received.filter(told).isEmpty(),
            qPrintable(m_notifications.received.join('\n')));
        QCOMPARE(entries(m_out), nextPrinted ? QStringList {"next.bmp"} : QStringList());
        QCOMPARE(entries(failed).size(), nextPrinted ? 1 : 2);
        QCOMPARE(runAgent({"--retry"}, m_session), 0);
        QVERIFY(entries(failed).isEmpty());
        QCOMPARE(jobsIn(m_spool).size(), nextPrinted ? 1 : 2);
    }

    void cleanupTestCase()
    {
        m_bus.kill();
        m_bus.waitForFinished();
    }

private:
    QString path(const QString &relative) const { return m_dir.filePath(relative); }
    QString agent() const { return path("bin/vellumio-agent"); }

    // A process just started to its end, answering notifications meanwhile: its exit status, -1
    // when it did not end normally.
    static int statusOf(QProcess &process)
    {
        QSignalSpy ended(&process, &QProcess::finished);
        return ended.wait(120000) && process.exitStatus() == QProcess::NormalExit
            ? process.exitCode()
            : -1;
    }

    int runAgent(const QStringList &arguments, const QProcessEnvironment &session)
    {
        QProcess process;
        startAs(process, m_ann.get(), agent(), arguments, session);
        return statusOf(process);
    }

    void startAgent(const QStringList &arguments = {})
    {
        m_agent.setProcessChannelMode(QProcess::ForwardedChannels);
        startAs(m_agent, m_ann.get(), agent(), arguments, m_session);
        QVERIFY(m_agent.waitForStarted());
    }

    // As the scheduler starts it: as root, the document as a file.
    void startBackend(QProcess &backend, const QString &root, const QString &user,
        const QString &title, const QByteArray &document)
    {
        const QString file = path("document") + QString::number(++m_jobId);
        writeFile(file, document);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("VELLUMIO_SPOOL", root);
        startAs(backend, nullptr, VELLUMIO_BACKEND,
            {QString::number(m_jobId), user, title, "1", "", file}, environment);
    }

    int spoolJob(
        const QString &root, const QString &user, const QString &title, const QByteArray &document)
    {
        QProcess backend;
        startBackend(backend, root, user, title, document);
        return statusOf(backend);
    }

    // A whole job put into a folder by hand, owned as the folder is.
    void plantJob(const QString &folder)
    {
        const QString job = folder + "/00000000000000000001-1";
        QDir().mkpath(job);
        const QByteArray document = pdfs({"planted"}).value(0);
        writeFile(job + "/job.pdf", document);
        writeFile(job + "/job.info",
            "vellumio-job 1\njob-id=1\nuser=x\ntitle=planted\ncopies=1\noptions=\ntime=1\nsize="
                + QByteArray::number(document.size()) + '\n');
        struct stat info;
        ::stat(QFile::encodeName(folder), &info);
        for (const QString &file : {job, job + "/job.pdf", job + "/job.info"})
            ::chown(QFile::encodeName(file), info.st_uid, info.st_gid);
    }

    QStringList jobsIn(const QString &root) const
    {
        const QString folder = root + '/' + QString::number(m_ann->uid) + '/';
        QStringList jobs = entries(folder).replaceInStrings(QRegularExpression("^"), folder);
        jobs.removeOne(folder + "failed");
        return jobs;
    }

    QByteArray dialogLog() const
    {
        QFile log(m_ann->home + "/dialog.log");
        return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }

    // One PDF per text, its page showing it; `points` wide and high, A4 when 0.
    QList<QByteArray> pdfs(const QList<QByteArray> &texts, int points = 0)
    {
        QByteArray program = "/Helvetica findfont 24 scalefont setfont ";
        for (const QByteArray &text : texts)
            program += "10 20 moveto (" + text + ") show showpage ";
        if (!writePdf(path("page%d.pdf"), QString::fromUtf8(program),
                {"-dFIXEDMEDIA", "-dDEVICEWIDTHPOINTS=" + QString::number(points ? points : 595),
                    "-dDEVICEHEIGHTPOINTS=" + QString::number(points ? points : 842)}))
            return {};
        QList<QByteArray> made;
        for (int i = 1; i <= texts.size(); ++i) {
            QFile page(path("page") + QString::number(i) + ".pdf");
            made += page.open(QIODevice::ReadOnly) ? page.readAll() : QByteArray();
        }
        return made;
    }

    QTemporaryDir m_dir;
    std::unique_ptr<ThrowawayUser> m_ann, m_bob;
    QString m_spool = path("spool");
    QString m_out;
    QProcess m_bus, m_agent;
    QProcessEnvironment m_session;
    NotificationService m_notifications;
    int m_jobId = 0;
};

QTEST_GUILESS_MAIN(tst_PrintAgent)
#include "tst_printagent.moc"
