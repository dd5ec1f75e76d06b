// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_TEXTDOCUMENTS_H
#define VELLUMIO_TEXTDOCUMENTS_H

#include <QByteArray>
#include <QString>
#include <QStringList>

// The RTF and MS Excel outputs, written from the page text of `pdftotext -layout -enc UTF-8`.
namespace TextDocuments {

// UTF-8 text, pages split at form feeds (the trailing empty one dropped); bytes that are not
// UTF-8 become U+FFFD.
QStringList pagesOf(const QByteArray &pdftotextOutput);

// The lines of a page as every writer shows them: split at LF, CR LF or CR; control characters
// other than tab become U+FFFD (as do unpaired surrogates and the noncharacters U+FFFE and
// U+FFFF); the line break that ends the last line adds no line.
QStringList linesOf(const QString &page);

// RTF 1.x: one \page between pages, every non-ASCII character as \uN?, layout spaces kept, a
// monospaced font sized (4 to 10 points) so that the widest line fits the page without wrapping.
QByteArray rtf(const QStringList &pages);

// SpreadsheetML 2003 XML workbook: one worksheet per page ("Page 1"...; one empty worksheet when
// there are no pages, so the workbook still opens), one row per line, cells split at runs of two
// or more spaces or at tabs, numbers typed as Number unless that would change what they show
// (leading zeros, more digits than a double holds).
QByteArray spreadsheetMl(const QStringList &pages);

} // namespace TextDocuments

#endif // VELLUMIO_TEXTDOCUMENTS_H
