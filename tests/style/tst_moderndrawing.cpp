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

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyle::SubControls)
Q_DECLARE_METATYPE(QStyleOptionMenuItem::MenuItemType)
Q_DECLARE_METATYPE(QTabBar::Shape)
Q_DECLARE_METATYPE(QStyleOptionTab::TabPosition)

namespace {

// Whatever the style leaves untouched keeps this colour.
const QColor Untouched(255, 0, 255);

QImage paint(const QSize &size, const std::function<void(QPainter *)> &draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Untouched);
    QPainter painter(&image);
    draw(&painter);
    return image;
}

// Gradient pixels get some slack, as the painter interpolates between stops.
bool near(const QColor &actual, const QColor &expected, int tolerance)
{
    return qAbs(actual.red() - expected.red()) <= tolerance
        && qAbs(actual.green() - expected.green()) <= tolerance
        && qAbs(actual.blue() - expected.blue()) <= tolerance;
}

int countColor(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    return count;
}

} // namespace

#define COMPARE_PIXEL(image, point, expected, tolerance)                                           \
    QVERIFY2(near((image).pixelColor(point), expected, tolerance),                                 \
        qPrintable(QStringLiteral("%1 instead of %2")                                              \
                       .arg((image).pixelColor(point).name(), QColor(expected).name())))

class tst_ModernDrawing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

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
    void dropDownOnlyInToolBars();
    void baseDrawsOutsideConditions_data();
    void baseDrawsOutsideConditions();

private:
    std::unique_ptr<WindowsModernStyle> m_style;
    std::unique_ptr<QStyle> m_base;
    ModernColors m_colors;
    QPalette m_palette;
    QMainWindow m_mainWindow;
    QDialog m_dialog;
    QTabBar *m_northBar = nullptr;
    QTabBar *m_southBar = nullptr;
    QTabBar *m_westBar = nullptr;
    QToolButton *m_barButton = nullptr;
    QTabBar *m_dialogBar = nullptr;
    QToolButton *m_looseButton = nullptr;
};

void tst_ModernDrawing::initTestCase()
{
    m_palette.setColor(QPalette::Button, QColor(200, 100, 50));
    m_palette.setColor(QPalette::Base, QColor(255, 255, 255));
    m_palette.setColor(QPalette::Window, QColor(230, 240, 220));
    m_palette.setColor(QPalette::Dark, QColor(100, 100, 100));
    m_palette.setColor(QPalette::Light, QColor(250, 250, 250));
    m_palette.setColor(QPalette::Highlight, QColor(50, 100, 200));
    QApplication::setPalette(m_palette);
    m_style = std::make_unique<WindowsModernStyle>();
    QPalette polished = m_palette;
    m_style->polish(polished);
    m_colors = m_style->colors();
    m_base.reset(QStyleFactory::create(QStringLiteral("Fusion")));

    m_northBar = new QTabBar(&m_mainWindow);
    m_southBar = new QTabBar(&m_mainWindow);
    m_southBar->setShape(QTabBar::RoundedSouth);
    m_westBar = new QTabBar(&m_mainWindow);
    m_westBar->setShape(QTabBar::RoundedWest);
    m_barButton = new QToolButton;
    m_mainWindow.addToolBar(QStringLiteral("Tools"))->addWidget(m_barButton);
    m_dialogBar = new QTabBar(&m_dialog);
    m_looseButton = new QToolButton(&m_dialog);
}

void tst_ModernDrawing::toolBarHandle_data()
{
    // columns: horizontal bar (dots run down the handle), handle length, offsets of the pairs
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("length");
    QTest::addColumn<QList<int>>("offsets");

    QTest::newRow("vertical bar, length 24") << false << 24 << QList<int> {4, 9, 14};
    QTest::newRow("horizontal bar, length 24") << true << 24 << QList<int> {4, 9, 14};
    QTest::newRow("length 10") << false << 10 << QList<int> {2, 7};
}

void tst_ModernDrawing::toolBarHandle()
{
    QFETCH(bool, horizontal);
    QFETCH(int, length);
    QFETCH(QList<int>, offsets);

    QStyleOption option;
    option.rect = horizontal ? QRect(0, 0, 12, length) : QRect(0, 0, length, 12);
    option.state = horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    const QImage image = paint(option.rect.size(), [&](QPainter *painter) {
        m_style->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &option, painter);
    });

    // a runs along the handle, b across it; the dark square overlaps the light one.
    const auto at = [&](int a, int b) { return horizontal ? QPoint(b, a) : QPoint(a, b); };
    for (int i : offsets) {
        const int a = i + 1;
        for (const QPoint &dark : {at(a - 1, 3), at(a, 3), at(a - 1, 4), at(a, 4)})
            QCOMPARE(image.pixelColor(dark), m_colors.gripShadow);
        for (const QPoint &light : {at(a + 1, 4), at(a, 5), at(a + 1, 5)})
            QCOMPARE(image.pixelColor(light), m_colors.gripLight);
    }
    QCOMPARE(countColor(image, m_colors.gripShadow), 4 * offsets.size());
    QCOMPARE(countColor(image, m_colors.gripLight), 3 * offsets.size());
}

void tst_ModernDrawing::toolBarSeparator_data()
{
    // columns: horizontal flag (vertical lines), separator size, dark line (the light one
    // follows), first and last pixel of the lines
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");

    QTest::newRow("in a vertical bar") << false << QSize(20, 10) << 4 << 2 << 17;
    QTest::newRow("in a horizontal bar, odd width") << true << QSize(7, 24) << 2 << 2 << 21;
}

void tst_ModernDrawing::toolBarSeparator()
{
    QFETCH(bool, horizontal);
    QFETCH(QSize, size);
    QFETCH(int, line);
    QFETCH(int, from);
    QFETCH(int, to);

    QStyleOption option;
    option.rect = QRect(QPoint(0, 0), size);
    option.state = horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    const QImage image = paint(size, [&](QPainter *painter) {
        m_style->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, painter);
    });

    const auto at = [&](int a, int b) { return horizontal ? QPoint(b, a) : QPoint(a, b); };
    for (int a : {from, to}) {
        QCOMPARE(image.pixelColor(at(a, line)), m_colors.separatorDark);
        QCOMPARE(image.pixelColor(at(a, line + 1)), m_colors.separatorLight);
    }
    QCOMPARE(countColor(image, Untouched), size.width() * size.height() - 2 * (to - from + 1));
}

void tst_ModernDrawing::menuItem_data()
{
    // columns: state, item type, checked, left edge of the item, pixel, its colour, tolerance
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QStyleOptionMenuItem::MenuItemType>("type");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("left");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<int>("tolerance");

    const QStyle::State on = QStyle::State_Enabled;
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected;
    const auto item = QStyleOptionMenuItem::Normal;
    const auto separator = QStyleOptionMenuItem::Separator;
    const ModernColors &c = m_colors;
    QTest::newRow("icon column, left")
        << on << item << false << 0 << QPoint(0, 11) << c.barTop << 4;
    QTest::newRow("icon column, right")
        << on << item << false << 0 << QPoint(24, 11) << c.barBottom << 4;
    QTest::newRow("text area") << on << item << false << 0 << QPoint(25, 0) << c.menuBackground
                               << 0;
    QTest::newRow("column gradient stays at the painter's origin")
        << on << item << false << 40 << QPoint(41, 11) << c.barBottom << 0;
    QTest::newRow("selected, frame corner")
        << selected << item << false << 0 << QPoint(1, 0) << c.hoverBorder << 0;
    QTest::newRow("selected, frame right edge")
        << selected << item << false << 0 << QPoint(197, 21) << c.hoverBorder << 0;
    QTest::newRow("selected, right of the frame")
        << selected << item << false << 0 << QPoint(198, 11) << Untouched << 0;
    QTest::newRow("selected, inside")
        << selected << item << false << 0 << QPoint(5, 5) << c.hoverTop << 0;
    QTest::newRow("separator") << on << separator << false << 0 << QPoint(32, 10) << c.separatorDark
                               << 0;
    QTest::newRow("before the separator")
        << on << separator << false << 0 << QPoint(31, 10) << c.menuBackground << 0;
    QTest::newRow("check frame") << on << item << true << 0 << QPoint(21, 19) << c.hoverBorder << 0;
    QTest::newRow("inside the check frame")
        << on << item << true << 0 << QPoint(3, 2) << c.checkedTop << 0;
    QTest::newRow("check frame, selected")
        << selected << item << true << 0 << QPoint(3, 2) << c.pressedTop << 0;
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

    QStyleOptionMenuItem option;
    option.rect = QRect(left, 0, 200, 22);
    option.state = state;
    option.palette = m_palette;
    option.menuItemType = type;
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    option.checked = checked;
    const QImage image = paint(QSize(left + 200, 22),
        [&](QPainter *painter) { m_style->drawControl(QStyle::CE_MenuItem, &option, painter); });
    COMPARE_PIXEL(image, point, expected, tolerance);
}

void tst_ModernDrawing::mainWindowTab_data()
{
    // columns: shape, position, state, frame drawn (inclusive corners) for the tab
    // (10, 5)-(89, 28), its pen, fill at the outer edge, fill next to the pane
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QStyleOptionTab::TabPosition>("position");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("outer");
    QTest::addColumn<QColor>("inner");

    const auto north = QTabBar::RoundedNorth;
    const auto south = QTabBar::RoundedSouth;
    const auto middle = QStyleOptionTab::Middle;
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected;
    const QStyle::State plain = QStyle::State_Enabled;
    const QColor window = m_palette.color(QPalette::Window);
    const ModernColors &c = m_colors;
    const auto box = [](int l, int t, int r, int b) { return QRect(QPoint(l, t), QPoint(r, b)); };

    QTest::newRow("selected") << north << middle << selected << box(8, 5, 90, 29) << c.borderDark
                              << c.hoverTop << window;
    QTest::newRow("selected first tab")
        << north << QStyleOptionTab::Beginning << selected << box(10, 5, 90, 29) << c.borderDark
        << c.hoverTop << window;
    QTest::newRow("hovered") << north << middle << (plain | QStyle::State_MouseOver)
                             << box(10, 6, 89, 28) << c.borderLight << c.hoverTop << c.hoverBottom;
    QTest::newRow("plain last tab") << north << QStyleOptionTab::End << plain << box(10, 6, 88, 28)
                                    << c.borderLight << c.barMiddle << c.barBottom;
    QTest::newRow("selected, south")
        << south << middle << selected << box(8, 4, 90, 27) << c.borderDark << c.hoverTop << window;
    QTest::newRow("plain, south") << south << middle << plain << box(10, 4, 89, 26) << c.borderLight
                                  << c.barMiddle << c.barBottom;
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

    QStyleOptionTab option;
    option.rect = QRect(10, 5, 80, 24);
    option.shape = shape;
    option.position = position;
    option.state = state;
    option.palette = m_palette;
    const bool south = shape == QTabBar::RoundedSouth;
    const QImage image = paint(QSize(100, 40), [&](QPainter *painter) {
        m_style->drawControl(
            QStyle::CE_TabBarTabShape, &option, painter, south ? m_southBar : m_northBar);
    });

    const int y = frame.center().y();
    const int x = frame.center().x();
    const int outerY = south ? frame.bottom() : frame.top();
    const int innerY = south ? frame.top() : frame.bottom();
    const int inward = south ? -1 : 1;
    COMPARE_PIXEL(image, QPoint(frame.left(), y), pen, 0);
    COMPARE_PIXEL(image, QPoint(frame.right(), y), pen, 0);
    COMPARE_PIXEL(image, QPoint(x, outerY), pen, 0);
    COMPARE_PIXEL(image, QPoint(frame.left() - 1, y), Untouched, 0);
    COMPARE_PIXEL(image, QPoint(frame.right() + 1, y), Untouched, 0);
    COMPARE_PIXEL(image, QPoint(x, outerY - inward), Untouched, 0);
    COMPARE_PIXEL(image, QPoint(x, outerY + inward), outer, 8);
    COMPARE_PIXEL(image, QPoint(x, innerY - inward), inner, 8);
}

void tst_ModernDrawing::mainWindowBackground_data()
{
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
    QStyleOption option;
    option.rect = QRect(0, 0, 200, 200);
    option.palette = m_palette;
    const QImage image = paint(option.rect.size(), [&](QPainter *painter) {
        m_style->drawPrimitive(QStyle::PE_Widget, &option, painter, &window);
    });

    COMPARE_PIXEL(image, QPoint(0, 100), m_colors.backgroundStart, 3);
    COMPARE_PIXEL(image, QPoint(150, lastRow), m_colors.backgroundEnd, 0);
    // The gradient reaches its end colour at three fifths of the width.
    COMPARE_PIXEL(image, QPoint(125, 0), m_colors.backgroundEnd, 1);
    QVERIFY(!near(image.pixelColor(90, 0), m_colors.backgroundEnd, 10));
    if (withStatusBar) {
        for (int x : {0, 199})
            COMPARE_PIXEL(image, QPoint(x, lastRow + 1), m_palette.color(QPalette::Light), 0);
        COMPARE_PIXEL(image, QPoint(100, lastRow + 2), Untouched, 0);
    }
}

void tst_ModernDrawing::toolBarButton_data()
{
    // columns: state, sub-controls, the pressed one, frame of the button part (Untouched: none),
    // fill inside it
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QStyle::SubControls>("parts");
    QTest::addColumn<QStyle::SubControls>("active");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("fill");

    const QStyle::SubControls button = QStyle::SC_ToolButton;
    const QStyle::SubControls menu = QStyle::SC_ToolButtonMenu;
    const QStyle::State on = QStyle::State_Enabled;
    const QStyle::State hot = on | QStyle::State_MouseOver;
    const ModernColors &c = m_colors;
    QTest::newRow("plain") << on << button << button << Untouched << Untouched;
    QTest::newRow("hovered") << hot << button << button << c.hoverBorder << c.hoverTop;
    QTest::newRow("checked") << (on | QStyle::State_On) << button << button << c.hoverBorder
                             << c.checkedTop;
    QTest::newRow("hovered and checked")
        << (hot | QStyle::State_On) << button << button << c.hoverBorder << c.pressedTop;
    QTest::newRow("pressed") << (on | QStyle::State_Sunken) << button << button << c.hoverBorder
                             << c.pressedTop;
    QTest::newRow("menu part pressed lights the button up")
        << (on | QStyle::State_Sunken) << (button | menu) << menu << c.hoverBorder << c.hoverTop;
}

void tst_ModernDrawing::toolBarButton()
{
    QFETCH(QStyle::State, state);
    QFETCH(QStyle::SubControls, parts);
    QFETCH(QStyle::SubControls, active);
    QFETCH(QColor, pen);
    QFETCH(QColor, fill);

    QStyleOptionToolButton option;
    option.rect = QRect(0, 0, 40, 24);
    option.state = state;
    option.palette = m_palette;
    option.subControls = parts;
    option.activeSubControls = active;
    if (parts & QStyle::SC_ToolButtonMenu)
        option.features = QStyleOptionToolButton::MenuButtonPopup;
    const QImage image = paint(option.rect.size(), [&](QPainter *painter) {
        m_style->drawComplexControl(QStyle::CC_ToolButton, &option, painter, m_barButton);
    });

    const QRect area = m_style->subControlRect(
        QStyle::CC_ToolButton, &option, QStyle::SC_ToolButton, m_barButton);
    COMPARE_PIXEL(image, QPoint(area.left(), area.center().y()), pen, 0);
    COMPARE_PIXEL(image, QPoint(area.right(), area.center().y()), pen, 0);
    COMPARE_PIXEL(image, QPoint(area.left() + 2, area.top() + 2), fill, 0);
}

void tst_ModernDrawing::dropDownOnlyInToolBars()
{
    QStyleOptionToolButton option;
    option.rect = QRect(0, 0, 14, 24);
    option.state = QStyle::State_Enabled | QStyle::State_Sunken;
    option.palette = m_palette;
    const auto drawFor = [&](const QWidget *widget) {
        return paint(option.rect.size(), [&](QPainter *painter) {
            m_style->drawPrimitive(QStyle::PE_IndicatorButtonDropDown, &option, painter, widget);
        });
    };

    QCOMPARE(countColor(drawFor(m_looseButton), Untouched), 14 * 24);
    QCOMPARE(countColor(drawFor(nullptr), Untouched), 14 * 24);
    // In a tool bar the box starts one pixel left, over the button's own border.
    const QImage inBar = drawFor(m_barButton);
    QCOMPARE(inBar.pixelColor(0, 12), m_colors.pressedTop);
    QCOMPARE(inBar.pixelColor(13, 12), m_colors.hoverBorder);
}

void tst_ModernDrawing::baseDrawsOutsideConditions_data()
{
    // columns: element drawn outside the place the modern look is meant for
    QTest::addColumn<QString>("element");

    QTest::newRow("tab of a tab bar in a dialog") << QStringLiteral("dialog tab");
    QTest::newRow("tab of a west tab bar in a main window") << QStringLiteral("west tab");
    QTest::newRow("tool button in a dialog") << QStringLiteral("loose button");
    QTest::newRow("tool-button panel outside a dock title") << QStringLiteral("panel");
}

void tst_ModernDrawing::baseDrawsOutsideConditions()
{
    QFETCH(QString, element);

    const auto render = [&](const QStyle *style) {
        return paint(QSize(90, 32), [&](QPainter *painter) {
            if (element.endsWith(QLatin1String(" tab"))) {
                const bool west = element.startsWith(QLatin1String("west"));
                QStyleOptionTab tab;
                tab.rect = QRect(5, 4, 80, 24);
                tab.state = QStyle::State_Enabled | QStyle::State_Selected;
                tab.palette = m_palette;
                tab.text = QStringLiteral("PDF");
                tab.shape = west ? QTabBar::RoundedWest : QTabBar::RoundedNorth;
                style->drawControl(
                    QStyle::CE_TabBarTab, &tab, painter, west ? m_westBar : m_dialogBar);
            } else if (element == QLatin1String("loose button")) {
                QStyleOptionToolButton button;
                button.rect = QRect(5, 4, 40, 24);
                button.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On;
                button.palette = m_palette;
                button.subControls = QStyle::SC_ToolButton;
                button.text = QStringLiteral("Go");
                button.toolButtonStyle = Qt::ToolButtonTextOnly;
                style->drawComplexControl(QStyle::CC_ToolButton, &button, painter, m_looseButton);
            } else {
                QStyleOption panel;
                panel.rect = QRect(5, 4, 40, 24);
                panel.state = QStyle::State_Enabled | QStyle::State_Sunken;
                panel.palette = m_palette;
                style->drawPrimitive(QStyle::PE_PanelButtonTool, &panel, painter, m_looseButton);
            }
        });
    };

    const QImage base = render(m_base.get());
    QVERIFY(countColor(base, Untouched) < base.width() * base.height());
    QCOMPARE(render(m_style.get()), base);
}

QTEST_MAIN(tst_ModernDrawing)

#include "tst_moderndrawing.moc"
