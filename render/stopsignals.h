// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_STOPSIGNALS_H
#define VELLUMIO_STOPSIGNALS_H

#include "render/renderjob.h"

#include <atomic>
#include <functional>

namespace Render {

// Runs `render` on a thread of its own while the calling thread, the application's, waits in its
// event loop for SIGTERM or SIGINT. The handler does nothing but write the signal's number into
// a pipe; a notifier on the pipe's other end sets the flag that `render` is handed, and the
// render then ends its tools and removes its work folder itself. When a signal stopped the
// render, the process then ends by that signal, as it would have without the handler.
Result renderUntilSignalled(const std::function<Result(const std::atomic<bool> *stop)> &render);

} // namespace Render

#endif // VELLUMIO_STOPSIGNALS_H
