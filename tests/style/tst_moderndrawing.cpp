#include "windowsmodernstyle.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QPainter>
#include <QStatusBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyle::SubControls)
Q_DECLARE_METATYPE(QStyleOptionMenuItem::MenuItemType)
Q_DECLARE_METATYPE(QTabBar::Shape)
Q_DECLARE_METATYPE(QStyleOptionTab::TabPosition)

namespace {

// Whatever the style leaves untouched keeps this colour.
const QColor Untouched(255, 0, 255);

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Untouched);
    return image;
}

QColor pixel(const QImage &image, const QPoint &point)
{
    return image.pixelColor(point);
}

// Gradient pixels are compared with some slack, as the painter interpolates between stops.
bool near(const QColor &actual, const QColor &expected, int tolerance)
{
    return qAbs(actual.red() - expected.red()) <= tolerance
        && qAbs(actual.green() - expected.green()) <= tolerance
        && qAbs(actual.blue() - expected.blue()) <= tolerance;
}

QString describe(const QColor &color)
{
    return QStringLiteral("(%1, %2, %3)").arg(color.red()).arg(color.green()).arg(color.blue());
}

int countColor(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    return count;
}

QPalette fixedPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(200, 100, 50));
    palette.setColor(QPalette::Base, QColor(255, 255, 255));
    palette.setColor(QPalette::Text, QColor(0, 0, 0));
    palette.setColor(QPalette::WindowText, QColor(0, 0, 0));
    palette.setColor(QPalette::Window, QColor(230, 240, 220));
    palette.setColor(QPalette::Dark, QColor(100, 100, 100));
    palette.setColor(QPalette::Light, QColor(250, 250, 250));
    palette.setColor(QPalette::Highlight, QColor(50, 100, 200));
    return palette;
}

} // namespace

#define COMPARE_COLOR(actual, expected, tolerance)                                                 \
    QVERIFY2(near(actual, expected, tolerance),                                                    \
        qPrintable(describe(actual) + QStringLiteral(" instead of ") + describe(expected)))

class tst_ModernDrawing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void toolBarHandle_data();
    void toolBarHandle();
    void toolBarSeparator_data();
    void toolBarSeparator();
    void menuItem_data();
    void menuItem();
    void mainWindowTab_data();
    void mainWindowTab();
    void mainWindowBackground_data();
    void mainWindowBackground();
    void toolBarButton_data();
    void toolBarButton();
    void dropDownOutsideToolBars();
    void baseDrawsOutsideConditions_data();
    void baseDrawsOutsideConditions();

private:
    std::unique_ptr<WindowsModernStyle> m_style;
    std::unique_ptr<QStyle> m_base;
    ModernColors m_colors;
    QPalette m_palette;
    std::unique_ptr<QMainWindow> m_mainWindow;
    std::unique_ptr<QDialog> m_dialog;
    QTabBar *m_northBar = nullptr;
    QTabBar *m_southBar = nullptr;
    QTabBar *m_westBar = nullptr;
    QToolBar *m_toolBar = nullptr;
    QToolButton *m_barButton = nullptr;
    QTabBar *m_dialogBar = nullptr;
    QTabWidget *m_dialogTabs = nullptr;
    QToolButton *m_looseButton = nullptr;
};

void tst_ModernDrawing::initTestCase()
{
    m_palette = fixedPalette();
    QApplication::setPalette(m_palette);
    m_style = std::make_unique<WindowsModernStyle>();
    QPalette polished = m_palette;
    m_style->polish(polished);
    m_colors = m_style->colors();
    QCOMPARE(m_colors.barBottom, QColor(200, 100, 50));
    m_base.reset(QStyleFactory::create(QStringLiteral("Fusion")));
    QVERIFY(m_base);

    m_mainWindow = std::make_unique<QMainWindow>();
    m_northBar = new QTabBar(m_mainWindow.get());
    m_southBar = new QTabBar(m_mainWindow.get());
    m_southBar->setShape(QTabBar::RoundedSouth);
    m_westBar = new QTabBar(m_mainWindow.get());
    m_westBar->setShape(QTabBar::RoundedWest);
    m_toolBar = m_mainWindow->addToolBar(QStringLiteral("Tools"));
    m_barButton = new QToolButton;
    m_toolBar->addWidget(m_barButton);

    m_dialog = std::make_unique<QDialog>();
    m_dialogBar = new QTabBar(m_dialog.get());
    m_dialogTabs = new QTabWidget(m_dialog.get());
    m_looseButton = new QToolButton(m_dialog.get());
}

void tst_ModernDrawing::cleanupTestCase()
{
    m_dialog.reset();
    m_mainWindow.reset();
}

void tst_ModernDrawing::toolBarHandle_data()
{
    // columns: whether the bar is horizontal (dots run down the handle), handle length,
    // offsets i of the dot pairs along it
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("length");
    QTest::addColumn<QList<int>>("offsets");

    QTest::newRow("vertical bar, length 24") << false << 24 << QList<int> {4, 9, 14};
    QTest::newRow("horizontal bar, length 24") << true << 24 << QList<int> {4, 9, 14};
    QTest::newRow("length 10") << false << 10 << QList<int> {2, 7};
    QTest::newRow("length 30") << true << 30 << QList<int> {6, 11, 16, 21};
    QTest::newRow("length 4 still gets one pair") << false << 4 << QList<int> {0};
}

void tst_ModernDrawing::toolBarHandle()
{
    QFETCH(bool, horizontal);
    QFETCH(int, length);
    QFETCH(QList<int>, offsets);

    const int across = 12;
    QImage image = horizontal ? canvas(across, length) : canvas(length, across);
    QStyleOption option;
    option.rect = image.rect();
    option.state = horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    QPainter painter(&image);
    m_style->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &option, &painter, nullptr);
    painter.end();

    // a runs along the handle, b across it.
    const auto at = [&](int a, int b) { return horizontal ? QPoint(b, a) : QPoint(a, b); };
    for (int i : offsets) {
        const int a = i + 1;
        for (const QPoint &dark : {at(a - 1, 3), at(a, 3), at(a - 1, 4), at(a, 4)})
            QCOMPARE(pixel(image, dark), m_colors.gripShadow);
        for (const QPoint &light : {at(a + 1, 4), at(a, 5), at(a + 1, 5)})
            QCOMPARE(pixel(image, light), m_colors.gripLight);
    }
    QCOMPARE(countColor(image, m_colors.gripShadow), 4 * offsets.size());
    QCOMPARE(countColor(image, m_colors.gripLight), 3 * offsets.size());
}

void tst_ModernDrawing::toolBarSeparator_data()
{
    // columns: horizontal flag (vertical lines), separator size, position of the dark line
    // (the light one follows it), first and last pixel of the lines
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");

    QTest::newRow("in a vertical bar") << false << QSize(20, 10) << 4 << 2 << 17;
    QTest::newRow("in a horizontal bar") << true << QSize(10, 20) << 4 << 2 << 17;
    QTest::newRow("odd thickness") << false << QSize(20, 9) << 3 << 2 << 17;
    QTest::newRow("horizontal, odd thickness") << true << QSize(7, 24) << 2 << 2 << 21;
}

void tst_ModernDrawing::toolBarSeparator()
{
    QFETCH(bool, horizontal);
    QFETCH(QSize, size);
    QFETCH(int, line);
    QFETCH(int, from);
    QFETCH(int, to);

    QImage image = canvas(size.width(), size.height());
    QStyleOption option;
    option.rect = image.rect();
    option.state = horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    QPainter painter(&image);
    m_style->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, &painter, nullptr);
    painter.end();

    // a runs along the lines, b across them.
    const auto at = [&](int a, int b) { return horizontal ? QPoint(b, a) : QPoint(a, b); };
    QCOMPARE(pixel(image, at(from, line)), m_colors.separatorDark);
    QCOMPARE(pixel(image, at(to, line)), m_colors.separatorDark);
    QCOMPARE(pixel(image, at(from, line + 1)), m_colors.separatorLight);
    QCOMPARE(pixel(image, at(to, line + 1)), m_colors.separatorLight);
    QCOMPARE(pixel(image, at(from - 1, line)), Untouched);
    QCOMPARE(pixel(image, at(to + 1, line + 1)), Untouched);
    QCOMPARE(countColor(image, Untouched), size.width() * size.height() - 2 * (to - from + 1));
}

void tst_ModernDrawing::menuItem_data()
{
    // columns: item state, item type, checked, left edge of the item, pixel looked at, its
    // colour, tolerance
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QStyleOptionMenuItem::MenuItemType>("type");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("left");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<int>("tolerance");

    const QStyle::State enabled = QStyle::State_Enabled;
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected;
    const auto normal = QStyleOptionMenuItem::Normal;
    const ModernColors &c = m_colors;
    QTest::newRow("icon column starts")
        << enabled << normal << false << 0 << QPoint(0, 11) << c.barTop << 4;
    QTest::newRow("icon column ends")
        << enabled << normal << false << 0 << QPoint(24, 11) << c.barBottom << 4;
    QTest::newRow("text area") << enabled << normal << false << 0 << QPoint(25, 0)
                               << c.menuBackground << 0;
    QTest::newRow("text area, right end")
        << enabled << normal << false << 0 << QPoint(199, 21) << c.menuBackground << 0;
    QTest::newRow("column gradient stays at the painter's origin")
        << enabled << normal << false << 40 << QPoint(41, 11) << c.barBottom << 0;
    QTest::newRow("disabled items are drawn plain")
        << QStyle::State(QStyle::State_Selected) << normal << false << 0 << QPoint(25, 0)
        << c.menuBackground << 0;
    QTest::newRow("selected, top-left of frame")
        << selected << normal << false << 0 << QPoint(1, 0) << c.hoverBorder << 0;
    QTest::newRow("selected, right edge of frame")
        << selected << normal << false << 0 << QPoint(197, 11) << c.hoverBorder << 0;
    QTest::newRow("selected, beyond the frame")
        << selected << normal << false << 0 << QPoint(198, 11) << Untouched << 0;
    QTest::newRow("selected, left of the frame")
        << selected << normal << false << 0 << QPoint(0, 11) << Untouched << 0;
    QTest::newRow("selected, bottom edge of frame")
        << selected << normal << false << 0 << QPoint(100, 21) << c.hoverBorder << 0;
    QTest::newRow("selected, inside")
        << selected << normal << false << 0 << QPoint(5, 5) << c.hoverTop << 0;
    const auto separator = QStyleOptionMenuItem::Separator;
    QTest::newRow("separator starts at the text")
        << enabled << separator << false << 0 << QPoint(32, 10) << c.separatorDark << 0;
    QTest::newRow("separator runs to the edge")
        << enabled << separator << false << 0 << QPoint(199, 10) << c.separatorDark << 0;
    QTest::newRow("before the separator")
        << enabled << separator << false << 0 << QPoint(31, 10) << c.menuBackground << 0;
    QTest::newRow("check frame, top-left")
        << enabled << normal << true << 0 << QPoint(2, 1) << c.hoverBorder << 0;
    QTest::newRow("check frame, bottom-right")
        << enabled << normal << true << 0 << QPoint(21, 19) << c.hoverBorder << 0;
    QTest::newRow("check frame, inside")
        << enabled << normal << true << 0 << QPoint(3, 2) << c.checkedTop << 0;
    QTest::newRow("check frame of a selected item")
        << selected << normal << true << 0 << QPoint(3, 2) << c.pressedTop << 0;
    QTest::newRow("no check frame when disabled") << QStyle::State(QStyle::State_None) << normal
                                                  << true << 0 << QPoint(2, 1) << c.barTop << 16;
}

void tst_ModernDrawing::menuItem()
{
    QFETCH(QStyle::State, state);
    QFETCH(QStyleOptionMenuItem::MenuItemType, type);
    QFETCH(bool, checked);
    QFETCH(int, left);
    QFETCH(QPoint, point);
    QFETCH(QColor, expected);
    QFETCH(int, tolerance);

    QImage image = canvas(left + 200, 22);
    QStyleOptionMenuItem option;
    option.rect = QRect(left, 0, 200, 22);
    option.state = state;
    option.palette = m_palette;
    option.menuItemType = type;
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    option.checked = checked;
    QPainter painter(&image);
    m_style->drawControl(QStyle::CE_MenuItem, &option, &painter, nullptr);
    painter.end();

    COMPARE_COLOR(pixel(image, point), expected, tolerance);
}

void tst_ModernDrawing::mainWindowTab_data()
{
    // columns: bar shape, tab position, state, frame drawn (inclusive corners), its pen, fill
    // at the outer edge, fill next to the pane
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QStyleOptionTab::TabPosition>("position");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("outer");
    QTest::addColumn<QColor>("inner");

    // The tab's own rectangle is (10, 5)-(89, 28).
    const auto north = QTabBar::RoundedNorth;
    const auto south = QTabBar::RoundedSouth;
    const auto middle = QStyleOptionTab::Middle;
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected;
    const QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
    const QStyle::State plain = QStyle::State_Enabled;
    const QColor window = m_palette.color(QPalette::Window);
    const ModernColors &c = m_colors;
    const auto corners
        = [](int l, int t, int r, int b) { return QRect(QPoint(l, t), QPoint(r, b)); };

    QTest::newRow("selected, north") << north << middle << selected << corners(8, 5, 90, 29)
                                     << c.borderDark << c.hoverTop << window;
    QTest::newRow("selected first tab keeps its left edge")
        << north << QStyleOptionTab::Beginning << selected << corners(10, 5, 90, 29) << c.borderDark
        << c.hoverTop << window;
    QTest::newRow("selected last tab")
        << north << QStyleOptionTab::End << selected << corners(8, 5, 88, 29) << c.borderDark
        << c.hoverTop << window;
    QTest::newRow("hovered, north") << north << middle << hovered << corners(10, 6, 89, 28)
                                    << c.borderLight << c.hoverTop << c.hoverBottom;
    QTest::newRow("plain, north") << north << middle << plain << corners(10, 6, 89, 28)
                                  << c.borderLight << c.barMiddle << c.barBottom;
    QTest::newRow("plain last tab")
        << north << QStyleOptionTab::End << plain << corners(10, 6, 88, 28) << c.borderLight
        << c.barMiddle << c.barBottom;
    QTest::newRow("selected, south") << south << middle << selected << corners(8, 4, 90, 27)
                                     << c.borderDark << c.hoverTop << window;
    QTest::newRow("plain, south") << south << middle << plain << corners(10, 4, 89, 26)
                                  << c.borderLight << c.barMiddle << c.barBottom;
}

void tst_ModernDrawing::mainWindowTab()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QStyleOptionTab::TabPosition, position);
    QFETCH(QStyle::State, state);
    QFETCH(QRect, frame);
    QFETCH(QColor, pen);
    QFETCH(QColor, outer);
    QFETCH(QColor, inner);

    QImage image = canvas(100, 40);
    QStyleOptionTab option;
    option.rect = QRect(10, 5, 80, 24);
    option.shape = shape;
    option.position = position;
    option.state = state;
    option.palette = m_palette;
    QPainter painter(&image);
    const QTabBar *bar = shape == QTabBar::RoundedSouth ? m_southBar : m_northBar;
    m_style->drawControl(QStyle::CE_TabBarTabShape, &option, &painter, bar);
    painter.end();

    const bool south = shape == QTabBar::RoundedSouth;
    const int middleY = frame.center().y();
    const int middleX = frame.center().x();
    const int outerY = south ? frame.bottom() : frame.top();
    const int innerY = south ? frame.top() : frame.bottom();
    const int inward = south ? -1 : 1;
    COMPARE_COLOR(pixel(image, QPoint(frame.left(), middleY)), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(frame.right(), middleY)), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(middleX, outerY)), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(frame.left() - 1, middleY)), Untouched, 0);
    COMPARE_COLOR(pixel(image, QPoint(frame.right() + 1, middleY)), Untouched, 0);
    COMPARE_COLOR(pixel(image, QPoint(middleX, outerY - inward)), Untouched, 0);
    COMPARE_COLOR(pixel(image, QPoint(middleX, outerY + inward)), outer, 8);
    COMPARE_COLOR(pixel(image, QPoint(middleX, innerY - inward)), inner, 8);
}

void tst_ModernDrawing::mainWindowBackground_data()
{
    // columns: whether the window has a status bar
    QTest::addColumn<bool>("withStatusBar");

    QTest::newRow("with a status bar") << true;
    QTest::newRow("without a status bar") << false;
}

void tst_ModernDrawing::mainWindowBackground()
{
    QFETCH(bool, withStatusBar);

    QMainWindow window;
    int lastRow = 199;
    if (withStatusBar) {
        window.setStatusBar(new QStatusBar);
        window.statusBar()->setGeometry(0, 170, 200, 30);
        lastRow -= window.statusBar()->height();
    }
    QImage image = canvas(200, 200);
    QStyleOption option;
    option.rect = image.rect();
    option.palette = m_palette;
    QPainter painter(&image);
    m_style->drawPrimitive(QStyle::PE_Widget, &option, &painter, &window);
    painter.end();

    COMPARE_COLOR(pixel(image, QPoint(0, 100)), m_colors.backgroundStart, 3);
    COMPARE_COLOR(pixel(image, QPoint(199, 0)), m_colors.backgroundEnd, 0);
    COMPARE_COLOR(pixel(image, QPoint(150, lastRow)), m_colors.backgroundEnd, 0);
    if (withStatusBar) {
        for (int x : {0, 100, 199})
            COMPARE_COLOR(
                pixel(image, QPoint(x, lastRow + 1)), m_palette.color(QPalette::Light), 0);
        COMPARE_COLOR(pixel(image, QPoint(100, lastRow + 2)), Untouched, 0);
    }
    // The gradient reaches its end colour at three fifths of the width.
    COMPARE_COLOR(pixel(image, QPoint(125, 50)), m_colors.backgroundEnd, 1);
    QVERIFY(!near(pixel(image, QPoint(90, 50)), m_colors.backgroundEnd, 10));
}

void tst_ModernDrawing::toolBarButton_data()
{
    // columns: state, sub-controls, the one pressed, frame colour of the button part (Untouched:
    // no frame), fill inside it
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QStyle::SubControls>("parts");
    QTest::addColumn<QStyle::SubControls>("active");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("fill");

    const QStyle::SubControls button = QStyle::SC_ToolButton;
    const QStyle::SubControls split = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    const QStyle::SubControls none = QStyle::SC_None;
    const QStyle::State on = QStyle::State_Enabled;
    const ModernColors &c = m_colors;
    QTest::newRow("plain") << on << button << none << Untouched << Untouched;
    QTest::newRow("hovered") << (on | QStyle::State_MouseOver) << button << none << c.hoverBorder
                             << c.hoverTop;
    QTest::newRow("hovered but disabled")
        << QStyle::State(QStyle::State_MouseOver) << button << none << Untouched << Untouched;
    QTest::newRow("checked") << (on | QStyle::State_On) << button << none << c.hoverBorder
                             << c.checkedTop;
    QTest::newRow("hovered and checked") << (on | QStyle::State_MouseOver | QStyle::State_On)
                                         << button << none << c.hoverBorder << c.pressedTop;
    QTest::newRow("pressed") << (on | QStyle::State_Sunken) << button << button << c.hoverBorder
                             << c.pressedTop;
    QTest::newRow("menu part pressed lights the button")
        << (on | QStyle::State_Sunken) << split << QStyle::SubControls(QStyle::SC_ToolButtonMenu)
        << c.hoverBorder << c.hoverTop;
}

void tst_ModernDrawing::toolBarButton()
{
    QFETCH(QStyle::State, state);
    QFETCH(QStyle::SubControls, parts);
    QFETCH(QStyle::SubControls, active);
    QFETCH(QColor, pen);
    QFETCH(QColor, fill);

    QImage image = canvas(40, 24);
    QStyleOptionToolButton option;
    option.rect = image.rect();
    option.state = state;
    option.palette = m_palette;
    option.subControls = parts;
    option.activeSubControls = active;
    if (parts & QStyle::SC_ToolButtonMenu)
        option.features = QStyleOptionToolButton::MenuButtonPopup;
    QPainter painter(&image);
    m_style->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, m_barButton);
    painter.end();

    const QRect area = m_style->subControlRect(
        QStyle::CC_ToolButton, &option, QStyle::SC_ToolButton, m_barButton);
    const int middleY = area.center().y();
    COMPARE_COLOR(pixel(image, QPoint(area.left(), middleY)), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(area.right(), middleY)), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(area.center().x(), area.top())), pen, 0);
    COMPARE_COLOR(pixel(image, QPoint(area.left() + 2, area.top() + 2)), fill, 0);
}

void tst_ModernDrawing::dropDownOutsideToolBars()
{
    QStyleOptionToolButton option;
    option.rect = QRect(0, 0, 14, 24);
    option.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken;
    option.palette = m_palette;
    for (const QWidget *widget : {static_cast<QWidget *>(m_looseButton), (QWidget *)nullptr}) {
        QImage image = canvas(14, 24);
        QPainter painter(&image);
        m_style->drawPrimitive(QStyle::PE_IndicatorButtonDropDown, &option, &painter, widget);
        painter.end();
        QCOMPARE(countColor(image, Untouched), 14 * 24);
    }

    QImage inBar = canvas(14, 24);
    QPainter painter(&inBar);
    m_style->drawPrimitive(QStyle::PE_IndicatorButtonDropDown, &option, &painter, m_barButton);
    painter.end();
    // The indicator starts one pixel left of its rectangle, over the button's border.
    QCOMPARE(pixel(inBar, QPoint(5, 0)), m_colors.hoverBorder);
    QCOMPARE(pixel(inBar, QPoint(0, 12)), m_colors.pressedTop);
    QCOMPARE(pixel(inBar, QPoint(13, 12)), m_colors.hoverBorder);
}

void tst_ModernDrawing::baseDrawsOutsideConditions_data()
{
    // columns: element drawn outside the place the modern look is meant for
    QTest::addColumn<QString>("element");

    QTest::newRow("tab of a tab bar in a dialog") << QStringLiteral("dialog tab");
    QTest::newRow("tab of a west tab bar in a main window") << QStringLiteral("west tab");
    QTest::newRow("tool button in a dialog") << QStringLiteral("loose button");
    QTest::newRow("tab-widget frame in a dialog") << QStringLiteral("dialog frame");
    QTest::newRow("tool-button panel outside a dock title") << QStringLiteral("panel");
}

void tst_ModernDrawing::baseDrawsOutsideConditions()
{
    QFETCH(QString, element);

    const auto render = [&](const QStyle *style) {
        QImage image = canvas(90, 32);
        QPainter painter(&image);
        if (element.endsWith(QLatin1String(" tab"))) {
            QStyleOptionTab tab;
            tab.rect = QRect(5, 4, 80, 24);
            tab.state = QStyle::State_Enabled | QStyle::State_Selected;
            tab.palette = m_palette;
            tab.text = QStringLiteral("PDF");
            const bool west = element.startsWith(QLatin1String("west"));
            tab.shape = west ? QTabBar::RoundedWest : QTabBar::RoundedNorth;
            style->drawControl(
                QStyle::CE_TabBarTab, &tab, &painter, west ? m_westBar : m_dialogBar);
        } else if (element == QLatin1String("loose button")) {
            QStyleOptionToolButton button;
            button.rect = QRect(5, 4, 40, 24);
            button.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On
                | QStyle::State_Raised;
            button.palette = m_palette;
            button.subControls = QStyle::SC_ToolButton;
            button.text = QStringLiteral("Go");
            button.toolButtonStyle = Qt::ToolButtonTextOnly;
            style->drawComplexControl(QStyle::CC_ToolButton, &button, &painter, m_looseButton);
        } else if (element == QLatin1String("dialog frame")) {
            QStyleOptionTabWidgetFrame frame;
            frame.rect = QRect(5, 4, 80, 24);
            frame.palette = m_palette;
            frame.lineWidth = 1;
            frame.tabBarSize = QSize(40, 10);
            style->drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &painter, m_dialogTabs);
        } else {
            QStyleOption panel;
            panel.rect = QRect(5, 4, 40, 24);
            panel.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken;
            panel.palette = m_palette;
            style->drawPrimitive(QStyle::PE_PanelButtonTool, &panel, &painter, m_looseButton);
        }
        painter.end();
        return image;
    };

    const QImage modern = render(m_style.get());
    const QImage base = render(m_base.get());
    QVERIFY(countColor(base, Untouched) < 90 * 32);
    QCOMPARE(modern, base);
}

QTEST_MAIN(tst_ModernDrawing)

#include "tst_moderndrawing.moc"
