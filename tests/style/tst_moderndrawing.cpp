#include "moderncolors.h"
#include "windowsmodernstyle.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {
const QColor Untouched(255, 0, 255); // whatever the style leaves alone keeps this colour
} // namespace

class tst_ModernDrawing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void colors();
    void pixels_data();
    void pixels();
    void baseDrawsOutsideConditions();

private:
    QImage draw(const QString &scene, const QStyle *style);

    WindowsModernStyle m_style;
    const std::unique_ptr<QStyle> m_base {QStyleFactory::create(QStringLiteral("Fusion"))};
    QMainWindow m_mainWindow;
    QDialog m_dialog;
    QTabBar *m_mainBar = nullptr;
};

void tst_ModernDrawing::initTestCase()
{
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(200, 100, 50));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Dark, QColor(100, 100, 100));
    palette.setColor(QPalette::Light, QColor(250, 250, 250));
    palette.setColor(QPalette::Highlight, QColor(50, 100, 200));
    QApplication::setPalette(palette);
    m_style.polish(palette);
    m_mainBar = new QTabBar(&m_mainWindow);
    m_mainWindow.setStatusBar(new QStatusBar);
    m_mainWindow.statusBar()->setGeometry(0, 170, 200, 30);
}

QImage tst_ModernDrawing::draw(const QString &scene, const QStyle *style)
{
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Untouched);
    QPainter painter(&image);
    const auto is = [&scene](const char *word) { return scene.contains(QLatin1String(word)); };
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
        const QWidget *bar = is("dialog") ? new QTabBar(&m_dialog) : m_mainBar;
        style->drawControl(QStyle::CE_TabBarTabShape, &o, &painter, bar);
    } else if (is("tool button")) {
        QStyleOptionToolButton o;
        o.rect = QRect(5, 4, 40, 24);
        o.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On;
        o.subControls = QStyle::SC_ToolButton;
        style->drawComplexControl(QStyle::CC_ToolButton, &o, &painter, new QToolButton(&m_dialog));
    } else {
        plain.rect = image.rect();
        style->drawPrimitive(QStyle::PE_Widget, &plain, &painter, &m_mainWindow);
    }
    return image;
}

void tst_ModernDrawing::colors()
{
    QCOMPARE(mixColors(Qt::white, Qt::black, 0.205), QColor(52, 52, 52));
    QCOMPARE(mixColors(Qt::black, Qt::white, 0.5), QColor(128, 128, 128)); // halves round up
    // From a half-transparent palette, copied colours keep the alpha and blends come out opaque.
    QPalette palette = QApplication::palette();
    for (const auto role : {QPalette::Button, QPalette::Dark, QPalette::Light, QPalette::Highlight})
        palette.setColor(role, QColor::fromRgba(palette.color(role).rgba() & 0x80ffffff));
    const ModernColors translucent = ModernColors::fromPalette(palette);
    QCOMPARE(translucent.backgroundStart, QColor(200, 100, 50, 128));
    QCOMPARE(translucent.hoverBorder, QColor(50, 100, 200, 128));
    QCOMPARE(translucent.backgroundEnd, QColor(244, 223, 213));
    QCOMPARE(translucent.borderLight, QColor(131, 131, 131));
}

void tst_ModernDrawing::pixels_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<int>("tolerance"); // gradients get some slack
    // Colours the palette set up in initTestCase() leads to.
    const auto grey = [](int v) { return QColor(v, v, v); };
    const QColor button(200, 100, 50), light = grey(250), menu(247, 233, 226), hover(194, 209, 239);
    const auto row
        = [](const char *scene, QPoint point, const QColor &expected, int tolerance = 0) {
              QTest::addRow("%s at %d,%d", scene, point.x(), point.y())
                  << QString::fromLatin1(scene) << point << expected << tolerance;
          };
    for (const bool across : {false, true}) { // " h": in a horizontal bar
        const auto at = [across](int a, int b) { return across ? QPoint(b, a) : QPoint(a, b); };
        const char *handle = across ? "handle h" : "handle";
        const char *separator = across ? "bar separator h" : "bar separator";
        for (int i : {4, 9, 14}) { // the dark square covers the light one
            row(handle, at(i, 3), grey(139));
            row(handle, at(i + 1, 4), grey(139));
            row(handle, at(i + 2, 5), light);
        }
        row(handle, at(19, 3), Untouched);
        for (int a : {2, 17}) {
            row(separator, at(a, 2), grey(147));
            row(separator, at(a, 3), light);
        }
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
    row("main window", {125, 0}, QColor(244, 223, 213), 1);
    row("main window", {150, 169}, QColor(244, 223, 213));
    row("main window", {199, 170}, light);
    row("main window", {100, 171}, Untouched);
}

void tst_ModernDrawing::pixels()
{
    QFETCH(QString, scene);
    QFETCH(QPoint, point);
    QFETCH(QColor, expected);
    QFETCH(int, tolerance);
    const QColor actual = draw(scene, &m_style).pixelColor(point);
    const int off = std::max({qAbs(actual.red() - expected.red()),
        qAbs(actual.green() - expected.green()), qAbs(actual.blue() - expected.blue())});
    QVERIFY2(off <= tolerance,
        qPrintable(actual.name() + QStringLiteral(" instead of ") + expected.name()));
}

void tst_ModernDrawing::baseDrawsOutsideConditions()
{
    for (const QString &scene :
        {QStringLiteral("dialog tab"), QStringLiteral("loose tool button")}) {
        const QImage base = draw(scene, m_base.get());
        QImage blank(base.size(), base.format());
        blank.fill(Untouched);
        QVERIFY(base != blank);
        QVERIFY2(draw(scene, &m_style) == base, qPrintable(scene));
    }
}

QTEST_MAIN(tst_ModernDrawing)

#include "tst_moderndrawing.moc"
