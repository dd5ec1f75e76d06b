#include "jobsettings.h"
#include "mainwindow.h"

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
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

struct Options
{
    int pairs = 15;
    int rounds = 200;
    std::string platform;
};

// One launch: wall time from spawn to the probe's line, and the child's peak resident memory.
struct Launch
{
    double milliseconds = 0;
    long maxResidentKiB = 0;
};

double nowMilliseconds()
{
    timespec now {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
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
        else
            return false;
    }
    if (options->platform.empty()) {
        const char *display = std::getenv("DISPLAY");
        options->platform = display && *display ? "xcb" : "offscreen";
    }
    return true;
}

// The caller's environment with the settings folders and the platform of the run replaced.
std::vector<std::string> childEnvironment(
    const Options &options, const QString &configHome, const QString &configDirs)
{
    const std::string overrides[] = {
        "XDG_CONFIG_HOME=" + configHome.toStdString(),
        "XDG_CONFIG_DIRS=" + configDirs.toStdString(),
        "QT_QPA_PLATFORM=" + options.platform,
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

    bool sawLine = false;
    char buffer[64];
    ssize_t count = 0;
    while (!sawLine && (count = read(fds[0], buffer, sizeof buffer)) != 0) {
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            break;
        sawLine = std::memchr(buffer, '\n', size_t(count)) != nullptr;
    }
    const double end = nowMilliseconds();
    close(fds[0]);

    int status = 0;
    rusage usage {};
    if (wait4(pid, &status, 0, &usage) != pid)
        return false;
    launch->milliseconds = end - start;
    launch->maxResidentKiB = usage.ru_maxrss;
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
};

// Times the dialog inside this process: construction with loading, a second load, and the save
// that Print does. The first rounds are left out so that caches and lazy set-up do not count.
InProcess measureInProcess(int argc, char **argv, int rounds)
{
    QApplication application(argc, argv);
    JobSettings &job = jobSettings();
    std::vector<double> construct, load, save, loadAndSave;
    const int warmUp = 5;
    for (int round = 0; round < warmUp + rounds; ++round) {
        job.newFileName = QStringLiteral("Document1");
        const double t0 = nowMilliseconds();
        auto *window = new MainWindow;
        const double t1 = nowMilliseconds();
        window->loadSettings();
        const double t2 = nowMilliseconds();
        window->saveAllSettings();
        const double t3 = nowMilliseconds();
        delete window;
        if (round < warmUp)
            continue;
        construct.push_back(t1 - t0);
        load.push_back(t2 - t1);
        save.push_back(t3 - t2);
        loadAndSave.push_back(t3 - t1);
    }
    return {median(construct), median(load), median(save), median(loadAndSave)};
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
        std::fprintf(
            stderr, "usage: %s [--pairs N] [--rounds N] [--platform offscreen|xcb]\n", argv[0]);
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

    const char *programs[] = {FMTASK_PROBE, BARE_PROBE};
    std::vector<double> times[2];
    std::vector<double> memory[2];
    // One launch of each first, so that both start with the libraries in the page cache.
    for (int i = -1; i < options.pairs; ++i) {
        for (int which = 0; which < 2; ++which) {
            Launch launch;
            if (!launchOnce(programs[which], environment, &launch)) {
                std::fprintf(stderr, "%s did not show a window\n", programs[which]);
                return 1;
            }
            if (i >= 0) {
                times[which].push_back(launch.milliseconds);
                memory[which].push_back(double(launch.maxResidentKiB));
            }
        }
    }

    setenv("XDG_CONFIG_HOME", qPrintable(configHome), 1);
    setenv("XDG_CONFIG_DIRS", qPrintable(configDirs), 1);
    setenv("QT_QPA_PLATFORM", options.platform.c_str(), 1);
    const InProcess inProcess = measureInProcess(argc, argv, options.rounds);

    const double time[2] = {median(times[0]), median(times[1])};
    const double peak[2] = {median(memory[0]) / 1024, median(memory[1]) / 1024};
    const double timeRatio = time[0] / time[1];
    const double memoryRatio = peak[0] / peak[1];

    std::printf("fmtask against a bare 494x503 QMainWindow, platform %s, %d pairs launched "
                "A B A B, medians\n\n",
        options.platform.c_str(), options.pairs);
    std::printf("| Measure | fmtask | Bare window | Ratio | Target |\n");
    std::printf("|---|---|---|---|---|\n");
    std::printf("| Launch to shown | %.1f ms | %.1f ms | %.2f | <= 1.25 (%s) |\n", time[0], time[1],
        timeRatio, verdict(timeRatio <= 1.25));
    std::printf("| Peak resident memory | %.1f MiB | %.1f MiB | %.2f | <= 1.15 (%s) |\n", peak[0],
        peak[1], memoryRatio, verdict(memoryRatio <= 1.15));
    std::printf("| Construct MainWindow (form + load) | %.2f ms | | | |\n", inProcess.construct);
    std::printf("| Load all settings | %.3f ms | | | |\n", inProcess.load);
    std::printf("| Save all settings | %.3f ms | | | |\n", inProcess.save);
    std::printf("| Load + save | %.3f ms | | | < 2 ms (%s) |\n", inProcess.loadAndSave,
        verdict(inProcess.loadAndSave < 2));
    std::printf(
        "\nIn process: median of %d rounds with the realistic settings file.\n", options.rounds);
    return 0;
}
