// SPDX-License-Identifier: GPL-3.0-or-later
// The modern style: which elements it paints itself, how, and its metrics and widget polish.
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

#include <utility>

using namespace ModernMetrics;
using Fill = ModernColors::Fill;

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

// The direction of a gradient that runs across a bar of the given orientation.
Qt::Orientation across(Qt::Orientation bar)
{
    return bar == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
}

const QToolBar *parentToolBar(const QWidget *widget)
{
    return widget ? qobject_cast<const QToolBar *>(widget->parentWidget()) : nullptr;
}

bool isHot(QStyle::State state)
{
    return state & QStyle::State_MouseOver && state & QStyle::State_Enabled;
}

bool isMainWindow(const QWidget *widget)
{
    return qobject_cast<const QMainWindow *>(widget);
}

bool isToolBox(const QWidget *widget)
{
    return qobject_cast<const QToolBox *>(widget);
}

// The tab buttons of a tool box.
bool isToolBoxButton(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget)
        && qobject_cast<const QToolBox *>(widget->parentWidget());
}

// The draw function a dispatch table gives an element, or none.
template<class Element, class Function, std::size_t N>
Function lookUp(const std::pair<Element, Function> (&table)[N], Element element)
{
    for (const auto &[key, function] : table) {
        if (key == element)
            return function;
    }
    return nullptr;
}

// Metrics the style sets whatever the widget.
// clang-format off
constexpr std::pair<QStyle::PixelMetric, int> fixedMetrics[] = {
    {QStyle::PM_MenuButtonIndicator,            MenuButtonIndicator},
    {QStyle::PM_DockWidgetSeparatorExtent,      DockWidgetSeparatorExtent},
    {QStyle::PM_DockWidgetTitleBarButtonMargin, DockWidgetTitleBarButtonMargin},
    {QStyle::PM_MenuHMargin,                    MenuHMargin},
    {QStyle::PM_MenuBarPanelWidth,              MenuBarPanelWidth},
    {QStyle::PM_ToolBarItemSpacing,             ToolBarItemSpacing},
    {QStyle::PM_ToolBarItemMargin,              ToolBarItemMargin},
    {QStyle::PM_MenuVMargin,                    MenuVMargin},
    {QStyle::PM_MenuPanelWidth,                 MenuPanelWidth},
    {QStyle::PM_MenuBarVMargin,                 MenuBarVMargin},
    {QStyle::PM_MenuBarHMargin,                 MenuBarHMargin},
    {QStyle::PM_ToolBarFrameWidth,              ToolBarFrameWidth},
    {QStyle::PM_ToolBarIconSize,                ToolBarIconSize},
    {QStyle::PM_DockWidgetTitleMargin,          DockWidgetTitleMargin},
};

// The attributes polish(QWidget *) sets and unpolish(QWidget *) clears, by kind of widget.
const std::pair<bool (*)(const QWidget *), Qt::WidgetAttribute> widgetAttributes[] = {
    {isMainWindow,                          Qt::WA_StyledBackground},
    {isToolBox,                             Qt::WA_StyledBackground},
    {isToolBoxButton,                       Qt::WA_Hover},
    {WindowsModernStyle::isToolBoxPage,     Qt::WA_StyledBackground},
    {WindowsModernStyle::isMainWindowTabBar, Qt::WA_Hover},
};
// clang-format on

} // namespace

WindowsModernStyle::WindowsModernStyle()
    : QProxyStyle(createBaseStyle())
    , m_colorScheme(ThemeDetection::PaletteScheme)
{
    // Driver contract: colours stay invalid until the first palette polish, run on installing.
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
    // Driver contract: the palette scheme always wins, so every theme paints from the palette.
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
    for (const auto &[applies, attribute] : widgetAttributes) {
        if (applies(widget))
            widget->setAttribute(attribute);
    }
    if (auto *toolBox = qobject_cast<QToolBox *>(widget); toolBox && toolBox->layout())
        toolBox->layout()->setContentsMargins(
            ToolBoxMargin, ToolBoxMargin, ToolBoxMargin, ToolBoxMargin);
    if (isToolBoxButton(widget)) {
        // Tool-box buttons are spaced as push buttons by layoutSpacingImplementation().
        QSizePolicy policy = widget->sizePolicy();
        policy.setControlType(QSizePolicy::PushButton);
        widget->setSizePolicy(policy);
    }
    QProxyStyle::polish(widget);
}

void WindowsModernStyle::unpolish(QWidget *widget)
{
    // Driver contract: only attributes are undone; size policy and tool-box margin stay polished.
    for (const auto &[applies, attribute] : widgetAttributes) {
        if (applies(widget))
            widget->setAttribute(attribute, false);
    }
    QProxyStyle::unpolish(widget);
}

void WindowsModernStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
    QPainter *painter, const QWidget *widget) const
{
    // clang-format off
    static constexpr std::pair<PrimitiveElement, DrawFunction> handlers[] = {
        {PE_ModernBackground,                &WindowsModernStyle::drawBackgroundPanel},
        {PE_FrameMenu,                       &WindowsModernStyle::drawMenuFrame},
        {PE_FrameTabWidget,                  &WindowsModernStyle::drawTabWidgetFrame},
        {PE_FrameTabBarBase,                 &WindowsModernStyle::drawTabBarBase},
        {PE_PanelButtonTool,                 &WindowsModernStyle::drawDockTitleButtonPanel},
        {PE_PanelMenuBar,                    &WindowsModernStyle::drawNothing},
        {PE_IndicatorDockWidgetResizeHandle, &WindowsModernStyle::drawNothing},
        {PE_IndicatorButtonDropDown,         &WindowsModernStyle::drawDropDownIndicator},
        {PE_IndicatorToolBarHandle,          &WindowsModernStyle::drawToolBarHandle},
        {PE_IndicatorToolBarSeparator,       &WindowsModernStyle::drawToolBarSeparator},
        {PE_Widget,                          &WindowsModernStyle::drawWidgetBackground},
    };
    // clang-format on
    if (!drawGuarded(lookUp(handlers, element), option, painter, widget))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WindowsModernStyle::drawControl(ControlElement element, const QStyleOption *option,
    QPainter *painter, const QWidget *widget) const
{
    // clang-format off
    static constexpr std::pair<ControlElement, DrawFunction> handlers[] = {
        {CE_TabBarTabShape,   &WindowsModernStyle::drawTabShape},
        {CE_MenuItem,         &WindowsModernStyle::drawMenuItem},
        {CE_MenuEmptyArea,    &WindowsModernStyle::drawMenuEmptyArea},
        {CE_MenuBarItem,      &WindowsModernStyle::drawMenuBarItem},
        {CE_MenuBarEmptyArea, &WindowsModernStyle::drawNothing},
        {CE_Splitter,         &WindowsModernStyle::drawSplitter},
        {CE_DockWidgetTitle,  &WindowsModernStyle::drawDockWidgetTitle},
        {CE_ToolBar,          &WindowsModernStyle::drawToolBar},
        {CE_ToolBoxTabShape,  &WindowsModernStyle::drawToolBoxTabShape},
    };
    // clang-format on
    if (!drawGuarded(lookUp(handlers, element), option, painter, widget))
        QProxyStyle::drawControl(element, option, painter, widget);
}

void WindowsModernStyle::drawComplexControl(ComplexControl control,
    const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const DrawFunction draw
        = control == CC_ToolButton ? &WindowsModernStyle::drawToolButton : nullptr;
    if (!drawGuarded(draw, option, painter, widget))
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

bool WindowsModernStyle::drawGuarded(
    DrawFunction draw, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!draw || !option || !painter)
        return false;
    painter->save();
    const bool drawn = (this->*draw)(option, painter, widget);
    painter->restore();
    return drawn;
}

QRect WindowsModernStyle::subElementRect(
    SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
    // Main-window tabs keep the plain common geometry whatever the base adds for tab bar and
    // pane.
    case SE_TabWidgetTabBar:
        if (isMainWindowTabWidget(widget))
            return QCommonStyle::subElementRect(SE_TabWidgetTabBar, option, widget);
        break;
    case SE_TabWidgetTabContents:
        // Driver contract: a main window's pages fill the whole pane, frame included, by design.
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
    for (const auto &[fixed, value] : fixedMetrics) {
        if (fixed == metric)
            return value;
    }
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        if (parentToolBar(widget))
            return 0;
        break;
    case PM_TabBarBaseOverlap:
        if (isMainWindowTabWidget(widget) || isMainWindowTabBar(widget))
            return TabBarBaseOverlap;
        break;
    case PM_TabBarTabHSpace:
        if (isMainWindowTabBar(widget))
            return TabHSpace;
        break;
    case PM_TabBarTabShiftVertical:
        if (isMainWindowTabBar(widget)) {
            const bool south
                = static_cast<const QTabBar *>(widget)->shape() == QTabBar::RoundedSouth;
            return south ? -TabBarTabShiftVertical : TabBarTabShiftVertical;
        }
        break;
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

int WindowsModernStyle::mnemonicFlags(const QStyleOption *option, const QWidget *widget) const
{
    return proxy()->styleHint(SH_UnderlineShortcut, option, widget) ? Qt::TextShowMnemonic
                                                                    : Qt::TextHideMnemonic;
}

bool WindowsModernStyle::drawBackgroundPanel(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    painter->fillRect(option->rect, m_colors.gradient(Fill::Window, option->rect, Qt::Horizontal));
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
        painter->fillRect(
            inside, m_colors.gradient(Fill::ToolBar, inside, across(toolBar->orientation())));
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
    // Driver contract: outside tool bars the indicator is left out, and the base is not asked.
    const QToolBar *toolBar = parentToolBar(widget);
    if (!toolBar)
        return true;

    const QRect &r = option->rect;
    // Widened to the left so that the indicator shares the button's right border.
    const QRect box = outlineRect(r.adjusted(-DropDownBorderShare, 0, 0, 0));
    const bool sunken = option->state & State_Sunken;
    if (isHot(option->state) || sunken) {
        painter->setPen(m_colors.hoverBorder);
        if (toolBar->orientation() == Qt::Horizontal)
            painter->setBrush(
                m_colors.gradient(sunken ? Fill::Pressed : Fill::Hover, box, Qt::Vertical));
        else
            painter->setBrush(sunken ? m_colors.pressedBottom : m_colors.hoverBottom);
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
    const int dot = ToolBarHandleDotSize;
    const int dark = ToolBarHandleDotInset;
    const int light = ToolBarHandleDotInset + 1;
    for (int i = first; i <= last; i += ToolBarHandleStep) {
        // Along the handle the dark square sits one pixel before the light one.
        const int along = (horizontal ? r.top() : r.left()) + i + 1;
        const int side = horizontal ? r.left() : r.top();
        const auto square = [&](int a, int s) {
            return horizontal ? QRect(s, a, dot, dot) : QRect(a, s, dot, dot);
        };
        painter->fillRect(square(along, side + light), m_colors.gripLight);
        painter->fillRect(square(along - 1, side + dark), m_colors.gripShadow);
    }
    return true;
}

bool WindowsModernStyle::drawToolBarSeparator(
    const QStyleOption *option, QPainter *painter, const QWidget *) const
{
    // A dark line and a light one beside it, across the bar's length.
    const QRect &r = option->rect;
    const bool horizontal = option->state & State_Horizontal;
    const int low = horizontal ? r.left() + r.right() : r.top() + r.bottom();
    const int from = (horizontal ? r.top() : r.left()) + ToolBarSeparatorInset;
    const int to = (horizontal ? r.bottom() : r.right()) - ToolBarSeparatorInset;
    const std::pair<int, QColor> lines[]
        = {{(low - 1) / 2, m_colors.separatorDark}, {(low + 1) / 2, m_colors.separatorLight}};
    for (const auto &[at, color] : lines) {
        painter->setPen(color);
        if (horizontal)
            painter->drawLine(at, from, at, to);
        else
            painter->drawLine(from, at, to, at);
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
        painter->fillRect(area, m_colors.gradient(Fill::Window, area, Qt::Horizontal));
        return true;
    }
    if (qobject_cast<const QToolBox *>(widget)) {
        painter->fillRect(r, m_colors.gradient(Fill::ToolBox, r, Qt::Horizontal));
        return true;
    }
    if (isToolBoxPage(widget)) {
        painter->fillRect(r, m_colors.gradient(Fill::ToolBoxPage, r, Qt::Horizontal));
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

    const bool south = tab->shape == QTabBar::RoundedSouth;
    const bool selected = option->state & State_Selected;
    const QRect rect = tabShapeRect(*tab);
    // A tab at rest keeps out of the pane and of its right neighbour's border.
    if (!selected)
        painter->setClipRect(south ? rect.adjusted(0, 1, 1, 1) : rect.adjusted(0, 0, 1, 0));

    const Fill fill
        = selected ? Fill::SelectedTab : (isHot(option->state) ? Fill::Hover : Fill::Plain);
    QLinearGradient gradient
        = m_colors.gradient(fill, rect, Qt::Vertical, option->palette.color(QPalette::Window));
    if (south) { // from the tab's outer edge towards the pane
        gradient.setStart(rect.bottomLeft());
        gradient.setFinalStop(rect.topLeft());
    }
    painter->setPen(selected ? m_colors.borderDark : m_colors.borderLight);
    painter->setBrush(gradient);
    painter->drawRect(outlineRect(rect));
    return true;
}

QRect WindowsModernStyle::tabShapeRect(const QStyleOptionTab &tab)
{
    const bool first
        = tab.position == QStyleOptionTab::Beginning || tab.position == QStyleOptionTab::OnlyOneTab;
    const bool last
        = tab.position == QStyleOptionTab::End || tab.position == QStyleOptionTab::OnlyOneTab;
    const bool south = tab.shape == QTabBar::RoundedSouth;
    QRect rect = tab.rect;
    if (tab.state & State_Selected) {
        // The selected tab reaches over its left neighbour and into the pane.
        if (!first)
            rect.setLeft(rect.left() - SelectedTabOverlap);
        rect.setRight(rect.right() + (last ? -1 : 1));
        if (south)
            rect.translate(0, -SelectedTabPaneOverlap);
        else
            rect.setBottom(rect.bottom() + SelectedTabPaneOverlap);
    } else {
        if (last)
            rect.setRight(rect.right() - 1);
        if (south)
            rect.adjust(0, -1, 0, -2);
        else
            rect.setTop(rect.top() + 1);
    }
    return rect;
}

bool WindowsModernStyle::drawMenuItem(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = option->rect;
    if (option->state & State_Selected && option->state & State_Enabled) {
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(m_colors.hoverTop);
        painter->drawRect(outlineRect(cornerRect(
            r.left() + MenuSelectionLeft, r.top(), r.right() - MenuSelectionRight, r.bottom())));
    } else {
        // Driver contract: the column's gradient starts at the painter's origin, not at the item.
        const QRect column(0, 0, MenuIconColumnWidth + 1, 1);
        painter->fillRect(
            cornerRect(r.left(), r.top(), r.left() + MenuIconColumnWidth - 1, r.bottom()),
            m_colors.gradient(Fill::Title, column, Qt::Horizontal));
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
    drawMenuItemCheck(*item, painter, widget);
    drawMenuItemText(*item, painter, widget);
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

void WindowsModernStyle::drawMenuItemCheck(
    const QStyleOptionMenuItem &item, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = item.rect;
    const bool enabled = item.state & State_Enabled;
    const bool selected = item.state & State_Selected;
    const bool checked = item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked;
    const QRect check = cornerRect(r.left() + MenuCheckLeft, r.top() + MenuCheckTop,
        r.left() + MenuCheckRight, r.bottom() - MenuCheckBottom);
    if (checked && enabled) {
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(selected ? m_colors.pressedTop : m_colors.checkedTop);
        painter->drawRect(outlineRect(check));
    }

    if (!item.icon.isNull()) {
        const int size = proxy()->pixelMetric(PM_SmallIconSize, &item, widget);
        const QIcon::Mode mode
            = !enabled ? QIcon::Disabled : (selected ? QIcon::Active : QIcon::Normal);
        const QPixmap pixmap
            = item.icon.pixmap(QSize(size, size), mode, checked ? QIcon::On : QIcon::Off);
        QRect pixmapRect(QPoint(0, 0), pixmap.deviceIndependentSize().toSize());
        pixmapRect.moveCenter(check.center());
        painter->drawPixmap(pixmapRect.topLeft(), pixmap);
    } else if (checked) {
        QStyleOption mark;
        if (widget)
            mark.initFrom(widget);
        else
            mark = plainCopy(item);
        mark.rect = check;
        if (!enabled) {
            const QBrush disabledText = mark.palette.brush(QPalette::Disabled, QPalette::Text);
            mark.palette.setBrush(QPalette::Text, disabledText);
        }
        proxy()->drawPrimitive(PE_IndicatorMenuCheckMark, &mark, painter, widget);
    }
}

void WindowsModernStyle::drawMenuItemText(
    const QStyleOptionMenuItem &item, QPainter *painter, const QWidget *widget) const
{
    const QRect &r = item.rect;
    const bool enabled = item.state & State_Enabled;
    const QRect textRect = cornerRect(r.left() + MenuTextIndent, r.top() + MenuTextVMargin,
        r.right() - MenuTextRightMargin, r.bottom() - MenuTextVMargin);
    const int flags
        = Qt::TextSingleLine | Qt::TextDontClip | Qt::AlignVCenter | mnemonicFlags(&item, widget);
    QString text = item.text;
    // A shortcut after a tab goes to the right edge.
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        proxy()->drawItemText(painter, textRect, flags | Qt::AlignRight, item.palette, enabled,
            text.mid(tab + 1), QPalette::Text);
        text.truncate(tab);
    }
    proxy()->drawItemText(
        painter, textRect, flags | Qt::AlignLeft, item.palette, enabled, text, QPalette::Text);
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
        painter->setBrush(m_colors.gradient(Fill::MenuBarOpen, r, Qt::Vertical));
        painter->drawRect(cornerRect(r.left(), r.top(), r.right() - 1, r.bottom()));
    } else if (option->state & State_Selected && enabled) {
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(m_colors.gradient(Fill::Hover, r, Qt::Vertical));
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
        // Driver contract: bar texts are drawn enabled, also for disabled menus, as always shown.
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
    painter->fillRect(r, m_colors.gradient(Fill::Title, r, Qt::Vertical));

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

    // Clipped to round the corners: cut back by the inset along each edge, by half of it at the
    // corner pixels.
    const int inset = ToolBarCornerInset;
    QRegion rounded(cornerRect(bar.left() + inset, bar.top(), bar.right() - inset, bar.bottom()));
    rounded += cornerRect(bar.left(), bar.top() + inset, bar.right(), bar.bottom() - inset);
    rounded += bar.adjusted(inset / 2, inset / 2, -inset / 2, -inset / 2);
    painter->setClipRegion(rounded);
    painter->fillRect(bar,
        m_colors.gradient(Fill::ToolBar, bar, across(horizontal ? Qt::Horizontal : Qt::Vertical)));

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
    const bool sunken = option->state & State_Sunken;
    const bool hot = isHot(option->state);
    const Fill fill = sunken ? Fill::Pressed : (hot ? Fill::Hover : Fill::Plain);
    painter->setPen(sunken || hot ? m_colors.borderDark : m_colors.borderLight);
    painter->setBrush(m_colors.gradient(fill, option->rect, Qt::Vertical));
    painter->drawRect(outlineRect(option->rect));
    return true;
}

bool WindowsModernStyle::drawToolButton(
    const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const QToolBar *toolBar = parentToolBar(widget);
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    if (!toolBar || !button)
        return false;

    const QRect buttonRect = proxy()->subControlRect(CC_ToolButton, button, SC_ToolButton, widget);
    // Pressing either part of a split button also lights up the other one.
    State buttonState = button->state & ~State_Sunken;
    State menuState = buttonState;
    if (button->state & State_Sunken) {
        if (button->activeSubControls & SC_ToolButton) {
            buttonState |= State_Sunken;
            menuState |= State_Sunken | State_MouseOver;
        } else if (button->activeSubControls & SC_ToolButtonMenu) {
            buttonState |= State_MouseOver;
            menuState |= State_Sunken;
        }
    }

    const bool hot = isHot(buttonState);
    const bool checked = buttonState & State_On;
    const bool pressed = buttonState & State_Sunken;
    if (hot || checked || pressed) {
        const Fill fill = pressed || (hot && checked) ? Fill::Pressed
            : checked                                 ? Fill::Checked
                                                      : Fill::Hover;
        painter->setPen(m_colors.hoverBorder);
        painter->setBrush(m_colors.gradient(fill, buttonRect, across(toolBar->orientation())));
        painter->drawRect(outlineRect(buttonRect));
    }

    QStyleOptionToolButton label = *button;
    const int frame = proxy()->pixelMetric(PM_DefaultFrameWidth, option, widget);
    label.rect = buttonRect.adjusted(frame, frame, -frame, -frame);
    proxy()->drawControl(CE_ToolButtonLabel, &label, painter, widget);
    drawToolButtonMenuIndicator(*button, menuState, painter, widget);
    return true;
}

void WindowsModernStyle::drawToolButtonMenuIndicator(const QStyleOptionToolButton &button,
    State menuState, QPainter *painter, const QWidget *widget) const
{
    if (button.subControls & SC_ToolButtonMenu) {
        QStyleOptionToolButton menu = button;
        menu.rect = proxy()->subControlRect(CC_ToolButton, &button, SC_ToolButtonMenu, widget);
        menu.state = menuState;
        proxy()->drawPrimitive(PE_IndicatorButtonDropDown, &menu, painter, widget);
    } else if (button.features & QStyleOptionToolButton::HasMenu) {
        // Driver contract: the button's height, not its bottom, places the arrow (a pixel lower).
        const int indicator = proxy()->pixelMetric(PM_MenuButtonIndicator, &button, widget);
        const QRect &r = button.rect;
        QStyleOptionToolButton arrow = button;
        arrow.rect = QRect(r.right() - indicator + ToolButtonArrowOffset,
            r.height() - indicator + ToolButtonArrowOffset, indicator - ToolButtonArrowShrink,
            indicator - ToolButtonArrowShrink);
        proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
    }
}
