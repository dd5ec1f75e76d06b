// SPDX-License-Identifier: GPL-3.0-or-later
// The advanced PDF dialog against the shared job values: each value in its own widget, the
// password check, Cancel, echo, tab order and language. Print's saving of them is the settings
// suite's.
#include "pdf/pdfprotect.h"
#include "tests/support/findwidget.h"
#include "tests/support/jobfields.h"
#include "tests/support/markingtranslator.h"
#include "tests/support/scriptedprompts.h"

#include <QTest>
#include <QtWidgets>

namespace {

using Shown = FormState;

// The password fields: user, its repeat, owner, its repeat.
const QStringList passwords
    = {"le_pdf_user_pw", "le_pdf_user_pw_2", "le_pdf_owner_pw", "le_pdf_owner_pw_2"};

} // namespace

class tst_PdfProtect : public QObject
{
    Q_OBJECT

private slots:
    void init() { jobSettings() = JobSettings(); }

    // Each job value alone: set, a new dialog shows it in exactly its own widgets; shown there
    // on a new job, OK stores exactly that value.
    void eachValueInItsWidget_data()
    {
        QTest::addColumn<QString>("value"); // of the job value named by the row
        QTest::addColumn<Shown>("widgets"); // all that differs in a new dialog
        // clang-format off
        QTest::newRow("pdf.title")         << "Title"    << Shown{{"le_pdf_title", "Title"}};
        QTest::newRow("pdf.author")        << "Author"   << Shown{{"le_pdf_author", "Author"}};
        QTest::newRow("pdf.subject")       << "Subject"  << Shown{{"le_pdf_subject", "Subject"}};
        QTest::newRow("pdf.keywords")      << "Keywords" << Shown{{"le_pdf_keywords", "Keywords"}};
        QTest::newRow("pdf.creator")       << "Creator"  << Shown{{"le_pdf_creator", "Creator"}};
        QTest::newRow("pdf.producer")      << "Producer" << Shown{{"le_pdf_producer", "Producer"}};
        QTest::newRow("pdf.userPassword")  << "pw"       << Shown{{"le_pdf_user_pw", "pw"}, {"le_pdf_user_pw_2", "pw"}};
        QTest::newRow("pdf.ownerPassword") << "ow"       << Shown{{"le_pdf_owner_pw", "ow"}, {"le_pdf_owner_pw_2", "ow"}};
        QTest::newRow("pdf.protect")                 << "true" << Shown{{"cb_security", "Password Encryption"}};
        QTest::newRow("pdf.permissions.print")       << "true" << Shown{{"ch_pdf_print", "checked"}};
        QTest::newRow("pdf.permissions.edit")        << "true" << Shown{{"ch_pdf_edit", "checked"}};
        QTest::newRow("pdf.permissions.copy")        << "true" << Shown{{"ch_pdf_copy", "checked"}};
        QTest::newRow("pdf.permissions.editNotes")   << "true" << Shown{{"ch_pdf_editnotes", "checked"}};
        QTest::newRow("pdf.permissions.fillAndSign") << "true" << Shown{{"ch_pdf_fillandsign", "checked"}};
        QTest::newRow("pdf.permissions.accessible")  << "true" << Shown{{"ch_pdf_accessible", "checked"}};
        QTest::newRow("pdf.permissions.assemble")    << "true" << Shown{{"ch_pdf_assemble", "checked"}};
        QTest::newRow("pdf.permissions.highPrint")   << "true" << Shown{{"ch_pdf_highprint", "checked"}};
        // clang-format on
    }
    void eachValueInItsWidget()
    {
        QFETCH(QString, value);
        QFETCH(Shown, widgets);
        const QString field = QTest::currentDataTag();
        const Shown jobByDefault = JobFields::all();
        const Shown dialogByDefault = shownByNewDialog();
        QVERIFY(JobFields::set(field, value));
        QCOMPARE(FormStates::text(FormStates::changes(dialogByDefault, shownByNewDialog())),
            FormStates::text(widgets));

        jobSettings() = JobSettings();
        pdfprotect dialog;
        for (auto it = widgets.begin(); it != widgets.end(); ++it)
            FormStates::set(findWidget(&dialog, it.key()), it.value());
        findWidget<QPushButton>(&dialog, "pb_ok")->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(FormStates::text(FormStates::changes(jobByDefault, JobFields::all())),
            FormStates::text({{field, value}}));
    }

    // Both pairs are compared, user pair first, also with encryption off; only a match stores.
    // Driver contract: the protection flag is written as soon as the combo box changes, so Cancel
    // keeps it.
    void okAndCancel_data()
    {
        QTest::addColumn<bool>("protect"); // the job's protection flag before
        QTest::addColumn<int>("chosen"); // the encryption picked; -1: none
        QTest::addColumn<QStringList>("typed"); // user, its repeat, owner, its repeat
        QTest::addColumn<QString>("button"); // how the dialog is left
        QTest::addColumn<QString>("message"); // the title of the message shown; empty: none
        QTest::addColumn<QStringList>("repeats"); // the two repeat fields afterwards
        // clang-format off
        QTest::newRow("both changed, match")     << true  << -1 << QStringList{"u1", "u1", "o1", "o1"} << "pb_ok"     << ""               << QStringList{"u1", "o1"};
        QTest::newRow("user differs")            << false << -1 << QStringList{"u1", "u2", "o1", "o1"} << "pb_ok"     << "User Password"  << QStringList{"", "o1"};
        QTest::newRow("owner differs")           << false << -1 << QStringList{"u1", "u1", "o1", "o2"} << "pb_ok"     << "Owner Password" << QStringList{"u1", ""};
        QTest::newRow("both differ, user first") << false << -1 << QStringList{"u1", "u2", "o1", "o2"} << "pb_ok"     << "User Password"  << QStringList{"", "o2"};
        QTest::newRow("case differs")            << false << -1 << QStringList{"Secret", "secret", "", ""} << "pb_ok" << "User Password"  << QStringList{"", ""};
        QTest::newRow("switched on, Cancel")     << false << 1  << QStringList{"u1", "u1", "", ""}     << "pb_cancel" << ""               << QStringList{"u1", ""};
        QTest::newRow("switched off, Cancel")    << true  << 0  << QStringList{"u1", "u1", "", ""}     << "pb_cancel" << ""               << QStringList{"u1", ""};
        QTest::newRow("switched on, mismatch")   << false << 1  << QStringList{"u1", "u2", "", ""}     << "pb_ok"     << "User Password"  << QStringList{"", ""};
        // clang-format on
    }
    void okAndCancel()
    {
        QFETCH(bool, protect);
        QFETCH(int, chosen);
        QFETCH(QStringList, typed);
        QFETCH(QString, button);
        QFETCH(QString, message);
        QFETCH(QStringList, repeats);
        ScriptedPrompts prompts;
        jobSettings().pdf = {"Title", "Author", "Subject", "Keywords", "Creator",
            QStringLiteral("Pr\u00f6ducer "), "user", "owner", protect,
            {true, false, true, false, true, false, true, false}};
        const Shown loaded = JobFields::all();
        pdfprotect dialog;
        findWidget<QLineEdit>(&dialog, "le_pdf_title")->setText("New title");
        for (int i = 0; i < 4; ++i)
            findWidget<QLineEdit>(&dialog, passwords[i])->setText(typed[i]);
        auto *security = findWidget<QComboBox>(&dialog, "cb_security");
        QCOMPARE(security->currentText(), protect ? "Password Encryption" : "No Encryption");
        if (chosen >= 0)
            security->setCurrentIndex(chosen);
        const bool on = chosen >= 0 ? chosen == 1 : protect;
        QCOMPARE(findWidget(&dialog, "gb_pdf_protect")->isEnabled(), on);
        findWidget<QPushButton>(&dialog, button)->click();

        QCOMPARE(QStringList({findWidget<QLineEdit>(&dialog, passwords[1])->text(),
                     findWidget<QLineEdit>(&dialog, passwords[3])->text()}),
            repeats);
        QCOMPARE(prompts.questions.size(), message.isEmpty() ? 0 : 1);
        for (const ScriptedPrompts::Question &asked : std::as_const(prompts.questions)) {
            QVERIFY(asked.parent == &dialog && asked.buttons == QMessageBox::Ok);
            QCOMPARE(asked.title, message);
            QCOMPARE(asked.text, "Password entered does not match.");
        }
        // On a mismatch the dialog stays open and nothing is stored, not even the document
        // information; the protection flag is kept on Cancel.
        const bool stored = button == "pb_ok" && message.isEmpty();
        QCOMPARE(dialog.result(), int(stored ? QDialog::Accepted : QDialog::Rejected));
        Shown expected;
        if (on != protect)
            expected.insert("pdf.protect", QVariant(on).toString());
        if (stored)
            expected.insert({{"pdf.title", "New title"}, {"pdf.userPassword", typed[0]},
                {"pdf.ownerPassword", typed[2]}});
        QCOMPARE(FormStates::text(FormStates::changes(loaded, JobFields::all())),
            FormStates::text(expected));
    }

    // Show characters switches all four password fields, and back (with encryption on, where the
    // box can be clicked).
    void showCharacters()
    {
        jobSettings().pdf.protect = true;
        pdfprotect dialog;
        for (const QLineEdit::EchoMode mode :
            {QLineEdit::Password, QLineEdit::Normal, QLineEdit::Password}) {
            for (const QString &name : passwords)
                QCOMPARE(findWidget<QLineEdit>(&dialog, name)->echoMode(), mode);
            findWidget<QCheckBox>(&dialog, "ch_showchars_pw")->click();
        }
    }

    // Tab goes from the title to the subject, and from a password straight on, past its repeat.
    void tabOrder_data()
    {
        QTest::addColumn<QString>("next");
        QTest::newRow("pb_ok") << "pb_cancel";
        QTest::newRow("le_pdf_title") << "le_pdf_subject";
        QTest::newRow("le_pdf_subject") << "le_pdf_author";
        QTest::newRow("le_pdf_user_pw") << "le_pdf_owner_pw";
        QTest::newRow("le_pdf_owner_pw") << "ch_showchars_pw";
        QTest::newRow("ch_pdf_print") << "ch_pdf_highprint";
    }
    void tabOrder()
    {
        QFETCH(QString, next);
        pdfprotect dialog;
        QCOMPARE(
            findWidget(&dialog, QTest::currentDataTag())->nextInFocusChain()->objectName(), next);
    }

    // A language installed at run time translates the texts and leaves the choice alone.
    void language()
    {
        jobSettings().pdf.protect = true;
        pdfprotect dialog;
        MarkingTranslator translator("pdfprotect"); // the application posts the change
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(dialog.windowTitle(), "~ Advanced PDF Settings ");
        const auto *security = findWidget<QComboBox>(&dialog, "cb_security");
        QCOMPARE(security->itemText(1), "~Password Encryption");
        QCOMPARE(security->currentIndex(), 1);
        QVERIFY(jobSettings().pdf.protect);
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(dialog.windowTitle(), " Advanced PDF Settings ");
    }

private:
    static Shown shownByNewDialog()
    {
        const pdfprotect dialog;
        return FormStates::all(&dialog);
    }
};

QTEST_MAIN(tst_PdfProtect)
#include "tst_pdfprotect.moc"
