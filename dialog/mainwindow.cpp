#include "mainwindow.h"
#include "ui_mainwindow.h"

#include <QKeyEvent>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::MainWindow)
{
    ui->setupUi(this);
}

MainWindow::~MainWindow()
{
    delete ui;
}

void MainWindow::refillColorModes(int) { }
void MainWindow::pb_pdf_protect() { }
void MainWindow::rb_pefix_1() { }
void MainWindow::rb_pefix_custom() { }
void MainWindow::cb_combobox_currentIndexChanged(const QString &) { }
void MainWindow::rb_1(bool) { }
void MainWindow::rb_2(bool) { }
void MainWindow::rb_3(bool) { }
void MainWindow::rb_4(bool) { }
void MainWindow::rb_zip(bool) { }
void MainWindow::rb_packbits(bool) { }
void MainWindow::le_custom(const QString &) { }
void MainWindow::currentChanged(int) { }
void MainWindow::setCompression(const char *, bool) { }
void MainWindow::keyPressEvent(QKeyEvent *) { }
