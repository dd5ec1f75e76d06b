// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_RENDERING_H
#define VELLUMIO_RENDERING_H

#include "render/renderjob.h"
#include "render/renderoptions.h"

#include <atomic>

namespace Render {

// The pages of a PDF as its reader counts them; 0, with the cause in `failure`, when the PDF
// cannot be read or has no pages.
int pageCount(const QString &pdf, Result *failure);

// Renders the job `job` (PDF or PostScript) with `options`, at most `parallel` tools side by side:
// the checks of the folder and the name, PostScript made PDF by `converter` (or a converter of
// its own when none is given), the page count, the plan, the tools it needs, then the run, which
// ends early, leaving nothing behind, once `stop` is set.
Result renderJob(const Options &options, const QString &job, Existing existing, int parallel,
    const std::atomic<bool> *stop = nullptr, PostScriptConverter *converter = nullptr);

// renderJob() of renderjob.h, ended early once `stop` is set.
Result renderJob(const QString &jobPdf, const QString &name, Existing existing,
    const std::atomic<bool> *stop, PostScriptConverter *converter = nullptr);

// The tools side by side when nothing says otherwise: one per core.
int defaultParallel();

} // namespace Render

#endif // VELLUMIO_RENDERING_H
