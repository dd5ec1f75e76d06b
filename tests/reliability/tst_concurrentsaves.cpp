#include "reliabilityfixture.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#include <sys/inotify.h>
#include <unistd.h>

// Several processes saving to one user key, and processes killed in the middle of a save: the
// file must always parse, and every value in it must come whole from one save.
class tst_ConcurrentSaves : public QObject
{
    Q_OBJECT

private slots:
    void concurrentWriters();
    void killedDuringSave();
};

namespace {

// The save that wrote the key file's tagged values ("w<writer>r<round>"), or an empty text when
// the file does not parse or a value is not whole (cut short, spliced) or from another save.
QString saveIn(const QString &file, int filler)
{
    const QSettings settings(file, QSettings::IniFormat);
    const QString tag = settings.value("pdf_title").toString().section(':', 0, 0);
    const QString whole = tag + ':' + QString(filler, 'x') + ':' + tag;
    for (const char *name : {"pdf_title", "pdf_author", "pdf_keywords"})
        if (settings.value(QLatin1String(name)).toString() != whole)
            return QString();
    const bool parsed = settings.status() == QSettings::NoError
        && settings.value("isabort").toString() == QLatin1String("false");
    return parsed ? tag : QString();
}

} // namespace

void tst_ConcurrentSaves::concurrentWriters()
{
    const int processes = 4, rounds = 20, filler = 64 * 1024;
    JobFixture job;
    QProcess writers[processes];
    for (int writer = 0; writer < processes; ++writer)
        startHelper(writers[writer], job,
            {"save", QString::number(writer), QString::number(rounds), QString::number(filler)});
    // Read the file while they save, as the driver might. The key file is created empty before
    // the first save lands; after that it must never be empty again.
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
    qInfo("concurrent saves: %d processes x %d rounds of %d-character values, %d reads while "
          "saving, findings 0",
        processes, rounds, filler, reads);
}

// Each saver is killed once its second save writes into the key's folder (its lock aside), a
// little later each time: from the first bytes written to past the end of the writing.
void tst_ConcurrentSaves::killedDuringSave()
{
    const int kills = 20, filler = 1024 * 1024;
    JobFixture job;
    const QByteArray folder = QFile::encodeName(job.path("user/Tarnwick"));
    int killedMidSave = 0;
    for (int writer = 0; writer < kills; ++writer) {
        QProcess saver;
        startHelper(saver, job, {"save", QString::number(writer), "0", QString::number(filler)});
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
        QThread::usleep(3000 * writer);
        saver.kill();
        QVERIFY(saver.waitForFinished(30000));
        said += saver.readAllStandardOutput();
        killedMidSave += said.trimmed().split('\n').last().startsWith("writing");
        // The old file or the new one: every value whole and from one and the same save.
        QVERIFY2(!saveIn(job.userFile(), filler).isEmpty(), "a killed save tore the file");
        // Whatever a killed save leaves beside the key holds the passwords too: owner only.
        for (const QFileInfo &left : QDir(folder).entryInfoList(QDir::Files))
            QVERIFY(left.suffix() == "lock"
                || (left.permissions() & 0x0FFF) == (QFile::ReadUser | QFile::WriteUser));
    }
    qInfo("killed saves: %d processes killed with SIGKILL, %d of them while saving, torn files 0",
        kills, killedMidSave);
}

QTEST_GUILESS_MAIN(tst_ConcurrentSaves)
#include "tst_concurrentsaves.moc"
