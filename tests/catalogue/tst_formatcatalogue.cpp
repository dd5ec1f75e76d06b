#include "formatcatalogue.h"

#include <QTest>

class tst_FormatCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void formatsByIndexAndToken_data();
    void formatsByIndexAndToken();
    void unknownFormats_data();
    void unknownFormats();
    void colorCodes_data();
    void colorCodes();
    void colorLists_data();
    void colorLists();
};

void tst_FormatCatalogue::formatsByIndexAndToken_data()
{
    // What the driver and the stored settings rely on: token, extension value and its default,
    // and the filter text with the default extension.
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("extensionKey");
    QTest::addColumn<QString>("defaultExtension");
    QTest::addColumn<QString>("filter");

    QTest::newRow("bmp") << 0 << "bmp"
                         << "ext_bmp"
                         << "bmp"
                         << "BMP Format (*.bmp)";
    QTest::newRow("png") << 1 << "png"
                         << "ext_png"
                         << "png"
                         << "PNG Format (*.png)";
    QTest::newRow("jpeg") << 2 << "jpg"
                          << "ext_jpg"
                          << "jpg"
                          << "JPEG Format (*.jpg)";
    QTest::newRow("jpeg2000") << 3 << "jp2"
                              << "ext_jp2"
                              << "jp2"
                              << "JPEG2000 Format (*.jp2)";
    QTest::newRow("tiff") << 4 << "tif"
                          << "ext_tif"
                          << "tif"
                          << "TIFF Format (*.tif)";
    QTest::newRow("gif") << 5 << "gif"
                         << "ext_gif"
                         << "gif"
                         << "GIF Format (*.gif)";
    QTest::newRow("swf") << 6 << "swf"
                         << "ext_swf"
                         << "swf"
                         << "SWF Format (*.swf)";
    QTest::newRow("pdf") << 7 << "pdf"
                         << "ext_pdf"
                         << "pdf"
                         << "PDF Format (*.pdf)";
    QTest::newRow("rtf") << 8 << "rtf"
                         << "ext_rtf"
                         << "rtf"
                         << "RTF Format (*.rtf)";
    QTest::newRow("excel: token msxml, extension xls") << 9 << "msxml"
                                                       << "ext_msxml"
                                                       << "xls"
                                                       << "MS Excel Format (*.xls)";
    QTest::newRow("html: token htm, extension html") << 10 << "htm"
                                                     << "ext_htm"
                                                     << "html"
                                                     << "HTML Format (*.html)";
    QTest::newRow("djvu") << 11 << "djvu"
                          << "ext_djvu"
                          << "djvu"
                          << "DjVu Format (*.djvu)";
}

void tst_FormatCatalogue::formatsByIndexAndToken()
{
    QFETCH(int, index);
    QFETCH(QString, token);
    QFETCH(QString, extensionKey);
    QFETCH(QString, defaultExtension);
    QFETCH(QString, filter);

    const Formats::Format *format = Formats::byIndex(index);
    QVERIFY(format);
    QCOMPARE(Formats::byToken(token), format);
    QCOMPARE(QString::fromLatin1(format->token), token);
    QCOMPARE(QString::fromLatin1(format->extensionKey), extensionKey);
    QCOMPARE(QString::fromLatin1(format->defaultExtension), defaultExtension);
    QCOMPARE(Formats::filterText(*format, defaultExtension), filter);
}

void tst_FormatCatalogue::unknownFormats_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("token");

    QTest::newRow("negative index, empty token") << -1 << "";
    QTest::newRow("one past djvu, capitals") << 12 << "PDF";
    QTest::newRow("extension is not a token") << 100 << "xls";
    QTest::newRow("token with blank") << int(Formats::Count) << "pdf ";
}

void tst_FormatCatalogue::unknownFormats()
{
    QFETCH(int, index);
    QFETCH(QString, token);

    QVERIFY(!Formats::byIndex(index));
    QVERIFY(!Formats::byToken(token));
}

void tst_FormatCatalogue::colorCodes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");

    QTest::newRow("monochrome") << "Monochrome"
                                << "1";
    QTest::newRow("256 colors") << "256 colors"
                                << "8";
    QTest::newRow("grayscale") << "Grayscale"
                               << "24g";
    QTest::newRow("true colour") << "TrueColor"
                                 << "24";
    QTest::newRow("empty text of a clearing list") << ""
                                                   << "";
    QTest::newRow("other capitals") << "truecolor"
                                    << "";
    QTest::newRow("a code is not a text") << "24"
                                          << "";
}

void tst_FormatCatalogue::colorCodes()
{
    QFETCH(QString, text);
    QFETCH(QString, code);

    QCOMPARE(Formats::colorCodeForText(text), code);
}

void tst_FormatCatalogue::colorLists_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("compression");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<int>("selectedRow");

    const QStringList all = {"Monochrome", "256 colors", "Grayscale", "TrueColor"};
    const QStringList grayAndTrue = {"Grayscale", "TrueColor"};
    const QStringList none;

    // Columns: index, compression, hidden, enabled, items, selected row.
    QTest::newRow("bmp") << 0 << "" << false << true << all << 3;
    QTest::newRow("png") << 1 << "LZW" << false << true << all << 3;
    QTest::newRow("jpeg") << 2 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("jpeg2000") << 3 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("gif has no true colour")
        << 5 << "" << false << true << QStringList {"Monochrome", "256 colors", "Grayscale"} << 1;
    QTest::newRow("swf") << 6 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("pdf") << 7 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("rtf hides the group") << 8 << "" << true << true << none << -1;
    QTest::newRow("excel hides the group") << 9 << "" << true << true << none << -1;
    QTest::newRow("html") << 10 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("djvu") << 11 << "" << false << true << grayAndTrue << 1;
    QTest::newRow("tiff lzw") << 4 << "LZW" << false << true << all << 3;
    QTest::newRow("tiff zip") << 4 << "ZIP" << false << true << all << 3;
    QTest::newRow("tiff packbits") << 4 << "PACKBITS" << false << true << all << 3;
    QTest::newRow("tiff jpeg") << 4 << "JPEG" << false << true << grayAndTrue << 1;
    QTest::newRow("tiff fax4 stores G4")
        << 4 << "G4" << false << false << QStringList {"Monochrome"} << 0;
    QTest::newRow("tiff fax3 stores G3")
        << 4 << "G3" << false << false << QStringList {"Monochrome"} << 0;
    QTest::newRow("tiff before loading") << 4 << "" << false << true << none << -1;
    QTest::newRow("tiff shown text is not a code") << 4 << "FAX4" << false << true << none << -1;
    QTest::newRow("index past the pages") << 12 << "" << false << true << none << -1;
}

void tst_FormatCatalogue::colorLists()
{
    QFETCH(int, index);
    QFETCH(QString, compression);
    QFETCH(bool, hidden);
    QFETCH(bool, enabled);
    QFETCH(QStringList, items);
    QFETCH(int, selectedRow);

    const Formats::ColorList list = Formats::colorListFor(index, compression);
    QCOMPARE(list.hidden, hidden);
    QCOMPARE(list.enabled, enabled);
    QCOMPARE(list.items, items);
    QCOMPARE(list.selectedRow, selectedRow);
    // A forced code always agrees with the item that ends up selected.
    if (!list.forcedCode.isEmpty())
        QCOMPARE(Formats::colorCodeForText(list.items.at(list.selectedRow)), list.forcedCode);
}

QTEST_APPLESS_MAIN(tst_FormatCatalogue)
#include "tst_formatcatalogue.moc"
