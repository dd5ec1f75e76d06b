// SPDX-License-Identifier: GPL-3.0-or-later
// RTF and SpreadsheetML read back as a word processor and a spreadsheet would see their text.
#include "writers/textdocuments.h"

#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using Sheets = QList<QList<QStringList>>; // worksheets of rows of cells

namespace {

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

class tst_TextDocuments : public QObject
{
    Q_OBJECT

private slots:
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

QTEST_GUILESS_MAIN(tst_TextDocuments)
#include "tst_textdocuments.moc"
