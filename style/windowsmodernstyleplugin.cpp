// SPDX-License-Identifier: GPL-3.0-or-later
// The plugin through which QStyleFactory creates the modern style by name.
#include "style/windowsmodernstyleplugin.h"

#include "style/windowsmodernstyle.h"

QStyle *WindowsModernStylePlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("windowsmodernstyle"), Qt::CaseInsensitive) == 0)
        return new WindowsModernStyle;
    return nullptr;
}
