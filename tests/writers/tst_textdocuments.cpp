// SPDX-License-Identifier: GPL-3.0-or-later
// RTF and SpreadsheetML read back as a word processor and a spreadsheet would see their text.
#include "writers/textdocuments.h"

#include <QTest>
#include <QXmlStreamReader>

using Sheets = QList<QList<QStringList>>; // worksheets of rows of cells

namespace {

// The text of each page an RTF reader shows, lines ended by LF; empty when braces do not balance.
QStringList rtfPages(const QByteArray &rtf)
{
    QString text;
    int depth = 0;
    int skipFrom = 0; // the depth of a destination group that holds no text, 0 for none
    for (qsizetype at = 0; at < rtf.size(); ++at) {
        const char c = rtf.at(at);
        if (c == '{' || c == '}') {
            depth += c == '{' ? 1 : -1;
            skipFrom = depth < skipFrom ? 0 : skipFrom;
            if (depth < 0 || (depth == 0 && at != rtf.size() - 2))
                return {};
        } else if (c == '\\' && QByteArray("\\{}").contains(rtf.at(at + 1))) {
            text += QChar(rtf.at(++at));
        } else if (c == '\\') {
            qsizetype end = at + 1;
            while (end < rtf.size() && std::isalpha(uchar(rtf.at(end))))
                ++end;
            const QByteArray word = rtf.mid(at + 1, end - at - 1);
            qsizetype number = end;
            while (number < rtf.size()
                && (std::isdigit(uchar(rtf.at(number))) || rtf.at(number) == '-'))
                ++number;
            const int value = rtf.mid(end, number - end).toInt();
            at = number < rtf.size() && rtf.at(number) == ' ' ? number : number - 1;
            if (word == "fonttbl")
                skipFrom = depth;
            else if (!skipFrom && (word == "par" || word == "page" || word == "tab"))
                text += word == "par" ? '\n' : word == "page" ? '\f' : '\t';
            else if (!skipFrom && word == "u")
                text += QChar(char16_t(value)), ++at; // and the fallback character after it
        } else if (c != '\n' && c != '\r' && !skipFrom) {
            text += QLatin1Char(c);
        }
    }
    return depth == 0 ? text.split('\f') : QStringList();
}

// Worksheet names, rows of cell texts and the cells typed as numbers, as a spreadsheet reads them.
Sheets readSheets(const QByteArray &xml, QStringList *names, QStringList *numbers)
{
    Sheets sheets;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringView name = reader.name();
        if (name == u"Worksheet") {
            *names += reader.attributes().value("ss:Name").toString();
            sheets += QList<QStringList>();
        } else if (name == u"Row") {
            sheets.last() += QStringList();
        } else if (name == u"Data") {
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
    void pagesOf_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("pages");
        QTest::newRow("two pages")
            << QByteArray("a\n b\n\fc\n\f") << QStringList {"a\n b\n", "c\n"};
        QTest::newRow("one blank page") << QByteArray("\f") << QStringList {""};
        QTest::newRow("nothing") << QByteArray() << QStringList {};
        QTest::newRow("no closing form feed") << QByteArray("a\fb") << QStringList {"a", "b"};
        QTest::newRow("not UTF-8") << QByteArray("\xff\f") << QStringList {"\uFFFD"};
    }
    void pagesOf()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, pages);
        QCOMPARE(TextDocuments::pagesOf(output), pages);
    }

    void rtf_data()
    {
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<QStringList>("shown");
        const QStringList layout {"  Name      Amount\n  Tea         1.50\n"};
        QTest::newRow("layout spaces") << layout << layout;
        const QStringList scripts {"Grüße Ελλάδα 日本語 😀 עברית\n"};
        QTest::newRow("non-Latin and astral") << scripts << scripts;
        const QStringList syntax {"{\\rtf1 \\par} \\u123?\n"};
        QTest::newRow("braces and backslashes") << syntax << syntax;
        QTest::newRow("tabs, CR LF and controls") << QStringList {"a\tb\r\nc\x01"
                                                                  "d"}
                                                  << QStringList {"a\tb\nc\uFFFDd\n"};
        const QStringList three {"one\n", "", "three\n"};
        QTest::newRow("three pages, one blank") << three << three;
    }
    void rtf()
    {
        QFETCH(QStringList, pages);
        QFETCH(QStringList, shown);
        const QByteArray document = TextDocuments::rtf(pages);
        QVERIFY(document.startsWith("{\\rtf1\\ansi"));
        QVERIFY2(std::all_of(document.begin(), document.end(), [](char c) { return c > 0; }),
            "RTF is 7-bit text");
        QCOMPARE(rtfPages(document), shown);
    }

    void spreadsheetMl_data()
    {
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<Sheets>("sheets");
        QTest::addColumn<QStringList>("numbers");
        QTest::newRow("columns and numbers")
            << QStringList {"Item   Qty  Price\n  Tea    2    1,234.50\n"}
            << Sheets {{{"Item", "Qty", "Price"}, {"Tea", "2", "1234.50"}}}
            << QStringList {"2", "1234.50"};
        QTest::newRow("numbers that would change stay text")
            << QStringList {"007  0.5  -3  +4  1234567890123456  1,23  3%\n"}
            << Sheets {{{"007", "0.5", "-3", "4", "1234567890123456", "1,23", "3%"}}}
            << QStringList {"0.5", "-3", "4"};
        QTest::newRow("XML specials and a control character")
            << QStringList {"A & B  <tag>\t\"q\" 'single'\x01]]>\n"}
            << Sheets {{{"A & B", "<tag>", "\"q\" 'single'\uFFFD]]>"}}} << QStringList {};
        QTest::newRow("empty lines kept as rows, one sheet per page")
            << QStringList {"a\n\nб ü\n", "", "日本\n"}
            << Sheets {{{"a"}, {}, {"б ü"}}, {}, {{"日本"}}} << QStringList {};
        QTest::newRow("no pages still opens") << QStringList {} << Sheets {{}} << QStringList {};
    }
    void spreadsheetMl()
    {
        QFETCH(QStringList, pages);
        QFETCH(Sheets, sheets);
        QFETCH(QStringList, numbers);
        QStringList names;
        QStringList typedNumbers;
        QCOMPARE(readSheets(TextDocuments::spreadsheetMl(pages), &names, &typedNumbers), sheets);
        QCOMPARE(typedNumbers, numbers);
        for (qsizetype i = 0; i < names.size(); ++i)
            QCOMPARE(names.at(i), QString("Page %1").arg(i + 1));
    }
};

QTEST_GUILESS_MAIN(tst_TextDocuments)
#include "tst_textdocuments.moc"
