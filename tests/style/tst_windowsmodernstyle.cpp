#include "windowsmodernstyle.h"
#include "windowsmodernstyleplugin.h"

#include <QtPlugin>
#include <QtTest>
#include <QtWidgets>

#include <memory>

Q_IMPORT_PLUGIN(WindowsModernStylePlugin)
Q_DECLARE_METATYPE(QStyle::PixelMetric)

static constexpr int Base = -1000;

class tst_WindowsModernStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pixelMetric_data();
    void pixelMetric();
    void menuItemSize();
    void subElementRects();
    void polishAttributes();
    void createByName();

private:
    WindowsModernStyle m_style;
    QMainWindow m_mainWindow;
    QDialog m_dialog;
    QHash<QString, QWidget *> m_widgets;
};

void tst_WindowsModernStyle::initTestCase()
{
    m_style.setBaseStyle(QStyleFactory::create(QStringLiteral("Windows"))); // its buttons shift
    auto *mainTabs = new QTabWidget;
    mainTabs->addTab(new QWidget, QStringLiteral("PDF"));
    m_mainWindow.setCentralWidget(mainTabs);
    auto *westTabs = new QTabWidget(&m_mainWindow);
    westTabs->setTabPosition(QTabWidget::West);
    auto *southBar = new QTabBar(&m_mainWindow);
    southBar->setShape(QTabBar::RoundedSouth);
    auto *barButton = new QToolButton;
    m_mainWindow.addToolBar(QStringLiteral("Tools"))->addWidget(barButton);
    auto *dialogBar = new QTabBar(&m_dialog);
    dialogBar->setShape(QTabBar::RoundedSouth);
    m_widgets = {{QStringLiteral("main window"), &m_mainWindow},
        {QStringLiteral("main tabs"), mainTabs}, {QStringLiteral("main bar"), mainTabs->tabBar()},
        {QStringLiteral("south bar"), southBar}, {QStringLiteral("west bar"), westTabs->tabBar()},
        {QStringLiteral("bar button"), barButton},
        {QStringLiteral("loose button"), new QToolButton(&m_dialog)},
        {QStringLiteral("dialog tabs"), new QTabWidget(&m_dialog)},
        {QStringLiteral("dialog bar"), dialogBar}};
}

void tst_WindowsModernStyle::pixelMetric_data()
{
    QTest::addColumn<QStyle::PixelMetric>("metric");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<int>("expected"); // Base: the base style's value
    using S = QStyle;
    QTest::newRow("button shift in a tool bar") << S::PM_ButtonShiftVertical << "bar button" << 0;
    QTest::newRow("button shift elsewhere") << S::PM_ButtonShiftVertical << "loose button" << Base;
    QTest::newRow("tab shift, south") << S::PM_TabBarTabShiftVertical << "south bar" << -2;
    QTest::newRow("tab shift, dialog") << S::PM_TabBarTabShiftVertical << "dialog bar" << Base;
    QTest::newRow("overlap, main tabs") << S::PM_TabBarBaseOverlap << "main tabs" << 0;
}

void tst_WindowsModernStyle::pixelMetric()
{
    QFETCH(QStyle::PixelMetric, metric);
    QFETCH(QString, widget);
    QFETCH(int, expected);
    const QWidget *target = m_widgets.value(widget);
    const int base = m_style.baseStyle()->pixelMetric(metric, nullptr, target);
    QCOMPARE(m_style.pixelMetric(metric, nullptr, target), expected == Base ? base : expected);
}

void tst_WindowsModernStyle::menuItemSize()
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
}

void tst_WindowsModernStyle::subElementRects()
{
    QStyleOptionDockWidget dock;
    dock.rect = QRect(0, 0, 200, 22);
    dock.closable = dock.floatable = true;
    for (const auto element :
        {QStyle::SE_DockWidgetCloseButton, QStyle::SE_DockWidgetFloatButton}) {
        const QRect base = m_style.baseStyle()->subElementRect(element, &dock, nullptr);
        QVERIFY(base.isValid());
        QCOMPARE(m_style.subElementRect(element, &dock, nullptr), base.translated(-2, 0));
    }
    // Pages of a main window's tab widget cover the whole pane; a dialog's keep the base's frame.
    QStyleOptionTabWidgetFrame frame;
    frame.rect = QRect(0, 0, 300, 200);
    frame.tabBarSize = QSize(120, 24);
    frame.lineWidth = 2;
    const auto fills = [&](const char *name) {
        const QWidget *w = m_widgets.value(QString::fromLatin1(name));
        return m_style.subElementRect(QStyle::SE_TabWidgetTabContents, &frame, w)
            == m_style.subElementRect(QStyle::SE_TabWidgetTabPane, &frame, w);
    };
    QVERIFY(fills("main tabs"));
    QVERIFY(!fills("dialog tabs"));
}

void tst_WindowsModernStyle::polishAttributes()
{
    // Polishing sets the attribute only where listed; unpolishing always clears it.
    const struct
    {
        const char *widget;
        Qt::WidgetAttribute attribute;
        bool set;
    } rows[] = {{"main window", Qt::WA_StyledBackground, true}, {"main bar", Qt::WA_Hover, true},
        {"west bar", Qt::WA_Hover, false}, {"dialog bar", Qt::WA_Hover, false}};
    for (const auto &row : rows) {
        QWidget *target = m_widgets.value(QString::fromLatin1(row.widget));
        target->setAttribute(row.attribute, false);
        m_style.polish(target);
        QVERIFY2(target->testAttribute(row.attribute) == row.set, row.widget);
        m_style.unpolish(target);
        QVERIFY2(!target->testAttribute(row.attribute), row.widget);
    }
}

void tst_WindowsModernStyle::createByName()
{
    QCOMPARE(QStyleFactory::keys().count(QStringLiteral("WindowsModernStyle")), 1);
    const std::unique_ptr<QStyle> capitals(
        QStyleFactory::create(QStringLiteral("WINDOWSMODERNSTYLE")));
    QVERIFY(qobject_cast<WindowsModernStyle *>(capitals.get()));
    QVERIFY(std::unique_ptr<QStyle>(
        WindowsModernStylePlugin().create(QStringLiteral("WindowsModernStyle"))));
    QVERIFY(
        !std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("Windows Modern Style"))));
}

QTEST_MAIN(tst_WindowsModernStyle)

#include "tst_windowsmodernstyle.moc"
