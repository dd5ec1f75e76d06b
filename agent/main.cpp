// SPDX-License-Identifier: GPL-3.0-or-later
// vellumio-agent: one per user session, started with the desktop. It takes the user's print jobs
// from the spool, shows the dialog for each and renders the chosen files.
#include "agent/agent.h"
#include "locale/language.h"
#include "settings/settingskey.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

enum Status { Done = 0, Refused = 1, AlreadyRunning = 3 };

// The printer's private programs: in the installed layout they lie in the libexec folder, in a
// build folder beside the agent.
QString privateProgram(const QString &name)
{
    const QDir here(QCoreApplication::applicationDirPath());
    const QString installed
        = QDir::cleanPath(here.filePath(QStringLiteral(VELLUMIO_LIBEXEC_FROM_BIN "/") + name));
    return QFileInfo(installed).isExecutable() ? installed : here.filePath(name);
}

// One agent per user: the lock goes with the process, however it ends.
bool lockForUser()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QByteArray path = QFile::encodeName(folder + QStringLiteral("/vellumio-agent.lock"));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    return fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}

bool hasDesktop()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void say(const QString &text)
{
    std::fprintf(stderr, "vellumio-agent: %s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vellumio-agent"));
    // Before the first text, the command-line help included.
    const QString language
        = Language::userLanguage(Language::processEnvironment(), Language::shippedLanguages());
    if (!language.isEmpty())
        Language::installTranslation(QStringLiteral("vellumio"), language);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Agent::tr("Shows the Vellumio dialog for each of your print jobs and renders them."));
    parser.addHelpOption();
    const QCommandLineOption once(
        QStringLiteral("once"), Agent::tr("Process the jobs waiting now, then exit."));
    const QCommandLineOption retry(
        QStringLiteral("retry"), Agent::tr("Put the jobs that failed back into the queue."));
    const QCommandLineOption showDialog(QStringLiteral("show-dialog"),
        Agent::tr("Show the dialog again for the next jobs (after \"Show this dialog next time\" "
                  "was unticked)."));
    parser.addOptions({once, retry, showDialog});
    parser.process(application);

    const SpoolFolder spool(
        QFile::decodeName(Spool::rootFolder(std::getenv(Spool::rootVariable)).c_str()), ::getuid());
    if (parser.isSet(showDialog)) {
        SettingsKey(SettingsScope::User).setText(Settings::ChDialog, QStringLiteral("true"));
        say(Agent::tr("the dialog is shown again for the next print jobs"));
        return Done;
    }
    QString why;
    const SpoolFolder::State state = spool.check(&why);
    if (state == SpoolFolder::State::Foreign || state == SpoolFolder::State::NoRoot) {
        say(why);
        return Refused;
    }
    if (parser.isSet(retry)) {
        const int moved = state == SpoolFolder::State::Own ? spool.retryFailed() : 0;
        say(Agent::tr("failed jobs back in the queue: %1").arg(moved));
        return Done;
    }
    if (!lockForUser()) {
        say(Agent::tr("another %1 already serves this user")
                .arg(QCoreApplication::applicationName()));
        return AlreadyRunning;
    }
    if (!hasDesktop()) {
        say(Agent::tr("no desktop session (%1 or %2) to show the dialog in")
                .arg(QLatin1String("DISPLAY"), QLatin1String("WAYLAND_DISPLAY")));
        return Refused;
    }

    Agent agent(spool,
        {privateProgram(QStringLiteral("fmtask")),
            privateProgram(QStringLiteral("vellumio-message"))},
        parser.isSet(once));
    QObject::connect(
        &agent, &Agent::stopped, &application, &QCoreApplication::exit, Qt::QueuedConnection);
    if (!agent.start())
        return Refused;
    return application.exec();
}
