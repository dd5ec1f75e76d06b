// SPDX-License-Identifier: GPL-3.0-or-later
// The agent's message box for desktops without a notification service: the first line of
// VELLUMIO_MESSAGE is the summary, the rest the details. The agent wrote it in the user's language;
// the box's own button follows the same language.
#include "locale/language.h"

#include <QApplication>
#include <QMessageBox>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString language
        = Language::userLanguage(Language::processEnvironment(), Language::shippedLanguages());
    if (!language.isEmpty())
        Language::installToolkitTranslation(language);
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
