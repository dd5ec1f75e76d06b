// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_SPOOLFOLDER_H
#define VELLUMIO_SPOOLFOLDER_H

#include "backend/spooljob.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

#include <sys/types.h>

// One user's spool folder as the agent sees it: checked before it is trusted, jobs listed oldest
// first, finished jobs removed, failed ones kept aside. Only the agent's own user is served.
class SpoolFolder
{
    Q_DECLARE_TR_FUNCTIONS(SpoolFolder)

public:
    SpoolFolder(const QString &root, uid_t uid);

    enum class State {
        Own, // a folder of this user with mode 0700 in a root-owned spool root
        Missing, // no job was ever spooled for this user
        NoRoot, // the printer is not installed
        Foreign, // anything else: never read, never written
    };
    // The state, and for Foreign and NoRoot a sentence saying why.
    State check(QString *why = nullptr) const;

    QString path() const { return m_path; }
    // The file the backend rewrites when it creates a user's folder.
    QString stamp() const { return m_stamp; }

    struct Job
    {
        QString name;
        QString document;
        Spool::Info info;
    };
    QStringList pendingJobs() const;
    // The job read and checked: its description whole, its document a file of the size spooled.
    // Empty, with the reason, when it is damaged.
    std::optional<Job> readJob(const QString &name, QString *damage) const;

    // Counts the rendering attempts of a job, so one that brought the agent down is not tried for
    // ever; returns the attempts before this one.
    int markRenderAttempt(const QString &name) const;
    // A job done: renamed out of the queue first, then deleted. True also when it is gone already.
    bool remove(const QString &name) const;
    // A job that failed waits in the failed folder for a retry.
    bool moveAside(const QString &name) const;
    // Failed jobs back into the queue; returns how many.
    int retryFailed() const;
    // What an interrupted run left: jobs half removed, and jobs the backend never finished writing.
    void removeLeftovers() const;

private:
    QString jobFolder(const QString &name) const;

    QString m_root;
    QString m_path;
    QString m_stamp;
    uid_t m_uid;
};

#endif // VELLUMIO_SPOOLFOLDER_H
