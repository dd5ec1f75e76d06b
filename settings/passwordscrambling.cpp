// SPDX-License-Identifier: GPL-3.0-or-later
// The reversible obfuscation of the stored passwords.
#include "settings/passwordscrambling.h"

#include <QByteArray>

QString scramblePassword(const QString &text)
{
    QString result;
    result.reserve(text.size() * 2);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        result += ch;
        const QByteArray local = QString(ch).toLocal8Bit();
        const int code = local.isEmpty() ? 0 : static_cast<signed char>(local.at(0));
        result += QChar(static_cast<char16_t>((code - i) & 0xFFFF));
    }
    return result;
}

QString unscramblePassword(const QString &text)
{
    QString result;
    result.reserve((text.size() + 1) / 2);
    for (qsizetype i = 0; i < text.size(); i += 2)
        result += text.at(i);
    return result;
}
