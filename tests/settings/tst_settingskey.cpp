#include "exchangevalues.h"
#include "formatcatalogue.h"
#include "passwordscrambling.h"
#include "settingskey.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Write
{
    SettingsScope scope;
    QString name;
    QVariant value;
};

QList<Write> writes;

void recordWrite(SettingsScope scope, const QString &name, const QVariant &value)
{
    writes.append({scope, name, value});
}

QString userFile()
{
    return SettingsKey::fileName(SettingsScope::User);
}

QString machineFile()
{
    return SettingsKey::fileName(SettingsScope::Machine);
}

void writeRaw(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray readRaw(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isRoot()
{
    return ::geteuid() == 0;
}

QString text(std::initializer_list<char16_t> units)
{
    QString result;
    for (char16_t unit : units)
        result += QChar(unit);
    return result;
}

} // namespace

// The store, its table and the password scrambling, against real INI files in a temporary folder.
class tst_SettingsKey : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tableMatchesFormatCatalogue();
    void everyPageValueIsWrittenOnlyByItsPage();

    void scramble_data();
    void scramble();
    void unscramble_data();
    void unscramble();
    void passwordSurvivesTheFile_data();
    void passwordSurvivesTheFile();
    void fileCannotKeepLoneSurrogates();

    void namesIgnoreCase_data();
    void namesIgnoreCase();
    void writeLeavesOneSpellingOnDisk();
    void userKeyDoesNotSeeMachineKey();

    void userFileIsOwnerOnly_data();
    void userFileIsOwnerOnly();
    void failedWriteIsSilent_data();
    void failedWriteIsSilent();
    void garbageReadsAsDefaults_data();
    void garbageReadsAsDefaults();

    void exchangeWrites_data();
    void exchangeWrites();

private:
    // Reads a file the way a new process would, past the store's in-process cache.
    QVariant readFromDisk(const QString &path, const QString &name);

    QTemporaryDir *m_dir = nullptr;
};

void tst_SettingsKey::init()
{
    m_dir = new QTemporaryDir;
    QVERIFY(m_dir->isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->filePath("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, m_dir->filePath("machine"));
    writes.clear();
    SettingsKey::setWriteObserver(recordWrite);
}

void tst_SettingsKey::cleanup()
{
    SettingsKey::setWriteObserver(nullptr);
    // Give back write permission so the temporary folder can be removed.
    for (const QString &path : {m_dir->filePath("user"), m_dir->filePath("user/Tarnwick")})
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    delete m_dir;
    m_dir = nullptr;
}

QVariant tst_SettingsKey::readFromDisk(const QString &path, const QString &name)
{
    static int copies = 0;
    const QString copy = m_dir->filePath(QStringLiteral("copy%1.conf").arg(++copies));
    QFile::copy(path, copy);
    return QSettings(copy, QSettings::IniFormat).value(name);
}

void tst_SettingsKey::tableMatchesFormatCatalogue()
{
    // The extension values are named in both tables; the driver reads them by these names.
    for (const Formats::Format &format : Formats::all()) {
        bool found = false;
        for (const Settings::Entry &row : Settings::entries()) {
            if (QLatin1String(row.name) == QLatin1String(format.extensionKey)) {
                found = true;
                QCOMPARE(Settings::defaultValue(row.value).toString(),
                    QLatin1String(format.defaultExtension));
                QCOMPARE(row.written, Settings::Written::Never);
            }
        }
        QVERIFY2(found, format.extensionKey);
    }

    // 65 names; only path and Path differ just in case.
    QSet<QString> folded;
    for (const Settings::Entry &row : Settings::entries())
        folded.insert(QString::fromLatin1(row.name).toLower());
    QCOMPARE(int(Settings::entries().size()), 65);
    QCOMPARE(folded.size(), 64);
}

void tst_SettingsKey::everyPageValueIsWrittenOnlyByItsPage()
{
    for (int page = 0; page < Formats::Count; ++page) {
        const QList<Settings::Value> &values = Settings::pageValues(page);
        QCOMPARE(values.count(Settings::Format), 1);
        for (const Settings::Entry &row : Settings::entries()) {
            if (row.written != Settings::Written::PageCurrent)
                continue;
            QCOMPARE(values.contains(row.value), row.page == page);
        }
    }
    QVERIFY(Settings::pageValues(Formats::Count).isEmpty());
    QVERIFY(Settings::pageValues(-1).isEmpty());
}

void tst_SettingsKey::scramble_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("stored");

    // clang-format off
    //                                    password                      stored: each character, then its filler
    QTest::newRow("empty")             << QString()                  << QString();
    QTest::newRow("a, b")              << QStringLiteral("ab")       << QStringLiteral("aaba");
    QTest::newRow("NUL filler")        << text({1, 1})               << text({1, 1, 1, 0});
    QTest::newRow("negative filler")   << text({u'a', 0})            << text({u'a', u'a', 0, 0xFFFF});
    QTest::newRow("non-ASCII lead")    << QStringLiteral("\u00e9")   << text({0xE9, 0xFFC3});
    QTest::newRow("CJK lead byte")     << QStringLiteral("x\u4e2d")  << text({u'x', u'x', 0x4E2D, 0xFFE3});
    // clang-format on
}

void tst_SettingsKey::scramble()
{
    QFETCH(QString, password);
    QFETCH(QString, stored);
    QCOMPARE(scramblePassword(password), stored);
    QCOMPARE(unscramblePassword(stored), password);
}

void tst_SettingsKey::unscramble_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("password");

    // clang-format off
    //                                    stored                     password
    QTest::newRow("fillers unchecked") << QStringLiteral("aXbY")  << QStringLiteral("ab");
    QTest::newRow("odd length")        << QStringLiteral("abc")   << QStringLiteral("ac");
    QTest::newRow("one character")     << QStringLiteral("z")     << QStringLiteral("z");
    // clang-format on
}

void tst_SettingsKey::unscramble()
{
    QFETCH(QString, stored);
    QFETCH(QString, password);
    QCOMPARE(unscramblePassword(stored), password);
}

void tst_SettingsKey::passwordSurvivesTheFile_data()
{
    QTest::addColumn<QString>("password");

    QString wholeBmp;
    for (char16_t unit = 1; wholeBmp.size() < 12000; unit = char16_t(unit * 7 + 3)) {
        if (!QChar::isSurrogate(unit))
            wholeBmp += QChar(unit);
    }
    QString nulFillers;
    for (char16_t code = 0; code < 120; ++code)
        nulFillers += QChar(code); // the filler of position i is i - i = 0 for ASCII
    QString negativeFillers;
    for (int i = 0; i < 300; ++i)
        negativeFillers += QChar(u'\u00e4'); // lead byte 0xC3 is negative as a signed char

    QTest::newRow("ASCII") << QStringLiteral("Secret 1");
    QTest::newRow("INI specials") << QStringLiteral("a=b;c,d \"e\" \\f @String(g) #h [i]");
    QTest::newRow("line breaks and tabs") << QStringLiteral("\r\n\t\n");
    QTest::newRow("Latin, Greek, CJK") << QStringLiteral("\u00e9\u00df\u03a9\u4e2d\u6587\uac00");
    QTest::newRow("noncharacters") << text({0xFFFE, 0xFFFF, 0xFDD0});
    QTest::newRow("NUL fillers") << nulFillers;
    QTest::newRow("negative fillers") << negativeFillers;
    // Beyond 8000 characters the fillers fall into the surrogate range on their own.
    QTest::newRow("12000 BMP characters") << wholeBmp;
}

void tst_SettingsKey::passwordSurvivesTheFile()
{
    QFETCH(QString, password);
    {
        SettingsKey key(SettingsScope::User);
        key.setText(Settings::PdfUserPw, scramblePassword(password));
    }
    const QString stored = readFromDisk(userFile(), QStringLiteral("pdf_user_pw")).toString();
    QCOMPARE(stored.size(), password.size() * 2);
    QCOMPARE(unscramblePassword(stored), password);
}

void tst_SettingsKey::fileCannotKeepLoneSurrogates()
{
    // A character outside the BMP is two UTF-16 units, and scrambling puts a filler between
    // them. The file is UTF-8, which has no form for a lone surrogate: each half comes back as
    // U+FFFD, while the length and every other character stay.
    const QString password = QStringLiteral("a\U0001F600b");
    {
        SettingsKey key(SettingsScope::User);
        key.setText(Settings::PdfUserPw, scramblePassword(password));
    }
    const QString stored = readFromDisk(userFile(), QStringLiteral("pdf_user_pw")).toString();
    QCOMPARE(unscramblePassword(stored), text({u'a', 0xFFFD, 0xFFFD, u'b'}));
}

void tst_SettingsKey::namesIgnoreCase_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("expected");

    // clang-format off
    //                                   file content                                       path reads
    QTest::newRow("written as Path")  << QByteArray("[General]\nPath=/out/\n")            << "/out/";
    QTest::newRow("upper case")       << QByteArray("[General]\nPATH=/upper/\n")          << "/upper/";
    QTest::newRow("exact one wins")   << QByteArray("[General]\nPATH=/a/\npath=/b/\n")    << "/b/";
    QTest::newRow("absent")           << QByteArray("[General]\nPathX=/x/\n")             << "";
    // clang-format on
}

void tst_SettingsKey::namesIgnoreCase()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, expected);
    writeRaw(userFile(), file);
    const SettingsKey key(SettingsScope::User);
    QCOMPARE(key.text(Settings::PathRead), expected);
}

void tst_SettingsKey::writeLeavesOneSpellingOnDisk()
{
    writeRaw(userFile(), "[General]\npath=/old/\nPATH=/older/\nformat=pdf\n");
    {
        SettingsKey key(SettingsScope::User);
        key.setText(Settings::PathWritten, QStringLiteral("/new/"));
        QCOMPARE(key.text(Settings::PathRead), QStringLiteral("/new/"));
    }
    const QString copy = m_dir->filePath(QStringLiteral("check.conf"));
    QFile::copy(userFile(), copy);
    QSettings onDisk(copy, QSettings::IniFormat);
    QCOMPARE(onDisk.allKeys(), QStringList({QStringLiteral("Path"), QStringLiteral("format")}));
    QCOMPARE(onDisk.value(QStringLiteral("Path")).toString(), QStringLiteral("/new/"));
}

void tst_SettingsKey::userKeyDoesNotSeeMachineKey()
{
    writeRaw(machineFile(), "[General]\nformat=pdf\n");
    writeRaw(m_dir->filePath("user/Tarnwick.conf"), "[General]\nformat=gif\n");
    const SettingsKey user(SettingsScope::User);
    QCOMPARE(user.text(Settings::Format), QStringLiteral("tif"));
    const SettingsKey machine(SettingsScope::Machine);
    QCOMPARE(machine.text(Settings::Format), QStringLiteral("pdf"));
}

void tst_SettingsKey::userFileIsOwnerOnly_data()
{
    QTest::addColumn<int>("before"); // mode of the file before the write; -1: no file yet
    QTest::addColumn<int>("after");

    // clang-format off
    //                                   before   after
    QTest::newRow("created")          <<   -1  << 0600;
    QTest::newRow("world readable")   << 0644  << 0600;
    QTest::newRow("group writable")   << 0660  << 0600;
    QTest::newRow("already private")  << 0600  << 0600;
    // clang-format on
}

void tst_SettingsKey::userFileIsOwnerOnly()
{
    QFETCH(int, before);
    QFETCH(int, after);
    if (before >= 0) {
        writeRaw(userFile(), "[General]\nformat=png\n");
        QCOMPARE(::chmod(QFile::encodeName(userFile()).constData(), mode_t(before)), 0);
    }
    {
        SettingsKey key(SettingsScope::User);
        key.setText(Settings::PdfUserPw, scramblePassword(QStringLiteral("pw")));
    }
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(userFile()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), after);
    QVERIFY(readRaw(userFile()).contains("pdf_user_pw"));
}

void tst_SettingsKey::failedWriteIsSilent_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("read-only file") << QStringLiteral("file");
    QTest::newRow("read-only folder") << QStringLiteral("folder");
    QTest::newRow("file name is a folder") << QStringLiteral("directory");
}

void tst_SettingsKey::failedWriteIsSilent()
{
    QFETCH(QString, obstacle);
    const QString folder = QFileInfo(userFile()).absolutePath();
    const QByteArray original("[General]\nformat=png\n");
    if (obstacle == QLatin1String("directory")) {
        QVERIFY(QDir().mkpath(userFile()));
    } else {
        if (isRoot())
            QSKIP("root may write read-only files and folders");
        writeRaw(userFile(), original);
        if (obstacle == QLatin1String("file"))
            QFile::setPermissions(userFile(), QFileDevice::ReadOwner);
        else
            QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }

    QElapsedTimer timer;
    timer.start();
    ExchangeValues::writeAbort(SettingsScope::User);
    QVERIFY(timer.elapsed() < 5000);

    const SettingsKey key(SettingsScope::User);
    if (obstacle == QLatin1String("directory")) {
        QVERIFY(QFileInfo(userFile()).isDir());
        QCOMPARE(key.text(Settings::Format), QStringLiteral("tif"));
    } else {
        QCOMPARE(readRaw(userFile()), original);
    }
}

void tst_SettingsKey::garbageReadsAsDefaults_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("quality");
    QTest::addColumn<bool>("multipage");

    // clang-format off
    //                                  file content                                      format   q_jpg  multipage_pdf
    QTest::newRow("binary garbage")  << QByteArray("\x00\xff\xfe[[[=\x01\n\x80", 10)       << "tif" << 100 << true;
    QTest::newRow("truncated")       << QByteArray("[General]\nformat=pd")                << "pd"  << 100 << true;
    QTest::newRow("wrong types")     << QByteArray("[General]\nq_jpg=abc\nmultipage_pdf=0\n") << "tif" << 0 << false;
    QTest::newRow("list value")      << QByteArray("[General]\nq_jpg=1, 2\nformat=a, b\n")    << ""    << 0   << true;
    QTest::newRow("invalid marker")  << QByteArray("[General]\nmultipage_pdf=@Invalid()\n")   << "tif" << 100 << false;
    QTest::newRow("other group")     << QByteArray("[Other]\nformat=pdf\nq_jpg=5\n")        << "tif" << 100 << true;
    // clang-format on
}

void tst_SettingsKey::garbageReadsAsDefaults()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, format);
    QFETCH(int, quality);
    QFETCH(bool, multipage);
    writeRaw(userFile(), file);
    const SettingsKey key(SettingsScope::User);
    QCOMPARE(key.text(Settings::Format), format);
    QCOMPARE(key.integer(Settings::QJpg), quality);
    QCOMPARE(key.flag(Settings::MultipagePdf), multipage);
}

void tst_SettingsKey::exchangeWrites_data()
{
    QTest::addColumn<int>("occasion"); // 0: abort, 1: save-as outcome
    QTest::addColumn<int>("scope");
    QTest::addColumn<QStringList>("order"); // name=value as written

    const int user = int(SettingsScope::User);
    const int machine = int(SettingsScope::Machine);
    const QStringList abort {QStringLiteral("isabort=true")};
    const QStringList saveAs {QStringLiteral("isabort=false"), QStringLiteral("newfilename=report"),
        QStringLiteral("Path=/out/"), QStringLiteral("format=pdf")};

    QTest::newRow("abort, user key") << 0 << user << abort;
    QTest::newRow("abort, machine key") << 0 << machine << abort;
    QTest::newRow("save as, user key") << 1 << user << saveAs;
    QTest::newRow("save as, machine key") << 1 << machine << saveAs;
}

void tst_SettingsKey::exchangeWrites()
{
    QFETCH(int, occasion);
    QFETCH(int, scope);
    QFETCH(QStringList, order);
    const auto settingsScope = SettingsScope(scope);
    const SettingsScope other
        = settingsScope == SettingsScope::User ? SettingsScope::Machine : SettingsScope::User;
    if (occasion == 0)
        ExchangeValues::writeAbort(settingsScope);
    else
        ExchangeValues::writeSaveAsOutcome(settingsScope, QStringLiteral("report"),
            QStringLiteral("/out/"), QStringLiteral("pdf"));

    QStringList written;
    for (const Write &write : writes) {
        QCOMPARE(write.scope, settingsScope);
        QCOMPARE(write.value.typeId(), QMetaType::QString);
        written << write.name + QLatin1Char('=') + write.value.toString();
    }
    QCOMPARE(written, order);

    const QString file = SettingsKey::fileName(settingsScope);
    for (const QString &pair : order) {
        const QString name = pair.section(QLatin1Char('='), 0, 0);
        QCOMPARE(readFromDisk(file, name).toString(), pair.section(QLatin1Char('='), 1));
    }
    QVERIFY(!QFile::exists(SettingsKey::fileName(other)));
}

QTEST_GUILESS_MAIN(tst_SettingsKey)
#include "tst_settingskey.moc"
