// SPDX-License-Identifier: GPL-3.0-or-later
// How one print job runs, from the command line to the exit status the driver waits for.
#include "app/runprotocol.h"

#include "app/filesavedialog.h"
#include "dialog/mainwindow.h"
#include "platform/windoworder.h"
#include "settings/jobsettings.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QTranslator>

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

namespace {

// Where the translations lie among the program's resources.
const QString translationPrefix = QStringLiteral(":/i18n/fmtask_");

// A locale without translations: C, POSIX, or C with a character set ("C.UTF-8").
bool isPlainLocale(const QString &locale)
{
    return locale == QLatin1String("C") || locale == QLatin1String("POSIX")
        || locale.startsWith(QLatin1String("C."));
}

// The shipped language a locale name stands for ("de_AT.UTF-8@euro" finds "de"), "en" for
// English, or empty.
QString shippedLanguageOf(QString locale, const QStringList &shipped)
{
    locale = locale.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = locale.section(QLatin1Char('_'), 0, 0);
    if (language == QLatin1String("en"))
        return language;
    if (shipped.contains(locale))
        return locale;
    if (shipped.contains(language))
        return language;
    return QString();
}

} // namespace

QStringList shippedLanguages()
{
    // Named by the build, which compiles exactly these translations in.
    return QStringLiteral(FMTASK_LANGUAGES).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString userLanguage(const Environment &environment, const QStringList &shipped)
{
    QString locale;
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment(name);
        if (!locale.isEmpty())
            break;
    }
    if (locale.isEmpty() || isPlainLocale(locale))
        return QString();
    QStringList wanted = environment("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        wanted << locale;
    for (const QString &entry : std::as_const(wanted)) {
        const QString language = shippedLanguageOf(entry, shipped);
        if (language == QLatin1String("en"))
            return QString();
        if (!language.isEmpty())
            return language;
    }
    return QString();
}

bool installTranslation(const QString &language)
{
    QCoreApplication *application = QCoreApplication::instance();
    // Both stay with the application for the whole run.
    auto *own = new QTranslator(application);
    if (!own->load(translationPrefix + language + QStringLiteral(".qm"))) {
        delete own;
        return false;
    }
    auto *toolkit = new QTranslator(application);
    if (toolkit->load(QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    else
        delete toolkit;
    QCoreApplication::installTranslator(own);
    return true;
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

    // Only the variables the start-up rules ask for are read, each when asked for.
    const Environment environment = [](const char *name) { return qEnvironmentVariable(name); };
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
