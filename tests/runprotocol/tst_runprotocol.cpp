#include "runprotocol.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

class tst_RunProtocol : public QObject
{
    Q_OBJECT

private slots:
    void converterPath_data();
    void converterPath();
    void centreOnScreen_data();
    void centreOnScreen();
};

void tst_RunProtocol::converterPath_data()
{
    QTest::addColumn<QString>("programPath");
    QTest::addColumn<QString>("converter");

    QTest::newRow("absolute") << "/opt/vellumio/fmtask"
                              << "/opt/vellumio/dxconv";
    QTest::newRow("bare name") << "fmtask"
                               << "dxconv";
    QTest::newRow("relative") << "./build/fmtask"
                              << "./build/dxconv";
    // The first occurrence is removed, wherever it stands.
    QTest::newRow("folder holding the name") << "/opt/fmtask/fmtask"
                                             << "/opt//fmtaskdxconv";
    QTest::newRow("renamed with a suffix") << "/opt/v/fmtask-old"
                                           << "/opt/v/-olddxconv";
    // Not found: only the last character goes, so the converter is not found.
    QTest::newRow("other capitals") << "/opt/vellumio/FMTASK"
                                    << "/opt/vellumio/FMTASdxconv";
    QTest::newRow("renamed") << "/opt/vellumio/printtask"
                             << "/opt/vellumio/printtasdxconv";
    QTest::newRow("empty") << ""
                           << "dxconv";
}

void tst_RunProtocol::converterPath()
{
    QFETCH(QString, programPath);
    QFETCH(QString, converter);

    QCOMPARE(RunProtocol::converterPath(programPath), converter);
}

void tst_RunProtocol::centreOnScreen_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("main dialog") << QSize(494, 503);
    QTest::newRow("odd sizes") << QSize(301, 157);
    QTest::newRow("larger than the screen") << QSize(4001, 3001);
}

void tst_RunProtocol::centreOnScreen()
{
    QFETCH(QSize, size);

    QWidget window;
    window.setFixedSize(size);
    RunProtocol::centreOnScreen(&window);

    // The inclusive right and bottom edges are used, and the division truncates toward zero,
    // also for windows larger than the screen.
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRect frame = window.frameGeometry();
    QCOMPARE(window.frameGeometry().topLeft(),
        QPoint((screen.right() - frame.width()) / 2, (screen.bottom() - frame.height()) / 2));
    if (size.width() > screen.width())
        QVERIFY(window.frameGeometry().left() < 0);
}

QTEST_MAIN(tst_RunProtocol)
#include "tst_runprotocol.moc"
