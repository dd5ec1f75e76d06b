#include "mainwindow.h"

void MainWindow::readAllUsersFlag() { }
void MainWindow::loadSettings() { }
void MainWindow::saveAllSettings() { }
void MainWindow::saveSettingsTo(SettingsScope) { }
