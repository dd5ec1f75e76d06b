// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_EXCHANGEVALUES_H
#define FMTASK_EXCHANGEVALUES_H

#include "settings/settingsscope.h"

#include <QString>

class SettingsKey;

// The values that tell the driver the outcome of a job: "isabort", "newfilename", "Path" and
// "format". Only the functions here write them.
namespace ExchangeValues {

// Marks the job as cancelled in one key: "isabort" = "true", nothing else.
void writeAbort(SettingsScope scope);

// The start of every complete save: "isabort" = "false", "newfilename", "Path".
void writeOutcome(SettingsKey &key, const QString &newFileName, const QString &outputFolder);

// Save-as-only mode: "isabort" = "false", "newfilename", "Path", "format", in this order.
void writeSaveAsOutcome(SettingsScope scope, const QString &newFileName,
    const QString &outputFolder, const QString &format);

} // namespace ExchangeValues

#endif // FMTASK_EXCHANGEVALUES_H
