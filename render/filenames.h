// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_FILENAMES_H
#define VELLUMIO_FILENAMES_H

#include <QString>
#include <QStringList>

// The names of a job's files in the output folder, as the driver always gave them.
namespace FileNames {

// How the files of a job that gives one file per page are numbered.
struct Numbering
{
    bool prefixFirstPage = false; // "Add 1 to first file name"
    QString customNumber; // the custom first number; digits, or empty
};

// The stems (names without extension) of `count` files. One file is `name` itself. More files
// are numbered: "Add 1 to first file name" gives name1, name2, ...; a custom number N gives
// nameN, name(N+1), ... keeping N's width ("007" -> name007, name008); an empty (or not
// numeric) custom number leaves the first file as name and numbers the next ones 2, 3, ...
QStringList stems(const QString &name, int count, const Numbering &numbering);

// `stem` + "." + `extension`.
QString withExtension(const QString &stem, const QString &extension);

// The name a file takes when the one it would replace must be kept: " (k)" after the stem,
// before the extension ("report.pdf", 2 -> "report (2).pdf").
QString keptAside(const QString &fileName, const QString &extension, int k);

// A job name reduced to a file name: the part after the last folder separator, control
// characters removed. Empty when nothing usable is left ("", ".", "..").
QString fileNameOf(const QString &name);

} // namespace FileNames

#endif // VELLUMIO_FILENAMES_H
