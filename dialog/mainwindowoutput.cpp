#include "mainwindow.h"

QString MainWindow::fullOutputFileName() const
{
    return QString();
}
void MainWindow::updateSelectedFilter() { }
void MainWindow::selectFormat(const QString &) { }
void MainWindow::pb_filename() { }
void MainWindow::pb_print() { }
void MainWindow::pb_cancel() { }
