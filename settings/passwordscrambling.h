// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_PASSWORDSCRAMBLING_H
#define FMTASK_PASSWORDSCRAMBLING_H

#include <QString>

// The reversible obfuscation of the three stored passwords, as the driver reads them: each
// character is followed by one filler, its first local 8-bit byte as a signed number minus its
// position, kept to 16 bits. It hides a password from a glance, nothing more.
QString scramblePassword(const QString &text);

// Keeps the characters at even positions; the fillers are dropped unchecked.
QString unscramblePassword(const QString &text);

#endif // FMTASK_PASSWORDSCRAMBLING_H
