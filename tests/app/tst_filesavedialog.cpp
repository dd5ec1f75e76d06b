#include "filesavedialog.h"

#include <QLabel>
#include <QTest>
#include <QTranslator>

namespace {

// Marks every text of the banner, so a re-applied text is told apart from the designed one.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "FileSaveDialog") != 0)
            return QString();
        return QLatin1Char('~') + QString::fromUtf8(source);
    }
};

} // namespace

class tst_FileSaveDialog : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void languageChange();
};

void tst_FileSaveDialog::form()
{
    FileSaveDialog banner;
    QCOMPARE(banner.objectName(), QStringLiteral("FileSaveDialog"));
    QCOMPARE(banner.windowModality(), Qt::WindowModal);
    QCOMPARE(banner.size(), QSize(406, 55));
    const auto *label = banner.findChild<QLabel *>(QStringLiteral("label_3"));
    QVERIFY(label);
    QCOMPARE(label->geometry(), QRect(10, 10, 390, 40));
    QCOMPARE(label->font().pointSize(), 9);
    QVERIFY(label->font().bold());
    QVERIFY(label->wordWrap());
}

void tst_FileSaveDialog::languageChange()
{
    FileSaveDialog banner;
    const auto *label = banner.findChild<QLabel *>(QStringLiteral("label_3"));
    const QString text = QStringLiteral("Please, define name and format of printed file and save.");
    QCOMPARE(banner.windowTitle(), QStringLiteral("Vellumio"));
    QCOMPARE(label->text(), text);

    MarkingTranslator translator;
    // The application posts the language change to its windows.
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(banner.windowTitle(), QStringLiteral("~Vellumio"));
    QCOMPARE(label->text(), QLatin1Char('~') + text);

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(banner.windowTitle(), QStringLiteral("Vellumio"));
    QCOMPARE(label->text(), text);
}

QTEST_MAIN(tst_FileSaveDialog)
#include "tst_filesavedialog.moc"
