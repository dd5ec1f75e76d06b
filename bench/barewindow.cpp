// SPDX-License-Identifier: GPL-3.0-or-later
// The start-up baseline: an empty main window of the dialog's size.
#include <QApplication>
#include <QMainWindow>

// The baseline: an empty main window of the dialog's size, shown the plain way.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(494, 503);
    window.show();
    return application.exec();
}
