// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_RUNPROTOCOL_H
#define FMTASK_RUNPROTOCOL_H

#include <QString>

class MainWindow;
class QWidget;

// How one print job runs: the command line, the main dialog or the save-as-only mode, and the
// exit status the driver waits for (always 0).
namespace RunProtocol {

// The program's own name and the DjVu converter's, with the platform's executable suffix.
QString programFileName();
QString converterFileName();

// The DjVu converter beside the program, derived from the first command-line word. The name is
// searched case-sensitively; when it is not found only the last character is dropped, so the
// converter is then not found and the DjVu format is left out. Driver contract: kept as it is.
QString converterPath(const QString &programPath);

// Moves a window to the centre of the primary screen by the frame-geometry rule.
void centreOnScreen(QWidget *window);

// One start step: shows the main dialog topmost, or runs the save-as-only dialog. False means
// "ask again".
bool startStep(MainWindow &window);

// The whole run of the program for a command line; returns the exit status.
int run(int argc, char **argv);

} // namespace RunProtocol

#endif // FMTASK_RUNPROTOCOL_H
