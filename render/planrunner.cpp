// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a render plan: tools in a private work folder, side by side where the plan allows, then
// the finished files moved into place together.
#include "render/planrunner.h"

#include "render/filenames.h"
#include "render/inprocesswrites.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Render {

namespace {

// Below this much free space the disk is taken for full: Ghostscript does not notice when a write
// falls short, so a full disk shows only here.
constexpr qint64 nearlyFull = 64 << 10;
// A tool that runs past its limit has hung: a minute, and a minute per page.
constexpr int secondsPerRun = 60;
constexpr int secondsPerPage = 60;
// How much of a tool's error output is kept to name the cause.
constexpr qsizetype keptErrorOutput = 4096;
// A work folder left this long by a run that no longer holds it is removed by the next run.
constexpr time_t staleSeconds = 24 * 60 * 60;
// The private folders' names: mkdtemp's six characters after the prefix.
constexpr char workPrefix[] = ".vellumio-";
constexpr std::size_t workNameLength = sizeof workPrefix - 1 + 6;

QString oneLine(const QString &text)
{
    QString line = text.simplified();
    for (QChar &ch : line) {
        if (ch.category() == QChar::Other_Control)
            ch = QLatin1Char(' ');
    }
    return line;
}

void keepTail(QByteArray &errors, const QByteArray &more)
{
    errors.append(more);
    if (errors.size() > keptErrorOutput)
        errors.remove(0, errors.size() - keptErrorOutput);
}

// Empties the folder open as `fd`, folders inside it included (tools make none, but a folder that
// was left behind is not trusted to hold files only).
void clearFolder(int fd, int depth = 0)
{
    DIR *dir = ::fdopendir(::dup(fd));
    if (!dir)
        return;
    while (const dirent *entry = ::readdir(dir)) {
        const char *name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0)
            continue;
        if (::unlinkat(fd, name, 0) == 0 || (errno != EISDIR && errno != EPERM) || depth > 8)
            continue;
        const int inner = ::openat(fd, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (inner >= 0) {
            clearFolder(inner, depth + 1);
            ::close(inner);
            ::unlinkat(fd, name, AT_REMOVEDIR);
        }
    }
    ::closedir(dir);
}

// Removes the work folders in the folder open as `folderFd` that a run of this user left more
// than a day ago and that no live run holds: a run holds its folder locked until it ends, however
// it ends, so a folder that can be locked was left by a run that was killed.
void removeStaleWorkFolders(int folderFd)
{
    DIR *dir = ::fdopendir(::dup(folderFd));
    if (!dir)
        return;
    const time_t before = ::time(nullptr) - staleSeconds;
    while (const dirent *entry = ::readdir(dir)) {
        const char *name = entry->d_name;
        struct stat info;
        if (std::strlen(name) != workNameLength
            || std::strncmp(name, workPrefix, sizeof workPrefix - 1) != 0
            || ::fstatat(folderFd, name, &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISDIR(info.st_mode)
            || info.st_uid != ::geteuid() || info.st_mtime > before)
            continue;
        const int fd = ::openat(folderFd, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0)
            continue;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
            clearFolder(fd);
            ::unlinkat(folderFd, name, AT_REMOVEDIR);
        }
        ::close(fd);
    }
    ::closedir(dir);
}

// The job's private folder inside the output folder, held by descriptors so that it is removed
// whole even when the output folder was moved meanwhile.
class WorkFolder
{
public:
    ~WorkFolder() { remove(); }

    // 0 on success, else errno.
    int create(const QString &folder)
    {
        m_folderFd
            = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (m_folderFd < 0)
            return errno;
        QByteArray name = QFile::encodeName(folder) + '/' + workPrefix + "XXXXXX";
        if (!::mkdtemp(name.data()))
            return errno;
        m_path = QFile::decodeName(name);
        m_name = name.mid(name.lastIndexOf('/') + 1);
        m_fd = ::openat(
            m_folderFd, m_name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (m_fd < 0)
            return errno;
        // Held while the run lasts, so that no other run takes the folder for one left behind.
        ::flock(m_fd, LOCK_EX | LOCK_NB);
        return 0;
    }

    QString path() const { return m_path; }
    int fd() const { return m_fd; }
    int folderFd() const { return m_folderFd; }
    bool stillThere() const
    {
        struct stat byPath, byFd;
        return ::stat(QFile::encodeName(m_path).constData(), &byPath) == 0
            && ::fstat(m_fd, &byFd) == 0 && byPath.st_ino == byFd.st_ino
            && byPath.st_dev == byFd.st_dev;
    }
    qint64 freeBytes() const
    {
        struct statvfs info;
        if (::fstatvfs(m_fd, &info) != 0)
            return -1;
        // The blocks kept for the administrator are free to a tool that runs as root.
        return qint64(::geteuid() == 0 ? info.f_bfree : info.f_bavail) * qint64(info.f_frsize);
    }

    // Writes an owner-only file that did not exist.
    bool writeSecret(const QString &name, const QByteArray &content) const
    {
        const int fd = ::openat(m_fd, QFile::encodeName(name).constData(),
            O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        if (fd < 0)
            return false;
        const bool written
            = ::write(fd, content.constData(), size_t(content.size())) == content.size();
        return ::close(fd) == 0 && written;
    }

    void removeFile(const QString &name) const
    {
        ::unlinkat(m_fd, QFile::encodeName(name).constData(), 0);
    }

private:
    void remove()
    {
        if (m_fd >= 0) {
            clearFolder(m_fd);
            ::unlinkat(m_folderFd, m_name.constData(), AT_REMOVEDIR);
            ::close(m_fd);
        }
        if (m_folderFd >= 0)
            ::close(m_folderFd);
        m_fd = m_folderFd = -1;
    }

    int m_folderFd = -1;
    int m_fd = -1;
    QString m_path;
    QByteArray m_name;
};

// The first failure of a run, or the request to stop it; every task stops at its next step once
// either is set, and a running tool is ended.
class Outcome
{
public:
    explicit Outcome(const std::atomic<bool> *stop)
        : m_stop(stop)
    { }
    bool stopped() const { return m_stop && m_stop->load(); }
    const std::atomic<bool> *stopFlag() const { return m_stop; }
    bool failed() const { return m_failed.load() || stopped(); }
    void fail(Failure cause, const QString &message)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_failed.exchange(true))
            m_result = failure(cause, message);
    }
    Result result() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_failed.load() && stopped())
            return failure(Failure::ToolFailed,
                QCoreApplication::translate("Render", "Rendering was stopped."));
        return m_result;
    }

private:
    const std::atomic<bool> *m_stop;
    std::atomic<bool> m_failed {false};
    mutable std::mutex m_mutex;
    Result m_result;
};

class Runner
{
public:
    Runner(const WorkFolder &work, const QString &folder, Outcome &outcome)
        : m_work(work)
        , m_folder(folder)
        , m_outcome(outcome)
    {
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert(QStringLiteral("TMPDIR"), work.path());
        m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    }

    // Runs the tasks of a stage on `parallel` threads, each taking the next task as it is free.
    // The tasks that follow a finished one go first, so that pages are converted before more are
    // rendered and the work folder stays small.
    void runStage(const Stage &stage, int parallel)
    {
        std::deque<const Task *> queue;
        for (const Task &task : stage.tasks)
            queue.push_back(&task);
        std::mutex mutex;
        std::condition_variable changed;
        int running = 0;
        const auto worker = [&] {
            std::unique_lock<std::mutex> lock(mutex);
            for (;;) {
                changed.wait(lock, [&] { return !queue.empty() || running == 0; });
                if (queue.empty() || m_outcome.failed())
                    break;
                const Task *task = queue.front();
                queue.pop_front();
                ++running;
                lock.unlock();
                const bool done = runTask(*task);
                lock.lock();
                --running;
                if (done) {
                    for (auto it = task->then.crbegin(); it != task->then.crend(); ++it)
                        queue.push_front(&*it);
                }
                changed.notify_all();
            }
            changed.notify_all();
        };
        std::vector<std::thread> helpers;
        for (int i = 1; i < parallel; ++i)
            helpers.emplace_back(worker);
        worker();
        for (std::thread &helper : helpers)
            helper.join();
    }

private:
    bool runTask(const Task &task)
    {
        for (const Step &step : task.steps) {
            if (m_outcome.failed())
                return false;
            bool done = step.isWrite ? write(step.write) : run(step.command);
            if (done && diskFull()) {
                failed(QString(), QByteArray());
                done = false;
            }
            for (const QString &file : step.removeAfter)
                m_work.removeFile(file);
            if (!done)
                return false;
        }
        return true;
    }

    bool diskFull() const
    {
        const qint64 free = m_work.freeBytes();
        return free >= 0 && free < nearlyFull;
    }

    bool write(const Write &write)
    {
        const QString error = perform(write, QDir(m_work.path()), m_outcome.stopFlag());
        if (error.isEmpty())
            return true;
        if (m_outcome.failed())
            return false;
        failed(
            QCoreApplication::translate("Render", "Writing %1 failed: %2").arg(write.output, error),
            QByteArray());
        return false;
    }

    bool run(const Command &command)
    {
        if (!command.secretFile.isEmpty()
            && !m_work.writeSecret(command.secretFile, command.secret)) {
            failed(QCoreApplication::translate("Render", "A job file could not be written: %1")
                       .arg(QString::fromLocal8Bit(std::strerror(errno))),
                QByteArray());
            return false;
        }
        const QDir work(m_work.path());
        QProcess process;
        process.setWorkingDirectory(m_work.path());
        process.setProcessEnvironment(m_environment);
        process.setStandardInputFile(command.standardInput.isEmpty()
                ? QProcess::nullDevice()
                : work.filePath(command.standardInput));
        process.setStandardOutputFile(command.standardOutput.isEmpty()
                ? QProcess::nullDevice()
                : work.filePath(command.standardOutput));
        process.start(command.program, command.arguments);

        QByteArray errors;
        QElapsedTimer clock;
        clock.start();
        const qint64 limit = qint64(secondsPerRun + secondsPerPage * command.pages) * 1000;
        bool stopped = false;
        if (process.waitForStarted(-1)) {
            while (!process.waitForFinished(100)) {
                keepTail(errors, process.readAllStandardError());
                if (m_outcome.failed() || clock.elapsed() > limit) {
                    stopped = true;
                    process.kill();
                    process.waitForFinished(-1);
                    break;
                }
            }
        }
        keepTail(errors, process.readAllStandardError());
        if (!command.secretFile.isEmpty())
            m_work.removeFile(command.secretFile);

        if (process.error() == QProcess::FailedToStart) {
            failed(QCoreApplication::translate("Render", "%1 could not be started: %2")
                       .arg(command.program, process.errorString()),
                errors);
            return false;
        }
        if (stopped) {
            if (!m_outcome.failed())
                failed(QCoreApplication::translate("Render", "%1 did not finish in time")
                           .arg(command.program),
                    errors);
            return false;
        }
        const int status = process.exitCode();
        if (process.exitStatus() == QProcess::NormalExit
            && (status == 0 || (command.warningStatus != 0 && status == command.warningStatus)))
            return true;
        const QString cause = lastLine(errors);
        failed(cause.isEmpty() ? QCoreApplication::translate("Render", "%1 failed with status %2")
                                     .arg(command.program)
                                     .arg(status)
                               : QCoreApplication::translate("Render", "%1 failed: %2")
                                     .arg(command.program, cause),
            errors);
        return false;
    }

    // Names the cause of a failed step: the folder gone, the disk full, or the step itself.
    void failed(const QString &message, const QByteArray &errors)
    {
        if (!m_work.stillThere())
            m_outcome.fail(Failure::FolderGone,
                QCoreApplication::translate(
                    "Render", "The output folder disappeared while the job rendered: %1")
                    .arg(m_folder));
        else if (errors.contains("No space left on device") || diskFull())
            m_outcome.fail(Failure::DiskFull,
                QCoreApplication::translate("Render", "The output folder's disk is full: %1")
                    .arg(m_folder));
        else
            m_outcome.fail(Failure::ToolFailed, message);
    }

    const WorkFolder &m_work;
    QString m_folder;
    Outcome &m_outcome;
    QProcessEnvironment m_environment;
};

bool exists(int dirFd, const QByteArray &name)
{
    struct stat info;
    return ::fstatat(dirFd, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0;
}

bool isFolder(int dirFd, const QByteArray &name)
{
    struct stat info;
    return ::fstatat(dirFd, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISDIR(info.st_mode);
}

// Moves the outputs into the folder under `names`, all or none. Files a name replaces go into
// the work folder first, and come back if a later move fails. With `keep`, a name that is taken
// meanwhile fails the whole move instead of replacing.
int moveIntoPlace(
    const WorkFolder &work, const QList<Output> &outputs, const QStringList &names, bool keep)
{
    struct Moved
    {
        QByteArray from;
        QByteArray to;
        QByteArray replaced; // in the work folder; empty when nothing was replaced
    };
    QList<Moved> moved;
    int error = 0;
    for (int i = 0; i < outputs.size(); ++i) {
        Moved move {QFile::encodeName(outputs.at(i).workFile), QFile::encodeName(names.at(i)), {}};
        if (isFolder(work.folderFd(), move.to)) {
            error = EISDIR;
            break;
        }
        if (!keep && exists(work.folderFd(), move.to)) {
            move.replaced = "replaced-" + QByteArray::number(i);
            if (::renameat(
                    work.folderFd(), move.to.constData(), work.fd(), move.replaced.constData())
                != 0) {
                error = errno;
                break;
            }
        }
        const int result = keep
            ? ::renameat2(work.fd(), move.from.constData(), work.folderFd(), move.to.constData(),
                RENAME_NOREPLACE)
            : ::renameat(work.fd(), move.from.constData(), work.folderFd(), move.to.constData());
        if (result != 0) {
            error = errno;
            if (!move.replaced.isEmpty())
                ::renameat(
                    work.fd(), move.replaced.constData(), work.folderFd(), move.to.constData());
            break;
        }
        moved.append(move);
    }
    if (error == 0)
        return 0;
    for (auto it = moved.crbegin(); it != moved.crend(); ++it) {
        ::renameat(work.folderFd(), it->to.constData(), work.fd(), it->from.constData());
        if (!it->replaced.isEmpty())
            ::renameat(work.fd(), it->replaced.constData(), work.folderFd(), it->to.constData());
    }
    return error;
}

// The names the outputs take: their own, or with `Existing::KeepAll` the first " (k)" that
// leaves every file already in the folder alone.
QStringList namesFor(const QList<Output> &outputs, int k)
{
    QStringList names;
    for (const Output &output : outputs) {
        names << (k == 1 ? output.fileName
                         : FileNames::keptAside(output.fileName, output.extension.mid(1), k));
    }
    return names;
}

bool allFree(const WorkFolder &work, const QStringList &names)
{
    for (const QString &name : names) {
        if (exists(work.folderFd(), QFile::encodeName(name)))
            return false;
    }
    return true;
}

} // namespace

QString lastLine(const QByteArray &errors)
{
    const QList<QByteArray> lines = errors.split('\n');
    for (auto it = lines.crbegin(); it != lines.crend(); ++it) {
        const QString line = oneLine(QString::fromUtf8(*it));
        if (!line.isEmpty())
            return line;
    }
    return {};
}

Result failure(Failure cause, const QString &message)
{
    Result result;
    result.failure = cause;
    result.message = oneLine(message);
    return result;
}

QString missingProgram(const QStringList &programs)
{
    for (const QString &program : programs) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return program;
    }
    return {};
}

Result runPlan(const Plan &plan, const QString &folder, Existing existing, int parallel,
    const std::atomic<bool> *stop)
{
    Outcome outcome(stop);
    if (outcome.failed())
        return outcome.result();
    WorkFolder work;
    if (const int error = work.create(folder)) {
        const QString reason = QString::fromLocal8Bit(std::strerror(error));
        if (error == ENOSPC || error == EDQUOT)
            return failure(Failure::DiskFull,
                QCoreApplication::translate("Render", "The output folder's disk is full: %1")
                    .arg(folder));
        return failure(Failure::FolderGone,
            QCoreApplication::translate("Render", "The output folder cannot be written: %1: %2")
                .arg(folder, reason));
    }

    removeStaleWorkFolders(work.folderFd());

    Runner runner(work, folder, outcome);
    for (const Stage &stage : plan.stages) {
        runner.runStage(stage, qMax(1, parallel));
        if (outcome.failed())
            return outcome.result();
    }

    const bool keep = existing == Existing::KeepAll;
    int error = EEXIST;
    QStringList names;
    for (int k = 1; error == EEXIST && k < 10000; ++k) {
        names = namesFor(plan.outputs, k);
        if (keep && !allFree(work, names))
            continue;
        error = moveIntoPlace(work, plan.outputs, names, keep);
        if (!keep && error == EEXIST)
            break;
    }
    if (error != 0) {
        if (!work.stillThere())
            return failure(Failure::FolderGone,
                QCoreApplication::translate(
                    "Render", "The output folder disappeared while the job rendered: %1")
                    .arg(folder));
        return failure(Failure::FolderGone,
            QCoreApplication::translate("Render", "The files could not be moved into %1: %2")
                .arg(folder, QString::fromLocal8Bit(std::strerror(error))));
    }
    Result result;
    for (const QString &name : names)
        result.files << QDir(folder).absoluteFilePath(name);
    return result;
}

} // namespace Render
