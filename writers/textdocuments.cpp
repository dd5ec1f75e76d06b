// SPDX-License-Identifier: GPL-3.0-or-later
// The RTF and SpreadsheetML writers for the text that pdftotext lays out page by page.
#include "writers/textdocuments.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamWriter>

namespace TextDocuments {

namespace {

constexpr QChar replacement(0xfffd);

bool isForbidden(QChar c)
{
    return (c.unicode() < 0x20 && c != QLatin1Char('\t')) || c.unicode() == 0xfffe
        || c.unicode() == 0xffff;
}

QList<QStringList> linesOfPages(const QStringList &pages)
{
    QList<QStringList> result;
    result.reserve(pages.size());
    for (const QString &page : pages)
        result += linesOf(page);
    return result;
}

// RTF's default page is Letter; with half-inch margins a line holds 540 points.
constexpr int rtfMargin = 720;
constexpr int rtfLinePoints = 540;

// Half-points of a Courier size at which `columns` characters (0.6 em each) fill the line.
int rtfFontSize(const QList<QStringList> &pages)
{
    qsizetype columns = 1;
    for (const QStringList &lines : pages)
        for (const QString &line : lines)
            columns = qMax(columns, line.size());
    return qBound(8, int(2 * rtfLinePoints / (0.6 * double(columns))), 20);
}

void appendRtfLine(QByteArray &out, const QString &line)
{
    for (QChar c : line) {
        const char16_t code = c.unicode();
        if (code == u'\\' || code == u'{' || code == u'}') {
            out += '\\';
            out += char(code);
        } else if (code == u'\t') {
            out += "\\tab ";
        } else if (code >= 0x20 && code < 0x7f) {
            out += char(code);
        } else {
            // One \u per UTF-16 unit (signed, as RTF reads it), '?' for readers without Unicode.
            out += "\\u" + QByteArray::number(qint16(code)) + '?';
        }
    }
}

// What a cell shows as a number: the value to store and the format that shows it unchanged.
struct Number
{
    QString value;
    QString styleId; // "p2" plain with two decimals, "g0" grouped without decimals...
    QString format;
};

// A decimal number whose display survives typing it as a Number: no leading zeros (they would be
// lost) and at most 15 digits (a double holds no more).
bool parseNumber(const QString &cell, Number *number)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([-+]?)(\\d{1,3}(?:,\\d{3})+|\\d+)(?:\\.(\\d+))?$"));
    const QRegularExpressionMatch match = pattern.match(cell);
    if (!match.hasMatch())
        return false;
    const QString whole = match.captured(2).remove(QLatin1Char(','));
    const QString decimals = match.captured(3);
    if ((whole.size() > 1 && whole.startsWith(QLatin1Char('0')))
        || whole.size() + decimals.size() > 15)
        return false;
    const bool grouped = whole.size() != match.capturedLength(2);
    number->value = (match.captured(1) == QLatin1String("-") ? QStringLiteral("-") : QString())
        + whole + (decimals.isEmpty() ? QString() : QLatin1Char('.') + decimals);
    number->styleId
        = (grouped ? QLatin1Char('g') : QLatin1Char('p')) + QString::number(decimals.size());
    number->format = (grouped ? QStringLiteral("#,##0") : QStringLiteral("0"))
        + (decimals.isEmpty() ? QString() : QLatin1Char('.') + QString(decimals.size(), u'0'));
    return true;
}

QStringList cellsOf(const QString &line)
{
    static const QRegularExpression separator(QStringLiteral("(?:\\t| {2,})+"));
    QStringList cells = line.split(separator);
    for (QString &cell : cells)
        cell = cell.trimmed();
    cells.removeAll(QString());
    return cells;
}

} // namespace

QStringList pagesOf(const QByteArray &pdftotextOutput)
{
    QStringList pages = QString::fromUtf8(pdftotextOutput).split(QLatin1Char('\f'));
    if (pages.last().isEmpty())
        pages.removeLast();
    return pages;
}

QStringList linesOf(const QString &page)
{
    QString clean;
    clean.reserve(page.size());
    for (qsizetype i = 0; i < page.size(); ++i) {
        const QChar c = page.at(i);
        if (c == QLatin1Char('\r')) {
            if (i + 1 < page.size() && page.at(i + 1) == QLatin1Char('\n'))
                ++i;
            clean += QLatin1Char('\n');
        } else if (c == QLatin1Char('\n')) {
            clean += c;
        } else if (c.isHighSurrogate() && i + 1 < page.size() && page.at(i + 1).isLowSurrogate()) {
            clean += c;
            clean += page.at(++i);
        } else {
            clean += c.isSurrogate() || isForbidden(c) ? replacement : c;
        }
    }
    QStringList lines = clean.split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QByteArray rtf(const QStringList &pages)
{
    const QList<QStringList> pageLines = linesOfPages(pages);
    QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"
                     "{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 Courier New;}}\n";
    out += "\\margl" + QByteArray::number(rtfMargin) + "\\margr" + QByteArray::number(rtfMargin)
        + "\\margt" + QByteArray::number(rtfMargin) + "\\margb" + QByteArray::number(rtfMargin)
        + '\n';
    out += "\\pard\\plain\\f0\\fs" + QByteArray::number(rtfFontSize(pageLines)) + '\n';
    for (qsizetype page = 0; page < pageLines.size(); ++page) {
        if (page > 0)
            out += "\\page\n";
        for (const QString &line : pageLines.at(page)) {
            appendRtfLine(out, line);
            out += "\\par\n";
        }
    }
    out += "}\n";
    return out;
}

QByteArray spreadsheetMl(const QStringList &pages)
{
    QList<QStringList> pageLines = linesOfPages(pages);
    if (pageLines.isEmpty())
        pageLines += QStringList();

    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeProcessingInstruction(
        QStringLiteral("mso-application"), QStringLiteral("progid=\"Excel.Sheet\""));
    xml.writeStartElement(QStringLiteral("Workbook"));
    const QString spreadsheetNs = QStringLiteral("urn:schemas-microsoft-com:office:spreadsheet");
    xml.writeAttribute(QStringLiteral("xmlns"), spreadsheetNs);
    xml.writeAttribute(QStringLiteral("xmlns:ss"), spreadsheetNs);

    // One style per number format in use, so every number shows as it did on the page.
    xml.writeStartElement(QStringLiteral("Styles"));
    QSet<QString> styles;
    for (const QStringList &lines : std::as_const(pageLines))
        for (const QString &line : lines)
            for (const QString &cell : cellsOf(line)) {
                Number number;
                if (!parseNumber(cell, &number) || styles.contains(number.styleId))
                    continue;
                styles.insert(number.styleId);
                xml.writeStartElement(QStringLiteral("Style"));
                xml.writeAttribute(QStringLiteral("ss:ID"), number.styleId);
                xml.writeEmptyElement(QStringLiteral("NumberFormat"));
                xml.writeAttribute(QStringLiteral("ss:Format"), number.format);
                xml.writeEndElement();
            }
    xml.writeEndElement();

    for (qsizetype page = 0; page < pageLines.size(); ++page) {
        xml.writeStartElement(QStringLiteral("Worksheet"));
        xml.writeAttribute(QStringLiteral("ss:Name"), QStringLiteral("Page %1").arg(page + 1));
        xml.writeStartElement(QStringLiteral("Table"));
        for (const QString &line : pageLines.at(page)) {
            // Empty lines stay empty rows, so rows keep the page's line numbers.
            xml.writeStartElement(QStringLiteral("Row"));
            for (const QString &cell : cellsOf(line)) {
                Number number;
                const bool isNumber = parseNumber(cell, &number);
                xml.writeStartElement(QStringLiteral("Cell"));
                if (isNumber)
                    xml.writeAttribute(QStringLiteral("ss:StyleID"), number.styleId);
                xml.writeStartElement(QStringLiteral("Data"));
                xml.writeAttribute(QStringLiteral("ss:Type"),
                    isNumber ? QStringLiteral("Number") : QStringLiteral("String"));
                xml.writeCharacters(isNumber ? number.value : cell);
                xml.writeEndElement();
                xml.writeEndElement();
            }
            xml.writeEndElement();
        }
        xml.writeEndElement();
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return out;
}

} // namespace TextDocuments
