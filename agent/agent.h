// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_AGENT_H
#define VELLUMIO_AGENT_H

#include "agent/notifier.h"
#include "agent/spoolfolder.h"
#include "render/postscript.h"
#include "render/renderjob.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QProcess>

#include <memory>
#include <optional>

#include <sys/types.h>

// The user's print jobs, one at a time and oldest first: the dialog for each (unless the user
// turned it off), then rendering, then the job leaves the spool. Waits on the spool folder's
// changes; never polls.
class Agent : public QObject
{
    Q_OBJECT

public:
    struct Programs
    {
        QString dialog; // fmtask
        QString messageBox; // for desktops without notifications
    };

    Agent(const SpoolFolder &spool, const Programs &programs, bool once);

    // Begins with the jobs already waiting. False when the spool cannot be served (not installed,
    // or the folder is not the user's own); the user has been told why.
    bool start();

signals:
    // The agent has stopped: nothing left in once mode (0), or the folder cannot be served (1).
    void stopped(int status);

private:
    // The user key's file as last seen: a save replaces it, so any save changes this.
    struct KeyStamp
    {
        bool exists = false;
        dev_t device = 0;
        ino_t inode = 0;
        long long modifiedNs = 0;
        long long size = 0;
        bool operator==(const KeyStamp &other) const;
    };
    static KeyStamp keyStamp();

    void scheduleScan();
    void scan();
    bool watch(const QString &path);
    void takeJob(const QString &name);
    void showDialog();
    void dialogFinished(bool started, bool exitedNormally);
    void render(Render::Existing existing, const QString &name);
    void keepConverterReady();
    void openResult(const QString &file) const;
    void finishJob();
    void failJob(const QString &why);
    void stop(int status);

    SpoolFolder m_spool;
    Programs m_programs;
    Notifier m_notifier;
    bool m_once;
    bool m_scanQueued = false;
    bool m_stopped = false;
    QFileSystemWatcher m_watcher;
    QProcess m_dialog;
    std::optional<SpoolFolder::Job> m_job;
    QString m_jobName; // the spool's name of the current job, also when it could not be read
    QString m_fileName; // the job's title made safe as a file name
    KeyStamp m_markedKey;
    // Started as a PostScript job is taken, so that it starts while the dialog is up, and kept
    // ready after one for the next: a program's jobs come one after another, and without the
    // dialog the interpreter's start is most of the time a short PostScript job takes.
    std::unique_ptr<Render::PostScriptConverter> m_converter;
};

#endif // VELLUMIO_AGENT_H
