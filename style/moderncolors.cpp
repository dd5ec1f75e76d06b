// SPDX-License-Identifier: GPL-3.0-or-later
#include "style/moderncolors.h"

#include <QPalette>

QColor mixColors(const QColor &a, const QColor &b, double t)
{
    // Adding one half before truncating rounds halves up, so black and white meet at 128.
    const auto channel = [t](int x, int y) { return int(x * t + y * (1.0 - t) + 0.5); };
    return QColor(
        channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

ModernColors ModernColors::fromPalette(const QPalette &palette)
{
    const QColor button = palette.color(QPalette::Button);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const QColor dark = palette.color(QPalette::Dark);
    const QColor light = palette.color(QPalette::Light);
    const QColor highlight = palette.color(QPalette::Highlight);

    ModernColors c;
    c.backgroundStart = button;
    c.backgroundEnd = mixColors(button, base, 0.205);
    c.menuBorder = mixColors(text, dark, 0.2);
    c.menuBackground = mixColors(button, base, 0.143);
    c.menuBarOpenTop = mixColors(button, base, 0.2);
    c.menuBarOpenBottom = mixColors(button, base, 0.5);
    c.barTop = mixColors(button, base, 0.2);
    c.barMiddle = mixColors(button, base, 0.5);
    c.barBottom = button;
    c.gripShadow = mixColors(dark, base, 0.75);
    c.gripLight = light;
    c.separatorDark = mixColors(dark, base, 0.7);
    c.separatorLight = light;
    c.hoverBorder = highlight;
    c.hoverTop = mixColors(highlight, base, 0.3);
    c.hoverMiddle = c.hoverTop;
    c.hoverBottom = c.hoverTop;
    c.checkedTop = mixColors(highlight, base, 0.15);
    c.checkedMiddle = c.checkedTop;
    c.checkedBottom = c.checkedTop;
    c.pressedTop = mixColors(highlight, base, 0.45);
    c.pressedMiddle = c.pressedTop;
    c.pressedBottom = c.pressedTop;
    c.borderDark = dark;
    c.borderLight = mixColors(dark, base, 0.8);
    return c;
}
