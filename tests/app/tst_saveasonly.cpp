// SPDX-License-Identifier: GPL-3.0-or-later
// The program's run as the driver starts it: the save-as-only mode end to end, and the argument
// taken as the name and nothing else.
#include "app/runprotocol.h"
#include "dialog/mainwindow.h"
#include "platform/windoworder.h"
#include "settings/settingskey.h"
#include "tests/support/jobfixture.h"
#include "tests/support/scriptedprompts.h"

#include <QTest>
#include <QtWidgets>

namespace {

QStringList writes; // "U name=value" or "M name=value", in the order handed to the store

// What the normal mode's dialog showed before Print or Cancel was pressed on it: "topmost | file
// name | direction | style sheet"; empty: not shown.
QString shownDialog;
bool pressPrint = false; // otherwise Cancel

void answerShownDialog()
{
    QTimer::singleShot(0, qApp, [] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *window = qobject_cast<MainWindow *>(widget);
            if (!window || !window->isVisible())
                continue;
            shownDialog = QStringList {WindowOrder::isTopmost(window) ? "topmost" : "behind",
                window->findChild<QLineEdit *>("le_filename")->text(),
                QGuiApplication::isRightToLeft() ? "right to left" : "left to right",
                qApp->styleSheet()}
                              .join(" | ");
            pressPrint ? window->pb_print() : window->pb_cancel();
        }
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(answerShownDialog)

class tst_SaveAsOnly : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // Not under a folder named after the program, where the converter rule would look first.
        QCoreApplication::setApplicationName("saveasonly");
        job = std::make_unique<JobFixture>();
        out = job->path("out/");
        QVERIFY(QDir().mkpath(out));
        writes.clear();
        SettingsKey::setWriteObserver([](SettingsScope scope, const QString &name,
                                          const QVariant &value) {
            writes << (scope == SettingsScope::User ? "U " : "M ") + name + '=' + value.toString();
        });
    }
    void cleanup()
    {
        SettingsKey::setWriteObserver(nullptr);
        QDir::setCurrent(QDir::tempPath());
    }

    void outcome_data()
    {
        QTest::addColumn<QStringList>("files"); // the answers of the Save As dialogs, in turn
        QTest::addColumn<bool>("inFolder"); // the answers name the output folder; else bare
        QTest::addColumn<QString>("filter"); // left selected in Save As
        QTest::addColumn<bool>("allUsers");
        QTest::addColumn<bool>("converter"); // the DjVu converter lies beside the program
        QTest::addColumn<QString>("name"); // newfilename saved; null: the job is cancelled
        QTest::addColumn<QString>("format");

        const QString pdf = QStringLiteral("PDF Format (*.pdf)");
        const QString png = QStringLiteral("PNG Format (*.png)");
        // clang-format off
        QTest::newRow("pdf")              << QStringList{"report.pdf"} << true  << pdf << false << true  << "report" << "pdf";
        QTest::newRow("pdf, all users")   << QStringList{"report.pdf"} << true  << pdf << true  << true  << "report" << "pdf";
        QTest::newRow("djvu")             << QStringList{"scan.djvu"}  << true  << "DjVu Format (*.djvu)" << false << true << "scan" << "djvu";
        // Driver contract: the RTF filter is recognised by its fixed text only.
        QTest::newRow("rtf under doc")    << QStringList{"a.doc"}      << true  << "RTF Format (*.doc)" << false << true << "a" << "";
        // A file that cannot be written brings a message and a new dialog.
        QTest::newRow("unwritable twice") << QStringList{"no/a.png", "no/a.png", "b.png"} << true << png << false << false << "b" << "png";
        // Driver contract: this mode's own limit: 3 characters are a name, 2 are a cancel.
        QTest::newRow("3 characters")     << QStringList{"abc"}        << false << pdf << false << true  << "abc" << "pdf";
        QTest::newRow("2 characters")     << QStringList{"ab"}         << false << pdf << false << true  << QString() << "";
        QTest::newRow("cancelled, all")   << QStringList{""}           << true  << pdf << true  << true  << QString() << "";
        // clang-format on
    }
    // The save-as-only switch, the output folder and an RTF extension stored where loading reads
    // them (the machine key alone when all users share it), the argument Document1.
    void outcome()
    {
        QFETCH(QStringList, files);
        QFETCH(bool, inFolder);
        QFETCH(QString, filter);
        QFETCH(bool, allUsers);
        QFETCH(bool, converter);
        QFETCH(QString, name);
        QFETCH(QString, format);
        job->writeFile(allUsers ? job->machineFile() : job->userFile(),
            ("chDialog_SaveAs=true\npath=" + out
                + "\next_rtf=doc\nsettings_for_all_users=" + (allUsers ? "true" : "false"))
                .toUtf8());
        if (converter)
            job->writeFile(job->path("bin/" + RunProtocol::converterFileName()), {});
        job->writeFile(out + "report.pdf", "previous job"); // replaced: the driver writes afresh
        QVERIFY(QDir::setCurrent(out));
        ScriptedPrompts prompts;
        for (const QString &file : std::as_const(files))
            prompts.chosenFiles << (inFolder && !file.isEmpty() ? out + file : file);
        prompts.chosenFilter = filter;

        QCOMPARE(runProgram({"Document1"}), 0);

        QCOMPARE(prompts.saveAsCalls.size(), files.size());
        QCOMPARE(prompts.questions.size(), files.size() - 1);
        for (const ScriptedPrompts::Question &asked : std::as_const(prompts.questions))
            QCOMPARE(asked.text,
                "You have no permission to write in this directory.\nPlease, choose another one.");
        // Every dialog starts from the loaded folder, name and filter, not from a failed try, and
        // offers this mode's own list. The banner's frame (406 x 55 and a 2-pixel border) stands 40
        // pixels left of the 800 x 800 screen's right edge, three frame heights above its bottom.
        const QString djvu = converter ? "DjVu Format (*.djvu);;" : "";
        for (const ScriptedPrompts::SaveAs &asked : std::as_const(prompts.saveAsCalls)) {
            QCOMPARE(asked.caption, "Save File As...");
            QCOMPARE(asked.path, out + "Document1");
            QCOMPARE(asked.preselectedFilter, "TIFF Format (*.tif)");
            QVERIFY2(asked.filters.endsWith("SWF Format (*.swf);;" + djvu
                         + "RTF Format (*.doc);;MS Excel Format (*.xls);;HTML Format (*.html)"),
                qPrintable(asked.filters));
            QCOMPARE(asked.parentPosition, QPoint(799 - 410 - 40, 799 - 3 * 59));
        }

        QCOMPARE(writes, expectedWrites(name, inFolder ? out : QString(), format, allUsers));
        // The write test leaves nothing behind; an earlier file of the chosen name is gone.
        QCOMPARE(QDir(out).entryList(QDir::Files),
            name == "report" ? QStringList() : QStringList {"report.pdf"});
    }

    void argumentIsTheName_data()
    {
        QTest::addColumn<QByteArrayList>("arguments"); // after the program's path
        QTest::addColumn<QString>("name"); // what the dialog shows and Print saves
        QTest::addColumn<bool>("printable"); // the system can create a file of that name
        const QByteArray styleSheet = QFile::encodeName(QDir::temp().filePath("any.qss"));
        // clang-format off
        QTest::newRow("no argument: nothing shown or written") << QByteArrayList{} << QString() << false;
        QTest::newRow("Qt's -reverse")      << QByteArrayList{"-reverse"}                 << "-reverse"          << true;
        QTest::newRow("Qt's -platform")     << QByteArrayList{"-platform", "x"}           << "-platform"         << true;
        QTest::newRow("Qt's -stylesheet=")  << QByteArrayList{"-stylesheet=" + styleSheet} << QString::fromLocal8Bit("-stylesheet=" + styleSheet) << false;
        QTest::newRow("spaces only")        << QByteArrayList{"   "}                      << "   "               << true;
        // As the locale decodes it: bytes that are no UTF-8 become replacement characters.
        QTest::newRow("not UTF-8")          << QByteArrayList{"a\xff\xfe"}                << QString::fromLocal8Bit("a\xff\xfe") << true;
        // clang-format on
    }
    // The argument is the proposed file name and nothing else: Qt never reads it as an option.
    void argumentIsTheName()
    {
        QFETCH(QByteArrayList, arguments);
        QFETCH(QString, name);
        QFETCH(bool, printable);
        job->writeFile(QDir::temp().filePath("any.qss"), "QLineEdit { color: red }");
        job->writeFile(job->userFile(), ("path=" + out).toUtf8());
        shownDialog.clear();
        pressPrint = printable;

        QCOMPARE(runProgram(arguments), 0);

        QFile::remove(QDir::temp().filePath("any.qss"));
        // In front of the printing application from the start, the name as it came.
        QCOMPARE(shownDialog,
            name.isNull() ? QString() : "topmost | " + out + name + " | left to right | ");
        QCOMPARE(writes.isEmpty(), name.isNull());
        QCOMPARE(JobFixture::valueOf(job->userFile(), "newfilename"), printable ? name : QString());
        QCOMPARE(JobFixture::valueOf(job->userFile(), "isabort"),
            name.isNull()   ? QString()
                : printable ? "false"
                            : "true");
    }

private:
    int runProgram(QByteArrayList arguments)
    {
        QByteArray program = job->path("bin/" + RunProtocol::programFileName()).toLocal8Bit();
        QList<char *> argv {program.data()};
        for (QByteArray &argument : arguments)
            argv << argument.data();
        argv << nullptr;
        int argc = int(argv.size()) - 1;
        return RunProtocol::run(argc, argv.data());
    }

    // The exchange values of a saved or cancelled job in the order the driver finds them: this
    // mode saves the user key first, while a cancel goes to the machine key first.
    static QStringList expectedWrites(
        const QString &name, const QString &folder, const QString &format, bool allUsers)
    {
        const QStringList values = name.isNull()
            ? QStringList {"isabort=true"}
            : QStringList {
                "isabort=false", "newfilename=" + name, "Path=" + folder, "format=" + format};
        QStringList user, machine;
        for (const QString &value : values)
            user << "U " + value, machine << "M " + value;
        return !allUsers ? user : name.isNull() ? machine + user : user + machine;
    }

    std::unique_ptr<JobFixture> job;
    QString out; // a writable output folder, with its trailing separator
};

QTEST_APPLESS_MAIN(tst_SaveAsOnly)
#include "tst_saveasonly.moc"
