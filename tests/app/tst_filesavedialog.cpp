#include "filesavedialog.h"
#include "markingtranslator.h"

#include <QLabel>
#include <QTest>

// The banner of the save-as-only mode follows a language change; its use is proven by the
// save-as-only suite.
class tst_FileSaveDialog : public QObject
{
    Q_OBJECT

private slots:
    void languageChange()
    {
        FileSaveDialog banner;
        const auto *label = banner.findChild<QLabel *>("label_3");
        const QString text = "Please, define name and format of printed file and save.";
        MarkingTranslator translator("FileSaveDialog");
        // The application posts the language change to its windows.
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(banner.windowTitle(), "~Vellumio");
        QCOMPARE(label->text(), '~' + text);
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(label->text(), text);
    }
};

QTEST_MAIN(tst_FileSaveDialog)
#include "tst_filesavedialog.moc"
