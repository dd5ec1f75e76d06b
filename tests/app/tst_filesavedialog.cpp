#include "filesavedialog.h"
#include "markingtranslator.h"

#include <QLabel>
#include <QTest>

// The save-as-only banner follows a language installed while it is up.
class tst_FileSaveDialog : public QObject
{
    Q_OBJECT

private slots:
    void languageChange()
    {
        FileSaveDialog banner;
        const auto *label = banner.findChild<QLabel *>(QStringLiteral("label_3"));
        const QString text = label->text();

        MarkingTranslator translator("FileSaveDialog");
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(banner.windowTitle(), QStringLiteral("~Vellumio"));
        QCOMPARE(label->text(), QLatin1Char('~') + text);

        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(banner.windowTitle(), QStringLiteral("Vellumio"));
        QCOMPARE(label->text(), text);
    }
};

QTEST_MAIN(tst_FileSaveDialog)
#include "tst_filesavedialog.moc"
