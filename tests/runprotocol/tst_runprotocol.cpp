#include "runprotocol.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

class tst_RunProtocol : public QObject
{
    Q_OBJECT

private slots:
    void converterPath_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("converter");
        // clang-format off
        QTest::newRow("absolute")         << "/opt/vellumio/fmtask"    << "/opt/vellumio/dxconv";
        // The first occurrence is removed, wherever it stands.
        QTest::newRow("folder holds name") << "/opt/fmtask/fmtask"     << "/opt//fmtaskdxconv";
        QTest::newRow("suffix")           << "/opt/v/fmtask-old"       << "/opt/v/-olddxconv";
        // Not found: only the last character goes, so the converter is not found.
        QTest::newRow("other capitals")   << "/opt/vellumio/FMTASK"    << "/opt/vellumio/FMTASdxconv";
        // clang-format on
    }
    void converterPath()
    {
        QFETCH(QString, program);
        QFETCH(QString, converter);
        QCOMPARE(RunProtocol::converterPath(program), converter);
    }

    void centreOnScreen()
    {
        // The inclusive right and bottom edges are used and the division truncates toward zero,
        // also for windows larger than the screen.
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (const QSize size : {QSize(494, 503), QSize(301, 157), QSize(4001, 3001)}) {
            QWidget window;
            window.setFixedSize(size);
            RunProtocol::centreOnScreen(&window);
            const QRect frame = window.frameGeometry();
            QCOMPARE(frame.topLeft(),
                QPoint(
                    (screen.right() - frame.width()) / 2, (screen.bottom() - frame.height()) / 2));
        }
    }
};

QTEST_MAIN(tst_RunProtocol)
#include "tst_runprotocol.moc"
