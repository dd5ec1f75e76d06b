// SPDX-License-Identifier: GPL-3.0-or-later
// The start-up floor of a window that shows text: one label in a main window.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

// A second baseline: the same empty main window with one line of text, which makes the toolkit
// load the system's font database as every window with text must.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("Vellumio"), &window));
    window.resize(494, 503);
    window.show();
    return application.exec();
}
