#include "formatcatalogue.h"

#include <QTest>

// The format contract the driver and stored settings rely on.
class tst_FormatCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void formats_data()
    {
        // "tab index, token, extension value, filter with the default extension"; index -1
        // for a token that names no format
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
    }
    void formats()
    {
        QFETCH(QString, row);
        const Formats::Format *format = Formats::byToken(row.section(' ', 1, 1));
        QCOMPARE(format, Formats::byIndex(row.section(' ', 0, 0).toInt()));
        QVERIFY(!Formats::byIndex(-1) && !Formats::byIndex(Formats::Count));
        if (format)
            QCOMPARE(row.section(' ', 0, 1) + ' ' + format->extensionKey + ' '
                    + Formats::filterText(*format, QLatin1String(format->defaultExtension)),
                row);
    }
};

QTEST_APPLESS_MAIN(tst_FormatCatalogue)
#include "tst_formatcatalogue.moc"
