#include "jobfixture.h"
#include "passwordscrambling.h"
#include "settingskey.h"

#include <QTest>
#include <QtCore>

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
    void init() { m_job = std::make_unique<JobFixture>(); }
    void passwordThroughTheFile_data()
    {
        QTest::addColumn<QString>("password");
        // each character followed by its filler; null: not checked
        QTest::addColumn<QString>("scrambled");
        QTest::addColumn<QString>("expected"); // what a new process reads back

        // ASCII at its own position has the filler 0; beyond 8000 characters the fillers run into
        // the surrogate range.
        QString many;
        for (int i = 0; many.size() < 12000; ++i)
            many += QChar(char16_t(i < 128 ? i : i + 0x80));
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
        QTest::newRow("NUL fillers, 12000") << many << QString() << many;
        // UTF-8 has no form for the lone halves a filler leaves of a character outside the BMP.
        QTest::newRow("outside the BMP")    << QStringLiteral("a\U0001F600b") << QString()                    << units({u'a', 0xFFFD, 0xFFFD, u'b'});
        // clang-format on
    }
    void passwordThroughTheFile()
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
    void namesAndMode_data()
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
    void namesAndMode()
    {
        QFETCH(QByteArray, ini);
        QFETCH(int, mode);
        QFETCH(QString, read);
        const QString file = SettingsKey::fileName(SettingsScope::User);
        if (!ini.isEmpty()) {
            m_job->writeFile(m_job->userFile(), ini + "\nformat=pdf");
            QCOMPARE(::chmod(QFile::encodeName(file).constData(), mode_t(mode)), 0);
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
        QCOMPARE(QFileInfo(file).permissions() & 0x7077, 0x6000); // rw-------
    }

private:
    // The user file read as a new process would, past the store's in-process cache.
    std::unique_ptr<QSettings> userFileOnDisk()
    {
        const QString copy = m_job->path(QStringLiteral("copy%1.conf").arg(++m_copies));
        QFile::copy(SettingsKey::fileName(SettingsScope::User), copy);
        return std::make_unique<QSettings>(copy, QSettings::IniFormat);
    }

    std::unique_ptr<JobFixture> m_job;
    int m_copies = 0;
};

QTEST_GUILESS_MAIN(tst_SettingsKey)
#include "tst_settingskey.moc"
