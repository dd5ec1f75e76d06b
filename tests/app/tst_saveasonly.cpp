// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/filesavedialog.h"
#include "app/runprotocol.h"
#include "settings/settingskey.h"
#include "tests/support/jobfixture.h"
#include "tests/support/markingtranslator.h"
#include "tests/support/scriptedprompts.h"

#include <QTest>
#include <QtWidgets>

namespace {

QStringList writes; // "U name=value" or "M name=value", in the order handed to the store

// Answers each Save As with the next file of a list.
class SaveAsAnswers : public ScriptedPrompts
{
public:
    QStringList files;
    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter) override
    {
        chosenFile = files.isEmpty() ? QString() : files.takeFirst();
        return ScriptedPrompts::saveFileName(parent, caption, path, filters, selectedFilter);
    }
};

} // namespace

// The save-as-only mode run through RunProtocol::run as the driver starts the program.
class tst_SaveAsOnly : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // Not under a folder named after the program, which the converter rule would find first.
        QCoreApplication::setApplicationName("saveasonly");
        job = std::make_unique<JobFixture>();
        out = job->path("out/");
        SettingsKey::setWriteObserver([](SettingsScope scope, const QString &name,
                                          const QVariant &value) {
            writes << (scope == SettingsScope::User ? "U " : "M ") + name + '=' + value.toString();
        });
    }
    void cleanup() { QDir::setCurrent(QDir::tempPath()); }
    void outcome_data()
    {
        // files: the answers of the Save As dialogs asked one after another ("" = cancelled, "@"
        // the output folder, relative names land in the current folder, the output folder);
        // filter: left selected; converter: the DjVu converter lies beside the program; expected:
        // the writes, "@" for the output folder
        QTest::addColumn<QString>("files");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("allUsers");
        QTest::addColumn<bool>("converter");
        QTest::addColumn<QString>("expected");
        const QString saved = "U isabort=false U newfilename=%1 U Path=@ U format=%2";

        // clang-format off
        QTest::newRow("pdf")              << "@report.pdf" << "PDF Format (*.pdf)"      << false << true  << saved.arg("report", "pdf");
        QTest::newRow("pdf, all users")   << "@report.pdf" << "PDF Format (*.pdf)"      << true  << true  << saved.arg("report", "pdf") + ' ' + QString(saved).replace("U ", "M ").arg("report", "pdf");
        QTest::newRow("djvu")             << "@scan.djvu"  << "DjVu Format (*.djvu)"    << false << true  << saved.arg("scan", "djvu");
        // The RTF filter is fixed to *.rtf, whatever extension is stored for it.
        QTest::newRow("rtf under doc")    << "@a.doc"      << "RTF Format (*.doc)"      << false << true  << saved.arg("a", "");
        // A file that cannot be written brings a message and a new dialog.
        QTest::newRow("unwritable twice") << "@no/a.png|@no/a.png|@b.png" << "PNG Format (*.png)" << false << false << saved.arg("b", "png");
        QTest::newRow("3 characters")     << "abc"         << "PDF Format (*.pdf)"      << false << true  << "U isabort=false U newfilename=abc U Path= U format=pdf";
        QTest::newRow("2 characters")     << "ab"          << "PDF Format (*.pdf)"      << false << true  << "U isabort=true";
        QTest::newRow("cancelled, all")   << ""            << "PDF Format (*.pdf)"      << true  << true  << "M isabort=true U isabort=true";
        // clang-format on
    }
    // Run as the driver starts the program: the save-as-only switch, the output folder and an RTF
    // extension stored where loading reads them (the machine key alone when all users share it),
    // the argument Document1.
    void outcome()
    {
        QFETCH(QString, files);
        QFETCH(QString, filter);
        QFETCH(bool, allUsers);
        QFETCH(bool, converter);
        QFETCH(QString, expected);
        job->writeFile(allUsers ? job->machineFile() : job->userFile(),
            ("chDialog_SaveAs=true\npath=" + out
                + "\next_rtf=doc\nsettings_for_all_users=" + (allUsers ? "true" : "false"))
                .toUtf8());
        if (converter)
            job->writeFile(job->path("bin/" + RunProtocol::converterFileName()), {});
        job->writeFile(out + "report.pdf", "previous job"); // replaced: the driver writes afresh
        QVERIFY(QDir::setCurrent(out));
        SaveAsAnswers prompts;
        prompts.files = QString(files).replace('@', out).split('|');
        prompts.chosenFilter = filter;
        QByteArray program = job->path("bin/" + RunProtocol::programFileName()).toLocal8Bit();
        QByteArray argument = "Document1";
        char *argv[] = {program.data(), argument.data(), nullptr};
        int argc = 2;
        writes.clear();
        QCOMPARE(RunProtocol::run(argc, argv), 0);

        QVERIFY(prompts.saveAsCalls.size() == files.count('|') + 1
            && prompts.questions.size() == files.count('|'));
        for (const ScriptedPrompts::Question &asked : std::as_const(prompts.questions))
            QCOMPARE(asked.text,
                "You have no permission to write in this directory.\nPlease, choose another one.");
        // Every dialog starts from the loaded folder, name and filter, not from a failed try, and
        // offers this mode's own list: DjVu only with its converter, RTF with its stored
        // extension, HTML last. The labels are the catalogue suite's.
        const QString djvu = converter ? "DjVu Format (*.djvu);;" : "";
        for (const ScriptedPrompts::SaveAs &asked : std::as_const(prompts.saveAsCalls)) {
            QCOMPARE(asked.caption + '|' + asked.path + '|' + asked.preselectedFilter,
                "Save File As...|" + out + "Document1|" + "TIFF Format (*.tif)");
            QVERIFY(asked.filters.endsWith("SWF Format (*.swf);;" + djvu
                + "RTF Format (*.doc);;MS Excel Format (*.xls);;HTML Format (*.html)"));
        }
        QCOMPARE(writes.join(' '), QString(expected).replace('@', out));
        // The write test leaves no file behind, and an earlier file of that name is gone.
        QCOMPARE(QDir(out).entryList(QDir::Files).join(' '),
            expected.contains("=report ") ? "" : "report.pdf");
    }
    // The banner follows a language installed while it is up.
    void bannerLanguageChange()
    {
        int argc = 1;
        char name[] = "saveasonly", *argv[] = {name, nullptr};
        QApplication app(argc, argv);
        FileSaveDialog banner;
        const auto *label = banner.findChild<QLabel *>(QStringLiteral("label_3"));
        const QString text = label->text();
        MarkingTranslator translator("FileSaveDialog");
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(banner.windowTitle() + '|' + label->text(), "~Vellumio|~" + text);
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(banner.windowTitle() + '|' + label->text(), "Vellumio|" + text);
    }
    void noArgumentWritesNothing()
    {
        const QString binary = qEnvironmentVariable("FMTASK_BINARY");
        if (binary.isEmpty())
            QSKIP("FMTASK_BINARY is not set");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(job->path("user")));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(job->path("machine")));
        QCOMPARE(QProcess::execute(binary, {}), 0); // -2: not started, -1: crashed
        QVERIFY(!QDir(job->path("user")).exists() && !QDir(job->path("machine")).exists());
    }

private:
    std::unique_ptr<JobFixture> job;
    QString out; // a writable output folder, with its trailing separator
};

QTEST_APPLESS_MAIN(tst_SaveAsOnly)
#include "tst_saveasonly.moc"
