// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_MD5CRYPT_H
#define VELLUMIO_MD5CRYPT_H

#include <QByteArray>

// The MD5-based crypt of a password ("$1$salt$hash"), as the Protect tag stores it. The salt is
// cut at its first '$' and to 8 characters; a leading "$1$" is taken as part of a full crypt text.
QByteArray md5Crypt(const QByteArray &password, const QByteArray &salt);

// A random salt of `length` characters (at most 8) from the crypt alphabet.
QByteArray md5CryptSalt(int length = 8);

#endif // VELLUMIO_MD5CRYPT_H
