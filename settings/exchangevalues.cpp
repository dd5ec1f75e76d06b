// SPDX-License-Identifier: GPL-3.0-or-later
// The values that tell the driver how a job ended.
#include "settings/exchangevalues.h"

#include "settings/settingskey.h"

namespace ExchangeValues {

void writeAbort(SettingsScope scope)
{
    SettingsKey key(scope);
    key.setText(Settings::IsAbort, QStringLiteral("true"));
}

void writeOutcome(SettingsKey &key, const QString &newFileName, const QString &outputFolder)
{
    key.setText(Settings::IsAbort, QStringLiteral("false"));
    key.setText(Settings::NewFileName, newFileName);
    key.setText(Settings::PathWritten, outputFolder);
}

void writeSaveAsOutcome(SettingsScope scope, const QString &newFileName,
    const QString &outputFolder, const QString &format)
{
    SettingsKey key(scope);
    writeOutcome(key, newFileName, outputFolder);
    key.setText(Settings::Format, format);
}

} // namespace ExchangeValues
