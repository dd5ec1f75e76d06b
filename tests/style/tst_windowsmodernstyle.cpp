// SPDX-License-Identifier: GPL-3.0-or-later
#include "style/moderncolors.h"
#include "style/windowsmodernstyle.h"
#include "style/windowsmodernstyleplugin.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {
const QColor Untouched(255, 0, 255); // whatever the style leaves alone keeps this colour
constexpr int Base = -1000; // in a metric row: the base style's value
} // namespace

// The style's metrics, geometry, polish and drawing, on a main window's widgets and a dialog's.
class tst_WindowsModernStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_style.setBaseStyle(QStyleFactory::create("Windows")); // its buttons shift
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(200, 100, 50));
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Dark, QColor(100, 100, 100));
        palette.setColor(QPalette::Light, QColor(250, 250, 250));
        palette.setColor(QPalette::Highlight, QColor(50, 100, 200));
        QApplication::setPalette(palette);
        m_style.polish(palette);
        auto *mainTabs = new QTabWidget;
        mainTabs->addTab(new QWidget, "PDF");
        m_mainWindow.setCentralWidget(mainTabs);
        auto *westTabs = new QTabWidget(&m_mainWindow);
        westTabs->setTabPosition(QTabWidget::West);
        auto *southBar = new QTabBar(&m_mainWindow);
        southBar->setShape(QTabBar::RoundedSouth);
        auto *barButton = new QToolButton;
        m_mainWindow.addToolBar("Tools")->addWidget(barButton);
        m_mainWindow.statusBar()->setGeometry(0, 170, 200, 30);
        auto *dialogBar = new QTabBar(&m_dialog);
        dialogBar->setShape(QTabBar::RoundedSouth);
        m_widgets = {{"main window", &m_mainWindow}, {"main tabs", mainTabs},
            {"main bar", mainTabs->tabBar()}, {"south bar", southBar},
            {"west bar", westTabs->tabBar()}, {"bar button", barButton},
            {"loose button", new QToolButton(&m_dialog)},
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

    void pixels_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<QColor>("expected"); // none: drawn exactly as the base style draws it
        QTest::addColumn<int>("tolerance"); // gradients get some slack
        // Colours the palette set up in initTestCase() leads to.
        const auto grey = [](int v) { return QColor(v, v, v); };
        const QColor button(200, 100, 50), light = grey(250), menu(247, 233, 226),
                                           hover(194, 209, 239);
        const auto row
            = [](const char *scene, QPoint point, const QColor &expected, int tolerance = 0) {
                  QTest::addRow("%s at %d,%d", scene, point.x(), point.y())
                      << QString(scene) << point << expected << tolerance;
              };
        for (const bool across : {false, true}) { // " h": in a horizontal bar
            const auto at = [across](int a, int b) { return across ? QPoint(b, a) : QPoint(a, b); };
            const char *handle = across ? "handle h" : "handle";
            const char *separator = across ? "bar separator h" : "bar separator";
            for (int i : {4, 9, 14}) // the dark square covers the light one where they overlap
                row(handle, at(i + 1, 4), grey(139)), row(handle, at(i + 2, 5), light);
            row(handle, at(19, 3), Untouched);
            for (int a : {2, 17})
                row(separator, at(a, 2), grey(147)), row(separator, at(a, 3), light);
            row(separator, at(18, 2), Untouched);
        }
        row("menu item", {0, 11}, QColor(244, 224, 214), 4); // icon column gradient
        row("menu item", {24, 11}, button, 4);
        row("menu item", {25, 0}, menu);
        row("menu separator", {32, 10}, grey(147));
        row("menu separator", {31, 10}, menu);
        // The selected tab reaches two pixels over its left neighbour and one into the pane.
        row("selected tab", {8, 17}, grey(100));
        row("selected tab", {7, 17}, Untouched);
        row("selected tab", {49, 6}, hover, 8);
        row("hovered tab", {10, 17}, grey(131));
        row("hovered tab", {9, 17}, Untouched);
        row("hovered tab", {49, 7}, hover, 8);
        // Main window: the gradient is complete at three fifths of the width and stops above the
        // status bar, which gets a light line on top.
        row("main window", {0, 100}, button, 3);
        row("main window", {125, 169}, QColor(244, 223, 213), 1);
        row("main window", {199, 170}, light);
        row("main window", {100, 171}, Untouched);
        // Tabs outside a main window and tool buttons outside a tool bar are left to the base
        // style.
        row("selected dialog tab", {50, 17}, QColor());
        row("loose tool button", {25, 16}, QColor());
    }

    void pixels()
    {
        QFETCH(QString, scene);
        QFETCH(QPoint, point);
        QFETCH(QColor, expected);
        QFETCH(int, tolerance);
        const QImage image = draw(scene, &m_style), base = draw(scene, m_style.baseStyle());
        if (!expected.isValid()) {
            QVERIFY(image == base);
            expected = base.pixelColor(point);
            QVERIFY(expected != Untouched); // the base did draw there
        }
        const QColor actual = image.pixelColor(point);
        const int off = std::max({qAbs(actual.red() - expected.red()),
            qAbs(actual.green() - expected.green()), qAbs(actual.blue() - expected.blue())});
        QVERIFY2(off <= tolerance, qPrintable(actual.name() + " instead of " + expected.name()));
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

    void widgetRules()
    {
        // Metrics on widgets in and out of a main window (Base: the base style's value).
        using Metric = std::tuple<const char *, QStyle::PixelMetric, int>;
        for (const auto &[name, metric, expected] :
            {Metric("bar button", QStyle::PM_ButtonShiftVertical, 0),
                Metric("loose button", QStyle::PM_ButtonShiftVertical, Base),
                Metric("south bar", QStyle::PM_TabBarTabShiftVertical, -2),
                Metric("dialog bar", QStyle::PM_TabBarTabShiftVertical, Base),
                Metric("main tabs", QStyle::PM_TabBarBaseOverlap, 0)}) {
            const int base = m_style.baseStyle()->pixelMetric(metric, nullptr, widget(name));
            QVERIFY2(m_style.pixelMetric(metric, nullptr, widget(name))
                    == (expected == Base ? base : expected),
                name);
        }
        // Polishing sets the attribute only where listed; unpolishing always clears it.
        using Row = std::tuple<const char *, Qt::WidgetAttribute, bool>;
        for (const auto &[name, attribute, set] :
            {Row("main window", Qt::WA_StyledBackground, true), Row("main bar", Qt::WA_Hover, true),
                Row("west bar", Qt::WA_Hover, false), Row("dialog bar", Qt::WA_Hover, false)}) {
            QWidget *target = widget(name);
            target->setAttribute(attribute, false);
            m_style.polish(target);
            QVERIFY2(target->testAttribute(attribute) == set, name);
            m_style.unpolish(target);
            QVERIFY2(!target->testAttribute(attribute), name);
        }
    }

    // Found by name in any case, listed once; a spaced name is another style.
    void createByName()
    {
        QCOMPARE(QStyleFactory::keys().count("WindowsModernStyle"), 1);
        const std::unique_ptr<QStyle> capitals(QStyleFactory::create("WINDOWSMODERNSTYLE"));
        QVERIFY(qobject_cast<WindowsModernStyle *>(capitals.get()));
        QVERIFY(!std::unique_ptr<QStyle>(QStyleFactory::create("Windows Modern Style")));
    }

private:
    QImage draw(const QString &scene, const QStyle *style)
    {
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Untouched);
        QPainter painter(&image);
        const auto is = [&scene](const char *word) { return scene.contains(word); };
        QStyleOption plain; // handles are 24 long and 12 across, separators 20 long and 7 across
        plain.state = is(" h") ? QStyle::State_Horizontal : QStyle::State_None;
        const QSize size = is("handle") ? QSize(24, 12) : QSize(20, 7);
        plain.rect = QRect(QPoint(), is(" h") ? size.transposed() : size);
        if (is("menu")) {
            QStyleOptionMenuItem o;
            o.rect = QRect(0, 0, 200, 22);
            o.state = QStyle::State_Enabled;
            o.menuItemType
                = is("separator") ? QStyleOptionMenuItem::Separator : QStyleOptionMenuItem::Normal;
            style->drawControl(QStyle::CE_MenuItem, &o, &painter);
        } else if (is("handle")) {
            style->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &plain, &painter);
        } else if (is("separator")) {
            style->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &plain, &painter);
        } else if (is("tab")) {
            QStyleOptionTab o;
            o.rect = QRect(10, 5, 80, 24);
            o.position = QStyleOptionTab::Middle;
            o.state = QStyle::State_Enabled
                | (is("hovered") ? QStyle::State_MouseOver : QStyle::State_Selected);
            style->drawControl(QStyle::CE_TabBarTabShape, &o, &painter,
                widget(is("dialog") ? "dialog bar" : "main bar"));
        } else if (is("tool button")) {
            QStyleOptionToolButton o;
            o.rect = QRect(5, 4, 40, 24);
            o.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On;
            o.subControls = QStyle::SC_ToolButton;
            style->drawComplexControl(QStyle::CC_ToolButton, &o, &painter, widget("loose button"));
        } else {
            plain.rect = image.rect();
            style->drawPrimitive(QStyle::PE_Widget, &plain, &painter, &m_mainWindow);
        }
        return image;
    }

    QWidget *widget(const QByteArray &name) const { return m_widgets.value(name); }

    WindowsModernStyle m_style;
    QMainWindow m_mainWindow;
    QDialog m_dialog;
    QHash<QByteArray, QWidget *> m_widgets;
};

QTEST_MAIN(tst_WindowsModernStyle)

#include "tst_windowsmodernstyle.moc"
