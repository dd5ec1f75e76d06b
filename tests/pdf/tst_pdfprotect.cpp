// SPDX-License-Identifier: GPL-3.0-or-later
// The advanced PDF dialog against the shared job values: the password check, Cancel and echo.
// Each value in its own widget is the settings suite's, a language installed at run time the
// main window suite's, the tab order the accessibility suite's.
#include "pdf/pdfprotect.h"
#include "tests/support/findwidget.h"
#include "tests/support/jobfields.h"
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
};

QTEST_MAIN(tst_PdfProtect)
#include "tst_pdfprotect.moc"
