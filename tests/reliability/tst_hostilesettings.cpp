#include "reliabilityfixture.h"

#include <QScopeGuard>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

// Settings that no driver would write, and keys that are no file: the program's own run, each in
// a process of its own (a key that read the pipe would wait for ever), must show the dialog, close
// it on Print with every question unanswered, and end with status 0.
class tst_HostileSettings : public QObject
{
    Q_OBJECT

private slots:
    void programPrintsAndExits_data();
    void programPrintsAndExits();
};

// Each row's name says what stands at the key; rows with bytes write them into a file there.
void tst_HostileSettings::programPrintsAndExits_data()
{
    QTest::addColumn<QByteArray>("user");
    const QByteArray mega(1 << 20, 'm');
    QByteArray unknown = "format=png\n";
    for (int i = 0; i < 5000; ++i)
        unknown += "unknown_" + QByteArray::number(i) + "=text\n";
    QTest::newRow("megabyte values and name")
        << "pdf_title=" + mega + "\nPath=" + mega + "\nq_pdf=" + mega + '\n' + mega + "=v\n";
    QTest::newRow("thousands of unknown values") << unknown;
    QTest::newRow("invalid UTF-8")
        << QByteArray("format=\xff\xfe\nPath=\xc3\x28/\xed\xa0\x80/\nnewfilename=\xf8\x88\x80\n"
                      "\xff\xfe=\xc0\xaf\nstyle=Windows\xe2\x82\n");
    QTest::newRow("read-only file") << QByteArray("format=png\n");
    QTest::newRow("read-only folder") << QByteArray("format=png\n");
    QTest::newRow("folder") << QByteArray();
    QTest::newRow("dangling link") << QByteArray();
    QTest::newRow("named pipe") << QByteArray();
}

void tst_HostileSettings::programPrintsAndExits()
{
    QFETCH(QByteArray, user);
    const QByteArray key = QTest::currentDataTag();
    JobFixture job;
    const QByteArray file = QFile::encodeName(job.userFile());
    const QByteArray folder = file.left(file.lastIndexOf('/'));
    QVERIFY(QDir().mkpath(folder));
    if (!user.isEmpty())
        job.writeFile(job.userFile(), user);
    QVERIFY(key != "read-only file" || ::chmod(file, 0400) == 0);
    QVERIFY(key != "read-only folder" || ::chmod(folder, 0500) == 0);
    const auto restore = qScopeGuard([&folder] { ::chmod(folder, 0700); });
    QVERIFY(key != "folder" || QDir().mkdir(file));
    QVERIFY(key != "dangling link" || ::symlink("missing.conf", file) == 0);
    QVERIFY(key != "named pipe" || ::mkfifo(file, 0600) == 0);

    QCOMPARE(runProgram(job), QByteArray("closed-by-print\n"));
    // A key that can be written holds the job's values after all; one that cannot is kept.
    const bool kept = key.startsWith("read-only") && ::geteuid() != 0;
    if (!user.isEmpty())
        QVERIFY(kept ? JobFixture::bytesOf(job.userFile()) == user
                     : JobFixture::valueOf(job.userFile(), "isabort") == "false");
    static int filesTried = 0;
    qInfo("hostile settings: %d files tried, each closed by Print, status 0, findings 0",
        ++filesTried);
}

QTEST_GUILESS_MAIN(tst_HostileSettings)
#include "tst_hostilesettings.moc"
