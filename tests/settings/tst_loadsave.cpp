// SPDX-License-Identifier: GPL-3.0-or-later
#include "formats/formatcatalogue.h"
#include "settings/settingskey.h"
#include "tests/support/jobfixture.h"

#include <QTest>
#include <QtWidgets>

#include <unistd.h>

namespace {

QStringList writes; // "U name=value" or "M name=value", in the order handed to the store

// What every save writes after the values of the current page, in the driver's order.
const QString commonTail = QStringLiteral(
    "load_ext_app Mail_Delivery TCP_Delivery FTP_Delivery extract_text EnabledBackgroundText "
    "BackgroundEnable custom_number prefix_firstpage image_color pdf_user_pw pdf_owner_pw "
    "pdf_title pdf_author pdf_subject pdf_keywords pdf_creator pdf_producer pdf_protect "
    "pdf_protect_print pdf_protect_edit pdf_protect_copy pdf_protect_editnotes "
    "pdf_protect_fillandsign pdf_protect_accessible pdf_protect_assemble pdf_protect_highprint");

} // namespace

// Loading into and saving from the main window, against real INI files in a temporary folder.
class tst_LoadSave : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_job = std::make_unique<JobFixture>();
        QApplication::setStyle(QStringLiteral("fusion"));
        writes.clear();
        SettingsKey::setWriteObserver([](SettingsScope scope, const QString &name,
                                          const QVariant &value) {
            writes << (scope == SettingsScope::User ? "U " : "M ") + name + '=' + value.toString();
        });
    }
    void loading_data()
    {
        QTest::addColumn<QString>("user"); // values in the user key
        QTest::addColumn<QString>("machine"); // values in the machine key
        QTest::addColumn<bool>("djvu"); // converter present
        QTest::addColumn<QString>("expected"); // "what=state; ..." as observe() reports it

        // One stored text in the five kinds of switch: converted, typed, and compared with "true".
        const QString flags = QStringLiteral("multipage_pdf=%1\nload_ext_app=%1\npdf_protect=%"
                                             "1\nextract_text=%1\nchDialog_SaveAs=%1");
        const QString all = QStringLiteral("settings_for_all_users=");

        // clang-format off
        QTest::newRow("empty: format")   << "" << "" << false << "format=tif; page=4; rb_1=checked; colour=24";
        QTest::newRow("empty: pages")    << "" << "" << false << "spb_q_htm=100; spb_q_jpg=100; spb_q_tif=100; spb_q_swf=100; spb_q_pdf=100; ch_multipage_tiff=checked; ch_multipage_swf=checked; ch_multipage_pdf=checked; ch_multipage_htm=checked; ch_multipage_djvu=checked; rb_pdf_text=checked; rb_htm_text=checked; rb_swf_text=checked; ch_swf_animate=unchecked";
        QTest::newRow("empty: switches") << "" << "" << false << "ch_exe=unchecked; ch_email=unchecked; ch_tcp=unchecked; ch_ftp=unchecked; ch_text=unchecked; ch_image=unchecked; cd_extract_text=unchecked; ch_swf_protect=unchecked; le_swf_protect=";
        QTest::newRow("empty: job")      << "" << "" << false << "rb_pefix_custom=checked; customEnabled=true; le_filename=Document1; pdf=||||||||00000000; protect=false; allUsers=false; saveAsOnly=false; style=fusion";

        QTest::newRow("capital PDF")        << "format=PDF"  << "" << false << "format=jpg; page=2";
        QTest::newRow("djvu, no converter") << "format=djvu" << "" << false << "format=jpg; page=2";
        // The DjVu page is asked for as index 12, which the tab widget ignores.
        QTest::newRow("djvu, converter")    << "format=djvu\nmultipage_djvu=false" << "" << true  << "format=djvu; page=6; ch_multipage_djvu=unchecked";

        QTest::newRow("tif JPEG 8")  << "format=tif\nformat_ext=JPEG\nimage_color=8" << "" << false << "rows=1/2; colour=8";
        QTest::newRow("bmp 24g")     << "format=bmp\nimage_color=24g"                << "" << false << "rows=2/4; colour=24g";
        // SWF is current from the start: the list keeps the form's order TrueColor, Grayscale.
        QTest::newRow("swf 24g")     << "format=swf\nimage_color=24g"                << "" << false << "rows=0/2; colour=24g";
        QTest::newRow("swf 24")      << "format=swf\nimage_color=24"                 << "" << false << "rows=1/2; colour=24g";
        // A row beyond the list is left to the combo box; the code is not rewritten.
        QTest::newRow("gif 24")      << "format=gif\nimage_color=24"                 << "" << false << "rows=-1/3; colour=24";

        QTest::newRow("true")  << flags.arg("true")  << "" << false << "ch_multipage_pdf=checked; ch_exe=checked; protect=true; cd_extract_text=checked; saveAsOnly=true";
        QTest::newRow("TRUE")  << flags.arg("TRUE")  << "" << false << "ch_multipage_pdf=checked; ch_exe=checked; protect=true; cd_extract_text=unchecked; saveAsOnly=false";
        QTest::newRow("FaLsE") << flags.arg("FaLsE") << "" << false << "ch_multipage_pdf=unchecked; ch_exe=unchecked; protect=false; cd_extract_text=unchecked";
        // Switched on by an earlier load in the same run, these three stay on; an ordinary flag follows.
        QTest::newRow("one-sided") << "swf_animate=true\nchDialog_SaveAs=true\nmultipage_tiff=true|swf_animate=false\nchDialog_SaveAs=false\nmultipage_tiff=false" << "" << false << "ch_swf_animate=checked; saveAsOnly=true; ch_multipage_tiff=unchecked";

        QTest::newRow("folder without separator") << "path=/out"                             << "" << false << "le_filename=/outDocument1";
        // Names are matched without regard to case; the exact spelling wins over another.
        QTest::newRow("PATH")                     << "PATH=/upper/"                          << "" << false << "le_filename=/upper/Document1";
        QTest::newRow("PATH and path")            << "PATH=/a/\npath=/b/"                    << "" << false << "le_filename=/b/Document1";
        // "pw" scrambled: p, 'p' - 0, w, 'w' - 1.
        QTest::newRow("password, unprotected")    << "protect_swf=ppwv\nb_protect_swf=false" << "" << false << "le_swf_protect=pw; ch_swf_protect=unchecked";
        QTest::newRow("first page numbering")     << "prefix_firstpage=true"                 << "" << false << "rb_pefix_1=checked; rb_pefix_custom=unchecked; customEnabled=false";
        QTest::newRow("quality not a number")     << "q_jpg=abc"                             << "" << false << "spb_q_jpg=1";

        QTest::newRow("machine says all")   << "format=gif" << all + "true\nformat=pdf"  << false << "allUsers=true; format=pdf";
        QTest::newRow("all, nothing there") << "format=gif" << all + "1"                 << false << "allUsers=true; format=tif";
        QTest::newRow("only user says all") << all + "true\nformat=gif" << "format=pdf"  << false << "allUsers=false; format=gif";

        QTest::newRow("unknown style")       << "style=Motif"          << "" << false << "style=fusion";
        QTest::newRow("lower case, by name") << "style=windows"        << "" << false << "style=windows";
        QTest::newRow("inside a word")       << "style=MyWindowsTheme" << "" << false << "style=windowsmodernstyle";
        // clang-format on
    }
    void loading()
    {
        QFETCH(QString, user);
        QFETCH(QString, machine);
        QFETCH(bool, djvu);
        QFETCH(QString, expected);
        writeKey(m_job->machineFile(), machine);
        writeKey(m_job->userFile(), user.section('|', 0, 0));
        open(djvu);
        if (user.contains('|')) {
            writeKey(m_job->userFile(), user.section('|', 1));
            m_window->loadSettings();
        }
        for (const QString &pair : expected.split("; "))
            QCOMPARE(pair.section('=', 0, 0) + '=' + observe(pair.section('=', 0, 0)), pair);
        QVERIFY(writes.isEmpty()); // loading only reads
    }
    void saveAndReload_data()
    {
        QTest::addColumn<int>("page");
        // "none": no compression button checked, "protect", "pw", "no dialog", "all users"
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("pageValues"); // written between Path and the common tail

        // clang-format off
        QTest::newRow("jpeg")           << 2  << ""           << "q_jpg format";
        QTest::newRow("tiff")           << 4  << ""           << "q_tif format_ext multipage_tiff format";
        QTest::newRow("swf protected")  << 6  << "protect pw" << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf format";
        QTest::newRow("pdf")            << 7  << ""           << "q_pdf multipage_pdf pdf_text format";
        QTest::newRow("html")           << 10 << ""           << "q_htm format multipage_htm htm_text";
        QTest::newRow("djvu")           << 11 << ""           << "format multipage_djvu";
        QTest::newRow("bmp, no dialog") << 0  << "no dialog"  << "chDialog format";
        QTest::newRow("bmp, all users") << 0  << "all users"  << "format";
        QTest::newRow("tiff, none")     << 4  << "none"       << "q_tif multipage_tiff format";
        QTest::newRow("swf, no pw")     << 6  << "protect"    << "q_swf multipage_swf swf_text swf_animate b_protect_swf protect_swf protect_swf format";
        QTest::newRow("swf off, pw")    << 6  << "pw"         << "q_swf multipage_swf swf_text swf_animate b_protect_swf format";
        // clang-format on
    }
    // The writes of a save in order, and what a new job loads from them.
    void saveAndReload()
    {
        QFETCH(int, page);
        QFETCH(QString, setup);
        QFETCH(QString, pageValues);
        if (setup.contains("all users"))
            writeKey(m_job->machineFile(), "settings_for_all_users=true");
        writeKey(m_job->userFile(), "PATH=/old/"); // the write leaves one spelling
        open(true);
        JobSettings &job = jobSettings();
        auto *tabs = widget<QTabWidget>("tabWidget");
        tabs->setCurrentIndex(page);
        // Every control of this page and every shared value away from its default.
        for (auto *box : tabs->currentWidget()->findChildren<QSpinBox *>())
            box->setValue(40 + page);
        for (auto *box : tabs->currentWidget()->findChildren<QCheckBox *>())
            box->toggle();
        for (const QString &name :
            words("ch_exe ch_email ch_tcp ch_ftp ch_text ch_image cd_extract_text rb_pefix_1"))
            widget<QAbstractButton>(name)->setChecked(true);
        widget<QLineEdit>("le_pr_custom")->setText(QStringLiteral("0042"));
        widget<QLineEdit>("le_filename")->setText(m_job->path("out/report.pdf"));
        // A code that this page's list shows as itself, so loading keeps it.
        const bool twoModes = Formats::colorListFor(page, QString()).items.size() == 2;
        job.colorCode = twoModes ? QStringLiteral("24g") : QStringLiteral("1");
        job.pdf = {QStringLiteral("T\u00eftle"), "Author", "Subject", "k1, k2", "Creator",
            "Producer", QStringLiteral("us\u4e2der"), "\"owner\"", true,
            {true, false, true, false, true, false, true, false}};
        // G3 on the TIFF page; only code can leave all six compressions unchecked.
        for (auto *button : tabs->currentWidget()->findChildren<QRadioButton *>()) {
            button->setAutoExclusive(!setup.contains("none"));
            button->setChecked(!setup.contains("none") && button->objectName() == "rb_3");
        }
        widget<QGroupBox>("ch_swf_protect")->setChecked(setup.contains("protect"));
        widget<QLineEdit>("le_swf_protect")->setText(setup.contains("pw") ? "sw\u00e9f=;" : "");
        widget<QCheckBox>("cd_dialog")->setChecked(!setup.contains("no dialog"));
        writes.clear();
        m_window->saveAllSettings();

        // Values not named here are not written: those of other pages keep what the key holds.
        // With all users, one complete save per key, the machine key first, with the same values.
        const QString names = "isabort newfilename Path " + pageValues + ' ' + commonTail;
        const QStringList user = writes.filter(QRegularExpression("^U "));
        QCOMPARE(QStringList(user).replaceInStrings(QRegularExpression("=.*"), "").join(' '),
            "U " + words(names).join(" U "));
        QStringList machine = setup.contains("all users") ? user : QStringList();
        QCOMPARE(writes, machine.replaceInStrings(QRegularExpression("^U "), "M ") + user);
        QCOMPARE(user.first(), "U isabort=false");
        QVERIFY(user.contains("U chDialog=false") == names.contains("chDialog"));
        QVERIFY(!JobFixture::bytesOf(m_job->userFile()).contains("PATH"));

        // The other rows leave values that are deliberately not saved; DjVu's page is not opened.
        if ((!setup.isEmpty() && setup != "protect pw") || page == 11)
            return;
        // A new job shows every value as saved, so saving it again writes the same.
        const QStringList saved = writes;
        m_window.reset();
        job = JobSettings();
        job.newFileName = QStringLiteral("Document2");
        open(true);
        QCOMPARE(observe("le_filename"), m_job->path("out/Document2"));
        widget<QLineEdit>("le_filename")->setText(m_job->path("out/report.pdf"));
        writes.clear();
        m_window->saveAllSettings();
        QCOMPARE(writes, saved);
    }
    // Garbled, mistyped, folder-shaped and read-only files are opened and printed by the
    // reliability suite; an unreadable one is not.
    void unreadableFileGivesDefaults()
    {
        if (::geteuid() == 0)
            QSKIP("root reads regardless of permissions");
        writeKey(m_job->userFile(), "q_jpg=4");
        QFile::setPermissions(m_job->userFile(), QFileDevice::WriteOwner);
        open();
        QCOMPARE(observe("spb_q_jpg"), "100");
        m_window->saveAllSettings();
        QFile::setPermissions(m_job->userFile(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QCOMPARE(JobFixture::bytesOf(m_job->userFile()), "q_jpg=4");
    }

private:
    static QStringList words(const QString &list) { return list.split(' ', Qt::SkipEmptyParts); }
    static QString yesNo(bool on) { return QVariant(on).toString(); }
    void open(bool djvu = false) { m_window = m_job->createWindow(djvu); }
    void writeKey(const QString &file, const QString &ini) { m_job->writeFile(file, ini.toUtf8()); }
    // A missing widget crashes the test, which is a failure too.
    template<class T = QWidget>
    T *widget(const QString &name) const
    {
        return m_window->findChild<T *>(name);
    }
    // The state of a widget by object name, or of a job value by a short name.
    QString observe(const QString &what) const
    {
        const JobSettings &job = jobSettings();
        const PdfSettings &pdf = job.pdf;
        const PdfPermissions &p = pdf.permissions;
        const auto *colours = widget<QComboBox>("cb_combobox");
        QStringList pdfValues {pdf.title, pdf.author, pdf.subject, pdf.keywords, pdf.creator,
            pdf.producer, pdf.userPassword, pdf.ownerPassword, QString()};
        for (bool on : {p.print, p.edit, p.copy, p.editNotes, p.fillAndSign, p.accessible,
                 p.assemble, p.highPrint})
            pdfValues.last() += on ? '1' : '0';
        const QHash<QString, QString> values = {{"format", job.formatToken},
            {"colour", job.colorCode},
            {"page", QString::number(widget<QTabWidget>("tabWidget")->currentIndex())},
            {"rows", QStringLiteral("%1/%2").arg(colours->currentIndex()).arg(colours->count())},
            {"protect", yesNo(pdf.protect)}, {"saveAsOnly", yesNo(job.saveAsOnly)},
            {"allUsers", yesNo(job.allUsers)},
            {"customEnabled", yesNo(widget("le_pr_custom")->isEnabled())},
            {"style", QApplication::style()->name()}, {"pdf", pdfValues.join('|')}};
        if (values.contains(what))
            return values.value(what);
        QWidget *shown = widget(what);
        if (auto *box = qobject_cast<QSpinBox *>(shown))
            return QString::number(box->value());
        if (auto *edit = qobject_cast<QLineEdit *>(shown))
            return edit->text();
        return shown->property("checked").toBool() ? "checked" : "unchecked"; // button or group
    }

    std::unique_ptr<JobFixture> m_job;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_LoadSave)
#include "tst_loadsave.moc"
