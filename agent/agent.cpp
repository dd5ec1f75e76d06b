// SPDX-License-Identifier: GPL-3.0-or-later
// The session agent's job loop: spool folder watched, dialog started and read, job rendered.
#include "agent/agent.h"

#include "agent/jobrules.h"
#include "settings/settingskey.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

#include <csignal>
#include <sys/prctl.h>
#include <sys/stat.h>

namespace {

// A job whose rendering was cut short this often (the agent died in it) is kept aside.
constexpr int maxRenderAttempts = 2;

// The key the dialog reads its options from: the all-users key when the machine key says so.
SettingsScope optionsScope()
{
    return SettingsKey(SettingsScope::Machine).flag(Settings::SettingsForAllUsers)
        ? SettingsScope::Machine
        : SettingsScope::User;
}

} // namespace

bool Agent::KeyStamp::operator==(const KeyStamp &other) const
{
    return exists == other.exists && device == other.device && inode == other.inode
        && modifiedNs == other.modifiedNs && size == other.size;
}

Agent::KeyStamp Agent::keyStamp()
{
    struct stat info;
    KeyStamp stamp;
    if (::stat(QFile::encodeName(SettingsKey::fileName(SettingsScope::User)).constData(), &info)
        != 0)
        return stamp;
    stamp.exists = true;
    stamp.device = info.st_dev;
    stamp.inode = info.st_ino;
    stamp.modifiedNs = info.st_mtim.tv_sec * 1000000000LL + info.st_mtim.tv_nsec;
    stamp.size = info.st_size;
    return stamp;
}

Agent::Agent(const SpoolFolder &spool, const Programs &programs, bool once)
    : m_spool(spool)
    , m_programs(programs)
    , m_notifier(programs.messageBox)
    , m_once(once)
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Agent::scheduleScan);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Agent::scheduleScan);
    connect(&m_dialog, &QProcess::finished, this, [this](int, QProcess::ExitStatus status) {
        dialogFinished(true, status == QProcess::NormalExit);
    });
    connect(&m_dialog, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            dialogFinished(false, false);
    });
    // The dialog goes with the agent: a job left by a killed agent is shown once more, not twice.
    m_dialog.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_dialog.setProcessChannelMode(QProcess::ForwardedChannels);
}

bool Agent::start()
{
    QString why;
    const SpoolFolder::State state = m_spool.check(&why);
    if (state == SpoolFolder::State::Foreign || state == SpoolFolder::State::NoRoot) {
        m_notifier.tell(tr("Vellumio cannot take print jobs"), why);
        return false;
    }
    if (state == SpoolFolder::State::Own)
        m_spool.removeLeftovers();
    scan();
    return true;
}

void Agent::scheduleScan()
{
    if (m_scanQueued)
        return;
    m_scanQueued = true;
    QTimer::singleShot(0, this, [this] {
        m_scanQueued = false;
        scan();
    });
}

void Agent::scan()
{
    if (m_job || m_dialog.state() != QProcess::NotRunning || m_stopped)
        return;
    QString why;
    switch (m_spool.check(&why)) {
    case SpoolFolder::State::Own:
        break;
    case SpoolFolder::State::Missing:
        // No job was ever spooled: wait for the backend to create the folder.
        if (m_once)
            return stop(0);
        if (!watch(m_spool.stamp())) {
            m_notifier.tell(tr("Vellumio cannot wait for print jobs"),
                tr("%1 is missing: install the printer again").arg(m_spool.stamp()));
            return stop(1);
        }
        return;
    case SpoolFolder::State::NoRoot:
    case SpoolFolder::State::Foreign:
        m_notifier.tell(tr("Vellumio stopped taking print jobs"), why);
        return stop(1);
    }
    if (!watch(m_spool.path()) && !m_once) {
        m_notifier.tell(tr("Vellumio stopped taking print jobs"),
            tr("the spool folder cannot be watched: %1").arg(m_spool.path()));
        return stop(1);
    }
    const QStringList jobs = m_spool.pendingJobs();
    if (!jobs.isEmpty())
        takeJob(jobs.first());
    else if (m_once)
        stop(0);
}

bool Agent::watch(const QString &path)
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (watched == QStringList {path})
        return true;
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    return m_watcher.addPath(path);
}

void Agent::takeJob(const QString &name)
{
    QString damage;
    m_jobName = name;
    m_job = m_spool.readJob(name, &damage);
    if (!m_job) {
        m_fileName = name;
        return failJob(damage);
    }
    // Messages name the job by this too: a title is whatever the printing program chose.
    m_fileName = JobRules::safeFileName(QString::fromStdString(m_job->info.title));
    if (Render::isPostScript(m_job->document))
        keepConverterReady();
    if (!JobRules::dialogWanted(SettingsKey(SettingsScope::User).value(Settings::ChDialog)))
        return render(Render::Existing::KeepAll, m_fileName);
    showDialog();
}

void Agent::showDialog()
{
    // Driver contract: "isabort" is set before the dialog starts, so a dialog that is killed,
    // loses its display or cannot save reads as cancelled, never as the previous job's Print.
    const KeyStamp before = keyStamp();
    SettingsKey(SettingsScope::User).setFlag(Settings::IsAbort, true);
    m_markedKey = keyStamp();
    if (m_markedKey == before)
        return failJob(
            tr("the settings file %1 cannot be written, so the dialog's choices would be lost")
                .arg(SettingsKey::fileName(SettingsScope::User)));
    m_dialog.start(m_programs.dialog, {m_fileName});
}

void Agent::dialogFinished(bool started, bool exitedNormally)
{
    if (!m_job)
        return;
    JobRules::DialogEnd end;
    end.started = started;
    end.exitedNormally = exitedNormally;
    end.keyRewritten = !(keyStamp() == m_markedKey);
    end.isAbort = SettingsKey(SettingsScope::User).text(Settings::IsAbort);
    switch (JobRules::afterDialog(end)) {
    case JobRules::AfterDialog::Render:
        // The name and folder are the ones just saved.
        return render(Render::Existing::Replace, QString());
    case JobRules::AfterDialog::Cancelled:
        return finishJob();
    case JobRules::AfterDialog::EndedAbnormally:
        m_notifier.tell(tr("Vellumio did not print \"%1\"").arg(m_fileName),
            tr("The print dialog ended unexpectedly, so the job was cancelled."));
        return finishJob();
    case JobRules::AfterDialog::NotStarted:
        return failJob(tr("the print dialog %1 cannot be started: %2")
                           .arg(m_programs.dialog, m_dialog.errorString()));
    }
}

void Agent::render(Render::Existing existing, const QString &name)
{
    if (m_spool.markRenderAttempt(m_jobName) >= maxRenderAttempts)
        return failJob(tr("rendering was interrupted twice"));
    const bool postScript = Render::isPostScript(m_job->document);
    const Render::Result result = Render::renderJob(
        m_job->document, name, existing, postScript ? m_converter.get() : nullptr);
    if (postScript)
        keepConverterReady();
    if (!result.ok())
        return failJob(result.message);
    if (!result.files.isEmpty() && SettingsKey(optionsScope()).flag(Settings::LoadExtApp))
        openResult(result.files.first());
    finishJob();
}

void Agent::keepConverterReady()
{
    if (m_converter && m_converter->ready())
        return;
    m_converter = std::make_unique<Render::PostScriptConverter>();
    m_converter->start();
}

void Agent::openResult(const QString &file) const
{
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty() || !QProcess::startDetached(opener, {file}))
        m_notifier.tell(tr("Vellumio printed \"%1\"").arg(m_fileName),
            tr("The result is %1; it cannot be opened, as %2 (package %3) is missing.")
                .arg(file, QLatin1String("xdg-open"), QLatin1String("xdg-utils")));
}

void Agent::finishJob()
{
    const QString name = m_jobName;
    m_job.reset();
    // A job that stays in the queue would be shown again and again: set it aside at least.
    if (!m_spool.remove(name) && !m_spool.moveAside(name)) {
        m_notifier.tell(tr("Vellumio stopped taking print jobs"),
            tr("The finished job %1 cannot be removed from %2").arg(name, m_spool.path()));
        return stop(1);
    }
    scheduleScan();
}

void Agent::failJob(const QString &why)
{
    const QString name = m_jobName;
    m_job.reset();
    const bool kept = m_spool.moveAside(name);
    // The cause is one sentence of the message: its own full stop, if it has one, is the message's.
    const QString cause = why.endsWith(QLatin1Char('.')) ? why.chopped(1) : why;
    m_notifier.tell(tr("Vellumio could not print \"%1\"").arg(m_fileName),
        kept ? tr("%1. The job is kept: \"%2\" prints it again.")
                   .arg(cause, QStringLiteral("vellumio-agent --retry"))
             : tr("%1. The job cannot be kept and is dropped.").arg(cause));
    if (!kept && !m_spool.remove(name))
        return stop(1);
    scheduleScan();
}

void Agent::stop(int status)
{
    m_stopped = true;
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    emit stopped(status);
}
