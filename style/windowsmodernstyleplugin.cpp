#include "windowsmodernstyleplugin.h"

#include "windowsmodernstyle.h"

QStyle *WindowsModernStylePlugin::create(const QString &key)
{
    if (key.toLower() == QLatin1String("windowsmodernstyle"))
        return new WindowsModernStyle;
    return nullptr;
}
