#include "filesavedialog.h"
#include "mainwindow.h"

#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

// Marks every text of the three forms, so a re-applied text is told apart from the designed one.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QByteArray name(context);
        if (name != "FileSaveDialog" && name != "MainWindow" && name != "pdfprotect")
            return QString();
        return QLatin1Char('~') + QString::fromUtf8(source);
    }
};

} // namespace

class tst_Translation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void bannerForm();
    void languageChange_data();
    void languageChange();

private:
    QTemporaryDir settingsDir;
};

void tst_Translation::initTestCase()
{
    QVERIFY(settingsDir.isValid());
    // The main window loads its settings; keep it away from the real keys.
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, settingsDir.filePath(QStringLiteral("u")));
        QSettings::setPath(
            format, QSettings::SystemScope, settingsDir.filePath(QStringLiteral("m")));
    }
}

void tst_Translation::bannerForm()
{
    FileSaveDialog banner;
    QCOMPARE(banner.objectName(), QStringLiteral("FileSaveDialog"));
    QCOMPARE(banner.windowTitle(), QStringLiteral("Vellumio"));
    QCOMPARE(banner.windowModality(), Qt::WindowModal);
    QCOMPARE(banner.size(), QSize(406, 55));
    const auto *label = banner.findChild<QLabel *>(QStringLiteral("label_3"));
    QVERIFY(label);
    QCOMPARE(label->geometry(), QRect(10, 10, 390, 40));
    QCOMPARE(label->font().pointSize(), 9);
    QVERIFY(label->font().bold());
    QVERIFY(label->wordWrap());
    QCOMPARE(
        label->text(), QStringLiteral("Please, define name and format of printed file and save."));
}

void tst_Translation::languageChange_data()
{
    // form: the class of the window; child: a label inside it ("" for none);
    // title, text: the designed window title and label text
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("save-as-only banner")
        << "FileSaveDialog"
        << "label_3"
        << "Vellumio"
        << "Please, define name and format of printed file and save.";
}

void tst_Translation::languageChange()
{
    QFETCH(QString, form);
    QFETCH(QString, child);
    QFETCH(QString, title);
    QFETCH(QString, text);

    std::unique_ptr<QWidget> window;
    if (form == QLatin1String("FileSaveDialog"))
        window = std::make_unique<FileSaveDialog>();
    else
        window = std::make_unique<MainWindow>();
    QCOMPARE(window->windowTitle(), title);

    MarkingTranslator translator;
    // The application posts the language change to its windows.
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(window->windowTitle(), QLatin1Char('~') + title);
    if (!child.isEmpty())
        QCOMPARE(window->findChild<QLabel *>(child)->text(), QLatin1Char('~') + text);

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(window->windowTitle(), title);
    if (!child.isEmpty())
        QCOMPARE(window->findChild<QLabel *>(child)->text(), text);
}

QTEST_MAIN(tst_Translation)
#include "tst_translation.moc"
