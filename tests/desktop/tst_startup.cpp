// SPDX-License-Identifier: GPL-3.0-or-later
// What the program settles before its first window: the language of the user's locale and the
// platform of the session.
#include "app/runprotocol.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTest>
#include <QTranslator>

namespace {

// An environment with only the given variables; "NAME=value" each.
RunProtocol::Environment environmentOf(const QStringList &variables)
{
    return [variables](const char *name) {
        const QString prefix = QLatin1String(name) + QLatin1Char('=');
        for (const QString &variable : variables) {
            if (variable.startsWith(prefix))
                return variable.mid(prefix.size());
        }
        return QString();
    };
}

// The translators installed for a language, removed (and deleted) at the end of a test.
struct InstalledTranslation
{
    explicit InstalledTranslation(const QString &language)
        : installed(RunProtocol::installTranslation(language))
    { }
    ~InstalledTranslation()
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>(
            QString(), Qt::FindDirectChildrenOnly));
    }
    const bool installed;
};

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    // The rules desktop programs share for the language of messages.
    void userLanguage_data()
    {
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QString>("language"); // empty: English
        // clang-format off
        QTest::newRow("LANG German")                << QStringList {"LANG=de_DE.UTF-8"}           << "de";
        QTest::newRow("LANG Austrian, modifier")    << QStringList {"LANG=de_AT.UTF-8@euro"}      << "de";
        QTest::newRow("LANG Canadian French")       << QStringList {"LANG=fr_CA.UTF-8"}           << "fr";
        QTest::newRow("LANG Brazilian Portuguese")  << QStringList {"LANG=pt_BR.UTF-8"}           << "pt_BR";
        QTest::newRow("LANG European Portuguese")   << QStringList {"LANG=pt_PT.UTF-8"}           << "";
        QTest::newRow("LANG Simplified Chinese")    << QStringList {"LANG=zh_CN.UTF-8"}           << "zh_CN";
        QTest::newRow("LANG Traditional Chinese")   << QStringList {"LANG=zh_TW.UTF-8"}           << "";
        QTest::newRow("LANG Japanese")              << QStringList {"LANG=ja_JP.UTF-8"}           << "ja";
        QTest::newRow("LANG Swedish")               << QStringList {"LANG=sv_SE.UTF-8"}           << "";
        QTest::newRow("LC_MESSAGES over LANG")      << QStringList {"LANG=de_DE.UTF-8", "LC_MESSAGES=fr_FR.UTF-8"} << "fr";
        QTest::newRow("LC_ALL over LC_MESSAGES")    << QStringList {"LC_ALL=ru_RU.UTF-8", "LC_MESSAGES=fr_FR.UTF-8"} << "ru";
        QTest::newRow("empty LC_ALL passed over")   << QStringList {"LC_ALL=", "LANG=es_ES.UTF-8"} << "es";
        QTest::newRow("LANGUAGE first it knows")    << QStringList {"LANGUAGE=sv:it:de", "LANG=de_DE.UTF-8"} << "it";
        QTest::newRow("LANGUAGE empty entries")     << QStringList {"LANGUAGE=::pl", "LANG=de_DE.UTF-8"} << "pl";
        QTest::newRow("LANGUAGE English first")     << QStringList {"LANGUAGE=en_GB:de", "LANG=de_DE.UTF-8"} << "";
        QTest::newRow("LANGUAGE none it knows")     << QStringList {"LANGUAGE=sv:fi", "LANG=de_DE.UTF-8"} << "";
        QTest::newRow("LANGUAGE in the C locale")   << QStringList {"LANGUAGE=de", "LANG=C"}       << "";
        QTest::newRow("C.UTF-8")                    << QStringList {"LANGUAGE=de", "LC_ALL=C.UTF-8", "LANG=de_DE.UTF-8"} << "";
        QTest::newRow("POSIX")                      << QStringList {"LC_ALL=POSIX", "LANG=de_DE.UTF-8"} << "";
        QTest::newRow("nothing set")                << QStringList {}                              << "";
        // clang-format on
    }
    void userLanguage()
    {
        QFETCH(QStringList, environment);
        QFETCH(QString, language);
        QCOMPARE(
            RunProtocol::userLanguage(environmentOf(environment), RunProtocol::shippedLanguages()),
            language);
    }

    // Each shipped language changes the dialog's words when installed, and Qt's own buttons
    // with it where the system has Qt's translations; a language without one installs nothing.
    void installTranslation_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : RunProtocol::shippedLanguages())
            QTest::newRow(qPrintable(language)) << language;
        QTest::newRow("unknown") << QStringLiteral("xx");
    }
    void installTranslation()
    {
        QFETCH(QString, language);
        const InstalledTranslation translation(language);
        const bool shipped = RunProtocol::shippedLanguages().contains(language);
        QCOMPARE(translation.installed, shipped);
        QCOMPARE(QCoreApplication::translate("MainWindow", "Show this dialog next time")
                != QLatin1String("Show this dialog next time"),
            shipped);
        const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath)
            + QStringLiteral("/qtbase_") + language + QStringLiteral(".qm");
        if (shipped && !QFile::exists(toolkit))
            QSKIP("Qt's own translations are not installed (Debian: qt6-translations-l10n)");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") != QLatin1String("Cancel"),
            shipped);
    }

    // XWayland when both displays are there and the user chose no platform; otherwise Qt's
    // choice.
    void preferredPlatform_data()
    {
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QByteArray>("platform"); // empty: Qt's choice
        // clang-format off
        QTest::newRow("Wayland with XWayland")   << QStringList {"WAYLAND_DISPLAY=wayland-0", "DISPLAY=:0"} << QByteArray("xcb;wayland");
        QTest::newRow("user chose Wayland")      << QStringList {"WAYLAND_DISPLAY=wayland-0", "DISPLAY=:0", "QT_QPA_PLATFORM=wayland"} << QByteArray();
        QTest::newRow("Wayland without X11")     << QStringList {"WAYLAND_DISPLAY=wayland-0"}               << QByteArray();
        QTest::newRow("X11 session")             << QStringList {"DISPLAY=:0"}                              << QByteArray();
        QTest::newRow("empty WAYLAND_DISPLAY")   << QStringList {"WAYLAND_DISPLAY=", "DISPLAY=:0"}          << QByteArray();
        QTest::newRow("empty QT_QPA_PLATFORM")   << QStringList {"WAYLAND_DISPLAY=wayland-0", "DISPLAY=:0", "QT_QPA_PLATFORM="} << QByteArray("xcb;wayland");
        QTest::newRow("no display at all")       << QStringList {}                                          << QByteArray();
        // clang-format on
    }
    void preferredPlatform()
    {
        QFETCH(QStringList, environment);
        QFETCH(QByteArray, platform);
        QCOMPARE(RunProtocol::preferredPlatform(environmentOf(environment)), platform);
    }
};

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
