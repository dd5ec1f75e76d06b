// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the system theme library, where there is one, which desktop theme is in use.
#include "style/themedetection.h"

#include <QLibrary>
#include <QString>

namespace ThemeDetection {

namespace {

using IsAppThemedFunction = int (*)();
using GetCurrentThemeNameFunction = qint32 (*)(wchar_t *themeFile, int themeFileSize,
    wchar_t *colorName, int colorNameSize, wchar_t *sizeName, int sizeNameSize);

IsAppThemedFunction isAppThemed = nullptr;
GetCurrentThemeNameFunction getCurrentThemeName = nullptr;
bool themeFunctionsResolved = false;

} // namespace

void loadThemeLibrary()
{
    if (themeFunctionsResolved)
        return;
    themeFunctionsResolved = true;
    // The library stays loaded for the process; QLibrary does not unload it on destruction.
    QLibrary library(QStringLiteral("uxtheme"));
    isAppThemed = reinterpret_cast<IsAppThemedFunction>(library.resolve("IsAppThemed"));
    getCurrentThemeName
        = reinterpret_cast<GetCurrentThemeNameFunction>(library.resolve("GetCurrentThemeName"));
}

int colorSchemeForTheme(const QString &themeFile, const QString &colorName)
{
    if (themeFile.endsWith(QLatin1String("Luna.msstyles"))) {
        if (colorName == QLatin1String("HomeStead"))
            return HomeSteadScheme;
        if (colorName == QLatin1String("Metallic"))
            return MetallicScheme;
        return DefaultScheme;
    }
    if (themeFile.endsWith(QLatin1String("Aero.msstyles")))
        return DefaultScheme;
    return PaletteScheme;
}

int currentColorScheme()
{
    loadThemeLibrary();
    if (!isAppThemed || !isAppThemed() || !getCurrentThemeName)
        return PaletteScheme;

    constexpr int bufferSize = 256;
    wchar_t themeFile[bufferSize] = {};
    wchar_t colorName[bufferSize] = {};
    if (getCurrentThemeName(themeFile, bufferSize, colorName, bufferSize, nullptr, 0) != 0)
        return PaletteScheme;
    return colorSchemeForTheme(
        QString::fromWCharArray(themeFile), QString::fromWCharArray(colorName));
}

} // namespace ThemeDetection
