// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/passwordscrambling.h"
#include "settings/settingskey.h"
#include "tests/support/jobfixture.h"

#include <QTest>
#include <QtCore>

// The password scrambling through the store, and the one spelling a write leaves, against real
// files in a temporary folder. Reading names without regard to case is the load-and-save suite's,
// the owner-only mode the security suite's. The abort writes are proven by the Print suite's
// cancel test, the save-as order by the save-as-only suite.
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
        const auto units = [](std::initializer_list<char16_t> list) {
            return QString(reinterpret_cast<const QChar *>(list.begin()), qsizetype(list.size()));
        };
        QString many;
        for (int i = 0; many.size() < 12000; ++i)
            many += QChar(char16_t(i < 128 ? i : i + 0x80));
        const QString meta = QStringLiteral("a=b;c,d \"e\" \\f @String(g) #h [i]\r\n\t");
        // clang-format off
        QTest::newRow("empty")              << QString()                << QString()                          << QString();
        QTest::newRow("a, b")               << QStringLiteral("ab")     << QStringLiteral("aaba")             << QStringLiteral("ab");
        QTest::newRow("negative filler")    << units({u'a', 0})         << units({u'a', u'a', 0, 0xFFFF})     << units({u'a', 0});
        QTest::newRow("lead byte E4")       << QStringLiteral("x\u4e2d") << units({u'x', u'x', 0x4E2D, 0xFFE3}) << QStringLiteral("x\u4e2d");
        QTest::newRow("INI metacharacters") << meta                     << QString()                          << meta;
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
        // Read as a new process would, past the store's in-process cache.
        QFile::copy(SettingsKey::fileName(SettingsScope::User), m_job->path("copy.conf"));
        const QString stored = JobFixture::valueOf(m_job->path("copy.conf"), "pdf_user_pw");
        QCOMPARE(stored.size(), password.size() * 2);
        QCOMPARE(unscramblePassword(stored), expected);
        // Fillers are dropped unchecked; an odd last character is kept.
        QCOMPARE(unscramblePassword(stored + 'z'), expected + 'z');
    }

    // A file edited by hand may hold a name in several spellings; a write replaces them all, so
    // that the driver, reading without regard to case, finds the one value just written.
    void writeLeavesOneSpelling_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QStringList>("names"); // in the file after writing "Path"
        QTest::newRow("two other spellings")
            << QByteArray("PATH=/a/\npAtH=/b/\nformat=png\n") << QStringList {"Path", "format"};
        QTest::newRow("the same and another")
            << QByteArray("Path=/a/\npath=/b/\n") << QStringList {"Path"};
        QTest::newRow("none") << QByteArray("format=png\n") << QStringList {"Path", "format"};
    }
    void writeLeavesOneSpelling()
    {
        QFETCH(QByteArray, stored);
        QFETCH(QStringList, names);
        m_job->writeFile(m_job->userFile(), stored);
        SettingsKey(SettingsScope::User).setText(Settings::PathWritten, "/new/");
        const QSettings file(m_job->userFile(), QSettings::IniFormat);
        QStringList found = file.allKeys();
        found.sort();
        QCOMPARE(found, names);
        QCOMPARE(file.value("Path").toString(), "/new/");
    }

private:
    std::unique_ptr<JobFixture> m_job;
};

QTEST_GUILESS_MAIN(tst_SettingsKey)
#include "tst_settingskey.moc"
