// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/pdfprotect.h"
#include "settings/jobsettings.h"
#include "tests/support/markingtranslator.h"
#include "tests/support/scriptedprompts.h"

#include <QTest>
#include <QtWidgets>

namespace {

// The shared values' fields: eight texts, then the eight permission boxes.
const QStringList fields = {"le_pdf_title", "le_pdf_author", "le_pdf_subject", "le_pdf_keywords",
    "le_pdf_creator", "le_pdf_producer", "le_pdf_user_pw", "le_pdf_owner_pw", "ch_pdf_print",
    "ch_pdf_edit", "ch_pdf_copy", "ch_pdf_editnotes", "ch_pdf_fillandsign", "ch_pdf_accessible",
    "ch_pdf_assemble", "ch_pdf_highprint"};

// A missing one crashes the test, which is a failure too.
template<typename T = QWidget>
T *child(const QObject &dialog, const QString &name)
{
    return dialog.findChild<T *>(name);
}

// The password fields: user, its repeat, owner, its repeat.
const QStringList passwords
    = {"le_pdf_user_pw", "le_pdf_user_pw_2", "le_pdf_owner_pw", "le_pdf_owner_pw_2"};

// What the dialog shows, in the order of `fields`; with `change`, every field is then changed,
// each to a value of its own.
QStringList shown(const pdfprotect &dialog, bool change = false)
{
    QStringList values;
    for (const QString &name : fields) {
        auto *edit = child<QLineEdit>(dialog, name);
        auto *box = child<QCheckBox>(dialog, name);
        values << (edit ? edit->text() : QVariant(box->isChecked()).toString());
        if (change)
            edit ? edit->setText(name.mid(7)) : box->toggle();
    }
    return values;
}

} // namespace

// The advanced PDF dialog edits the shared job values; Print's saving of them is proven by the
// settings suite's write-order and round-trip tests.
class tst_PdfProtect : public QObject
{
    Q_OBJECT

private slots:
    void init() { jobSettings() = JobSettings(); }
    void okAndCancel_data()
    {
        // stored: the protection flag before; chosen: the combo index picked (-1: none); typed:
        // user, its repeat, owner, its repeat; button: how the dialog is left; title: the message
        // shown; repeats: the two repeat fields afterwards
        QTest::addColumn<bool>("stored");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("repeats");
        // clang-format off
        QTest::newRow("both changed, match")      << true  << -1 << "u1,u1,o1,o1" << "pb_ok"     << ""               << "u1,o1";
        QTest::newRow("user differs")             << false << -1 << "u1,u2,o1,o1" << "pb_ok"     << "User Password"  << ",o1";
        QTest::newRow("owner differs")            << false << -1 << "u1,u1,o1,o2" << "pb_ok"     << "Owner Password" << "u1,";
        QTest::newRow("both differ, user first")  << false << -1 << "u1,u2,o1,o2" << "pb_ok"     << "User Password"  << ",o2";
        QTest::newRow("case differs")             << false << -1 << "Secret,secret,," << "pb_ok" << "User Password"  << ",";
        QTest::newRow("switched on, Cancel")      << false << 1  << "u1,u1,,"     << "pb_cancel" << ""               << "u1,";
        QTest::newRow("switched off, Cancel")     << true  << 0  << "u1,u1,,"     << "pb_cancel" << ""               << "u1,";
        QTest::newRow("switched on, mismatch")    << false << 1  << "u1,u2,,"     << "pb_ok"     << "User Password"  << ",";
        // clang-format on
    }
    // Both pairs are compared, user pair first, also with encryption off; only a match stores.
    // The protection flag is written as soon as the combo changes, so Cancel keeps it.
    void okAndCancel()
    {
        QFETCH(bool, stored);
        QFETCH(int, chosen);
        QFETCH(QString, typed);
        QFETCH(QString, button);
        QFETCH(QString, title);
        QFETCH(QString, repeats);
        ScriptedPrompts prompts;
        jobSettings().pdf = {"Title", "Author", "Subject", "Keywords", "Creator",
            QStringLiteral("Pr\u00f6ducer "), "user", "owner", stored,
            {true, false, true, false, true, false, true, false}};
        pdfprotect dialog;
        // Every field shows its own job value, then all are changed.
        const QStringList loaded = {"Title", "Author", "Subject", "Keywords", "Creator",
            QStringLiteral("Pr\u00f6ducer "), "user", "owner", "true", "false", "true", "false",
            "true", "false", "true", "false"};
        QCOMPARE(shown(dialog, true), loaded);
        for (int i = 0; i < 4; ++i)
            child<QLineEdit>(dialog, passwords[i])->setText(typed.section(',', i, i));
        auto *security = child<QComboBox>(dialog, "cb_security");
        QCOMPARE(security->currentText(), stored ? "Password Encryption" : "No Encryption");
        if (chosen >= 0)
            security->setCurrentIndex(chosen);
        const bool on = chosen >= 0 ? chosen == 1 : stored;
        QCOMPARE(child(dialog, "gb_pdf_protect")->isEnabled(), on);
        child<QPushButton>(dialog, button)->click();

        QCOMPARE(child<QLineEdit>(dialog, passwords[1])->text() + ','
                + child<QLineEdit>(dialog, passwords[3])->text(),
            repeats);
        QCOMPARE(prompts.questions.size(), title.isEmpty() ? 0 : 1);
        for (const ScriptedPrompts::Question &asked : std::as_const(prompts.questions)) {
            QVERIFY(asked.parent == &dialog && asked.buttons == QMessageBox::Ok);
            QCOMPARE(asked.title + '|' + asked.text, title + "|Password entered does not match.");
        }
        // On a mismatch the dialog stays open and nothing is stored, not even the document
        // information; the protection flag is kept on Cancel.
        const bool kept = button == "pb_ok" && title.isEmpty();
        QCOMPARE(dialog.result(), int(kept ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(shown(pdfprotect()), kept ? shown(dialog) : loaded); // as a new dialog loads them
        QCOMPARE(jobSettings().pdf.protect, on);
    }
    // With encryption loaded: Show characters switches all four password fields; Tab goes from the
    // title to the subject, and from a password straight on, past its repeat; a language installed
    // at run time translates the texts and leaves the choice alone.
    void echoTabOrderAndLanguage()
    {
        jobSettings().pdf.protect = true;
        pdfprotect dialog;
        QString modes; // 2: hidden, 0: shown
        for (int round = 0; round < 3;
             ++round, child<QCheckBox>(dialog, "ch_showchars_pw")->click())
            for (int i = 0; i < 4; ++i)
                modes += QString::number(child<QLineEdit>(dialog, passwords[i])->echoMode());
        QCOMPARE(modes, "222200002222");
        QStringList next;
        for (const char *name : {"pb_ok", "le_pdf_title", "le_pdf_subject", "le_pdf_user_pw",
                 "le_pdf_owner_pw", "ch_pdf_print"})
            next << child(dialog, name)->nextInFocusChain()->objectName();
        QCOMPARE(next.join(' '),
            "pb_cancel le_pdf_subject le_pdf_author le_pdf_owner_pw ch_showchars_pw "
            "ch_pdf_highprint");

        MarkingTranslator translator("pdfprotect"); // the application posts the change
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(dialog.windowTitle(), "~ Advanced PDF Settings ");
        const auto *security = child<QComboBox>(dialog, "cb_security");
        QVERIFY(security->itemText(1) == "~Password Encryption" && security->currentIndex() == 1
            && jobSettings().pdf.protect);
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(dialog.windowTitle(), " Advanced PDF Settings ");
    }
};

QTEST_MAIN(tst_PdfProtect)
#include "tst_pdfprotect.moc"
