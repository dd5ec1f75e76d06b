#include "reliabilityfixture.h"

#include "jobsettings.h"
#include "mainwindow.h"
#include "prompts.h"

#include <QDirIterator>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

// The user key holds the scrambled passwords: its file is for its owner only, also when an older
// file was readable by others. And the program only stores the after-print switches: nothing
// named in the settings is ever opened or run.
class tst_Security : public QObject
{
    Q_OBJECT

private slots:
    void userFileMode_data();
    void userFileMode();
    void namedFilesUntouched_data();
    void namedFilesUntouched();
    void linkedKeyTarget_data();
    void linkedKeyTarget();
    void cleanupTestCase();

private:
    int filesChecked = 0;
    int canaryRuns = 0;
    int linkedKeys = 0;
};

namespace {

class YesPrompts : public Prompts
{
public:
    QMessageBox::StandardButton message(
        QWidget *, const QString &, const QString &, QMessageBox::StandardButtons) override
    {
        return QMessageBox::Yes;
    }
    QString saveFileName(
        QWidget *, const QString &, const QString &, const QString &, QString *) override
    {
        return QString();
    }
};

} // namespace

void tst_Security::userFileMode_data()
{
    QTest::addColumn<int>("existingMode"); // mode of the file before the job, -1 for no file
    QTest::addColumn<int>("mask"); // the process's umask
    QTest::addColumn<bool>("print"); // Print saves everything; otherwise Cancel writes isabort

    QTest::newRow("new file, usual umask, Print") << -1 << 022 << true;
    QTest::newRow("new file, open umask, Cancel") << -1 << 0 << false;
    QTest::newRow("world-readable file, Print") << 0644 << 022 << true;
    QTest::newRow("world-writable file, Cancel") << 0666 << 0 << false;
    QTest::newRow("group-readable file, Print") << 0640 << 022 << true;
    QTest::newRow("readable by others only, Print") << 0604 << 022 << true;
}

void tst_Security::userFileMode()
{
    QFETCH(int, existingMode);
    QFETCH(int, mask);
    QFETCH(bool, print);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, fixture.path("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, fixture.path("machine"));
    QDir(fixture.userFolder()).removeRecursively();
    if (existingMode >= 0) {
        QDir().mkpath(fixture.userFolder());
        QVERIFY(ReliabilityFixture::writeFile(fixture.userFile(), "format=pdf\n"));
        QVERIFY(
            ::chmod(QFile::encodeName(fixture.userFile()).constData(), mode_t(existingMode)) == 0);
    }

    const mode_t previousMask = ::umask(mode_t(mask));
    const auto restoreMask = qScopeGuard([previousMask] { ::umask(previousMask); });
    JobSettings &job = jobSettings();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document1");
    job.pdf.userPassword = QStringLiteral("Kestrel9");
    MainWindow window;
    window.show();
    window.findChild<QLineEdit *>(QStringLiteral("le_filename"))
        ->setText(fixture.outputFolder() + QStringLiteral("/Document1"));
    YesPrompts prompts;
    Prompts::install(&prompts);
    if (print)
        window.pb_print();
    else
        window.pb_cancel();
    Prompts::install(nullptr);
    QVERIFY(!window.isVisible());

    QCOMPARE(ReliabilityFixture::modeOf(fixture.userFile()), 0600);
    QDirIterator files(fixture.userFolder(), QDir::Files | QDir::Hidden | QDir::System);
    while (files.hasNext()) {
        const QString file = files.next();
        ++filesChecked;
        if (!file.endsWith(QLatin1String(".lock")))
            QCOMPARE(ReliabilityFixture::modeOf(file), 0600);
    }
    // Print's write test leaves nothing behind in the output folder.
    QVERIFY(QDir(fixture.outputFolder())
                .isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System));
}

void tst_Security::namedFilesUntouched_data()
{
    QTest::addColumn<QByteArray>("settings"); // "@CANARY@" stands for the watched folder

    QTest::newRow("after-print switches on, programs in other values")
        << QByteArray("load_ext_app=true\nMail_Delivery=true\nTCP_Delivery=true\n"
                      "FTP_Delivery=true\nEnabledBackgroundText=true\nBackgroundEnable=true\n"
                      "ext_app=@CANARY@/run.sh\napp_path=@CANARY@/run.sh\n"
                      "BackgroundImage=@CANARY@/document.txt\nftp_server=@CANARY@/run.sh\n"
                      "mail_to=@CANARY@/document.txt\n");
    QTest::newRow("style named by a path") << QByteArray("style=@CANARY@/run.sh\n");
    QTest::newRow("style named by a path with the custom style's word")
        << QByteArray("style=@CANARY@/Windows/run.sh\n");
    QTest::newRow("document information, passwords and names")
        << QByteArray("format=pdf\npdf_title=@CANARY@/document.txt\npdf_creator=@CANARY@/run.sh\n"
                      "pdf_user_pw=@CANARY@/run.sh\nprotect_swf=@CANARY@/run.sh\n"
                      "newfilename=@CANARY@/run.sh\ncustom_number=@CANARY@\n"
                      "chDialog=@CANARY@/run.sh\nisabort=@CANARY@/run.sh\n");
}

// The watched folder holds a script that leaves a marker when run and a document; inotify sees
// every open, read or listing of them while the program runs with settings that name them.
void tst_Security::namedFilesUntouched()
{
    QFETCH(QByteArray, settings);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    const QString canary = fixture.path(QStringLiteral("canary"));
    const QString marker = fixture.path(QStringLiteral("ran"));
    QVERIFY(QDir().mkpath(canary + QStringLiteral("/Windows")));
    QVERIFY(ReliabilityFixture::writeFile(
        canary + QStringLiteral("/run.sh"), "#!/bin/sh\necho ran > '" + marker.toUtf8() + "'\n"));
    QVERIFY(::chmod(QFile::encodeName(canary + QStringLiteral("/run.sh")).constData(), 0755) == 0);
    QVERIFY(QFile::copy(
        canary + QStringLiteral("/run.sh"), canary + QStringLiteral("/Windows/run.sh")));
    QVERIFY(ReliabilityFixture::writeFile(canary + QStringLiteral("/document.txt"), "text\n"));
    settings.replace("@CANARY@", canary.toUtf8());
    settings += "Path=" + fixture.outputFolder().toUtf8() + "/\n";
    QVERIFY(ReliabilityFixture::writeFile(fixture.userFile(), settings));

    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QVERIFY(watch >= 0);
    const auto closeWatch = qScopeGuard([watch] { ::close(watch); });
    for (const QString &folder : {canary, canary + QStringLiteral("/Windows")})
        QVERIFY(
            ::inotify_add_watch(watch, QFile::encodeName(folder).constData(), IN_ALL_EVENTS) >= 0);

    QProcess program;
    fixture.prepare(&program);
    program.setArguments({QStringLiteral("run"), QStringLiteral("Document1")});
    program.start();
    QVERIFY(program.waitForFinished(60000));
    ++canaryRuns;
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(program.readAllStandardOutput().contains("closed-by-print"));

    alignas(inotify_event) char events[4096];
    const ssize_t length = ::read(watch, events, sizeof events);
    QVERIFY2(length <= 0, "the program touched a file named in its settings");
    QVERIFY2(!QFile::exists(marker), "the program ran a program named in its settings");
}

void tst_Security::linkedKeyTarget_data()
{
    QTest::addColumn<bool>("device"); // the link points to a device node, else to a 0644 file

    QTest::newRow("key linked to a world-readable file") << false;
    QTest::newRow("key linked to a device node") << true;
}

// A key file kept elsewhere through a link is the user's choice and is followed; but the save
// must neither leave the passwords readable by others nor turn something that is not a file
// into one. The device node is a private copy of the null device in the test's own folder.
void tst_Security::linkedKeyTarget()
{
    QFETCH(bool, device);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    const QString target = fixture.path(QStringLiteral("elsewhere"));
    const QByteArray targetName = QFile::encodeName(target);
    if (device) {
        if (::mknod(targetName.constData(), S_IFCHR | 0666, makedev(1, 3)) != 0)
            QSKIP("making a device node needs root");
    } else {
        QVERIFY(ReliabilityFixture::writeFile(target, "format=pdf\n"));
        QVERIFY(::chmod(targetName.constData(), 0644) == 0);
    }
    QVERIFY(
        ::symlink(targetName.constData(), QFile::encodeName(fixture.userFile()).constData()) == 0);

    QProcess program;
    fixture.prepare(&program);
    program.setArguments({QStringLiteral("run"), QStringLiteral("Document1")});
    program.start();
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitCode(), 0);
    ++linkedKeys;

    struct stat status
    {
    };
    QVERIFY(::stat(targetName.constData(), &status) == 0);
    if (device) {
        QVERIFY(S_ISCHR(status.st_mode));
    } else {
        QVERIFY(S_ISREG(status.st_mode));
        QCOMPARE(int(status.st_mode & 07777), 0600);
    }
}

void tst_Security::cleanupTestCase()
{
    qInfo("security: %d key files checked for mode 0600, %d runs with settings naming watched "
          "files, files opened or run 0, %d runs with a linked key",
        filesChecked, canaryRuns, linkedKeys);
}

QTEST_MAIN(tst_Security)
#include "tst_security.moc"
