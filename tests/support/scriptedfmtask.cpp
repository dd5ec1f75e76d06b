// SPDX-License-Identifier: GPL-3.0-or-later
// The real program with a scripted user, for the suites that run it in processes of their own:
//   NAME            the program's own run: once the dialog shows, Print is pressed with every
//                   question unanswered and every Save As cancelled, and "closed-by-print" said
//                   when that closed it. With $FMTASK_OUTPUT_FOLDER the file name is first set to
//                   Document1 there; with $VELLUMIO_DIALOG_LOG "open NAME" and "close NAME" are
//                   logged there, and a NAME with "hang" waits to be killed when first shown.
//   --save W R F    per round a new hidden window saves values tagged wWrR with F filler
//                   characters (R 0: until killed), saying "writing n" and "saved n"
#include "app/runprotocol.h"
#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"
#include "tests/support/scriptedprompts.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

// Appends a line to the dialog log; what the log held before.
QByteArray log(const QByteArray &line)
{
    QFile file(qEnvironmentVariable("VELLUMIO_DIALOG_LOG"));
    if (file.fileName().isEmpty())
        return {};
    const QByteArray before = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.close();
    if (file.open(QIODevice::Append))
        file.write(line + '\n');
    return before;
}

void pressPrintWhenShown()
{
    static ScriptedPrompts prompts;
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *window = qobject_cast<MainWindow *>(widget);
            if (!window || !window->isVisible())
                continue;
            timer->stop();
            const QByteArray name = jobSettings().newFileName.toUtf8();
            if (!log("open " + name).contains("open " + name + '\n') && name.contains("hang"))
                return;
            if (qEnvironmentVariableIsSet("FMTASK_OUTPUT_FOLDER"))
                window->findChild<QLineEdit *>("le_filename")
                    ->setText(qEnvironmentVariable("FMTASK_OUTPUT_FOLDER") + "/Document1");
            window->pb_print();
            if (!window->isVisible())
                std::puts("closed-by-print");
        }
    });
    timer->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(pressPrintWhenShown)

int main(int argc, char *argv[])
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    if (argc != 5 || qstrcmp(argv[1], "--save") != 0) {
        const int status = RunProtocol::run(argc, argv);
        log("close " + QByteArray(argc > 1 ? argv[1] : ""));
        return status;
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
