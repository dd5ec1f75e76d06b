// SPDX-License-Identifier: GPL-3.0-or-later
// Rendering benchmark: a job through the plan against the same tool runs made by hand, per-page
// tools on one core and on two, and the peak memory of the project's own process on 500 pages.
#include "render/inprocesswrites.h"
#include "render/rendering.h"
#include "render/renderplan.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

using namespace Render;

namespace {

// A letter-size job: a line of text and a coloured image on every page.
QString makeJob(const QDir &dir, int pages)
{
    const QString pdf = dir.filePath(QStringLiteral("job-%1.pdf").arg(pages));
    QFile ps(dir.filePath("job.ps"));
    ps.open(QIODevice::WriteOnly);
    ps.write(
        "%!PS\n<< /PageSize [612 792] >> setpagedevice\n/Helvetica findfont 14 scalefont setfont\n"
        "/row 300 string def\n1 1 "
        + QByteArray::number(pages)
        + " { /n exch def 72 720 moveto (Page ) show n 4 string cvs show\n"
          "0 1 30 { /l exch def 72 690 l 14 mul sub moveto (The quick brown fox jumps over the "
          "lazy dog, "
          "line ) show l 3 string cvs show } for\n"
          "gsave 72 72 translate 200 150 scale 100 75 8 [100 0 0 -75 0 75]\n"
          "{ 0 1 299 { row exch rand -16 bitshift 255 and put } for row } false 3 colorimage "
          "grestore\n"
          "showpage } for\n");
    ps.close();
    QProcess::execute("gs",
        {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite", "-sOutputFile=" + pdf,
            ps.fileName()});
    return pdf;
}

// One tool run as a person would type it: spawned, waited for, nothing else.
bool spawn(const Command &command, const QDir &work)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const QByteArray in = QFile::encodeName(
        command.standardInput.isEmpty() ? "/dev/null" : work.filePath(command.standardInput));
    const QByteArray out = QFile::encodeName(
        command.standardOutput.isEmpty() ? "/dev/null" : work.filePath(command.standardOutput));
    posix_spawn_file_actions_addopen(&actions, 0, in.constData(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(
        &actions, 1, out.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (!command.secretFile.isEmpty()) {
        QFile secret(work.filePath(command.secretFile));
        secret.open(QIODevice::WriteOnly);
        secret.write(command.secret);
    }
    QList<QByteArray> storage {command.program.toLocal8Bit()};
    for (const QString &argument : command.arguments)
        storage << argument.toLocal8Bit();
    std::vector<char *> argv;
    for (QByteArray &argument : storage)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const QByteArray cwd = QDir::currentPath().toLocal8Bit();
    QDir::setCurrent(work.path());
    pid_t pid = 0;
    const bool started = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0;
    QDir::setCurrent(QString::fromLocal8Bit(cwd));
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    return started && waitpid(pid, &status, 0) == pid && WIFEXITED(status)
        && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == command.warningStatus);
}

// The plan's commands one after another in a plain folder, its writes called directly.
double byHand(const Options &options, const QString &job, int pages)
{
    QTemporaryDir work;
    const Plan plan = makePlan(options, {job, pages, 1});
    QElapsedTimer clock;
    clock.start();
    // The page count is a tool run of every job: the plan needs it, and so does a person.
    Command count;
    count.program = "qpdf";
    count.arguments = QStringList {"--show-npages", job};
    spawn(count, QDir(work.path()));
    for (const Step &step : plan.steps())
        if (step.isWrite ? !perform(step.write, QDir(work.path())).isEmpty()
                         : !spawn(step.command, QDir(work.path())))
            std::fprintf(stderr, "by hand: %s failed\n", qPrintable(step.command.program));
    return clock.elapsed() / 1000.0;
}

double planned(const Options &options, const QString &job, int parallel)
{
    QElapsedTimer clock;
    clock.start();
    const Result result = renderJob(options, job, Existing::Replace, parallel);
    if (!result.ok())
        std::fprintf(stderr, "plan: %s\n", qPrintable(result.message));
    return clock.elapsed() / 1000.0;
}

Options optionsFor(const QString &token, const QString &folder)
{
    Options options;
    options.format = Formats::byToken(token)->index;
    options.folder = folder;
    options.name = token;
    return options;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

// The machine's load over the last minute, as uptime shows it.
QString loadAverage()
{
    QFile file("/proc/loadavg");
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().split(' ').first())
                                          : QString("?");
}

long peakKiB()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

struct Case
{
    const char *label;
    const char *token;
    void (*adjust)(Options &);
};

// Every format, and both forms of those that make one file or a file per page.
const Case memoryCases[] = {
    {"BMP true colour", "bmp", [](Options &) {}},
    {"PNG true colour", "png", [](Options &) {}},
    {"JPEG", "jpg", [](Options &) {}},
    {"JPEG 2000", "jp2", [](Options &) {}},
    {"TIFF G4, one file", "tif", [](Options &o) { o.compression = "G4"; }},
    {"TIFF LZW, a file per page", "tif", [](Options &o) { o.multipageTiff = false; }},
    {"GIF 256 colours", "gif", [](Options &o) { o.colorCode = "8"; }},
    {"SWF, one file, with text", "swf", [](Options &) {}},
    {"SWF, a file per page", "swf", [](Options &o) { o.multipageSwf = false; }},
    {"PDF, information and AES-128", "pdf",
        [](Options &o) {
            o.pdf.title = "T";
            o.pdf.protect = true;
            o.pdf.userPassword = "u";
        }},
    {"PDF without text layer", "pdf", [](Options &o) { o.pdfText = false; }},
    {"RTF", "rtf", [](Options &) {}},
    {"MS Excel", "msxml", [](Options &) {}},
    {"HTML with text, one file", "htm", [](Options &) {}},
    {"HTML page images, one file", "htm", [](Options &o) { o.htmText = false; }},
    {"DjVu, one file", "djvu", [](Options &) {}},
    {"DjVu, a file per page", "djvu", [](Options &o) { o.multipageDjvu = false; }},
    {"JPEG with the text extracted", "jpg", [](Options &o) { o.extractText = true; }},
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QTemporaryDir dir;
    const QString out = dir.filePath("out");
    QDir().mkpath(out);

    // A child renders one 500-page job and reports its own peak resident memory.
    if (arguments.size() == 5 && arguments.at(1) == "--memory") {
        const Case &c = memoryCases[arguments.at(2).toInt()];
        Options options = optionsFor(c.token, out);
        c.adjust(options);
        options.dpi = arguments.at(3).toInt();
        const QString job = arguments.at(4);
        const long before = peakKiB();
        const Result result = renderJob(options, job, Existing::Replace, 2);
        std::printf(
            "%ld %ld %s\n", before, peakKiB(), result.ok() ? "ok" : qPrintable(result.message));
        return 0;
    }

    // Sections to run: overhead, parallel, memory; all when none is named.
    const auto wanted = [&](const char *section) {
        return arguments.size() == 1 || arguments.contains(QLatin1String(section));
    };
    const QString job10 = makeJob(QDir(dir.path()), 10);
    const QString job100 = wanted("overhead") ? makeJob(QDir(dir.path()), 100) : QString();
    const Case overheadCases[] = {
        {"PNG 150 dpi", "png", [](Options &o) { o.dpi = 150; }},
        {"TIFF LZW one file 150 dpi", "tif", [](Options &o) { o.dpi = 150; }},
        {"PDF, info + AES-128", "pdf",
            [](Options &o) {
                o.pdf.title = "T";
                o.pdf.protect = true;
                o.pdf.userPassword = "u";
            }},
        {"RTF", "rtf", [](Options &) {}},
    };
    std::printf("Plan overhead: a job through renderJob against the same commands (page count "
                "included) run by hand one after another, 1 core each\n");
    std::printf("%-28s %6s %9s %9s %7s %12s\n", "format", "pages", "hand s", "plan s", "ratio",
        "plan 2 cores");
    for (const Case &c : overheadCases) {
        if (!wanted("overhead"))
            break;
        for (const auto &[job, pages] : {std::pair {job10, 10}, std::pair {job100, 100}}) {
            Options options = optionsFor(c.token, out);
            c.adjust(options);
            // Short jobs are run several times side by side, and the medians compared.
            QList<double> hands {byHand(options, job, pages)}, plans {planned(options, job, 1)};
            while (hands.first() < 2.0 && hands.size() < 9) {
                hands << byHand(options, job, pages);
                plans << planned(options, job, 1);
            }
            const double hand = median(hands), plan = median(plans);
            const double two = planned(options, job, 2);
            std::printf("%-28s %6d %9.2f %9.2f %7.3f %12.2f\n", c.label, pages, hand, plan,
                plan / hand, two);
            std::fflush(stdout);
        }
    }

    const Case perPageCases[] = {
        {"JPEG 2000 300 dpi", "jp2", [](Options &) {}},
        {"GIF 256 colours 300 dpi", "gif", [](Options &o) { o.colorCode = "8"; }},
        {"DjVu a file per page 300 dpi", "djvu", [](Options &o) { o.multipageDjvu = false; }},
        {"DjVu one file 300 dpi", "djvu", [](Options &) {}},
    };
    // Other work on the machine slows one run and not the next: each case runs several times,
    // one core and two in turn, and the best of each is compared. The load is printed with them.
    const int runs = 3;
    std::printf("\nPer-page tools, 10 pages: one process at a time against one per core (2 cores), "
                "best of %d runs each\n",
        runs);
    std::printf("%-30s %9s %9s %8s  %s\n", "format", "1 core s", "2 cores s", "speedup",
        "load average (1 min) before each run");
    for (const Case &c : perPageCases) {
        if (!wanted("parallel"))
            break;
        Options options = optionsFor(c.token, out);
        c.adjust(options);
        QList<double> ones, twos;
        QStringList loads;
        for (int run = 0; run < runs; ++run) {
            loads << loadAverage();
            ones << planned(options, job10, 1);
            loads << loadAverage();
            twos << planned(options, job10, 2);
        }
        const double one = *std::min_element(ones.cbegin(), ones.cend());
        const double two = *std::min_element(twos.cbegin(), twos.cend());
        std::printf("%-30s %9.2f %9.2f %8.2f  %s\n", c.label, one, two, one / two,
            qPrintable(loads.join(' ')));
        std::fflush(stdout);
    }

    // The raster formats' resolution is the tools' business alone: it does not change what the
    // rendering process holds, and a low one keeps 500 pages of JPEG 2000 short.
    const QString memoryDpi = arguments.size() > 2 && arguments.at(1) == "memory"
        ? arguments.at(2)
        : QStringLiteral("100");
    std::printf("\nPeak resident memory of the rendering process, 500-page job, raster formats at "
                "%s dpi (tools not counted)\n",
        qPrintable(memoryDpi));
    std::printf("%-40s %10s %10s\n", "format", "start MiB", "peak MiB");
    const QString job500 = wanted("memory") ? makeJob(QDir(dir.path()), 500) : QString();
    for (int i = 0; i < int(std::size(memoryCases)); ++i) {
        if (!wanted("memory"))
            break;
        QProcess child;
        child.start(arguments.first(), {"--memory", QString::number(i), memoryDpi, job500});
        child.waitForFinished(-1);
        const QStringList figures
            = QString::fromLocal8Bit(child.readAllStandardOutput()).split(' ');
        std::printf("%-40s %10.1f %10.1f %s", memoryCases[i].label,
            figures.value(0).toDouble() / 1024, figures.value(1).toDouble() / 1024,
            qPrintable(figures.value(2)));
        std::fflush(stdout);
    }
    return 0;
}
