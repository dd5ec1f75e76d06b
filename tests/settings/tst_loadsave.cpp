#include "formatcatalogue.h"
#include "jobsettings.h"
#include "mainwindow.h"
#include "passwordscrambling.h"
#include "settingskey.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QStyle>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QtPlugin>

#include <memory>
#include <unistd.h>

Q_IMPORT_PLUGIN(WindowsModernStylePlugin)

namespace {

struct Write
{
    SettingsScope scope;
    QString name;
    QString value;
};

QList<Write> writes;

void recordWrite(SettingsScope scope, const QString &name, const QVariant &value)
{
    writes.append({scope, name, value.toString()});
}

QStringList writtenNames(SettingsScope scope)
{
    QStringList names;
    for (const Write &write : writes) {
        if (write.scope == scope)
            names << write.name;
    }
    return names;
}

template<class T>
T *child(QWidget *window, const char *name)
{
    T *widget = window->findChild<T *>(QLatin1String(name));
    if (!widget)
        qFatal("the form has no %s", name);
    return widget;
}

QStringList words(const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// What every save writes after the values of the current page, in the driver's order.
const char commonTail[] = "load_ext_app Mail_Delivery TCP_Delivery FTP_Delivery extract_text "
                          "EnabledBackgroundText BackgroundEnable custom_number prefix_firstpage "
                          "image_color pdf_user_pw pdf_owner_pw pdf_title pdf_author pdf_subject "
                          "pdf_keywords pdf_creator pdf_producer pdf_protect pdf_protect_print "
                          "pdf_protect_edit pdf_protect_copy pdf_protect_editnotes "
                          "pdf_protect_fillandsign pdf_protect_accessible pdf_protect_assemble "
                          "pdf_protect_highprint";

} // namespace

// Loading into and saving from the main window, against real INI files in a temporary folder.
class tst_LoadSave : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void emptyKeyGivesDefaults();
    void formatSelection_data();
    void formatSelection();
    void colourSelection_data();
    void colourSelection();
    void flagTexts_data();
    void flagTexts();
    void storedValuesShown_data();
    void storedValuesShown();
    void oneSidedValuesNeverSwitchOff();
    void allUsersKeyChosen_data();
    void allUsersKeyChosen();
    void style_data();
    void style();

    void saveOrder_data();
    void saveOrder();
    void roundTrip_data();
    void roundTrip();
    void allUsersSaveBothKeys();
    void badFiles_data();
    void badFiles();

private:
    std::unique_ptr<MainWindow> open(bool converter = false);
    void writeFile(const QString &path, const QByteArray &ini);
    QString stored(SettingsScope scope, const QString &name);

    QTemporaryDir *m_dir = nullptr;
};

void tst_LoadSave::init()
{
    m_dir = new QTemporaryDir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->filePath("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, m_dir->filePath("machine"));
    jobSettings() = JobSettings();
    jobSettings().newFileName = QStringLiteral("Document1");
    QApplication::setStyle(QStringLiteral("fusion"));
    writes.clear();
    SettingsKey::setWriteObserver(recordWrite);
}

void tst_LoadSave::cleanup()
{
    SettingsKey::setWriteObserver(nullptr);
    QFile::setPermissions(
        m_dir->filePath("user/Tarnwick"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    delete m_dir;
}

std::unique_ptr<MainWindow> tst_LoadSave::open(bool converter)
{
    jobSettings().converterPath = m_dir->filePath("dxconv");
    if (converter)
        writeFile(jobSettings().converterPath, QByteArray());
    return std::make_unique<MainWindow>();
}

void tst_LoadSave::writeFile(const QString &path, const QByteArray &ini)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(ini);
}

QString tst_LoadSave::stored(SettingsScope scope, const QString &name)
{
    // A copy is read as a new process would, past the store's in-process cache.
    static int copies = 0;
    const QString copy = m_dir->filePath(QStringLiteral("copy%1.conf").arg(++copies));
    QFile::copy(SettingsKey::fileName(scope), copy);
    return QSettings(copy, QSettings::IniFormat).value(name, QStringLiteral("<absent>")).toString();
}

void tst_LoadSave::emptyKeyGivesDefaults()
{
    auto window = open();
    const JobSettings &job = jobSettings();
    QWidget *w = window.get();

    QCOMPARE(job.formatToken, QStringLiteral("tif"));
    QCOMPARE(child<QTabWidget>(w, "tabWidget")->currentIndex(), int(Formats::Tiff));
    QCOMPARE(window->compressionCode(), QStringLiteral("LZW"));
    QVERIFY(child<QRadioButton>(w, "rb_1")->isChecked());
    for (const char *name : {"spb_q_htm", "spb_q_jpg", "spb_q_tif", "spb_q_swf", "spb_q_pdf"})
        QCOMPARE(child<QSpinBox>(w, name)->value(), 100);
    for (const char *name : {"ch_multipage_tiff", "ch_multipage_swf", "ch_multipage_pdf",
             "ch_multipage_htm", "rb_pdf_text", "rb_htm_text", "rb_swf_text"})
        QVERIFY2(child<QCheckBox>(w, name)->isChecked(), name);
    for (const char *name : {"ch_swf_animate", "ch_exe", "ch_email", "ch_tcp", "ch_ftp", "ch_text",
             "ch_image", "cd_extract_text"})
        QVERIFY2(!child<QCheckBox>(w, name)->isChecked(), name);
    QVERIFY(!child<QGroupBox>(w, "ch_swf_protect")->isChecked());
    QVERIFY(child<QRadioButton>(w, "rb_pefix_custom")->isChecked());
    QVERIFY(child<QLineEdit>(w, "le_pr_custom")->isEnabled());
    QCOMPARE(child<QLineEdit>(w, "le_filename")->text(), QStringLiteral("Document1"));
    QCOMPARE(job.colorCode, QStringLiteral("24"));
    QCOMPARE(child<QComboBox>(w, "cb_combobox")->currentIndex(), 3);
    QVERIFY(job.pdf.userPassword.isEmpty() && job.pdf.ownerPassword.isEmpty());
    QVERIFY(job.pdf.title.isEmpty() && job.pdf.producer.isEmpty());
    QVERIFY(!job.pdf.protect && !job.pdf.permissions.print && !job.pdf.permissions.highPrint);
    QCOMPARE(job.extension(Formats::Html), QStringLiteral("html"));
    QCOMPARE(job.extension(Formats::Excel), QStringLiteral("xls"));
    QVERIFY(!job.allUsers && !job.saveAsOnly);
    QCOMPARE(QApplication::style()->name(), QStringLiteral("fusion"));
    // Loading reads only.
    QVERIFY(writes.isEmpty());
    QVERIFY(!QFile::exists(SettingsKey::fileName(SettingsScope::User)));
}

void tst_LoadSave::formatSelection_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("converter");
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("page");

    // clang-format off
    //                                    stored      converter  token    page of tabWidget
    QTest::newRow("pdf")              << QByteArray("pdf")  << false << "pdf"  << 7;
    QTest::newRow("capital PDF")      << QByteArray("PDF")  << false << "jpg"  << 2;
    QTest::newRow("unknown")          << QByteArray("xyz")  << false << "jpg"  << 2;
    QTest::newRow("empty text")       << QByteArray("")     << false << "jpg"  << 2;
    QTest::newRow("djvu, no converter") << QByteArray("djvu") << false << "jpg" << 2;
    // The DjVu page is asked for as index 12, which the tab widget ignores.
    QTest::newRow("djvu, converter")  << QByteArray("djvu") << true  << "djvu" << 6;
    QTest::newRow("msxml")            << QByteArray("msxml") << false << "msxml" << 9;
    // clang-format on
}

void tst_LoadSave::formatSelection()
{
    QFETCH(QByteArray, format);
    QFETCH(bool, converter);
    QFETCH(QString, token);
    QFETCH(int, page);
    writeFile(SettingsKey::fileName(SettingsScope::User), "[General]\nformat=" + format + "\n");
    auto window = open(converter);
    QCOMPARE(jobSettings().formatToken, token);
    QCOMPARE(child<QTabWidget>(window.get(), "tabWidget")->currentIndex(), page);
}

void tst_LoadSave::colourSelection_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("code");

    // clang-format off
    //                                 stored values                                    entries row  colour code
    QTest::newRow("tif JPEG 8")    << QByteArray("format=tif\nformat_ext=JPEG\nimage_color=8") << 2 << 1 << "8";
    QTest::newRow("tif LZW 24g")   << QByteArray("format=tif\nimage_color=24g")             << 4 << 2 << "24g";
    QTest::newRow("bmp 24g")       << QByteArray("format=bmp\nimage_color=24g")             << 4 << 2 << "24g";
    QTest::newRow("png 1")         << QByteArray("format=png\nimage_color=1")               << 4 << 0 << "1";
    QTest::newRow("pdf 24g")       << QByteArray("format=pdf\nimage_color=24g")             << 2 << 0 << "24g";
    QTest::newRow("pdf unknown")   << QByteArray("format=pdf\nimage_color=x")               << 2 << 1 << "x";
    // SWF is current from the start: the list keeps the form's order TrueColor, Grayscale.
    QTest::newRow("swf 24g")       << QByteArray("format=swf\nimage_color=24g")             << 2 << 0 << "24g";
    QTest::newRow("swf 24")        << QByteArray("format=swf\nimage_color=24")              << 2 << 1 << "24g";
    // Rows beyond the list are the combo box's business; the code is not rewritten.
    QTest::newRow("gif 24")        << QByteArray("format=gif\nimage_color=24")              << 3 << -1 << "24";
    QTest::newRow("tif G4 8")      << QByteArray("format=tif\nformat_ext=G4\nimage_color=8") << 1 << -1 << "8";
    // clang-format on
}

void tst_LoadSave::colourSelection()
{
    QFETCH(QByteArray, ini);
    QFETCH(int, items);
    QFETCH(int, row);
    QFETCH(QString, code);
    writeFile(SettingsKey::fileName(SettingsScope::User), "[General]\n" + ini + "\n");
    auto window = open();
    const QComboBox *colours = child<QComboBox>(window.get(), "cb_combobox");
    QCOMPARE(colours->count(), items);
    QCOMPARE(colours->currentIndex(), row);
    QCOMPARE(jobSettings().colorCode, code);
}

void tst_LoadSave::flagTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("asFlag"); // the string-to-boolean conversion
    QTest::addColumn<bool>("asExact"); // compared with "true"

    // clang-format off
    //                            stored text            flag     exact
    QTest::newRow("true")      << QByteArray("true")  << true  << true;
    QTest::newRow("TRUE")      << QByteArray("TRUE")  << true  << false;
    QTest::newRow("false")     << QByteArray("false") << false << false;
    QTest::newRow("FaLsE")     << QByteArray("FaLsE") << false << false;
    QTest::newRow("0")         << QByteArray("0")     << false << false;
    QTest::newRow("1")         << QByteArray("1")     << true  << false;
    QTest::newRow("empty")     << QByteArray("")      << false << false;
    QTest::newRow("yes")       << QByteArray("yes")   << true  << false;
    // clang-format on
}

void tst_LoadSave::flagTexts()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, asFlag);
    QFETCH(bool, asExact);
    writeFile(SettingsKey::fileName(SettingsScope::User),
        "[General]\nmultipage_pdf=" + text + "\nload_ext_app=" + text + "\nextract_text=" + text
            + "\nchDialog_SaveAs=" + text + "\npdf_protect=" + text + "\n");
    auto window = open();
    QCOMPARE(child<QCheckBox>(window.get(), "ch_multipage_pdf")->isChecked(), asFlag);
    QCOMPARE(child<QCheckBox>(window.get(), "ch_exe")->isChecked(), asFlag);
    QCOMPARE(jobSettings().pdf.protect, asFlag);
    QCOMPARE(child<QCheckBox>(window.get(), "cd_extract_text")->isChecked(), asExact);
    QCOMPARE(jobSettings().saveAsOnly, asExact);
}

void tst_LoadSave::storedValuesShown_data()
{
    QTest::addColumn<QString>("ini");
    QTest::addColumn<QString>("fileName"); // le_filename
    QTest::addColumn<QString>("password"); // le_swf_protect
    QTest::addColumn<bool>("protect"); // ch_swf_protect
    QTest::addColumn<bool>("firstPage"); // rb_pefix_1 checked, le_pr_custom disabled
    QTest::addColumn<int>("quality"); // spb_q_jpg

    const QString pw = QLatin1String("protect_swf=") + scramblePassword(QStringLiteral("pw"));
    // clang-format off
    //                                         stored values                                       le_filename           password protect first  q_jpg
    QTest::newRow("folder with separator")  << "path=/out/"                                     << "/out/Document1"   << ""   << false << false << 100;
    QTest::newRow("folder without")         << "path=/out"                                      << "/outDocument1"    << ""   << false << false << 100;
    QTest::newRow("password, protected")    << pw + "\nb_protect_swf=true"                      << "Document1"        << "pw" << true  << false << 100;
    QTest::newRow("password, unprotected")  << pw + "\nb_protect_swf=false"                     << "Document1"        << "pw" << false << false << 100;
    QTest::newRow("no password, protected") << "b_protect_swf=true"                             << "Document1"        << ""   << false << false << 100;
    QTest::newRow("first page numbering")   << "prefix_firstpage=true\ncustom_number=7"         << "Document1"        << ""   << false << true  << 100;
    QTest::newRow("quality in range")       << "q_jpg=55"                                       << "Document1"        << ""   << false << false << 55;
    QTest::newRow("quality too high")       << "q_jpg=500"                                      << "Document1"        << ""   << false << false << 100;
    QTest::newRow("quality not a number")   << "q_jpg=abc"                                      << "Document1"        << ""   << false << false << 1;
    QTest::newRow("quality negative")       << "q_jpg=-3"                                       << "Document1"        << ""   << false << false << 1;
    // clang-format on
}

void tst_LoadSave::storedValuesShown()
{
    QFETCH(QString, ini);
    QFETCH(QString, fileName);
    QFETCH(QString, password);
    QFETCH(bool, protect);
    QFETCH(bool, firstPage);
    QFETCH(int, quality);
    {
        // Through the store, so the scrambled text is escaped as the program writes it.
        SettingsKey key(SettingsScope::User);
        for (const QString &line : ini.split(QLatin1Char('\n')))
            key.setValue(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    }
    auto window = open();
    QWidget *w = window.get();
    QCOMPARE(child<QLineEdit>(w, "le_filename")->text(), fileName);
    QCOMPARE(child<QLineEdit>(w, "le_swf_protect")->text(), password);
    QCOMPARE(child<QGroupBox>(w, "ch_swf_protect")->isChecked(), protect);
    QCOMPARE(child<QRadioButton>(w, "rb_pefix_1")->isChecked(), firstPage);
    QCOMPARE(child<QRadioButton>(w, "rb_pefix_custom")->isChecked(), !firstPage);
    QCOMPARE(child<QLineEdit>(w, "le_pr_custom")->isEnabled(), !firstPage);
    QCOMPARE(child<QSpinBox>(w, "spb_q_jpg")->value(), quality);
}

void tst_LoadSave::oneSidedValuesNeverSwitchOff()
{
    writeFile(SettingsKey::fileName(SettingsScope::User),
        "[General]\nswf_animate=true\nchDialog_SaveAs=true\nmultipage_tiff=true\n");
    auto window = open();
    {
        SettingsKey key(SettingsScope::User);
        key.setFlag(Settings::SwfAnimate, false);
        key.setFlag(Settings::ChDialogSaveAs, false);
        key.setFlag(Settings::MultipageTiff, false);
    }
    window->loadSettings();
    QVERIFY(child<QCheckBox>(window.get(), "ch_swf_animate")->isChecked());
    QVERIFY(jobSettings().saveAsOnly);
    QVERIFY(!child<QCheckBox>(window.get(), "ch_multipage_tiff")->isChecked());
}

void tst_LoadSave::allUsersKeyChosen_data()
{
    QTest::addColumn<QByteArray>("machine");
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<bool>("allUsers");
    QTest::addColumn<QString>("format");

    // clang-format off
    //                                  machine key                                          user key                                                      all users format
    QTest::newRow("machine says all")   << QByteArray("settings_for_all_users=true\nformat=pdf") << QByteArray("format=gif")                              << true  << "pdf";
    QTest::newRow("all, user empty")    << QByteArray("settings_for_all_users=1")               << QByteArray("format=gif")                              << true  << "tif";
    QTest::newRow("machine says no")    << QByteArray("settings_for_all_users=false\nformat=pdf") << QByteArray("format=gif")                            << false << "gif";
    QTest::newRow("only user says all") << QByteArray("format=pdf")                              << QByteArray("settings_for_all_users=true\nformat=gif") << false << "gif";
    // clang-format on
}

void tst_LoadSave::allUsersKeyChosen()
{
    QFETCH(QByteArray, machine);
    QFETCH(QByteArray, user);
    QFETCH(bool, allUsers);
    QFETCH(QString, format);
    writeFile(SettingsKey::fileName(SettingsScope::Machine), "[General]\n" + machine + "\n");
    writeFile(SettingsKey::fileName(SettingsScope::User), "[General]\n" + user + "\n");
    auto window = open();
    QCOMPARE(jobSettings().allUsers, allUsers);
    QCOMPARE(jobSettings().formatToken, format);
}

void tst_LoadSave::style_data()
{
    QTest::addColumn<QByteArray>("style");
    QTest::addColumn<QString>("expected"); // name of the style in use afterwards

    const QString modern = QStringLiteral("windowsmodernstyle");
    // clang-format off
    //                                 stored style                     style in use
    QTest::newRow("none")          << QByteArray()                   << "fusion";
    QTest::newRow("unknown")       << QByteArray("Motif")            << "fusion";
    QTest::newRow("by name")       << QByteArray("windows")          << "windows";
    QTest::newRow("Windows")       << QByteArray("Windows")          << modern;
    QTest::newRow("WindowsVista")  << QByteArray("WindowsVista")     << modern;
    QTest::newRow("inside a word") << QByteArray("MyWindowsTheme")   << modern;
    // clang-format on
}

void tst_LoadSave::style()
{
    QFETCH(QByteArray, style);
    QFETCH(QString, expected);
    writeFile(SettingsKey::fileName(SettingsScope::User), "[General]\nstyle=" + style + "\n");
    auto window = open();
    QCOMPARE(QApplication::style()->name(), expected);
}

void tst_LoadSave::saveOrder_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("compression"); // stored before opening; "none": no button checked
    QTest::addColumn<bool>("protect"); // ch_swf_protect
    QTest::addColumn<QString>("password"); // le_swf_protect
    QTest::addColumn<bool>("showDialog"); // cd_dialog
    QTest::addColumn<QString>("pageValues"); // written between Path and the common tail

    // clang-format off
    //                                   page compression protect password show  values of the page, in order
    QTest::newRow("bmp")              << 0  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("bmp, no dialog")   << 0  << "LZW"  << false << ""   << false << "chDialog format";
    QTest::newRow("png")              << 1  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("jpeg")             << 2  << "LZW"  << false << ""   << true  << "q_jpg format";
    QTest::newRow("jpeg2000")         << 3  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("tiff")             << 4  << "ZIP"  << false << ""   << true  << "q_tif format_ext multipage_tiff format";
    QTest::newRow("tiff, none")       << 4  << "none" << false << ""   << true  << "q_tif multipage_tiff format";
    QTest::newRow("gif")              << 5  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("swf protected")    << 6  << "LZW"  << true  << "pw" << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf format";
    QTest::newRow("swf, no password") << 6  << "LZW"  << true  << ""   << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf protect_swf format";
    QTest::newRow("swf unprotected")  << 6  << "LZW"  << false << "pw" << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf format";
    QTest::newRow("swf, nothing")     << 6  << "LZW"  << false << ""   << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf format";
    QTest::newRow("pdf")              << 7  << "LZW"  << false << ""   << true  << "q_pdf multipage_pdf pdf_text format";
    QTest::newRow("rtf")              << 8  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("excel")            << 9  << "LZW"  << false << ""   << true  << "format";
    QTest::newRow("html")             << 10 << "LZW"  << false << ""   << true  << "q_htm format multipage_htm htm_text";
    QTest::newRow("djvu")             << 11 << "LZW"  << false << ""   << true  << "format multipage_djvu";
    // clang-format on
}

void tst_LoadSave::saveOrder()
{
    QFETCH(int, page);
    QFETCH(QString, compression);
    QFETCH(bool, protect);
    QFETCH(QString, password);
    QFETCH(bool, showDialog);
    QFETCH(QString, pageValues);
    writeFile(SettingsKey::fileName(SettingsScope::User),
        "[General]\nformat_ext=" + compression.toLatin1() + "\nchDialog=keep\n");
    auto window = open(true);
    QWidget *w = window.get();
    // Values of every page hold a mark that only a write of that page may replace.
    {
        SettingsKey key(SettingsScope::User);
        for (const Settings::Entry &row : Settings::entries()) {
            if (row.written == Settings::Written::PageCurrent)
                key.setValue(QLatin1String(row.name), QStringLiteral("mark"));
        }
    }
    writes.clear();
    child<QTabWidget>(w, "tabWidget")->setCurrentIndex(page);
    if (compression == QLatin1String("none")) {
        // The form starts with ZIP checked; only code can leave all six unchecked.
        for (QRadioButton *button :
            child<QWidget>(w, "groupBox_4")->findChildren<QRadioButton *>()) {
            button->setAutoExclusive(false);
            button->setChecked(false);
        }
    }
    child<QGroupBox>(w, "ch_swf_protect")->setChecked(protect);
    child<QLineEdit>(w, "le_swf_protect")->setText(password);
    child<QCheckBox>(w, "cd_dialog")->setChecked(showDialog);
    child<QLineEdit>(w, "le_filename")->setText(m_dir->filePath("out/report.pdf"));

    window->saveAllSettings();

    const QStringList expected = QStringList {"isabort", "newfilename", "Path"}
        + words(pageValues.toLatin1()) + words(commonTail);
    QCOMPARE(writtenNames(SettingsScope::User), expected);
    QVERIFY(writtenNames(SettingsScope::Machine).isEmpty());
    QCOMPARE(writes.first().value, QStringLiteral("false"));

    QCOMPARE(stored(SettingsScope::User, "format"), Formats::byIndex(page)->token);
    QCOMPARE(stored(SettingsScope::User, "Path"), m_dir->filePath("out/"));
    QCOMPARE(stored(SettingsScope::User, "newfilename"), QStringLiteral("report"));
    QCOMPARE(stored(SettingsScope::User, "chDialog"),
        showDialog ? QStringLiteral("keep") : QStringLiteral("false"));
    for (const Settings::Entry &row : Settings::entries()) {
        if (row.written == Settings::Written::PageCurrent && !expected.contains(row.name))
            QCOMPARE(stored(SettingsScope::User, row.name), QStringLiteral("mark"));
    }
}

void tst_LoadSave::roundTrip_data()
{
    QTest::addColumn<int>("page");
    for (const Formats::Format &format : Formats::all())
        QTest::newRow(format.token) << int(format.index);
}

void tst_LoadSave::roundTrip()
{
    QFETCH(int, page);
    const bool twoModes = Formats::colorListFor(page, QStringLiteral("JPEG")).items.size() == 2
        && page != Formats::Tiff;
    const QString folder = m_dir->filePath("out") + QDir::separator();
    auto window = open(true);
    QWidget *w = window.get();

    // Every value away from its default.
    child<QTabWidget>(w, "tabWidget")->setCurrentIndex(page);
    for (const char *name : {"spb_q_htm", "spb_q_jpg", "spb_q_tif", "spb_q_swf", "spb_q_pdf"})
        child<QSpinBox>(w, name)->setValue(40 + page);
    child<QRadioButton>(w, "rb_packbits")->setChecked(true);
    for (QCheckBox *box : w->findChildren<QCheckBox *>())
        box->setChecked(!box->isChecked());
    child<QGroupBox>(w, "ch_swf_protect")->setChecked(true);
    child<QLineEdit>(w, "le_swf_protect")->setText(QStringLiteral("sw\u00e9f=;"));
    child<QRadioButton>(w, "rb_pefix_1")->setChecked(true);
    child<QLineEdit>(w, "le_pr_custom")->setText(QStringLiteral("0042"));
    child<QLineEdit>(w, "le_filename")->setText(folder + QStringLiteral("report.pdf"));
    JobSettings &job = jobSettings();
    // A code that the list of this page shows as itself, so loading keeps it.
    job.colorCode = twoModes ? QStringLiteral("24g") : QStringLiteral("1");
    job.pdf = {QStringLiteral("T\u00eftle"), QStringLiteral("Author"), QStringLiteral("Subject"),
        QStringLiteral("k1, k2"), QStringLiteral("Creator"), QStringLiteral("Producer"),
        QStringLiteral("us\u4e2der"), QStringLiteral("\"owner\""), true,
        {true, false, true, false, true, false, true, false}};
    const JobSettings saved = job;

    window->saveAllSettings();
    window.reset();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document2");
    window = open(true);
    w = window.get();

    QCOMPARE(job.formatToken, QLatin1String(Formats::byIndex(page)->token));
    QCOMPARE(job.outputFolder, folder);
    QCOMPARE(child<QLineEdit>(w, "le_filename")->text(), folder + QStringLiteral("Document2"));
    QCOMPARE(job.colorCode, saved.colorCode);
    QCOMPARE(job.customNumber, QStringLiteral("0042"));
    QVERIFY(child<QRadioButton>(w, "rb_pefix_1")->isChecked());
    QCOMPARE(job.pdf.title, saved.pdf.title);
    QCOMPARE(job.pdf.keywords, saved.pdf.keywords);
    QCOMPARE(job.pdf.producer, saved.pdf.producer);
    QCOMPARE(job.pdf.userPassword, saved.pdf.userPassword);
    QCOMPARE(job.pdf.ownerPassword, saved.pdf.ownerPassword);
    QCOMPARE(job.pdf.protect, true);
    QCOMPARE(job.pdf.permissions.print, true);
    QCOMPARE(job.pdf.permissions.edit, false);
    QCOMPARE(job.pdf.permissions.assemble, true);
    QCOMPARE(job.pdf.permissions.highPrint, false);
    for (const char *name :
        {"ch_exe", "ch_email", "ch_tcp", "ch_ftp", "ch_text", "ch_image", "cd_extract_text"})
        QVERIFY2(child<QCheckBox>(w, name)->isChecked(), name);

    // The values of the page itself; every other page shows its defaults again.
    const QList<Settings::Value> &values = Settings::pageValues(page);
    const auto quality = [&](Settings::Value value, const char *name) {
        QCOMPARE(child<QSpinBox>(w, name)->value(), values.contains(value) ? 40 + page : 100);
    };
    quality(Settings::QHtm, "spb_q_htm");
    quality(Settings::QJpg, "spb_q_jpg");
    quality(Settings::QTif, "spb_q_tif");
    quality(Settings::QSwf, "spb_q_swf");
    quality(Settings::QPdf, "spb_q_pdf");
    const auto flag = [&](Settings::Value value, const char *name, bool byDefault) {
        QCOMPARE(child<QCheckBox>(w, name)->isChecked(),
            values.contains(value) ? !byDefault : byDefault);
    };
    flag(Settings::MultipageTiff, "ch_multipage_tiff", true);
    flag(Settings::MultipageSwf, "ch_multipage_swf", true);
    flag(Settings::MultipagePdf, "ch_multipage_pdf", true);
    flag(Settings::MultipageHtm, "ch_multipage_htm", true);
    flag(Settings::MultipageDjvu, "ch_multipage_djvu", true);
    flag(Settings::PdfText, "rb_pdf_text", true);
    flag(Settings::HtmText, "rb_htm_text", true);
    flag(Settings::SwfText, "rb_swf_text", true);
    flag(Settings::SwfAnimate, "ch_swf_animate", false);
    QCOMPARE(window->compressionCode(),
        page == Formats::Tiff ? QStringLiteral("PACKBITS") : QStringLiteral("LZW"));
    QCOMPARE(child<QGroupBox>(w, "ch_swf_protect")->isChecked(), page == Formats::Swf);
    QCOMPARE(child<QLineEdit>(w, "le_swf_protect")->text(),
        page == Formats::Swf ? QStringLiteral("sw\u00e9f=;") : QString());
}

void tst_LoadSave::allUsersSaveBothKeys()
{
    writeFile(SettingsKey::fileName(SettingsScope::Machine),
        "[General]\nsettings_for_all_users=true\nformat=pdf\n");
    auto window = open();
    QVERIFY(jobSettings().allUsers);
    child<QLineEdit>(window.get(), "le_filename")->setText(m_dir->filePath("report"));
    jobSettings().pdf.userPassword = QStringLiteral("secret");
    window->saveAllSettings();

    // One complete save per key, the machine key first.
    const qsizetype half = writes.size() / 2;
    QVERIFY(half > 0);
    for (qsizetype i = 0; i < half; ++i) {
        QCOMPARE(writes.at(i).scope, SettingsScope::Machine);
        QCOMPARE(writes.at(half + i).scope, SettingsScope::User);
        QCOMPARE(writes.at(half + i).name, writes.at(i).name);
        QCOMPARE(writes.at(half + i).value, writes.at(i).value);
    }
    for (const Write &write : writes)
        QCOMPARE(
            stored(SettingsScope::User, write.name), stored(SettingsScope::Machine, write.name));
    QCOMPARE(stored(SettingsScope::Machine, "settings_for_all_users"), QStringLiteral("true"));
}

void tst_LoadSave::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("obstacle"); // "", "unreadable", "read-only folder", "folder"
    QTest::addColumn<int>("quality"); // spb_q_jpg after loading

    // clang-format off
    //                                      file content                                        obstacle            q_jpg
    QTest::newRow("garbage")           << QByteArray("\x00\xff[=]\x80\n\x01\x02", 10)          << ""                 << 100;
    QTest::newRow("truncated")         << QByteArray("[General]\nq_jpg=4")                    << ""                 << 4;
    QTest::newRow("wrong types")       << QByteArray("[General]\nq_jpg=@Variant(\\0\\0\\0\\x7f)\nformat=@ByteArray(pdf)\n") << "" << 1;
    QTest::newRow("unreadable")        << QByteArray("[General]\nq_jpg=4\n")                  << "unreadable"       << 100;
    QTest::newRow("read-only folder")  << QByteArray("[General]\nq_jpg=4\n")                  << "read-only folder" << 4;
    QTest::newRow("file is a folder")  << QByteArray()                                        << "folder"           << 100;
    // clang-format on
}

void tst_LoadSave::badFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, obstacle);
    QFETCH(int, quality);
    const QString file = SettingsKey::fileName(SettingsScope::User);
    if (obstacle == QLatin1String("folder")) {
        QDir().mkpath(file);
    } else {
        writeFile(file, content);
        if (!obstacle.isEmpty() && ::geteuid() == 0)
            QSKIP("root reads and writes regardless of permissions");
        if (obstacle == QLatin1String("unreadable"))
            QFile::setPermissions(file, QFileDevice::WriteOwner);
        if (obstacle == QLatin1String("read-only folder"))
            QFile::setPermissions(
                QFileInfo(file).absolutePath(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }
    auto window = open();
    QCOMPARE(child<QSpinBox>(window.get(), "spb_q_jpg")->value(), quality);
    child<QLineEdit>(window.get(), "le_filename")->setText(m_dir->filePath("report"));
    window->saveAllSettings();
    if (obstacle.isEmpty())
        QCOMPARE(stored(SettingsScope::User, "isabort"), QStringLiteral("false"));
}

QTEST_MAIN(tst_LoadSave)
#include "tst_loadsave.moc"
