#include "jobfixture.h"
#include "scriptedprompts.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <unistd.h>

namespace {

QLineEdit *fileNameEdit(MainWindow &window)
{
    return window.findChild<QLineEdit *>(QStringLiteral("le_filename"));
}

QTabWidget *tabs(MainWindow &window)
{
    return window.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
}

// What exists at the output name before Print.
enum class Target { Nothing, File, Folder };

const QString missingFolderText
    = QStringLiteral("\nThis directory doesn't exist.\n\nPlease choose correct directory");
const QString replaceText = QStringLiteral(" already exists.\nDo you want to replace it?");
const QString permissionText = QStringLiteral(
    "You have no permission to write in this directory.\nPlease, choose another one.");

const QByteArray earlierJob = "[General]\nisabort=false\nformat=png\nPath=/earlier/\n"
                              "newfilename=old\nq_jpg=42\n";

} // namespace

Q_DECLARE_METATYPE(Target)

class PrintTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void printChecks_data();
    void printChecks();
    void printAgainAfterPermissionMessage();
    void nameWithoutFolder();
    void readOnlyFolder();
    void printSaves_data();
    void printSaves();
    void cancel_data();
    void cancel();
    void titleBarCloseWritesNothing();
};

void PrintTest::initTestCase()
{
    // Print and Cancel close the only window; the test run must go on.
    QApplication::setQuitOnLastWindowClosed(false);
}

void PrintTest::printChecks_data()
{
    // le_filename below the temporary folder, what exists at the full name (".pdf" appended),
    // whether the name came from Save As, message box answers, expected questions as
    // title|text|buttons (%T = temporary folder, %N = full name), window closed afterwards,
    // something left at the full name afterwards
    QTest::addColumn<QString>("relativeName");
    QTest::addColumn<Target>("target");
    QTest::addColumn<bool>("fromSaveAs");
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("questions");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("leftBehind");

    const QString missing
        = QLatin1String("(null)|%T/missing/") + missingFolderText + QLatin1String("|Ok");
    const QString replace = QLatin1String("Vellumio|%N") + replaceText + QLatin1String("|Yes No");
    const QString noPermission = QLatin1String("Vellumio|") + permissionText + QLatin1String("|Ok");
    const int yes = QMessageBox::Yes;
    const int no = QMessageBox::No;

    // clang-format off
    QTest::newRow("new file")               << "report"          << Target::Nothing << false << QList<int>()      << QStringList()                    << true  << false;
    QTest::newRow("missing folder")         << "missing/report"  << Target::Nothing << false << QList<int>()      << QStringList{missing}             << false << false;
    QTest::newRow("missing folder, saveas") << "missing/report"  << Target::Nothing << true  << QList<int>()      << QStringList{missing}             << false << false;
    QTest::newRow("existing file, Yes")     << "report"          << Target::File    << false << QList<int>{yes}   << QStringList{replace}             << true  << false;
    QTest::newRow("existing file, No")      << "report"          << Target::File    << false << QList<int>{no}    << QStringList{replace}             << false << true;
    QTest::newRow("existing, from Save As") << "report"          << Target::File    << true  << QList<int>()      << QStringList()                    << true  << false;
    QTest::newRow("cannot create, Yes")     << "report"          << Target::Folder  << false << QList<int>{yes}   << QStringList{replace, noPermission} << false << true;
    QTest::newRow("cannot create, Save As") << "report"          << Target::Folder  << true  << QList<int>()      << QStringList{noPermission}        << false << true;
    // Only No keeps the old file; a box closed any other way goes on.
    QTest::newRow("existing, no answer")    << "report"          << Target::File    << false << QList<int>()      << QStringList{replace}             << true  << false;
    QTest::newRow("name too long")          << QString(300, QLatin1Char('n')) << Target::Nothing << false << QList<int>() << QStringList{noPermission} << false << false;
    QTest::newRow("NUL in name")            << QStringLiteral("rep") + QChar(0) + QStringLiteral("ort") << Target::Nothing << false << QList<int>() << QStringList{noPermission} << false << false;
    // clang-format on
}

void PrintTest::printChecks()
{
    QFETCH(QString, relativeName);
    QFETCH(Target, target);
    QFETCH(bool, fromSaveAs);
    QFETCH(QList<int>, answers);
    QFETCH(QStringList, questions);
    QFETCH(bool, closed);
    QFETCH(bool, leftBehind);

    JobFixture job;
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    prompts.watched = window.get();
    for (int answer : answers)
        prompts.answers.enqueue(static_cast<QMessageBox::StandardButton>(answer));

    const QString root = QDir::cleanPath(job.dir.path());
    const QString name = root + QLatin1Char('/') + relativeName + QLatin1String(".pdf");
    if (target == Target::File)
        job.writeFile(name, "an earlier print");
    else if (target == Target::Folder)
        QVERIFY(QDir().mkpath(name));
    if (fromSaveAs)
        window->pb_filename(); // cancelled: the name still counts as chosen there
    QCOMPARE(window->isNameChosenByDialog(), fromSaveAs);

    window->show();
    WindowOrder::setTopmost(window.get());
    tabs(*window)->setCurrentIndex(Formats::Pdf);
    fileNameEdit(*window)->setText(root + QLatin1Char('/') + relativeName);

    window->pb_print();

    QStringList asked;
    for (const ScriptedPrompts::Question &question : std::as_const(prompts.questions)) {
        QVERIFY2(!question.parent, "message boxes have no parent");
        QVERIFY2(!question.watchedWasTopmost, "the dialog stays topmost over a message box");
        QStringList buttons;
        if (question.buttons & QMessageBox::Ok)
            buttons << QStringLiteral("Ok");
        if (question.buttons & QMessageBox::Yes)
            buttons << QStringLiteral("Yes");
        if (question.buttons & QMessageBox::No)
            buttons << QStringLiteral("No");
        const QString title = question.title.isNull() ? QStringLiteral("(null)") : question.title;
        asked << title + QLatin1Char('|') + question.text + QLatin1Char('|')
                + buttons.join(QLatin1Char(' '));
    }
    QStringList expected;
    for (const QString &question : std::as_const(questions))
        expected << QString(question)
                        .replace(QLatin1String("%T"), root)
                        .replace(QLatin1String("%N"), name);
    QCOMPARE(asked, expected);

    QVERIFY(!WindowOrder::isTopmost(window.get()));
    QCOMPARE(window->isVisible(), !closed);
    QCOMPARE(QFileInfo::exists(name), leftBehind);
    QCOMPARE(QDir(root).entryList(QDir::Files).isEmpty(), !(target == Target::File && leftBehind));
    if (target == Target::File && leftBehind)
        QCOMPARE(JobFixture::bytesOf(name), QByteArray("an earlier print"));
    // Nothing is saved unless the dialog closes.
    if (!closed)
        QVERIFY(!QFileInfo::exists(job.userFile()));
}

void PrintTest::printAgainAfterPermissionMessage()
{
    JobFixture job;
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    const QString root = QDir::cleanPath(job.dir.path());
    QVERIFY(QDir().mkpath(root + QLatin1String("/taken.pdf")));
    window->show();
    tabs(*window)->setCurrentIndex(Formats::Pdf);
    fileNameEdit(*window)->setText(root + QLatin1String("/taken"));
    prompts.answers.enqueue(QMessageBox::Yes);

    window->pb_print();
    QCOMPARE(prompts.questions.size(), 2);
    QCOMPARE(prompts.questions.last().text, permissionText);
    QVERIFY(window->isVisible());

    // The user corrects the name and prints again.
    fileNameEdit(*window)->setText(root + QLatin1String("/free"));
    window->pb_print();
    QCOMPARE(prompts.questions.size(), 2);
    QVERIFY(!window->isVisible());
    QVERIFY(!QFileInfo::exists(root + QLatin1String("/free.pdf")));
}

void PrintTest::nameWithoutFolder()
{
    JobFixture job;
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(job.dir.path()));
    window->show();
    tabs(*window)->setCurrentIndex(Formats::Pdf);
    fileNameEdit(*window)->setText(QStringLiteral("report"));

    window->pb_print();

    QDir::setCurrent(previous);
    // The empty folder is the current directory, so the write test succeeds there.
    QVERIFY(prompts.questions.isEmpty());
    QVERIFY(!window->isVisible());
    QVERIFY(!QFileInfo::exists(job.path(QStringLiteral("report.pdf"))));
    QCOMPARE(jobSettings().outputFolder, QString());
}

void PrintTest::readOnlyFolder()
{
    if (::geteuid() == 0)
        QSKIP("root can write into a read-only folder");
    JobFixture job;
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    const QString folder = job.path(QStringLiteral("locked"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    window->show();
    tabs(*window)->setCurrentIndex(Formats::Pdf);
    fileNameEdit(*window)->setText(folder + QLatin1String("/report"));

    window->pb_print();

    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(prompts.questions.size(), 1);
    QCOMPARE(prompts.questions.first().title, QStringLiteral("Vellumio"));
    QCOMPARE(prompts.questions.first().text, permissionText);
    QVERIFY(window->isVisible());
    QVERIFY(window->isEnabled());
    QVERIFY(!QFileInfo::exists(job.userFile()));
}

void PrintTest::printSaves_data()
{
    // all users share the settings, text of le_filename below the output folder, current page,
    // expected newfilename and format
    QTest::addColumn<bool>("allUsers");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("newFileName");
    QTest::addColumn<QString>("format");

    // clang-format off
    QTest::newRow("user key")             << false << "report"     << int(Formats::Pdf)   << "report" << "pdf";
    QTest::newRow("both keys")            << true  << "report"     << int(Formats::Pdf)   << "report" << "pdf";
    QTest::newRow("extension typed")      << false << "report.pdf" << int(Formats::Pdf)   << "report" << "pdf";
    QTest::newRow("other extension kept") << false << "scan.ab"    << int(Formats::Png)   << "scan.ab" << "png";
    // clang-format on
}

void PrintTest::printSaves()
{
    QFETCH(bool, allUsers);
    QFETCH(QString, typed);
    QFETCH(int, page);
    QFETCH(QString, newFileName);
    QFETCH(QString, format);

    JobFixture job;
    const QByteArray machineBefore = allUsers ? "[General]\nsettings_for_all_users=true\n"
                                              : "[General]\nsettings_for_all_users=false\n";
    job.writeFile(job.machineFile(), machineBefore);
    job.writeFile(job.userFile(), earlierJob);
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    const QString folder = QDir::cleanPath(job.dir.path()) + QLatin1String("/out/");
    QVERIFY(QDir().mkpath(folder));
    window->show();
    tabs(*window)->setCurrentIndex(page);
    fileNameEdit(*window)->setText(folder + typed);

    window->pb_print();

    QVERIFY(prompts.questions.isEmpty());
    QVERIFY(!window->isVisible());
    QStringList keys {job.userFile()};
    if (allUsers)
        keys << job.machineFile();
    else
        QCOMPARE(JobFixture::bytesOf(job.machineFile()), machineBefore);
    for (const QString &key : std::as_const(keys)) {
        QCOMPARE(JobFixture::valueOf(key, QStringLiteral("isabort")), QStringLiteral("false"));
        QCOMPARE(JobFixture::valueOf(key, QStringLiteral("newfilename")), newFileName);
        QCOMPARE(JobFixture::valueOf(key, QStringLiteral("Path")), folder);
        QCOMPARE(JobFixture::valueOf(key, QStringLiteral("format")), format);
    }
}

void PrintTest::cancel_data()
{
    // all users share the settings
    QTest::addColumn<bool>("allUsers");

    QTest::newRow("user key only") << false;
    QTest::newRow("machine and user key") << true;
}

void PrintTest::cancel()
{
    QFETCH(bool, allUsers);

    JobFixture job;
    const QByteArray machineBefore = QByteArray("[General]\nisabort=false\nsettings_for_all_users=")
        + (allUsers ? "true" : "false") + "\nformat=bmp\n";
    job.writeFile(job.machineFile(), machineBefore);
    job.writeFile(job.userFile(), earlierJob);
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    window->show();
    // Changes made in the dialog are lost.
    tabs(*window)->setCurrentIndex(Formats::Gif);
    fileNameEdit(*window)->setText(job.path(QStringLiteral("elsewhere")));

    window->pb_cancel();

    QVERIFY(prompts.questions.isEmpty());
    QVERIFY(!window->isVisible());
    QSettings user(job.userFile(), QSettings::IniFormat);
    QCOMPARE(user.value(QStringLiteral("isabort")).toString(), QStringLiteral("true"));
    QCOMPARE(user.value(QStringLiteral("format")).toString(), QStringLiteral("png"));
    QCOMPARE(user.value(QStringLiteral("Path")).toString(), QStringLiteral("/earlier/"));
    QCOMPARE(user.value(QStringLiteral("newfilename")).toString(), QStringLiteral("old"));
    QCOMPARE(user.value(QStringLiteral("q_jpg")).toInt(), 42);
    QCOMPARE(user.allKeys().size(), 5);
    if (allUsers) {
        QSettings machine(job.machineFile(), QSettings::IniFormat);
        QCOMPARE(machine.value(QStringLiteral("isabort")).toString(), QStringLiteral("true"));
        QCOMPARE(machine.value(QStringLiteral("format")).toString(), QStringLiteral("bmp"));
        QCOMPARE(machine.allKeys().size(), 3);
    } else {
        QCOMPARE(JobFixture::bytesOf(job.machineFile()), machineBefore);
    }
}

void PrintTest::titleBarCloseWritesNothing()
{
    JobFixture job;
    const QByteArray machineBefore = "[General]\nsettings_for_all_users=true\nisabort=false\n";
    job.writeFile(job.machineFile(), machineBefore);
    job.writeFile(job.userFile(), earlierJob);
    auto window = job.createWindow(false);
    ScriptedPrompts prompts;
    window->show();
    tabs(*window)->setCurrentIndex(Formats::Gif);

    QVERIFY(window->close());

    QVERIFY(prompts.questions.isEmpty());
    QCOMPARE(JobFixture::bytesOf(job.userFile()), earlierJob);
    QCOMPARE(JobFixture::bytesOf(job.machineFile()), machineBefore);
}

QTEST_MAIN(PrintTest)

#include "tst_print.moc"
