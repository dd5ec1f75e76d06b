// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/openwindow.h"

#include <QApplication>
#include <QTest>

namespace {

// Print's questions as "title|text|buttons"; %T is the folder, %N the full name.
// clang-format off
const char *const missing = "(null)|%T/missing/\nThis directory doesn't exist.\n\nPlease choose correct directory|Ok";
const char *const replace = "Vellumio|%N already exists.\nDo you want to replace it?|Yes No";
const char *const permission = "Vellumio|You have no permission to write in this directory.\nPlease, choose another one.|Ok";
// clang-format on

} // namespace

// Print's checks and their questions, Cancel, and closing by the title bar. What Print saves is
// proven by the settings suite's write-order test.
class PrintTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void checks_data()
    {
        // le_filename below the temporary folder; the setup: a "file" or "folder" already at it
        // + ".pdf", "saveas" for a name from Save As, and the answers; then the questions in
        // turn (%M, %R, %P) and whether the dialog is closed and an old file or folder is "kept".
        // "cancel" or "close" (the title bar) instead of Print, "all" when all users share the
        // settings; then the user and the machine key as they are left, line by line.
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("outcome");
        // clang-format off
        QTest::newRow("new file")               << "report"         << ""            << "closed";
        QTest::newRow("missing folder")         << "missing/report" << ""            << "%M open";
        QTest::newRow("missing, from Save As")  << "missing/report" << "saveas"      << "%M open";
        QTest::newRow("existing file, Yes")     << "report"         << "file Yes"    << "%R closed";
        QTest::newRow("existing file, No")      << "report"         << "file No"     << "%R open kept";
        QTest::newRow("box closed otherwise")   << "report"         << "file"        << "%R closed";
        QTest::newRow("existing, from Save As") << "report"         << "file saveas" << "closed";
        QTest::newRow("cannot create, Yes")     << "report"         << "folder Yes"  << "%R %P open kept";
        QTest::newRow("cannot create, Save As") << "report"         << "folder saveas" << "%P open kept";
        QTest::newRow("NUL in name")            << QStringLiteral("rep") + QChar(0) + "ort" << "" << "%P open";
        // Only the abort flag is written, to the keys in use; the dialog's changes are lost.
        const QString user = "[General] isabort=false format=png q_jpg=42 ", machine = "[General] isabort=false format=bmp settings_for_all_users=";
        const QString cancelled = "[General] format=png isabort=true q_jpg=42 ";
        QTest::newRow("Cancel, user key")       << "report"         << "cancel"      << "closed | " + cancelled + "| " + machine + "false ";
        QTest::newRow("Cancel, both keys")      << "report"         << "cancel all"  << "closed | " + cancelled + "| [General] format=bmp isabort=true settings_for_all_users=true ";
        QTest::newRow("title bar")              << "report"         << "close all"   << "closed | " + user + "| " + machine + "true ";
        // clang-format on
    }
    void checks()
    {
        QFETCH(QString, name);
        QFETCH(QString, setup);
        QFETCH(QString, outcome);
        OpenWindow w(false);
        const QByteArray machine = QByteArray("[General]\nisabort=false\nformat=bmp\n")
            + "settings_for_all_users=" + (setup.contains("all") ? "true" : "false") + '\n';
        const QByteArray user = "[General]\nisabort=false\nformat=png\nq_jpg=42\n";
        w.job.writeFile(w.job.machineFile(), machine);
        w.job.writeFile(w.job.userFile(), user);
        w.window = w.job.createWindow(false); // loads the keys just written
        const QString root = QDir::cleanPath(w.job.dir.path());
        const QString file = root + '/' + name + ".pdf";
        if (setup.contains("file"))
            w.job.writeFile(file, "an earlier print");
        if (setup.contains("folder"))
            QVERIFY(QDir().mkpath(file));
        if (setup.contains("saveas"))
            w.window->pb_filename(); // cancelled: the name still counts as chosen there
        if (setup.contains("Yes") || setup.contains("No"))
            w.prompts.answers << (setup.contains("Yes") ? QMessageBox::Yes : QMessageBox::No);
        w.window->show();
        WindowOrder::setTopmost(w.window.get());
        w.prompts.watched = w.window.get();
        w.tabs()->setCurrentIndex(Formats::Pdf);
        w.fileName()->setText(root + '/' + name);

        setup.startsWith("cancel")      ? w.window->pb_cancel()
            : setup.startsWith("close") ? void(w.window->close())
                                        : w.window->pb_print();

        QString asked;
        for (const ScriptedPrompts::Question &q : std::as_const(w.prompts.questions)) {
            // Boxes have no parent, and the dialog was taken off the top before the first.
            QVERIFY(!q.parent && !q.watchedWasTopmost);
            asked += (q.title.isNull() ? "(null)" : q.title) + '|' + q.text + '|'
                + (q.buttons == QMessageBox::Ok                             ? "Ok "
                        : q.buttons == (QMessageBox::Yes | QMessageBox::No) ? "Yes No "
                                                                            : "? ");
        }
        asked += w.window->isVisible() ? "open" : "closed";
        asked += QFileInfo::exists(file) ? " kept" : "";
        if (setup.startsWith('c'))
            asked += " | "
                + QString(JobFixture::bytesOf(w.job.userFile()) + "| "
                    + JobFixture::bytesOf(w.job.machineFile()))
                      .replace('\n', ' ');
        outcome.replace("%M", missing).replace("%R", replace).replace("%P", permission);
        QCOMPARE(asked, outcome.replace("%T", root).replace("%N", file));
        QVERIFY(setup.startsWith('c') || !WindowOrder::isTopmost(w.window.get()));
        // The write test removes what it created or replaced, and creates nothing else.
        QCOMPARE(QDir(root).entryList(QDir::Files).size(), int(setup == "file No"));
        if (setup == "file No")
            QCOMPARE(JobFixture::bytesOf(file), QByteArray("an earlier print"));
    }
};

QTEST_MAIN(PrintTest)
#include "tst_print.moc"
