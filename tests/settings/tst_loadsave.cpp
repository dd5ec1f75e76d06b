#include "formatcatalogue.h"
#include "jobsettings.h"
#include "mainwindow.h"
#include "settingskey.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
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

QStringList words(const QString &list)
{
    return list.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// What every save writes after the values of the current page, in the driver's order.
const QString commonTail = QStringLiteral(
    "load_ext_app Mail_Delivery TCP_Delivery FTP_Delivery extract_text EnabledBackgroundText "
    "BackgroundEnable custom_number prefix_firstpage image_color pdf_user_pw pdf_owner_pw "
    "pdf_title pdf_author pdf_subject pdf_keywords pdf_creator pdf_producer pdf_protect "
    "pdf_protect_print pdf_protect_edit pdf_protect_copy pdf_protect_editnotes "
    "pdf_protect_fillandsign pdf_protect_accessible pdf_protect_assemble pdf_protect_highprint");

// The widgets that show a per-format value.
const std::pair<Settings::Value, const char *> pageWidgets[] = {{Settings::QHtm, "spb_q_htm"},
    {Settings::QJpg, "spb_q_jpg"}, {Settings::QTif, "spb_q_tif"}, {Settings::QSwf, "spb_q_swf"},
    {Settings::QPdf, "spb_q_pdf"}, {Settings::MultipageTiff, "ch_multipage_tiff"},
    {Settings::MultipageSwf, "ch_multipage_swf"}, {Settings::MultipagePdf, "ch_multipage_pdf"},
    {Settings::MultipageHtm, "ch_multipage_htm"}, {Settings::MultipageDjvu, "ch_multipage_djvu"},
    {Settings::PdfText, "rb_pdf_text"}, {Settings::HtmText, "rb_htm_text"},
    {Settings::SwfText, "rb_swf_text"}, {Settings::SwfAnimate, "ch_swf_animate"}};

const char *const switchWidgets[]
    = {"ch_exe", "ch_email", "ch_tcp", "ch_ftp", "ch_text", "ch_image", "cd_extract_text"};

} // namespace

// Loading into and saving from the main window, against real INI files in a temporary folder.
class tst_LoadSave : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void emptyKeyGivesDefaults();
    void loading_data();
    void loading();
    void oneSidedValuesNeverSwitchOff();
    void saveOrder_data();
    void saveOrder();
    void roundTrip_data();
    void roundTrip();
    void allUsersSaveBothKeys();
    void badFiles_data();
    void badFiles();

private:
    void open(const QByteArray &userIni = QByteArray(), bool djvu = false);
    void writeFile(const QString &path, const QByteArray &ini);
    QString stored(SettingsScope scope, const QString &name);
    template<class T>
    T *widget(const char *name) const;
    QString state(const char *name) const;
    // The state of a widget by object name, or of a job value by a short name.
    QString observe(const QString &what) const;

    QTemporaryDir *m_dir = nullptr;
    std::unique_ptr<MainWindow> m_window;
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
    m_window.reset();
    QFile::setPermissions(
        m_dir->filePath("user/Tarnwick"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    delete m_dir;
}

void tst_LoadSave::open(const QByteArray &userIni, bool djvu)
{
    m_window.reset();
    if (!userIni.isNull())
        writeFile(SettingsKey::fileName(SettingsScope::User), "[General]\n" + userIni + "\n");
    jobSettings().converterPath = m_dir->filePath("dxconv");
    if (djvu)
        writeFile(jobSettings().converterPath, QByteArray());
    m_window = std::make_unique<MainWindow>();
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

template<class T>
T *tst_LoadSave::widget(const char *name) const
{
    T *found = m_window->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("the form has no %s", name);
    return found;
}

QString tst_LoadSave::state(const char *name) const
{
    QWidget *shown = widget<QWidget>(name);
    if (auto *box = qobject_cast<QSpinBox *>(shown))
        return QString::number(box->value());
    if (auto *button = qobject_cast<QAbstractButton *>(shown))
        return button->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
    if (auto *group = qobject_cast<QGroupBox *>(shown))
        return group->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
    return qobject_cast<QLineEdit *>(shown)->text();
}

void tst_LoadSave::emptyKeyGivesDefaults()
{
    open();
    const JobSettings &job = jobSettings();
    QCOMPARE(job.formatToken, QStringLiteral("tif"));
    QCOMPARE(widget<QTabWidget>("tabWidget")->currentIndex(), int(Formats::Tiff));
    QCOMPARE(m_window->compressionCode(), QStringLiteral("LZW"));
    QVERIFY(widget<QRadioButton>("rb_1")->isChecked());
    QCOMPARE(job.colorCode, QStringLiteral("24"));
    QCOMPARE(widget<QComboBox>("cb_combobox")->currentText(), QStringLiteral("TrueColor"));
    for (const auto &[value, name] : pageWidgets) {
        // Qualities 100, boxes checked, but animation as the form builds it.
        const char *expected = Settings::entry(value).form == Settings::Form::Integer ? "100"
            : value == Settings::SwfAnimate                                           ? "unchecked"
                                                                                      : "checked";
        QCOMPARE(state(name), QLatin1String(expected));
    }
    for (const char *name : switchWidgets)
        QCOMPARE(state(name), QStringLiteral("unchecked"));
    QCOMPARE(state("ch_swf_protect"), QStringLiteral("unchecked"));
    QVERIFY(widget<QRadioButton>("rb_pefix_custom")->isChecked());
    QVERIFY(widget<QLineEdit>("le_pr_custom")->isEnabled());
    QCOMPARE(state("le_filename"), QStringLiteral("Document1"));
    QVERIFY(job.pdf.userPassword.isEmpty() && job.pdf.ownerPassword.isEmpty());
    QVERIFY(job.pdf.title.isEmpty() && job.pdf.producer.isEmpty());
    QVERIFY(!job.pdf.protect && !job.pdf.permissions.print && !job.pdf.permissions.highPrint);
    QCOMPARE(job.extension(Formats::Html), QStringLiteral("html"));
    QCOMPARE(job.extension(Formats::Excel), QStringLiteral("xls"));
    QVERIFY(!job.allUsers && !job.saveAsOnly);
    QCOMPARE(QApplication::style()->name(), QStringLiteral("fusion"));
    // Loading only reads.
    QVERIFY(writes.isEmpty());
    QVERIFY(!QFile::exists(m_dir->filePath("user")) && !QFile::exists(m_dir->filePath("machine")));
}

void tst_LoadSave::loading_data()
{
    QTest::addColumn<QString>("user"); // values in the user key
    QTest::addColumn<QString>("machine"); // values in the machine key
    QTest::addColumn<bool>("djvu"); // converter present
    QTest::addColumn<QString>("expected"); // "what=state; ..." as observe() reports it

    // One stored text in the five kinds of switch: converted, typed, and compared with "true".
    const auto flags = [](const char *text) {
        return QString::fromLatin1("multipage_pdf=%1\nload_ext_app=%1\npdf_protect=%1\n"
                                   "extract_text=%1\nchDialog_SaveAs=%1")
            .arg(QLatin1String(text));
    };
    const QString all = QStringLiteral("settings_for_all_users=");

    // clang-format off
    QTest::newRow("pdf")                << "format=pdf"  << "" << false << "format=pdf; page=7";
    QTest::newRow("capital PDF")        << "format=PDF"  << "" << false << "format=jpg; page=2";
    QTest::newRow("djvu, no converter") << "format=djvu" << "" << false << "format=jpg; page=2";
    // The DjVu page is asked for as index 12, which the tab widget ignores.
    QTest::newRow("djvu, converter")    << "format=djvu" << "" << true  << "format=djvu; page=6";

    QTest::newRow("tif JPEG 8")  << "format=tif\nformat_ext=JPEG\nimage_color=8" << "" << false << "rows=1/2; colour=8";
    QTest::newRow("bmp 24g")     << "format=bmp\nimage_color=24g"                << "" << false << "rows=2/4; colour=24g";
    QTest::newRow("pdf 24g")     << "format=pdf\nimage_color=24g"                << "" << false << "rows=0/2; colour=24g";
    QTest::newRow("pdf unknown") << "format=pdf\nimage_color=x"                  << "" << false << "rows=1/2; colour=x";
    // SWF is current from the start: the list keeps the form's order TrueColor, Grayscale.
    QTest::newRow("swf 24g")     << "format=swf\nimage_color=24g"                << "" << false << "rows=0/2; colour=24g";
    QTest::newRow("swf 24")      << "format=swf\nimage_color=24"                 << "" << false << "rows=1/2; colour=24g";
    // A row beyond the list is left to the combo box; the code is not rewritten.
    QTest::newRow("gif 24")      << "format=gif\nimage_color=24"                 << "" << false << "rows=-1/3; colour=24";
    QTest::newRow("tif G4 8")    << "format=tif\nformat_ext=G4\nimage_color=8"   << "" << false << "rows=-1/1; colour=8";

    QTest::newRow("true")  << flags("true")  << "" << false << "ch_multipage_pdf=checked; ch_exe=checked; protect=true; cd_extract_text=checked; saveAsOnly=true";
    QTest::newRow("TRUE")  << flags("TRUE")  << "" << false << "ch_multipage_pdf=checked; ch_exe=checked; protect=true; cd_extract_text=unchecked; saveAsOnly=false";
    QTest::newRow("FaLsE") << flags("FaLsE") << "" << false << "ch_multipage_pdf=unchecked; ch_exe=unchecked; protect=false; cd_extract_text=unchecked";
    QTest::newRow("0")     << flags("0")     << "" << false << "ch_multipage_pdf=unchecked; ch_exe=unchecked; protect=false";
    QTest::newRow("empty") << flags("")      << "" << false << "ch_multipage_pdf=unchecked; ch_exe=unchecked; protect=false";

    QTest::newRow("folder without separator") << "path=/out"                             << "" << false << "le_filename=/outDocument1";
    // "pw" scrambled: p, 'p' - 0, w, 'w' - 1.
    QTest::newRow("password, protected")      << "protect_swf=ppwv\nb_protect_swf=true"  << "" << false << "le_swf_protect=pw; ch_swf_protect=checked";
    QTest::newRow("password, unprotected")    << "protect_swf=ppwv\nb_protect_swf=false" << "" << false << "le_swf_protect=pw; ch_swf_protect=unchecked";
    QTest::newRow("first page numbering")     << "prefix_firstpage=true"                 << "" << false << "rb_pefix_1=checked; rb_pefix_custom=unchecked; customEnabled=false";
    QTest::newRow("quality too high")         << "q_jpg=500"                             << "" << false << "spb_q_jpg=100";
    QTest::newRow("quality not a number")     << "q_jpg=abc"                             << "" << false << "spb_q_jpg=1";

    QTest::newRow("machine says all")   << "format=gif" << all + "true\nformat=pdf"  << false << "allUsers=true; format=pdf";
    QTest::newRow("all, nothing there") << "format=gif" << all + "1"                 << false << "allUsers=true; format=tif";
    QTest::newRow("machine says no")    << ""           << all + "false\nformat=pdf" << false << "allUsers=false; format=tif";
    QTest::newRow("only user says all") << all + "true\nformat=gif" << "format=pdf"  << false << "allUsers=false; format=gif";

    QTest::newRow("unknown style")       << "style=Motif"          << "" << false << "style=fusion";
    QTest::newRow("lower case, by name") << "style=windows"        << "" << false << "style=windows";
    QTest::newRow("Windows")             << "style=Windows"        << "" << false << "style=windowsmodernstyle";
    QTest::newRow("inside a word")       << "style=MyWindowsTheme" << "" << false << "style=windowsmodernstyle";
    // clang-format on
}

void tst_LoadSave::loading()
{
    QFETCH(QString, user);
    QFETCH(QString, machine);
    QFETCH(bool, djvu);
    QFETCH(QString, expected);
    writeFile(SettingsKey::fileName(SettingsScope::Machine), "[General]\n" + machine.toUtf8());
    open(user.toUtf8(), djvu);
    for (const QString &pair : expected.split(QStringLiteral("; "))) {
        const QString what = pair.section(QLatin1Char('='), 0, 0);
        QCOMPARE(what + QLatin1Char('=') + observe(what), pair);
    }
}

QString tst_LoadSave::observe(const QString &what) const
{
    const JobSettings &job = jobSettings();
    const auto yesNo
        = [](bool on) { return on ? QStringLiteral("true") : QStringLiteral("false"); };
    const QComboBox *colours = widget<QComboBox>("cb_combobox");
    if (what == QLatin1String("format"))
        return job.formatToken;
    if (what == QLatin1String("colour"))
        return job.colorCode;
    if (what == QLatin1String("page"))
        return QString::number(widget<QTabWidget>("tabWidget")->currentIndex());
    if (what == QLatin1String("rows"))
        return QStringLiteral("%1/%2").arg(colours->currentIndex()).arg(colours->count());
    if (what == QLatin1String("protect"))
        return yesNo(job.pdf.protect);
    if (what == QLatin1String("saveAsOnly"))
        return yesNo(job.saveAsOnly);
    if (what == QLatin1String("allUsers"))
        return yesNo(job.allUsers);
    if (what == QLatin1String("customEnabled"))
        return yesNo(widget<QLineEdit>("le_pr_custom")->isEnabled());
    if (what == QLatin1String("style"))
        return QApplication::style()->name();
    return state(what.toLatin1().constData());
}

void tst_LoadSave::oneSidedValuesNeverSwitchOff()
{
    open("swf_animate=true\nchDialog_SaveAs=true\nmultipage_tiff=true");
    {
        SettingsKey key(SettingsScope::User);
        key.setFlag(Settings::SwfAnimate, false);
        key.setFlag(Settings::ChDialogSaveAs, false);
        key.setFlag(Settings::MultipageTiff, false);
    }
    m_window->loadSettings();
    QCOMPARE(state("ch_swf_animate"), QStringLiteral("checked"));
    QVERIFY(jobSettings().saveAsOnly);
    QCOMPARE(state("ch_multipage_tiff"), QStringLiteral("unchecked"));
}

void tst_LoadSave::saveOrder_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("compression"); // false: no compression button checked
    QTest::addColumn<bool>("protect"); // ch_swf_protect
    QTest::addColumn<QString>("password"); // le_swf_protect
    QTest::addColumn<bool>("showDialog"); // cd_dialog
    QTest::addColumn<QString>("pageValues"); // written between Path and the common tail

    // clang-format off
    QTest::newRow("bmp")            << 0  << true  << false << ""   << true  << "format";
    QTest::newRow("bmp, no dialog") << 0  << true  << false << ""   << false << "chDialog format";
    QTest::newRow("jpeg")           << 2  << true  << false << ""   << true  << "q_jpg format";
    QTest::newRow("tiff")           << 4  << true  << false << ""   << true  << "q_tif format_ext multipage_tiff format";
    QTest::newRow("tiff, none")     << 4  << false << false << ""   << true  << "q_tif multipage_tiff format";
    QTest::newRow("gif")            << 5  << true  << false << ""   << true  << "format";
    QTest::newRow("swf protected")  << 6  << true  << true  << "pw" << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf format";
    QTest::newRow("swf, no pw")     << 6  << true  << true  << ""   << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf protect_swf format";
    QTest::newRow("swf off, pw")    << 6  << true  << false << "pw" << true  << "q_swf multipage_swf swf_text swf_animate b_protect_swf format";
    QTest::newRow("pdf")            << 7  << true  << false << ""   << true  << "q_pdf multipage_pdf pdf_text format";
    QTest::newRow("html")           << 10 << true  << false << ""   << true  << "q_htm format multipage_htm htm_text";
    QTest::newRow("djvu")           << 11 << true  << false << ""   << true  << "format multipage_djvu";
    // clang-format on
}

void tst_LoadSave::saveOrder()
{
    QFETCH(int, page);
    QFETCH(bool, compression);
    QFETCH(bool, protect);
    QFETCH(QString, password);
    QFETCH(bool, showDialog);
    QFETCH(QString, pageValues);
    open("chDialog=keep", true);
    {
        // Every per-format value holds a mark that only a write of its own page may replace.
        SettingsKey key(SettingsScope::User);
        for (const Settings::Entry &row : Settings::entries()) {
            if (row.written == Settings::Written::PageCurrent)
                key.setValue(QLatin1String(row.name), QStringLiteral("mark"));
        }
    }
    writes.clear();
    widget<QTabWidget>("tabWidget")->setCurrentIndex(page);
    // The form starts with ZIP checked; only code can leave all six unchecked.
    for (auto *button : widget<QWidget>("groupBox_4")->findChildren<QRadioButton *>()) {
        button->setAutoExclusive(compression);
        button->setChecked(compression && button->objectName() == QLatin1String("rb_3"));
    }
    widget<QGroupBox>("ch_swf_protect")->setChecked(protect);
    widget<QLineEdit>("le_swf_protect")->setText(password);
    widget<QCheckBox>("cd_dialog")->setChecked(showDialog);
    widget<QLineEdit>("le_filename")->setText(m_dir->filePath("out/report.pdf"));

    m_window->saveAllSettings();

    const QStringList expected
        = QStringList {"isabort", "newfilename", "Path"} + words(pageValues) + words(commonTail);
    QStringList names;
    for (const Write &write : writes) {
        QCOMPARE(write.scope, SettingsScope::User);
        names << write.name;
    }
    QCOMPARE(names, expected);
    QCOMPARE(writes.first().value, QStringLiteral("false"));
    QCOMPARE(stored(SettingsScope::User, "format"), Formats::byIndex(page)->token);
    QCOMPARE(stored(SettingsScope::User, "Path"), m_dir->filePath("out/"));
    QCOMPARE(stored(SettingsScope::User, "newfilename"), QStringLiteral("report"));
    QCOMPARE(stored(SettingsScope::User, "chDialog"), showDialog ? "keep" : "false");
    if (expected.contains("format_ext"))
        QCOMPARE(stored(SettingsScope::User, "format_ext"), QStringLiteral("G3"));
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
    const QString folder = m_dir->filePath("out") + QDir::separator();
    open(QByteArray(), true);
    JobSettings &job = jobSettings();

    // Every value this page writes, and every shared one, away from its default.
    widget<QTabWidget>("tabWidget")->setCurrentIndex(page);
    QStringList names(std::begin(switchWidgets), std::end(switchWidgets));
    for (const auto &[value, name] : pageWidgets) {
        names << QLatin1String(name);
        if (!Settings::pageValues(page).contains(value))
            continue;
        if (auto *box = qobject_cast<QSpinBox *>(widget<QWidget>(name)))
            box->setValue(40 + page);
        else
            widget<QCheckBox>(name)->toggle();
    }
    for (const char *name : switchWidgets)
        widget<QCheckBox>(name)->setChecked(true);
    widget<QRadioButton>("rb_packbits")->setChecked(true);
    widget<QGroupBox>("ch_swf_protect")->setChecked(true);
    widget<QLineEdit>("le_swf_protect")->setText(QStringLiteral("sw\u00e9f=;"));
    widget<QRadioButton>("rb_pefix_1")->setChecked(true);
    widget<QLineEdit>("le_pr_custom")->setText(QStringLiteral("0042"));
    widget<QLineEdit>("le_filename")->setText(folder + QStringLiteral("report.pdf"));
    // A code that this page's list shows as itself, so loading keeps it.
    const bool twoModes = Formats::colorListFor(page, QString()).items.size() == 2;
    job.colorCode = twoModes ? QStringLiteral("24g") : QStringLiteral("1");
    job.pdf = {QStringLiteral("T\u00eftle"), QStringLiteral("Author"), QStringLiteral("Subject"),
        QStringLiteral("k1, k2"), QStringLiteral("Creator"), QStringLiteral("Producer"),
        QStringLiteral("us\u4e2der"), QStringLiteral("\"owner\""), true,
        {true, false, true, false, true, false, true, false}};
    QStringList before;
    for (const QString &name : names)
        before << state(name.toLatin1().constData());
    const JobSettings saved = job;

    m_window->saveAllSettings();
    m_window.reset();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document2");
    open(QByteArray(), true);

    QStringList after;
    for (const QString &name : names)
        after << state(name.toLatin1().constData());
    QCOMPARE(after, before);
    QCOMPARE(job.formatToken, QLatin1String(Formats::byIndex(page)->token));
    QCOMPARE(state("le_filename"), folder + QStringLiteral("Document2"));
    QCOMPARE(job.colorCode, saved.colorCode);
    QCOMPARE(state("le_pr_custom"), QStringLiteral("0042"));
    QVERIFY(widget<QRadioButton>("rb_pefix_1")->isChecked());
    QCOMPARE(job.pdf.title, saved.pdf.title);
    QCOMPARE(job.pdf.keywords, saved.pdf.keywords);
    QCOMPARE(job.pdf.producer, saved.pdf.producer);
    QCOMPARE(job.pdf.userPassword, saved.pdf.userPassword);
    QCOMPARE(job.pdf.ownerPassword, saved.pdf.ownerPassword);
    QVERIFY(job.pdf.protect && job.pdf.permissions.print && job.pdf.permissions.assemble);
    QVERIFY(!job.pdf.permissions.edit && !job.pdf.permissions.highPrint);
    const bool swf = page == Formats::Swf;
    QCOMPARE(m_window->compressionCode(), page == Formats::Tiff ? "PACKBITS" : "LZW");
    QCOMPARE(widget<QGroupBox>("ch_swf_protect")->isChecked(), swf);
    QCOMPARE(state("le_swf_protect"), swf ? QStringLiteral("sw\u00e9f=;") : QString());
}

void tst_LoadSave::allUsersSaveBothKeys()
{
    writeFile(SettingsKey::fileName(SettingsScope::Machine),
        "[General]\nsettings_for_all_users=true\nformat=pdf\n");
    open();
    widget<QLineEdit>("le_filename")->setText(m_dir->filePath("report"));
    jobSettings().pdf.userPassword = QStringLiteral("secret");
    m_window->saveAllSettings();

    // One complete save per key, the machine key first, with the same values.
    const qsizetype half = writes.size() / 2;
    QCOMPARE(writes.size(), 2 * half);
    for (qsizetype i = 0; i < half; ++i) {
        QCOMPARE(writes.at(i).scope, SettingsScope::Machine);
        QCOMPARE(writes.at(half + i).scope, SettingsScope::User);
        QCOMPARE(writes.at(half + i).name, writes.at(i).name);
        QCOMPARE(writes.at(half + i).value, writes.at(i).value);
        QCOMPARE(stored(SettingsScope::User, writes.at(i).name),
            stored(SettingsScope::Machine, writes.at(i).name));
    }
}

void tst_LoadSave::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("obstacle"); // how the user file resists
    QTest::addColumn<int>("quality"); // spb_q_jpg after loading

    // clang-format off
    QTest::newRow("garbage")          << QByteArray("\x00\xff[=]\x80\n\x01\x02", 10) << ""                 << 100;
    QTest::newRow("truncated")        << QByteArray("[General]\nq_jpg=4")            << ""                 << 4;
    QTest::newRow("wrong types")      << QByteArray("[General]\nq_jpg=@Variant(\\0\\0\\0\\x7f)\nformat=@ByteArray(pdf)") << "" << 1;
    QTest::newRow("file is a folder") << QByteArray()                                << "folder"           << 100;
    QTest::newRow("unreadable")       << QByteArray("[General]\nq_jpg=4")            << "unreadable"       << 100;
    QTest::newRow("read-only file")   << QByteArray("[General]\nq_jpg=4")            << "read-only file"   << 4;
    QTest::newRow("read-only folder") << QByteArray("[General]\nq_jpg=4")            << "read-only folder" << 4;
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
    }
    if (obstacle == QLatin1String("unreadable"))
        QFile::setPermissions(file, QFileDevice::WriteOwner);
    if (obstacle == QLatin1String("read-only file"))
        QFile::setPermissions(file, QFileDevice::ReadOwner);
    if (obstacle == QLatin1String("read-only folder"))
        QFile::setPermissions(
            QFileInfo(file).absolutePath(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);

    open();
    QCOMPARE(widget<QSpinBox>("spb_q_jpg")->value(), quality);
    widget<QLineEdit>("le_filename")->setText(m_dir->filePath("report"));
    m_window->saveAllSettings();
    if (obstacle.isEmpty()) {
        QCOMPARE(stored(SettingsScope::User, "isabort"), QStringLiteral("false"));
    } else if (obstacle != QLatin1String("folder")) {
        // Nothing of what the file held is lost.
        QFile::setPermissions(QFileInfo(file).absolutePath(),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QFile::setPermissions(file, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QFile kept(file);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), content);
    }
}

QTEST_MAIN(tst_LoadSave)
#include "tst_loadsave.moc"
