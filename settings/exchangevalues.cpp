#include "exchangevalues.h"

namespace ExchangeValues {

void writeAbort(SettingsScope) { }

void writeOutcome(SettingsKey &, const QString &, const QString &) { }

void writeSaveAsOutcome(SettingsScope, const QString &, const QString &, const QString &) { }

} // namespace ExchangeValues
