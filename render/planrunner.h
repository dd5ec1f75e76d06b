// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_PLANRUNNER_H
#define VELLUMIO_PLANRUNNER_H

#include "render/renderjob.h"
#include "render/renderplan.h"

#include <QString>

#include <atomic>

namespace Render {

// Runs `plan` in a private folder (owner-only, a unique name) inside `folder`, at most
// `parallel` tasks side by side, then moves the outputs into `folder` under their names, all of
// them or none. On any failure, and when `stop` is set before the files are moved, the tools are
// ended, the private folder goes and nothing new is left in `folder`. Private folders of this
// user's runs that were killed more than a day ago go too.
Result runPlan(const Plan &plan, const QString &folder, Existing existing, int parallel,
    const std::atomic<bool> *stop = nullptr);

// The first program of `programs` that is not installed, or an empty text.
QString missingProgram(const QStringList &programs);

// The last line of a tool's error output that says something.
QString lastLine(const QByteArray &errors);

// The one-line message of a failure.
Result failure(Failure cause, const QString &message);

} // namespace Render

#endif // VELLUMIO_PLANRUNNER_H
