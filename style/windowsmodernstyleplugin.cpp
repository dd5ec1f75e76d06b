// SPDX-License-Identifier: GPL-3.0-or-later
#include "style/windowsmodernstyleplugin.h"

#include "style/windowsmodernstyle.h"

QStyle *WindowsModernStylePlugin::create(const QString &key)
{
    if (key.toLower() == QLatin1String("windowsmodernstyle"))
        return new WindowsModernStyle;
    return nullptr;
}
