// SPDX-License-Identifier: GPL-3.0-or-later
// Renders a printed job with the user's settings: checks, PostScript made PDF, page count, plan
// and run.
#include "render/renderjob.h"

#include "render/filenames.h"
#include "render/planrunner.h"
#include "render/postscript.h"
#include "render/rendering.h"
#include "render/renderplan.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <optional>

namespace Render {

namespace {

// The longest file name the folder's file system takes, in bytes.
constexpr int longestName = 255;
// Room kept for " (k)" when a name must be kept aside.
constexpr int keptAsideRoom = 8;
constexpr int pageCountSeconds = 120;
constexpr int qpdfWarnings = 3;

Result damaged(const QString &message)
{
    return failure(Failure::DamagedJob, message);
}

} // namespace

int defaultParallel()
{
    return qMax(1, QThread::idealThreadCount());
}

int pageCount(const QString &pdf, Result *result)
{
    const QFileInfo info(pdf);
    if (!info.isFile() || !info.isReadable()) {
        *result = damaged(
            QCoreApplication::translate("Render", "The job's PDF %1 cannot be read").arg(pdf));
        return 0;
    }
    const QString reader = QStringLiteral("qpdf");
    if (!missingProgram({reader}).isEmpty()) {
        *result = failure(Failure::MissingTool,
            QCoreApplication::translate("Render", "%1 is not installed (Debian package %2)")
                .arg(reader, packageOf(reader)));
        return 0;
    }
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(reader, {QStringLiteral("--show-npages"), info.absoluteFilePath()});
    if (!process.waitForFinished(pageCountSeconds * 1000)) {
        process.kill();
        process.waitForFinished(-1);
        *result = damaged(QCoreApplication::translate(
            "Render", "The job's PDF %1 cannot be read: its pages could not be counted")
                              .arg(pdf));
        return 0;
    }
    // qpdf repairs what it can and says so with status 3.
    const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
    bool ok = false;
    const int count = QString::fromUtf8(process.readAllStandardOutput()).trimmed().toInt(&ok);
    if (process.exitStatus() != QProcess::NormalExit
        || (process.exitCode() != 0 && process.exitCode() != qpdfWarnings) || !ok) {
        *result
            = damaged(QCoreApplication::translate("Render", "The job's PDF %1 cannot be read: %2")
                          .arg(pdf, errors.section(QLatin1Char('\n'), -1)));
        return 0;
    }
    if (count <= 0)
        *result = damaged(
            QCoreApplication::translate("Render", "The job's PDF %1 has no pages").arg(pdf));
    return qMax(count, 0);
}

Result renderJob(const Options &given, const QString &job, Existing existing, int parallel,
    const std::atomic<bool> *stop, PostScriptConverter *converter)
{
    Options options = given;
    const QFileInfo folder(options.folder);
    if (options.folder.isEmpty())
        return failure(
            Failure::FolderGone, QCoreApplication::translate("Render", "No output folder is set."));
    if (!folder.isDir())
        return failure(Failure::FolderGone,
            QCoreApplication::translate("Render", "The output folder does not exist: %1")
                .arg(options.folder));
    options.name = FileNames::fileNameOf(options.name);
    if (options.name.isEmpty())
        return failure(
            Failure::Refused, QCoreApplication::translate("Render", "The job has no file name."));

    // PostScript is made PDF first, by the converter given (perhaps started ahead) or one of its
    // own; the PDF is then rendered as any job's.
    std::optional<PostScriptConverter> own;
    QString jobPdf = job;
    if (isPostScript(job)) {
        if (!converter)
            converter = &own.emplace();
        const Result converted = converter->convert(job, &jobPdf, stop);
        if (!converted.ok())
            return converted;
    }

    Result result;
    const int pages = pageCount(jobPdf, &result);
    if (pages == 0)
        return result;

    const Plan plan
        = makePlan(options, {QFileInfo(jobPdf).absoluteFilePath(), pages, qMax(1, parallel)});
    if (!plan.refusal.isEmpty())
        return failure(Failure::Refused, plan.refusal);
    for (const Output &output : plan.outputs) {
        if (output.fileName.toUtf8().size() + keptAsideRoom > longestName)
            return failure(Failure::Refused,
                QCoreApplication::translate("Render", "The file name is too long: %1")
                    .arg(output.fileName));
    }
    const QString missing = missingProgram(plan.programs());
    if (!missing.isEmpty())
        return failure(Failure::MissingTool,
            QCoreApplication::translate("Render", "%1 is not installed (Debian package %2)")
                .arg(missing, packageOf(missing)));
    return runPlan(plan, folder.absoluteFilePath(), existing, parallel, stop);
}

Result renderJob(const QString &jobPdf, const QString &name, Existing existing,
    const std::atomic<bool> *stop, PostScriptConverter *converter)
{
    Options options = currentOptions();
    if (!name.isEmpty())
        options.name = name;
    return renderJob(options, jobPdf, existing, defaultParallel(), stop, converter);
}

Result renderJob(
    const QString &jobPdf, const QString &name, Existing existing, PostScriptConverter *converter)
{
    return renderJob(jobPdf, name, existing, nullptr, converter);
}

} // namespace Render
