// SPDX-License-Identifier: GPL-3.0-or-later
// Numbered file names of a job and the names of files kept beside existing ones.
#include "render/filenames.h"

namespace FileNames {

namespace {

bool allDigits(const QString &text)
{
    for (QChar ch : text) {
        if (ch < QLatin1Char('0') || ch > QLatin1Char('9'))
            return false;
    }
    return !text.isEmpty();
}

// Adds `step` to a number written in decimal digits, keeping its width as a minimum; numbers of
// any length are handled digit by digit.
QString addTo(const QString &digits, int step)
{
    QString result = digits;
    int carry = step;
    for (qsizetype i = result.size() - 1; i >= 0 && carry > 0; --i) {
        const int sum = result.at(i).digitValue() + carry;
        result[i] = QLatin1Char(char('0' + sum % 10));
        carry = sum / 10;
    }
    return carry > 0 ? QString::number(carry) + result : result;
}

} // namespace

QStringList stems(const QString &name, int count, const Numbering &numbering)
{
    QStringList result;
    if (count == 1)
        return {name};
    for (int i = 0; i < count; ++i) {
        if (numbering.prefixFirstPage)
            result << name + QString::number(i + 1);
        else if (allDigits(numbering.customNumber))
            result << name + addTo(numbering.customNumber, i);
        else
            result << (i == 0 ? name : name + QString::number(i + 1));
    }
    return result;
}

QString withExtension(const QString &stem, const QString &extension)
{
    return stem + QLatin1Char('.') + extension;
}

QString keptAside(const QString &fileName, const QString &extension, int k)
{
    const QString suffix = QLatin1Char('.') + extension;
    const QString stem = fileName.endsWith(suffix) ? fileName.chopped(suffix.size()) : fileName;
    const QString marked = stem + QStringLiteral(" (") + QString::number(k) + QLatin1Char(')');
    return fileName.endsWith(suffix) ? marked + suffix : marked;
}

QString fileNameOf(const QString &name)
{
    QString result;
    for (QChar ch : name.section(QLatin1Char('/'), -1))
        if (!ch.isNonCharacter() && ch.category() != QChar::Other_Control)
            result += ch;
    if (result == QLatin1String(".") || result == QLatin1String(".."))
        return {};
    return result;
}

} // namespace FileNames
