// SPDX-License-Identifier: GPL-3.0-or-later
// The MD5-based password crypt that protected SWF files carry, and its random salts.
#include "writers/md5crypt.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QStringBuilder>

namespace {

const char cryptAlphabet[] = "./0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
const QByteArray magic = QByteArrayLiteral("$1$");
constexpr int maximumSaltLength = 8;

QByteArray md5(const QByteArray &data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Md5);
}

// Appends `count` characters of the crypt alphabet for the low bits of `value`, lowest first.
void appendBase64(QByteArray &out, unsigned value, int count)
{
    for (; count > 0; --count, value >>= 6)
        out += cryptAlphabet[value & 0x3f];
}

} // namespace

QByteArray md5Crypt(const QByteArray &password, const QByteArray &salt)
{
    QByteArray cleanSalt = salt.startsWith(magic) ? salt.mid(magic.size()) : salt;
    const qsizetype dollar = cleanSalt.indexOf('$');
    if (dollar >= 0)
        cleanSalt.truncate(dollar);
    cleanSalt.truncate(maximumSaltLength);

    const QByteArray alternate = md5(password + cleanSalt + password);
    QByteArray context = password + magic + cleanSalt;
    for (qsizetype left = password.size(); left > 0; left -= 16)
        context += alternate.left(qMin<qsizetype>(left, 16));
    // One byte per bit of the length: a NUL for a set bit, the password's first byte otherwise.
    for (qsizetype bits = password.size(); bits; bits >>= 1)
        context += (bits & 1) ? '\0' : password.at(0);
    QByteArray digest = md5(context);

    // A thousand rounds, so that guessing costs time.
    for (int round = 0; round < 1000; ++round) {
        QByteArray mixed = (round & 1) ? password : digest;
        if (round % 3)
            mixed += cleanSalt;
        if (round % 7)
            mixed += password;
        mixed += (round & 1) ? digest : password;
        digest = md5(mixed);
    }

    const auto byte = [&digest](int index) { return unsigned(quint8(digest.at(index))); };
    QByteArray result = magic + cleanSalt + '$';
    // The digest's bytes go out in this interleaved order, three at a time.
    const int order[5][3] = {{0, 6, 12}, {1, 7, 13}, {2, 8, 14}, {3, 9, 15}, {4, 10, 5}};
    for (const auto &group : order)
        appendBase64(result, byte(group[0]) << 16 | byte(group[1]) << 8 | byte(group[2]), 4);
    appendBase64(result, byte(11), 2);
    return result;
}

QByteArray md5CryptSalt(int length)
{
    QByteArray salt;
    const int count = qBound(0, length, maximumSaltLength);
    for (int i = 0; i < count; ++i)
        salt += cryptAlphabet[QRandomGenerator::system()->bounded(64)];
    return salt;
}
