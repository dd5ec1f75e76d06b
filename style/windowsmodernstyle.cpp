// SPDX-License-Identifier: GPL-3.0-or-later
#include "style/windowsmodernstyle.h"

#include "style/modernmetrics.h"
#include "style/themedetection.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLayout>
#include <QLinearGradient>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>

using namespace ModernMetrics;

namespace {

QStyle *createBaseStyle()
{
    // The native look where the platform offers it, the portable one everywhere else.
    if (QStyle *native = QStyleFactory::create(QStringLiteral("windowsvista")))
        return native;
    return QStyleFactory::create(QStringLiteral("Fusion"));
}

// The rectangle whose outline, drawn with a one-pixel pen, lies inside rect.
QRect outlineRect(const QRect &rect)
{
    return rect.adjusted(0, 0, -1, -1);
}

QRect cornerRect(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

// Copies the common part of an option as a plain option, so the base style never takes the
// copy for the richer option it was sliced from.
QStyleOption plainCopy(const QStyleOption &option)
{
    QStyleOption copy(option);
    copy.type = QStyleOption::SO_Default;
    copy.version = QStyleOption::Version;
    return copy;
}

QLinearGradient verticalGradient(const QRect &rect)
{
    return QLinearGradient(rect.left(), rect.top(), rect.left(), rect.bottom());
}

QLinearGradient horizontalGradient(const QRect &rect)
{
    return QLinearGradient(rect.left(), rect.top(), rect.right(), rect.top());
}

void setTriple(
    QLinearGradient &gradient, const QColor &top, const QColor &middle, const QColor &bottom)
{
    gradient.setColorAt(0, top);
    gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1, bottom);
}

const QToolBar *parentToolBar(const QWidget *widget)
{
    return widget ? qobject_cast<const QToolBar *>(widget->parentWidget()) : nullptr;
}

bool isHotOrSunken(QStyle::State state)
{
    return (state & QStyle::State_MouseOver && state & QStyle::State_Enabled)
        || state & QStyle::State_Sunken;
}

} // namespace

WindowsModernStyle::WindowsModernStyle()
    : QProxyStyle(createBaseStyle())
    , m_colorScheme(ThemeDetection::PaletteScheme)
{
    ThemeDetection::loadThemeLibrary();
}

WindowsModernStyle::~WindowsModernStyle() = default;

bool WindowsModernStyle::isMainWindowTabWidget(const QWidget *widget)
{
    const auto *tabWidget = qobject_cast<const QTabWidget *>(widget);
    if (!tabWidget || tabWidget->tabShape() != QTabWidget::Rounded)
        return false;
    if (tabWidget->tabPosition() != QTabWidget::North
        && tabWidget->tabPosition() != QTabWidget::South)
        return false;
    return qobject_cast<const QMainWindow *>(tabWidget->window());
}

bool WindowsModernStyle::isMainWindowTabBar(const QWidget *widget)
{
    const auto *tabBar = qobject_cast<const QTabBar *>(widget);
    if (!tabBar)
        return false;
    if (tabBar->shape() != QTabBar::RoundedNorth && tabBar->shape() != QTabBar::RoundedSouth)
        return false;
    return qobject_cast<const QMainWindow *>(tabBar->window());
}

bool WindowsModernStyle::isToolBoxPage(const QWidget *widget)
{
    const QWidget *viewport = widget ? widget->parentWidget() : nullptr;
    const auto *scrollArea
        = qobject_cast<const QScrollArea *>(viewport ? viewport->parentWidget() : nullptr);
    return scrollArea && qobject_cast<const QToolBox *>(scrollArea->parentWidget());
}

void WindowsModernStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    // The desktop theme is asked on every palette change, yet the gradients always follow the
    // palette whatever theme it reports.
    m_colorScheme = ThemeDetection::currentColorScheme();
    m_colorScheme = ThemeDetection::PaletteScheme;
    // Qt polishes the palette beneath the application's own roles, so those stay on top. At this
    // point QApplication::palette() is still the previous one.
    m_colors = ModernColors::fromPalette(QApplication::palette().resolve(palette));
}

void WindowsModernStyle::polish(QApplication *application)
{
    // A palette set on the application is laid over the polished one only after the polish, and
    // announced by ApplicationPaletteChange.
    application->installEventFilter(this);
    QProxyStyle::polish(application);
}

void WindowsModernStyle::unpolish(QApplication *application)
{
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

bool WindowsModernStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        m_colors = ModernColors::fromPalette(QApplication::palette());
    return QProxyStyle::eventFilter(watched, event);
}

void WindowsModernStyle::polish(QWidget *widget)
{
    if (qobject_cast<QMainWindow *>(widget))
        widget->setAttribute(Qt::WA_StyledBackground);
    if (auto *toolBox = qobject_cast<QToolBox *>(widget)) {
        toolBox->setAttribute(Qt::WA_StyledBackground);
        if (QLayout *layout = toolBox->layout())
            layout->setContentsMargins(ToolBoxMargin, ToolBoxMargin, ToolBoxMargin, ToolBoxMargin);
    }
    if (qobject_cast<QAbstractButton *>(widget)
        && qobject_cast<QToolBox *>(widget->parentWidget())) {
        widget->setAttribute(Qt::WA_Hover);
        QSizePolicy policy = widget->sizePolicy();
        policy.setControlType(QSizePolicy::PushButton);
        widget->setSizePolicy(policy);
    }
    if (isToolBoxPage(widget))
        widget->setAttribute(Qt::WA_StyledBackground);
    if (isMainWindowTabBar(widget))
        widget->setAttribute(Qt::WA_Hover);
    QProxyStyle::polish(widget);
}

void WindowsModernStyle::unpolish(QWidget *widget)
{
    // Size policy and tool-box margin are left as polished; only the attributes are undone.
    if (qobject_cast<QMainWindow *>(widget))
        widget->setAttribute(Qt::WA_StyledBackground, false);
    if (qobject_cast<QToolBox *>(widget))
        widget->setAttribute(Qt::WA_StyledBackground, false);
    if (qobject_cast<QAbstractButton *>(widget) && qobject_cast<QToolBox *>(widget->parentWidget()))
        widget->setAttribute(Qt::WA_Hover, false);
    // Main windows are looked at a second time; repeating the reset does no harm.
    if (qobject_cast<QMainWindow *>(widget))
        widget->setAttribute(Qt::WA_StyledBackground, false);
    if (isToolBoxPage(widget))
        widget->setAttribute(Qt::WA_StyledBackground, false);
    if (isMainWindowTabBar(widget))
        widget->setAttribute(Qt::WA_Hover, false);
    QProxyStyle::unpolish(widget);
}

void WindowsModernStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
    QPainter *painter, const QWidget *widget) const
{
    DrawFunction draw = nullptr;
    if (element == PE_ModernBackground) {
        draw = &WindowsModernStyle::drawBackgroundPanel;
    } else {
        switch (element) {
        case PE_FrameMenu:
            draw = &WindowsModernStyle::drawMenuFrame;
            break;
        case PE_FrameTabWidget:
            draw = &WindowsModernStyle::drawTabWidgetFrame;
            break;
        case PE_FrameTabBarBase:
            draw = &WindowsModernStyle::drawTabBarBase;
            break;
        case PE_PanelButtonTool:
            draw = &WindowsModernStyle::drawDockTitleButtonPanel;
            break;
        case PE_PanelMenuBar:
        case PE_IndicatorDockWidgetResizeHandle:
            draw = &WindowsModernStyle::drawNothing;
            break;
        case PE_IndicatorButtonDropDown:
            draw = &WindowsModernStyle::drawDropDownIndicator;
            break;
        case PE_IndicatorToolBarHandle:
            draw = &WindowsModernStyle::drawToolBarHandle;
            break;
        case PE_IndicatorToolBarSeparator:
            draw = &WindowsModernStyle::drawToolBarSeparator;
            break;
        case PE_Widget:
            draw = &WindowsModernStyle::drawWidgetBackground;
            break;
        default:
            break;
        }
    }
    if (draw && drawGuarded(draw, option, painter, widget))
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

bool WindowsModernStyle::drawGuarded(
    DrawFunction draw, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return false;
    painter->save();
    const bool drawn = (this->*draw)(option, painter, widget);
    painter->restore();
    return drawn;
}

void WindowsModernStyle::drawControl(ControlElement element, const QStyleOption *option,
    QPainter *painter, const QWidget *widget) const
{
    DrawFunction draw = nullptr;
    switch (element) {
    case CE_TabBarTabShape:
        draw = &WindowsModernStyle::drawTabShape;
        break;
    case CE_MenuItem:
        draw = &WindowsModernStyle::drawMenuItem;
        break;
    case CE_MenuEmptyArea:
        draw = &WindowsModernStyle::drawMenuEmptyArea;
        break;
    case CE_MenuBarItem:
        draw = &WindowsModernStyle::drawMenuBarItem;
        break;
    case CE_MenuBarEmptyArea:
        draw = &WindowsModernStyle::drawNothing;
        break;
    case CE_Splitter:
        draw = &WindowsModernStyle::drawSplitter;
        break;
    case CE_DockWidgetTitle:
        draw = &WindowsModernStyle::drawDockWidgetTitle;
        break;
    case CE_ToolBar:
        draw = &WindowsModernStyle::drawToolBar;
        break;
    case CE_ToolBoxTabShape:
        draw = &WindowsModernStyle::drawToolBoxTabShape;
        break;
    default:
        break;
    }
    if (draw && drawGuarded(draw, option, painter, widget))
        return;
    QProxyStyle::drawControl(element, option, painter, widget);
}

void WindowsModernStyle::drawComplexControl(ComplexControl control,
    const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    if (control == CC_ToolButton && option && painter) {
        painter->save();
        const bool drawn = drawToolButton(option, painter, widget);
        painter->restore();
        if (drawn)
            return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect WindowsModernStyle::subElementRect(
    SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
    // Main-window tabs keep the plain common geometry whatever the base adds for tab bar and
    // pane, and their pages fill the whole pane on purpose.
    case SE_TabWidgetTabBar:
        if (isMainWindowTabWidget(widget))
            return QCommonStyle::subElementRect(SE_TabWidgetTabBar, option, widget);
        break;
    case SE_TabWidgetTabContents:
        if (isMainWindowTabWidget(widget))
            return QCommonStyle::subElementRect(SE_TabWidgetTabPane, option, widget);
        break;
    case SE_DockWidgetCloseButton:
    case SE_DockWidgetFloatButton:
        return rect.translated(-DockWidgetButtonShift, 0);
    default:
        break;
    }
    return rect;
}

int WindowsModernStyle::pixelMetric(
    PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_MenuButtonIndicator:
        return MenuButtonIndicator;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        if (parentToolBar(widget))
            return 0;
        break;
    case PM_DockWidgetSeparatorExtent:
        return DockWidgetSeparatorExtent;
    case PM_DockWidgetTitleBarButtonMargin:
        return DockWidgetTitleBarButtonMargin;
    case PM_TabBarBaseOverlap:
        if (isMainWindowTabWidget(widget) || isMainWindowTabBar(widget))
            return TabBarBaseOverlap;
        break;
    case PM_MenuHMargin:
        return MenuHMargin;
    case PM_MenuBarPanelWidth:
        return MenuBarPanelWidth;
    case PM_ToolBarItemSpacing:
        return ToolBarItemSpacing;
    case PM_ToolBarItemMargin:
        return ToolBarItemMargin;
    case PM_MenuVMargin:
        return MenuVMargin;
    case PM_MenuPanelWidth:
        return MenuPanelWidth;
    case PM_MenuBarVMargin:
        return MenuBarVMargin;
    case PM_MenuBarHMargin:
        return MenuBarHMargin;
    case PM_ToolBarFrameWidth:
        return ToolBarFrameWidth;
    case PM_TabBarTabShiftVertical:
        if (isMainWindowTabBar(widget)) {
            const bool south
                = static_cast<const QTabBar *>(widget)->shape() == QTabBar::RoundedSouth;
            return south ? -TabBarTabShiftVertical : TabBarTabShiftVertical;
        }
        break;
    case PM_ToolBarIconSize:
        return ToolBarIconSize;
    case PM_DockWidgetTitleMargin:
        return DockWidgetTitleMargin;
    case PM_LayoutVerticalSpacing:
        // A tool box spaces its buttons and pages by control type, through layoutSpacing().
        if (qobject_cast<const QToolBox *>(widget))
            return -1;
        break;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize WindowsModernStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
    const QSize &contentsSize, const QWidget *widget) const
{
    switch (type) {
    case CT_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            if (item->menuItemType == QStyleOptionMenuItem::Separator)
                return QSize(MenuSeparatorWidth, MenuSeparatorHeight);
            const bool hasShortcut = item->text.contains(QLatin1Char('\t'));
            const int extra = hasShortcut ? MenuItemShortcutExtraWidth : MenuItemExtraWidth;
            return QSize(contentsSize.width() + extra, MenuItemHeight);
        }
        break;
    case CT_MenuBarItem:
        return contentsSize + QSize(MenuBarItemExtraWidth, MenuBarItemExtraHeight);
    case CT_MenuBar:
        return QSize(contentsSize.width(), contentsSize.height() - MenuBarHeightReduction);
    case CT_Menu:
        return contentsSize;
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

int WindowsModernStyle::layoutSpacing(QSizePolicy::ControlType control1,
    QSizePolicy::ControlType control2, Qt::Orientation orientation, const QStyleOption *option,
    const QWidget *widget) const
{
    return layoutSpacingImplementation(control1, control2, orientation, option, widget);
}

int WindowsModernStyle::layoutSpacingImplementation(QSizePolicy::ControlType control1,
    QSizePolicy::ControlType control2, Qt::Orientation, const QStyleOption *,
    const QWidget *widget) const
{
    if (!qobject_cast<const QToolBox *>(widget))
        return DefaultLayoutSpacing;
    if (control1 == QSizePolicy::PushButton && control2 == QSizePolicy::DefaultType)
        return ToolBoxButtonThenPage;
    if (control1 == QSizePolicy::DefaultType && control2 == QSizePolicy::PushButton)
        return ToolBoxPageThenButton;
    return ToolBoxOtherSpacing;
}

QLinearGradient WindowsModernStyle::toolBarGradient(
    const QRect &rect, Qt::Orientation orientation) const
{
    QLinearGradient gradient
        = orientation == Qt::Horizontal ? verticalGradient(rect) : horizontalGradient(rect);
    gradient.setColorAt(0, m_colors.barTop);
    gradient.setColorAt(BarMiddleStart, m_colors.barMiddle);
    gradient.setColorAt(BarMiddleEnd, m_colors.barMiddle);
    gradient.setColorAt(1, m_colors.barBottom);
    return gradient;
}

int WindowsModernStyle::mnemonicFlags(const QStyleOption *option, const QWidget *widget) const
{
    return proxy()->styleHint(SH_UnderlineShortcut, option, widget) ? Qt::TextShowMnemonic
                                                                    : Qt::TextHideMnemonic;
}

bool WindowsModernStyle::drawBackgroundPanel(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    QLinearGradient gradient = horizontalGradient(option->rect);
    gradient.setColorAt(0, m_colors.backgroundStart);
    gradient.setColorAt(BackgroundEndStop, m_colors.backgroundEnd);
    painter->fillRect(option->rect, gradient);
    return true;
}

bool WindowsModernStyle::drawMenuFrame(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    painter->setPen(m_colors.menuBorder);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(outlineRect(option->rect));

    // Erase the top border under the open menu-bar item so item and menu read as one shape.
    if (const auto *menu = qobject_cast<const QMenu *>(widget)) {
        if (const auto *menuBar = qobject_cast<const QMenuBar *>(menu->parentWidget())) {
            const QRect item = menuBar->actionGeometry(menu->menuAction());
            if (item.isValid()) {
                painter->setPen(m_colors.menuBackground);
                painter->drawLine(1, 0, item.width() - 2, 0);
            }
        }
    }
    // A floating tool bar is framed like a menu and filled like a docked bar.
    if (const auto *toolBar = qobject_cast<const QToolBar *>(widget)) {
        const QRect inside = option->rect.adjusted(1, 1, -1, -1);
        painter->fillRect(inside, toolBarGradient(inside, toolBar->orientation()));
    }
    return true;
}

bool WindowsModernStyle::drawTabWidgetFrame(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!isMainWindowTabWidget(widget))
        return false;
    // No frame: the selected tab fades into this plain pane.
    painter->fillRect(option->rect, option->palette.window());
    return true;
}

bool WindowsModernStyle::drawTabBarBase(
    const QStyleOption *, QPainter *, const QWidget *widget) const
{
    return isMainWindowTabBar(widget);
}

bool WindowsModernStyle::drawDockTitleButtonPanel(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!widget || !widget->inherits("QDockWidgetTitleButton"))
        return false;
    const bool sunken = option->state & State_Sunken;
    if (!sunken && !(option->state & State_MouseOver))
        return true;
    painter->setPen(m_colors.hoverBorder);
    painter->setBrush(sunken ? m_colors.pressedMiddle : m_colors.hoverMiddle);
    painter->drawRect(outlineRect(option->rect));
    return true;
}

bool WindowsModernStyle::drawNothing(const QStyleOption *, QPainter *, const QWidget *) const
{
    return true;
}

bool WindowsModernStyle::drawDropDownIndicator(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    // Outside tool bars the indicator is left out entirely, without asking the base style.
    const QToolBar *toolBar = parentToolBar(widget);
    if (!toolBar)
        return true;

    const QRect &r = option->rect;
    // One pixel to the left, so the indicator shares the button's right border.
    const QRect box = cornerRect(r.left() - 1, r.top(), r.right() - 1, r.bottom() - 1);
    const bool sunken = option->state & State_Sunken;
    if (isHotOrSunken(option->state)) {
        painter->setPen(m_colors.hoverBorder);
        if (toolBar->orientation() == Qt::Horizontal) {
            QLinearGradient gradient = verticalGradient(box);
            if (sunken)
                setTriple(
                    gradient, m_colors.pressedTop, m_colors.pressedMiddle, m_colors.pressedBottom);
            else
                setTriple(gradient, m_colors.hoverTop, m_colors.hoverMiddle, m_colors.hoverBottom);
            painter->setBrush(gradient);
        } else {
            painter->setBrush(sunken ? m_colors.pressedBottom : m_colors.hoverBottom);
        }
        painter->drawRect(box);
    }
    QStyleOption arrow = plainCopy(*option);
    arrow.rect = r.adjusted(
        ToolButtonArrowInset, ToolButtonArrowInset, -ToolButtonArrowInset, -ToolButtonArrowInset);
    proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
    return true;
}

bool WindowsModernStyle::drawToolBarHandle(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    // Dot pairs, one every few pixels, over the middle three fifths of the handle.
    const QRect &r = option->rect;
    const bool horizontal = option->state & State_Horizontal;
    const int length = horizontal ? r.height() : r.width();
    const int first = length / ToolBarHandleStep;
    const int last = (ToolBarHandleStep - 1) * first;
    const int dark = ToolBarHandleDotInset;
    const int light = ToolBarHandleDotInset + 1;
    for (int i = first; i <= last; i += ToolBarHandleStep) {
        if (horizontal) {
            const int y = r.top() + i + 1;
            painter->fillRect(r.left() + light, y, 2, 2, m_colors.gripLight);
            painter->fillRect(r.left() + dark, y - 1, 2, 2, m_colors.gripShadow);
        } else {
            const int x = r.left() + i + 1;
            painter->fillRect(x, r.top() + light, 2, 2, m_colors.gripLight);
            painter->fillRect(x - 1, r.top() + dark, 2, 2, m_colors.gripShadow);
        }
    }
    return true;
}

bool WindowsModernStyle::drawToolBarSeparator(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    const QRect &r = option->rect;
    const int inset = ToolBarSeparatorInset;
    if (option->state & State_Horizontal) {
        const int x = (r.left() + r.right() - 1) / 2;
        painter->setPen(m_colors.separatorDark);
        painter->drawLine(x, r.top() + inset, x, r.bottom() - inset);
        const int x2 = (r.left() + r.right() + 1) / 2;
        painter->setPen(m_colors.separatorLight);
        painter->drawLine(x2, r.top() + inset, x2, r.bottom() - inset);
    } else {
        const int y = (r.top() + r.bottom() - 1) / 2;
        painter->setPen(m_colors.separatorDark);
        painter->drawLine(r.left() + inset, y, r.right() - inset, y);
        const int y2 = (r.top() + r.bottom() + 1) / 2;
        painter->setPen(m_colors.separatorLight);
        painter->drawLine(r.left() + inset, y2, r.right() - inset, y2);
    }
    return true;
}

bool WindowsModernStyle::drawWidgetBackground(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = option->rect;
    if (qobject_cast<const QMainWindow *>(widget)) {
        QRect area = r;
        const auto *statusBar
            = widget->findChild<const QStatusBar *>(QString(), Qt::FindDirectChildrenOnly);
        if (statusBar) {
            area.setBottom(area.bottom() - statusBar->height());
            painter->setPen(option->palette.color(QPalette::Light));
            painter->drawLine(area.right(), area.bottom() + 1, area.left(), area.bottom() + 1);
        }
        QLinearGradient gradient = horizontalGradient(area);
        gradient.setColorAt(0, m_colors.backgroundStart);
        gradient.setColorAt(BackgroundEndStop, m_colors.backgroundEnd);
        painter->fillRect(area, gradient);
        return true;
    }
    if (qobject_cast<const QToolBox *>(widget)) {
        QLinearGradient gradient = horizontalGradient(r);
        gradient.setColorAt(ToolBoxStartStop, m_colors.backgroundStart);
        gradient.setColorAt(1, m_colors.backgroundEnd);
        painter->fillRect(r, gradient);
        return true;
    }
    if (isToolBoxPage(widget)) {
        QLinearGradient gradient = horizontalGradient(r);
        gradient.setColorAt(ToolBoxStartStop, m_colors.barMiddle);
        gradient.setColorAt(1, m_colors.barTop);
        painter->fillRect(r, gradient);
        return true;
    }
    return false;
}

bool WindowsModernStyle::drawTabShape(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (!tab || !isMainWindowTabBar(widget))
        return false;

    const bool first = tab->position == QStyleOptionTab::Beginning
        || tab->position == QStyleOptionTab::OnlyOneTab;
    const bool last
        = tab->position == QStyleOptionTab::End || tab->position == QStyleOptionTab::OnlyOneTab;
    const bool south = tab->shape == QTabBar::RoundedSouth;
    const bool selected = option->state & State_Selected;

    QRect rect = option->rect;
    if (selected) {
        // The selected tab reaches over its left neighbour and into the pane.
        if (!first)
            rect.setLeft(rect.left() - SelectedTabOverlap);
        rect.setRight(rect.right() + (last ? -1 : 1));
        if (south) {
            rect.setTop(rect.top() - 1);
            rect.setBottom(rect.bottom() - 1);
        } else {
            rect.setBottom(rect.bottom() + 1);
        }
    } else {
        if (last)
            rect.setRight(rect.right() - 1);
        if (south) {
            rect.setTop(rect.top() - 1);
            rect.setBottom(rect.bottom() - 2);
            painter->setClipRect(rect.adjusted(0, 1, 1, 1));
        } else {
            rect.setTop(rect.top() + 1);
            painter->setClipRect(rect.adjusted(0, 0, 1, 0));
        }
    }

    // The gradient runs from the tab's outer edge towards the pane.
    QLinearGradient gradient = south
        ? QLinearGradient(rect.left(), rect.bottom(), rect.left(), rect.top())
        : verticalGradient(rect);
    if (selected) {
        gradient.setColorAt(0, m_colors.hoverTop);
        gradient.setColorAt(1, option->palette.color(QPalette::Window));
        painter->setPen(m_colors.borderDark);
    } else if (option->state & State_MouseOver && option->state & State_Enabled) {
        gradient.setColorAt(0, m_colors.hoverTop);
        gradient.setColorAt(1, m_colors.hoverBottom);
        painter->setPen(m_colors.borderLight);
    } else {
        gradient.setColorAt(0, m_colors.barMiddle);
        gradient.setColorAt(1, m_colors.barBottom);
        painter->setPen(m_colors.borderLight);
    }
    painter->setBrush(gradient);
    painter->drawRect(outlineRect(rect));
    return true;
}

bool WindowsModernStyle::drawMenuItem(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = option->rect;
    const bool enabled = option->state & State_Enabled;
    const bool selected = option->state & State_Selected;

    if (selected && enabled) {
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(m_colors.hoverTop);
        painter->drawRect(cornerRect(r.left() + 1, r.top(), r.right() - 3, r.bottom() - 1));
    } else {
        // The column gradient is anchored at the painter's origin, not at the item.
        QLinearGradient column(0, 0, MenuIconColumnWidth, 0);
        column.setColorAt(0, m_colors.barTop);
        column.setColorAt(1, m_colors.barBottom);
        painter->fillRect(
            cornerRect(r.left(), r.top(), r.left() + MenuIconColumnWidth - 1, r.bottom()), column);
        painter->fillRect(
            cornerRect(r.left() + MenuIconColumnWidth, r.top(), r.right(), r.bottom()),
            m_colors.menuBackground);
    }

    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (!item)
        return true;

    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
        const int y = (r.top() + r.bottom()) / 2;
        painter->setPen(m_colors.separatorDark);
        painter->drawLine(r.left() + MenuTextIndent, y, r.right(), y);
        return true;
    }

    const bool checked = item->checkType != QStyleOptionMenuItem::NotCheckable && item->checked;
    const QRect check = cornerRect(
        r.left() + MenuCheckLeft, r.top() + 1, r.left() + MenuCheckRight, r.bottom() - 2);
    if (checked && enabled) {
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(selected ? m_colors.pressedTop : m_colors.checkedTop);
        painter->drawRect(outlineRect(check));
    }

    if (!item->icon.isNull()) {
        const int size = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
        const QIcon::Mode mode
            = !enabled ? QIcon::Disabled : (selected ? QIcon::Active : QIcon::Normal);
        const QPixmap pixmap
            = item->icon.pixmap(QSize(size, size), mode, checked ? QIcon::On : QIcon::Off);
        QRect pixmapRect(QPoint(0, 0), pixmap.deviceIndependentSize().toSize());
        pixmapRect.moveCenter(check.center());
        painter->drawPixmap(pixmapRect.topLeft(), pixmap);
    } else if (checked) {
        QStyleOption mark;
        if (widget)
            mark.initFrom(widget);
        else
            mark = plainCopy(*option);
        mark.rect = check;
        if (!enabled) {
            const QBrush disabledText = mark.palette.brush(QPalette::Disabled, QPalette::Text);
            mark.palette.setBrush(QPalette::Text, disabledText);
        }
        proxy()->drawPrimitive(PE_IndicatorMenuCheckMark, &mark, painter, widget);
    }

    const QRect textRect = cornerRect(
        r.left() + MenuTextIndent, r.top() + 1, r.right() - MenuTextRightMargin, r.bottom() - 1);
    const int flags
        = Qt::TextSingleLine | Qt::TextDontClip | Qt::AlignVCenter | mnemonicFlags(option, widget);
    QString text = item->text;
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        proxy()->drawItemText(painter, textRect, flags | Qt::AlignRight, option->palette, enabled,
            text.mid(tab + 1), QPalette::Text);
        text.truncate(tab);
    }
    proxy()->drawItemText(
        painter, textRect, flags | Qt::AlignLeft, option->palette, enabled, text, QPalette::Text);

    if (item->menuItemType == QStyleOptionMenuItem::SubMenu) {
        QStyleOption arrow;
        arrow.rect = cornerRect(r.right() - MenuSubMenuArrowWidth, r.top() + MenuSubMenuArrowMargin,
            r.right() - MenuSubMenuArrowMargin, r.bottom() - MenuSubMenuArrowMargin);
        arrow.state = option->state & State_Enabled;
        arrow.palette = option->palette;
        arrow.direction = option->direction;
        proxy()->drawPrimitive(PE_IndicatorArrowRight, &arrow, painter, widget);
    }
    return true;
}

bool WindowsModernStyle::drawMenuEmptyArea(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    painter->fillRect(option->rect, m_colors.menuBackground);
    return true;
}

bool WindowsModernStyle::drawMenuBarItem(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = option->rect;
    const bool enabled = option->state & State_Enabled;
    if (option->state & State_Sunken && enabled) {
        // Open towards its menu: the bottom edge falls outside the item.
        painter->setPen(m_colors.menuBorder);
        QLinearGradient gradient = verticalGradient(r);
        gradient.setColorAt(0, m_colors.menuBarOpenTop);
        gradient.setColorAt(1, m_colors.menuBarOpenBottom);
        painter->setBrush(gradient);
        painter->drawRect(cornerRect(r.left(), r.top(), r.right() - 1, r.bottom()));
    } else if (option->state & State_Selected && enabled) {
        painter->setPen(m_colors.hoverBorder);
        QLinearGradient gradient = verticalGradient(r);
        gradient.setColorAt(0, m_colors.hoverTop);
        gradient.setColorAt(1, m_colors.hoverBottom);
        painter->setBrush(gradient);
        painter->drawRect(outlineRect(r));
    }

    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (!item)
        return true;
    const int size = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
    const QPixmap pixmap = item->icon.pixmap(QSize(size, size), QIcon::Normal, QIcon::Off);
    if (!pixmap.isNull()) {
        proxy()->drawItemPixmap(painter, r, Qt::AlignCenter, pixmap);
    } else {
        // Always drawn as enabled, also for disabled menus, as the bar has always shown them.
        const int flags = Qt::AlignCenter | Qt::TextSingleLine | mnemonicFlags(option, widget);
        proxy()->drawItemText(painter, r, flags, option->palette, true, item->text, QPalette::Text);
    }
    return true;
}

bool WindowsModernStyle::drawSplitter(const QStyleOption *, QPainter *, const QWidget *widget) const
{
    // The separators between a main window's docks are left to its background.
    return widget && qobject_cast<const QMainWindow *>(widget->window());
}

bool WindowsModernStyle::drawDockWidgetTitle(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    const QRect &r = option->rect;
    QLinearGradient gradient = verticalGradient(r);
    gradient.setColorAt(0, m_colors.barTop);
    gradient.setColorAt(1, m_colors.barBottom);
    painter->fillRect(r, gradient);

    const auto *dock = qstyleoption_cast<const QStyleOptionDockWidget *>(option);
    if (!dock)
        return true;
    QRect textRect = cornerRect(
        r.left() + DockWidgetTitleLeft, r.top(), r.right() - DockWidgetTitleRight, r.bottom());
    if (dock->closable)
        textRect.setRight(textRect.right() - DockWidgetTitleButtonWidth);
    if (dock->floatable)
        textRect.setRight(textRect.right() - DockWidgetTitleButtonWidth);
    const QString title
        = option->fontMetrics.elidedText(dock->title, Qt::ElideRight, textRect.width());
    proxy()->drawItemText(painter, textRect, Qt::AlignLeft | Qt::AlignVCenter, option->palette,
        option->state & State_Enabled, title, QPalette::WindowText);
    return true;
}

bool WindowsModernStyle::drawToolBar(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const bool horizontal = option->state & State_Horizontal;
    QRect bar = option->rect;
    // The bar ends just after its last visible child rather than at the dock area's edge.
    if (const auto *toolBar = qobject_cast<const QToolBar *>(widget)) {
        const QRect children = toolBar->childrenRect();
        if (horizontal)
            bar.setRight(children.right() + ToolBarEndGap);
        else
            bar.setBottom(children.bottom() + ToolBarEndGap);
    }

    const int inset = ToolBarCornerInset;
    QRegion rounded(cornerRect(bar.left() + inset, bar.top(), bar.right() - inset, bar.bottom()));
    rounded += cornerRect(bar.left(), bar.top() + inset, bar.right(), bar.bottom() - inset);
    rounded += bar.adjusted(1, 1, -1, -1);
    painter->setClipRegion(rounded);
    painter->fillRect(bar, toolBarGradient(bar, horizontal ? Qt::Horizontal : Qt::Vertical));

    painter->setPen(horizontal ? m_colors.borderDark : m_colors.borderLight);
    painter->drawLine(bar.left() + inset, bar.bottom(), bar.right() - inset, bar.bottom());
    painter->setPen(horizontal ? m_colors.borderLight : m_colors.borderDark);
    painter->drawLine(bar.right(), bar.top() + inset, bar.right(), bar.bottom() - inset);
    painter->setPen(m_colors.borderLight);
    painter->drawPoint(bar.right() - 1, bar.bottom() - 1);
    return true;
}

bool WindowsModernStyle::drawToolBoxTabShape(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    const QRect &r = option->rect;
    QLinearGradient gradient = verticalGradient(r);
    if (option->state & State_Sunken) {
        gradient.setColorAt(0, m_colors.pressedTop);
        gradient.setColorAt(1, m_colors.pressedBottom);
        painter->setPen(m_colors.borderDark);
    } else if (option->state & State_MouseOver && option->state & State_Enabled) {
        gradient.setColorAt(0, m_colors.hoverTop);
        gradient.setColorAt(1, m_colors.hoverBottom);
        painter->setPen(m_colors.borderDark);
    } else {
        gradient.setColorAt(0, m_colors.barMiddle);
        gradient.setColorAt(1, m_colors.barBottom);
        painter->setPen(m_colors.borderLight);
    }
    painter->setBrush(gradient);
    painter->drawRect(outlineRect(r));
    return true;
}

bool WindowsModernStyle::drawToolButton(
    const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const QToolBar *toolBar = parentToolBar(widget);
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    if (!toolBar || !button)
        return false;

    const QRect buttonRect = proxy()->subControlRect(CC_ToolButton, button, SC_ToolButton, widget);
    // Pressing either part of a split button also lights up the other one.
    State buttonState = button->state & ~State_Sunken;
    State menuState = button->state & ~State_Sunken;
    if (button->state & State_Sunken) {
        if (button->activeSubControls & SC_ToolButton) {
            buttonState |= State_Sunken;
            menuState |= State_Sunken | State_MouseOver;
        } else if (button->activeSubControls & SC_ToolButtonMenu) {
            buttonState |= State_MouseOver;
            menuState |= State_Sunken;
        }
    }

    const bool hot = buttonState & State_MouseOver && buttonState & State_Enabled;
    const bool checked = buttonState & State_On;
    const bool pressed = buttonState & State_Sunken;
    if (hot || checked || pressed) {
        QLinearGradient gradient = toolBar->orientation() == Qt::Horizontal
            ? verticalGradient(buttonRect)
            : horizontalGradient(buttonRect);
        if (pressed || (hot && checked))
            setTriple(
                gradient, m_colors.pressedTop, m_colors.pressedMiddle, m_colors.pressedBottom);
        else if (checked)
            setTriple(
                gradient, m_colors.checkedTop, m_colors.checkedMiddle, m_colors.checkedBottom);
        else
            setTriple(gradient, m_colors.hoverTop, m_colors.hoverMiddle, m_colors.hoverBottom);
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(gradient);
        painter->drawRect(outlineRect(buttonRect));
    }

    QStyleOptionToolButton label = *button;
    const int frame = proxy()->pixelMetric(PM_DefaultFrameWidth, option, widget);
    label.rect = buttonRect.adjusted(frame, frame, -frame, -frame);
    proxy()->drawControl(CE_ToolButtonLabel, &label, painter, widget);

    if (button->subControls & SC_ToolButtonMenu) {
        QStyleOptionToolButton menu = *button;
        menu.rect = proxy()->subControlRect(CC_ToolButton, button, SC_ToolButtonMenu, widget);
        menu.state = menuState;
        proxy()->drawPrimitive(PE_IndicatorButtonDropDown, &menu, painter, widget);
    } else if (button->features & QStyleOptionToolButton::HasMenu) {
        // The button's height rather than its bottom edge places the arrow, one pixel lower.
        const int indicator = proxy()->pixelMetric(PM_MenuButtonIndicator, option, widget);
        const QRect &r = button->rect;
        QStyleOptionToolButton arrow = *button;
        arrow.rect = QRect(r.right() - indicator + ToolButtonArrowOffset,
            r.height() - indicator + ToolButtonArrowOffset, indicator - ToolButtonArrowShrink,
            indicator - ToolButtonArrowShrink);
        proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
    }
    return true;
}
