// SPDX-License-Identifier: GPL-3.0-or-later
// The one set of job values of the process.
#include "settings/jobsettings.h"

JobSettings::JobSettings()
{
    for (const Formats::Format &format : Formats::all())
        extensions[format.index] = QString::fromLatin1(format.defaultExtension);
}

QString JobSettings::extension(int index) const
{
    const Formats::Format *format = Formats::byIndex(index);
    return format ? extensions[format->index] : QString();
}

JobSettings &jobSettings()
{
    static JobSettings instance;
    return instance;
}
