// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_MODERNCOLORS_H
#define FMTASK_MODERNCOLORS_H

#include <QColor>
#include <QLinearGradient>

class QPalette;
class QRect;

// The colours the modern style paints with, all derived from one palette so that the style
// follows the user's desktop colours, and the gradients it fills with.
struct ModernColors
{
    // The gradients of the style; an element picks one by its state.
    enum class Fill {
        Plain, // tabs and tool-box tabs at rest
        Hover, // under the mouse
        Checked, // checked tool buttons
        Pressed, // pressed, or checked under the mouse
        MenuBarOpen, // a menu-bar item whose menu is open
        SelectedTab, // a selected main-window tab, fading into the pane's colour
        Title, // dock titles and the menu's icon column
        ToolBar, // docked and floating tool bars
        Window, // main-window background
        ToolBox, // tool-box background
        ToolBoxPage // tool-box pages
    };

    QColor backgroundStart; // main-window and tool-box background, left end
    QColor backgroundEnd; // same gradients, right end
    QColor menuBorder; // pop-up menu frame, open menu-bar item frame
    QColor menuBackground; // menu area right of the icon column, join line under the bar item
    QColor menuBarOpenTop; // open menu-bar item gradient, start
    QColor menuBarOpenBottom; // open menu-bar item gradient, end
    QColor barTop; // tool-bar, dock-title and menu icon-column gradients, start
    QColor barMiddle; // tool-bar middle band, plain tab and tool-box tab gradients, start
    QColor barBottom; // tool-bar, dock-title, icon-column and tab gradients, end
    QColor gripShadow; // tool-bar handle dots, dark square
    QColor gripLight; // tool-bar handle dots, light square
    QColor separatorDark; // tool-bar and menu separators, dark line
    QColor separatorLight; // tool-bar separator, light line
    QColor hoverBorder; // frame of hovered, pressed or checked items
    // Driver contract: each triple holds three equal colours, kept apart for distinct stops later.
    QColor hoverTop;
    QColor hoverMiddle;
    QColor hoverBottom;
    QColor checkedTop;
    QColor checkedMiddle;
    QColor checkedBottom;
    QColor pressedTop;
    QColor pressedMiddle;
    QColor pressedBottom;
    QColor borderDark; // frame of selected tabs, bottom line of horizontal tool bars
    QColor borderLight; // frame of plain tabs, right edge of horizontal tool bars

    // Derives every colour from the current colour group of the palette.
    static ModernColors fromPalette(const QPalette &palette);

    // The fill over rect, from its top to its bottom edge for Qt::Vertical and from its left to
    // its right edge for Qt::Horizontal; a selected tab ends in the pane's colour.
    QLinearGradient gradient(Fill fill, const QRect &rect, Qt::Orientation direction,
        const QColor &pane = QColor()) const;
};

// Blends two colours channel by channel with weight t on a; the result is always opaque.
QColor mixColors(const QColor &a, const QColor &b, double t);

#endif // FMTASK_MODERNCOLORS_H
