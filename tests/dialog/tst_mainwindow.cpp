#include "formatcatalogue.h"
#include "jobsettings.h"
#include "markingtranslator.h"
#include "mainwindow.h"
#include "pdfprotect.h"
#include "prompts.h"
#include "windoworder.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

// Records the messages the window asks and answers every one with OK.
class RecordingPrompts : public Prompts
{
public:
    QMessageBox::StandardButton message(
        QWidget *, const QString &, const QString &text, QMessageBox::StandardButtons) override
    {
        messages << text;
        return QMessageBox::Ok;
    }

    QString saveFileName(
        QWidget *, const QString &, const QString &, const QString &, QString *) override
    {
        return QString();
    }

    QStringList messages;
};

QStringList modes(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QLatin1String(text);
    return list;
}

const QStringList allModes = modes({"Monochrome", "256 colors", "Grayscale", "TrueColor"});
const QStringList grayAndTrue = modes({"Grayscale", "TrueColor"});
const QStringList gifModes = modes({"Monochrome", "256 colors", "Grayscale"});

QStringList itemsOf(const QComboBox *box)
{
    QStringList items;
    for (int row = 0; row < box->count(); ++row)
        items << box->itemText(row);
    return items;
}

// Types text the way a keyboard does, one key press per character, whatever the character.
void typeText(QWidget *widget, const QString &text)
{
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(widget, &release);
    }
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void djvuPage_data();
    void djvuPage();
    void switchPages_data();
    void switchPages();
    void compressionClicks_data();
    void compressionClicks();
    void uncheckedCompressionKeepsCode();
    void checkedFromCodeRunsNoSlot();
    void unknownColourText_data();
    void unknownColourText();
    void customNumber_data();
    void customNumber();
    void prefixClicks_data();
    void prefixClicks();
    void keys_data();
    void keys();
    void advancedDropsTopmost();
    void languageChangeKeepsChoices();

private:
    void open(bool withConverter = true);
    template<class T>
    T *child(const char *name) const
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    void click(const char *name) const;

    QTemporaryDir folder;
    QString converter;
    RecordingPrompts prompts;
    std::unique_ptr<MainWindow> window;
    QTabWidget *tabs = nullptr;
    QComboBox *colours = nullptr;
};

void MainWindowTest::initTestCase()
{
    QVERIFY(folder.isValid());
    // The window loads its settings on construction: keep both keys away from real ones.
    const QString user = folder.filePath(QStringLiteral("user"));
    const QString system = folder.filePath(QStringLiteral("system"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(user));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(system));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, user);
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, system);

    converter = folder.filePath(QStringLiteral("dxconv"));
    QFile file(converter);
    QVERIFY(file.open(QIODevice::WriteOnly));
    Prompts::install(&prompts);
}

void MainWindowTest::cleanupTestCase()
{
    Prompts::install(nullptr);
}

void MainWindowTest::init()
{
    jobSettings() = JobSettings();
    jobSettings().newFileName = QStringLiteral("Document1");
    prompts.messages.clear();
}

void MainWindowTest::cleanup()
{
    window.reset();
}

void MainWindowTest::open(bool withConverter)
{
    jobSettings().converterPath
        = withConverter ? converter : folder.filePath(QStringLiteral("missing/dxconv"));
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    tabs = child<QTabWidget>("tabWidget");
    colours = child<QComboBox>("cb_combobox");
    QVERIFY(tabs && colours);
}

void MainWindowTest::click(const char *name) const
{
    QAbstractButton *button = child<QAbstractButton>(name);
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton);
}

void MainWindowTest::djvuPage_data()
{
    // converter file present, expected number of tabs
    QTest::addColumn<bool>("withConverter");
    QTest::addColumn<int>("count");

    QTest::newRow("converter present") << true << 12;
    QTest::newRow("converter missing") << false << 11;
}

void MainWindowTest::djvuPage()
{
    QFETCH(bool, withConverter);
    QFETCH(int, count);

    open(withConverter);
    QCOMPARE(window->isDjvuAvailable(), withConverter);
    QCOMPARE(tabs->count(), count);
    // Tab texts are set by page, so every remaining page keeps its own text.
    for (const Formats::Format &format : Formats::all()) {
        QWidget *page = child<QWidget>(format.page);
        QVERIFY(page);
        const int index = tabs->indexOf(page);
        if (format.index == Formats::Djvu && !withConverter) {
            QCOMPARE(index, -1);
            continue;
        }
        QCOMPARE(index, int(format.index));
        QCOMPARE(tabs->tabText(index), QLatin1String(format.tabText));
    }
}

void MainWindowTest::switchPages_data()
{
    // page left, colour picked there (empty: none), page entered, then: the colour list's items,
    // its current item, whether the colour group shows, whether the list is enabled, colour code
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("code");

    using namespace Formats;
    // clang-format off
    QTest::newRow("RTF to PNG")               << int(Rtf)   << ""           << int(Png)   << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("XLS to BMP")               << int(Excel) << ""           << int(Bmp)   << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("BMP to JPEG")              << int(Bmp)   << ""           << int(Jpeg)  << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("BMP to JP2")               << int(Bmp)   << ""           << int(Jpeg2000) << grayAndTrue << "TrueColor" << true << "24";
    QTest::newRow("PDF to SWF")               << int(Pdf)   << ""           << int(Swf)   << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("SWF to PDF")               << int(Swf)   << ""           << int(Pdf)   << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("BMP to HTML")              << int(Bmp)   << ""           << int(Html)  << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("BMP to DjVu")              << int(Bmp)   << ""           << int(Djvu)  << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("BMP to GIF")               << int(Bmp)   << ""           << int(Gif)   << gifModes    << "256 colors" << true  << "8";
    QTest::newRow("GIF Grayscale to PDF")     << int(Gif)   << "Grayscale"  << int(Pdf)   << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("JPEG Grayscale to PNG")    << int(Jpeg)  << "Grayscale"  << int(Png)   << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("GIF to RTF keeps list")    << int(Gif)   << ""           << int(Rtf)   << gifModes    << "256 colors" << false << "8";
    QTest::newRow("JPEG Grayscale to RTF")    << int(Jpeg)  << "Grayscale"  << int(Rtf)   << grayAndTrue << "Grayscale"  << false << "24g";
    QTest::newRow("PNG Monochrome to XLS")    << int(Png)   << "Monochrome" << int(Excel) << allModes    << "Monochrome" << false << "1";
    // clang-format on
}

void MainWindowTest::switchPages()
{
    QFETCH(int, from);
    QFETCH(QString, pick);
    QFETCH(int, to);
    QFETCH(QStringList, items);
    QFETCH(QString, current);
    QFETCH(bool, shown);
    QFETCH(QString, code);

    open();
    tabs->setCurrentIndex(from);
    if (!pick.isEmpty()) {
        const int row = colours->findText(pick);
        QVERIFY(row >= 0);
        colours->setCurrentIndex(row);
    }
    tabs->setCurrentIndex(to);

    QWidget *page = tabs->widget(to);
    QWidget *extract = child<QWidget>("cd_extract_text");
    QWidget *group = child<QWidget>("gb_color");
    QCOMPARE(extract->parentWidget(), page);
    QCOMPARE(group->parentWidget(), page);
    QVERIFY(extract->isVisible());
    QCOMPARE(group->isVisible(), shown);
    QCOMPARE(extract->geometry(), QRect(10, 130, 171, 24));
    QCOMPARE(group->geometry(), QRect(290, 110, 141, 51));

    QCOMPARE(itemsOf(colours), items);
    QCOMPARE(colours->currentText(), current);
    QVERIFY(colours->isEnabled());
    QCOMPARE(jobSettings().colorCode, code);
}

void MainWindowTest::compressionClicks_data()
{
    // radio buttons clicked in turn, colour picked before the last click (empty: none), then:
    // compression code, colour list items, current item, list enabled, colour code
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<QString>("compression");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("code");

    const QStringList mono = modes({"Monochrome"});
    // clang-format off
    QTest::newRow("FAX4")                << modes({"rb_1", "rb_2"})        << ""          << "G4"       << mono        << "Monochrome" << false << "1";
    QTest::newRow("FAX3")                << modes({"rb_1", "rb_3"})        << ""          << "G3"       << mono        << "Monochrome" << false << "1";
    QTest::newRow("LZW after FAX4")      << modes({"rb_2", "rb_1"})        << ""          << "LZW"      << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("JPEG after FAX3")     << modes({"rb_3", "rb_4"})        << ""          << "JPEG"     << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("ZIP after FAX4")      << modes({"rb_2", "rb_zip"})      << ""          << "ZIP"      << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("PACKBITS after JPEG") << modes({"rb_4", "rb_packbits"}) << ""          << "PACKBITS" << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("LZW clicked again")   << modes({"rb_1", "rb_1"})        << "Grayscale" << "LZW"      << allModes    << "TrueColor"  << true  << "24";
    QTest::newRow("JPEG clicked again")  << modes({"rb_4", "rb_4"})        << "Grayscale" << "JPEG"     << grayAndTrue << "TrueColor"  << true  << "24";
    QTest::newRow("FAX4 clicked again")  << modes({"rb_2", "rb_2"})        << ""          << "G4"       << mono        << "Monochrome" << false << "1";
    // clang-format on
}

void MainWindowTest::compressionClicks()
{
    QFETCH(QStringList, clicks);
    QFETCH(QString, pick);
    QFETCH(QString, compression);
    QFETCH(QStringList, items);
    QFETCH(QString, current);
    QFETCH(bool, enabled);
    QFETCH(QString, code);

    open();
    tabs->setCurrentIndex(Formats::Tiff);
    for (int i = 0; i < clicks.size(); ++i) {
        if (i == clicks.size() - 1 && !pick.isEmpty()) {
            colours->setCurrentIndex(colours->findText(pick));
            QCOMPARE(colours->currentText(), pick);
        }
        click(clicks.at(i).toLatin1().constData());
    }

    QVERIFY(child<QRadioButton>(clicks.last().toLatin1().constData())->isChecked());
    QCOMPARE(window->compressionCode(), compression);
    QCOMPARE(itemsOf(colours), items);
    QCOMPARE(colours->currentText(), current);
    QCOMPARE(colours->isEnabled(), enabled);
    QCOMPARE(jobSettings().colorCode, code);
}

void MainWindowTest::uncheckedCompressionKeepsCode()
{
    open();
    tabs->setCurrentIndex(Formats::Tiff);
    click("rb_1");
    colours->setCurrentIndex(colours->findText(QStringLiteral("Grayscale")));

    // A button reporting itself unchecked leaves the code but still refills the list.
    window->rb_2(false);
    QCOMPARE(window->compressionCode(), QStringLiteral("LZW"));
    QCOMPARE(itemsOf(colours), allModes);
    QCOMPARE(colours->currentText(), QStringLiteral("TrueColor"));
    QCOMPARE(jobSettings().colorCode, QStringLiteral("24"));
}

void MainWindowTest::checkedFromCodeRunsNoSlot()
{
    open();
    QLineEdit *number = child<QLineEdit>("le_pr_custom");
    const QString compression = window->compressionCode();
    const bool numberEnabled = number->isEnabled();

    // Loading checks these buttons from code; only clicks may change the code or the field.
    child<QRadioButton>("rb_2")->setChecked(true);
    child<QRadioButton>(numberEnabled ? "rb_pefix_1" : "rb_pefix_custom")->setChecked(true);
    QCOMPARE(window->compressionCode(), compression);
    QCOMPARE(number->isEnabled(), numberEnabled);
}

void MainWindowTest::unknownColourText_data()
{
    // text reported by the colour list, colour code afterwards (it starts as "8")
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");

    // clang-format off
    QTest::newRow("empty while cleared") << ""          << "8";
    QTest::newRow("unknown mode")        << "Sepia"     << "8";
    QTest::newRow("other letter case")   << "grayscale" << "8";
    QTest::newRow("known mode")          << "Grayscale" << "24g";
    // clang-format on
}

void MainWindowTest::unknownColourText()
{
    QFETCH(QString, text);
    QFETCH(QString, code);

    open();
    jobSettings().colorCode = QStringLiteral("8");
    window->cb_combobox_currentIndexChanged(text);
    QCOMPARE(jobSettings().colorCode, code);
}

void MainWindowTest::customNumber_data()
{
    // number in the field before, accepted number forced before the edit (null: as accepted),
    // the edit ("type", "paste" over everything, "clear") and its text, then the field's text and
    // the accepted number
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("accepted");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("number");

    const QString none;
    // clang-format off
    QTest::newRow("digit typed")          << "12" << none << "type"  << "3"    << "123"  << "123";
    QTest::newRow("letter typed")         << "12" << none << "type"  << "a"    << "12"   << "12";
    QTest::newRow("blank typed")          << "12" << none << "type"  << " "    << "12"   << "12";
    QTest::newRow("minus typed")          << "12" << none << "type"  << "-"    << "12"   << "12";
    QTest::newRow("digits pasted")        << "7"  << none << "paste" << "4096" << "4096" << "4096";
    QTest::newRow("12a pasted")           << "7"  << none << "paste" << "12a"  << "7"    << "7";
    QTest::newRow("cleared")              << "12" << none << "clear" << ""     << ""     << "";
    QTest::newRow("Arabic-Indic three")   << "12" << none << "type"  << QString(QChar(0x0663)) << "12" << "12";
    QTest::newRow("fullwidth three")      << "12" << none << "type"  << QString(QChar(0xFF13)) << "12" << "12";
    QTest::newRow("superscript two")      << "12" << none << "type"  << QString(QChar(0x00B2)) << "12" << "12";
    QTest::newRow("stored non-digits")    << "5"  << "x9" << "type"  << "a"    << "x9"   << "x9";
    // clang-format on
}

void MainWindowTest::customNumber()
{
    QFETCH(QString, start);
    QFETCH(QString, accepted);
    QFETCH(QString, edit);
    QFETCH(QString, input);
    QFETCH(QString, text);
    QFETCH(QString, number);

    open();
    QLineEdit *field = child<QLineEdit>("le_pr_custom");
    field->setEnabled(true);
    field->setText(start);
    QCOMPARE(jobSettings().customNumber, start);
    if (!accepted.isNull())
        jobSettings().customNumber = accepted;

    if (edit == QLatin1String("type")) {
        field->end(false);
        typeText(field, input);
    } else if (edit == QLatin1String("paste")) {
        field->selectAll();
        field->insert(input);
    } else {
        field->clear();
    }

    QCOMPARE(field->text(), text);
    QCOMPARE(jobSettings().customNumber, number);
}

void MainWindowTest::prefixClicks_data()
{
    // prefix buttons clicked in turn, whether the custom number field is enabled afterwards
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<bool>("enabled");

    // clang-format off
    QTest::newRow("Custom")              << modes({"rb_pefix_custom"})               << true;
    QTest::newRow("Add 1 after Custom")  << modes({"rb_pefix_custom", "rb_pefix_1"}) << false;
    QTest::newRow("Custom after Add 1")  << modes({"rb_pefix_1", "rb_pefix_custom"}) << true;
    QTest::newRow("Add 1 twice")         << modes({"rb_pefix_1", "rb_pefix_1"})      << false;
    QTest::newRow("Custom twice")        << modes({"rb_pefix_custom", "rb_pefix_custom"}) << true;
    // clang-format on
}

void MainWindowTest::prefixClicks()
{
    QFETCH(QStringList, clicks);
    QFETCH(bool, enabled);

    open();
    QLineEdit *field = child<QLineEdit>("le_pr_custom");
    field->setEnabled(!enabled);
    for (const QString &name : clicks)
        click(name.toLatin1().constData());
    QCOMPARE(field->isEnabled(), enabled);
    QVERIFY(child<QRadioButton>(clicks.last().toLatin1().constData())->isChecked());
}

void MainWindowTest::keys_data()
{
    // widget that gets the key (empty: the window), key, modifiers, whether it prints
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("prints");

    const int none = Qt::NoModifier;
    const int keypad = Qt::KeypadModifier;
    // clang-format off
    QTest::newRow("Return")                  << ""             << int(Qt::Key_Return) << none   << true;
    QTest::newRow("keypad Enter")            << ""             << int(Qt::Key_Enter)  << keypad << true;
    QTest::newRow("Return in file name")     << "le_filename"  << int(Qt::Key_Return) << none   << true;
    QTest::newRow("Enter in custom number")  << "le_pr_custom" << int(Qt::Key_Enter)  << keypad << true;
    QTest::newRow("Return on Cancel Print")  << "pb_cancel"    << int(Qt::Key_Return) << none   << true;
    QTest::newRow("Escape")                  << ""             << int(Qt::Key_Escape) << none   << false;
    QTest::newRow("Space")                   << ""             << int(Qt::Key_Space)  << none   << false;
    QTest::newRow("letter")                  << ""             << int(Qt::Key_P)      << none   << false;
    // clang-format on
}

void MainWindowTest::keys()
{
    QFETCH(QString, target);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, prints);

    open();
    // A folder that does not exist makes Print stop at its first message, with the window open.
    child<QLineEdit>("le_filename")
        ->setText(folder.filePath(QStringLiteral("missing")) + QLatin1String("/out"));
    child<QLineEdit>("le_pr_custom")->setEnabled(true);
    WindowOrder::setTopmost(window.get());

    QWidget *receiver = target.isEmpty() ? window.get() : child<QWidget>(target.toLatin1());
    QVERIFY(receiver);
    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QApplication::sendEvent(receiver, &press);

    QCOMPARE(prompts.messages.size(), prints ? 1 : 0);
    if (prints)
        QVERIFY(prompts.messages.first().contains(QLatin1String("This directory doesn't exist")));
    // Print drops the topmost state first; other keys leave the window as it was.
    QCOMPARE(WindowOrder::isTopmost(window.get()), !prints);
    QVERIFY(window->isVisible());
    if (receiver == window.get())
        QVERIFY(press.isAccepted());
}

void MainWindowTest::advancedDropsTopmost()
{
    open();
    tabs->setCurrentIndex(Formats::Pdf);
    WindowOrder::setTopmost(window.get());

    bool seen = false;
    bool topmostWhileOpen = true;
    QWidget *parentOfDialog = window.get();
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<pdfprotect *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        seen = true;
        topmostWhileOpen = WindowOrder::isTopmost(window.get());
        parentOfDialog = dialog->parentWidget();
        dialog->reject();
    });
    poll.start(10);
    click("pb_pdf_protect");
    poll.stop();

    QVERIFY(seen);
    QVERIFY(!topmostWhileOpen);
    QCOMPARE(parentOfDialog, nullptr);
    // The dialog is gone once it returned.
    for (QWidget *top : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<pdfprotect *>(top));
}

void MainWindowTest::languageChangeKeepsChoices()
{
    open(false);
    tabs->setCurrentIndex(Formats::Gif);
    colours->setCurrentIndex(2);
    QLineEdit *fileName = child<QLineEdit>("le_filename");
    QLineEdit *number = child<QLineEdit>("le_pr_custom");
    fileName->setText(QStringLiteral("/tmp/out/report"));
    number->setText(QStringLiteral("42"));

    MarkingTranslator translator("MainWindow");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(window->windowTitle(), QStringLiteral("~Vellumio"));
    QCOMPARE(child<QAbstractButton>("pb_print")->text(), QStringLiteral("~Print"));
    QCOMPARE(tabs->tabText(Formats::Excel), QStringLiteral("~XLS"));
    QCOMPARE(tabs->count(), 11);

    // Only the words change: the file, the number and the colour choice stay.
    QCOMPARE(fileName->text(), QStringLiteral("/tmp/out/report"));
    QCOMPARE(number->text(), QStringLiteral("42"));
    QCOMPARE(jobSettings().customNumber, QStringLiteral("42"));
    QCOMPARE(itemsOf(colours), gifModes);
    QCOMPARE(colours->currentIndex(), 2);
    QCOMPARE(jobSettings().colorCode, QStringLiteral("24g"));

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(window->windowTitle(), QStringLiteral("Vellumio"));
    QCOMPARE(fileName->text(), QStringLiteral("/tmp/out/report"));
}

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
