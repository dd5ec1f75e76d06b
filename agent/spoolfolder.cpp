// SPDX-License-Identifier: GPL-3.0-or-later
// The agent's side of the spool: checks, listing, reading and removing jobs of its own user.
#include "agent/spoolfolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char attemptsFile[] = "attempts";
constexpr qint64 maxInfoBytes = 1 << 20;
// A job the backend did not finish writing in this time was interrupted.
constexpr qint64 incomingLifetimeSeconds = 24 * 3600;

QString fromLocal(const std::string &text)
{
    return QString::fromStdString(text);
}

std::string toLocal(const QString &text)
{
    return text.toStdString();
}

// Reads a small file without following a link in its place.
std::optional<QByteArray> readPlainFile(const QString &path, qint64 limit)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return std::nullopt;
    }
    QByteArray bytes = file.read(limit + 1);
    if (bytes.size() > limit)
        return std::nullopt;
    return bytes;
}

} // namespace

SpoolFolder::SpoolFolder(const QString &root, uid_t uid)
    : m_root(root)
    , m_path(fromLocal(Spool::userFolder(toLocal(root), uid)))
    , m_stamp(fromLocal(Spool::folderStamp(toLocal(root))))
    , m_uid(uid)
{ }

SpoolFolder::State SpoolFolder::check(QString *why) const
{
    const auto say = [why](const QString &text) {
        if (why)
            *why = text;
    };
    struct stat info;
    if (::lstat(QFile::encodeName(m_root).constData(), &info) != 0) {
        say(tr("the printer is not installed: there is no spool folder %1").arg(m_root));
        return State::NoRoot;
    }
    if (!S_ISDIR(info.st_mode) || info.st_uid != 0 || (info.st_mode & (S_IWGRP | S_IWOTH))) {
        say(tr("the spool folder %1 is not a folder of root closed to others").arg(m_root));
        return State::Foreign;
    }
    if (::lstat(QFile::encodeName(m_path).constData(), &info) != 0)
        return State::Missing;
    if (!S_ISDIR(info.st_mode) || info.st_uid != m_uid || (info.st_mode & 07777) != 0700) {
        say(tr("%1 is not this user's own folder with mode %2")
                .arg(m_path, QStringLiteral("0700")));
        return State::Foreign;
    }
    return State::Own;
}

QStringList SpoolFolder::pendingJobs() const
{
    std::vector<std::string> entries;
    const QStringList names = QDir(m_path).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names)
        entries.push_back(toLocal(name));
    QStringList jobs;
    for (const std::string &name : Spool::pendingJobs(entries))
        jobs += fromLocal(name);
    return jobs;
}

std::optional<SpoolFolder::Job> SpoolFolder::readJob(const QString &name, QString *damage) const
{
    const auto damaged = [damage](const QString &text) {
        *damage = text;
        return std::nullopt;
    };
    const QString folder = jobFolder(name);
    struct stat info;
    if (::lstat(QFile::encodeName(folder).constData(), &info) != 0 || !S_ISDIR(info.st_mode)
        || info.st_uid != m_uid)
        return damaged(tr("the job's folder is missing or not the user's own"));
    const std::optional<QByteArray> text
        = readPlainFile(folder + QLatin1Char('/') + QLatin1String(Spool::infoFile), maxInfoBytes);
    const std::optional<Spool::Info> description
        = text ? Spool::parseInfo(text->toStdString()) : std::nullopt;
    if (!description)
        return damaged(tr("the job's description is missing or damaged"));
    Job job {name, folder + QLatin1Char('/') + QLatin1String(Spool::documentFile), *description};
    if (::lstat(QFile::encodeName(job.document).constData(), &info) != 0 || !S_ISREG(info.st_mode)
        || info.st_uid != m_uid)
        return damaged(tr("the job's document is missing"));
    if (info.st_size != description->size)
        return damaged(tr("the job's document is incomplete"));
    return job;
}

int SpoolFolder::markRenderAttempt(const QString &name) const
{
    const QString path = jobFolder(name) + QLatin1Char('/') + QLatin1String(attemptsFile);
    const int before = readPlainFile(path, 32).value_or(QByteArray()).trimmed().toInt();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray::number(before + 1) + '\n'), file.commit();
    return before;
}

bool SpoolFolder::remove(const QString &name) const
{
    // Already gone (the user removed it): nothing is left to show again.
    struct stat info;
    if (::lstat(QFile::encodeName(jobFolder(name)).constData(), &info) != 0 && errno == ENOENT)
        return true;
    const QString finished
        = m_path + QLatin1Char('/') + QLatin1String(Spool::finishedPrefix) + name;
    return QDir().rename(jobFolder(name), finished) && QDir(finished).removeRecursively();
}

bool SpoolFolder::moveAside(const QString &name) const
{
    const QString failed = m_path + QLatin1Char('/') + QLatin1String(Spool::failedFolder);
    ::mkdir(QFile::encodeName(failed).constData(), 0700);
    return QDir().rename(jobFolder(name), failed + QLatin1Char('/') + name);
}

int SpoolFolder::retryFailed() const
{
    const QDir failed(m_path + QLatin1Char('/') + QLatin1String(Spool::failedFolder));
    int moved = 0;
    const QStringList names = failed.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (!Spool::isJobName(toLocal(name)))
            continue;
        QFile::remove(failed.filePath(name) + QLatin1Char('/') + QLatin1String(attemptsFile));
        if (QDir().rename(failed.filePath(name), jobFolder(name)))
            ++moved;
    }
    return moved;
}

void SpoolFolder::removeLeftovers() const
{
    const QDir folder(m_path);
    const QDateTime stale = QDateTime::currentDateTimeUtc().addSecs(-incomingLifetimeSeconds);
    const QFileInfoList entries
        = folder.entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString name = entry.fileName();
        const bool finished = name.startsWith(QLatin1String(Spool::finishedPrefix));
        const bool abandoned = name.startsWith(QLatin1String(Spool::incomingPrefix))
            && entry.lastModified().toUTC() < stale;
        if ((finished || abandoned) && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
    }
}

QString SpoolFolder::jobFolder(const QString &name) const
{
    return m_path + QLatin1Char('/') + name;
}
