// SPDX-License-Identifier: GPL-3.0-or-later
// PostScript jobs made PDF by one Ghostscript fed on its standard input.
#include "render/postscript.h"

#include "render/planrunner.h"
#include "render/renderplan.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

namespace Render {

namespace {

// The interpreter reads the document in pieces of this size.
constexpr qint64 feedBytes = 1 << 20;
// A conversion that runs past this has hung: a minute, and a minute per megabyte.
constexpr qint64 secondsPerRun = 60;
constexpr qint64 secondsPerMegabyte = 60;
constexpr char program[] = "gs";

} // namespace

bool isPostScript(const QString &file)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = in.read(4);
    // Some drivers put a Ctrl-D before the program; a DOS EPS file starts with its own header.
    return head.startsWith("%!") || head.startsWith("\x04%!") || head == "\xc5\xd0\xd3\xc6";
}

PostScriptConverter::~PostScriptConverter()
{
    if (started()) {
        m_process.kill();
        m_process.waitForFinished(-1);
    }
}

bool PostScriptConverter::start()
{
    if (started() || m_used)
        return started();
    if (!m_folder.isValid() || !missingProgram({QLatin1String(program)}).isEmpty())
        return false;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), m_folder.path());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(m_folder.path());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    // Images are kept without loss, pages as the program turned them; messages go to the error
    // output, and the document comes on the standard input.
    m_process.start(QLatin1String(program),
        {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
            QStringLiteral("-dNOPAUSE"), QStringLiteral("-sstdout=%stderr"),
            QStringLiteral("-sDEVICE=pdfwrite"), QStringLiteral("-dAutoRotatePages=/None"),
            QStringLiteral("-dAutoFilterColorImages=false"),
            QStringLiteral("-dColorImageFilter=/FlateEncode"),
            QStringLiteral("-dAutoFilterGrayImages=false"),
            QStringLiteral("-dGrayImageFilter=/FlateEncode"),
            QStringLiteral("-sOutputFile=") + m_folder.filePath(QStringLiteral("document.pdf")),
            QStringLiteral("-")});
    return m_process.waitForStarted(-1);
}

Result PostScriptConverter::convert(
    const QString &postScript, QString *pdf, const std::atomic<bool> *stop)
{
    const auto stopped = [stop] { return stop && stop->load(); };
    if (!start() || m_used) {
        if (!missingProgram({QLatin1String(program)}).isEmpty())
            return failure(Failure::MissingTool,
                QCoreApplication::translate("Render", "%1 is not installed (Debian package %2)")
                    .arg(QLatin1String(program), packageOf(QLatin1String(program))));
        return failure(Failure::ToolFailed,
            QCoreApplication::translate("Render", "%1 could not be started: %2")
                .arg(QLatin1String(program), m_process.errorString()));
    }
    m_used = true;
    QFile in(postScript);
    if (!in.open(QIODevice::ReadOnly))
        return failure(Failure::DamagedJob,
            QCoreApplication::translate("Render", "The job's PostScript %1 cannot be read")
                .arg(postScript));

    QElapsedTimer clock;
    clock.start();
    const qint64 limit = (secondsPerRun + secondsPerMegabyte * (in.size() >> 20)) * 1000;
    QByteArray errors;
    bool late = false;
    // The interpreter may end before it has read everything (an error in the program): then
    // what is left is not fed.
    while (!in.atEnd() && m_process.state() == QProcess::Running && !stopped() && !late) {
        m_process.write(in.read(feedBytes));
        while (m_process.bytesToWrite() > 0 && m_process.state() == QProcess::Running && !stopped()
            && !(late = clock.elapsed() > limit))
            m_process.waitForBytesWritten(100);
    }
    m_process.closeWriteChannel();
    while (!m_process.waitForFinished(100) && m_process.state() == QProcess::Running) {
        if (stopped() || (late = clock.elapsed() > limit)) {
            m_process.kill();
            m_process.waitForFinished(-1);
            break;
        }
    }
    errors = m_process.readAllStandardError();
    if (stopped())
        return failure(
            Failure::ToolFailed, QCoreApplication::translate("Render", "Rendering was stopped."));
    if (late)
        return failure(Failure::ToolFailed,
            QCoreApplication::translate("Render", "%1 did not finish in time")
                .arg(QLatin1String(program)));
    if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0)
        return failure(Failure::DamagedJob,
            QCoreApplication::translate("Render", "The job's PostScript %1 cannot be converted: %2")
                .arg(postScript, lastLine(errors)));
    *pdf = m_folder.filePath(QStringLiteral("document.pdf"));
    return {};
}

} // namespace Render
