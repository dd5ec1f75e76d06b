#include "windowsmodernstyle.h"
#include "windowsmodernstyleplugin.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QLayout>
#include <QMainWindow>
#include <QPluginLoader>
#include <QScrollArea>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>
#include <QtPlugin>
#include <QtTest>

#include <memory>

Q_IMPORT_PLUGIN(WindowsModernStylePlugin)

Q_DECLARE_METATYPE(QStyle::PixelMetric)
Q_DECLARE_METATYPE(QStyle::ContentsType)
Q_DECLARE_METATYPE(QStyle::SubElement)
Q_DECLARE_METATYPE(QStyleOptionMenuItem::MenuItemType)
Q_DECLARE_METATYPE(QSizePolicy::ControlType)
Q_DECLARE_METATYPE(Qt::WidgetAttribute)

namespace {

// Marks a metric row whose value must be the base style's.
constexpr int FromBase = -1000;

} // namespace

class tst_WindowsModernStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void pixelMetric_data();
    void pixelMetric();
    void sizeFromContents_data();
    void sizeFromContents();
    void dockButtonsMoveLeft_data();
    void dockButtonsMoveLeft();
    void tabContentsFillThePane_data();
    void tabContentsFillThePane();
    void polishAttributes_data();
    void polishAttributes();
    void polishToolBox();
    void layoutSpacing_data();
    void layoutSpacing();
    void pluginKeys();
    void createByName_data();
    void createByName();
    void installedByNameLaysOutToolBoxes();

private:
    QWidget *widgetNamed(const QString &name) const;

    std::unique_ptr<WindowsModernStyle> m_style;
    std::unique_ptr<QMainWindow> m_mainWindow;
    std::unique_ptr<QDialog> m_dialog;
    QTabWidget *m_mainTabs = nullptr;
    QTabWidget *m_westTabs = nullptr;
    QTabBar *m_southBar = nullptr;
    QTabWidget *m_dialogTabs = nullptr;
    QTabBar *m_dialogBar = nullptr;
    QToolBox *m_toolBox = nullptr;
    QWidget *m_toolBoxPage = nullptr;
};

void tst_WindowsModernStyle::initTestCase()
{
    m_style = std::make_unique<WindowsModernStyle>();

    m_mainWindow = std::make_unique<QMainWindow>();
    m_mainTabs = new QTabWidget;
    m_mainTabs->addTab(new QWidget, QStringLiteral("PDF"));
    m_mainWindow->setCentralWidget(m_mainTabs);
    m_westTabs = new QTabWidget(m_mainWindow.get());
    m_westTabs->setTabPosition(QTabWidget::West);
    m_southBar = new QTabBar(m_mainWindow.get());
    m_southBar->setShape(QTabBar::RoundedSouth);

    m_dialog = std::make_unique<QDialog>();
    m_dialogTabs = new QTabWidget(m_dialog.get());
    m_dialogBar = new QTabBar(m_dialog.get());
    m_dialogBar->setShape(QTabBar::RoundedSouth);
    m_toolBox = new QToolBox(m_dialog.get());
    m_toolBoxPage = new QWidget;
    m_toolBox->addItem(m_toolBoxPage, QStringLiteral("First"));
    m_toolBox->addItem(new QWidget, QStringLiteral("Second"));
}

void tst_WindowsModernStyle::cleanupTestCase()
{
    m_dialog.reset();
    m_mainWindow.reset();
    m_style.reset();
}

QWidget *tst_WindowsModernStyle::widgetNamed(const QString &name) const
{
    const QHash<QString, QWidget *> widgets {
        {QStringLiteral("main-window tabs"), m_mainTabs},
        {QStringLiteral("main-window tab bar"), m_mainTabs->tabBar()},
        {QStringLiteral("main-window south bar"), m_southBar},
        {QStringLiteral("main-window west tabs"), m_westTabs},
        {QStringLiteral("main-window west bar"), m_westTabs->tabBar()},
        {QStringLiteral("main window"), m_mainWindow.get()},
        {QStringLiteral("dialog tabs"), m_dialogTabs},
        {QStringLiteral("dialog tab bar"), m_dialogBar},
        {QStringLiteral("tool box"), m_toolBox},
        {QStringLiteral("tool-box page"), m_toolBoxPage},
        {QStringLiteral("tool-box button"),
            m_toolBox->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly).value(0)},
    };
    return widgets.value(name);
}

void tst_WindowsModernStyle::pixelMetric_data()
{
    // columns: metric, widget it is asked for (empty: none), value (FromBase: the base's)
    QTest::addColumn<QStyle::PixelMetric>("metric");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<int>("expected");

    const QString none;
    QTest::newRow("menu button indicator") << QStyle::PM_MenuButtonIndicator << none << 12;
    QTest::newRow("dock separator") << QStyle::PM_DockWidgetSeparatorExtent << none << 4;
    QTest::newRow("dock button margin") << QStyle::PM_DockWidgetTitleBarButtonMargin << none << 4;
    QTest::newRow("menu h margin") << QStyle::PM_MenuHMargin << none << 0;
    QTest::newRow("menu bar panel") << QStyle::PM_MenuBarPanelWidth << none << 0;
    QTest::newRow("tool-bar spacing") << QStyle::PM_ToolBarItemSpacing << none << 0;
    QTest::newRow("tool-bar item margin") << QStyle::PM_ToolBarItemMargin << none << 0;
    QTest::newRow("menu v margin") << QStyle::PM_MenuVMargin << none << 1;
    QTest::newRow("menu panel") << QStyle::PM_MenuPanelWidth << none << 1;
    QTest::newRow("menu bar v margin") << QStyle::PM_MenuBarVMargin << none << 2;
    QTest::newRow("menu bar h margin") << QStyle::PM_MenuBarHMargin << none << 2;
    QTest::newRow("tool-bar frame") << QStyle::PM_ToolBarFrameWidth << none << 2;
    QTest::newRow("tool-bar icons") << QStyle::PM_ToolBarIconSize << none << 16;
    QTest::newRow("dock title margin") << QStyle::PM_DockWidgetTitleMargin << none << 3;

    QTest::newRow("overlap, main-window tabs")
        << QStyle::PM_TabBarBaseOverlap << QStringLiteral("main-window tabs") << 0;
    QTest::newRow("overlap, main-window bar")
        << QStyle::PM_TabBarBaseOverlap << QStringLiteral("main-window tab bar") << 0;
    QTest::newRow("overlap, west tabs")
        << QStyle::PM_TabBarBaseOverlap << QStringLiteral("main-window west tabs") << FromBase;
    QTest::newRow("overlap, dialog bar")
        << QStyle::PM_TabBarBaseOverlap << QStringLiteral("dialog tab bar") << FromBase;
    QTest::newRow("tab shift, north")
        << QStyle::PM_TabBarTabShiftVertical << QStringLiteral("main-window tab bar") << 2;
    QTest::newRow("tab shift, south")
        << QStyle::PM_TabBarTabShiftVertical << QStringLiteral("main-window south bar") << -2;
    QTest::newRow("tab shift, south in a dialog")
        << QStyle::PM_TabBarTabShiftVertical << QStringLiteral("dialog tab bar") << FromBase;

    QTest::newRow("tool-box spacing by control type")
        << QStyle::PM_LayoutVerticalSpacing << QStringLiteral("tool box") << -1;
    QTest::newRow("dialog spacing")
        << QStyle::PM_LayoutVerticalSpacing << QStringLiteral("dialog tabs") << FromBase;
}

void tst_WindowsModernStyle::pixelMetric()
{
    QFETCH(QStyle::PixelMetric, metric);
    QFETCH(QString, widget);
    QFETCH(int, expected);

    const QWidget *target = widget.isEmpty() ? nullptr : widgetNamed(widget);
    QVERIFY(widget.isEmpty() || target);
    if (expected == FromBase)
        expected = m_style->baseStyle()->pixelMetric(metric, nullptr, target);
    QCOMPARE(m_style->pixelMetric(metric, nullptr, target), expected);
}

void tst_WindowsModernStyle::sizeFromContents_data()
{
    // columns: contents type, menu item type, item text, contents size, resulting size
    QTest::addColumn<QStyle::ContentsType>("type");
    QTest::addColumn<QStyleOptionMenuItem::MenuItemType>("itemType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("contents");
    QTest::addColumn<QSize>("expected");

    const auto normal = QStyleOptionMenuItem::Normal;
    QTest::newRow("item with shortcut")
        << QStyle::CT_MenuItem << normal << QStringLiteral("&Open\tCtrl+O") << QSize(100, 16)
        << QSize(160, 22);
    QTest::newRow("item without shortcut")
        << QStyle::CT_MenuItem << normal << QStringLiteral("&Open") << QSize(100, 16)
        << QSize(148, 22);
    QTest::newRow("separator") << QStyle::CT_MenuItem << QStyleOptionMenuItem::Separator
                               << QString() << QSize(100, 16) << QSize(10, 3);
    QTest::newRow("menu-bar item") << QStyle::CT_MenuBarItem << normal << QStringLiteral("&File")
                                   << QSize(30, 14) << QSize(46, 20);
    QTest::newRow("menu bar") << QStyle::CT_MenuBar << normal << QString() << QSize(200, 20)
                              << QSize(200, 19);
}

void tst_WindowsModernStyle::sizeFromContents()
{
    QFETCH(QStyle::ContentsType, type);
    QFETCH(QStyleOptionMenuItem::MenuItemType, itemType);
    QFETCH(QString, text);
    QFETCH(QSize, contents);
    QFETCH(QSize, expected);

    QStyleOptionMenuItem option;
    option.menuItemType = itemType;
    option.text = text;
    QCOMPARE(m_style->sizeFromContents(type, &option, contents, nullptr), expected);
}

void tst_WindowsModernStyle::dockButtonsMoveLeft_data()
{
    QTest::addColumn<QStyle::SubElement>("element");
    QTest::newRow("close") << QStyle::SE_DockWidgetCloseButton;
    QTest::newRow("float") << QStyle::SE_DockWidgetFloatButton;
}

void tst_WindowsModernStyle::dockButtonsMoveLeft()
{
    QFETCH(QStyle::SubElement, element);

    QStyleOptionDockWidget option;
    option.rect = QRect(0, 0, 200, 22);
    option.closable = true;
    option.floatable = true;
    const QRect base = m_style->baseStyle()->subElementRect(element, &option, nullptr);
    QVERIFY(base.isValid());
    QCOMPARE(m_style->subElementRect(element, &option, nullptr), base.translated(-2, 0));
}

void tst_WindowsModernStyle::tabContentsFillThePane_data()
{
    // columns: tab widget, whether its pages cover the whole pane
    QTest::addColumn<QString>("widget");
    QTest::addColumn<bool>("fillsPane");

    QTest::newRow("main window") << QStringLiteral("main-window tabs") << true;
    QTest::newRow("dialog") << QStringLiteral("dialog tabs") << false;
}

void tst_WindowsModernStyle::tabContentsFillThePane()
{
    QFETCH(QString, widget);
    QFETCH(bool, fillsPane);

    QStyleOptionTabWidgetFrame option;
    option.rect = QRect(0, 0, 300, 200);
    option.shape = QTabBar::RoundedNorth;
    option.tabBarSize = QSize(120, 24);
    option.lineWidth = 2;
    const QWidget *target = widgetNamed(widget);
    const QRect pane = m_style->subElementRect(QStyle::SE_TabWidgetTabPane, &option, target);
    const QRect contents
        = m_style->subElementRect(QStyle::SE_TabWidgetTabContents, &option, target);
    QVERIFY(pane.contains(contents));
    QCOMPARE(contents == pane, fillsPane);
}

void tst_WindowsModernStyle::polishAttributes_data()
{
    // columns: widget, attribute, whether polishing sets it (unpolishing always clears it)
    QTest::addColumn<QString>("widget");
    QTest::addColumn<Qt::WidgetAttribute>("attribute");
    QTest::addColumn<bool>("set");

    QTest::newRow("main window background")
        << QStringLiteral("main window") << Qt::WA_StyledBackground << true;
    QTest::newRow("tool box background")
        << QStringLiteral("tool box") << Qt::WA_StyledBackground << true;
    QTest::newRow("tool-box button hover")
        << QStringLiteral("tool-box button") << Qt::WA_Hover << true;
    QTest::newRow("tool-box page background")
        << QStringLiteral("tool-box page") << Qt::WA_StyledBackground << true;
    QTest::newRow("main-window tab bar hover")
        << QStringLiteral("main-window tab bar") << Qt::WA_Hover << true;
    QTest::newRow("south tab bar hover")
        << QStringLiteral("main-window south bar") << Qt::WA_Hover << true;
    QTest::newRow("west tab bar, no hover")
        << QStringLiteral("main-window west bar") << Qt::WA_Hover << false;
    QTest::newRow("dialog tab bar, no hover")
        << QStringLiteral("dialog tab bar") << Qt::WA_Hover << false;
    QTest::newRow("dialog tabs, plain background")
        << QStringLiteral("dialog tabs") << Qt::WA_StyledBackground << false;
}

void tst_WindowsModernStyle::polishAttributes()
{
    QFETCH(QString, widget);
    QFETCH(Qt::WidgetAttribute, attribute);
    QFETCH(bool, set);

    QWidget *target = widgetNamed(widget);
    QVERIFY(target);
    target->setAttribute(attribute, false);
    m_style->polish(target);
    QCOMPARE(target->testAttribute(attribute), set);
    m_style->unpolish(target);
    QVERIFY(!target->testAttribute(attribute));
}

void tst_WindowsModernStyle::polishToolBox()
{
    QWidget *button = widgetNamed(QStringLiteral("tool-box button"));
    QSizePolicy policy = button->sizePolicy();
    policy.setControlType(QSizePolicy::DefaultType);
    button->setSizePolicy(policy);
    m_style->polish(m_toolBox);
    m_style->polish(button);
    QCOMPARE(m_toolBox->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(button->sizePolicy().controlType(), QSizePolicy::PushButton);

    // Unpolishing leaves the margin and the control type as they are.
    m_style->unpolish(button);
    m_style->unpolish(m_toolBox);
    QCOMPARE(m_toolBox->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(button->sizePolicy().controlType(), QSizePolicy::PushButton);
}

void tst_WindowsModernStyle::layoutSpacing_data()
{
    // columns: widget whose layout asks, upper and lower neighbour, spacing between them
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QSizePolicy::ControlType>("first");
    QTest::addColumn<QSizePolicy::ControlType>("second");
    QTest::addColumn<int>("expected");

    const QString box = QStringLiteral("tool box");
    const auto button = QSizePolicy::PushButton;
    const auto other = QSizePolicy::DefaultType;
    QTest::newRow("tool box, button above page") << box << button << other << 0;
    QTest::newRow("tool box, page above button") << box << other << button << 3;
    QTest::newRow("tool box, two buttons") << box << button << button << 2;
    QTest::newRow("dialog") << QStringLiteral("dialog tabs") << button << other << 6;
}

void tst_WindowsModernStyle::layoutSpacing()
{
    QFETCH(QString, widget);
    QFETCH(QSizePolicy::ControlType, first);
    QFETCH(QSizePolicy::ControlType, second);
    QFETCH(int, expected);

    const int spacing
        = m_style->layoutSpacing(first, second, Qt::Vertical, nullptr, widgetNamed(widget));
    QCOMPARE(spacing, expected);
}

void tst_WindowsModernStyle::pluginKeys()
{
    const QList<QStaticPlugin> plugins = QPluginLoader::staticPlugins();
    const auto ours = std::find_if(plugins.cbegin(), plugins.cend(), [](const QStaticPlugin &p) {
        return p.metaData().value(QLatin1String("className")).toString()
            == QLatin1String("WindowsModernStylePlugin");
    });
    QVERIFY(ours != plugins.cend());
    const QJsonArray keys = ours->metaData()
                                .value(QLatin1String("MetaData"))
                                .toObject()
                                .value(QLatin1String("Keys"))
                                .toArray();
    QCOMPARE(keys, QJsonArray {QStringLiteral("WindowsModernStyle")});
    QCOMPARE(QStyleFactory::keys().count(QStringLiteral("WindowsModernStyle")), 1);
}

void tst_WindowsModernStyle::createByName_data()
{
    // columns: name asked for, whether the modern style is made
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("found");

    QTest::newRow("lower case") << QStringLiteral("windowsmodernstyle") << true;
    QTest::newRow("as registered") << QStringLiteral("WindowsModernStyle") << true;
    QTest::newRow("capitals") << QStringLiteral("WINDOWSMODERNSTYLE") << true;
    QTest::newRow("blanks between words") << QStringLiteral("Windows Modern Style") << false;
}

void tst_WindowsModernStyle::createByName()
{
    QFETCH(QString, key);
    QFETCH(bool, found);

    WindowsModernStylePlugin plugin;
    const std::unique_ptr<QStyle> direct(plugin.create(key));
    QCOMPARE(qobject_cast<WindowsModernStyle *>(direct.get()) != nullptr, found);

    const std::unique_ptr<QStyle> made(QStyleFactory::create(key));
    QCOMPARE(made && made->metaObject()->className() == QByteArray("WindowsModernStyle"), found);
}

void tst_WindowsModernStyle::installedByNameLaysOutToolBoxes()
{
    // Installing by name is what the program does; it also polishes every new widget.
    QStyle *installed = QApplication::setStyle(QStringLiteral("windowsmodernstyle"));
    const auto *style = qobject_cast<WindowsModernStyle *>(installed);
    QVERIFY(style);
    // There is no desktop theme library here, yet the scheme and the colours are settled.
    QCOMPARE(style->colorScheme(), 3);
    QCOMPARE(style->colors().barBottom, QApplication::palette().color(QPalette::Button));

    QToolBox toolBox;
    const QList<QWidget *> pages {new QWidget, new QWidget};
    toolBox.addItem(pages.at(0), QStringLiteral("First"));
    toolBox.addItem(pages.at(1), QStringLiteral("Second"));
    toolBox.resize(200, 300);
    toolBox.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toolBox));

    const QList<QAbstractButton *> buttons
        = toolBox.findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.size(), 2);
    const QWidget *area = pages.at(0)->parentWidget()->parentWidget();
    QVERIFY(qobject_cast<const QScrollArea *>(area));
    QCOMPARE(buttons.at(0)->geometry().top(), 2);
    QCOMPARE(area->geometry().top(), buttons.at(0)->geometry().bottom() + 1);
    QCOMPARE(buttons.at(1)->geometry().top(), area->geometry().bottom() + 1 + 3);
}

QTEST_MAIN(tst_WindowsModernStyle)

#include "tst_windowsmodernstyle.moc"
