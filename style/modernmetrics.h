// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_MODERNMETRICS_H
#define FMTASK_MODERNMETRICS_H

// Sizes and offsets of the modern style, in pixels.
namespace ModernMetrics {

// Menus
static constexpr int MenuHMargin = 0;
static constexpr int MenuVMargin = 1;
static constexpr int MenuPanelWidth = 1;
static constexpr int MenuItemHeight = 22;
static constexpr int MenuItemExtraWidth = 48; // icon column, text indent and right margin
static constexpr int MenuItemShortcutExtraWidth = 60; // the same plus the gap before a shortcut
static constexpr int MenuSeparatorWidth = 10;
static constexpr int MenuSeparatorHeight = 3;
static constexpr int MenuIconColumnWidth = 25; // gradient column behind icons and check marks
static constexpr int MenuTextIndent = 32; // also where separator lines start
static constexpr int MenuTextRightMargin = 16; // room for the sub-menu arrow
static constexpr int MenuCheckLeft = 2; // check area spans 2..21 from the item's left edge
static constexpr int MenuCheckRight = 21;
static constexpr int MenuCheckTop = 1; // and bottom - MenuCheckBottom
static constexpr int MenuCheckBottom = 2;
static constexpr int MenuSelectionLeft = 1; // the selection frame's insets from the item's sides
static constexpr int MenuSelectionRight = 2;
static constexpr int MenuTextVMargin = 1;
static constexpr int MenuSubMenuArrowWidth = 12; // arrow box, from the item's right edge
static constexpr int MenuSubMenuArrowMargin = 4;

// Menu bar
static constexpr int MenuBarVMargin = 2;
static constexpr int MenuBarHMargin = 2;
static constexpr int MenuBarPanelWidth = 0;
static constexpr int MenuBarItemExtraWidth = 16;
static constexpr int MenuBarItemExtraHeight = 6;
static constexpr int MenuBarHeightReduction = 1;

// Tool bars and tool buttons
static constexpr int ToolBarFrameWidth = 2;
static constexpr int ToolBarItemSpacing = 0;
static constexpr int ToolBarItemMargin = 0;
static constexpr int ToolBarIconSize = 16;
static constexpr int ToolBarEndGap = 2; // the bar ends this far after its last child
static constexpr int ToolBarCornerInset = 2; // the clip that rounds the bar's corners
static constexpr int ToolBarHandleDotInset = 3; // dark dot from the handle's edge; light one +1
static constexpr int ToolBarHandleStep = 5; // one pair of dots every so many pixels
static constexpr int ToolBarHandleDotSize = 2;
static constexpr int ToolBarSeparatorInset = 2;
static constexpr int MenuButtonIndicator = 12;
static constexpr int ToolButtonArrowInset = 2; // drop-down arrow inside its indicator box
static constexpr int DropDownBorderShare = 1; // the box reaches over the button's right border
static constexpr int ToolButtonArrowOffset = 4; // menu arrow of a tool button from its corner
static constexpr int ToolButtonArrowShrink = 5;

// Tabs of main windows
static constexpr int TabHSpace = 12; // text padding, both sides together: twelve tabs fit 471 px
static constexpr int TabBarBaseOverlap = 0;
static constexpr int TabBarTabShiftVertical = 2;
static constexpr int SelectedTabOverlap = 2; // a selected tab reaches over its left neighbour
static constexpr int SelectedTabPaneOverlap = 1; // ... and into the pane

// Dock widgets
static constexpr int DockWidgetSeparatorExtent = 4;
static constexpr int DockWidgetTitleBarButtonMargin = 4;
static constexpr int DockWidgetTitleMargin = 3;
static constexpr int DockWidgetButtonShift = 2; // title buttons sit this far left of the base's
static constexpr int DockWidgetTitleLeft = 6;
static constexpr int DockWidgetTitleRight = 4;
static constexpr int DockWidgetTitleButtonWidth = 16; // room kept per close or float button

// Tool boxes
static constexpr int ToolBoxMargin = 2;
static constexpr int ToolBoxButtonThenPage = 0; // spacing under a tab button
static constexpr int ToolBoxPageThenButton = 3; // spacing above a tab button
static constexpr int ToolBoxOtherSpacing = 2;
static constexpr int DefaultLayoutSpacing = 6;

// Gradient stops
static constexpr double BackgroundEndStop = 0.6; // main-window background reaches its end here
static constexpr double ToolBoxStartStop = 0.4; // tool-box backgrounds start fading here
static constexpr double BarMiddleStart = 0.4; // the tool-bar's middle band
static constexpr double BarMiddleEnd = 0.6;

} // namespace ModernMetrics

#endif // FMTASK_MODERNMETRICS_H
