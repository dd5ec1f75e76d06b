// SPDX-License-Identifier: GPL-3.0-or-later
// The formats as the driver and the stored settings name them, where the converter is looked
// for, and where the window is placed.
#include "app/runprotocol.h"
#include "formats/formatcatalogue.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

class tst_FormatCatalogue : public QObject
{
    Q_OBJECT

private slots:
    // Each stored token names the format of its tab; a token in other letters or an extension
    // names none. The filters are the Save As suites', the extension values the settings suite's.
    void formats_data()
    {
        QTest::addColumn<int>("index"); // -1: no format
        const char *const tokens[] = {
            "bmp", "png", "jpg", "jp2", "tif", "gif", "swf", "pdf", "rtf", "msxml", "htm", "djvu"};
        for (int index = 0; index < int(std::size(tokens)); ++index)
            QTest::newRow(tokens[index]) << index;
        QTest::newRow("PDF") << -1;
        QTest::newRow("xls") << -1;
    }
    void formats()
    {
        QFETCH(int, index);
        QCOMPARE(Formats::byToken(QTest::currentDataTag()), Formats::byIndex(index));
    }

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
