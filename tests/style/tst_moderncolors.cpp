#include "moderncolors.h"

#include <QPalette>
#include <QtTest>

Q_DECLARE_METATYPE(QColor ModernColors::*)

class tst_ModernColors : public QObject
{
    Q_OBJECT

private slots:
    void mix();
    void fromPalette_data();
    void fromPalette();
};

void tst_ModernColors::mix()
{
    QCOMPARE(mixColors(Qt::white, Qt::black, 0.205), QColor(52, 52, 52));
    QCOMPARE(mixColors(Qt::black, Qt::white, 0.5), QColor(128, 128, 128)); // halves round up
}

void tst_ModernColors::fromPalette_data()
{
    // Button, Dark, Light and Highlight are half transparent: colours copied from them keep the
    // alpha, blends of them come out opaque.
    QTest::addColumn<QColor ModernColors::*>("member");
    QTest::addColumn<QColor>("expected");
    using M = ModernColors;
    QTest::newRow("backgroundStart") << &M::backgroundStart << QColor(200, 100, 50, 128);
    QTest::newRow("backgroundEnd") << &M::backgroundEnd << QColor(244, 223, 213);
    QTest::newRow("menuBorder") << &M::menuBorder << QColor(80, 80, 80);
    QTest::newRow("gripShadow") << &M::gripShadow << QColor(139, 139, 139);
    QTest::newRow("gripLight") << &M::gripLight << QColor(250, 250, 250, 128);
    QTest::newRow("hoverBorder") << &M::hoverBorder << QColor(50, 100, 200, 128);
    QTest::newRow("pressedBottom") << &M::pressedBottom << QColor(163, 185, 230);
    QTest::newRow("borderLight") << &M::borderLight << QColor(131, 131, 131);
}

void tst_ModernColors::fromPalette()
{
    QFETCH(QColor ModernColors::*, member);
    QFETCH(QColor, expected);
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(200, 100, 50, 128));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Dark, QColor(100, 100, 100, 128));
    palette.setColor(QPalette::Light, QColor(250, 250, 250, 128));
    palette.setColor(QPalette::Highlight, QColor(50, 100, 200, 128));
    QCOMPARE((ModernColors::fromPalette(palette).*member).rgba(), expected.rgba());
}

QTEST_APPLESS_MAIN(tst_ModernColors)

#include "tst_moderncolors.moc"
