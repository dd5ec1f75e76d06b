// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzzes the path rules and password scrambling against their stated properties.
#include "formats/pathhelpers.h"
#include "settings/passwordscrambling.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

// A broken rule is a finding: abort so that the fuzzer keeps the input.
void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkPathRules(const QString &path, QChar separator)
{
    const QString folder = PathHelpers::directoryPart(path, separator);
    const QString name = PathHelpers::fileNamePart(path, separator);
    // Saving splits the file field into `Path` and `newfilename`; nothing may be lost or doubled.
    require(folder + name == path);
    require(folder.isEmpty() || folder.endsWith(separator));
    require(!name.contains(separator));

    const QString stem = PathHelpers::stripExtension(name);
    require(name.startsWith(stem));
    const qsizetype removed = name.size() - stem.size();
    require(removed == 0
        || ((removed == 4 || removed == 5) && name.at(stem.size()) == QLatin1Char('.')));

    const QString native = PathHelpers::toNativeSeparators(path, separator);
    require(native.size() == path.size());
    require(separator == QLatin1Char('/') || !native.contains(QLatin1Char('/')));
}

void checkExtension(const QString &name, const QString &extension)
{
    const QString named = PathHelpers::withExtension(name, extension);
    require(named == name || named == name + QLatin1Char('.') + extension);
    // A name one character shorter than the dotted extension is left alone, as the driver expects.
    const QString dotted = QLatin1Char('.') + extension;
    require(named.endsWith(dotted) || name.size() == dotted.size() - 1);
}

void checkScrambling(const QString &password)
{
    const QString stored = scramblePassword(password);
    require(stored.size() == 2 * password.size());
    require(unscramblePassword(stored) == password);
    for (qsizetype i = 0; i < password.size(); ++i)
        require(stored.at(2 * i) == password.at(i));
}

} // namespace

// The input is read twice: as UTF-8 text and as raw UTF-16 code units, so lone surrogates and
// characters outside the local 8-bit code page reach the scrambling too.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString utf8 = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    std::vector<char16_t> units(size / sizeof(char16_t));
    if (!units.empty())
        std::memcpy(units.data(), data, units.size() * sizeof(char16_t));
    const QString utf16 = QString::fromUtf16(units.data(), qsizetype(units.size()));

    for (const QString &text : {utf8, utf16}) {
        checkPathRules(text, QLatin1Char('/'));
        checkPathRules(text, QLatin1Char('\\'));
        checkScrambling(text);
        // The first line is the name, the rest the extension setting.
        const qsizetype newline = text.indexOf(QLatin1Char('\n'));
        if (newline >= 0)
            checkExtension(text.left(newline), text.mid(newline + 1));
    }
    return 0;
}
