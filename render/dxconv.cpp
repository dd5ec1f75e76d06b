// SPDX-License-Identifier: GPL-3.0-or-later
// dxconv IN.pdf OUT.djvu: converts a PDF to one DjVu file, text layer kept.
#include "render/planrunner.h"
#include "render/rendering.h"
#include "render/renderplan.h"
#include "render/stopsignals.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QString input = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString output = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    int qtArgc = 1;
    QCoreApplication application(qtArgc, argv);
    if (argc != 3 || input.isEmpty() || output.isEmpty()) {
        std::fputs("usage: dxconv IN.pdf OUT.djvu\n", stderr);
        return 2;
    }

    const QFileInfo target(output);
    Render::Result result;
    const int pages = Render::pageCount(input, &result);
    if (pages > 0 && target.fileName().isEmpty())
        result = Render::failure(Render::Failure::Refused, QStringLiteral("OUT names no file."));
    if (pages > 0 && result.ok()) {
        Render::Options options;
        options.format = Formats::Djvu;
        options.name = target.fileName();
        Render::Plan plan = Render::makePlan(
            options, {QFileInfo(input).absoluteFilePath(), pages, Render::defaultParallel()});
        plan.outputs.first().fileName = target.fileName();
        const QString missing = Render::missingProgram(plan.programs());
        if (!missing.isEmpty()) {
            result = Render::failure(
                Render::Failure::MissingTool, QStringLiteral("%1 is not installed").arg(missing));
        } else {
            result = Render::renderUntilSignalled([&](const std::atomic<bool> *stop) {
                return Render::runPlan(plan, target.absolutePath(), Render::Existing::Replace,
                    Render::defaultParallel(), stop);
            });
        }
    }
    if (!result.ok()) {
        std::fprintf(stderr, "dxconv: %s\n", result.message.toLocal8Bit().constData());
        return 1;
    }
    return 0;
}
