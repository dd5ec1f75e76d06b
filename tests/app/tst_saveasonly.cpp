#include "jobsettings.h"
#include "prompts.h"
#include "runprotocol.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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
        QString caption;
        QString path;
        QString filters;
        QString preselected;
        QString bannerClass;
        QString bannerTitle;
        QString bannerText;
        bool bannerVisible;
        QPoint bannerPosition;
        QPoint expectedPosition; // lower right corner rule for the banner's frame
        bool mainWindowVisible;
    };
    struct Message
    {
        QWidget *parent;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons;
    };

    QList<Answer> answers;
    QList<Asked> asked;
    QList<Message> messages;

    QMessageBox::StandardButton message(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons) override
    {
        messages.append({parent, title, text, buttons});
        return QMessageBox::Ok;
    }

    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter) override
    {
        Asked entry {caption, path, filters, *selectedFilter, {}, {}, {}, false, {}, {}, false};
        if (parent) {
            entry.bannerClass = QString::fromLatin1(parent->metaObject()->className());
            entry.bannerTitle = parent->windowTitle();
            if (const auto *label = parent->findChild<QLabel *>(QStringLiteral("label_3")))
                entry.bannerText = label->text();
            entry.bannerVisible = parent->isVisible();
            entry.bannerPosition = parent->pos();
            const QRect screen = QGuiApplication::primaryScreen()->geometry();
            const QRect frame = parent->frameGeometry();
            entry.expectedPosition
                = QPoint(screen.right() - frame.width() - 40, screen.bottom() - 3 * frame.height());
        }
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<QMainWindow *>(widget) && widget->isVisible())
                entry.mainWindowVisible = true;
        }
        asked.append(entry);
        if (answers.isEmpty())
            return QString();
        const Answer answer = answers.takeFirst();
        if (!answer.filter.isNull())
            *selectedFilter = answer.filter;
        return answer.file;
    }
};

QString filter(const char *label, const char *extension)
{
    return QString::fromLatin1(label) + QLatin1String(" Format (*.") + QLatin1String(extension)
        + QLatin1Char(')');
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
    void bannerInFront();
    void noArgumentWritesNothing();

private:
    QSettings userKey() const;
    QSettings machineKey() const;
    // Puts the program's settings in the keys before a run.
    void store(bool allUsers, const QMap<QString, QString> &values = {});
    // Runs the program in this process as the driver would start it.
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

QSettings tst_SaveAsOnly::userKey() const
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Tarnwick"),
        QStringLiteral("Vellumio"));
}

QSettings tst_SaveAsOnly::machineKey() const
{
    return QSettings(QSettings::NativeFormat, QSettings::SystemScope, QStringLiteral("Tarnwick"),
        QStringLiteral("Vellumio"));
}

void tst_SaveAsOnly::store(bool allUsers, const QMap<QString, QString> &values)
{
    QSettings user = userKey();
    QSettings machine = machineKey();
    // Loading reads the machine key alone when all users share the settings.
    QSettings &loaded = allUsers ? machine : user;
    loaded.setValue(QStringLiteral("chDialog_SaveAs"), QStringLiteral("true"));
    loaded.setValue(QStringLiteral("path"), outFolder);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        loaded.setValue(it.key(), it.value());
    if (allUsers)
        machine.setValue(QStringLiteral("settings_for_all_users"), QStringLiteral("true"));
    user.sync();
    machine.sync();
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
    // file: name returned by Save As, inside the output folder; filter: the filter left selected;
    // allUsers: machine key shares the settings; rtfExtension: stored "ext_rtf" (empty = none);
    // existing: the file is there before; newfilename, format: the exchange values expected
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
    QTest::newRow("bmp") << "a.bmp" << filter("BMP", "bmp") << false << "" << false << "a"
                         << "bmp";
    QTest::newRow("png") << "a.png" << filter("PNG", "png") << false << "" << false << "a"
                         << "png";
    QTest::newRow("tiff") << "a.tif" << filter("TIFF", "tif") << false << "" << false << "a"
                          << "tif";
    QTest::newRow("jpeg") << "a.jpg" << filter("JPEG", "jpg") << false << "" << false << "a"
                          << "jpg";
    QTest::newRow("jpeg2000") << "a.jp2" << filter("JPEG2000", "jp2") << false << "" << false << "a"
                              << "jp2";
    QTest::newRow("gif") << "a.gif" << filter("GIF", "gif") << false << "" << false << "a"
                         << "gif";
    QTest::newRow("swf") << "a.swf" << filter("SWF", "swf") << false << "" << false << "a"
                         << "swf";
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

    QMap<QString, QString> values;
    if (!rtfExtension.isEmpty())
        values.insert(QStringLiteral("ext_rtf"), rtfExtension);
    store(allUsers, values);
    const QString chosen = outFolder + file;
    if (existing) {
        QFile old(chosen);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("previous job");
    }
    prompts.answers = {{chosen, filter}};
    runProgram(true);

    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(prompts.messages.isEmpty());
    // The write test leaves no file behind, and an old one is gone: the driver writes afresh.
    QVERIFY(!QFile::exists(chosen));

    const QStringList keys = {"isabort", "newfilename", "Path", "format"};
    QSettings user = userKey();
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(), QStringLiteral("false"));
    QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), newfilename);
    QCOMPARE(user.value(QStringLiteral("Path")).toString(), outFolder);
    QCOMPARE(user.value(QStringLiteral("format")).toString(), format);
    QVERIFY(user.contains(QStringLiteral("format")));
    QSettings machine = machineKey();
    for (const QString &key : keys) {
        if (allUsers)
            QCOMPARE(machine.value(key), user.value(key));
        else
            QVERIFY2(!machine.contains(key), qPrintable(key));
    }
    // Nothing but the exchange values is saved in this mode.
    QVERIFY(!user.contains(QStringLiteral("pdf_protect")));
    QVERIFY(!user.contains(QStringLiteral("chDialog")));
}

void tst_SaveAsOnly::cancelled_data()
{
    // answer: what Save As returns; allUsers: machine key shares the settings;
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
    QVERIFY(!prompts.asked.first().mainWindowVisible);
    QSettings user = userKey();
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(),
        aborted ? QStringLiteral("true") : QStringLiteral("false"));
    QCOMPARE(machineKey().value(QStringLiteral("isabort")).toString(),
        allUsers ? QStringLiteral("true") : QString());
    if (aborted) {
        QVERIFY(!user.contains(QStringLiteral("newfilename")));
        QVERIFY(!user.contains(QStringLiteral("format")));
    } else {
        QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), answer);
        QCOMPARE(user.value(QStringLiteral("Path")).toString(), QString());
        QVERIFY(!QFile::exists(outFolder + answer));
    }
}

void tst_SaveAsOnly::unwritableTargetAskedAgain()
{
    store(false, {{QStringLiteral("format"), QStringLiteral("png")}});
    const QString missing = outFolder + QLatin1String("missing/a.png");
    prompts.answers = {{missing, filter("PNG", "png")}, {missing, filter("PNG", "png")},
        {outFolder + QLatin1String("b.png"), filter("PNG", "png")}};
    runProgram();

    QCOMPARE(prompts.asked.size(), 3);
    QCOMPARE(prompts.messages.size(), 2);
    for (const ScriptedSaveAs::Message &message : std::as_const(prompts.messages)) {
        QCOMPARE(message.parent, nullptr);
        QCOMPARE(message.title, QStringLiteral("Vellumio"));
        QCOMPARE(message.text,
            QStringLiteral(
                "You have no permission to write in this directory.\nPlease, choose another one."));
        QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    }
    // Every new dialog starts from the loaded folder, name and filter, not from the failed try.
    for (const ScriptedSaveAs::Asked &asked : std::as_const(prompts.asked)) {
        QCOMPARE(asked.caption, QStringLiteral("Save File As..."));
        QCOMPARE(asked.path, outFolder + QLatin1String("Document1"));
        QCOMPARE(asked.preselected, filter("PNG", "png"));
    }
    QSettings user = userKey();
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

void tst_SaveAsOnly::bannerInFront()
{
    store(false);
    runProgram();

    QCOMPARE(prompts.asked.size(), 1);
    const ScriptedSaveAs::Asked &asked = prompts.asked.first();
    QCOMPARE(asked.bannerClass, QStringLiteral("FileSaveDialog"));
    QCOMPARE(asked.bannerTitle, QStringLiteral("Vellumio"));
    QCOMPARE(asked.bannerText,
        QStringLiteral("Please, define name and format of printed file and save."));
    QVERIFY(asked.bannerVisible);
    QCOMPARE(asked.bannerPosition, asked.expectedPosition);
    QVERIFY(!asked.mainWindowVisible);
    // No folder stored and no filter chosen before: the dialog starts from the bare argument.
    QCOMPARE(asked.path, outFolder + QLatin1String("Document1"));
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
    QVERIFY(!QFileInfo::exists(dir->filePath(QStringLiteral("user"))));
    QVERIFY(!QFileInfo::exists(dir->filePath(QStringLiteral("machine"))));
}

QTEST_APPLESS_MAIN(tst_SaveAsOnly)
#include "tst_saveasonly.moc"
