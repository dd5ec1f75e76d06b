// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_WINDOWORDER_H
#define FMTASK_WINDOWORDER_H

class QWidget;

// Window-order requests of the dialogs. The main dialog stays above the printing application
// while it waits, drops that state before any modal step of its own, and the save-as-only banner
// takes the foreground from the printing application.
namespace WindowOrder {

// Keeps a top-level window above all others.
void setTopmost(QWidget *window);

// Returns a top-level window to the normal window order.
void clearTopmost(QWidget *window);

// Brings a shown window to the front and gives it the keyboard focus.
void takeForeground(QWidget *window);

// Whether the window is currently kept above all others.
bool isTopmost(const QWidget *window);

} // namespace WindowOrder

#endif // FMTASK_WINDOWORDER_H
