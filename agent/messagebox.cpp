// SPDX-License-Identifier: GPL-3.0-or-later
// The agent's message box for desktops without a notification service: the first line of
// VELLUMIO_MESSAGE is the summary, the rest the details.
#include <QApplication>
#include <QMessageBox>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString message = qEnvironmentVariable("VELLUMIO_MESSAGE");
    if (message.isEmpty())
        return 0;
    QMessageBox box;
    box.setWindowTitle(QStringLiteral("Vellumio"));
    box.setText(message.section(QLatin1Char('\n'), 0, 0));
    box.setInformativeText(message.section(QLatin1Char('\n'), 1));
    box.exec();
    return 0;
}
