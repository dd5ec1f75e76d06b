// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the style preview, in the modern style or another one, with the light or a dark palette.
#include "tools/stylepreview/previewwindow.h"

#include <QApplication>
#include <QPalette>
#include <QTimer>

namespace {

// A dark palette like the ones desktops switch to in their dark mode.
QPalette darkPalette()
{
    const QColor window(53, 53, 53), base(35, 35, 35), text(230, 230, 230);
    QPalette palette(text, window, QColor(80, 80, 80), QColor(25, 25, 25), QColor(40, 40, 40), text,
        Qt::white, base, window);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(128, 128, 128));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(128, 128, 128));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(128, 128, 128));
    return palette;
}

} // namespace

// Usage: stylepreview [STYLE] [--dark]. STYLE defaults to the modern style ("Fusion" compares
// with its base); --dark switches to a dark palette once the window is shown, as a desktop
// switching to dark colours does.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool dark = arguments.removeAll(QStringLiteral("--dark")) > 0;
    QApplication::setStyle(
        arguments.isEmpty() ? QStringLiteral("windowsmodernstyle") : arguments.constFirst());

    PreviewWindow window;
    window.show();
    if (dark)
        QTimer::singleShot(0, &application, [] { QApplication::setPalette(darkPalette()); });
    return QApplication::exec();
}
