#include "reliabilityfixture.h"

#include "jobsettings.h"
#include "mainwindow.h"
#include "prompts.h"

#include <QLineEdit>
#include <QRandomGenerator>
#include <QSettings>
#include <QTabWidget>
#include <QTest>
#include <QtPlugin>

#include <unistd.h>

// Settings files that no driver would write: the dialog must still open, Print must still close
// it, and the program must still end with status 0.
class tst_HostileSettings : public QObject
{
    Q_OBJECT

public:
    enum class Shape {
        File, // the bytes are the user settings file
        Directory, // a folder stands where the file should be
        DanglingSymlink, // a link to a file that does not exist
        ReadOnlyFile, // the bytes, in a file nobody may write
        ReadOnlyFolder, // the bytes, in a folder nobody may write
        Pipe, // a named pipe nobody writes to
    };

private slots:
    void dialogOpensAndPrints_data();
    void dialogOpensAndPrints();
    void programExitsZero_data();
    void programExitsZero();
    void cleanupTestCase();

private:
    static void addRows();
    static bool prepare(const ReliabilityFixture &fixture, Shape shape, const QByteArray &user,
        const QByteArray &machine);
    static void allowWriting(const ReliabilityFixture &fixture);

    int filesTried = 0;
    int closedByPrint = 0;
    int programRuns = 0;
};

Q_DECLARE_METATYPE(tst_HostileSettings::Shape)

// As in the program, so that the modern style draws what a hostile file put into the widgets.
Q_IMPORT_PLUGIN(WindowsModernStylePlugin)

namespace {

// Answers Yes and counts the questions: a hostile file must not make Print ask anything.
class CountingPrompts : public Prompts
{
public:
    int asked = 0;

    QMessageBox::StandardButton message(
        QWidget *, const QString &, const QString &, QMessageBox::StandardButtons) override
    {
        ++asked;
        return QMessageBox::Yes;
    }
    QString saveFileName(
        QWidget *, const QString &, const QString &, const QString &, QString *) override
    {
        ++asked;
        return QString();
    }
};

QByteArray repeated(char c, int count)
{
    return QByteArray(count, c);
}

QByteArray randomBytes(quint32 seed, int count)
{
    QRandomGenerator random(seed);
    QByteArray bytes(count, '\0');
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

QByteArray unknownKeys(int count)
{
    QByteArray ini = "[General]\nformat=png\n";
    for (int i = 0; i < count; ++i)
        ini += "unknown_value_" + QByteArray::number(i) + "=some text " + QByteArray::number(i)
            + "\n";
    return ini;
}

QByteArray manyGroups(int count)
{
    QByteArray ini = "format=gif\n";
    for (int i = 0; i < count; ++i)
        ini += "[group" + QByteArray::number(i) + "]\nformat=bmp\n";
    return ini;
}

const int tiffPage = 4;

} // namespace

void tst_HostileSettings::addRows()
{
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QByteArray>("user"); // the user settings file
    QTest::addColumn<QByteArray>("machine"); // the machine settings file, none when empty
    QTest::addColumn<int>("page"); // format page the dialog opens on, -1 when any will do

    const QByteArray png = "format=png\n";
    QTest::newRow("megabyte values") << Shape::File
                                     << "format=pdf\nstyle=WindowsXP\npdf_title="
            + repeated('t', 4 << 20) + "\nPath=" + repeated('p', 1 << 20)
            + "\nprotect_swf=" + repeated('s', 2 << 20) + "\nimage_color=" + repeated('8', 1 << 20)
            + "\ncustom_number=" + repeated('7', 1 << 20) + "\n"
                                     << QByteArray() << 7;
    QTest::newRow("megabyte value name") << Shape::File << png + repeated('k', 1 << 20) + "=v\n"
                                         << QByteArray() << 1;
    QTest::newRow("thousands of unknown values")
        << Shape::File << unknownKeys(5000) << QByteArray() << 1;
    QTest::newRow("thousands of groups") << Shape::File << manyGroups(5000) << QByteArray() << 5;
    QTest::newRow("invalid UTF-8")
        << Shape::File
        << QByteArray(
               "format=\xff\xfe\nPath=\xc3\x28/\xed\xa0\x80/\nnewfilename=\xf8\x88\x80\x80\n"
               "pdf_title=\x80\x81\n\xff\xfe=\xc0\xaf\nprotect_swf=\xc3\nstyle=Windows\xe2\x82\n")
        << QByteArray() << 2;
    static const char controls[] = "format=pdf\0tail\n\x01\x02=\x03\nq_pdf=\x1b[31m\n";
    QTest::newRow("NUL and control characters")
        << Shape::File << QByteArray(controls, sizeof controls - 1) << QByteArray() << -1;
    QTest::newRow("random bytes") << Shape::File << randomBytes(7, 64 * 1024) << QByteArray() << -1;
    QTest::newRow("typed values of the wrong type")
        << Shape::File
        << QByteArray("q_jpg=@Rect(1 2 3 4)\nq_pdf=@Variant(\\xff\\xff\\xff)\n"
                      "pdf_protect=@ByteArray(yes)\nformat=@Invalid()\nmultipage_pdf=@Size(1 2)\n"
                      "image_color=@Point(3 4)\nq_htm=-2147483648\nq_tif=99999999999999\n")
        << QByteArray() << -1;
    QTest::newRow("unterminated quotes and escapes")
        << Shape::File << QByteArray("format=\"pdf\npdf_title=\\\npath=\"\\x\\u\\\nformat_ext=\"")
        << QByteArray() << -1;
    QTest::newRow("all users, machine file of random bytes")
        << Shape::File << png << "settings_for_all_users=true\n" + randomBytes(11, 16 * 1024) << -1;
    QTest::newRow("settings file is a folder")
        << Shape::Directory << QByteArray() << QByteArray() << tiffPage;
    QTest::newRow("settings file is a dangling link")
        << Shape::DanglingSymlink << QByteArray() << QByteArray() << tiffPage;
    QTest::newRow("read-only settings file") << Shape::ReadOnlyFile << png << QByteArray() << 1;
    QTest::newRow("read-only settings folder") << Shape::ReadOnlyFolder << png << QByteArray() << 1;
}

bool tst_HostileSettings::prepare(const ReliabilityFixture &fixture, Shape shape,
    const QByteArray &user, const QByteArray &machine)
{
    if (!machine.isEmpty() && !ReliabilityFixture::writeFile(fixture.machineFile(), machine))
        return false;
    const QByteArray userFile = QFile::encodeName(fixture.userFile());
    switch (shape) {
    case Shape::File:
        return ReliabilityFixture::writeFile(fixture.userFile(), user);
    case Shape::Directory:
        return QDir().mkpath(fixture.userFile());
    case Shape::DanglingSymlink:
        return ::symlink("missing/Vellumio.conf", userFile.constData()) == 0;
    case Shape::ReadOnlyFile:
        return ReliabilityFixture::writeFile(fixture.userFile(), user)
            && ::chmod(userFile.constData(), 0400) == 0;
    case Shape::Pipe:
        return ::mkfifo(userFile.constData(), 0600) == 0;
    case Shape::ReadOnlyFolder:
        return ReliabilityFixture::writeFile(fixture.userFile(), user)
            && ::chmod(QFile::encodeName(fixture.userFolder()).constData(), 0500) == 0;
    }
    return false;
}

void tst_HostileSettings::allowWriting(const ReliabilityFixture &fixture)
{
    ::chmod(QFile::encodeName(fixture.userFolder()).constData(), 0700);
}

void tst_HostileSettings::dialogOpensAndPrints_data()
{
    addRows();
}

void tst_HostileSettings::dialogOpensAndPrints()
{
    QFETCH(Shape, shape);
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, machine);
    QFETCH(int, page);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    QVERIFY(prepare(fixture, shape, user, machine));
    const auto restore = qScopeGuard([&fixture] { allowWriting(fixture); });
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, fixture.path("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, fixture.path("machine"));
    const QByteArray before = ReliabilityFixture::readFile(fixture.userFile());

    JobSettings &job = jobSettings();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document1");
    MainWindow window;
    ++filesTried;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    if (page >= 0)
        QCOMPARE(window.findChild<QTabWidget *>(QStringLiteral("tabWidget"))->currentIndex(), page);

    window.findChild<QLineEdit *>(QStringLiteral("le_filename"))
        ->setText(fixture.outputFolder() + QStringLiteral("/Document1"));
    CountingPrompts prompts;
    Prompts::install(&prompts);
    window.pb_print();
    Prompts::install(nullptr);
    QCOMPARE(prompts.asked, 0);
    QVERIFY2(!window.isVisible(), "Print did not close the dialog");
    ++closedByPrint;

    const bool writable = shape == Shape::File || ::geteuid() == 0;
    if (shape == Shape::ReadOnlyFile || shape == Shape::ReadOnlyFolder) {
        // A key that cannot be written keeps what it held; nothing is lost or half-written.
        if (!writable)
            QCOMPARE(ReliabilityFixture::readFile(fixture.userFile()), before);
    }
    if (writable && QFileInfo(fixture.userFile()).isFile()) {
        QSettings saved(fixture.userFile(), QSettings::IniFormat);
        QCOMPARE(saved.status(), QSettings::NoError);
        QCOMPARE(saved.value(QStringLiteral("isabort")).toString(), QStringLiteral("false"));
        QCOMPARE(
            saved.value(QStringLiteral("newfilename")).toString(), QStringLiteral("Document1"));
    }
}

void tst_HostileSettings::programExitsZero_data()
{
    addRows();
    QTest::newRow("save-as-only mode with random bytes")
        << Shape::File << "chDialog_SaveAs=true\n" + randomBytes(13, 8 * 1024) << QByteArray()
        << -1;
    // Only as a separate process: a key that read the pipe would block this test for good.
    QTest::newRow("settings file is a named pipe")
        << Shape::Pipe << QByteArray() << QByteArray() << -1;
}

// The program's own run (command line, dialog, event loop) with the hostile file: Print is
// pressed as soon as the dialog shows, and the process must end normally with status 0.
void tst_HostileSettings::programExitsZero()
{
    QFETCH(Shape, shape);
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, machine);
    ReliabilityFixture fixture;
    QVERIFY(fixture.isValid());
    QVERIFY(prepare(fixture, shape, user, machine));
    const auto restore = qScopeGuard([&fixture] { allowWriting(fixture); });

    QProcess program;
    fixture.prepare(&program);
    program.setArguments({QStringLiteral("run"), QStringLiteral("Document1")});
    program.start();
    const auto stop = qScopeGuard([&program] {
        program.kill();
        program.waitForFinished();
    });
    QVERIFY(program.waitForFinished(60000));
    ++programRuns;
    const QByteArray output = program.readAllStandardOutput();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY2(output.contains("exit-status 0"), output.constData());
    QVERIFY2(!output.contains("forced-close"), "Print did not close the dialog");
    if (!user.startsWith("chDialog_SaveAs=true"))
        QVERIFY2(output.contains("closed-by-print"), output.constData());
}

void tst_HostileSettings::cleanupTestCase()
{
    qInfo("hostile settings: %d files tried in process, %d dialogs closed by Print, %d program "
          "runs ended with status 0, findings 0",
        filesTried, closedByPrint, programRuns);
}

QTEST_MAIN(tst_HostileSettings)
#include "tst_hostilesettings.moc"
