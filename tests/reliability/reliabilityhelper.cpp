// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/runprotocol.h"
#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"
#include "tests/support/scriptedprompts.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

// A process of its own for the reliability tests, its keys and output folder as its environment
// names them:
//   save <writer> <rounds> <filler>  per round a new window saves values tagged w<writer>r<round>
//                                    (0 rounds: until killed), saying "writing n" and "saved n"
//   run <argument>                   the program itself; Print is pressed once the dialog shows
namespace {

// Every question stays unanswered and every Save As is cancelled: Print must close the dialog
// without them. Only the program's run shows a dialog; the saving windows stay hidden.
void pressPrintWhenShown()
{
    static ScriptedPrompts prompts;
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *window = qobject_cast<MainWindow *>(widget);
            if (!window || !window->isVisible())
                continue;
            window->findChild<QLineEdit *>("le_filename")
                ->setText(qEnvironmentVariable("FMTASK_OUTPUT_FOLDER") + "/Document1");
            window->pb_print();
            if (!window->isVisible())
                std::puts("closed-by-print"), timer->stop();
        }
    });
    timer->start(30);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(pressPrintWhenShown)

int main(int argc, char *argv[])
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    if (argc > 1 && !qstrcmp(argv[1], "run")) {
        argv[1] = argv[0]; // the program sees its own path and the driver's words
        return RunProtocol::run(--argc, argv + 1);
    }
    QApplication application(argc, argv);
    const int writer = std::atoi(argv[2]), rounds = std::atoi(argv[3]), filler = std::atoi(argv[4]);
    for (int round = 0; rounds == 0 || round < rounds; ++round) {
        const QString tag = QStringLiteral("w%1r%2").arg(writer).arg(round);
        MainWindow window;
        PdfSettings &pdf = jobSettings().pdf;
        pdf.title = pdf.author = pdf.keywords = tag + ':' + QString(filler, 'x') + ':' + tag;
        std::printf("writing %d\n", round);
        window.saveAllSettings();
        std::printf("saved %d\n", round);
    }
    return 0;
}
