#include "passwordscrambling.h"
#include "settingskey.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

namespace {

QString units(std::initializer_list<char16_t> list)
{
    return QString(reinterpret_cast<const QChar *>(list.begin()), qsizetype(list.size()));
}

} // namespace

// The store and the password scrambling, against real files in a temporary folder. The abort
// writes are proven by the Print suite's cancel test, the save-as order by the save-as-only suite.
class tst_SettingsKey : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->filePath("user"));
    }
    void passwordThroughTheFile_data();
    void passwordThroughTheFile();
    void namesAndMode_data();
    void namesAndMode();

private:
    // The user file read as a new process would, past the store's in-process cache.
    std::unique_ptr<QSettings> userFileOnDisk()
    {
        const QString copy = m_dir->filePath(QStringLiteral("copy%1.conf").arg(++m_copies));
        QFile::copy(SettingsKey::fileName(SettingsScope::User), copy);
        return std::make_unique<QSettings>(copy, QSettings::IniFormat);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    int m_copies = 0;
};

void tst_SettingsKey::passwordThroughTheFile_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>(
        "scrambled"); // each character followed by its filler; null: not checked
    QTest::addColumn<QString>("expected"); // what a new process reads back

    QString manyBmp; // beyond 8000 characters the fillers run into the surrogate range
    for (char16_t unit = 1; manyBmp.size() < 12000; unit = char16_t(unit * 7 + 3)) {
        if (!QChar::isSurrogate(unit))
            manyBmp += QChar(unit);
    }
    QString nulFillers; // the filler of an ASCII character at its own position is 0
    for (char16_t code = 0; code < 128; ++code)
        nulFillers += QChar(code);
    const QString meta = QStringLiteral("a=b;c,d \"e\" \\f @String(g) #h [i]\r\n\t");
    const QString scripts = QStringLiteral("\u00e4\u00df\u03a9\u4e2d\uac00") + units({0xFFFE});
    // clang-format off
    QTest::newRow("empty")              << QString()                << QString()                          << QString();
    QTest::newRow("a, b")               << QStringLiteral("ab")     << QStringLiteral("aaba")             << QStringLiteral("ab");
    QTest::newRow("NUL filler")         << units({1, 1})            << units({1, 1, 1, 0})                << units({1, 1});
    QTest::newRow("negative filler")    << units({u'a', 0})         << units({u'a', u'a', 0, 0xFFFF})     << units({u'a', 0});
    QTest::newRow("lead byte E4")       << QStringLiteral("x\u4e2d") << units({u'x', u'x', 0x4E2D, 0xFFE3}) << QStringLiteral("x\u4e2d");
    QTest::newRow("INI metacharacters") << meta                     << QString()                          << meta;
    QTest::newRow("scripts")            << scripts                  << QString()                          << scripts;
    QTest::newRow("NUL fillers")        << nulFillers               << QString()                          << nulFillers;
    QTest::newRow("12000 BMP")          << manyBmp                  << QString()                          << manyBmp;
    // UTF-8 has no form for the lone halves a filler leaves of a character outside the BMP.
    QTest::newRow("outside the BMP")    << QStringLiteral("a\U0001F600b") << QString()                    << units({u'a', 0xFFFD, 0xFFFD, u'b'});
    // clang-format on
}

void tst_SettingsKey::passwordThroughTheFile()
{
    QFETCH(QString, password);
    QFETCH(QString, scrambled);
    QFETCH(QString, expected);
    if (!scrambled.isNull())
        QCOMPARE(scramblePassword(password), scrambled);
    SettingsKey(SettingsScope::User).setText(Settings::PdfUserPw, scramblePassword(password));
    const QString stored = userFileOnDisk()->value(QStringLiteral("pdf_user_pw")).toString();
    QCOMPARE(stored.size(), password.size() * 2);
    QCOMPARE(unscramblePassword(stored), expected);
    // Fillers are dropped unchecked; an odd last character is kept.
    QCOMPARE(unscramblePassword(stored + 'z'), expected + 'z');
}

void tst_SettingsKey::namesAndMode_data()
{
    QTest::addColumn<QByteArray>("ini"); // the user file before; none when empty
    QTest::addColumn<int>("mode"); // its mode
    QTest::addColumn<QString>("read"); // what "path" reads
    QTest::newRow("created") << QByteArray() << 0 << "";
    QTest::newRow("written as Path") << QByteArray("Path=/out/") << 0644 << "/out/";
    QTest::newRow("upper case") << QByteArray("PATH=/upper/") << 0660 << "/upper/";
    QTest::newRow("exact one wins") << QByteArray("PATH=/a/\npath=/b/") << 0600 << "/b/";
    QTest::newRow("absent") << QByteArray("PathX=/x/") << 0640 << "";
}

// Names are matched without regard to case, one spelling is left after a write, and the user
// file, which holds the scrambled passwords, is made or left owner-only.
void tst_SettingsKey::namesAndMode()
{
    QFETCH(QByteArray, ini);
    QFETCH(int, mode);
    QFETCH(QString, read);
    const QByteArray path = QFile::encodeName(SettingsKey::fileName(SettingsScope::User));
    if (!ini.isEmpty()) {
        QDir().mkpath(m_dir->filePath("user/Tarnwick"));
        QFile file(path);
        QVERIFY(
            file.open(QIODevice::WriteOnly) && file.write("[General]\n" + ini + "\nformat=pdf\n"));
        file.close();
        QCOMPARE(::chmod(path.constData(), mode_t(mode)), 0);
    }
    {
        SettingsKey key(SettingsScope::User);
        QCOMPARE(key.text(Settings::PathRead), read);
        key.setText(Settings::PathWritten, QStringLiteral("/new/"));
        QCOMPARE(key.text(Settings::PathRead), QStringLiteral("/new/"));
    }
    QStringList keys = userFileOnDisk()->allKeys();
    keys.removeAll(QStringLiteral("PathX"));
    QCOMPARE(keys.join(' '), ini.isEmpty() ? "Path" : "Path format");
    struct stat status;
    QCOMPARE(::stat(path.constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
}

QTEST_GUILESS_MAIN(tst_SettingsKey)
#include "tst_settingskey.moc"
