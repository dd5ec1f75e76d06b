#include "reliabilityfixture.h"
#include "scriptedprompts.h"

#include <QLineEdit>
#include <QScopeGuard>
#include <QTest>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

// The user key holds the scrambled passwords: its file is for its owner only, also when an older
// file, or the file a link leads to, was readable by others; a link to a device keeps the device.
// And the program only stores the after-print switches: nothing named in the settings is opened.
class tst_Security : public QObject
{
    Q_OBJECT

private slots:
    void userFileMode_data();
    void userFileMode();
    void namedFilesUntouched();
};

void tst_Security::userFileMode_data()
{
    QTest::addColumn<QByteArray>("existing"); // the key before: nothing, a file, a link to one
    QTest::addColumn<bool>("print"); // Print saves everything; Cancel writes only isabort

    QTest::newRow("new file, Print") << QByteArray() << true;
    QTest::newRow("world-readable file, Print") << QByteArray("file") << true;
    QTest::newRow("world-readable file, Cancel") << QByteArray("file") << false;
    QTest::newRow("link to a world-readable file") << QByteArray("link") << true;
    QTest::newRow("link to a device node") << QByteArray("device") << true;
}

void tst_Security::userFileMode()
{
    QFETCH(QByteArray, existing);
    QFETCH(bool, print);
    JobFixture job;
    ::umask(0); // the most open one: nothing is taken away for the program
    const bool linked = existing == "link" || existing == "device";
    const QByteArray key = QFile::encodeName(job.userFile());
    const QByteArray target = linked ? QFile::encodeName(job.path("elsewhere")) : key;
    if (existing == "file" || existing == "link") {
        job.writeFile(QFile::decodeName(target), "format=pdf\n");
        QVERIFY(::chmod(target, 0666) == 0);
    }
    // A private null device in the test's own folder, never a real one.
    if (existing == "device" && ::mknod(target, S_IFCHR | 0666, makedev(1, 3)) != 0)
        QSKIP("making a device node needs root");
    QVERIFY(!linked || (QDir().mkpath(job.path("user/Tarnwick")) && ::symlink(target, key) == 0));

    ScriptedPrompts prompts; // Print and Cancel must close the dialog without asking
    const auto window = job.createWindow(false);
    window->show();
    window->findChild<QLineEdit *>("le_filename")->setText(job.path("Document1"));
    print ? window->pb_print() : window->pb_cancel();
    QVERIFY(!window->isVisible());
    struct stat status = {};
    QVERIFY(::stat(target, &status) == 0);
    QCOMPARE(status.st_mode, existing == "device" ? S_IFCHR | 0666 : S_IFREG | 0600);
    qInfo("key file checked: %s", qPrintable(existing == "device" ? "still the device" : "0600"));
}

// Settings name a script, which leaves a marker when run, in a watched folder named like the
// custom style; inotify sees every open, read or listing while the program runs, prints and ends.
void tst_Security::namedFilesUntouched()
{
    JobFixture job;
    const QByteArray canary = QFile::encodeName(job.path("Windows")), script = canary + "/run.sh";
    job.writeFile(QFile::decodeName(script), "#!/bin/sh\necho ran > '" + canary + "-ran'\n");
    QVERIFY(::chmod(script, 0755) == 0);
    QByteArray ini
        = "load_ext_app=true\nMail_Delivery=true\nFTP_Delivery=true\nBackgroundEnable=true\n";
    const char *const names[] = {"ext_app", "app_path", "ftp_server", "mail_to", "BackgroundImage",
        "style", "pdf_title", "pdf_user_pw", "newfilename"};
    for (const char *name : names)
        ini += name + ('=' + script + '\n');
    job.writeFile(job.userFile(), ini);
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const auto closeWatch = qScopeGuard([watch] { ::close(watch); });
    QVERIFY(watch >= 0 && ::inotify_add_watch(watch, canary, IN_ALL_EVENTS) >= 0);

    QCOMPARE(runProgram(job), QByteArray("closed-by-print\n"));
    alignas(inotify_event) char events[4096];
    QVERIFY2(::read(watch, events, sizeof events) <= 0, "a file named in the settings was opened");
    QVERIFY2(!QFile::exists(QFile::decodeName(canary + "-ran")), "a program named in them ran");
    qInfo("named files: 1 program run, %d values naming a watched script, files opened or run 0",
        int(std::size(names)));
}

QTEST_MAIN(tst_Security)
#include "tst_security.moc"
