// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_SPOOLJOB_H
#define VELLUMIO_SPOOLJOB_H

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

// The spool shared by the backend, which writes jobs as their owner, and the session agent, which
// takes them: where things lie, how a job is named and described. Plain C++, no Qt, so the
// backend stays small; the agent links it as well.
namespace Spool {

// CUPS's exit codes for backends.
enum class BackendStatus {
    Ok = 0,
    Failed = 1, // the queue's error policy decides
    Cancel = 5, // the job is dropped
    Retry = 6, // the job is tried again later
};

// The spool root: `configured` when it is an absolute path (the scheduler's SetEnv), else the
// system's own.
std::string rootFolder(const char *configured);
inline constexpr char rootVariable[] = "VELLUMIO_SPOOL";
std::string userFolder(const std::string &root, uid_t uid);
// Touched by the backend whenever it creates a user's folder, so an agent waiting for its folder
// can watch something it may read (the root itself is not listable).
std::string folderStamp(const std::string &root);
// Inside a user's folder: jobs are folders named by jobName() holding the document and its
// description; failed jobs wait in their own folder for a retry.
inline constexpr char failedFolder[] = "failed";
inline constexpr char documentFile[] = "job.pdf";
inline constexpr char infoFile[] = "job.info";
// Prefixes of work in progress: a job being written by the backend, a job being removed.
inline constexpr char incomingPrefix[] = ".incoming-";
inline constexpr char finishedPrefix[] = ".finished-";

// Names sort oldest first: the spooling time in microseconds, then the scheduler's job id.
std::string jobName(long long microseconds, const std::string &jobId);
bool isJobName(const std::string &name);
// Job names in the order they must be taken; other entries are left out.
std::vector<std::string> pendingJobs(std::vector<std::string> entries);

// The words the scheduler hands a backend: job-id user title copies options [file].
struct Arguments
{
    std::string jobId;
    std::string user;
    std::string title;
    std::string copies;
    std::string options;
    std::string file; // empty: the document comes on standard input
};
// Empty when the words are not a job's (wrong count, a job id that is not a number, no user).
std::optional<Arguments> parseArguments(const std::vector<std::string> &words);

// CUPS's own filter that lays out the pages of the document the backend receives, of the type
// `contentType` (the scheduler's FINAL_CONTENT_TYPE), as the job's options ask (a page range,
// several pages on a sheet, reversed order, landscape, ...): "pdftopdf" for PDF, "pstops" for
// PostScript. Empty when the options leave the pages as they are, as most jobs do. The queue hands
// documents on without it, so the backend runs it itself for the jobs that need it.
std::string layoutFilter(const std::string &options, const std::string &contentType);

// What the agent needs besides the document; written beside it as "key=value" lines.
struct Info
{
    std::string jobId;
    std::string user;
    std::string title;
    std::string copies;
    std::string options;
    long long time = 0; // seconds since the epoch
    long long size = 0; // bytes of the document as spooled
};
std::string formatInfo(const Info &info);
// Empty when the text is not a whole description (a job cut short or damaged).
std::optional<Info> parseInfo(const std::string &text);

// Values keep every byte: bytes below 0x20, 0x7f and '%' become "%XX".
std::string encodeValue(const std::string &value);
std::optional<std::string> decodeValue(const std::string &text);

// Who may print. The scheduler authenticates local users; system accounts never get a job.
enum class UserVerdict { Accepted, Unknown, SystemAccount };
struct UidRange
{
    uid_t first = 1000;
    uid_t last = 60000;
};
// UID_MIN and UID_MAX of a login.defs text; the defaults where they are absent or unreadable.
UidRange uidRange(const std::string &loginDefs);
UserVerdict judgeUser(bool found, uid_t uid, const UidRange &range);

// The line `lpinfo -v` shows for a backend called without arguments.
std::string deviceLine();

} // namespace Spool

#endif // VELLUMIO_SPOOLJOB_H
