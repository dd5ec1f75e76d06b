#include "jobsettings.h"
#include "pdfprotect.h"
#include "prompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

namespace {

// Records the message boxes instead of showing them.
class RecordingPrompts : public Prompts
{
public:
    struct Message
    {
        QWidget *parent;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons;
    };
    QList<Message> messages;

    QMessageBox::StandardButton message(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons) override
    {
        messages.append({parent, title, text, buttons});
        return QMessageBox::Ok;
    }

    QString saveFileName(
        QWidget *, const QString &, const QString &, const QString &, QString *) override
    {
        return QString();
    }
};

// Marks every text it is asked for, so a re-applied text is told apart from the designed one.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "pdfprotect") != 0)
            return QString();
        return QLatin1Char('~') + QString::fromUtf8(source);
    }
};

using Permission = bool PdfPermissions::*;
using DocumentText = QString PdfSettings::*;

} // namespace

Q_DECLARE_METATYPE(Permission)
Q_DECLARE_METATYPE(DocumentText)

class tst_PdfProtect : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void form_data();
    void form();
    void tabOrderSkipsRepeatFields();

    void loadsProtection_data();
    void loadsProtection();
    void permission_data();
    void permission();
    void documentText_data();
    void documentText();
    void passwordsStoredOnOk();

    void passwordCheck_data();
    void passwordCheck();
    void protectionKeptOnCancel_data();
    void protectionKeptOnCancel();
    void showCharsTogglesAllFour();

    void languageChange();

private:
    template<typename T>
    static T *child(const pdfprotect &dialog, const char *name)
    {
        T *widget = dialog.findChild<T *>(QLatin1String(name));
        if (!widget)
            qFatal("missing widget %s", name);
        return widget;
    }

    RecordingPrompts prompts;
};

void tst_PdfProtect::init()
{
    jobSettings() = JobSettings();
    prompts.messages.clear();
    Prompts::install(&prompts);
}

void tst_PdfProtect::cleanup()
{
    Prompts::install(nullptr);
}

void tst_PdfProtect::form_data()
{
    // name: object name; parent: object name of the parent widget; geometry; text: text or title
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QString>("text");

    const struct
    {
        const char *name, *parent;
        QRect geometry;
        const char *text;
    } rows[] = {
        {"pb_ok", "pdfprotect", {390, 480, 75, 24}, "Ok"},
        {"pb_cancel", "pdfprotect", {470, 480, 75, 24}, "Cancel"},
        {"tabWidget", "pdfprotect", {10, 20, 541, 441}, ""},
        {"groupBox", "tab", {10, 10, 511, 391}, "PDF Information"},
        {"label_2", "groupBox", {20, 30, 111, 16}, "Title "},
        {"le_pdf_title", "groupBox", {20, 50, 441, 20}, ""},
        {"label_3", "groupBox", {20, 90, 121, 16}, "Subject"},
        {"le_pdf_subject", "groupBox", {20, 110, 441, 20}, ""},
        {"label_4", "groupBox", {20, 150, 91, 16}, "Author"},
        {"le_pdf_author", "groupBox", {20, 170, 441, 20}, ""},
        {"label_5", "groupBox", {20, 210, 151, 16}, "Keywords"},
        {"le_pdf_keywords", "groupBox", {20, 230, 441, 20}, ""},
        {"label_6", "groupBox", {20, 270, 151, 16}, "Creator"},
        {"le_pdf_creator", "groupBox", {20, 290, 441, 20}, ""},
        {"label_7", "groupBox", {20, 330, 171, 16}, "Producer"},
        {"le_pdf_producer", "groupBox", {20, 350, 441, 20}, ""},
        {"cb_security", "tab_2", {10, 10, 181, 22}, ""},
        {"gb_pdf_protect", "tab_2", {10, 50, 511, 351}, "Protection"},
        {"label_11", "gb_pdf_protect", {10, 30, 131, 16}, "User Password"},
        {"le_pdf_user_pw", "gb_pdf_protect", {10, 50, 131, 20}, ""},
        {"label_12", "gb_pdf_protect", {210, 30, 141, 16}, "Owner Password"},
        {"le_pdf_owner_pw", "gb_pdf_protect", {210, 50, 141, 20}, ""},
        {"label_13", "gb_pdf_protect", {10, 80, 141, 16}, "Repeat Password"},
        {"le_pdf_user_pw_2", "gb_pdf_protect", {10, 100, 131, 20}, ""},
        {"label_14", "gb_pdf_protect", {210, 80, 141, 16}, "Repeat Password"},
        {"le_pdf_owner_pw_2", "gb_pdf_protect", {210, 100, 141, 20}, ""},
        {"ch_showchars_pw", "gb_pdf_protect", {400, 100, 101, 19}, "Show chars"},
        {"groupBox_2", "gb_pdf_protect", {10, 140, 491, 181}, "Allowed"},
        {"ch_pdf_print", "groupBox_2", {10, 20, 201, 19}, "Printing the document"},
        {"ch_pdf_edit", "groupBox_2", {250, 20, 241, 19}, "Modifying document"},
        {"ch_pdf_highprint", "groupBox_2", {10, 60, 211, 19}, "Print a high resolution"},
        {"ch_pdf_editnotes", "groupBox_2", {250, 60, 241, 19}, "Modify annoations or form fields"},
        {"ch_pdf_copy", "groupBox_2", {10, 100, 191, 19}, "Extract text and graphics"},
        {"ch_pdf_fillandsign", "groupBox_2", {250, 100, 241, 19},
            "Fill in existing form or signature fields"},
        {"ch_pdf_accessible", "groupBox_2", {10, 140, 231, 19},
            "Advanced extract text and graphics"},
        {"ch_pdf_assemble", "groupBox_2", {250, 140, 241, 19}, "Assemble the document"},
        {"label", "gb_pdf_protect", {10, 330, 251, 16}, "High Encryption Level (128 bits) "},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QString::fromLatin1(row.name) << QString::fromLatin1(row.parent)
                                << row.geometry << QString::fromLatin1(row.text);
}

void tst_PdfProtect::form()
{
    QFETCH(QString, name);
    QFETCH(QString, parent);
    QFETCH(QRect, geometry);
    QFETCH(QString, text);

    pdfprotect dialog;
    QCOMPARE(dialog.size(), QSize(558, 513));
    QCOMPARE(dialog.windowTitle(), QStringLiteral(" Advanced PDF Settings "));

    const QWidget *widget = dialog.findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget()->objectName(), parent);
    QCOMPARE(widget->geometry(), geometry);
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        QCOMPARE(box->title(), text);
    else if (widget->metaObject()->indexOfProperty("text") >= 0
        && !qobject_cast<const QLineEdit *>(widget))
        QCOMPARE(widget->property("text").toString(), text);
}

void tst_PdfProtect::tabOrderSkipsRepeatFields()
{
    pdfprotect dialog;
    const auto *tabs = child<QTabWidget>(dialog, "tabWidget");
    QCOMPARE(tabs->currentIndex(), 0);
    QVERIFY(tabs->usesScrollButtons());
    QCOMPARE(tabs->tabText(0), QStringLiteral("Document Info"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Security"));
    const auto *security = child<QComboBox>(dialog, "cb_security");
    QCOMPARE(security->count(), 2);
    QCOMPARE(security->itemText(0), QStringLiteral("No Encryption"));
    QCOMPARE(security->itemText(1), QStringLiteral("Password Encryption"));

    const QStringList designed = {"pb_ok", "pb_cancel", "tabWidget", "le_pdf_title",
        "le_pdf_subject", "le_pdf_author", "le_pdf_keywords", "le_pdf_creator", "le_pdf_producer",
        "cb_security", "le_pdf_user_pw", "le_pdf_owner_pw", "ch_showchars_pw", "ch_pdf_print",
        "ch_pdf_highprint", "ch_pdf_copy", "ch_pdf_accessible", "ch_pdf_edit", "ch_pdf_editnotes",
        "ch_pdf_fillandsign", "ch_pdf_assemble"};
    QStringList chain;
    QWidget *start = child<QPushButton>(dialog, "pb_ok");
    QWidget *widget = start;
    do {
        if (designed.contains(widget->objectName()))
            chain << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != start && chain.size() < designed.size());
    QCOMPARE(chain, designed);

    // The repeat fields are not moved into the chain after their partners.
    const auto *user = child<QLineEdit>(dialog, "le_pdf_user_pw");
    QCOMPARE(user->nextInFocusChain()->objectName(), QStringLiteral("le_pdf_owner_pw"));
    const auto *owner = child<QLineEdit>(dialog, "le_pdf_owner_pw");
    QCOMPARE(owner->nextInFocusChain()->objectName(), QStringLiteral("ch_showchars_pw"));
}

void tst_PdfProtect::loadsProtection_data()
{
    // protect: stored flag; index: expected combo index; enabled: the Protection group
    QTest::addColumn<bool>("protect");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("protection off") << false << 0 << false;
    QTest::newRow("protection on") << true << 1 << true;
}

void tst_PdfProtect::loadsProtection()
{
    QFETCH(bool, protect);
    QFETCH(int, index);
    QFETCH(bool, enabled);

    jobSettings().pdf.protect = protect;
    pdfprotect dialog;
    QCOMPARE(child<QComboBox>(dialog, "cb_security")->currentIndex(), index);
    QCOMPARE(child<QGroupBox>(dialog, "gb_pdf_protect")->isEnabled(), enabled);
    QCOMPARE(jobSettings().pdf.protect, protect);
}

void tst_PdfProtect::permission_data()
{
    // box: the check box; flag: the job value it loads from and stores into
    QTest::addColumn<QString>("box");
    QTest::addColumn<Permission>("flag");
    QTest::newRow("print") << "ch_pdf_print" << &PdfPermissions::print;
    QTest::newRow("edit") << "ch_pdf_edit" << &PdfPermissions::edit;
    QTest::newRow("copy") << "ch_pdf_copy" << &PdfPermissions::copy;
    QTest::newRow("editnotes") << "ch_pdf_editnotes" << &PdfPermissions::editNotes;
    QTest::newRow("fillandsign") << "ch_pdf_fillandsign" << &PdfPermissions::fillAndSign;
    QTest::newRow("accessible") << "ch_pdf_accessible" << &PdfPermissions::accessible;
    QTest::newRow("assemble") << "ch_pdf_assemble" << &PdfPermissions::assemble;
    QTest::newRow("highprint") << "ch_pdf_highprint" << &PdfPermissions::highPrint;
}

// One flag set loads only its own box, and only its own box stores into it.
void tst_PdfProtect::permission()
{
    QFETCH(QString, box);
    QFETCH(Permission, flag);

    const QStringList boxes = {"ch_pdf_print", "ch_pdf_edit", "ch_pdf_copy", "ch_pdf_editnotes",
        "ch_pdf_fillandsign", "ch_pdf_accessible", "ch_pdf_assemble", "ch_pdf_highprint"};

    jobSettings().pdf.permissions.*flag = true;
    {
        pdfprotect dialog;
        for (const QString &name : boxes)
            QCOMPARE(dialog.findChild<QCheckBox *>(name)->isChecked(), name == box);
    }

    jobSettings().pdf.permissions = PdfPermissions();
    pdfprotect dialog;
    dialog.findChild<QCheckBox *>(box)->setChecked(true);
    dialog.pb_ok();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    PdfPermissions expected;
    expected.*flag = true;
    const PdfPermissions &stored = jobSettings().pdf.permissions;
    const Permission all[] = {&PdfPermissions::print, &PdfPermissions::edit, &PdfPermissions::copy,
        &PdfPermissions::editNotes, &PdfPermissions::fillAndSign, &PdfPermissions::accessible,
        &PdfPermissions::assemble, &PdfPermissions::highPrint};
    for (Permission each : all)
        QCOMPARE(stored.*each, expected.*each);
}

void tst_PdfProtect::documentText_data()
{
    // edit: the line edit; text: the job value it loads from and stores into
    QTest::addColumn<QString>("edit");
    QTest::addColumn<DocumentText>("text");
    QTest::newRow("title") << "le_pdf_title" << &PdfSettings::title;
    QTest::newRow("author") << "le_pdf_author" << &PdfSettings::author;
    QTest::newRow("subject") << "le_pdf_subject" << &PdfSettings::subject;
    QTest::newRow("keywords") << "le_pdf_keywords" << &PdfSettings::keywords;
    QTest::newRow("creator") << "le_pdf_creator" << &PdfSettings::creator;
    QTest::newRow("producer") << "le_pdf_producer" << &PdfSettings::producer;
}

void tst_PdfProtect::documentText()
{
    QFETCH(QString, edit);
    QFETCH(DocumentText, text);

    const QStringList edits = {"le_pdf_title", "le_pdf_author", "le_pdf_subject", "le_pdf_keywords",
        "le_pdf_creator", "le_pdf_producer"};
    const QString loaded = QStringLiteral("Quarterly r\u00e9sum\u00e9 ");
    jobSettings().pdf.*text = loaded;
    pdfprotect dialog;
    for (const QString &name : edits)
        QCOMPARE(dialog.findChild<QLineEdit *>(name)->text(), name == edit ? loaded : QString());

    dialog.findChild<QLineEdit *>(edit)->setText(QStringLiteral("Changed"));
    dialog.pb_ok();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(jobSettings().pdf.*text, QStringLiteral("Changed"));
    const DocumentText all[] = {&PdfSettings::title, &PdfSettings::author, &PdfSettings::subject,
        &PdfSettings::keywords, &PdfSettings::creator, &PdfSettings::producer};
    for (DocumentText each : all) {
        if (each != text)
            QCOMPARE(jobSettings().pdf.*each, QString());
    }
}

void tst_PdfProtect::passwordsStoredOnOk()
{
    jobSettings().pdf.userPassword = QStringLiteral("user");
    jobSettings().pdf.ownerPassword = QStringLiteral("owner");
    pdfprotect dialog;
    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_user_pw")->text(), QStringLiteral("user"));
    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_user_pw_2")->text(), QStringLiteral("user"));
    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_owner_pw")->text(), QStringLiteral("owner"));
    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_owner_pw_2")->text(), QStringLiteral("owner"));

    for (const char *name : {"le_pdf_user_pw", "le_pdf_user_pw_2"})
        child<QLineEdit>(dialog, name)->setText(QStringLiteral("new user"));
    for (const char *name : {"le_pdf_owner_pw", "le_pdf_owner_pw_2"})
        child<QLineEdit>(dialog, name)->setText(QStringLiteral("new owner"));
    child<QPushButton>(dialog, "pb_ok")->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(jobSettings().pdf.userPassword, QStringLiteral("new user"));
    QCOMPARE(jobSettings().pdf.ownerPassword, QStringLiteral("new owner"));
}

void tst_PdfProtect::passwordCheck_data()
{
    // user, userRepeat, owner, ownerRepeat: the four fields as typed;
    // title: the reported message box ("" for none); userAfter, ownerAfter: the repeat fields
    // afterwards
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("userRepeat");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("ownerRepeat");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("userAfter");
    QTest::addColumn<QString>("ownerAfter");

    QTest::newRow("both pairs empty") << ""
                                      << ""
                                      << ""
                                      << ""
                                      << ""
                                      << ""
                                      << "";
    QTest::newRow("both pairs match") << "u1"
                                      << "u1"
                                      << "o1"
                                      << "o1"
                                      << ""
                                      << "u1"
                                      << "o1";
    QTest::newRow("user pair differs") << "u1"
                                       << "u2"
                                       << "o1"
                                       << "o1"
                                       << "User Password"
                                       << ""
                                       << "o1";
    QTest::newRow("owner pair differs") << "u1"
                                        << "u1"
                                        << "o1"
                                        << "o2"
                                        << "Owner Password"
                                        << "u1"
                                        << "";
    QTest::newRow("both differ, user reported") << "u1"
                                                << "u2"
                                                << "o1"
                                                << "o2"
                                                << "User Password"
                                                << ""
                                                << "o2";
    QTest::newRow("case differs") << "Secret"
                                  << "secret"
                                  << ""
                                  << ""
                                  << "User Password"
                                  << ""
                                  << "";
    QTest::newRow("repeat field empty") << ""
                                        << ""
                                        << "o1"
                                        << ""
                                        << "Owner Password"
                                        << ""
                                        << "";
}

void tst_PdfProtect::passwordCheck()
{
    QFETCH(QString, user);
    QFETCH(QString, userRepeat);
    QFETCH(QString, owner);
    QFETCH(QString, ownerRepeat);
    QFETCH(QString, title);
    QFETCH(QString, userAfter);
    QFETCH(QString, ownerAfter);

    pdfprotect dialog;
    child<QLineEdit>(dialog, "le_pdf_user_pw")->setText(user);
    child<QLineEdit>(dialog, "le_pdf_user_pw_2")->setText(userRepeat);
    child<QLineEdit>(dialog, "le_pdf_owner_pw")->setText(owner);
    child<QLineEdit>(dialog, "le_pdf_owner_pw_2")->setText(ownerRepeat);
    child<QLineEdit>(dialog, "le_pdf_title")->setText(QStringLiteral("Edited title"));
    child<QCheckBox>(dialog, "ch_pdf_print")->setChecked(true);
    // Encryption is off, so the fields are disabled; they are compared all the same.
    QVERIFY(!child<QGroupBox>(dialog, "gb_pdf_protect")->isEnabled());

    dialog.pb_ok();

    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_user_pw_2")->text(), userAfter);
    QCOMPARE(child<QLineEdit>(dialog, "le_pdf_owner_pw_2")->text(), ownerAfter);
    const PdfSettings &pdf = jobSettings().pdf;
    if (title.isEmpty()) {
        QVERIFY(prompts.messages.isEmpty());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(pdf.userPassword, user);
        QCOMPARE(pdf.ownerPassword, owner);
        QCOMPARE(pdf.title, QStringLiteral("Edited title"));
        QVERIFY(pdf.permissions.print);
        return;
    }
    QCOMPARE(prompts.messages.size(), 1);
    const RecordingPrompts::Message &shown = prompts.messages.first();
    QCOMPARE(shown.parent, &dialog);
    QCOMPARE(shown.title, title);
    QCOMPARE(shown.text, QStringLiteral("Password entered does not match."));
    QCOMPARE(shown.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    // Nothing is stored on a mismatch, not even the edited document information.
    QCOMPARE(pdf.userPassword, QString());
    QCOMPARE(pdf.ownerPassword, QString());
    QCOMPARE(pdf.title, QString());
    QVERIFY(!pdf.permissions.print);
}

void tst_PdfProtect::protectionKeptOnCancel_data()
{
    // stored: flag before the dialog; chosen: combo index picked by the user;
    // ok: press Ok (with a mismatch, so the dialog stays) instead of Cancel
    QTest::addColumn<bool>("stored");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("ok");
    QTest::newRow("switched on, Cancel") << false << 1 << false;
    QTest::newRow("switched off, Cancel") << true << 0 << false;
    QTest::newRow("switched on, Ok with mismatch") << false << 1 << true;
}

void tst_PdfProtect::protectionKeptOnCancel()
{
    QFETCH(bool, stored);
    QFETCH(int, chosen);
    QFETCH(bool, ok);

    jobSettings().pdf.protect = stored;
    pdfprotect dialog;
    auto *security = child<QComboBox>(dialog, "cb_security");
    security->setCurrentIndex(chosen);
    QCOMPARE(child<QGroupBox>(dialog, "gb_pdf_protect")->isEnabled(), chosen == 1);
    child<QLineEdit>(dialog, "le_pdf_user_pw")->setText(QStringLiteral("typed"));
    child<QLineEdit>(dialog, "le_pdf_subject")->setText(QStringLiteral("typed"));
    if (ok)
        dialog.pb_ok();
    else
        child<QPushButton>(dialog, "pb_cancel")->click();

    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(jobSettings().pdf.protect, chosen == 1);
    QCOMPARE(jobSettings().pdf.userPassword, QString());
    QCOMPARE(jobSettings().pdf.subject, QString());
}

void tst_PdfProtect::showCharsTogglesAllFour()
{
    pdfprotect dialog;
    const char *fields[]
        = {"le_pdf_user_pw", "le_pdf_owner_pw", "le_pdf_user_pw_2", "le_pdf_owner_pw_2"};
    for (const char *name : fields)
        QCOMPARE(child<QLineEdit>(dialog, name)->echoMode(), QLineEdit::Password);

    auto *show = child<QCheckBox>(dialog, "ch_showchars_pw");
    QVERIFY(!show->isChecked());
    // The box sits in the Protection group, which only encryption enables.
    child<QComboBox>(dialog, "cb_security")->setCurrentIndex(1);
    show->click();
    for (const char *name : fields)
        QCOMPARE(child<QLineEdit>(dialog, name)->echoMode(), QLineEdit::Normal);
    show->click();
    for (const char *name : fields)
        QCOMPARE(child<QLineEdit>(dialog, name)->echoMode(), QLineEdit::Password);
}

void tst_PdfProtect::languageChange()
{
    jobSettings().pdf.protect = true;
    pdfprotect dialog;
    MarkingTranslator translator;
    // The application posts the language change to its windows.
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(dialog.windowTitle(), QStringLiteral("~ Advanced PDF Settings "));
    QCOMPARE(child<QLabel>(dialog, "label_2")->text(), QStringLiteral("~Title "));
    QCOMPARE(child<QGroupBox>(dialog, "groupBox_2")->title(), QStringLiteral("~Allowed"));
    QCOMPARE(child<QPushButton>(dialog, "pb_cancel")->text(), QStringLiteral("~Cancel"));
    QCOMPARE(child<QTabWidget>(dialog, "tabWidget")->tabText(1), QStringLiteral("~Security"));
    const auto *security = child<QComboBox>(dialog, "cb_security");
    QCOMPARE(security->count(), 2);
    QCOMPARE(security->itemText(1), QStringLiteral("~Password Encryption"));
    // Translating the items is no choice of the user.
    QCOMPARE(security->currentIndex(), 1);
    QVERIFY(jobSettings().pdf.protect);
    QVERIFY(child<QGroupBox>(dialog, "gb_pdf_protect")->isEnabled());

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(dialog.windowTitle(), QStringLiteral(" Advanced PDF Settings "));
    QCOMPARE(security->itemText(0), QStringLiteral("No Encryption"));
}

QTEST_MAIN(tst_PdfProtect)
#include "tst_pdfprotect.moc"
