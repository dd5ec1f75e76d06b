// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_JOBSETTINGS_H
#define FMTASK_JOBSETTINGS_H

#include "formats/formatcatalogue.h"

#include <QString>

#include <array>

// The eight PDF permissions, in the order in which they are stored.
struct PdfPermissions
{
    bool print = false;
    bool edit = false;
    bool copy = false;
    bool editNotes = false;
    bool fillAndSign = false;
    bool accessible = false;
    bool assemble = false;
    bool highPrint = false;
};

// The PDF document information and protection edited by the advanced PDF dialog.
struct PdfSettings
{
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QString creator;
    QString producer;
    QString userPassword;
    QString ownerPassword;
    bool protect = false;
    PdfPermissions permissions;
};

// The values of one print job, shared by the main dialog, the PDF dialog, the run protocol and
// the settings store for the whole run. Loading fills them, the dialogs edit them, saving writes
// them.
struct JobSettings
{
    JobSettings();

    QString formatToken;
    QString outputFolder; // ends in the native separator when it names a folder
    QString newFileName; // starts as the program's argument
    QString colorCode;
    std::array<QString, Formats::Count> extensions; // by format index, without the dot
    QString customNumber;
    PdfSettings pdf;
    QString selectedFilter;
    QString converterPath;
    bool allUsers = false;
    bool saveAsOnly = false;

    // The stored extension of a format index; empty outside 0..11.
    QString extension(int index) const;
};

// The one instance of the process.
JobSettings &jobSettings();

#endif // FMTASK_JOBSETTINGS_H
