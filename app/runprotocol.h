// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_RUNPROTOCOL_H
#define FMTASK_RUNPROTOCOL_H

#include "locale/language.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class MainWindow;
class QWidget;

// How one print job runs: the command line, the main dialog or the save-as-only mode, and the
// exit status the driver waits for (always 0).
namespace RunProtocol {

// The value of an environment variable as the start-up rules read it; an unset one is empty.
using Environment = Language::Environment;

// The program's own name and the DjVu converter's, with the platform's executable suffix.
QString programFileName();
QString converterFileName();

// The DjVu converter beside the program, derived from the first command-line word. The name is
// searched case-sensitively; when it is not found only the last character is dropped, so the
// converter is then not found and the DjVu format is left out. Driver contract: kept as it is.
QString converterPath(const QString &programPath);

// Moves a window to the centre of the primary screen by the frame-geometry rule.
void centreOnScreen(QWidget *window);

// The shipped languages and the user's one among them, by the rules the printer's programs share.
using Language::shippedLanguages;
using Language::userLanguage;

// Installs the program's translation of a shipped language, and Qt's own for the standard
// buttons and dialogs where the system has it. False when the program has no such translation.
bool installTranslation(const QString &language);

// The platform plugin for the session, or empty to leave the choice to Qt. A Wayland compositor
// may keep a native window behind the printing application, so when X11 is at hand as well
// (DISPLAY and WAYLAND_DISPLAY both set) and the user chose no platform (QT_QPA_PLATFORM), the
// dialog runs through XWayland, with Wayland as the fallback.
QByteArray preferredPlatform(const Environment &environment);

// One start step: shows the main dialog topmost, or runs the save-as-only dialog. False means
// "ask again".
bool startStep(MainWindow &window);

// The whole run of the program for a command line; returns the exit status.
int run(int argc, char **argv);

} // namespace RunProtocol

#endif // FMTASK_RUNPROTOCOL_H
