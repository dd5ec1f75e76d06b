// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_WINDOWSMODERNSTYLE_H
#define FMTASK_WINDOWSMODERNSTYLE_H

#include "style/moderncolors.h"

#include <QProxyStyle>

class QStyleOptionMenuItem;
class QStyleOptionTab;
class QStyleOptionToolButton;

// The application's own widget style: menus, tool bars, dock titles, tool boxes, main-window
// tabs and main-window backgrounds in soft gradients taken from the palette; everything else is
// drawn by the platform style it wraps.
class WindowsModernStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // A background panel offered to callers that want the main-window gradient.
    static constexpr QStyle::PrimitiveElement PE_ModernBackground
        = QStyle::PrimitiveElement(QStyle::PE_CustomBase + 1);

    WindowsModernStyle();
    ~WindowsModernStyle() override;

    // Scheme of the desktop theme; always the palette-derived one once polished.
    int colorScheme() const { return m_colorScheme; }

    // The colours of the current palette; invalid before the first palette polish.
    const ModernColors &colors() const { return m_colors; }

    void polish(QPalette &palette) override;
    // Installed on the application, the style follows every change of its palette.
    void polish(QApplication *application) override;
    void polish(QWidget *widget) override;
    void unpolish(QApplication *application) override;
    void unpolish(QWidget *widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
        const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
        QPainter *painter, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
        const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
        const QWidget *widget = nullptr) const override;
    // Answered by layoutSpacingImplementation(), which holds the rule.
    int layoutSpacing(QSizePolicy::ControlType control1, QSizePolicy::ControlType control2,
        Qt::Orientation orientation, const QStyleOption *option = nullptr,
        const QWidget *widget = nullptr) const override;

    // Tab widgets and tab bars with tabs above or below the pages of a main window.
    static bool isMainWindowTabWidget(const QWidget *widget);
    static bool isMainWindowTabBar(const QWidget *widget);
    // The pages of a tool box, which live in a viewport of the box's scroll areas.
    static bool isToolBoxPage(const QWidget *widget);

protected slots:
    // Spacing between neighbours in a layout: tight inside tool boxes, 6 elsewhere.
    int layoutSpacingImplementation(QSizePolicy::ControlType control1,
        QSizePolicy::ControlType control2, Qt::Orientation orientation,
        const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Each draw function paints one element and returns false to let the base style paint it.
    using DrawFunction
        = bool (WindowsModernStyle::*)(const QStyleOption *, QPainter *, const QWidget *) const;

    // Runs a draw function with the painter's state saved around it.
    bool drawGuarded(DrawFunction draw, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const;

    bool drawBackgroundPanel(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawMenuFrame(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawTabWidgetFrame(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawTabBarBase(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawDockTitleButtonPanel(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawNothing(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawDropDownIndicator(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawToolBarHandle(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawToolBarSeparator(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawWidgetBackground(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    bool drawTabShape(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    // The outline of a main-window tab, moved and widened by its state and place in the bar.
    static QRect tabShapeRect(const QStyleOptionTab &tab);
    bool drawMenuItem(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    // The check area of a menu item with its frame, icon or check mark.
    void drawMenuItemCheck(
        const QStyleOptionMenuItem &item, QPainter *painter, const QWidget *widget) const;
    // The item's text, with a shortcut after a tab aligned to the right.
    void drawMenuItemText(
        const QStyleOptionMenuItem &item, QPainter *painter, const QWidget *widget) const;
    bool drawMenuEmptyArea(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawMenuBarItem(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawSplitter(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawDockWidgetTitle(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawToolBar(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    bool drawToolBoxTabShape(
        const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    bool drawToolButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    // The drop-down part of a split button, or the arrow of a button that has a menu.
    void drawToolButtonMenuIndicator(const QStyleOptionToolButton &button, State menuState,
        QPainter *painter, const QWidget *widget) const;

    // Text flags that show mnemonics only where the platform underlines shortcuts.
    int mnemonicFlags(const QStyleOption *option, const QWidget *widget) const;

    int m_colorScheme;
    ModernColors m_colors;
};

#endif // FMTASK_WINDOWSMODERNSTYLE_H
