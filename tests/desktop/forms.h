// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_FORMS_H
#define FMTASK_TESTS_FORMS_H

#include "app/filesavedialog.h"
#include "pdf/pdfprotect.h"
#include "tests/support/jobfixture.h"

#include <QApplication>
#include <QTranslator>

#include <memory>

// The program's three windows as a job shows them: the main dialog on a fresh job whose settings
// name a style (so the window installs it as it loads), and the two dialogs opened in that style.
namespace Forms {

enum Form { Main, Pdf, Banner };

inline const char *formName(Form form)
{
    switch (form) {
    case Main:
        return "main dialog";
    case Pdf:
        return "PDF dialog";
    case Banner:
        return "save-as banner";
    }
    return "";
}

// The styles a user sees, as the settings name them: the platform's default and the program's
// own.
inline QStringList styles()
{
    return {QStringLiteral("Fusion"), QStringLiteral("WindowsXP")};
}

// One window, shown (offscreen) so that tab bars lay out their tabs.
struct Shown
{
    JobFixture job;
    std::unique_ptr<MainWindow> main;
    std::unique_ptr<QWidget> dialog;

    QWidget *window() const { return dialog ? dialog.get() : main.get(); }
};

// `settings` are further lines of the job's settings key.
inline std::unique_ptr<Shown> show(Form form, const QString &style, const QByteArray &settings = {})
{
    auto shown = std::make_unique<Shown>();
    shown->job.writeFile(
        shown->job.userFile(), "[General]\nstyle=" + style.toUtf8() + '\n' + settings);
    shown->main = shown->job.createWindow(true);
    if (form == Pdf)
        shown->dialog = std::make_unique<pdfprotect>();
    else if (form == Banner)
        shown->dialog = std::make_unique<FileSaveDialog>();
    shown->window()->show();
    return shown;
}

// The translation the program ships for a language, from its resources; false when missing.
inline bool loadTranslation(QTranslator *translator, const QString &language)
{
    return translator->load(QStringLiteral(":/i18n/fmtask_") + language + QStringLiteral(".qm"));
}

// True without problems; each problem is listed on its own line, since a failure message is cut
// at its end.
inline bool none(QStringList problems)
{
    problems.removeDuplicates();
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem));
    return problems.isEmpty();
}

} // namespace Forms

#endif // FMTASK_TESTS_FORMS_H
