// SPDX-License-Identifier: GPL-3.0-or-later
// The folder and file-name rules of the output path.
#include "formats/pathhelpers.h"

namespace PathHelpers {

QString directoryPart(const QString &path, QChar separator)
{
    return path.left(path.lastIndexOf(separator) + 1);
}

QString fileNamePart(const QString &path, QChar separator)
{
    return path.mid(path.lastIndexOf(separator) + 1);
}

QString stripExtension(const QString &name)
{
    const qsizetype length = name.size();
    if (length >= 4 && name.at(length - 4) == QLatin1Char('.'))
        return name.left(length - 4);
    if (length >= 5 && name.at(length - 5) == QLatin1Char('.'))
        return name.left(length - 5);
    return name;
}

QString withExtension(const QString &name, const QString &extension)
{
    const QString dotted = QLatin1Char('.') + extension;
    if (name.indexOf(dotted) != name.size() - dotted.size())
        return name + dotted;
    return name;
}

QString toNativeSeparators(const QString &path, QChar separator)
{
    QString result = path;
    result.replace(QLatin1Char('/'), separator);
    return result;
}

} // namespace PathHelpers
