// SPDX-License-Identifier: GPL-3.0-or-later
// Printing with the dialog turned off ("chDialog" = "false", PDF, default options) against Debian's
// own PDF printer, side by side on one private scheduler: the same documents printed with lp to
// both queues in turn, timed from lp returning to the finished file (complete, read by pdfinfo).
// A third queue takes every document through CUPS's filters before the backend (pdftopdf, and
// gstopdf for PostScript), as a description whose only entry is CUPS's PDF type would. Then PNG
// output: the whole print path against Ghostscript alone. Run as root:
// BUILD/bench/printing/nodialog_bench [--rounds N]   (10 by default)
#include "bench/printing/printingbench.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <poll.h>
#include <sys/inotify.h>

using namespace PrintHarness;
using PrintingBench::median;

namespace {

constexpr char cupsPdfBackend[] = "/usr/lib/cups/backend/cups-pdf";
constexpr char cupsPdfDescription[] = "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd";
constexpr int jobSeconds = 120;

// Files finished in watched folders (closed after writing, or moved in), with the time they were
// seen. A thread of its own reads them, so their times never wait for the main loop.
class FileEvents
{
public:
    explicit FileEvents(const QElapsedTimer &clock)
        : m_clock(clock)
        , m_fd(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
        , m_reader([this] { read(); })
    { }
    ~FileEvents()
    {
        m_stop = true;
        m_reader.join();
        ::close(m_fd);
    }

    int watch(const QString &folder)
    {
        return ::inotify_add_watch(
            m_fd, QFile::encodeName(folder).constData(), IN_CLOSE_WRITE | IN_MOVED_TO);
    }

    struct Event
    {
        int watch;
        QString name;
        double at;
    };
    // Every event since `since` in the folder watched as `watch`.
    std::vector<Event> since(int watch, double since)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::vector<Event> found;
        for (const Event &event : m_events)
            if (event.watch == watch && event.at >= since)
                found.push_back(event);
        return found;
    }
    // Waits for the next event, at most `ms`.
    void wait(int ms)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const size_t seen = m_events.size();
        m_changed.wait_for(
            lock, std::chrono::milliseconds(ms), [&] { return m_events.size() != seen; });
    }

private:
    void read()
    {
        alignas(inotify_event) char buffer[8192];
        while (!m_stop) {
            pollfd ready {m_fd, POLLIN, 0};
            if (::poll(&ready, 1, 50) <= 0)
                continue;
            const double at = double(m_clock.nsecsElapsed()) / 1e6;
            for (ssize_t got; (got = ::read(m_fd, buffer, sizeof buffer)) > 0;) {
                const std::lock_guard<std::mutex> lock(m_mutex);
                for (char *next = buffer; next < buffer + got;) {
                    const auto *event = reinterpret_cast<const inotify_event *>(next);
                    if (event->len > 0)
                        m_events.push_back({event->wd, QFile::decodeName(event->name), at});
                    next += sizeof(inotify_event) + event->len;
                }
            }
            m_changed.notify_all();
        }
    }

    const QElapsedTimer &m_clock;
    int m_fd;
    std::atomic<bool> m_stop {false};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Event> m_events;
    std::thread m_reader;
};

QByteArray pdfInfo(const QString &file)
{
    QByteArray output;
    return runAs(nullptr, QStringLiteral("pdfinfo"), {file},
               QProcessEnvironment::systemEnvironment(), &output)
            == 0
        ? output
        : QByteArray();
}

int pagesOf(const QByteArray &info)
{
    for (const QByteArray &line : info.split('\n'))
        if (line.startsWith("Pages:"))
            return line.mid(6).trimmed().toInt();
    return 0;
}

// Writes a document with Ghostscript from a PostScript program: PDF, or the program itself.
bool makeDocument(const QString &file, const QByteArray &program)
{
    if (file.endsWith(QLatin1String(".ps")))
        return writeFile(file, program) && ::chmod(QFile::encodeName(file), 0644) == 0;
    const QString source = file + QStringLiteral(".ps");
    return writeFile(source, program)
        && runAs(nullptr, QStringLiteral("gs"),
               {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
                   QStringLiteral("-dNOPAUSE"), QStringLiteral("-sDEVICE=pdfwrite"),
                   QStringLiteral("-sPAPERSIZE=a4"), QStringLiteral("-sOutputFile=") + file,
                   source},
               QProcessEnvironment::systemEnvironment())
        == 0
        && ::chmod(QFile::encodeName(file), 0644) == 0;
}

// Pages of running text: 60 lines of Times at 10 points.
QByteArray textPages(int pages)
{
    return "%!PS\n/Times-Roman findfont 10 scalefont setfont\n1 1 " + QByteArray::number(pages)
        + " { /page exch def 1 1 60 { /line exch def 56 800 line 12.5 mul sub moveto\n"
          "(Page ) show page 3 string cvs show ( line ) show line 3 string cvs show\n"
          "(: the quick brown fox jumps over the lazy dog, pack my box with five dozen jugs.) "
          "show } for showpage } for\n";
}

// Pages with a heading and a 480 x 360 colour photograph-like picture each, different on every
// page.
QByteArray imagePages(int pages)
{
    return "%!PS\n/Helvetica findfont 18 scalefont setfont /row 1440 string def\n1 1 "
        + QByteArray::number(pages)
        + " { /page exch def 56 780 moveto (Picture ) show page 3 string cvs show\n"
          "gsave 56 300 translate 480 360 scale 480 360 8 [480 0 0 -360 0 360]\n"
          "{ 0 3 1437 { /x exch def row x x page 7 mul add 255 and put\n"
          "row x 1 add x 3 idiv rand -26 bitshift add 255 and put\n"
          "row x 2 add page 40 mul x 5 idiv sub 255 and put } for row } false 3 colorimage\n"
          "grestore showpage } for\n";
}

// One page of text and drawing, as a PostScript program prints it.
QByteArray postScriptPage()
{
    return "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
           "/Helvetica-Bold findfont 28 scalefont setfont 56 760 moveto (Quarterly report) show\n"
           "/Times-Roman findfont 11 scalefont setfont\n"
           "1 1 40 { /n exch def 56 720 n 14 mul sub moveto (Line ) show n 3 string cvs show\n"
           "( of the report, with figures that a reader checks twice.) show } for\n"
           "0.2 0.4 0.8 setrgbcolor 1 1 12 { /n exch def 330 n 20 mul add 80 40 n 12 mul\n"
           "rectfill } for showpage\n%%EOF\n";
}

struct Document
{
    QString label;
    QString file;
    int pages;
};

struct Queue
{
    QString label;
    QString name;
    QString output; // the folder its files appear in
    int watch = -1;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const int rounds
        = PrintingBench::rounds(argc, argv, 10, "a private scheduler and a throwaway user");
    if (rounds == 0)
        return 1;
    if (!QFileInfo::exists(QLatin1String(cupsPdfBackend))) {
        std::printf("Debian's PDF printer is missing: installing printer-driver-cups-pdf with "
                    "apt-get for the comparison.\n");
        std::fflush(stdout);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DEBIAN_FRONTEND"), QStringLiteral("noninteractive"));
        runAs(nullptr, QStringLiteral("apt-get"),
            {QStringLiteral("install"), QStringLiteral("-y"),
                QStringLiteral("--no-install-recommends"),
                QStringLiteral("printer-driver-cups-pdf")},
            environment);
        if (!QFileInfo::exists(QLatin1String(cupsPdfBackend))) {
            std::fprintf(stderr,
                "printer-driver-cups-pdf could not be installed: run apt-get install "
                "printer-driver-cups-pdf and start the benchmark again.\n");
            return 1;
        }
    }

    PrintingBench::Setup setup('n');
    const auto path = [&setup](const QString &relative) { return setup.path(relative); };
    ThrowawayUser &user = setup.user;
    PrivateCups &cups = setup.cups;
    const QString &spool = setup.spool;

    // The filtered queue's description: the project's, less its own PDF entries, so that CUPS
    // reaches the backend through pdftopdf.
    QFile ppd(QStringLiteral(SOURCE_DIR "/packaging/vellumio.ppd"));
    ppd.open(QIODevice::ReadOnly);
    QByteArray filtered;
    for (const QByteArray &line : ppd.readAll().split('\n'))
        if (!line.startsWith("*cupsFilter"))
            filtered += line + '\n';
    filtered += "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n";
    writeFile(path(QStringLiteral("filtered.ppd")), filtered);

    // Debian's PDF printer beside ours, installed as a backend that runs as root must be.
    const QString theirBackend = cups.path(QStringLiteral("serverbin/backend/cups-pdf"));
    if (!setup.ready || !QFile::copy(QLatin1String(cupsPdfBackend), theirBackend)
        || ::chmod(QFile::encodeName(theirBackend), 0700) != 0
        || !cups.addQueue(QStringLiteral(SOURCE_DIR "/packaging/vellumio.ppd"))
        || !cups.addQueue(path(QStringLiteral("filtered.ppd")), QStringLiteral("Filtered"))
        || runAs(nullptr, QStringLiteral("lpadmin"),
               {QStringLiteral("-h"), cups.socket(), QStringLiteral("-p"),
                   QStringLiteral("CupsPdf"), QStringLiteral("-E"), QStringLiteral("-v"),
                   QStringLiteral("cups-pdf:/"), QStringLiteral("-P"),
                   QLatin1String(cupsPdfDescription)},
               QProcessEnvironment::systemEnvironment())
            != 0) {
        std::fprintf(stderr, "The scheduler, its queues or the user did not start.\n");
        return 1;
    }

    // The user's desktop: the dialog off, PDF into a folder of its own, every other option as
    // it comes.
    const QString out = user.home + QStringLiteral("/out");
    const QString cupsPdfOut = user.home + QStringLiteral("/PDF");
    user.makeFolder(out, 0700);
    user.makeFolder(cupsPdfOut, 0700);
    const QProcessEnvironment session = user.session(QStringLiteral("offscreen"), spool);
    const auto setFormat = [&](const char *format) {
        user.writeSettings({{QStringLiteral("chDialog"), QStringLiteral("false")},
            {QStringLiteral("format"), QLatin1String(format)},
            {QStringLiteral("Path"), out + QLatin1Char('/')}});
    };
    setFormat("pdf");
    QProcess agent;
    startAs(agent, &user, QStringLiteral(VELLUMIO_AGENT), {}, session);
    agent.waitForStarted();

    const QList<Document> documents {
        {QStringLiteral("10-page text PDF"), path(QStringLiteral("text.pdf")), 10},
        {QStringLiteral("100-page PDF with images"), path(QStringLiteral("images.pdf")), 100},
        {QStringLiteral("1-page PostScript"), path(QStringLiteral("page.ps")), 1},
    };
    if (!makeDocument(documents[0].file, textPages(10))
        || !makeDocument(documents[1].file, imagePages(100))
        || !makeDocument(documents[2].file, postScriptPage())) {
        std::fprintf(stderr, "Ghostscript could not write the documents.\n");
        return 1;
    }

    QElapsedTimer clock;
    clock.start();
    const auto now = [&clock] { return double(clock.nsecsElapsed()) / 1e6; };
    FileEvents events(clock);
    QList<Queue> queues {{QStringLiteral("cups-pdf"), QStringLiteral("CupsPdf"), cupsPdfOut},
        {QStringLiteral("Vellumio"), QStringLiteral("Vellumio"), out},
        {QStringLiteral("Vellumio through CUPS's filters"), QStringLiteral("Filtered"), out}};
    for (Queue &queue : queues)
        queue.watch = events.watch(queue.output);
    const QString userSpool = spool + QLatin1Char('/') + QString::number(user.uid);
    int spoolWatch = -1;

    const auto idle = [&] {
        for (int tries = 0; tries < jobSeconds * 20; ++tries) {
            QByteArray jobs;
            runAs(nullptr, QStringLiteral("lpstat"),
                {QStringLiteral("-h"), cups.socket(), QStringLiteral("-o")},
                QProcessEnvironment::systemEnvironment(), &jobs);
            const bool spoolEmpty
                = QDir(userSpool).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs).isEmpty();
            if (jobs.trimmed().isEmpty() && spoolEmpty)
                return;
            QThread::msleep(50);
        }
    };
    const auto clear = [&](const QString &folder) {
        for (const QString &name : QDir(folder).entryList(QDir::Files))
            QFile::remove(folder + QLatin1Char('/') + name);
    };

    // Prints `document` to `queue`; the time from lp returning to the finished files (`files` of
    // them with `suffix`, each PDF read whole by pdfinfo), and to the job spooled for the agent;
    // negative when the job did not finish.
    struct Timing
    {
        double done = -1;
        double spooled = -1;
    };
    const auto print = [&](const Queue &queue, const QString &file, int pages, int files,
                           const QString &suffix, const QString &title) -> Timing {
        idle();
        clear(queue.output);
        QProcess lp;
        startAs(lp, &user, QStringLiteral("lp"),
            {QStringLiteral("-h"), cups.socket(), QStringLiteral("-d"), queue.name,
                QStringLiteral("-t"), title, file},
            session);
        if (!lp.waitForFinished(60000) || lp.exitCode() != 0) {
            std::fprintf(stderr, "lp failed: %s\n", lp.readAll().constData());
            return {};
        }
        const double returned = now();
        if (spoolWatch < 0 && QFileInfo::exists(userSpool))
            spoolWatch = events.watch(userSpool);
        // No event for the file after the one it was finished at: checked after it was read.
        const auto unchangedSince = [&](const QString &name, double at) {
            const std::vector<FileEvents::Event> later = events.since(queue.watch, at + 1e-3);
            return std::none_of(later.cbegin(), later.cend(),
                [&](const FileEvents::Event &event) { return event.name == name; });
        };
        QElapsedTimer limit;
        limit.start();
        while (limit.elapsed() < jobSeconds * 1000) {
            QMap<QString, double> finished; // name -> last event
            for (const FileEvents::Event &event : events.since(queue.watch, returned))
                if (event.name.endsWith(suffix) && !event.name.startsWith(QLatin1Char('.')))
                    finished[event.name] = std::max(finished.value(event.name), event.at);
            bool complete = finished.size() == files;
            for (auto it = finished.cbegin(); complete && it != finished.cend(); ++it) {
                const QString finishedFile = queue.output + QLatin1Char('/') + it.key();
                const qint64 size = QFileInfo(finishedFile).size();
                complete = size > 0
                    && (suffix != QLatin1String(".pdf") || pagesOf(pdfInfo(finishedFile)) == pages)
                    && QFileInfo(finishedFile).size() == size
                    && unchangedSince(it.key(), it.value());
            }
            if (complete) {
                Timing timing;
                timing.done = *std::max_element(finished.cbegin(), finished.cend()) - returned;
                for (const FileEvents::Event &event : events.since(spoolWatch, returned))
                    if (timing.spooled < 0)
                        timing.spooled = event.at - returned;
                return timing;
            }
            events.wait(100);
        }
        std::fprintf(stderr, "%s: no finished file for %s; the folder holds: %s\n",
            qPrintable(queue.label), qPrintable(title),
            qPrintable(QDir(queue.output).entryList(QDir::AllEntries | QDir::Hidden).join(' ')));
        return {};
    };

    // Side by side: each document to each queue in turn, the order turning every round; the
    // first round warms the caches and is not counted.
    std::vector<std::vector<std::vector<double>>> times(
        size_t(documents.size()), std::vector<std::vector<double>>(size_t(queues.size())));
    std::vector<std::vector<double>> spooledTimes(size_t(documents.size()));
    for (int round = -1; round < rounds; ++round) {
        for (int d = 0; d < documents.size(); ++d) {
            for (int q = 0; q < queues.size(); ++q) {
                const int turned = (q + std::max(round, 0)) % int(queues.size());
                const Document &document = documents[d];
                const Timing timing = print(queues[turned], document.file, document.pages, 1,
                    QStringLiteral(".pdf"),
                    QStringLiteral("r%1-d%2-q%3").arg(round + 1).arg(d).arg(turned));
                if (timing.done < 0)
                    return 1;
                if (round >= 0) {
                    times[size_t(d)][size_t(turned)].push_back(timing.done);
                    if (queues[turned].name == QLatin1String("Vellumio"))
                        spooledTimes[size_t(d)].push_back(timing.spooled);
                }
            }
        }
        std::fprintf(stderr, "round %d of %d done\n", round + 1, rounds);
    }

    // PNG at 300 dpi: the whole print path, against Ghostscript's command alone on the same PDF.
    setFormat("png");
    const Document &text = documents[0];
    std::vector<double> pngPrints, pngCommands;
    const QString gsOut = user.home + QStringLiteral("/gs");
    user.makeFolder(gsOut, 0700);
    for (int round = -1; round < rounds; ++round) {
        const Timing timing = print(queues[1], text.file, text.pages, text.pages,
            QStringLiteral(".png"), QStringLiteral("png-r%1").arg(round + 1));
        if (timing.done < 0)
            return 1;
        clear(gsOut);
        const double before = now();
        runAs(&user, QStringLiteral("gs"),
            {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
                QStringLiteral("-dNOPAUSE"), QStringLiteral("-sDEVICE=png16m"),
                QStringLiteral("-r300"), QStringLiteral("-dTextAlphaBits=4"),
                QStringLiteral("-dGraphicsAlphaBits=4"),
                QStringLiteral("-sOutputFile=") + gsOut + QStringLiteral("/p%d.png"), text.file},
            session);
        const double command = now() - before;
        if (round >= 0)
            pngPrints.push_back(timing.done), pngCommands.push_back(command);
    }

    QFile load(QStringLiteral("/proc/loadavg"));
    load.open(QIODevice::ReadOnly);
    std::printf("Dialog off (chDialog = \"false\", PDF, default options) against cups-pdf, one "
                "private scheduler, %d rounds alternating, medians from lp returning to the "
                "finished file; load average %s:\n\n",
        rounds, load.readAll().split(' ').first().constData());
    std::printf("| Document | cups-pdf | Vellumio | Ratio (target <= 0.60) | of which lp to "
                "spooled | Vellumio through CUPS's filters |\n|---|---|---|---|---|---|\n");
    bool met = true;
    for (int d = 0; d < documents.size(); ++d) {
        const double theirs = median(times[size_t(d)][0]), ours = median(times[size_t(d)][1]);
        const double ratio = ours / theirs;
        met = met && ratio <= 0.6;
        std::printf("| %s | %.0f ms | %.0f ms | %.2f (%s) | %.0f ms | %.0f ms |\n",
            qPrintable(documents[d].label), theirs, ours, ratio, ratio <= 0.6 ? "met" : "missed",
            median(spooledTimes[size_t(d)]), median(times[size_t(d)][2]));
    }
    std::printf("\nPNG at 300 dpi, %s, medians of %d: Vellumio lp to %d files %.0f ms, gs "
                "-sDEVICE=png16m alone %.0f ms, ratio %.2f\n",
        qPrintable(text.label), rounds, text.pages, median(pngPrints), median(pngCommands),
        median(pngPrints) / median(pngCommands));
    agent.kill();
    agent.waitForFinished();
    return met ? 0 : 2;
}
