// SPDX-License-Identifier: GPL-3.0-or-later
// vellumio-render JOB.pdf [NAME]: renders a job from the user's current settings, as the printer
// does after Print, and prints the paths it wrote.
#include "render/rendering.h"
#include "render/stopsignals.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    // The arguments are taken as they are, before Qt could read any of them as its own option:
    // a name may well begin with a dash.
    const QString job = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString name = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    int qtArgc = 1;
    QCoreApplication application(qtArgc, argv);
    if (argc < 2 || argc > 3 || job.isEmpty()) {
        std::fputs("usage: vellumio-render JOB.pdf [NAME]\n", stderr);
        return 2;
    }

    // SIGTERM and SIGINT end the tools and remove the work folder before the program ends.
    const Render::Result result = Render::renderUntilSignalled([&](const std::atomic<bool> *stop) {
        return Render::renderJob(job, name, Render::Existing::Replace, stop);
    });
    if (!result.ok()) {
        std::fprintf(stderr, "vellumio-render: %s\n", result.message.toLocal8Bit().constData());
        return 1;
    }
    for (const QString &file : result.files)
        std::printf("%s\n", file.toLocal8Bit().constData());
    return 0;
}
