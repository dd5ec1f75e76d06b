// SPDX-License-Identifier: GPL-3.0-or-later
// The modern style's colour table, derived from a palette, and the gradients built from it.
#include "style/moderncolors.h"

#include "style/modernmetrics.h"

#include <QPalette>
#include <QRect>

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

namespace {

// The stops of each fill, from the start of the gradient to its end.
QGradientStops stopsOf(const ModernColors &c, ModernColors::Fill fill, const QColor &pane)
{
    using namespace ModernMetrics;
    using Fill = ModernColors::Fill;
    // clang-format off
    switch (fill) {
    case Fill::Plain:       return {{0, c.barMiddle}, {1, c.barBottom}};
    case Fill::Hover:       return {{0, c.hoverTop}, {.5, c.hoverMiddle}, {1, c.hoverBottom}};
    case Fill::Checked:     return {{0, c.checkedTop}, {.5, c.checkedMiddle}, {1, c.checkedBottom}};
    case Fill::Pressed:     return {{0, c.pressedTop}, {.5, c.pressedMiddle}, {1, c.pressedBottom}};
    case Fill::MenuBarOpen: return {{0, c.menuBarOpenTop}, {1, c.menuBarOpenBottom}};
    case Fill::SelectedTab: return {{0, c.hoverTop}, {1, pane}};
    case Fill::Title:       return {{0, c.barTop}, {1, c.barBottom}};
    case Fill::ToolBar:     return {{0, c.barTop}, {BarMiddleStart, c.barMiddle},
                                    {BarMiddleEnd, c.barMiddle}, {1, c.barBottom}};
    case Fill::Window:      return {{0, c.backgroundStart}, {BackgroundEndStop, c.backgroundEnd}};
    case Fill::ToolBox:     return {{ToolBoxStartStop, c.backgroundStart}, {1, c.backgroundEnd}};
    case Fill::ToolBoxPage: return {{ToolBoxStartStop, c.barMiddle}, {1, c.barTop}};
    }
    // clang-format on
    return {};
}

} // namespace

QLinearGradient ModernColors::gradient(
    Fill fill, const QRect &rect, Qt::Orientation direction, const QColor &pane) const
{
    QLinearGradient result(
        rect.topLeft(), direction == Qt::Vertical ? rect.bottomLeft() : rect.topRight());
    result.setStops(stopsOf(*this, fill, pane));
    return result;
}
