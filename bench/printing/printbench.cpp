// SPDX-License-Identifier: GPL-3.0-or-later
// From `lp` returning to the dialog on screen: the share of the project's own code (backend run,
// agent pick-up, start of fmtask) beside the time CUPS's scheduler and filters take, on a private
// scheduler with a throwaway user's desktop on Xvfb; then the agent idle: CPU and resident memory.
// The start of fmtask is told apart from the toolkit's: a Qt window that shows one label, started
// the same way in the same session, is the floor every Qt program with text pays; what fmtask
// takes beyond it is the project's.
// Run as root: BUILD/bench/printing/print_bench [--rounds N]   (21 by default)
#include "bench/printing/printingbench.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <sys/inotify.h>

using namespace PrintHarness;
using PrintingBench::median;

namespace {

double milliseconds(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

// Runs the event loop until `done` holds or the time is up.
bool waitFor(const std::function<bool()> &done, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return done();
}

// Ticks of CPU and resident KiB of a process, from /proc.
struct Usage
{
    long long ticks = 0;
    long long residentKiB = 0;
    long long peakKiB = 0;
};

Usage usageOf(qint64 pid)
{
    Usage usage;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (stat.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> fields = stat.readAll().split(')').last().split(' ');
        usage.ticks = fields.value(12).toLongLong() + fields.value(13).toLongLong();
    }
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            const QList<QByteArray> words = line.simplified().split(' ');
            if (words.first() == "VmRSS:")
                usage.residentKiB = words.value(1).toLongLong();
            if (words.first() == "VmHWM:")
                usage.peakKiB = words.value(1).toLongLong();
        }
    }
    return usage;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const int rounds
        = PrintingBench::rounds(argc, argv, 21, "a private scheduler, a throwaway user and Xvfb");
    if (rounds == 0)
        return 1;
    PrintingBench::Setup setup('a');
    const auto path = [&setup](const QString &relative) { return setup.path(relative); };
    ThrowawayUser &user = setup.user;
    PrivateCups &cups = setup.cups;
    const QString &spool = setup.spool;
    QProcess xvfb, agent;
    const QString display = startDisplay(xvfb, user);
    if (!setup.ready || display.isEmpty()
        || !cups.addQueue(QStringLiteral(SOURCE_DIR "/packaging/vellumio.ppd"))) {
        std::fprintf(stderr, "The scheduler, the user or the display did not start.\n");
        return 1;
    }
    // The agent's copy finds the probe as its "fmtask": the program's own start, ended at its
    // first expose with the line "exposed".
    QDir().mkpath(path(QStringLiteral("bin")));
    QFile::copy(QStringLiteral(VELLUMIO_AGENT), path(QStringLiteral("bin/vellumio-agent")));
    QFile::link(QStringLiteral(FMTASK_PROBE), path(QStringLiteral("bin/fmtask")));
    QProcessEnvironment session = user.session(display, spool);
    startAs(agent, &user, path(QStringLiteral("bin/vellumio-agent")), {}, session);
    agent.waitForStarted();

    const QString document = path(QStringLiteral("job.pdf"));
    writePdf(document,
        QStringLiteral(
            "/Helvetica findfont 30 scalefont setfont 72 700 moveto (Page) show showpage"));
    ::chmod(QFile::encodeName(document), 0644);

    // Job arrivals in the user's folder and starts of the dialog program, as they happen.
    QElapsedTimer clock;
    clock.start();
    double spooledAt = 0, startedAt = 0, exposedAt = 0;
    const int events = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QSocketNotifier notifier(events, QSocketNotifier::Read);
    int userWatch = -1;
    const int programWatch = inotify_add_watch(events, FMTASK_PROBE, IN_OPEN);
    QObject::connect(&notifier, &QSocketNotifier::activated, [&] {
        alignas(inotify_event) char buffer[4096];
        for (ssize_t got; (got = ::read(events, buffer, sizeof buffer)) > 0;) {
            for (char *at = buffer; at < buffer + got;) {
                const auto *event = reinterpret_cast<const inotify_event *>(at);
                if (event->wd == userWatch && (event->mask & IN_MOVED_TO))
                    spooledAt = milliseconds(clock);
                if (event->wd == programWatch && startedAt == 0)
                    startedAt = milliseconds(clock);
                at += sizeof(inotify_event) + event->len;
            }
        }
    });
    QObject::connect(&agent, &QProcess::readyReadStandardOutput, [&] {
        if (agent.readAllStandardOutput().contains("exposed"))
            exposedAt = milliseconds(clock);
    });

    const QString userFolder = spool + QLatin1Char('/') + QString::number(user.uid);
    std::vector<double> cupsTimes, pickUps, dialogStarts;
    QString spooledCopy;
    for (int round = -1; round < rounds; ++round) {
        spooledAt = startedAt = exposedAt = 0;
        QProcess lp;
        startAs(lp, &user, QStringLiteral("lp"),
            {QStringLiteral("-h"), cups.socket(), QStringLiteral("-d"), QStringLiteral("Vellumio"),
                QStringLiteral("-t"), QStringLiteral("Round"), document},
            session);
        if (!lp.waitForFinished() || lp.exitCode() != 0)
            return std::fprintf(stderr, "lp failed: %s\n", lp.readAll().constData()), 1;
        const double returnedAt = milliseconds(clock);
        if (round < 0) {
            // The first job creates the user's folder; it is watched from then on.
            waitFor([&] { return QFileInfo::exists(userFolder); }, 30000);
            userWatch = inotify_add_watch(events, QFile::encodeName(userFolder), IN_MOVED_TO);
        }
        if (!waitFor([&] { return exposedAt > 0; }, 30000))
            return std::fprintf(stderr, "no dialog in round %d\n", round), 1;
        if (round < 0) {
            const QStringList jobs = QDir(userFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            spooledCopy = path(QStringLiteral("spooled.pdf"));
            QFile::copy(userFolder + QLatin1Char('/') + jobs.value(0) + QStringLiteral("/job.pdf"),
                spooledCopy);
        } else {
            cupsTimes.push_back(spooledAt - returnedAt);
            pickUps.push_back(startedAt - spooledAt);
            dialogStarts.push_back(exposedAt - startedAt);
        }
        waitFor(
            [&] { return QDir(userFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty(); },
            30000);
    }

    // The backend's own run on the document CUPS handed it, alone, as the scheduler starts it.
    std::vector<double> backendRuns;
    const QString aside = path(QStringLiteral("backend-runs"));
    for (int round = 0; round < rounds; ++round) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VELLUMIO_SPOOL"), aside);
        const double before = milliseconds(clock);
        runAs(nullptr, QStringLiteral(VELLUMIO_BACKEND),
            {QString::number(1000 + round), user.name, QStringLiteral("Round"), QStringLiteral("1"),
                QString(), spooledCopy},
            environment);
        backendRuns.push_back(milliseconds(clock) - before);
    }

    // The toolkit's floor on this machine now: fmtask and a window with one label, started alone
    // the same way, one after the other; the difference of each pair is fmtask's own start.
    std::vector<double> aloneStarts, labelStarts, ownStarts;
    for (int round = 0; round < rounds; ++round) {
        for (auto [program, times] :
            {std::pair {FMTASK_PROBE, &aloneStarts}, std::pair {LABEL_PROBE, &labelStarts}}) {
            QProcess probe;
            const double before = milliseconds(clock);
            startAs(probe, &user, QString::fromUtf8(program), {QStringLiteral("Round")}, session);
            waitFor([&] { return probe.state() == QProcess::NotRunning; }, 30000);
            times->push_back(milliseconds(clock) - before);
        }
        ownStarts.push_back(aloneStarts.back() - labelStarts.back());
    }

    // Idle: no job for ten seconds.
    waitFor([] { return false; }, 2000);
    const Usage before = usageOf(agent.processId());
    waitFor([] { return false; }, 10000);
    const Usage after = usageOf(agent.processId());
    const double idleCpu
        = double(after.ticks - before.ticks) / double(::sysconf(_SC_CLK_TCK)) / 10.0 * 100.0;

    const double backend = median(backendRuns), cupsOwn = median(cupsTimes) - backend;
    // Negative when fmtask happened to start faster than the label window: it then adds nothing.
    const double ownStart = median(ownStarts);
    const double own = backend + median(pickUps) + std::max(0.0, ownStart);
    QFile load(QStringLiteral("/proc/loadavg"));
    load.open(QIODevice::ReadOnly);
    std::printf(
        "Print path, medians of %d jobs (one A4 PDF page through lp, Xvfb), load average %s:\n\n",
        rounds, load.readAll().split(' ').first().constData());
    std::printf("| Phase | Time |\n|---|---|\n");
    std::printf("| CUPS: scheduler and filters (lp returned to job spooled, less the backend) | "
                "%.1f ms |\n",
        cupsOwn);
    std::printf("| Backend run (alone, same document) | %.1f ms |\n", backend);
    std::printf("| Agent pick-up (job spooled to fmtask started) | %.1f ms |\n", median(pickUps));
    std::printf("| fmtask start (started to dialog exposed) | %.1f ms |\n", median(dialogStarts));
    std::printf("| Qt's floor: a window with one label started alone the same way | %.1f ms |\n",
        median(labelStarts));
    std::printf(
        "| fmtask's own start: fmtask alone less the label window, paired | %.1f ms |\n", ownStart);
    std::printf("| **Project's own share**: backend, pick-up, fmtask's own start (target < 100 ms) "
                "| **%.1f ms** (%s) |\n",
        own, own < 100 ? "met" : "missed");
    std::printf("| Whole path, lp returned to dialog exposed | %.1f ms |\n",
        median(cupsTimes) + median(pickUps) + median(dialogStarts));
    std::printf("| Agent idle CPU over 10 s | %.2f %% |\n", idleCpu);
    std::printf("| Agent resident memory idle / peak (target < 20 MiB) | %.1f MiB / %.1f MiB |\n",
        double(after.residentKiB) / 1024, double(after.peakKiB) / 1024);
    for (QProcess *process : {&agent, &xvfb})
        process->kill(), process->waitForFinished();
    return 0;
}
