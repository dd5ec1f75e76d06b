// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a job into its owner's spool folder: the folders prepared as root, the files as the user.
#include "backend/spoolwriter.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <grp.h>
#include <pwd.h>
#include <sstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <fcntl.h>

namespace Spool {

namespace {

volatile std::sig_atomic_t cancelled = 0;

// Closes a descriptor when it goes out of scope.
struct Descriptor
{
    explicit Descriptor(int value = -1)
        : fd(value)
    { }
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int fd;
};

Outcome failure(BackendStatus status, const std::string &what)
{
    return {status, "ERROR: " + what};
}

Outcome systemFailure(const std::string &what)
{
    const int error = errno;
    // A full disk or quota clears by itself: the scheduler tries the job again later.
    const bool transient = error == ENOSPC || error == EDQUOT;
    return failure(transient ? BackendStatus::Retry : BackendStatus::Failed,
        what + ": " + std::strerror(error));
}

std::string readWholeFile(const char *path)
{
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

bool writeAll(int fd, const char *data, size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(fd, data, size);
        if (written < 0 && errno == EINTR && !cancelled)
            continue;
        if (written <= 0)
            return false;
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

// The stamp an agent waiting for its folder watches (the root itself is not readable by users).
// It is rewritten in place, never replaced, so a watch on it holds.
void touchStamp(const std::string &root, const std::string &line, int extraFlags)
{
    Descriptor stamp(::open(
        folderStamp(root).c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | extraFlags, 0644));
    if (stamp.fd < 0)
        return;
    ::fchmod(stamp.fd, 0644);
    writeAll(stamp.fd, line.data(), line.size());
}

// The root belongs to root and only root writes it, so nobody else can put or swap a user's folder.
Outcome prepareRoot(const std::string &root)
{
    if (::mkdir(root.c_str(), 0711) == 0)
        ::chmod(root.c_str(), 0711);
    else if (errno != EEXIST)
        return systemFailure("cannot create the spool folder " + root);
    struct stat info;
    if (::lstat(root.c_str(), &info) != 0)
        return systemFailure("cannot read the spool folder " + root);
    if (!S_ISDIR(info.st_mode) || info.st_uid != 0 || (info.st_mode & (S_IWGRP | S_IWOTH))
        || !(info.st_mode & S_IXOTH))
        return failure(BackendStatus::Failed,
            "the spool folder " + root + " must be a folder of root with mode 0711");
    touchStamp(root, std::string(), O_EXCL);
    return {};
}

// Creates the user's folder when it is missing and opens it; refuses anything but a folder of the
// user's own with mode 0700. A new folder is made whole under a temporary name and renamed into
// place, so a backend running beside this one never sees it half given to its user.
Outcome openUserFolder(const std::string &root, uid_t uid, gid_t gid, int &folder)
{
    const std::string path = userFolder(root, uid);
    struct stat info;
    if (::lstat(path.c_str(), &info) != 0 && errno == ENOENT) {
        const std::string fresh
            = root + "/" + incomingPrefix + std::to_string(uid) + '-' + std::to_string(::getpid());
        if (::mkdir(fresh.c_str(), 0700) != 0)
            return systemFailure("cannot create " + path);
        if (::lchown(fresh.c_str(), uid, gid) != 0 || ::chmod(fresh.c_str(), 0700) != 0) {
            const Outcome outcome = systemFailure("cannot give " + path + " to its user");
            ::rmdir(fresh.c_str());
            return outcome;
        }
        if (::renameat2(AT_FDCWD, fresh.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0)
            touchStamp(root, std::to_string(uid) + '\n', O_TRUNC);
        else
            ::rmdir(fresh.c_str());
    }
    folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0 || ::fstat(folder, &info) != 0 || info.st_uid != uid
        || (info.st_mode & 07777) != 0700)
        return failure(BackendStatus::Cancel,
            "refused: " + path + " is not a folder of user " + std::to_string(uid)
                + " with mode 0700");
    return {};
}

// For good: the saved ids go too, and no program started later may gain privileges.
Outcome dropTo(uid_t uid, gid_t gid)
{
    if (::setgroups(1, &gid) != 0 || ::setresgid(gid, gid, gid) != 0
        || ::setresuid(uid, uid, uid) != 0 || ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return systemFailure("cannot change to the job's user");
    if (::setuid(0) == 0 || ::geteuid() != uid)
        return failure(BackendStatus::Failed, "privileges could not be dropped");
    return {};
}

// Copies the document; the number of bytes, or -1 (errno set) on failure.
long long copyDocument(int input, int output)
{
    std::vector<char> buffer(1 << 16);
    long long total = 0;
    for (;;) {
        const ssize_t got = ::read(input, buffer.data(), buffer.size());
        if (cancelled) {
            errno = ECANCELED;
            return -1;
        }
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            return total;
        if (!writeAll(output, buffer.data(), static_cast<size_t>(got)))
            return -1;
        total += got;
    }
}

// CUPS's layout filter for a job, as the scheduler would have run it before the backend, but as
// the job's user: the document on its input, the queue's description (read as root before) in a
// private memory file, since the user may not read the scheduler's copy.
struct LayoutFilter
{
    std::string program; // empty: the document is spooled as it came
    std::string description;
    std::string temporary; // the folder of its temporary files: the job's own while it is written
};

// Starts `filter` on `input`; the descriptor of its output, or -1 (errno set).
int startFilter(const LayoutFilter &filter, const Arguments &arguments, int input, pid_t &child)
{
    int description = -1;
    if (!filter.description.empty()) {
        description = ::memfd_create("ppd", 0);
        if (description < 0
            || !writeAll(description, filter.description.data(), filter.description.size()))
            return -1;
    }
    int output[2];
    if (::pipe2(output, O_CLOEXEC) != 0)
        return -1;
    child = ::fork();
    if (child == 0) {
        if (::dup2(input, STDIN_FILENO) < 0 || ::dup2(output[1], STDOUT_FILENO) < 0)
            ::_exit(127);
        ::setenv("TMPDIR", filter.temporary.c_str(), 1);
        if (description >= 0)
            ::setenv("PPD", ("/proc/self/fd/" + std::to_string(description)).c_str(), 1);
        else
            ::unsetenv("PPD");
        const char *words[] = {filter.program.c_str(), arguments.jobId.c_str(),
            arguments.user.c_str(), arguments.title.c_str(), arguments.copies.c_str(),
            arguments.options.c_str(), nullptr};
        ::execv(words[0], const_cast<char *const *>(words));
        ::_exit(127);
    }
    const int error = errno;
    ::close(output[1]);
    if (description >= 0)
        ::close(description);
    if (child < 0) {
        ::close(output[0]);
        errno = error;
        return -1;
    }
    return output[0];
}

Outcome writeFile(int folder, const char *name, int input, const std::string &text, long long &size)
{
    Descriptor file(
        ::openat(folder, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (file.fd < 0)
        return systemFailure(std::string("cannot create ") + name);
    if (input >= 0)
        size = copyDocument(input, file.fd);
    else
        size = writeAll(file.fd, text.data(), text.size()) ? 0 : -1;
    if (size < 0 || ::fsync(file.fd) != 0)
        return systemFailure(std::string("cannot write ") + name);
    const int fd = file.fd;
    file.fd = -1;
    if (::close(fd) != 0)
        return systemFailure(std::string("cannot write ") + name);
    return {};
}

// The document through the layout filter into the job's folder.
Outcome writeFiltered(int job, int input, LayoutFilter filter, const Arguments &arguments,
    const std::string &incoming, long long &size)
{
    filter.temporary += "/" + incoming;
    pid_t child = -1;
    Descriptor output(startFilter(filter, arguments, input, child));
    if (output.fd < 0)
        return systemFailure("cannot start " + filter.program);
    Outcome outcome = writeFile(job, documentFile, output.fd, std::string(), size);
    ::close(output.fd);
    output.fd = -1;
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (outcome.ok() && !(WIFEXITED(status) && WEXITSTATUS(status) == 0))
        outcome = failure(BackendStatus::Failed, filter.program + " could not lay out the pages");
    return outcome;
}

// The job is written under a temporary name and renamed whole into place, so an agent never sees
// half a job.
Outcome writeJob(
    int folder, int input, Info info, const LayoutFilter &filter, const Arguments &arguments)
{
    timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    info.time = now.tv_sec;
    const std::string name = jobName(now.tv_sec * 1000000LL + now.tv_nsec / 1000, info.jobId);
    const std::string incoming = incomingPrefix + info.jobId + '-' + std::to_string(::getpid());
    if (::mkdirat(folder, incoming.c_str(), 0700) != 0)
        return systemFailure("cannot create the job's folder");
    Outcome outcome;
    {
        Descriptor job(
            ::openat(folder, incoming.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        long long ignored = 0;
        if (job.fd < 0)
            outcome = systemFailure("cannot open the job's folder");
        if (outcome.ok())
            outcome = filter.program.empty()
                ? writeFile(job.fd, documentFile, input, std::string(), info.size)
                : writeFiltered(job.fd, input, filter, arguments, incoming, info.size);
        if (outcome.ok())
            outcome = writeFile(job.fd, infoFile, -1, formatInfo(info), ignored);
        if (outcome.ok()
            && ::renameat2(folder, incoming.c_str(), folder, name.c_str(), RENAME_NOREPLACE) != 0)
            outcome = systemFailure("cannot put the job in place");
        if (!outcome.ok() && job.fd >= 0) {
            ::unlinkat(job.fd, documentFile, 0);
            ::unlinkat(job.fd, infoFile, 0);
            ::unlinkat(folder, incoming.c_str(), AT_REMOVEDIR);
        }
    }
    ::fsync(folder);
    return outcome;
}

void stopOnTerminate()
{
    struct sigaction action
    {
    };
    action.sa_handler = [](int) { cancelled = 1; };
    sigemptyset(&action.sa_mask);
    // No SA_RESTART: a read waiting for the document returns, and the job is cleaned up.
    ::sigaction(SIGTERM, &action, nullptr);
}

} // namespace

Outcome spoolJob(const Arguments &arguments, const std::string &root)
{
    if (::geteuid() != 0)
        return failure(BackendStatus::Failed,
            "the vellumio backend must run as root: install it owned by root with mode 0700");
    stopOnTerminate();

    std::vector<char> buffer(16384);
    passwd entry {};
    passwd *found = nullptr;
    ::getpwnam_r(arguments.user.c_str(), &entry, buffer.data(), buffer.size(), &found);
    const UidRange range = uidRange(readWholeFile("/etc/login.defs"));
    switch (judgeUser(found != nullptr, found ? found->pw_uid : 0, range)) {
    case UserVerdict::Unknown:
        return failure(BackendStatus::Cancel, "refused: unknown user " + arguments.user);
    case UserVerdict::SystemAccount:
        return failure(
            BackendStatus::Cancel, "refused: " + arguments.user + " is a system account");
    case UserVerdict::Accepted:
        break;
    }
    const uid_t uid = found->pw_uid;
    const gid_t gid = found->pw_gid;

    Outcome outcome = prepareRoot(root);
    if (!outcome.ok())
        return outcome;
    int folderFd = -1;
    outcome = openUserFolder(root, uid, gid, folderFd);
    Descriptor folder(folderFd);
    if (!outcome.ok())
        return outcome;
    // The document is opened while still root: the scheduler's file is not the user's to read.
    Descriptor document(arguments.file.empty()
            ? ::dup(STDIN_FILENO)
            : ::open(arguments.file.c_str(), O_RDONLY | O_CLOEXEC));
    if (document.fd < 0)
        return systemFailure("cannot open the document");
    LayoutFilter filter;
    const char *type = std::getenv("FINAL_CONTENT_TYPE");
    const std::string program = layoutFilter(arguments.options, type ? type : "");
    if (!program.empty()) {
        const char *serverBin = std::getenv("CUPS_SERVERBIN");
        filter.program
            = std::string(serverBin ? serverBin : "/usr/lib/cups") + "/filter/" + program;
        filter.temporary = userFolder(root, uid);
        if (const char *description = std::getenv("PPD"))
            filter.description = readWholeFile(description);
    }
    outcome = dropTo(uid, gid);
    if (!outcome.ok())
        return outcome;

    Info info;
    info.jobId = arguments.jobId;
    info.user = arguments.user;
    info.title = arguments.title;
    info.copies = arguments.copies;
    info.options = arguments.options;
    outcome = writeJob(folder.fd, document.fd, info, filter, arguments);
    if (outcome.ok())
        outcome.message = "INFO: job " + arguments.jobId + " spooled for " + arguments.user;
    return outcome;
}

} // namespace Spool
