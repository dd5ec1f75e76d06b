#include "exchangevalues.h"
#include "passwordscrambling.h"
#include "settingskey.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

QStringList writes; // "name=value" in the order handed to the store

void recordWrite(SettingsScope, const QString &name, const QVariant &value)
{
    writes << name + QLatin1Char('=') + value.toString();
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

    void scramble_data();
    void scramble();
    void passwordThroughTheFile_data();
    void passwordThroughTheFile();
    void namesIgnoreCase_data();
    void namesIgnoreCase();
    void userFileIsOwnerOnly_data();
    void userFileIsOwnerOnly();
    void exchangeWrites_data();
    void exchangeWrites();

private:
    void writeUserFile(const QByteArray &ini);
    // The user file read as a new process would, past the store's in-process cache.
    QSettings *userFileOnDisk();

    QTemporaryDir *m_dir = nullptr;
    QSettings *m_onDisk = nullptr;
};

void tst_SettingsKey::init()
{
    m_dir = new QTemporaryDir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->filePath("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, m_dir->filePath("machine"));
    writes.clear();
    SettingsKey::setWriteObserver(recordWrite);
}

void tst_SettingsKey::cleanup()
{
    SettingsKey::setWriteObserver(nullptr);
    delete m_onDisk;
    m_onDisk = nullptr;
    delete m_dir;
}

void tst_SettingsKey::writeUserFile(const QByteArray &ini)
{
    QDir().mkpath(m_dir->filePath("user/Tarnwick"));
    QFile file(SettingsKey::fileName(SettingsScope::User));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(ini);
}

QSettings *tst_SettingsKey::userFileOnDisk()
{
    const QString copy = m_dir->filePath(QStringLiteral("copy.conf"));
    QFile::copy(SettingsKey::fileName(SettingsScope::User), copy);
    delete m_onDisk;
    m_onDisk = new QSettings(copy, QSettings::IniFormat);
    return m_onDisk;
}

void tst_SettingsKey::scramble_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("stored"); // each character followed by its filler

    // clang-format off
    QTest::newRow("empty")           << QString()                 << QString();
    QTest::newRow("a, b")            << QStringLiteral("ab")      << QStringLiteral("aaba");
    QTest::newRow("NUL filler")      << text({1, 1})              << text({1, 1, 1, 0});
    QTest::newRow("negative filler") << text({u'a', 0})           << text({u'a', u'a', 0, 0xFFFF});
    QTest::newRow("lead byte C3")    << QStringLiteral("\u00e9")  << text({0xE9, 0xFFC3});
    QTest::newRow("lead byte E4")    << QStringLiteral("x\u4e2d") << text({u'x', u'x', 0x4E2D, 0xFFE3});
    // clang-format on
}

void tst_SettingsKey::scramble()
{
    QFETCH(QString, password);
    QFETCH(QString, stored);
    QCOMPARE(scramblePassword(password), stored);
    QCOMPARE(unscramblePassword(stored), password);
    // Fillers are dropped unchecked; an odd last character is kept.
    QCOMPARE(unscramblePassword(stored + QLatin1Char('z')), password + QLatin1Char('z'));
}

void tst_SettingsKey::passwordThroughTheFile_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("expected"); // what a new process reads back

    QString manyBmp; // beyond 8000 characters the fillers run into the surrogate range
    for (char16_t unit = 1; manyBmp.size() < 12000; unit = char16_t(unit * 7 + 3)) {
        if (!QChar::isSurrogate(unit))
            manyBmp += QChar(unit);
    }
    QString nulFillers; // the filler of an ASCII character at its own code is 0
    for (char16_t code = 0; code < 128; ++code)
        nulFillers += QChar(code);
    const QString metacharacters = QStringLiteral("a=b;c,d \"e\" \\f @String(g) #h [i]\r\n\t");
    const QString scripts = QStringLiteral("\u00e4\u00df\u03a9\u4e2d\uac00") + text({0xFFFE});

    QTest::newRow("INI metacharacters") << metacharacters << metacharacters;
    QTest::newRow("scripts, negative fillers") << scripts << scripts;
    QTest::newRow("NUL fillers") << nulFillers << nulFillers;
    QTest::newRow("12000 BMP characters") << manyBmp << manyBmp;
    // UTF-8 has no form for the lone halves a filler leaves of a character outside the BMP.
    QTest::newRow("outside the BMP")
        << QStringLiteral("a\U0001F600b") << text({u'a', 0xFFFD, 0xFFFD, u'b'});
}

void tst_SettingsKey::passwordThroughTheFile()
{
    QFETCH(QString, password);
    QFETCH(QString, expected);
    SettingsKey(SettingsScope::User).setText(Settings::PdfUserPw, scramblePassword(password));
    const QString stored = userFileOnDisk()->value(QStringLiteral("pdf_user_pw")).toString();
    QCOMPARE(stored.size(), password.size() * 2);
    QCOMPARE(unscramblePassword(stored), expected);
}

void tst_SettingsKey::namesIgnoreCase_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("read"); // what "path" reads

    // clang-format off
    QTest::newRow("written as Path")  << QByteArray("Path=/out/")           << "/out/";
    QTest::newRow("upper case")       << QByteArray("PATH=/upper/")         << "/upper/";
    QTest::newRow("exact one wins")   << QByteArray("PATH=/a/\npath=/b/")   << "/b/";
    QTest::newRow("absent")           << QByteArray("PathX=/x/")            << "";
    // clang-format on
}

void tst_SettingsKey::namesIgnoreCase()
{
    QFETCH(QByteArray, ini);
    QFETCH(QString, read);
    writeUserFile("[General]\n" + ini + "\nformat=pdf\n");
    {
        SettingsKey key(SettingsScope::User);
        QCOMPARE(key.text(Settings::PathRead), read);
        key.setText(Settings::PathWritten, QStringLiteral("/new/"));
        QCOMPARE(key.text(Settings::PathRead), QStringLiteral("/new/"));
    }
    QStringList keys = userFileOnDisk()->allKeys();
    keys.removeAll(QStringLiteral("PathX"));
    QCOMPARE(keys, QStringList({QStringLiteral("Path"), QStringLiteral("format")}));
}

void tst_SettingsKey::userFileIsOwnerOnly_data()
{
    QTest::addColumn<int>("before"); // mode of an existing file; -1: none yet
    QTest::newRow("created") << -1;
    QTest::newRow("world readable") << 0644;
    QTest::newRow("group writable") << 0660;
}

void tst_SettingsKey::userFileIsOwnerOnly()
{
    QFETCH(int, before);
    const QByteArray path = QFile::encodeName(SettingsKey::fileName(SettingsScope::User));
    if (before >= 0) {
        writeUserFile("[General]\nformat=png\n");
        QCOMPARE(::chmod(path.constData(), mode_t(before)), 0);
    }
    SettingsKey(SettingsScope::User).setText(Settings::PdfUserPw, QStringLiteral("pw"));
    struct stat status;
    QCOMPARE(::stat(path.constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
    QCOMPARE(
        userFileOnDisk()->value(QStringLiteral("pdf_user_pw")), QVariant(QStringLiteral("pw")));
}

void tst_SettingsKey::exchangeWrites_data()
{
    QTest::addColumn<bool>("abort");
    QTest::addColumn<int>("scope");
    QTest::addColumn<QStringList>("order");

    const QStringList abort {QStringLiteral("isabort=true")};
    const QStringList saveAs {QStringLiteral("isabort=false"), QStringLiteral("newfilename=report"),
        QStringLiteral("Path=/out/"), QStringLiteral("format=")};
    QTest::newRow("abort, machine") << true << int(SettingsScope::Machine) << abort;
    QTest::newRow("save as, machine") << false << int(SettingsScope::Machine) << saveAs;
}

void tst_SettingsKey::exchangeWrites()
{
    QFETCH(bool, abort);
    QFETCH(int, scope);
    QFETCH(QStringList, order);
    const auto written = SettingsScope(scope);
    if (abort)
        ExchangeValues::writeAbort(written);
    else
        ExchangeValues::writeSaveAsOutcome(
            written, QStringLiteral("report"), QStringLiteral("/out/"), QString());
    QCOMPARE(writes, order);

    // Only the key asked for, and the values as text for the driver.
    const SettingsScope other
        = written == SettingsScope::User ? SettingsScope::Machine : SettingsScope::User;
    QVERIFY(!QFile::exists(SettingsKey::fileName(other)));
    const QString copy = m_dir->filePath(QStringLiteral("copy.conf"));
    QFile::copy(SettingsKey::fileName(written), copy);
    const QSettings file(copy, QSettings::IniFormat);
    for (const QString &pair : order) {
        const QVariant value = file.value(pair.section(QLatin1Char('='), 0, 0));
        QCOMPARE(value, QVariant(pair.section(QLatin1Char('='), 1)));
    }
}

QTEST_GUILESS_MAIN(tst_SettingsKey)
#include "tst_settingskey.moc"
