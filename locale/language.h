// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_LANGUAGE_H
#define FMTASK_LANGUAGE_H

#include <QString>
#include <QStringList>

#include <functional>

// The language a program of the printer speaks to the user.
namespace Language {

// The value of an environment variable as the start-up rules read it; an unset one is empty.
using Environment = std::function<QString(const char *name)>;

// The process's own environment.
Environment processEnvironment();

// The languages the printer's texts are translated into, named as their translations are ("de",
// "pt_BR", ...). The texts themselves are written in English.
QStringList shippedLanguages();

// The language of the user's messages among `shipped`, by the rules desktop programs share: the
// locale is LC_ALL, else LC_MESSAGES, else LANG; unless that locale is C or POSIX, the
// colon-separated list in LANGUAGE takes its place. The first entry that is English or has a
// translation wins ("de_AT" finds "de"); no winner, or the C locale, means English (empty).
QString userLanguage(const Environment &environment, const QStringList &shipped);

// Installs a program's translation of a shipped language, the catalogue compiled in as
// ":/i18n/<catalogue>_<language>.qm", and Qt's own where the system has it. False when the
// program has no such translation; nothing is installed then.
bool installTranslation(const QString &catalogue, const QString &language);

// Installs Qt's own translation of a language (standard buttons and dialogs, command-line help)
// where the system has it.
void installToolkitTranslation(const QString &language);

} // namespace Language

#endif // FMTASK_LANGUAGE_H
