// SPDX-License-Identifier: GPL-3.0-or-later
// How one print job runs, from the command line to the exit status the driver waits for.
#include "app/runprotocol.h"

#include "app/filesavedialog.h"
#include "dialog/mainwindow.h"
#include "platform/windoworder.h"
#include "settings/jobsettings.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>

namespace RunProtocol {

QString programFileName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("fmtask.exe");
#else
    return QStringLiteral("fmtask");
#endif
}

QString converterFileName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("dxconv.exe");
#else
    return QStringLiteral("dxconv");
#endif
}

QString converterPath(const QString &programPath)
{
    const QString program = programFileName();
    QString path = programPath;
    const qsizetype position = path.indexOf(program);
    if (position >= 0)
        path.remove(position, program.size());
    else
        path.chop(1); // the not-found position counts from the end
    return path + converterFileName();
}

void centreOnScreen(QWidget *window)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect available = screen->geometry();
    const QRect frame = window->frameGeometry();
    // Driver contract: integer division truncates toward zero.
    window->move(
        (available.right() - frame.width()) / 2, (available.bottom() - frame.height()) / 2);
}

bool installTranslation(const QString &language)
{
    return Language::installTranslation(QStringLiteral("fmtask"), language);
}

QByteArray preferredPlatform(const Environment &environment)
{
    const auto isSet = [&environment](const char *name) { return !environment(name).isEmpty(); };
    if (isSet("QT_QPA_PLATFORM") || !isSet("WAYLAND_DISPLAY") || !isSet("DISPLAY"))
        return QByteArray();
    return QByteArrayLiteral("xcb;wayland");
}

bool startStep(MainWindow &window)
{
    if (jobSettings().saveAsOnly)
        return SaveAsOnly::startStep(window);
    window.show();
    WindowOrder::setTopmost(&window);
    return true;
}

int run(int argc, char **argv)
{
    if (argc < 2)
        return 0;

    JobSettings &job = jobSettings();
    job.converterPath = converterPath(QString::fromLocal8Bit(argv[0]));

    const Environment environment = Language::processEnvironment();
    // Driver contract: the one argument is the proposed file name and nothing else. Qt is given
    // only the program's path, so a name such as "-reverse" or "-stylesheet=x.qss" stays a name;
    // the platform, when the session calls for one, is the program's own choice.
    QByteArray platform = preferredPlatform(environment);
    char platformOption[] = "-platform";
    char *qtArgv[] = {argv[0], platformOption, platform.data(), nullptr};
    int qtArgc = 3;
    if (platform.isEmpty()) {
        qtArgc = 1;
        qtArgv[1] = nullptr;
    }
    QApplication application(qtArgc, qtArgv);
    const QString language = userLanguage(environment, shippedLanguages());
    if (!language.isEmpty())
        installTranslation(language);
    job.newFileName = QString::fromLocal8Bit(argv[1]);

    MainWindow window;
    if (!job.saveAsOnly)
        centreOnScreen(&window);
    while (!startStep(window)) { }
    if (!job.saveAsOnly)
        application.exec();
    // The driver learns the outcome from the exchange values only; the status is always 0.
    return 0;
}

} // namespace RunProtocol
