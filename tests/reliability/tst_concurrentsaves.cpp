#include "reliabilityfixture.h"
#include "taggedvalue.h"

#include "passwordscrambling.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>

#include <memory>
#include <vector>

// Several processes saving to one user key, processes killed in the middle of a save, and a
// save that runs out of disk space: the file must always parse, and every value in it must come
// whole from one save.
class tst_ConcurrentSaves : public QObject
{
    Q_OBJECT

private slots:
    void concurrentWriters_data();
    void concurrentWriters();
    void killedDuringSave();
    void fullDisk_data();
    void fullDisk();

private:
    // What a check of the settings file found: the tags of its values (empty when one was torn).
    struct FileCheck
    {
        bool parsed = false;
        QStringList tags;
    };
    static FileCheck checkFile(const QString &fileName, int filler);
    static bool runSaver(const ReliabilityFixture &fixture, const QStringList &arguments);
};

namespace {

const char *const taggedNames[] = {"pdf_title", "pdf_author", "pdf_keywords"};

} // namespace

tst_ConcurrentSaves::FileCheck tst_ConcurrentSaves::checkFile(const QString &fileName, int filler)
{
    FileCheck check;
    QSettings settings(fileName, QSettings::IniFormat);
    check.parsed = settings.status() == QSettings::NoError
        && settings.value(QStringLiteral("isabort")).toString() == QLatin1String("false");
    for (const char *name : taggedNames)
        check.tags << TaggedValue::tagOf(settings.value(QLatin1String(name)).toString(), filler);
    // The file name and the password are written from the same tag by the same save.
    static const QRegularExpression bareTag(QStringLiteral("^w\\d+r\\d+$"));
    const QString fileTag = settings.value(QStringLiteral("newfilename")).toString();
    check.tags << (bareTag.match(fileTag).hasMatch() ? fileTag : QString());
    const QString password
        = unscramblePassword(settings.value(QStringLiteral("pdf_user_pw")).toString());
    check.tags << (bareTag.match(password).hasMatch() ? password : QString());
    return check;
}

bool tst_ConcurrentSaves::runSaver(const ReliabilityFixture &fixture, const QStringList &arguments)
{
    QProcess saver;
    fixture.prepare(&saver);
    saver.setArguments(arguments);
    saver.start();
    return saver.waitForFinished(60000) && saver.exitStatus() == QProcess::NormalExit
        && saver.exitCode() == 0;
}

void tst_ConcurrentSaves::concurrentWriters_data()
{
    QTest::addColumn<int>("processes"); // writers started at once
    QTest::addColumn<int>("rounds"); // saves by each writer, one new window each
    QTest::addColumn<int>("filler"); // length of each tagged value's filler

    QTest::newRow("four writers, short values") << 4 << 25 << 16;
    QTest::newRow("three writers, 256 KiB values") << 3 << 8 << 256 * 1024;
}

void tst_ConcurrentSaves::concurrentWriters()
{
    QFETCH(int, processes);
    QFETCH(int, rounds);
    QFETCH(int, filler);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());

    std::vector<std::unique_ptr<QProcess>> writers;
    for (int writer = 0; writer < processes; ++writer) {
        writers.push_back(std::make_unique<QProcess>());
        fixture.prepare(writers.back().get());
        writers.back()->setArguments({QStringLiteral("save"), QString::number(writer),
            QString::number(rounds), QString::number(filler), fixture.outputFolder()});
        writers.back()->start();
    }
    const auto stopWriters = qScopeGuard([&writers] {
        for (const auto &writer : writers) {
            writer->kill();
            writer->waitForFinished();
        }
    });

    // Read the file while the writers save, as the driver might. The key file is created empty,
    // owner-only, before the first save lands; after that it must never be empty again.
    int reads = 0;
    bool saved = false;
    for (bool running = true; running;) {
        running = false;
        for (const auto &writer : writers) {
            writer->waitForFinished(1);
            running = running || writer->state() != QProcess::NotRunning;
        }
        const QFileInfo info(fixture.userFile());
        if (!info.exists() || (!saved && info.size() == 0))
            continue;
        saved = true;
        const FileCheck check = checkFile(fixture.userFile(), filler);
        ++reads;
        QVERIFY2(check.parsed, "the settings file did not parse while saving");
        QVERIFY2(!check.tags.contains(QString()), "a value was torn while saving");
    }
    for (const auto &writer : writers) {
        QCOMPARE(writer->exitStatus(), QProcess::NormalExit);
        QCOMPARE(writer->exitCode(), 0);
    }

    const FileCheck last = checkFile(fixture.userFile(), filler);
    QVERIFY(last.parsed);
    QVERIFY2(!last.tags.contains(QString()), qPrintable(last.tags.join(QLatin1Char(' '))));
    qInfo("concurrent saves: %d processes x %d rounds = %d saves of %d-character values, "
          "%d reads while saving, findings 0",
        processes, rounds, processes * rounds, filler, reads);
}

void tst_ConcurrentSaves::killedDuringSave()
{
    const int kills = 12;
    const int filler = 1024 * 1024;
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    QVERIFY(runSaver(fixture,
        {QStringLiteral("save"), QStringLiteral("0"), QStringLiteral("1"), QString::number(filler),
            fixture.outputFolder()}));

    // A fixed seed keeps the kill moments the same from run to run.
    QRandomGenerator random(20261123);
    int killedMidSave = 0;
    for (int writer = 1; writer <= kills; ++writer) {
        QProcess saver;
        fixture.prepare(&saver);
        saver.setArguments({QStringLiteral("loop"), QString::number(writer),
            QString::number(filler), fixture.outputFolder()});
        saver.start();
        // Time the first save, then kill at a moment spread over the second one.
        QByteArray output;
        const auto waitFor = [&saver, &output](const char *line) {
            while (!output.contains(line) && saver.waitForReadyRead(30000))
                output += saver.readAllStandardOutput();
        };
        QElapsedTimer save;
        waitFor("writing 0");
        save.start();
        waitFor("saved 0");
        const qint64 saveMilliseconds = save.elapsed();
        waitFor("writing 1");
        QTest::qSleep(int(random.bounded(saveMilliseconds + 1)));
        saver.kill();
        QVERIFY(saver.waitForFinished(30000));
        output += saver.readAllStandardOutput();
        const QList<QByteArray> lines = output.trimmed().split('\n');
        const bool interrupted = lines.last().startsWith("writing");
        if (interrupted)
            ++killedMidSave;

        const FileCheck check = checkFile(fixture.userFile(), filler);
        QVERIFY2(check.parsed, "a killed save left a file that does not parse");
        QVERIFY2(!check.tags.contains(QString()), "a killed save left a torn value");
        // Old file or new file: every value from one and the same save.
        QCOMPARE(check.tags.count(check.tags.first()), check.tags.size());
        // Whatever a killed save leaves beside the key holds the passwords too: owner only.
        QDirIterator leftovers(fixture.userFolder(), QDir::Files | QDir::Hidden);
        while (leftovers.hasNext()) {
            const QString file = leftovers.next();
            if (!file.endsWith(QLatin1String(".lock")))
                QCOMPARE(ReliabilityFixture::modeOf(file), 0600);
        }
    }

    qInfo("killed saves: %d processes killed with SIGKILL, %d of them while saving, "
          "torn files 0",
        kills, killedMidSave);
}

void tst_ConcurrentSaves::fullDisk_data()
{
    QTest::addColumn<qint64>("limit"); // largest file the saving process may write, in bytes

    QTest::newRow("no room at all") << qint64(1);
    QTest::newRow("room for the old file, not the new") << qint64(8 * 1024);
}

void tst_ConcurrentSaves::fullDisk()
{
    QFETCH(qint64, limit);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    QVERIFY(runSaver(fixture,
        {QStringLiteral("save"), QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("16"),
            fixture.outputFolder()}));
    const QByteArray before = ReliabilityFixture::readFile(fixture.userFile());
    QVERIFY(before.size() < 8 * 1024);

    QVERIFY(runSaver(fixture,
        {QStringLiteral("fill"), QString::number(limit), QStringLiteral("1"),
            QString::number(64 * 1024), fixture.outputFolder()}));
    QCOMPARE(ReliabilityFixture::readFile(fixture.userFile()), before);
    qInfo("full disk: save limited to %lld bytes returned, old file kept, findings 0", limit);
}

QTEST_GUILESS_MAIN(tst_ConcurrentSaves)
#include "tst_concurrentsaves.moc"
