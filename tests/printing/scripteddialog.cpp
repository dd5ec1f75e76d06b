// SPDX-License-Identifier: GPL-3.0-or-later
// The real dialog program with a scripted user, put beside a copy of the agent as its "fmtask". It
// logs "open NAME" when shown and "close NAME" when it ends, to $VELLUMIO_DIALOG_LOG; a name with
// "hang" waits to be killed the first time it is shown, "cancel" presses Cancel, any other Print.
#include "app/runprotocol.h"
#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"
#include "tests/support/scriptedprompts.h"

#include <QApplication>
#include <QFile>
#include <QTimer>

namespace {

QByteArray log(const QByteArray &line)
{
    QFile file(qEnvironmentVariable("VELLUMIO_DIALOG_LOG"));
    const QByteArray before = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.close();
    if (file.open(QIODevice::Append))
        file.write(line + '\n');
    return before;
}

void actWhenShown()
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
            const bool shownBefore = log("open " + name).contains("open " + name + '\n');
            if (name.contains("hang") && !shownBefore)
                return;
            if (name.contains("cancel"))
                window->pb_cancel();
            else
                window->pb_print();
        }
    });
    timer->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(actWhenShown)

int main(int argc, char *argv[])
{
    const QByteArray name = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    const int status = RunProtocol::run(argc, argv);
    log("close " + name);
    return status;
}
