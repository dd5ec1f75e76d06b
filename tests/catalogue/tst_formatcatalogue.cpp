// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/runprotocol.h"
#include "formats/formatcatalogue.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

// The contract the driver and stored settings rely on: the formats, where the converter is
// looked for, and where the window is placed.
class tst_FormatCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void formats_data()
    {
        // "tab index, token, extension value, filter with the default extension"; index -1
        // for a token that names no format; or "converter" with the program's path and the
        // converter's path made from it
        QTest::addColumn<QString>("row");
        QTest::newRow("bmp") << "0 bmp ext_bmp BMP Format (*.bmp)";
        QTest::newRow("png") << "1 png ext_png PNG Format (*.png)";
        QTest::newRow("jpeg") << "2 jpg ext_jpg JPEG Format (*.jpg)";
        QTest::newRow("jpeg2000") << "3 jp2 ext_jp2 JPEG2000 Format (*.jp2)";
        QTest::newRow("tiff") << "4 tif ext_tif TIFF Format (*.tif)";
        QTest::newRow("gif") << "5 gif ext_gif GIF Format (*.gif)";
        QTest::newRow("swf") << "6 swf ext_swf SWF Format (*.swf)";
        QTest::newRow("pdf") << "7 pdf ext_pdf PDF Format (*.pdf)";
        QTest::newRow("rtf") << "8 rtf ext_rtf RTF Format (*.rtf)";
        QTest::newRow("excel is msxml") << "9 msxml ext_msxml MS Excel Format (*.xls)";
        QTest::newRow("html is htm") << "10 htm ext_htm HTML Format (*.html)";
        QTest::newRow("djvu") << "11 djvu ext_djvu DjVu Format (*.djvu)";
        QTest::newRow("capitals") << "-1 PDF";
        QTest::newRow("an extension") << "-1 xls";
        // The first occurrence of the program's name is removed, wherever it stands.
        QTest::newRow("converter") << "converter /opt/vellumio/fmtask /opt/vellumio/dxconv";
        QTest::newRow("folder holds name") << "converter /opt/fmtask/fmtask /opt//fmtaskdxconv";
        QTest::newRow("suffix") << "converter /opt/v/fmtask-old /opt/v/-olddxconv";
        // Not found: only the last character goes, so the converter is not found.
        QTest::newRow("other capitals")
            << "converter /opt/vellumio/FMTASK /opt/vellumio/FMTASdxconv";
    }
    void formats()
    {
        QFETCH(QString, row);
        if (row.startsWith("converter ")) {
            QCOMPARE(RunProtocol::converterPath(row.section(' ', 1, 1)), row.section(' ', 2));
            return;
        }
        const Formats::Format *format = Formats::byToken(row.section(' ', 1, 1));
        QCOMPARE(format, Formats::byIndex(row.section(' ', 0, 0).toInt()));
        QVERIFY(!Formats::byIndex(-1) && !Formats::byIndex(Formats::Count));
        if (format)
            QCOMPARE(row.section(' ', 0, 1) + ' ' + format->extensionKey + ' '
                    + Formats::filterText(*format, QLatin1String(format->defaultExtension)),
                row);
    }

    void centreOnScreen()
    {
        // The inclusive right and bottom edges are used and the division truncates toward zero,
        // also for windows larger than the screen.
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (const QSize size : {QSize(494, 503), QSize(301, 157), QSize(4001, 3001)}) {
            QWidget window;
            window.setFixedSize(size);
            RunProtocol::centreOnScreen(&window);
            const QRect frame = window.frameGeometry();
            QCOMPARE(frame.topLeft(),
                QPoint(
                    (screen.right() - frame.width()) / 2, (screen.bottom() - frame.height()) / 2));
        }
    }
};

QTEST_MAIN(tst_FormatCatalogue)
#include "tst_formatcatalogue.moc"
