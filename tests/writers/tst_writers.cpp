// SPDX-License-Identifier: GPL-3.0-or-later
// The in-process writers read back by their readers: SWF files as a player walks them (frames,
// page images, text layer, stops and the password crypt), RTF and SpreadsheetML as a word
// processor and a spreadsheet would see their text.
#include "tests/writers/swfreader.h"
#include "writers/md5crypt.h"
#include "writers/swfwriter.h"
#include "writers/textdocuments.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using Sheets = QList<QList<QStringList>>; // worksheets of rows of cells

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.exitCode() == 0 ? process.readAllStandardOutput().trimmed() : QByteArray();
}

QByteArray opensslCrypt(const QByteArray &password, const QByteArray &salt)
{
    return run("openssl", {"passwd", "-1", "-salt", salt, QString::fromUtf8(password)});
}

QByteArray ghostscriptJpeg(QSize pixels)
{
    return run("gs",
        {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=jpeg", "-r96",
            QString("-g%1x%2").arg(pixels.width()).arg(pixels.height()), "-sOutputFile=-", "-c",
            "0.3 setgray 10 10 40 20 rectfill showpage"});
}

// The text of each page an RTF reader shows, lines ended by LF; empty when braces do not balance.
QStringList rtfPages(const QByteArray &rtf)
{
    static const QRegularExpression token(R"(\\u(-?\d+) ?.|\\([a-z]+)-?\d* ?|\\(.)|([{}])|\n|(.))");
    QString text;
    int depth = 0;
    int skipFrom = 0; // the depth of the font table's group while inside it
    for (const QRegularExpressionMatch &match : token.globalMatch(QString::fromLatin1(rtf))) {
        if (match.capturedLength(4)) {
            depth += match.captured(4) == "{" ? 1 : -1;
            skipFrom = depth < skipFrom ? 0 : skipFrom;
            if (depth < 0 || (depth == 0 && match.capturedEnd() + 1 < rtf.size()))
                return {};
        } else if (match.captured(2) == "fonttbl") {
            skipFrom = depth;
        } else if (!skipFrom) {
            const QHash<QString, QString> words {{"par", "\n"}, {"page", "\f"}, {"tab", "\t"}};
            text += match.capturedLength(1)
                ? QString(QChar(char16_t(match.captured(1).toShort())))
                : words.value(match.captured(2)) + match.captured(3) + match.captured(5);
        }
    }
    return depth == 0 ? text.split('\f') : QStringList();
}

// Rows of cell texts per worksheet, the worksheets' names and the cells typed as numbers.
Sheets readSheets(const QByteArray &xml, QStringList *names, QStringList *numbers)
{
    Sheets sheets;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"Worksheet") {
            *names += reader.attributes().value("ss:Name").toString();
            sheets += QList<QStringList>();
        } else if (reader.name() == u"Row") {
            sheets.last() += QStringList();
        } else if (reader.name() == u"Data") {
            const bool isNumber = reader.attributes().value("ss:Type") == u"Number";
            sheets.last().last() += reader.readElementText();
            if (isNumber)
                *numbers += sheets.last().last().last();
        }
    }
    if (reader.hasError())
        return {{{"XML error: " + reader.errorString()}}};
    return sheets;
}

} // namespace

class tst_Writers : public QObject
{
    Q_OBJECT
    const QByteArray m_jpeg = ghostscriptJpeg(QSize(120, 80));

private slots:
    void md5Crypt_data()
    {
        QTest::addColumn<QByteArray>("password");
        QTest::addColumn<QByteArray>("salt");
        QTest::newRow("empty password") << QByteArray() << QByteArray("abc");
        QTest::newRow("plain") << QByteArray("secret") << QByteArray("12345678");
        QTest::newRow("one digest long") << QByteArray("0123456789abcdef") << QByteArray("./");
        QTest::newRow("long") << QByteArray(100, 'x') + "!" << QByteArray("Zz");
        QTest::newRow("non-Latin UTF-8") << QByteArray("пароль 密码 ü") << QByteArray("s");
        QTest::newRow("salt cut to 8") << QByteArray("secret") << QByteArray("abcdefghij");
    }
    void md5Crypt()
    {
        QFETCH(QByteArray, password);
        QFETCH(QByteArray, salt);
        const QByteArray expected = opensslCrypt(password, salt);
        QVERIFY2(expected.startsWith("$1$"), "openssl passwd -1 gave no crypt");
        QCOMPARE(::md5Crypt(password, salt), expected);
    }

    void document_data()
    {
        QTest::addColumn<QList<QSize>>("pixels");
        QTest::addColumn<int>("dpi");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("fields"); // the text fields a player shows, in order
        QTest::addColumn<bool>("textLayer");
        QTest::addColumn<bool>("animate");
        QTest::addColumn<QString>("password");
        const QList<QSize> a4 {{794, 1123}};
        QTest::newRow("one page, stops")
            << a4 << 96 << QStringList {"Hello\n"} << QStringList {"Hello"} << true << false << "";
        QTest::newRow("pages of two sizes, animated")
            << QList<QSize> {{200, 100}, {100, 300}, {200, 100}} << 150
            << QStringList {"one\n", "two\n", "three\n"} << QStringList {"one", "two", "three"}
            << true << true << "";
        QTest::newRow("markup and non-Latin text, plain field")
            << a4 << 96 << QStringList {"<b>&amp; \"Ünï\" 日本語 😀\tx\r\nline 2\x01\n"}
            << QStringList {"<b>&amp; \"Ünï\" 日本語 😀\tx\nline 2\uFFFD"} << true << false << "";
        QTest::newRow("blank page has no field")
            << QList<QSize> {{100, 100}, {100, 100}} << 96 << QStringList {"  \n\n", "b\n"}
            << QStringList {"b"} << true << false << "";
        QTest::newRow("no text layer")
            << a4 << 96 << QStringList {"Hello\n"} << QStringList {} << false << false << "";
        QTest::newRow("protected, non-Latin password")
            << a4 << 96 << QStringList {"x\n"} << QStringList {"x"} << true << false
            << "пароль密码";
    }
    void document()
    {
        QFETCH(QList<QSize>, pixels);
        QFETCH(QStringList, texts);
        QFETCH(QStringList, fields);
        QFETCH(int, dpi);
        QFETCH(bool, textLayer);
        QFETCH(bool, animate);
        QFETCH(QString, password);
        const Swf::Options options {dpi, textLayer, animate, password};
        QList<Swf::Page> pages;
        for (qsizetype i = 0; i < pixels.size(); ++i)
            pages += Swf::Page {ghostscriptJpeg(pixels.at(i)), texts.at(i)};
        QString error;
        const QByteArray file = Swf::document(pages, options, &error);
        QVERIFY2(file.startsWith("CWS") && file.at(3) >= 8, qPrintable(error));

        SwfFile swf = SwfFile::read(file);
        QCOMPARE(swf.frameCount, pages.size());
        QVERIFY(swf.codes.size() > 2);
        QCOMPARE(swf.codes.first(), 69); // FileAttributes, which version 8 requires first
        QCOMPARE(swf.codes.last(), 0);
        QCOMPARE(swf.tags[1].size(), pages.size()); // ShowFrame
        QCOMPARE(swf.tags[12].count(QByteArray("\x07\x00", 2)), animate ? 0 : pages.size());
        QStringList shownFields;
        for (const QByteArray &field : swf.tags[37]) // initial text: the last string of the tag
            shownFields
                += QString::fromUtf8(field.chopped(1).mid(field.chopped(1).lastIndexOf('\0') + 1));
        QCOMPARE(shownFields, fields);
        QSize stage;
        QCOMPARE(swf.tags[21].size(), pages.size());
        for (qsizetype i = 0; i < pages.size(); ++i) {
            QCOMPARE(swf.tags[21].at(i).mid(2), pages.at(i).jpeg);
            const QSize twips = pixels.at(i) * 1440 / dpi;
            // The shape that shows the bitmap spans the page.
            QCOMPARE(SwfFile::rectSize(swf.tags[2].at(i).mid(2)), twips);
            stage = stage.expandedTo(twips);
        }
        QCOMPARE(swf.stage, stage);
        QCOMPARE(swf.tags[24].size(), password.isEmpty() ? 0 : 1);
        if (!password.isEmpty()) {
            QVERIFY(swf.tags[24].first().startsWith(QByteArray(2, '\0'))); // reserved
            const QByteArray crypt = swf.tags[24].first().mid(2).chopped(1);
            QCOMPARE(opensslCrypt(password.toUtf8(), crypt.split('$').value(2)), crypt);
        }
        // A player's own reader finds every page image.
        QTemporaryDir folder;
        QFile out(folder.filePath("pages.swf"));
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(file) == file.size());
        out.close();
        if (!QStandardPaths::findExecutable("ffprobe").isEmpty())
            QCOMPARE(run("ffprobe",
                         {"-v", "error", "-count_packets", "-show_entries",
                             "stream=nb_read_packets", "-of", "csv=p=0", out.fileName()}),
                QByteArray::number(pages.size()));
    }

    void rejected_data()
    {
        QTest::addColumn<QByteArray>("image"); // the second page's, after a good first page
        QTest::addColumn<QString>("error");
        QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1a\n") << "page 2: not a JPEG image";
        QTest::newRow("truncated") << m_jpeg.left(30) << "page 2: damaged JPEG image";
        QTest::newRow("progressive") << QByteArray(
            "\xff\xd8\xff\xc2\x00\x0b\x08\x00\x10\x00\x10\x01\x01\x11\x00\xff\xd9", 17)
                                     << "page 2: JPEG image that is not baseline";
    }
    void rejected()
    {
        QFETCH(QByteArray, image);
        QFETCH(QString, error);
        QString reason;
        QCOMPARE(Swf::document({{m_jpeg, "a"}, {image, "b"}}, {}, &reason), QByteArray());
        QCOMPARE(reason, error);
    }

    void rtf_data()
    {
        QTest::addColumn<QByteArray>("output"); // pdftotext's
        QTest::addColumn<QStringList>("shown");
        const QString layout = "  Name      Amount\n  Tea         1.50\n";
        QTest::newRow("layout spaces") << (layout + "\f").toUtf8() << QStringList {layout};
        const QString scripts = "Grüße Ελλάδα 日本語 😀 עברית\n";
        QTest::newRow("non-Latin and astral") << (scripts + "\f").toUtf8() << QStringList {scripts};
        const QString syntax = "{\\rtf1 \\par} \\u123?\n";
        QTest::newRow("braces and backslashes") << (syntax + "\f").toUtf8() << QStringList {syntax};
        QTest::newRow("tabs, CR LF, controls, not UTF-8")
            << QByteArray("a\tb\r\nc\x01\xff.") << QStringList {"a\tb\nc\uFFFD\uFFFD.\n"};
        QTest::newRow("three pages, one blank")
            << QByteArray("one\n\f\fthree\n\f") << QStringList {"one\n", "", "three\n"};
    }
    void rtf()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, shown);
        const QByteArray document = TextDocuments::rtf(TextDocuments::pagesOf(output));
        QVERIFY(document.startsWith("{\\rtf1\\ansi"));
        QVERIFY2(std::all_of(document.begin(), document.end(), [](char c) { return c > 0; }),
            "RTF is 7-bit text");
        QCOMPARE(rtfPages(document), shown);
    }

    void spreadsheetMl_data()
    {
        QTest::addColumn<QByteArray>("output"); // pdftotext's
        QTest::addColumn<Sheets>("sheets");
        QTest::addColumn<QStringList>("numbers");
        QTest::newRow("columns and numbers")
            << QByteArray("Item   Qty  Price\n  Tea    2    1,234.50\n\f")
            << Sheets {{{"Item", "Qty", "Price"}, {"Tea", "2", "1234.50"}}}
            << QStringList {"2", "1234.50"};
        QTest::newRow("numbers that would change stay text")
            << QByteArray("007  0.5  -3  +4  1234567890123456  1,23  3%\n\f")
            << Sheets {{{"007", "0.5", "-3", "4", "1234567890123456", "1,23", "3%"}}}
            << QStringList {"0.5", "-3", "4"};
        QTest::newRow("XML specials and a control character")
            << QByteArray("A & B  <tag>\t\"q\" 'single'\x01]]>\n\f")
            << Sheets {{{"A & B", "<tag>", "\"q\" 'single'\uFFFD]]>"}}} << QStringList {};
        QTest::newRow("empty lines kept as rows, one sheet per page")
            << QByteArray("a\n\nб ü\n\f\f日本\n\f") << Sheets {{{"a"}, {}, {"б ü"}}, {}, {{"日本"}}}
            << QStringList {};
        QTest::newRow("no pages still opens") << QByteArray() << Sheets {{}} << QStringList {};
    }
    void spreadsheetMl()
    {
        QFETCH(QByteArray, output);
        QFETCH(Sheets, sheets);
        QFETCH(QStringList, numbers);
        QStringList names;
        QStringList typedNumbers;
        QCOMPARE(readSheets(TextDocuments::spreadsheetMl(TextDocuments::pagesOf(output)), &names,
                     &typedNumbers),
            sheets);
        QCOMPARE(typedNumbers, numbers);
        for (qsizetype i = 0; i < names.size(); ++i)
            QCOMPARE(names.at(i), QString("Page %1").arg(i + 1));
    }
};

QTEST_GUILESS_MAIN(tst_Writers)
#include "tst_writers.moc"
