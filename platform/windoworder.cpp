// SPDX-License-Identifier: GPL-3.0-or-later
// Window order and foreground requests to the windowing system.
#include "platform/windoworder.h"

#include <QWidget>
#include <QWindow>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace WindowOrder {

#ifdef Q_OS_WIN

void setTopmost(QWidget *window)
{
    SetWindowPos(
        reinterpret_cast<HWND>(window->winId()), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void clearTopmost(QWidget *window)
{
    SetWindowPos(reinterpret_cast<HWND>(window->winId()), HWND_NOTOPMOST, 0, 0, 0, 0,
        SWP_NOMOVE | SWP_NOSIZE);
}

void takeForeground(QWidget *window)
{
    // Attaching to the input of the foreground thread is what lets a background process take
    // the foreground from the printing application.
    const HWND foreground = GetForegroundWindow();
    const DWORD foregroundThread = GetWindowThreadProcessId(foreground, nullptr);
    const DWORD ownThread = GetCurrentThreadId();
    AttachThreadInput(ownThread, foregroundThread, TRUE);
    SetForegroundWindow(reinterpret_cast<HWND>(window->winId()));
    AttachThreadInput(ownThread, foregroundThread, FALSE);
}

bool isTopmost(const QWidget *window)
{
    const HWND handle = reinterpret_cast<HWND>(window->effectiveWinId());
    return handle && (GetWindowLongPtr(handle, GWL_EXSTYLE) & WS_EX_TOPMOST);
}

#else

namespace {

// Keeps the widget's own flags in step and tells the native window, if there is one yet; a
// visible window stays shown, which QWidget::setWindowFlags would not do.
void setStaysOnTop(QWidget *window, bool on)
{
    window->overrideWindowFlags(window->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
    if (QWindow *handle = window->windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}

} // namespace

void setTopmost(QWidget *window)
{
    setStaysOnTop(window, true);
}

void clearTopmost(QWidget *window)
{
    setStaysOnTop(window, false);
}

void takeForeground(QWidget *window)
{
    window->raise();
    window->activateWindow();
    if (QWindow *handle = window->windowHandle())
        handle->requestActivate();
}

bool isTopmost(const QWidget *window)
{
    return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

#endif

} // namespace WindowOrder
