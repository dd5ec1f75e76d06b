// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_JOBRULES_H
#define VELLUMIO_JOBRULES_H

#include <QString>
#include <QVariant>

// The agent's decisions, free of files and processes: the name a job's title becomes, whether a
// job needs the dialog, and what follows the dialog.
namespace JobRules {

// File names stay well below the file system's 255 bytes, leaving room for page numbers, "(2)" and
// the extension.
constexpr int maxNameBytes = 150;

// The name handed to the dialog for a job title: the last path element only, without control,
// format and separator characters, without leading dashes, dots and spaces (so neither an option
// nor a hidden or parent folder), one 3- or 4-letter extension removed as the dialog does it,
// at most maxNameBytes of UTF-8, never empty ("Document").
QString safeFileName(const QString &title);

// Whether a job shows the dialog: only the stored "chDialog" = "false" (written when the user
// unticked "Show this dialog next time") renders at once.
bool dialogWanted(const QVariant &chDialog);

// How the dialog's process ended, and what the user key says afterwards.
struct DialogEnd
{
    bool started = false; // the program could be run at all
    bool exitedNormally = false; // not killed, not crashed (a lost display aborts the program)
    bool keyRewritten
        = false; // the user key was saved again after the agent marked the job cancelled
    QString isAbort; // the stored "isabort" after the dialog
};

enum class AfterDialog {
    Render, // Print: the job is rendered with the values just saved
    Cancelled, // Cancel, the window closed, or nothing saved: the job is dropped
    EndedAbnormally, // killed or lost its display: dropped as cancelled, and the user is told
    NotStarted, // the dialog program is missing or cannot run: the job is kept aside
};

AfterDialog afterDialog(const DialogEnd &end);

} // namespace JobRules

#endif // VELLUMIO_JOBRULES_H
