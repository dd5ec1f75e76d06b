// SPDX-License-Identifier: GPL-3.0-or-later
// Loading into and saving from the main window against real INI files: every value the driver
// reads, by its own widget or job value (the PDF dialog's shown too), in both directions; the
// loading rules; the order of writes; the passwords' scrambling through the file.
#include "pdf/pdfprotect.h"
#include "settings/passwordscrambling.h"
#include "settings/settingskey.h"
#include "tests/support/findwidget.h"
#include "tests/support/jobfields.h"
#include "tests/support/jobfixture.h"

#include <QTest>
#include <QtWidgets>

Q_DECLARE_METATYPE(Settings::Value)

namespace {

using Shown = FormState;

// The format pages by tab index.
enum Page { Bmp, Png, Jpeg, Jp2, Tiff, Gif, Swf, Pdf, Rtf, Xls, Html, Djvu };

struct Write
{
    SettingsScope scope;
    QString name;
    QVariant value;
};
QList<Write> writes; // in the order handed to the store

// What every save writes after the values of the current page, in the driver's order.
const QStringList commonTail
    = {"load_ext_app", "Mail_Delivery", "TCP_Delivery", "FTP_Delivery", "extract_text",
        "EnabledBackgroundText", "BackgroundEnable", "custom_number", "prefix_firstpage",
        "image_color", "pdf_user_pw", "pdf_owner_pw", "pdf_title", "pdf_author", "pdf_subject",
        "pdf_keywords", "pdf_creator", "pdf_producer", "pdf_protect", "pdf_protect_print",
        "pdf_protect_edit", "pdf_protect_copy", "pdf_protect_editnotes", "pdf_protect_fillandsign",
        "pdf_protect_accessible", "pdf_protect_assemble", "pdf_protect_highprint"};

} // namespace

class tst_LoadSave : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window.reset();
        m_job = std::make_unique<JobFixture>();
        QApplication::setStyle(QStringLiteral("fusion"));
        writes.clear();
        SettingsKey::setWriteObserver(
            [](SettingsScope scope, const QString &name, const QVariant &value) {
                writes.append({scope, name, value});
            });
    }

    // Every value of the driver's contract alone: its exact name, its default as loading shows
    // it, a distinct stored text that shows in exactly its own widget or job value, and, showing
    // the same on a new job, exactly its own value written in its stored form ("(int)" and
    // "(bool)" mark the typed ones). "PDF " names a widget of the PDF dialog, which then gives
    // the job its values.
    void everyValue_data()
    {
        QTest::addColumn<Settings::Value>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored"); // other values stored with it on further lines
        QTest::addColumn<int>("page"); // current while saving
        QTest::addColumn<QString>("item"); // the widget or job value it feeds; empty: none
        QTest::addColumn<QString>("byDefault"); // what the item shows when nothing is stored
        QTest::addColumn<Shown>("loaded"); // all that differs when it is stored
        QTest::addColumn<Shown>("written"); // all values written otherwise once shown

        using namespace Settings;
        const auto row
            = [](const char *name, Value value, int page, const char *item, const char *byDefault,
                  const char *stored, const Shown &loaded, const Shown &written) {
                  QTest::newRow(name) << value << QString(name) << QString(stored) << page
                                      << QString(item) << QString(byDefault) << loaded << written;
              };
        // clang-format off
        row("format",           Format,        Bmp,  "formatToken",       "tif",       "png",   {{"formatToken", "png"}, {"tabWidget", "1"}, {"selectedFilter", "PNG Format (*.png)"}}, {{"format", "png"}});
        row("format_ext",       FormatExt,     Tiff, "compression",       "LZW",       "ZIP",   {{"compression", "ZIP"}, {"rb_1", "unchecked"}, {"rb_zip", "checked"}}, {{"format_ext", "ZIP"}});
        row("q_htm",            QHtm,          Html, "spb_q_htm",         "100",       "31",    {{"spb_q_htm", "31"}}, {{"q_htm", "31 (int)"}});
        row("q_jpg",            QJpg,          Jpeg, "spb_q_jpg",         "100",       "32",    {{"spb_q_jpg", "32"}}, {{"q_jpg", "32 (int)"}});
        row("q_tif",            QTif,          Tiff, "spb_q_tif",         "100",       "33",    {{"spb_q_tif", "33"}}, {{"q_tif", "33 (int)"}});
        row("q_swf",            QSwf,          Swf,  "spb_q_swf",         "100",       "34",    {{"spb_q_swf", "34"}}, {{"q_swf", "34 (int)"}});
        row("q_pdf",            QPdf,          Pdf,  "spb_q_pdf",         "100",       "35",    {{"spb_q_pdf", "35"}}, {{"q_pdf", "35 (int)"}});
        row("multipage_tiff",   MultipageTiff, Tiff, "ch_multipage_tiff", "checked",   "false", {{"ch_multipage_tiff", "unchecked"}}, {{"multipage_tiff", "false"}});
        row("multipage_swf",    MultipageSwf,  Swf,  "ch_multipage_swf",  "checked",   "false", {{"ch_multipage_swf", "unchecked"}}, {{"multipage_swf", "false"}});
        row("multipage_pdf",    MultipagePdf,  Pdf,  "ch_multipage_pdf",  "checked",   "false", {{"ch_multipage_pdf", "unchecked"}}, {{"multipage_pdf", "false"}});
        row("multipage_htm",    MultipageHtm,  Html, "ch_multipage_htm",  "checked",   "false", {{"ch_multipage_htm", "unchecked"}}, {{"multipage_htm", "false"}});
        row("multipage_djvu",   MultipageDjvu, Djvu, "ch_multipage_djvu", "checked",   "false", {{"ch_multipage_djvu", "unchecked"}}, {{"multipage_djvu", "false"}});
        // Driver contract: the extensions are only ever read; HTML and MS Excel differ from their tokens.
        row("ext_htm",   ExtHtm,   Bmp, "extensions[Formats::Html]",     "html", "xhtml", {{"extensions[Formats::Html]", "xhtml"}}, {});
        row("ext_bmp",   ExtBmp,   Bmp, "extensions[Formats::Bmp]",      "bmp",  "dib",   {{"extensions[Formats::Bmp]", "dib"}}, {});
        row("ext_png",   ExtPng,   Bmp, "extensions[Formats::Png]",      "png",  "apng",  {{"extensions[Formats::Png]", "apng"}}, {});
        row("ext_jpg",   ExtJpg,   Bmp, "extensions[Formats::Jpeg]",     "jpg",  "jpeg",  {{"extensions[Formats::Jpeg]", "jpeg"}}, {});
        row("ext_jp2",   ExtJp2,   Bmp, "extensions[Formats::Jpeg2000]", "jp2",  "j2k",   {{"extensions[Formats::Jpeg2000]", "j2k"}}, {});
        row("ext_tif",   ExtTif,   Bmp, "extensions[Formats::Tiff]",     "tif",  "tiff",  {{"extensions[Formats::Tiff]", "tiff"}}, {});
        row("ext_pdf",   ExtPdf,   Bmp, "extensions[Formats::Pdf]",      "pdf",  "pdfa",  {{"extensions[Formats::Pdf]", "pdfa"}}, {});
        row("ext_swf",   ExtSwf,   Bmp, "extensions[Formats::Swf]",      "swf",  "flash", {{"extensions[Formats::Swf]", "flash"}}, {});
        row("ext_rtf",   ExtRtf,   Bmp, "extensions[Formats::Rtf]",      "rtf",  "doc",   {{"extensions[Formats::Rtf]", "doc"}}, {});
        row("ext_gif",   ExtGif,   Bmp, "extensions[Formats::Gif]",      "gif",  "giff",  {{"extensions[Formats::Gif]", "giff"}}, {});
        row("ext_djvu",  ExtDjvu,  Bmp, "extensions[Formats::Djvu]",     "djvu", "djv",   {{"extensions[Formats::Djvu]", "djv"}}, {});
        row("ext_msxml", ExtMsxml, Bmp, "extensions[Formats::Excel]",    "xls",  "xlsx",  {{"extensions[Formats::Excel]", "xlsx"}}, {});
        row("pdf_text",         PdfText,       Pdf,  "rb_pdf_text",       "checked",   "false", {{"rb_pdf_text", "unchecked"}}, {{"pdf_text", "false"}});
        row("htm_text",         HtmText,       Html, "rb_htm_text",       "checked",   "false", {{"rb_htm_text", "unchecked"}}, {{"htm_text", "false"}});
        row("swf_text",         SwfText,       Swf,  "rb_swf_text",       "checked",   "false", {{"rb_swf_text", "unchecked"}}, {{"swf_text", "false"}});
        row("swf_animate",      SwfAnimate,    Swf,  "ch_swf_animate",    "unchecked", "true",  {{"ch_swf_animate", "checked"}}, {{"swf_animate", "true"}});
        // "pw" scrambled is p, 'p' - 0, w, 'w' - 1. Driver contract: typed with the protection
        // off, the stored password is kept; switched on, both values follow.
        row("protect_swf",      ProtectSwf,    Swf,  "le_swf_protect",    "",          "ppwv",  {{"le_swf_protect", "pw"}}, {{"protect_swf", "(gone)"}});
        row("b_protect_swf",    BProtectSwf,   Swf,  "ch_swf_protect",    "unchecked", "true\nprotect_swf=ppwv",  {{"le_swf_protect", "pw"}, {"ch_swf_protect", "checked"}}, {{"b_protect_swf", "true"}, {"protect_swf", "ppwv"}});
        // Driver contract: read as "path" and written as "Path".
        row("path",             PathRead,      Bmp,  "le_filename",       "Document1", "/out/", {{"le_filename", "/out/Document1"}, {"outputFolder", "/out/"}}, {{"Path", "/out/"}});
        row("pdf_title",        PdfTitle,      Bmp,  "pdf.title",         "",          "Title",    {{"pdf.title", "Title"}, {"PDF le_pdf_title", "Title"}}, {{"pdf_title", "Title"}});
        row("pdf_author",       PdfAuthor,     Bmp,  "pdf.author",        "",          "Author",   {{"pdf.author", "Author"}, {"PDF le_pdf_author", "Author"}}, {{"pdf_author", "Author"}});
        row("pdf_subject",      PdfSubject,    Bmp,  "pdf.subject",       "",          "Subject",  {{"pdf.subject", "Subject"}, {"PDF le_pdf_subject", "Subject"}}, {{"pdf_subject", "Subject"}});
        row("pdf_keywords",     PdfKeywords,   Bmp,  "pdf.keywords",      "",          "Keywords", {{"pdf.keywords", "Keywords"}, {"PDF le_pdf_keywords", "Keywords"}}, {{"pdf_keywords", "Keywords"}});
        row("pdf_creator",      PdfCreator,    Bmp,  "pdf.creator",       "",          "Creator",  {{"pdf.creator", "Creator"}, {"PDF le_pdf_creator", "Creator"}}, {{"pdf_creator", "Creator"}});
        row("pdf_producer",     PdfProducer,   Bmp,  "pdf.producer",      "",          "Producer", {{"pdf.producer", "Producer"}, {"PDF le_pdf_producer", "Producer"}}, {{"pdf_producer", "Producer"}});
        row("load_ext_app",          LoadExtApp,            Bmp, "ch_exe",   "unchecked", "true", {{"ch_exe", "checked"}}, {{"load_ext_app", "true"}});
        row("Mail_Delivery",         MailDelivery,          Bmp, "ch_email", "unchecked", "true", {{"ch_email", "checked"}}, {{"Mail_Delivery", "true"}});
        row("TCP_Delivery",          TcpDelivery,           Bmp, "ch_tcp",   "unchecked", "true", {{"ch_tcp", "checked"}}, {{"TCP_Delivery", "true"}});
        row("FTP_Delivery",          FtpDelivery,           Bmp, "ch_ftp",   "unchecked", "true", {{"ch_ftp", "checked"}}, {{"FTP_Delivery", "true"}});
        row("EnabledBackgroundText", EnabledBackgroundText, Bmp, "ch_text",  "unchecked", "true", {{"ch_text", "checked"}}, {{"EnabledBackgroundText", "true"}});
        row("BackgroundEnable",      BackgroundEnable,      Bmp, "ch_image", "unchecked", "true", {{"ch_image", "checked"}}, {{"BackgroundEnable", "true"}});
        row("custom_number",    CustomNumber,  Bmp, "le_pr_custom",    "",          "42",   {{"le_pr_custom", "42"}, {"customNumber", "42"}}, {{"custom_number", "42"}});
        row("prefix_firstpage", PrefixFirstPage, Bmp, "rb_pefix_1",    "unchecked", "true", {{"rb_pefix_1", "checked"}, {"rb_pefix_custom", "unchecked"}, {"le_pr_custom enabled", "false"}}, {{"prefix_firstpage", "true"}});
        row("extract_text",     ExtractText,   Bmp, "cd_extract_text", "unchecked", "true", {{"cd_extract_text", "checked"}}, {{"extract_text", "true"}});
        row("image_color",      ImageColor,    Bmp, "colorCode",       "24",        "8",    {{"colorCode", "8"}, {"cb_combobox", "256 colors"}}, {{"image_color", "8"}});
        // "ow" scrambled is o, 'o' - 0, w, 'w' - 1.
        row("pdf_user_pw",      PdfUserPw,     Bmp, "pdf.userPassword",  "", "ppwv", {{"pdf.userPassword", "pw"}, {"PDF le_pdf_user_pw", "pw"}, {"PDF le_pdf_user_pw_2", "pw"}}, {{"pdf_user_pw", "ppwv"}});
        row("pdf_owner_pw",     PdfOwnerPw,    Bmp, "pdf.ownerPassword", "", "oowv", {{"pdf.ownerPassword", "ow"}, {"PDF le_pdf_owner_pw", "ow"}, {"PDF le_pdf_owner_pw_2", "ow"}}, {{"pdf_owner_pw", "oowv"}});
        // Driver contract: the only typed boolean; its eight companions are flag texts.
        row("pdf_protect",             PdfProtect,            Bmp, "pdf.protect",                 "false", "true", {{"pdf.protect", "true"}, {"PDF cb_security", "Password Encryption"}}, {{"pdf_protect", "true (bool)"}});
        row("pdf_protect_print",       PdfProtectPrint,       Bmp, "pdf.permissions.print",       "false", "true", {{"pdf.permissions.print", "true"}, {"PDF ch_pdf_print", "checked"}}, {{"pdf_protect_print", "true"}});
        row("pdf_protect_edit",        PdfProtectEdit,        Bmp, "pdf.permissions.edit",        "false", "true", {{"pdf.permissions.edit", "true"}, {"PDF ch_pdf_edit", "checked"}}, {{"pdf_protect_edit", "true"}});
        row("pdf_protect_copy",        PdfProtectCopy,        Bmp, "pdf.permissions.copy",        "false", "true", {{"pdf.permissions.copy", "true"}, {"PDF ch_pdf_copy", "checked"}}, {{"pdf_protect_copy", "true"}});
        row("pdf_protect_editnotes",   PdfProtectEditNotes,   Bmp, "pdf.permissions.editNotes",   "false", "true", {{"pdf.permissions.editNotes", "true"}, {"PDF ch_pdf_editnotes", "checked"}}, {{"pdf_protect_editnotes", "true"}});
        row("pdf_protect_fillandsign", PdfProtectFillAndSign, Bmp, "pdf.permissions.fillAndSign", "false", "true", {{"pdf.permissions.fillAndSign", "true"}, {"PDF ch_pdf_fillandsign", "checked"}}, {{"pdf_protect_fillandsign", "true"}});
        row("pdf_protect_accessible",  PdfProtectAccessible,  Bmp, "pdf.permissions.accessible",  "false", "true", {{"pdf.permissions.accessible", "true"}, {"PDF ch_pdf_accessible", "checked"}}, {{"pdf_protect_accessible", "true"}});
        row("pdf_protect_assemble",    PdfProtectAssemble,    Bmp, "pdf.permissions.assemble",    "false", "true", {{"pdf.permissions.assemble", "true"}, {"PDF ch_pdf_assemble", "checked"}}, {{"pdf_protect_assemble", "true"}});
        row("pdf_protect_highprint",   PdfProtectHighPrint,   Bmp, "pdf.permissions.highPrint",   "false", "true", {{"pdf.permissions.highPrint", "true"}, {"PDF ch_pdf_highprint", "checked"}}, {{"pdf_protect_highprint", "true"}});
        // Read only; nothing stored keeps the application's style.
        row("style",                   Style,                 Bmp, "style",      "fusion", "Windows", {{"style", "windowsmodernstyle"}}, {});
        row("chDialog_SaveAs",         ChDialogSaveAs,        Bmp, "saveAsOnly", "false",  "true",    {{"saveAsOnly", "true"}}, {});
        row("settings_for_all_users",  SettingsForAllUsers,   Bmp, "allUsers",   "false",  "true",    {{"allUsers", "true"}}, {});
        // Written for the driver, found by the name "path"; the other values written for the driver
        // alone are the write order's.
        row("Path",        PathWritten, Bmp, "le_filename", "Document1", "/cap/", {{"le_filename", "/cap/Document1"}, {"outputFolder", "/cap/"}}, {{"Path", "/cap/"}});
        // clang-format on
    }
    void everyValue()
    {
        QFETCH(Settings::Value, value);
        QFETCH(QString, name);
        QFETCH(QString, stored);
        QFETCH(int, page);
        QFETCH(QString, item);
        QFETCH(QString, byDefault);
        QFETCH(Shown, loaded);
        QFETCH(Shown, written);
        QCOMPARE(Settings::name(value), name);

        open();
        const Shown defaults = observed();
        QCOMPARE(defaults.value(item), byDefault);
        // Only the all-users switch is read from the all-users key.
        writeKey(name == "settings_for_all_users" ? m_job->machineFile() : m_job->userFile(),
            name + '=' + stored);
        open();
        QCOMPARE(
            FormStates::text(FormStates::changes(defaults, observed())), FormStates::text(loaded));
        QVERIFY2(writes.isEmpty(), "loading wrote a value");

        init(); // a new job on empty keys
        open();
        findWidget<QTabWidget>(m_window.get(), "tabWidget")->setCurrentIndex(page);
        const Shown before = savedValues();
        pdfprotect dialog;
        bool throughDialog = false;
        for (auto it = loaded.begin(); it != loaded.end(); ++it) {
            if (it.key().startsWith("PDF ")) {
                FormStates::set(findWidget(&dialog, it.key().mid(4)), *it);
                throughDialog = true;
            }
        }
        findWidget<QPushButton>(&dialog, "pb_ok")->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        for (auto it = loaded.begin(); it != loaded.end(); ++it) {
            if (!it.key().startsWith("PDF ") && !(throughDialog && it.key().startsWith("pdf.")))
                show(it.key(), it.value());
        }
        QCOMPARE(FormStates::text(FormStates::changes(before, savedValues())),
            FormStates::text(written));
    }

    // The loading rules: conversions, the colour row, the folder, names without regard to case,
    // the all-users key, the style.
    void loading_data()
    {
        QTest::addColumn<QByteArray>("user"); // the user key's file
        QTest::addColumn<QByteArray>("machine"); // the all-users key's file
        QTest::addColumn<bool>("converter"); // the DjVu converter beside the program
        QTest::addColumn<QByteArray>("then"); // the user key loaded again afterwards; empty: none
        QTest::addColumn<Shown>("shown"); // widgets and job values afterwards

        const auto row = [](const char *name, const char *user, const char *machine,
                             const Shown &shown, bool converter = true, const char *then = "") {
            QTest::newRow(name) << QByteArray(user) << QByteArray(machine) << converter
                                << QByteArray(then) << shown;
        };
        // clang-format off
        row("nothing stored",     "",            "", {{"formatToken", "tif"}, {"tabWidget", "4"}, {"rb_1", "checked"}, {"cb_combobox", "TrueColor"}, {"colorCode", "24"}});
        row("capital PDF",        "format=PDF",  "", {{"formatToken", "jpg"}, {"tabWidget", "2"}});
        row("extension, no token", "format=xls",  "", {{"formatToken", "jpg"}, {"tabWidget", "2"}});
        row("djvu, no converter", "format=djvu", "", {{"formatToken", "jpg"}, {"tabWidget", "2"}, {"selectedFilter", "JPEG Format (*.jpg)"}}, false);
        // Driver contract: the DjVu page is asked for as index 12, which the tab widget ignores.
        row("djvu, converter",    "format=djvu", "", {{"formatToken", "djvu"}, {"tabWidget", "6"}, {"selectedFilter", "DjVu Format (*.djvu)"}});
        // The colour row follows the page's list; a row beyond it is left to the combo box.
        row("tif JPEG 8", "format=tif\nformat_ext=JPEG\nimage_color=8", "", {{"colour list", "Grayscale, TrueColor"}, {"cb_combobox", "TrueColor"}, {"colorCode", "8"}});
        row("bmp 24g",    "format=bmp\nimage_color=24g",                "", {{"colour list", "Monochrome, 256 colors, Grayscale, TrueColor"}, {"cb_combobox", "Grayscale"}, {"colorCode", "24g"}});
        row("gif 24",     "format=gif\nimage_color=24",                 "", {{"colour list", "Monochrome, 256 colors, Grayscale"}, {"cb_combobox", ""}, {"colorCode", "24"}});
        // Driver contract: SWF is current from the start, the list in the form's order.
        row("swf 24g",    "format=swf\nimage_color=24g",                "", {{"colour list", "TrueColor, Grayscale"}, {"cb_combobox", "TrueColor"}, {"colorCode", "24g"}});
        row("swf 24",     "format=swf\nimage_color=24",                 "", {{"colour list", "TrueColor, Grayscale"}, {"cb_combobox", "Grayscale"}, {"colorCode", "24g"}});
        // Driver contract: switches are converted, except two compared with "true" exactly.
        row("TRUE",  "multipage_pdf=TRUE\nload_ext_app=TRUE\npdf_protect=TRUE\nextract_text=TRUE\nchDialog_SaveAs=TRUE", "", {{"ch_multipage_pdf", "checked"}, {"ch_exe", "checked"}, {"pdf.protect", "true"}, {"cd_extract_text", "unchecked"}, {"saveAsOnly", "false"}});
        row("FaLsE", "multipage_pdf=FaLsE\nload_ext_app=FaLsE\npdf_protect=FaLsE", "", {{"ch_multipage_pdf", "unchecked"}, {"ch_exe", "unchecked"}, {"pdf.protect", "false"}});
        // Driver contract: switched on by an earlier load in the same run, the SWF animation and
        // the save-as-only mode stay on; an ordinary switch follows the key.
        row("one-sided switches", "swf_animate=true\nchDialog_SaveAs=true\nmultipage_tiff=true", "", {{"ch_swf_animate", "checked"}, {"saveAsOnly", "true"}, {"ch_multipage_tiff", "unchecked"}}, true, "swf_animate=false\nchDialog_SaveAs=false\nmultipage_tiff=false");
        // Driver contract: the SWF protection is read only with a stored password.
        row("SWF protection, no password", "b_protect_swf=true", "", {{"ch_swf_protect", "unchecked"}});
        row("quality not a number", "q_jpg=abc", "", {{"spb_q_jpg", "1"}});
        // The folder is joined to the proposed name as it is stored.
        row("folder without separator", "path=/out", "", {{"le_filename", "/outDocument1"}});
        // Names are matched without regard to case; the exact spelling wins over another.
        row("PATH",          "PATH=/upper/",          "", {{"le_filename", "/upper/Document1"}});
        row("PATH and path", "PATH=/a/\npath=/b/",    "", {{"le_filename", "/b/Document1"}});
        row("path and PATH", "path=/b/\nPATH=/a/",    "", {{"le_filename", "/b/Document1"}});
        // The all-users key is read only when it says so itself; the user key never shows its values.
        row("machine says all",    "format=gif", "settings_for_all_users=true\nformat=pdf", {{"allUsers", "true"}, {"formatToken", "pdf"}});
        row("all, nothing there",  "format=gif", "settings_for_all_users=1",                {{"allUsers", "true"}, {"formatToken", "tif"}});
        row("only user says all",  "settings_for_all_users=true\nformat=gif", "format=pdf", {{"allUsers", "false"}, {"formatToken", "gif"}});
        row("machine-only values", "", "format=pdf\nq_jpg=7\nTCP_Delivery=true\npdf_title=Machine", {{"formatToken", "tif"}, {"spb_q_jpg", "100"}, {"ch_tcp", "unchecked"}, {"pdf.title", ""}});
        row("unknown style",       "style=Motif",          "", {{"style", "fusion"}});
        row("lower case, by name", "style=windows",        "", {{"style", "windows"}});
        row("inside a word",       "style=MyWindowsTheme", "", {{"style", "windowsmodernstyle"}});
        // clang-format on
    }
    void loading()
    {
        QFETCH(QByteArray, user);
        QFETCH(QByteArray, machine);
        QFETCH(bool, converter);
        QFETCH(QByteArray, then);
        QFETCH(Shown, shown);
        m_job->writeFile(m_job->userFile(), user);
        m_job->writeFile(m_job->machineFile(), machine);
        open(converter);
        if (!then.isEmpty()) {
            m_job->writeFile(m_job->userFile(), then);
            m_window->loadSettings();
        }
        const Shown all = observed();
        Shown seen;
        for (auto it = shown.begin(); it != shown.end(); ++it)
            seen.insert(it.key(), all.value(it.key(), QStringLiteral("(none)")));
        QCOMPARE(FormStates::text(seen), FormStates::text(shown));
        QVERIFY2(writes.isEmpty(), "loading wrote a value");
    }

    // The names a save writes, in order, per page and per deliberate oddity.
    void writeOrder_data()
    {
        QTest::addColumn<int>("page");
        // "no compression": none of the six TIFF buttons checked; "protected": the SWF protection
        // group checked; "pw": a password typed; "no dialog": "Show this dialog next time" off.
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QStringList>("pageValues"); // written between Path and the common tail
        // clang-format off
        QTest::newRow("jpeg")          << int(Jpeg) << ""              << QStringList{"q_jpg", "format"};
        QTest::newRow("tiff")          << int(Tiff) << ""              << QStringList{"q_tif", "format_ext", "multipage_tiff", "format"};
        QTest::newRow("swf protected") << int(Swf)  << "protected pw"  << QStringList{"q_swf", "multipage_swf", "swf_text", "swf_animate", "b_protect_swf", "protect_swf", "format"};
        QTest::newRow("pdf")           << int(Pdf)  << ""              << QStringList{"q_pdf", "multipage_pdf", "pdf_text", "format"};
        QTest::newRow("html")          << int(Html) << ""              << QStringList{"q_htm", "format", "multipage_htm", "htm_text"};
        QTest::newRow("djvu")          << int(Djvu) << ""              << QStringList{"format", "multipage_djvu"};
        // Driver contract: "true" is never written for the dialog switch. With all users both
        // keys get one save.
        QTest::newRow("bmp, no dialog") << int(Bmp) << "no dialog"     << QStringList{"chDialog", "format"};
        QTest::newRow("bmp, all users") << int(Bmp) << "all users"     << QStringList{"format"};
        QTest::newRow("tiff, none")     << int(Tiff) << "no compression" << QStringList{"q_tif", "multipage_tiff", "format"};
        // Driver contract: an empty password is written empty even when protected; with the
        // protection off a typed one leaves the stored one.
        QTest::newRow("swf, no pw")    << int(Swf) << "protected"      << QStringList{"q_swf", "multipage_swf", "swf_text", "swf_animate", "b_protect_swf", "protect_swf", "protect_swf", "format"};
        QTest::newRow("swf off, pw")   << int(Swf) << "pw"             << QStringList{"q_swf", "multipage_swf", "swf_text", "swf_animate", "b_protect_swf", "format"};
        // clang-format on
    }
    void writeOrder()
    {
        QFETCH(int, page);
        QFETCH(QString, setup);
        QFETCH(QStringList, pageValues);
        const bool allUsers = setup == "all users", compressionChosen = setup != "no compression";
        if (allUsers)
            writeKey(m_job->machineFile(), "settings_for_all_users=true");
        // A file edited by hand may hold a name in several spellings; the write leaves one, so
        // that the driver, reading without regard to case, finds the value just written.
        writeKey(m_job->userFile(), "PATH=/old/\npAtH=/old/");
        open();
        auto *tabs = findWidget<QTabWidget>(m_window.get(), "tabWidget");
        tabs->setCurrentIndex(page);
        // Only code can leave all six compressions unchecked.
        for (auto *button : tabs->currentWidget()->findChildren<QRadioButton *>()) {
            button->setAutoExclusive(compressionChosen);
            button->setChecked(compressionChosen && button->objectName() == "rb_3");
        }
        show("ch_swf_protect", setup.contains("protected") ? "checked" : "unchecked");
        show("le_swf_protect", setup.contains("pw") ? "pw" : "");
        show("cd_dialog", setup == "no dialog" ? "unchecked" : "checked");
        show("le_filename", m_job->path("out/report.pdf"));
        writes.clear();
        m_window->saveAllSettings();

        // Values not named here are not written: those of other pages keep what the key holds.
        // With all users, one complete save per key, the machine key first.
        const QStringList expected
            = QStringList {"isabort", "newfilename", "Path"} + pageValues + commonTail;
        QStringList machine, user;
        for (const Write &write : std::as_const(writes))
            (write.scope == SettingsScope::User ? user : machine) << write.name;
        QCOMPARE(user, expected);
        QCOMPARE(machine, allUsers ? expected : QStringList());
        QVERIFY(!allUsers || writes.first().scope == SettingsScope::Machine);
        const int userStart = machine.size();
        QCOMPARE(writes.at(userStart).value, QVariant("false"));
        QCOMPARE(writes.at(userStart + 1).value, QVariant("report"));
        QCOMPARE(writes.at(userStart + 2).value, QVariant(m_job->path("out/")));
        QCOMPARE(QSettings(m_job->userFile(), QSettings::IniFormat)
                     .allKeys()
                     .filter("path", Qt::CaseInsensitive),
            QStringList {"Path"});
    }

    // The stored form of a password: each character followed by a filler; a new process reads
    // it back past the store's in-process cache.
    void passwordThroughTheFile_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("scrambled"); // null: not checked
        QTest::addColumn<QString>("expected"); // what a new process reads back

        // ASCII at its own position has the filler 0; beyond 8000 characters the fillers run into
        // the surrogate range.
        const auto units = [](std::initializer_list<char16_t> list) {
            return QString(reinterpret_cast<const QChar *>(list.begin()), qsizetype(list.size()));
        };
        QString many;
        for (int i = 0; many.size() < 12000; ++i)
            many += QChar(char16_t(i < 128 ? i : i + 0x80));
        const QString meta = QStringLiteral("a=b;c,d \"e\" \\f @String(g) #h [i]\r\n\t");
        // clang-format off
        QTest::newRow("empty")              << QString()                << QString()                          << QString();
        QTest::newRow("negative filler")    << units({u'a', 0})         << units({u'a', u'a', 0, 0xFFFF})     << units({u'a', 0});
        QTest::newRow("lead byte E4")       << QStringLiteral("x\u4e2d") << units({u'x', u'x', 0x4E2D, 0xFFE3}) << QStringLiteral("x\u4e2d");
        QTest::newRow("INI metacharacters") << meta                     << QString()                          << meta;
        QTest::newRow("NUL fillers, 12000") << many << QString() << many;
        // UTF-8 has no form for the lone halves a filler leaves of a character outside the BMP.
        QTest::newRow("outside the BMP")    << QStringLiteral("a\U0001F600b") << QString()                    << units({u'a', 0xFFFD, 0xFFFD, u'b'});
        // clang-format on
    }
    void passwordThroughTheFile()
    {
        QFETCH(QString, password);
        QFETCH(QString, scrambled);
        QFETCH(QString, expected);
        if (!scrambled.isNull())
            QCOMPARE(scramblePassword(password), scrambled);
        SettingsKey(SettingsScope::User).setText(Settings::PdfUserPw, scramblePassword(password));
        QFile::copy(SettingsKey::fileName(SettingsScope::User), m_job->path("copy.conf"));
        const QString stored = JobFixture::valueOf(m_job->path("copy.conf"), "pdf_user_pw");
        QCOMPARE(stored.size(), password.size() * 2);
        QCOMPARE(unscramblePassword(stored), expected);
        // Fillers are dropped unchecked; an odd last character is kept.
        QCOMPARE(unscramblePassword(stored + 'z'), expected + 'z');
    }

private:
    void open(bool converter = true)
    {
        m_window.reset();
        m_window = m_job->createWindow(converter);
    }
    void writeKey(const QString &file, const QString &ini) { m_job->writeFile(file, ini.toUtf8()); }

    // The named widgets' states, the job values, and what the window and a PDF dialog opened on
    // the job show besides.
    Shown observed() const
    {
        Shown all = FormStates::all(m_window.get());
        all.insert(JobFields::all());
        const pdfprotect dialog;
        const Shown inDialog = FormStates::all(&dialog);
        for (auto it = inDialog.begin(); it != inDialog.end(); ++it)
            all.insert("PDF " + it.key(), *it);
        auto *colours = findWidget<QComboBox>(m_window.get(), "cb_combobox");
        QStringList items;
        for (int row = 0; row < colours->count(); ++row)
            items << colours->itemText(row);
        all.insert("colour list", items.join(", "));
        all.insert("compression", m_window->compressionCode());
        all.insert("style", QApplication::style()->name());
        all.insert("le_pr_custom enabled",
            QVariant(findWidget(m_window.get(), "le_pr_custom")->isEnabled()).toString());
        return all;
    }
    // Shows a state in a widget or job value; what the window only reports stays as it is.
    void show(const QString &item, const QString &state)
    {
        if (auto *widget = m_window->findChild<QWidget *>(item))
            FormStates::set(widget, state);
        else
            JobFields::set(item, state);
    }
    // One save into the user key: the last value written under each name, typed ones marked.
    Shown savedValues()
    {
        writes.clear();
        m_window->saveSettingsTo(SettingsScope::User);
        Shown values;
        for (const Write &write : std::as_const(writes))
            values.insert(write.name,
                write.value.toString()
                    + (write.value.typeId() == QMetaType::QString
                            ? QString()
                            : QStringLiteral(" (%1)").arg(write.value.typeName())));
        return values;
    }

    std::unique_ptr<JobFixture> m_job;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_LoadSave)
#include "tst_loadsave.moc"
