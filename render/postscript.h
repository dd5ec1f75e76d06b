// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_POSTSCRIPT_H
#define VELLUMIO_POSTSCRIPT_H

#include "render/renderjob.h"

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <atomic>

namespace Render {

// Whether a job's document is PostScript (CUPS hands it on as it came); anything else is taken
// for PDF.
bool isPostScript(const QString &file);

// A Ghostscript that writes one PDF from the PostScript fed to its input. It may be started ahead
// of the job, so that the job does not wait for the interpreter's start-up, which is most of the
// time a short document takes. Each converter converts once; its PDF lies in a private folder
// that goes with the object.
class PostScriptConverter
{
public:
    PostScriptConverter() = default;
    ~PostScriptConverter();
    PostScriptConverter(const PostScriptConverter &) = delete;
    PostScriptConverter &operator=(const PostScriptConverter &) = delete;

    // Starts the interpreter, which then waits for its document. False when it cannot start (the
    // conversion then says why).
    bool start();
    bool started() const { return m_process.state() != QProcess::NotRunning; }
    // Started and waiting for its document.
    bool ready() const { return started() && !m_used; }

    // Feeds `postScript` and waits for the PDF: its path in `pdf`, or the failure. Ends the
    // interpreter early once `stop` is set.
    Result convert(const QString &postScript, QString *pdf, const std::atomic<bool> *stop);

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    bool m_used = false;
};

} // namespace Render

#endif // VELLUMIO_POSTSCRIPT_H
