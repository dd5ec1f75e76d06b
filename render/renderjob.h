// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_RENDERJOB_H
#define VELLUMIO_RENDERJOB_H

#include <QString>
#include <QStringList>

// The one entry of rendering that the printer's programs use: a job's PDF becomes the files the
// user chose in the dialog, as the Windows driver made them after the dialog ended.
namespace Render {

// Why a job gave no files. Each cause has its own one-line message.
enum class Failure {
    None,
    DamagedJob, // the job's PDF cannot be read, or has no pages
    MissingTool, // a program that rendering needs is not installed
    FolderGone, // the output folder does not exist (any more) or cannot be written
    DiskFull, // the output folder's file system filled up
    Refused, // the options ask for something that cannot be made (a password the encryption cannot
             // hold)
    ToolFailed, // a tool ended with an error of its own
};

struct Result
{
    Failure failure = Failure::None;
    QString message; // one line naming the cause; empty on success
    QStringList files; // the files written, full paths in page order; empty on failure

    bool ok() const { return failure == Failure::None; }
};

// What happens when a final name is already taken.
enum class Existing {
    Replace, // the user agreed in the dialog's question: the file is replaced
    KeepAll, // nobody was asked: the new files take the next free names, "NAME (2)", "NAME (3)",
             // ...
};

class PostScriptConverter;

// Renders `jobPdf` with the values of the user's current settings, read exactly as the dialog
// reads them (the all-users key when the machine key says so; the exchange values from the user
// key). `name` is the file name without folder and extension; empty takes the stored
// "newfilename". The folder is the stored "Path". On failure nothing is left in the folder.
// A PostScript job is made PDF first, by `converter` when one is given (see postscript.h).
Result renderJob(const QString &jobPdf, const QString &name = QString(),
    Existing existing = Existing::Replace, PostScriptConverter *converter = nullptr);

} // namespace Render

#endif // VELLUMIO_RENDERJOB_H
