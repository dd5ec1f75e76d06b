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

// Marks every text of the dialog, so a re-applied text is told apart from the designed one.
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

const Permission allPermissions[] = {&PdfPermissions::print, &PdfPermissions::edit,
    &PdfPermissions::copy, &PdfPermissions::editNotes, &PdfPermissions::fillAndSign,
    &PdfPermissions::accessible, &PdfPermissions::assemble, &PdfPermissions::highPrint};
const DocumentText allTexts[] = {&PdfSettings::title, &PdfSettings::author, &PdfSettings::subject,
    &PdfSettings::keywords, &PdfSettings::creator, &PdfSettings::producer};

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

    void passwordCheck_data();
    void passwordCheck();
    void protectionWrittenAtOnce_data();
    void protectionWrittenAtOnce();
    void showCharsTogglesAllFour();
    void languageChange();

private:
    template<typename T = QWidget>
    static T *child(const pdfprotect &dialog, const QString &name)
    {
        T *widget = dialog.findChild<T *>(name);
        if (!widget)
            qFatal("missing widget %s", qPrintable(name));
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
    // name: object name; parent: its parent widget; geometry; text: text or group title
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QString>("text");
    QTest::newRow("ok") << "pb_ok"
                        << "pdfprotect" << QRect(390, 480, 75, 24) << "Ok";
    QTest::newRow("title label, trailing blank")
        << "label_2"
        << "groupBox" << QRect(20, 30, 111, 16) << "Title ";
    QTest::newRow("producer") << "le_pdf_producer"
                              << "groupBox" << QRect(20, 350, 441, 20) << "";
    QTest::newRow("protection group") << "gb_pdf_protect"
                                      << "tab_2" << QRect(10, 50, 511, 351) << "Protection";
    QTest::newRow("owner repeat") << "le_pdf_owner_pw_2"
                                  << "gb_pdf_protect" << QRect(210, 100, 141, 20) << "";
    QTest::newRow("misspelt permission")
        << "ch_pdf_editnotes"
        << "groupBox_2" << QRect(250, 60, 241, 19) << "Modify annoations or form fields";
    QTest::newRow("encryption level, trailing blank")
        << "label"
        << "gb_pdf_protect" << QRect(10, 330, 251, 16) << "High Encryption Level (128 bits) ";
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
    const QWidget *widget = child(dialog, name);
    QCOMPARE(widget->parentWidget()->objectName(), parent);
    QCOMPARE(widget->geometry(), geometry);
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        QCOMPARE(box->title(), text);
    else if (!qobject_cast<const QLineEdit *>(widget))
        QCOMPARE(widget->property("text").toString(), text);
}

void tst_PdfProtect::tabOrderSkipsRepeatFields()
{
    pdfprotect dialog;
    const QStringList designed = {"pb_ok", "pb_cancel", "tabWidget", "le_pdf_title",
        "le_pdf_subject", "le_pdf_author", "le_pdf_keywords", "le_pdf_creator", "le_pdf_producer",
        "cb_security", "le_pdf_user_pw", "le_pdf_owner_pw", "ch_showchars_pw", "ch_pdf_print",
        "ch_pdf_highprint", "ch_pdf_copy", "ch_pdf_accessible", "ch_pdf_edit", "ch_pdf_editnotes",
        "ch_pdf_fillandsign", "ch_pdf_assemble"};
    QStringList chain;
    QWidget *widget = child(dialog, QStringLiteral("pb_ok"));
    do {
        if (designed.contains(widget->objectName()))
            chain << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (chain.size() < designed.size() && widget->objectName() != QLatin1String("pb_ok"));
    QCOMPARE(chain, designed);
    // Tab goes from a password straight on, past its repeat field.
    QCOMPARE(child(dialog, QStringLiteral("le_pdf_user_pw"))->nextInFocusChain()->objectName(),
        QStringLiteral("le_pdf_owner_pw"));
    QCOMPARE(child(dialog, QStringLiteral("le_pdf_owner_pw"))->nextInFocusChain()->objectName(),
        QStringLiteral("ch_showchars_pw"));
}

void tst_PdfProtect::loadsProtection_data()
{
    // protect: stored flag; item: expected combo text (its index enables the group or not)
    QTest::addColumn<bool>("protect");
    QTest::addColumn<QString>("item");
    QTest::newRow("protection off") << false << "No Encryption";
    QTest::newRow("protection on") << true << "Password Encryption";
}

void tst_PdfProtect::loadsProtection()
{
    QFETCH(bool, protect);
    QFETCH(QString, item);

    jobSettings().pdf.protect = protect;
    pdfprotect dialog;
    QCOMPARE(child<QComboBox>(dialog, QStringLiteral("cb_security"))->currentText(), item);
    QCOMPARE(child(dialog, QStringLiteral("gb_pdf_protect"))->isEnabled(), protect);
    QCOMPARE(child<QTabWidget>(dialog, QStringLiteral("tabWidget"))->currentIndex(), 0);
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

// One flag loads only its own box, and its box stores only into it.
void tst_PdfProtect::permission()
{
    QFETCH(QString, box);
    QFETCH(Permission, flag);

    jobSettings().pdf.permissions.*flag = true;
    {
        pdfprotect dialog;
        const QList<QCheckBox *> boxes
            = child(dialog, QStringLiteral("groupBox_2"))->findChildren<QCheckBox *>();
        QCOMPARE(boxes.size(), 8);
        for (const QCheckBox *each : boxes)
            QCOMPARE(each->isChecked(), each->objectName() == box);
    }
    jobSettings().pdf.permissions = PdfPermissions();
    pdfprotect dialog;
    child<QCheckBox>(dialog, box)->setChecked(true);
    dialog.pb_ok();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    for (Permission each : allPermissions)
        QCOMPARE(jobSettings().pdf.permissions.*each, each == flag);
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

    const QString loaded = QStringLiteral("Quarterly r\u00e9sum\u00e9 ");
    jobSettings().pdf.*text = loaded;
    pdfprotect dialog;
    for (const QLineEdit *each :
        child(dialog, QStringLiteral("groupBox"))->findChildren<QLineEdit *>())
        QCOMPARE(each->text(), each->objectName() == edit ? loaded : QString());

    child<QLineEdit>(dialog, edit)->setText(QStringLiteral("Changed"));
    dialog.pb_ok();
    for (DocumentText each : allTexts)
        QCOMPARE(jobSettings().pdf.*each, each == text ? QStringLiteral("Changed") : QString());
}

void tst_PdfProtect::passwordCheck_data()
{
    // user, userRepeat, owner, ownerRepeat: the four fields as typed; title: the message box
    // shown ("" for none); userAfter, ownerAfter: the two repeat fields afterwards
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
    QTest::newRow("both differ, user first") << "u1"
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
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_user_pw"))->setText(user);
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_user_pw_2"))->setText(userRepeat);
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_owner_pw"))->setText(owner);
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_owner_pw_2"))->setText(ownerRepeat);
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_title"))->setText(QStringLiteral("Edited"));
    // Encryption stays off: the fields are disabled but compared all the same.
    child<QPushButton>(dialog, QStringLiteral("pb_ok"))->click();

    QCOMPARE(child<QLineEdit>(dialog, QStringLiteral("le_pdf_user_pw_2"))->text(), userAfter);
    QCOMPARE(child<QLineEdit>(dialog, QStringLiteral("le_pdf_owner_pw_2"))->text(), ownerAfter);
    const PdfSettings &pdf = jobSettings().pdf;
    if (title.isEmpty()) {
        QVERIFY(prompts.messages.isEmpty());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(pdf.userPassword, user);
        QCOMPARE(pdf.ownerPassword, owner);
        QCOMPARE(pdf.title, QStringLiteral("Edited"));
        return;
    }
    QCOMPARE(prompts.messages.size(), 1);
    QCOMPARE(prompts.messages[0].parent, &dialog);
    QCOMPARE(prompts.messages[0].title, title);
    QCOMPARE(prompts.messages[0].text, QStringLiteral("Password entered does not match."));
    QCOMPARE(prompts.messages[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    // The dialog stays open and nothing is stored, not even the edited document information.
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(pdf.userPassword, QString());
    QCOMPARE(pdf.title, QString());
}

void tst_PdfProtect::protectionWrittenAtOnce_data()
{
    // stored: flag before the dialog; chosen: combo index picked; ok: leave by Ok with a
    // mismatch (the dialog stays open) instead of Cancel
    QTest::addColumn<bool>("stored");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("ok");
    QTest::newRow("switched on, Cancel") << false << 1 << false;
    QTest::newRow("switched off, Cancel") << true << 0 << false;
    QTest::newRow("switched on, Ok with mismatch") << false << 1 << true;
}

void tst_PdfProtect::protectionWrittenAtOnce()
{
    QFETCH(bool, stored);
    QFETCH(int, chosen);
    QFETCH(bool, ok);

    jobSettings().pdf.protect = stored;
    pdfprotect dialog;
    child<QComboBox>(dialog, QStringLiteral("cb_security"))->setCurrentIndex(chosen);
    QCOMPARE(child(dialog, QStringLiteral("gb_pdf_protect"))->isEnabled(), chosen == 1);
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_user_pw"))->setText(QStringLiteral("typed"));
    child<QLineEdit>(dialog, QStringLiteral("le_pdf_subject"))->setText(QStringLiteral("typed"));
    child<QPushButton>(dialog, QLatin1String(ok ? "pb_ok" : "pb_cancel"))->click();

    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(jobSettings().pdf.protect, chosen == 1);
    QCOMPARE(jobSettings().pdf.userPassword, QString());
    QCOMPARE(jobSettings().pdf.subject, QString());
}

void tst_PdfProtect::showCharsTogglesAllFour()
{
    pdfprotect dialog;
    const QList<QLineEdit *> fields
        = child(dialog, QStringLiteral("gb_pdf_protect"))->findChildren<QLineEdit *>();
    QCOMPARE(fields.size(), 4);
    auto *show = child<QCheckBox>(dialog, QStringLiteral("ch_showchars_pw"));
    // The box sits in the Protection group, which only encryption enables.
    child<QComboBox>(dialog, QStringLiteral("cb_security"))->setCurrentIndex(1);
    for (QLineEdit::EchoMode expected :
        {QLineEdit::Password, QLineEdit::Normal, QLineEdit::Password}) {
        for (const QLineEdit *field : fields)
            QCOMPARE(field->echoMode(), expected);
        show->click();
    }
}

void tst_PdfProtect::languageChange()
{
    jobSettings().pdf.protect = true;
    pdfprotect dialog;
    MarkingTranslator translator;
    // The application posts the language change to its windows.
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(dialog.windowTitle(), QStringLiteral("~ Advanced PDF Settings "));
    QCOMPARE(child<QLabel>(dialog, QStringLiteral("label_2"))->text(), QStringLiteral("~Title "));
    QCOMPARE(child<QGroupBox>(dialog, QStringLiteral("groupBox_2"))->title(),
        QStringLiteral("~Allowed"));
    QCOMPARE(child<QTabWidget>(dialog, QStringLiteral("tabWidget"))->tabText(1),
        QStringLiteral("~Security"));
    const auto *security = child<QComboBox>(dialog, QStringLiteral("cb_security"));
    QCOMPARE(security->count(), 2);
    QCOMPARE(security->itemText(0), QStringLiteral("~No Encryption"));
    // Translating the items is no choice of the user.
    QCOMPARE(security->currentIndex(), 1);
    QVERIFY(jobSettings().pdf.protect);

    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(dialog.windowTitle(), QStringLiteral(" Advanced PDF Settings "));
    QCOMPARE(security->itemText(1), QStringLiteral("Password Encryption"));
}

QTEST_MAIN(tst_PdfProtect)
#include "tst_pdfprotect.moc"
