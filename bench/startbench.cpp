// SPDX-License-Identifier: GPL-3.0-or-later
// The start-up benchmark: fmtask against bare and labelled windows, and loading and saving.
#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

struct Options
{
    int pairs = 15;
    int rounds = 200;
    std::string platform;
    std::string language = "de"; // the run's locale; "en" loads no translation
};

// One launch: wall and CPU time from spawn to the probe's line, the child's peak resident memory,
// and the words the probe read through the child's translators.
struct Launch
{
    double milliseconds = 0;
    double cpuMilliseconds = 0; // user and system time, which a busy machine does not stretch
    long maxResidentKiB = 0;
    std::string words;
};

// The locale a user of a language has ("de" is German in Germany).
std::string localeOf(const std::string &language)
{
    if (language == "en")
        return "en_US.UTF-8";
    if (language == "ja")
        return "ja_JP.UTF-8";
    if (language.find('_') != std::string::npos)
        return language + ".UTF-8";
    std::string territory = language;
    std::transform(territory.begin(), territory.end(), territory.begin(), ::toupper);
    return language + '_' + territory + ".UTF-8";
}

double clockMilliseconds(clockid_t clock)
{
    timespec now {};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double nowMilliseconds()
{
    return clockMilliseconds(CLOCK_MONOTONIC);
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

bool parseOptions(int argc, char **argv, Options *options)
{
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (!std::strcmp(argv[i], "--pairs") && hasValue)
            options->pairs = std::max(1, std::atoi(argv[++i]));
        else if (!std::strcmp(argv[i], "--rounds") && hasValue)
            options->rounds = std::max(1, std::atoi(argv[++i]));
        else if (!std::strcmp(argv[i], "--platform") && hasValue)
            options->platform = argv[++i];
        else if (!std::strcmp(argv[i], "--language") && hasValue)
            options->language = argv[++i];
        else
            return false;
    }
    if (options->platform.empty()) {
        const char *display = std::getenv("DISPLAY");
        options->platform = display && *display ? "xcb" : "offscreen";
    }
    return true;
}

// The caller's environment with the settings folders, the platform and the locale of the run
// replaced.
std::vector<std::string> childEnvironment(
    const Options &options, const QString &configHome, const QString &configDirs)
{
    const std::string overrides[] = {
        "XDG_CONFIG_HOME=" + configHome.toStdString(),
        "XDG_CONFIG_DIRS=" + configDirs.toStdString(),
        "QT_QPA_PLATFORM=" + options.platform,
        "LC_ALL=" + localeOf(options.language),
        "LANGUAGE=",
    };
    std::vector<std::string> environment;
    for (char **entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        const bool replaced
            = std::any_of(std::begin(overrides), std::end(overrides), [&](const std::string &o) {
                  return text.compare(0, o.find('=') + 1, o, 0, o.find('=') + 1) == 0;
              });
        if (!replaced)
            environment.push_back(text);
    }
    environment.insert(environment.end(), std::begin(overrides), std::end(overrides));
    return environment;
}

bool launchOnce(const char *program, const std::vector<std::string> &environment, Launch *launch)
{
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return false;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
    // Warnings of the platform plugin would only add noise to the report.
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    std::vector<char *> envp;
    for (const std::string &entry : environment)
        envp.push_back(const_cast<char *>(entry.c_str()));
    envp.push_back(nullptr);
    char argument[] = "Document1";
    char *args[] = {const_cast<char *>(program), argument, nullptr};

    pid_t pid = 0;
    const double start = nowMilliseconds();
    const int spawned = posix_spawn(&pid, program, &actions, nullptr, args, envp.data());
    posix_spawn_file_actions_destroy(&actions);
    close(fds[1]);
    if (spawned != 0) {
        close(fds[0]);
        return false;
    }

    std::string line;
    char buffer[256];
    ssize_t count = 0;
    while (line.find('\n') == std::string::npos
        && (count = read(fds[0], buffer, sizeof buffer)) != 0) {
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            break;
        line.append(buffer, size_t(count));
    }
    const bool sawLine = line.find('\n') != std::string::npos;
    const double end = nowMilliseconds();
    close(fds[0]);

    int status = 0;
    rusage usage {};
    if (wait4(pid, &status, 0, &usage) != pid)
        return false;
    launch->milliseconds = end - start;
    launch->maxResidentKiB = usage.ru_maxrss;
    launch->cpuMilliseconds = double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
    // "exposed", then the words, tab-separated.
    launch->words = line.substr(0, line.find('\n'));
    launch->words.erase(0, launch->words.find('\t') + 1);
    std::replace(launch->words.begin(), launch->words.end(), '\t', ' ');
    return sawLine && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool copySettings(const QString &configHome)
{
    const QString folder = configHome + QStringLiteral("/Tarnwick");
    return QDir().mkpath(folder)
        && QFile::copy(
            QStringLiteral(FMTASK_BENCH_SETTINGS), folder + QStringLiteral("/Vellumio.conf"));
}

struct InProcess
{
    double construct = 0;
    double load = 0;
    double save = 0;
    double loadAndSave = 0;
    double loadAndSaveCpu = 0;
};

double threadCpuMilliseconds()
{
    return clockMilliseconds(CLOCK_THREAD_CPUTIME_ID);
}

// A new modification time makes the settings cache read and parse the file again, as a fresh
// process does.
void touch(const QString &fileName)
{
    static long generation = 1000000;
    const timespec times[2] = {{++generation, 0}, {generation, 0}};
    utimensat(AT_FDCWD, QFile::encodeName(fileName).constData(), times, 0);
}

// Times the dialog inside this process: construction with loading, loading alone from a file
// not yet parsed, and the save that Print does. Wall and CPU time are both kept: the save waits
// for the disk to confirm its writes, which the CPU time leaves out. The first rounds are left
// out so that lazy set-up does not count.
InProcess measureInProcess(int argc, char **argv, int rounds, const QString &settingsFile)
{
    QApplication application(argc, argv);
    JobSettings &job = jobSettings();
    std::vector<double> construct, load, save, loadAndSave, loadAndSaveCpu;
    const int warmUp = 5;
    for (int round = 0; round < warmUp + rounds; ++round) {
        job.newFileName = QStringLiteral("Document1");
        touch(settingsFile);
        const double t0 = nowMilliseconds();
        auto *window = new MainWindow;
        const double t1 = nowMilliseconds();
        touch(settingsFile);
        const double cpu1 = threadCpuMilliseconds();
        const double t2 = nowMilliseconds();
        window->loadSettings();
        const double t3 = nowMilliseconds();
        window->saveAllSettings();
        const double t4 = nowMilliseconds();
        const double cpu4 = threadCpuMilliseconds();
        delete window;
        if (round < warmUp)
            continue;
        construct.push_back(t1 - t0);
        load.push_back(t3 - t2);
        save.push_back(t4 - t3);
        loadAndSave.push_back(t4 - t2);
        loadAndSaveCpu.push_back(cpu4 - cpu1);
    }
    return {
        median(construct), median(load), median(save), median(loadAndSave), median(loadAndSaveCpu)};
}

const char *verdict(bool met)
{
    return met ? "met" : "missed";
}

} // namespace

int main(int argc, char **argv)
{
    Options options;
    if (!parseOptions(argc, argv, &options)) {
        std::fprintf(stderr,
            "usage: %s [--pairs N] [--rounds N] [--platform offscreen|xcb] [--language "
            "de|en|...]\n",
            argv[0]);
        return 2;
    }

    QTemporaryDir work;
    const QString configHome = work.path() + QStringLiteral("/config");
    const QString configDirs = work.path() + QStringLiteral("/xdg");
    if (!work.isValid() || !copySettings(configHome) || !QDir().mkpath(configDirs)) {
        std::fprintf(stderr, "cannot prepare the settings folder\n");
        return 1;
    }
    const std::vector<std::string> environment = childEnvironment(options, configHome, configDirs);

    // fmtask against its floor, the window with one label; the bare window only explains.
    enum { Fmtask, Label, Bare, ProgramCount };
    const char *programs[ProgramCount] = {FMTASK_PROBE, LABEL_PROBE, BARE_PROBE};
    std::vector<double> times[ProgramCount];
    std::vector<double> cpuTimes[ProgramCount];
    std::vector<double> memory[ProgramCount];
    std::string words[ProgramCount];
    // One launch of each first, so that all start with the libraries in the page cache.
    for (int i = -1; i < options.pairs; ++i) {
        for (int which = 0; which < ProgramCount; ++which) {
            Launch launch;
            if (!launchOnce(programs[which], environment, &launch)) {
                std::fprintf(stderr, "%s did not show a window\n", programs[which]);
                return 1;
            }
            words[which] = launch.words;
            if (i >= 0) {
                times[which].push_back(launch.milliseconds);
                cpuTimes[which].push_back(launch.cpuMilliseconds);
                memory[which].push_back(double(launch.maxResidentKiB));
            }
        }
    }

    setenv("XDG_CONFIG_HOME", qPrintable(configHome), 1);
    setenv("XDG_CONFIG_DIRS", qPrintable(configDirs), 1);
    setenv("QT_QPA_PLATFORM", options.platform.c_str(), 1);
    const InProcess inProcess = measureInProcess(
        argc, argv, options.rounds, configHome + QStringLiteral("/Tarnwick/Vellumio.conf"));

    double time[ProgramCount];
    double cpu[ProgramCount];
    double peak[ProgramCount];
    for (int which = 0; which < ProgramCount; ++which) {
        time[which] = median(times[which]);
        cpu[which] = median(cpuTimes[which]);
        peak[which] = median(memory[which]) / 1024;
    }
    const double timeRatio = time[Fmtask] / time[Label];
    const double cpuRatio = cpu[Fmtask] / cpu[Label];
    const double memoryRatio = peak[Fmtask] / peak[Label];

    std::printf("fmtask against a 494x503 QMainWindow with one label, platform %s, locale %s, "
                "%d rounds launched A B C A B C, medians\n",
        options.platform.c_str(), localeOf(options.language).c_str(), options.pairs);
    std::printf("Words through the translators (\"Print\", Qt's \"Cancel\"): fmtask \"%s\", "
                "window with one label \"%s\"\n\n",
        words[Fmtask].c_str(), words[Label].c_str());
    std::printf("| Measure | fmtask | Window with one label | Ratio | Target | Bare window | "
                "Ratio to it |\n");
    std::printf("|---|---|---|---|---|---|---|\n");
    std::printf("| Launch to shown | %.1f ms | %.1f ms | %.3f | <= 1.05 (%s) | %.1f ms | %.2f |\n",
        time[Fmtask], time[Label], timeRatio, verdict(timeRatio <= 1.05), time[Bare],
        time[Fmtask] / time[Bare]);
    std::printf(
        "| CPU time to shown | %.1f ms | %.1f ms | %.3f | <= 1.05 (%s) | %.1f ms | %.2f |\n",
        cpu[Fmtask], cpu[Label], cpuRatio, verdict(cpuRatio <= 1.05), cpu[Bare],
        cpu[Fmtask] / cpu[Bare]);
    std::printf("| Peak resident memory | %.2f MiB | %.2f MiB | %.3f | <= 1.05 (%s) | %.2f MiB | "
                "%.2f |\n",
        peak[Fmtask], peak[Label], memoryRatio, verdict(memoryRatio <= 1.05), peak[Bare],
        peak[Fmtask] / peak[Bare]);
    std::printf(
        "| Construct MainWindow (form + load) | %.2f ms | | | | | |\n", inProcess.construct);
    std::printf("| Load all settings | %.3f ms | | | | | |\n", inProcess.load);
    std::printf("| Save all settings | %.3f ms | | | | | |\n", inProcess.save);
    std::printf("| Load + save | %.3f ms | | | < 2 ms (%s) | | |\n", inProcess.loadAndSave,
        verdict(inProcess.loadAndSave < 2));
    std::printf("| Load + save, CPU only | %.3f ms | | | < 2 ms (%s) | | |\n",
        inProcess.loadAndSaveCpu, verdict(inProcess.loadAndSaveCpu < 2));
    std::printf("\nBoth windows start in the locale's language: fmtask with its own translation "
                "and Qt's, the label window with Qt's, as every localized Qt program does. Like "
                "every window with text, both load the system's font database; the bare window "
                "shows no text and loads none. In process: median of %d rounds with the "
                "realistic settings file, parsed afresh for each load. The save's wall time "
                "includes the two disk flushes of the atomic write (lock file and new file); the "
                "CPU time leaves them out. Launch times include waiting for a core when the "
                "machine is busy; the CPU times do not.\n",
        options.rounds);
    return 0;
}
