#include "taggedvalue.h"

#include "jobsettings.h"
#include "mainwindow.h"
#include "prompts.h"
#include "runprotocol.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <QtPlugin>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/resource.h>

// Runs the real saving code, or the whole program, in a process of its own for the reliability
// tests:
//   save <writer> <rounds> <filler> <folder>   one window per round, each saved with tagged values
//   loop <writer> <filler> <folder>            the same until killed, telling each save's start and
//   end fill <bytes> <writer> <filler> <folder>    one save with the file size limited, as on a
//   full disk run <argument>                             the program itself; Print is pressed once
//   it is shown
namespace {

void say(const char *what, int round);

// One job: a new window loads the key, takes the tagged values and saves them. In the loop mode
// it tells when the save itself begins, so that a kill can be aimed at it.
void saveTagged(const QString &tag, int filler, const QString &folder, int round = -1)
{
    JobSettings &job = jobSettings();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document1");
    MainWindow window;
    const QString value = TaggedValue::make(tag, filler);
    job.pdf.title = value;
    job.pdf.author = value;
    job.pdf.keywords = value;
    job.pdf.userPassword = tag;
    window.findChild<QLineEdit *>(QStringLiteral("le_filename"))
        ->setText(folder + QLatin1Char('/') + tag);
    if (round >= 0)
        say("writing", round);
    window.saveAllSettings();
}

void say(const char *what, int round)
{
    std::printf("%s %d\n", what, round);
    std::fflush(stdout);
}

// Answers every question with Yes and cancels every Save As.
class YesPrompts : public Prompts
{
public:
    QMessageBox::StandardButton message(
        QWidget *, const QString &, const QString &, QMessageBox::StandardButtons) override
    {
        return QMessageBox::Yes;
    }
    QString saveFileName(
        QWidget *, const QString &, const QString &, const QString &, QString *) override
    {
        return QString();
    }
};

// Presses Print once the main dialog is shown, into the folder named by FMTASK_OUTPUT_FOLDER; a
// modal dialog in the way (the save-as-only mode) is cancelled. Whatever stays open after a few
// seconds is closed so that the test reports instead of hanging.
void pressPrintWhenShown()
{
    static YesPrompts prompts;
    Prompts::install(&prompts);
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, [timer] {
        static int ticks = 0;
        // The main dialog is modal itself; only another modal window stands in the way.
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && !qobject_cast<MainWindow *>(modal)) {
            modal->close();
            return;
        }
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *window = qobject_cast<MainWindow *>(widget);
            if (!window || !window->isVisible())
                continue;
            if (ticks++ > 100) {
                say("forced-close", 0);
                window->close();
                return;
            }
            window->findChild<QLineEdit *>(QStringLiteral("le_filename"))
                ->setText(
                    qEnvironmentVariable("FMTASK_OUTPUT_FOLDER") + QStringLiteral("/Document1"));
            window->pb_print();
            if (!window->isVisible()) {
                say("closed-by-print", 0);
                timer->stop();
            }
        }
    });
    timer->start(30);
}

bool runningProgram = false;

void installRunHooks()
{
    if (runningProgram)
        pressPrintWhenShown();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(installRunHooks)

// As in the program: the modern style is linked in and found by name.
Q_IMPORT_PLUGIN(WindowsModernStylePlugin)

int main(int argc, char *argv[])
{
    const char *mode = argc > 1 ? argv[1] : "";
    if (!std::strcmp(mode, "run")) {
        runningProgram = true;
        // The program sees its own path and the remaining words, as the driver starts it.
        argv[1] = argv[0];
        int programArgc = argc - 1;
        const int status = RunProtocol::run(programArgc, argv + 1);
        say("exit-status", status);
        return status;
    }

    QApplication application(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() == 6 && args.at(1) == QLatin1String("save")) {
        const int writer = args.at(2).toInt();
        for (int round = 0; round < args.at(3).toInt(); ++round)
            saveTagged(TaggedValue::tag(writer, round), args.at(4).toInt(), args.at(5));
        return 0;
    }
    if (args.size() == 5 && args.at(1) == QLatin1String("loop")) {
        const int writer = args.at(2).toInt();
        for (int round = 0;; ++round) {
            say("saving", round);
            saveTagged(TaggedValue::tag(writer, round), args.at(3).toInt(), args.at(4), round);
            say("saved", round);
        }
    }
    if (args.size() == 6 && args.at(1) == QLatin1String("fill")) {
        // Past the limit writes fail with EFBIG instead of raising SIGXFSZ, like a full disk.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit {rlim_t(args.at(2).toLongLong()), rlim_t(args.at(2).toLongLong())};
        setrlimit(RLIMIT_FSIZE, &limit);
        saveTagged(TaggedValue::tag(args.at(3).toInt(), 0), args.at(4).toInt(), args.at(5));
        say("saved", 0);
        return 0;
    }
    std::fprintf(stderr, "unknown mode\n");
    return 2;
}
