// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_PATHHELPERS_H
#define FMTASK_PATHHELPERS_H

#include <QChar>
#include <QDir>
#include <QString>

// Folder and file-name rules of the output path. Only `separator` separates folders; it is the
// platform's native separator unless a caller asks for another one.
namespace PathHelpers {

inline QChar nativeSeparator()
{
    return QDir::separator();
}

// Everything up to and including the last separator; empty when there is none.
QString directoryPart(const QString &path, QChar separator = nativeSeparator());

// Everything after the last separator; the whole text when there is none.
QString fileNamePart(const QString &path, QChar separator = nativeSeparator());

// Removes one extension of 3 or 4 letters ("report.pdf" -> "report", "notes.ab" unchanged).
QString stripExtension(const QString &name);

// Appends "." + extension unless the first occurrence of it sits exactly where it would end the
// name. Driver contract: the first-occurrence test is kept: a name one character
// shorter than the dotted extension is left as it is, and "a.pdf.copy.pdf" gets ".pdf" again. An
// empty extension setting still appends the lone dot.
QString withExtension(const QString &name, const QString &extension);

// Turns every "/" into the native separator, as a file dialog result is stored.
QString toNativeSeparators(const QString &path, QChar separator = nativeSeparator());

} // namespace PathHelpers

#endif // FMTASK_PATHHELPERS_H
