#include "jobsettings.h"
#include "runprotocol.h"
#include "scriptedprompts.h"
#include "settingskey.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

QStringList writes; // "U name=value" or "M name=value", in the order handed to the store

void recordWrite(SettingsScope scope, const QString &name, const QVariant &value)
{
    writes << (scope == SettingsScope::User ? "U " : "M ") + name + '=' + value.toString();
}

QString filter(const QString &label, const QString &extension)
{
    return label + " Format (*." + extension + ')';
}

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
        dir = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/saveasonly-XXXXXX");
        QVERIFY(QDir(dir->path()).mkpath("out") && QDir(dir->path()).mkpath("bin"));
        out = dir->filePath("out") + '/';
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir->filePath("user"));
        QSettings::setPath(
            QSettings::NativeFormat, QSettings::SystemScope, dir->filePath("machine"));
        jobSettings() = JobSettings();
        writes.clear();
        SettingsKey::setWriteObserver(recordWrite);
        prompts = std::make_unique<SaveAsAnswers>();
    }
    void cleanup()
    {
        prompts.reset();
        SettingsKey::setWriteObserver(nullptr);
        QDir::setCurrent(QDir::tempPath());
    }
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
        QTest::newRow("pdf")              << "@report.pdf" << filter("PDF", "pdf")      << false << true  << saved.arg("report", "pdf");
        QTest::newRow("pdf, all users")   << "@report.pdf" << filter("PDF", "pdf")      << true  << true  << saved.arg("report", "pdf") + ' ' + QString(saved).replace("U ", "M ").arg("report", "pdf");
        QTest::newRow("excel")            << "@sheet.xls"  << filter("MS Excel", "xls") << false << false << saved.arg("sheet", "msxml");
        QTest::newRow("html")             << "@page.html"  << filter("HTML", "html")    << false << false << saved.arg("page", "htm");
        QTest::newRow("djvu")             << "@scan.djvu"  << filter("DjVu", "djvu")    << false << true  << saved.arg("scan", "djvu");
        // The RTF filter is fixed to *.rtf, whatever extension is stored for it.
        QTest::newRow("rtf under doc")    << "@a.doc"      << filter("RTF", "doc")      << false << true  << saved.arg("a", "");
        QTest::newRow("not offered")      << "@a.pdf"      << "All files (*)"           << false << true  << saved.arg("a", "");
        // A file that cannot be written brings a message and a new dialog.
        QTest::newRow("unwritable twice") << "@no/a.png|@no/a.png|@b.png" << filter("PNG", "png") << false << false << saved.arg("b", "png");
        QTest::newRow("3 characters")     << "abc"         << filter("PDF", "pdf")      << false << true  << "U isabort=false U newfilename=abc U Path= U format=pdf";
        QTest::newRow("2 characters")     << "ab"          << filter("PDF", "pdf")      << false << true  << "U isabort=true";
        QTest::newRow("cancelled")        << ""            << filter("PDF", "pdf")      << false << true  << "U isabort=true";
        QTest::newRow("cancelled, all")   << ""            << filter("PDF", "pdf")      << true  << true  << "M isabort=true U isabort=true";
        // clang-format on
    }
    void outcome()
    {
        QFETCH(QString, files);
        QFETCH(QString, filter);
        QFETCH(bool, allUsers);
        QFETCH(bool, converter);
        QFETCH(QString, expected);
        QFile old(out + "report.pdf"); // an earlier file is replaced: the driver writes it afresh
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("previous job"));
        old.close();
        QVERIFY(QDir::setCurrent(out));
        prompts->files = QString(files).replace('@', out).split('|');
        prompts->chosenFilter = filter;
        run(allUsers, converter);

        QCOMPARE(prompts->saveAsCalls.size(), prompts->questions.size() + 1);
        QCOMPARE(prompts->saveAsCalls.size(), files.count('|') + 1);
        for (const ScriptedPrompts::Question &asked : std::as_const(prompts->questions)) {
            QCOMPARE(asked.title + '|' + asked.text,
                "Vellumio|You have no permission to write in this "
                "directory.\nPlease, choose another one.");
        }
        // Every dialog starts from the loaded folder, name and filter, not from a failed try.
        for (const ScriptedPrompts::SaveAs &asked : std::as_const(prompts->saveAsCalls)) {
            QCOMPARE(asked.caption + '|' + asked.path + '|' + asked.preselectedFilter,
                "Save File As...|" + out + "Document1|" + ::filter("TIFF", "tif"));
            // This mode's own list: DjVu only with its converter, RTF with its stored extension,
            // HTML last; 11 or 12 filters. The labels are the catalogue suite's.
            const QString djvu = converter ? "DjVu Format (*.djvu);;" : "";
            QVERIFY(asked.filters.endsWith("SWF Format (*.swf);;" + djvu
                + "RTF Format (*.doc);;MS Excel Format (*.xls);;HTML Format (*.html)"));
            QCOMPARE(asked.filters.count(";;"), converter ? 11 : 10);
        }
        QCOMPARE(writes.join(' '), QString(expected).replace('@', out));
        // The write test leaves no file behind.
        QVERIFY(!QFile::exists(out + "report.pdf") || !expected.contains("report"));
        QVERIFY(!QFile::exists(out + "abc") && !QFile::exists(out + "a.pdf")
            && !QFile::exists(out + "b.png"));
    }
    void noArgumentWritesNothing()
    {
        const QString binary = qEnvironmentVariable("FMTASK_BINARY");
        if (binary.isEmpty())
            QSKIP("FMTASK_BINARY is not set");
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", dir->filePath("user"));
        environment.insert("XDG_CONFIG_DIRS", dir->filePath("machine"));
        process.setProcessEnvironment(environment);
        process.start(binary, {});
        QVERIFY(process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!QDir(dir->filePath("user")).exists() && !QDir(dir->filePath("machine")).exists());
    }

private:
    // Stores the save-as-only switch, the output folder and an RTF extension where loading reads
    // them, then runs the program with the argument Document1.
    void run(bool allUsers, bool converter)
    {
        // Loading reads the machine key alone when all users share the settings.
        const QString key
            = dir->filePath(allUsers ? "machine" : "user") + "/Tarnwick/Vellumio.conf";
        QDir().mkpath(QFileInfo(key).path());
        QFile ini(key);
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write(("[General]\nchDialog_SaveAs=true\npath=" + out + "\next_rtf=doc\n"
            + (allUsers ? "settings_for_all_users=true\n" : ""))
                      .toUtf8());
        ini.close();
        if (converter)
            QFile(dir->filePath("bin/" + RunProtocol::converterFileName()))
                .open(QIODevice::WriteOnly);
        QByteArray program = dir->filePath("bin/" + RunProtocol::programFileName()).toLocal8Bit();
        QByteArray argument = "Document1";
        char *argv[] = {program.data(), argument.data(), nullptr};
        int argc = 2;
        writes.clear();
        QCOMPARE(RunProtocol::run(argc, argv), 0);
    }

    std::unique_ptr<QTemporaryDir> dir;
    QString out; // a writable output folder, with its trailing separator
    std::unique_ptr<SaveAsAnswers> prompts;
};

QTEST_APPLESS_MAIN(tst_SaveAsOnly)
#include "tst_saveasonly.moc"
