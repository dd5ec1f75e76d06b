// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the modern style: its colours, its drawing pixel by pixel, geometry, metrics and polish.
#include "style/moderncolors.h"
#include "style/windowsmodernstyle.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

const QColor Untouched(255, 0, 255); // whatever the style leaves alone keeps this colour
const QColor AsBase; // in a pixel row: drawn exactly as the base style draws it
constexpr int Base = -1000; // in a metric row: the base style's value
const QRect ControlRect(10, 5, 80, 24); // tabs, tool-box tabs and menu-bar items
const QRect ToolButtonRect(5, 4, 40, 24);
const QRect DropDownRect(50, 4, 14, 24);

struct Probe
{
    QPoint point;
    QColor colour;
    int tolerance = 0;
};

QColor grey(int v)
{
    return QColor(v, v, v);
}

// Colours the palette of initTestCase() leads to.
const QColor Button(200, 100, 50), Light = grey(250), Dark = grey(100), Highlight(50, 100, 200);
const QColor BarTop(244, 224, 214), BarMiddle(228, 178, 153), MenuArea(247, 233, 226);
const QColor HoverFill(194, 209, 239), CheckedFill(224, 232, 247), PressedFill(163, 185, 230);
const QColor BorderLight = grey(131), SeparatorDark = grey(147), GripShadow = grey(139);
const QColor MenuBorder = grey(80), WindowEnd(244, 223, 213);

QPalette makePalette(const QColor &button, const QColor &base, const QColor &highlight)
{
    QPalette palette;
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

} // namespace

Q_DECLARE_METATYPE(QList<Probe>)

// On a main window's widgets and a dialog's.
class tst_WindowsModernStyle : public QObject
{
    Q_OBJECT

public:
    // What a pixel row draws.
    enum Scene {
        Handle,
        BarSeparator,
        MenuItem,
        MenuSeparator,
        MenuBarItem,
        Tab,
        ToolBoxTab,
        ToolButton,
        DropDown,
        MainWindow
    };
    Q_ENUM(Scene)

private slots:
    void initTestCase()
    {
        m_style.setBaseStyle(QStyleFactory::create("Windows")); // its buttons shift
        QPalette palette = makePalette(Button, Qt::white, Highlight);
        palette.setColor(QPalette::Dark, Dark);
        palette.setColor(QPalette::Light, Light);
        palette.setColor(QPalette::Text, Qt::black);
        QApplication::setPalette(palette);
        m_style.polish(palette);
        auto *mainTabs = new QTabWidget;
        mainTabs->addTab(new QWidget, "PDF");
        m_mainWindow.setCentralWidget(mainTabs);
        auto *westTabs = new QTabWidget(&m_mainWindow);
        westTabs->setTabPosition(QTabWidget::West);
        auto *southBar = new QTabBar(&m_mainWindow);
        southBar->setShape(QTabBar::RoundedSouth);
        auto *barButton = new QToolButton, *sideButton = new QToolButton;
        m_mainWindow.addToolBar("Tools")->addWidget(barButton);
        QToolBar *side = m_mainWindow.addToolBar("Side");
        side->setOrientation(Qt::Vertical);
        side->addWidget(sideButton);
        m_mainWindow.statusBar()->setGeometry(0, 170, 200, 30);
        auto *dialogBar = new QTabBar(&m_dialog);
        dialogBar->setShape(QTabBar::RoundedSouth);
        m_widgets = {{"main window", &m_mainWindow}, {"main tabs", mainTabs},
            {"main bar", mainTabs->tabBar()}, {"south bar", southBar},
            {"west bar", westTabs->tabBar()}, {"bar button", barButton},
            {"side button", sideButton}, {"loose button", new QToolButton(&m_dialog)},
            {"dialog tabs", new QTabWidget(&m_dialog)}, {"dialog bar", dialogBar}};
    }

    void colors()
    {
        QCOMPARE(mixColors(Qt::white, Qt::black, 0.205), QColor(52, 52, 52));
        QCOMPARE(mixColors(Qt::black, Qt::white, 0.5), QColor(128, 128, 128)); // halves round up
        // From a half-transparent palette, copied colours keep the alpha and blends come out
        // opaque.
        QPalette palette = QApplication::palette();
        for (const auto role :
            {QPalette::Button, QPalette::Dark, QPalette::Light, QPalette::Highlight})
            palette.setColor(role, QColor::fromRgba(palette.color(role).rgba() & 0x80ffffff));
        const ModernColors translucent = ModernColors::fromPalette(palette);
        QCOMPARE(translucent.backgroundStart, QColor(200, 100, 50, 128));
        QCOMPARE(translucent.hoverBorder, QColor(50, 100, 200, 128));
        QCOMPARE(translucent.backgroundEnd, QColor(244, 223, 213));
        QCOMPARE(translucent.borderLight, QColor(131, 131, 131));
    }

    // What a scene draws at some points: a colour (gradients get some slack), Untouched, or
    // AsBase (drawn exactly as the base style draws it).
    void pixels_data()
    {
        QTest::addColumn<Scene>("scene");
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<QByteArray>("widget"); // empty: drawn without a widget
        QTest::addColumn<QList<Probe>>("probes");
        using S = QStyle;
        const S::State on = S::State_Enabled, hover = on | S::State_MouseOver,
                       pressed = on | S::State_Sunken, checked = on | S::State_On,
                       selected = on | S::State_Selected, hotCheck = hover | checked,
                       checkSel = checked | selected, offSelect = S::State_Selected,
                       offSunken = S::State_Sunken, offHover = S::State_MouseOver;
        const auto row = [](const char *name, Scene scene, S::State state, const char *widget,
                             const QList<Probe> &probes) {
            QTest::newRow(name) << scene << state << QByteArray(widget) << probes;
        };
        for (const bool across : {false, true}) { // handle and separator of a horizontal bar
            const auto at = [across](int a, int b) { return across ? QPoint(b, a) : QPoint(a, b); };
            QList<Probe> handle {{at(19, 3), Untouched}}, separator {{at(18, 2), Untouched}};
            for (int i : {4, 9, 14}) // the dark square covers the light one where they overlap
                handle << Probe {at(i + 1, 4), GripShadow} << Probe {at(i + 2, 5), Light};
            for (int a : {2, 17})
                separator << Probe {at(a, 2), SeparatorDark} << Probe {at(a, 3), Light};
            const S::State state = across ? S::State_Horizontal : S::State_None;
            row(across ? "horizontal handle" : "handle", Handle, state, "", handle);
            row(across ? "horizontal bar separator" : "bar separator", BarSeparator, state, "",
                separator);
        }
        // clang-format off
        row("menu item",       MenuItem,      on,        "",             {{{0, 11}, BarTop, 4}, {{24, 11}, Button, 4}, {{25, 0}, MenuArea}});
        row("selected item",   MenuItem,      selected,  "",             {{{100, 11}, HoverFill}, {{1, 11}, Highlight}, {{0, 11}, Untouched}});
        row("disabled item",   MenuItem,      offSelect, "",             {{{100, 11}, MenuArea}});
        row("checked item",    MenuItem,      checked,   "",             {{{4, 3}, CheckedFill}, {{2, 3}, Highlight}});
        row("selected check",  MenuItem,      checkSel,  "",             {{{4, 3}, PressedFill}});
        row("menu separator",  MenuSeparator, on,        "",             {{{32, 10}, SeparatorDark}, {{31, 10}, MenuArea}});
        // An open menu-bar item stays open towards its menu: its frame ends below the item.
        row("open bar item",   MenuBarItem,   pressed,   "",             {{{50, 6}, BarTop, 4}, {{50, 28}, BarMiddle, 4}, {{10, 15}, MenuBorder}, {{50, 29}, MenuBorder}});
        row("hovered bar",     MenuBarItem,   selected,  "",             {{{50, 15}, HoverFill}, {{10, 15}, Highlight}});
        row("disabled bar",    MenuBarItem,   offSunken, "",             {{{50, 15}, Untouched}});
        // The selected tab reaches two pixels over its left neighbour and one into the pane.
        row("selected tab",    Tab,           selected,  "main bar",     {{{8, 17}, Dark}, {{7, 17}, Untouched}, {{49, 6}, HoverFill, 8}});
        row("hovered tab",     Tab,           hover,     "main bar",     {{{10, 17}, BorderLight}, {{9, 17}, Untouched}, {{49, 7}, HoverFill}});
        row("plain tab",       Tab,           on,        "main bar",     {{{49, 7}, BarMiddle, 8}, {{49, 27}, Button, 8}});
        // Below the pages the gradients run upwards, from the tab's outer edge to the pane.
        row("south tab",       Tab,           on,        "south bar",    {{{49, 25}, BarMiddle, 4}, {{49, 5}, Button, 8}});
        row("selected south",  Tab,           selected,  "south bar",    {{{49, 26}, HoverFill, 8}});
        row("dialog tab",      Tab,           selected,  "dialog bar",   {{{50, 17}, AsBase}});
        row("pressed box tab", ToolBoxTab,    pressed,   "",             {{{50, 15}, PressedFill}, {{10, 15}, Dark}});
        row("hovered box tab", ToolBoxTab,    hover,     "",             {{{50, 15}, HoverFill}, {{10, 15}, Dark}});
        row("plain box tab",   ToolBoxTab,    on,        "",             {{{50, 6}, BarMiddle, 8}, {{50, 27}, Button, 8}, {{10, 15}, BorderLight}});
        row("disabled box",    ToolBoxTab,    offHover,  "",             {{{50, 6}, BarMiddle, 8}});
        row("checked button",  ToolButton,    checked,   "bar button",   {{{25, 16}, CheckedFill}, {{5, 16}, Highlight}});
        row("hovered button",  ToolButton,    hover,     "bar button",   {{{25, 16}, HoverFill}});
        row("hot checked",     ToolButton,    hotCheck,  "bar button",   {{{25, 16}, PressedFill}});
        row("pressed button",  ToolButton,    pressed,   "bar button",   {{{25, 16}, PressedFill}});
        row("plain button",    ToolButton,    on,        "bar button",   {{{25, 16}, Untouched}});
        row("checked side",    ToolButton,    checked,   "side button",  {{{25, 16}, CheckedFill}});
        row("dialog button",   ToolButton,    hotCheck,  "loose button", {{{25, 16}, AsBase}});
        // The drop-down box shares the button's right border, one pixel left of its own rectangle.
        row("hovered arrow",   DropDown,      hover,     "bar button",   {{{51, 6}, HoverFill}, {{49, 15}, Highlight}});
        row("pressed arrow",   DropDown,      pressed,   "bar button",   {{{51, 6}, PressedFill}});
        row("side arrow",      DropDown,      pressed,   "side button",  {{{51, 6}, PressedFill}});
        row("plain arrow",     DropDown,      on,        "bar button",   {{{51, 6}, Untouched}});
        row("dialog arrow",    DropDown,      hover,     "loose button", {{{51, 6}, Untouched}});
        // The main window's gradient is complete at three fifths of the width and stops above
        // the status bar, which gets a light line on top.
        row("main window",     MainWindow,    on,        "main window",  {{{0, 100}, Button, 3}, {{125, 169}, WindowEnd, 1}, {{199, 170}, Light}, {{100, 171}, Untouched}});
        // clang-format on
    }

    void pixels()
    {
        QFETCH(Scene, scene);
        QFETCH(QStyle::State, state);
        QFETCH(QByteArray, widget);
        QFETCH(QList<Probe>, probes);
        const QImage image = draw(scene, state, widget, &m_style);
        const QImage base = draw(scene, state, widget, m_style.baseStyle());
        for (const Probe &probe : probes) {
            if (probe.colour.isValid()) {
                comparePixel(image, probe.point, probe.colour, probe.tolerance);
            } else {
                QVERIFY(image == base);
                QVERIFY(base.pixelColor(probe.point) != Untouched); // the base did draw there
            }
        }
    }

    void geometry()
    {
        QStyleOptionMenuItem option;
        const auto size = [&](QStyleOptionMenuItem::MenuItemType type, const char *text) {
            option.menuItemType = type;
            option.text = QString::fromLatin1(text);
            return m_style.sizeFromContents(QStyle::CT_MenuItem, &option, QSize(100, 16), nullptr);
        };
        QCOMPARE(size(QStyleOptionMenuItem::Normal, "&Open\tCtrl+O"), QSize(160, 22));
        QCOMPARE(size(QStyleOptionMenuItem::Normal, "&Open"), QSize(148, 22));
        QCOMPARE(size(QStyleOptionMenuItem::Separator, ""), QSize(10, 3));
        QStyleOptionDockWidget dock;
        dock.rect = QRect(0, 0, 200, 22);
        dock.closable = dock.floatable = true;
        for (const auto element :
            {QStyle::SE_DockWidgetCloseButton, QStyle::SE_DockWidgetFloatButton}) {
            const QRect base = m_style.baseStyle()->subElementRect(element, &dock, nullptr);
            QCOMPARE(m_style.subElementRect(element, &dock, nullptr), base.translated(-2, 0));
        }
        // Pages of a main window's tab widget cover the whole pane; a dialog's keep the base's
        // frame.
        QStyleOptionTabWidgetFrame frame;
        frame.rect = QRect(0, 0, 300, 200);
        frame.tabBarSize = QSize(120, 24);
        frame.lineWidth = 2;
        const auto fills = [&](const char *name) {
            return m_style.subElementRect(QStyle::SE_TabWidgetTabContents, &frame, widget(name))
                == m_style.subElementRect(QStyle::SE_TabWidgetTabPane, &frame, widget(name));
        };
        QVERIFY(fills("main tabs"));
        QVERIFY(!fills("dialog tabs"));
    }

    // Per widget: a metric ("PM_", Base: the base style's value), or an attribute ("WA_") that
    // polishing sets (1) or not (0) and unpolishing always clears.
    void perWidget_data()
    {
        QTest::addColumn<QByteArray>("widget");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<int>("expected");
        const auto row = [](const char *name, const char *widget, const char *key, int expected) {
            QTest::newRow(name) << QByteArray(widget) << QByteArray(key) << expected;
        };
        // clang-format off
        row("tool-bar button does not shift",   "bar button",   "PM_ButtonShiftVertical",    0);
        row("dialog button shifts as the base", "loose button", "PM_ButtonShiftVertical",    Base);
        row("south tabs shift up",              "south bar",    "PM_TabBarTabShiftVertical", -2);
        row("north tabs shift down",            "main bar",     "PM_TabBarTabShiftVertical", 2);
        row("dialog tabs shift as the base",    "dialog bar",   "PM_TabBarTabShiftVertical", Base);
        row("main tabs overlap nothing",        "main tabs",    "PM_TabBarBaseOverlap",      0);
        row("dialog tabs padded as the base",   "dialog bar",   "PM_TabBarTabHSpace",        Base);
        row("main window background",           "main window",  "WA_StyledBackground",       1);
        row("main-window tabs hover",           "main bar",     "WA_Hover",                  1);
        row("west tabs do not",                 "west bar",     "WA_Hover",                  0);
        row("dialog tabs do not",               "dialog bar",   "WA_Hover",                  0);
        // clang-format on
    }
    void perWidget()
    {
        QFETCH(QByteArray, widget);
        QFETCH(QByteArray, key);
        QFETCH(int, expected);
        QWidget *target = this->widget(widget);
        QVERIFY(target);
        if (key.startsWith("PM_")) {
            const auto metric = QStyle::PixelMetric(
                QMetaEnum::fromType<QStyle::PixelMetric>().keyToValue(key.constData()));
            if (expected == Base)
                expected = m_style.baseStyle()->pixelMetric(metric, nullptr, target);
            QCOMPARE(m_style.pixelMetric(metric, nullptr, target), expected);
            return;
        }
        const auto attribute = Qt::WidgetAttribute(
            QMetaEnum::fromType<Qt::WidgetAttribute>().keyToValue(key.constData()));
        target->setAttribute(attribute, false);
        m_style.polish(target);
        QCOMPARE(int(target->testAttribute(attribute)), expected);
        m_style.unpolish(target);
        QVERIFY(!target->testAttribute(attribute));
    }

    // Found by name in any case, listed once; a spaced name is another style.
    void createByName()
    {
        QCOMPARE(QStyleFactory::keys().count("WindowsModernStyle"), 1);
        const std::unique_ptr<QStyle> capitals(QStyleFactory::create("WINDOWSMODERNSTYLE"));
        QVERIFY(qobject_cast<WindowsModernStyle *>(capitals.get()));
        QVERIFY(!std::unique_ptr<QStyle>(QStyleFactory::create("Windows Modern Style")));
    }

    // Installed on the application, the style recolours as soon as the palette changes, as when
    // the desktop switches to dark colours and then to another highlight.
    void paletteChange()
    {
        const QPalette previousPalette = QApplication::palette();
        const QString previousStyle = QApplication::style()->name();
        const auto restore = qScopeGuard([&] {
            QApplication::setPalette(previousPalette);
            QApplication::setStyle(previousStyle);
        });
        QApplication::setStyle(new WindowsModernStyle);
        QApplication::setPalette(makePalette(grey(240), grey(252), QColor(48, 120, 210)));
        for (const auto &[highlight, selection] :
            {std::pair(QColor(41, 128, 217), QColor(37, 63, 90)),
                std::pair(QColor(201, 41, 41), QColor(85, 37, 37))}) {
            QApplication::setPalette(makePalette(grey(53), grey(35), highlight));
            const QStyle *installed = QApplication::style();
            comparePixel(
                draw(MenuItem, QStyle::State_Enabled, {}, installed), {100, 11}, grey(38), 0);
            comparePixel(
                draw(MenuItem, QStyle::State_Enabled | QStyle::State_Selected, {}, installed),
                {100, 11}, selection, 0);
        }
    }

private:
    static void comparePixel(
        const QImage &image, QPoint point, const QColor &expected, int tolerance)
    {
        const QColor actual = image.pixelColor(point);
        const int off = std::max({qAbs(actual.red() - expected.red()),
            qAbs(actual.green() - expected.green()), qAbs(actual.blue() - expected.blue())});
        QVERIFY2(off <= tolerance,
            qPrintable(QString("%1,%2: ").arg(point.x()).arg(point.y()) + actual.name()
                + " instead of " + expected.name()));
    }

    QImage draw(Scene scene, QStyle::State state, const QByteArray &on, const QStyle *style)
    {
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Untouched);
        QPainter painter(&image);
        QWidget *target = on.isEmpty() ? nullptr : widget(on);
        switch (scene) {
        case Handle:
        case BarSeparator: {
            QStyleOption o; // handles are 24 long and 12 across, separators 20 long and 7 across
            o.state = state;
            const QSize size = scene == Handle ? QSize(24, 12) : QSize(20, 7);
            o.rect = QRect(QPoint(), state & QStyle::State_Horizontal ? size.transposed() : size);
            style->drawPrimitive(scene == Handle ? QStyle::PE_IndicatorToolBarHandle
                                                 : QStyle::PE_IndicatorToolBarSeparator,
                &o, &painter, target);
            break;
        }
        case MenuItem:
        case MenuSeparator:
        case MenuBarItem: {
            QStyleOptionMenuItem o;
            o.rect = scene == MenuBarItem ? ControlRect : QRect(0, 0, 200, 22);
            o.state = state;
            o.menuItemType = scene == MenuSeparator ? QStyleOptionMenuItem::Separator
                                                    : QStyleOptionMenuItem::Normal;
            o.checked = state & QStyle::State_On;
            o.checkType = o.checked ? QStyleOptionMenuItem::NonExclusive
                                    : QStyleOptionMenuItem::NotCheckable;
            style->drawControl(scene == MenuBarItem ? QStyle::CE_MenuBarItem : QStyle::CE_MenuItem,
                &o, &painter, target);
            break;
        }
        case Tab: {
            QStyleOptionTab o;
            o.rect = ControlRect;
            o.position = QStyleOptionTab::Middle;
            o.state = state;
            if (const auto *bar = qobject_cast<QTabBar *>(target))
                o.shape = bar->shape();
            style->drawControl(QStyle::CE_TabBarTabShape, &o, &painter, target);
            break;
        }
        case ToolBoxTab: {
            QStyleOptionToolBox o;
            o.rect = ControlRect;
            o.state = state;
            style->drawControl(QStyle::CE_ToolBoxTabShape, &o, &painter, target);
            break;
        }
        case ToolButton: {
            QStyleOptionToolButton o;
            o.rect = ToolButtonRect;
            o.state = state;
            o.subControls = o.activeSubControls = QStyle::SC_ToolButton;
            style->drawComplexControl(QStyle::CC_ToolButton, &o, &painter, target);
            break;
        }
        case DropDown:
        case MainWindow: {
            QStyleOption o;
            o.rect = scene == DropDown ? DropDownRect : image.rect();
            o.state = state;
            style->drawPrimitive(
                scene == DropDown ? QStyle::PE_IndicatorButtonDropDown : QStyle::PE_Widget, &o,
                &painter, target);
            break;
        }
        }
        return image;
    }

    // The widget set up under this name in initTestCase(); a missing name fails the test.
    QWidget *widget(const QByteArray &name) const
    {
        QWidget *found = m_widgets.value(name);
        if (!found)
            QTest::qFail(qPrintable("no widget named " + name), __FILE__, __LINE__);
        return found;
    }

    WindowsModernStyle m_style;
    QMainWindow m_mainWindow;
    QDialog m_dialog;
    QHash<QByteArray, QWidget *> m_widgets;
};

QTEST_MAIN(tst_WindowsModernStyle)

#include "tst_windowsmodernstyle.moc"
