// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_THEMEDETECTION_H
#define FMTASK_THEMEDETECTION_H

class QString;

// Recognition of the desktop's visual theme through the system theme library, which is loaded
// at run time because it is missing on some systems.
namespace ThemeDetection {

// Colour schemes of the desktop themes the style knows.
enum ColorScheme {
    DefaultScheme = 0, // the blue default theme, or the glass theme
    MetallicScheme = 1,
    HomeSteadScheme = 2,
    PaletteScheme = 3 // derived from the application palette
};

// Resolves the two theme functions, once per process; either may stay missing.
void loadThemeLibrary();

// Asks the theme library for the current theme; PaletteScheme when it is absent, when themes
// are switched off or when the theme is not one of the known ones.
int currentColorScheme();

// The scheme of a theme file and colour name as the theme library reports them.
int colorSchemeForTheme(const QString &themeFile, const QString &colorName);

} // namespace ThemeDetection

#endif // FMTASK_THEMEDETECTION_H
