// SPDX-License-Identifier: GPL-3.0-or-later
// Where the converter is looked for, and where the window is placed. Each format's stored token
// is read by the settings suite and rendered by the render suite.
#include "app/runprotocol.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

class tst_FormatCatalogue : public QObject
{
    Q_OBJECT

private slots:
    // Driver contract: the first occurrence of the program's name is replaced, wherever it stands;
    // when it is not found, only the last character goes, so the converter is not found.
    void converterPath_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("converter");
        // clang-format off
        QTest::newRow("beside")            << "/opt/vellumio/fmtask"     << "/opt/vellumio/dxconv";
        QTest::newRow("folder holds name") << "/opt/fmtask/fmtask"       << "/opt//fmtaskdxconv";
        QTest::newRow("suffix")            << "/opt/v/fmtask-old"        << "/opt/v/-olddxconv";
        QTest::newRow("other capitals")    << "/opt/vellumio/FMTASK"     << "/opt/vellumio/FMTASdxconv";
        // clang-format on
    }
    void converterPath()
    {
        QFETCH(QString, program);
        QFETCH(QString, converter);
        QCOMPARE(RunProtocol::converterPath(program), converter);
    }

    // Centred on the offscreen screen by its inclusive last column and row, the division
    // truncating toward zero also for windows larger than the screen.
    void centreOnScreen_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("the dialog") << QSize(494, 503) << QPoint(152, 148);
        QTest::newRow("odd remainder") << QSize(302, 158) << QPoint(248, 320);
        QTest::newRow("larger than the screen") << QSize(4000, 3000) << QPoint(-1600, -1100);
    }
    void centreOnScreen()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, position);
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 800));
        QWidget window;
        window.setFixedSize(size);
        RunProtocol::centreOnScreen(&window);
        QCOMPARE(window.frameGeometry().topLeft(), position);
    }
};

QTEST_MAIN(tst_FormatCatalogue)
#include "tst_formatcatalogue.moc"
