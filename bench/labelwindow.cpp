// SPDX-License-Identifier: GPL-3.0-or-later
// The start-up floor of a window that shows text: one label in a main window.
#include <QApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QMainWindow>
#include <QTranslator>

// The floor: the same empty main window with one line of text, which makes the toolkit load the
// system's font database as every window with text must, in the user's language as every
// localized Qt program starts: with Qt's own translation for the locale, where there is one.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTranslator toolkit;
    if (toolkit.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("Vellumio"), &window));
    window.resize(494, 503);
    window.show();
    return application.exec();
}
