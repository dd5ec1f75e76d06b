#include "jobsettings.h"
#include "prompts.h"
#include "runprotocol.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Plays the user in front of the Save As dialog and records what the program showed.
class ScriptedSaveAs : public Prompts
{
public:
    struct Answer
    {
        QString file; // empty = cancelled
        QString filter; // null = leave the preselected filter
    };
    struct Asked
    {
        QString caption, path, filters, preselected;
        QString banner; // class and text of the visible parent
        bool bannerPlaced; // at the lower right corner by its frame
        bool mainWindowShown;
    };

    QList<Answer> answers;
    QList<Asked> asked;
    QStringList messages; // title, then text

    QMessageBox::StandardButton message(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons) override
    {
        // The permission message has no parent and only OK.
        if (!parent && buttons == QMessageBox::Ok)
            messages << title + QLatin1Char('|') + text;
        return QMessageBox::Ok;
    }

    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter) override
    {
        Asked entry {caption, path, filters, *selectedFilter, {}, false, false};
        if (parent && parent->isVisible()) {
            const QRect screen = QGuiApplication::primaryScreen()->geometry();
            const QRect frame = parent->frameGeometry();
            entry.banner = QLatin1String(parent->metaObject()->className()) + QLatin1Char('|')
                + parent->findChild<QLabel *>(QStringLiteral("label_3"))->text();
            entry.bannerPlaced = frame.topLeft()
                == QPoint(
                    screen.right() - frame.width() - 40, screen.bottom() - 3 * frame.height());
        }
        for (QWidget *widget : QApplication::topLevelWidgets())
            entry.mainWindowShown |= qobject_cast<QMainWindow *>(widget) && widget->isVisible();
        asked.append(entry);
        const Answer answer = answers.isEmpty() ? Answer() : answers.takeFirst();
        if (!answer.filter.isNull())
            *selectedFilter = answer.filter;
        return answer.file;
    }
};

QString filter(const char *label, const char *extension)
{
    return QLatin1String(label) + QLatin1String(" Format (*.") + QLatin1String(extension)
        + QLatin1Char(')');
}

QSettings key(QSettings::Scope scope)
{
    return QSettings(
        QSettings::NativeFormat, scope, QStringLiteral("Tarnwick"), QStringLiteral("Vellumio"));
}

} // namespace

class tst_SaveAsOnly : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void chosenFile_data();
    void chosenFile();
    void cancelled_data();
    void cancelled();
    void unwritableTargetAskedAgain();
    void filterList_data();
    void filterList();
    void noArgumentWritesNothing();

private:
    // Stores the save-as-only switch, the output folder and one more value where loading reads.
    void store(bool allUsers, const QString &name = {}, const QString &value = {});
    // Runs the program in this process as the driver would start it, with argument Document1.
    void runProgram(bool withConverter = false);

    QTemporaryDir *dir = nullptr;
    QString outFolder; // a writable output folder, with its trailing separator
    ScriptedSaveAs prompts;
};

void tst_SaveAsOnly::init()
{
    // The default name would follow the application name, "fmtask", which the converter path
    // rule would then find in the folder instead of in the file name.
    dir = new QTemporaryDir(QDir::tempPath() + QLatin1String("/saveasonly-XXXXXX"));
    QVERIFY(dir->isValid());
    QVERIFY(QDir(dir->path()).mkpath(QStringLiteral("out")));
    QVERIFY(QDir(dir->path()).mkpath(QStringLiteral("bin")));
    outFolder = dir->filePath(QStringLiteral("out")) + QLatin1Char('/');
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, dir->filePath(QStringLiteral("user")));
        QSettings::setPath(
            format, QSettings::SystemScope, dir->filePath(QStringLiteral("machine")));
    }
    jobSettings() = JobSettings();
    prompts.answers.clear();
    prompts.asked.clear();
    prompts.messages.clear();
    Prompts::install(&prompts);
}

void tst_SaveAsOnly::cleanup()
{
    Prompts::install(nullptr);
    QDir::setCurrent(QDir::tempPath());
    delete dir;
    dir = nullptr;
}

void tst_SaveAsOnly::store(bool allUsers, const QString &name, const QString &value)
{
    // Loading reads the machine key alone when all users share the settings.
    QSettings loaded = key(allUsers ? QSettings::SystemScope : QSettings::UserScope);
    loaded.setValue(QStringLiteral("chDialog_SaveAs"), QStringLiteral("true"));
    loaded.setValue(QStringLiteral("path"), outFolder);
    if (!name.isEmpty())
        loaded.setValue(name, value);
    if (allUsers)
        loaded.setValue(QStringLiteral("settings_for_all_users"), QStringLiteral("true"));
}

void tst_SaveAsOnly::runProgram(bool withConverter)
{
    const QString program = dir->filePath(QStringLiteral("bin/") + RunProtocol::programFileName());
    if (withConverter) {
        QFile converter(dir->filePath(QStringLiteral("bin/") + RunProtocol::converterFileName()));
        QVERIFY(converter.open(QIODevice::WriteOnly));
    }
    QByteArray programWord = program.toLocal8Bit();
    QByteArray argumentWord = QByteArrayLiteral("Document1");
    char *argv[] = {programWord.data(), argumentWord.data(), nullptr};
    int argc = 2;
    QCOMPARE(RunProtocol::run(argc, argv), 0);
}

void tst_SaveAsOnly::chosenFile_data()
{
    // file: returned by Save As, in the output folder; filter: left selected; allUsers: the
    // machine key shares the settings; rtfExtension: stored "ext_rtf" ("" = none); existing: the
    // file is there before; newfilename, format: the exchange values expected
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("allUsers");
    QTest::addColumn<QString>("rtfExtension");
    QTest::addColumn<bool>("existing");
    QTest::addColumn<QString>("newfilename");
    QTest::addColumn<QString>("format");

    QTest::newRow("pdf") << "report.pdf" << filter("PDF", "pdf") << false << "" << false << "report"
                         << "pdf";
    QTest::newRow("pdf, all users")
        << "report.pdf" << filter("PDF", "pdf") << true << "" << false << "report"
        << "pdf";
    QTest::newRow("tiff") << "a.tif" << filter("TIFF", "tif") << false << "" << false << "a"
                          << "tif";
    QTest::newRow("jpeg2000") << "a.jp2" << filter("JPEG2000", "jp2") << false << "" << false << "a"
                              << "jp2";
    QTest::newRow("rtf") << "a.rtf" << filter("RTF", "rtf") << false << "" << false << "a"
                         << "rtf";
    QTest::newRow("excel") << "sheet.xls" << filter("MS Excel", "xls") << false << "" << false
                           << "sheet"
                           << "msxml";
    QTest::newRow("html") << "page.html" << filter("HTML", "html") << false << "" << false << "page"
                          << "htm";
    QTest::newRow("djvu") << "scan.djvu" << filter("DjVu", "djvu") << false << "" << false << "scan"
                          << "djvu";
    QTest::newRow("rtf under another extension")
        << "a.doc" << filter("RTF", "doc") << false << "doc" << false << "a"
        << "";
    QTest::newRow("filter not offered") << "a.pdf"
                                        << "All files (*)" << false << "" << false << "a"
                                        << "";
    QTest::newRow("existing file replaced")
        << "old.pdf" << filter("PDF", "pdf") << false << "" << true << "old"
        << "pdf";
}

void tst_SaveAsOnly::chosenFile()
{
    QFETCH(QString, file);
    QFETCH(QString, filter);
    QFETCH(bool, allUsers);
    QFETCH(QString, rtfExtension);
    QFETCH(bool, existing);
    QFETCH(QString, newfilename);
    QFETCH(QString, format);

    store(allUsers, rtfExtension.isEmpty() ? QString() : QStringLiteral("ext_rtf"), rtfExtension);
    const QString chosen = outFolder + file;
    if (existing) {
        QFile old(chosen);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("previous job");
    }
    prompts.answers = {{chosen, filter}};
    runProgram(true);

    QCOMPARE(prompts.asked.size(), 1);
    const ScriptedSaveAs::Asked &asked = prompts.asked.first();
    QCOMPARE(asked.caption, QStringLiteral("Save File As..."));
    QCOMPARE(asked.path, outFolder + QLatin1String("Document1"));
    QCOMPARE(asked.banner,
        QStringLiteral("FileSaveDialog|Please, define name and format of printed file and save."));
    QVERIFY(asked.bannerPlaced);
    QVERIFY(!asked.mainWindowShown);
    QVERIFY(prompts.messages.isEmpty());
    // The write test leaves no file behind, and an old one is gone: the driver writes afresh.
    QVERIFY(!QFile::exists(chosen));

    QSettings user = key(QSettings::UserScope);
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(), QStringLiteral("false"));
    QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), newfilename);
    QCOMPARE(user.value(QStringLiteral("Path")).toString(), outFolder);
    QVERIFY(user.contains(QStringLiteral("format")));
    QCOMPARE(user.value(QStringLiteral("format")).toString(), format);
    // Nothing but the exchange values is saved in this mode.
    QVERIFY(!user.contains(QStringLiteral("pdf_protect")));
    QSettings machine = key(QSettings::SystemScope);
    for (const char *name : {"isabort", "newfilename", "Path", "format"}) {
        const QString value = QLatin1String(name);
        QCOMPARE(machine.value(value), allUsers ? user.value(value) : QVariant());
    }
}

void tst_SaveAsOnly::cancelled_data()
{
    // answer: what Save As returns; allUsers: the machine key shares the settings;
    // aborted: "isabort" is "true" afterwards (else "false")
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("allUsers");
    QTest::addColumn<bool>("aborted");
    QTest::newRow("cancelled") << "" << false << true;
    QTest::newRow("cancelled, all users") << "" << true << true;
    QTest::newRow("two characters") << "ab" << false << true;
    QTest::newRow("three characters accepted") << "abc" << false << false;
}

void tst_SaveAsOnly::cancelled()
{
    QFETCH(QString, answer);
    QFETCH(bool, allUsers);
    QFETCH(bool, aborted);

    store(allUsers);
    // A name without folder lands in the current folder.
    QVERIFY(QDir::setCurrent(outFolder));
    prompts.answers = {{answer, QString()}};
    runProgram();

    QCOMPARE(prompts.asked.size(), 1);
    QSettings user = key(QSettings::UserScope);
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(),
        QLatin1String(aborted ? "true" : "false"));
    QCOMPARE(key(QSettings::SystemScope).value(QStringLiteral("isabort")).toString(),
        QLatin1String(allUsers ? "true" : ""));
    QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), aborted ? QString() : answer);
    QVERIFY(!QFile::exists(outFolder + answer) || answer.isEmpty());
}

void tst_SaveAsOnly::unwritableTargetAskedAgain()
{
    store(false, QStringLiteral("format"), QStringLiteral("png"));
    const QString missing = outFolder + QLatin1String("missing/a.png");
    prompts.answers = {{missing, filter("PNG", "png")}, {missing, filter("PNG", "png")},
        {outFolder + QLatin1String("b.png"), filter("PNG", "png")}};
    runProgram();

    const QString message = QStringLiteral(
        "Vellumio|You have no permission to write in this directory.\nPlease, choose another one.");
    QCOMPARE(prompts.messages, QStringList(2, message));
    QCOMPARE(prompts.asked.size(), 3);
    // Every new dialog starts from the loaded folder, name and filter, not from the failed try.
    for (const ScriptedSaveAs::Asked &asked : std::as_const(prompts.asked)) {
        QCOMPARE(asked.path, outFolder + QLatin1String("Document1"));
        QCOMPARE(asked.preselected, filter("PNG", "png"));
    }
    QSettings user = key(QSettings::UserScope);
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(), QStringLiteral("false"));
    QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), QStringLiteral("b"));
    QCOMPARE(user.value(QStringLiteral("format")).toString(), QStringLiteral("png"));
}

void tst_SaveAsOnly::filterList_data()
{
    // converter: the DjVu converter lies beside the program; filters: the list offered
    QTest::addColumn<bool>("converter");
    QTest::addColumn<QStringList>("filters");
    const QStringList before = {filter("BMP", "bmp"), filter("PNG", "png"), filter("TIFF", "tif"),
        filter("JPEG", "jpg"), filter("JPEG2000", "jp2"), filter("GIF", "gif"),
        filter("PDF", "pdf"), filter("SWF", "swf")};
    const QStringList after
        = {filter("RTF", "rtf"), filter("MS Excel", "xls"), filter("HTML", "html")};
    QTest::newRow("without converter: 11") << false << before + after;
    QTest::newRow("with converter: 12")
        << true << before + QStringList {filter("DjVu", "djvu")} + after;
}

void tst_SaveAsOnly::filterList()
{
    QFETCH(bool, converter);
    QFETCH(QStringList, filters);

    store(false);
    runProgram(converter);
    QCOMPARE(prompts.asked.size(), 1);
    QCOMPARE(prompts.asked.first().filters.split(QStringLiteral(";;")), filters);
}

void tst_SaveAsOnly::noArgumentWritesNothing()
{
    const QString binary = qEnvironmentVariable("FMTASK_BINARY");
    if (binary.isEmpty())
        QSKIP("FMTASK_BINARY is not set");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dir->filePath(QStringLiteral("user")));
    environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), dir->filePath(QStringLiteral("machine")));
    process.setProcessEnvironment(environment);
    process.start(binary, {});
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(!QDir(dir->filePath(QStringLiteral("user"))).exists());
    QVERIFY(!QDir(dir->filePath(QStringLiteral("machine"))).exists());
}

QTEST_APPLESS_MAIN(tst_SaveAsOnly)
#include "tst_saveasonly.moc"
