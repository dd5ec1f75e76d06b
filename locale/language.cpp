// SPDX-License-Identifier: GPL-3.0-or-later
// The user's language by the locale rules, and the translators that speak it.
#include "locale/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace Language {

namespace {

// A locale without translations: C, POSIX, or C with a character set ("C.UTF-8").
bool isPlainLocale(const QString &locale)
{
    return locale == QLatin1String("C") || locale == QLatin1String("POSIX")
        || locale.startsWith(QLatin1String("C."));
}

// The shipped language a locale name stands for ("de_AT.UTF-8@euro" finds "de"), "en" for
// English, or empty.
QString shippedLanguageOf(QString locale, const QStringList &shipped)
{
    locale = locale.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = locale.section(QLatin1Char('_'), 0, 0);
    if (language == QLatin1String("en"))
        return language;
    if (shipped.contains(locale))
        return locale;
    if (shipped.contains(language))
        return language;
    return QString();
}

} // namespace

Environment processEnvironment()
{
    // Only the variables the rules ask for are read, each when asked for.
    return [](const char *name) { return qEnvironmentVariable(name); };
}

QStringList shippedLanguages()
{
    // Named by the build, which compiles exactly these translations in.
    return QStringLiteral(FMTASK_LANGUAGES).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString userLanguage(const Environment &environment, const QStringList &shipped)
{
    QString locale;
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment(name);
        if (!locale.isEmpty())
            break;
    }
    if (locale.isEmpty() || isPlainLocale(locale))
        return QString();
    QStringList wanted = environment("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        wanted << locale;
    for (const QString &entry : std::as_const(wanted)) {
        const QString language = shippedLanguageOf(entry, shipped);
        if (language == QLatin1String("en"))
            return QString();
        if (!language.isEmpty())
            return language;
    }
    return QString();
}

bool installTranslation(const QString &catalogue, const QString &language)
{
    // Both stay with the application for the whole run.
    auto *own = new QTranslator(QCoreApplication::instance());
    if (!own->load(QStringLiteral(":/i18n/") + catalogue + QLatin1Char('_') + language
            + QStringLiteral(".qm"))) {
        delete own;
        return false;
    }
    installToolkitTranslation(language);
    QCoreApplication::installTranslator(own);
    return true;
}

void installToolkitTranslation(const QString &language)
{
    auto *toolkit = new QTranslator(QCoreApplication::instance());
    if (toolkit->load(QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    else
        delete toolkit;
}

} // namespace Language
