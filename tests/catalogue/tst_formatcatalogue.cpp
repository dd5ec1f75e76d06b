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
    // Each stored token names the format of its tab, with its extension value and filter; a
    // token in other letters or an extension names none.
    void formats_data()
    {
        QTest::addColumn<int>("index"); // -1: no format
        QTest::addColumn<QString>("extensionValue");
        QTest::addColumn<QString>("filter"); // with the default extension
        // clang-format off
        QTest::newRow("bmp")   << 0  << "ext_bmp"   << "BMP Format (*.bmp)";
        QTest::newRow("png")   << 1  << "ext_png"   << "PNG Format (*.png)";
        QTest::newRow("jpg")   << 2  << "ext_jpg"   << "JPEG Format (*.jpg)";
        QTest::newRow("jp2")   << 3  << "ext_jp2"   << "JPEG2000 Format (*.jp2)";
        QTest::newRow("tif")   << 4  << "ext_tif"   << "TIFF Format (*.tif)";
        QTest::newRow("gif")   << 5  << "ext_gif"   << "GIF Format (*.gif)";
        QTest::newRow("swf")   << 6  << "ext_swf"   << "SWF Format (*.swf)";
        QTest::newRow("pdf")   << 7  << "ext_pdf"   << "PDF Format (*.pdf)";
        QTest::newRow("rtf")   << 8  << "ext_rtf"   << "RTF Format (*.rtf)";
        QTest::newRow("msxml") << 9  << "ext_msxml" << "MS Excel Format (*.xls)";
        QTest::newRow("htm")   << 10 << "ext_htm"   << "HTML Format (*.html)";
        QTest::newRow("djvu")  << 11 << "ext_djvu"  << "DjVu Format (*.djvu)";
        QTest::newRow("PDF")   << -1 << ""          << "";
        QTest::newRow("xls")   << -1 << ""          << "";
        // clang-format on
    }
    void formats()
    {
        QFETCH(int, index);
        QFETCH(QString, extensionValue);
        QFETCH(QString, filter);
        const Formats::Format *format = Formats::byToken(QTest::currentDataTag());
        QCOMPARE(format, Formats::byIndex(index));
        if (!format)
            return;
        QCOMPARE(QString(format->token), QString(QTest::currentDataTag()));
        QCOMPARE(QString(format->extensionKey), extensionValue);
        QCOMPARE(Formats::filterText(*format, QLatin1String(format->defaultExtension)), filter);
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
