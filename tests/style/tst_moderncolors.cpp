#include "moderncolors.h"
#include "themedetection.h"

#include <QPalette>
#include <QtTest>

Q_DECLARE_METATYPE(QColor ModernColors::*)

class tst_ModernColors : public QObject
{
    Q_OBJECT

private slots:
    void mix_data();
    void mix();
    void fromPalette_data();
    void fromPalette();
    void alpha_data();
    void alpha();
    void themeScheme_data();
    void themeScheme();
};

void tst_ModernColors::mix_data()
{
    // columns: a, b, weight on a, expected blend
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<double>("t");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("white over black at 0.205 truncates")
        << QColor(Qt::white) << QColor(Qt::black) << 0.205 << QColor(52, 52, 52);
    QTest::newRow("black and white halfway rounds up")
        << QColor(Qt::black) << QColor(Qt::white) << 0.5 << QColor(128, 128, 128);
    QTest::newRow("channels blend separately")
        << QColor(255, 0, 100) << QColor(0, 255, 200) << 0.3 << QColor(77, 179, 170);
    QTest::newRow("translucent inputs give an opaque blend")
        << QColor(255, 255, 255, 0) << QColor(0, 0, 0, 64) << 0.5 << QColor(128, 128, 128, 255);
}

void tst_ModernColors::mix()
{
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(double, t);
    QFETCH(QColor, expected);

    const QColor blend = mixColors(a, b, t);
    QCOMPARE(blend.rgba(), expected.rgba());
}

namespace {

QPalette fixedPalette(int alpha)
{
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(200, 100, 50, alpha));
    palette.setColor(QPalette::Base, QColor(255, 255, 255));
    palette.setColor(QPalette::Text, QColor(0, 0, 0));
    palette.setColor(QPalette::Dark, QColor(100, 100, 100, alpha));
    palette.setColor(QPalette::Light, QColor(250, 250, 250, alpha));
    palette.setColor(QPalette::Highlight, QColor(50, 100, 200, alpha));
    return palette;
}

} // namespace

void tst_ModernColors::fromPalette_data()
{
    // columns: member, its colour for Button 200/100/50, Base white, Text black, Dark 100,
    // Light 250, Highlight 50/100/200
    QTest::addColumn<QColor ModernColors::*>("member");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("backgroundStart") << &ModernColors::backgroundStart << QColor(200, 100, 50);
    QTest::newRow("backgroundEnd") << &ModernColors::backgroundEnd << QColor(244, 223, 213);
    QTest::newRow("menuBorder") << &ModernColors::menuBorder << QColor(80, 80, 80);
    QTest::newRow("menuBackground") << &ModernColors::menuBackground << QColor(247, 233, 226);
    QTest::newRow("menuBarOpenTop") << &ModernColors::menuBarOpenTop << QColor(244, 224, 214);
    QTest::newRow("menuBarOpenBottom") << &ModernColors::menuBarOpenBottom << QColor(228, 178, 153);
    QTest::newRow("barTop") << &ModernColors::barTop << QColor(244, 224, 214);
    QTest::newRow("barMiddle") << &ModernColors::barMiddle << QColor(228, 178, 153);
    QTest::newRow("barBottom") << &ModernColors::barBottom << QColor(200, 100, 50);
    QTest::newRow("gripShadow") << &ModernColors::gripShadow << QColor(139, 139, 139);
    QTest::newRow("gripLight") << &ModernColors::gripLight << QColor(250, 250, 250);
    QTest::newRow("separatorDark") << &ModernColors::separatorDark << QColor(147, 147, 147);
    QTest::newRow("separatorLight") << &ModernColors::separatorLight << QColor(250, 250, 250);
    QTest::newRow("hoverBorder") << &ModernColors::hoverBorder << QColor(50, 100, 200);
    QTest::newRow("hoverTop") << &ModernColors::hoverTop << QColor(194, 209, 239);
    QTest::newRow("hoverMiddle") << &ModernColors::hoverMiddle << QColor(194, 209, 239);
    QTest::newRow("hoverBottom") << &ModernColors::hoverBottom << QColor(194, 209, 239);
    QTest::newRow("checkedTop") << &ModernColors::checkedTop << QColor(224, 232, 247);
    QTest::newRow("checkedMiddle") << &ModernColors::checkedMiddle << QColor(224, 232, 247);
    QTest::newRow("checkedBottom") << &ModernColors::checkedBottom << QColor(224, 232, 247);
    QTest::newRow("pressedTop") << &ModernColors::pressedTop << QColor(163, 185, 230);
    QTest::newRow("pressedMiddle") << &ModernColors::pressedMiddle << QColor(163, 185, 230);
    QTest::newRow("pressedBottom") << &ModernColors::pressedBottom << QColor(163, 185, 230);
    QTest::newRow("borderDark") << &ModernColors::borderDark << QColor(100, 100, 100);
    QTest::newRow("borderLight") << &ModernColors::borderLight << QColor(131, 131, 131);
}

void tst_ModernColors::fromPalette()
{
    QFETCH(QColor ModernColors::*, member);
    QFETCH(QColor, expected);

    const ModernColors colors = ModernColors::fromPalette(fixedPalette(255));
    QCOMPARE((colors.*member).rgba(), expected.rgba());
}

void tst_ModernColors::alpha_data()
{
    // columns: member, alpha it has when Button, Dark, Light and Highlight are at alpha 128
    QTest::addColumn<QColor ModernColors::*>("member");
    QTest::addColumn<int>("alpha");

    QTest::newRow("1 backgroundStart copies Button") << &ModernColors::backgroundStart << 128;
    QTest::newRow("2 backgroundEnd blends") << &ModernColors::backgroundEnd << 255;
    QTest::newRow("9 barBottom copies Button") << &ModernColors::barBottom << 128;
    QTest::newRow("11 gripLight copies Light") << &ModernColors::gripLight << 128;
    QTest::newRow("13 separatorLight copies Light") << &ModernColors::separatorLight << 128;
    QTest::newRow("14 hoverBorder copies Highlight") << &ModernColors::hoverBorder << 128;
    QTest::newRow("24 borderDark copies Dark") << &ModernColors::borderDark << 128;
    QTest::newRow("25 borderLight blends") << &ModernColors::borderLight << 255;
}

void tst_ModernColors::alpha()
{
    QFETCH(QColor ModernColors::*, member);
    QFETCH(int, alpha);

    const ModernColors colors = ModernColors::fromPalette(fixedPalette(128));
    QCOMPARE((colors.*member).alpha(), alpha);
}

void tst_ModernColors::themeScheme_data()
{
    // columns: theme file and colour name as the theme library reports them, scheme
    QTest::addColumn<QString>("themeFile");
    QTest::addColumn<QString>("colorName");
    QTest::addColumn<int>("scheme");

    const QString luna = QStringLiteral("C:\\WINDOWS\\resources\\Themes\\Luna\\Luna.msstyles");
    const QString aero = QStringLiteral("C:\\Windows\\resources\\Themes\\Aero\\Aero.msstyles");
    QTest::newRow("luna home stead") << luna << QStringLiteral("HomeStead") << 2;
    QTest::newRow("luna metallic") << luna << QStringLiteral("Metallic") << 1;
    QTest::newRow("luna default blue") << luna << QStringLiteral("NormalColor") << 0;
    QTest::newRow("aero with any colour") << aero << QStringLiteral("HomeStead") << 0;
    QTest::newRow("file names are case-sensitive")
        << QStringLiteral("C:\\Themes\\luna.msstyles") << QStringLiteral("Metallic") << 3;
    QTest::newRow("other theme") << QStringLiteral("C:\\Themes\\Royale.msstyles")
                                 << QStringLiteral("NormalColor") << 3;
}

void tst_ModernColors::themeScheme()
{
    QFETCH(QString, themeFile);
    QFETCH(QString, colorName);
    QFETCH(int, scheme);

    QCOMPARE(ThemeDetection::colorSchemeForTheme(themeFile, colorName), scheme);
}

QTEST_APPLESS_MAIN(tst_ModernColors)

#include "tst_moderncolors.moc"
