// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewwindow.h"

#include <QApplication>
#include <QStyleFactory>

// Shows the preview window in the modern style, or in the style named by the first argument
// (for instance "Fusion", to compare with the base).
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString styleName
        = arguments.size() > 1 ? arguments.at(1) : QStringLiteral("windowsmodernstyle");
    QApplication::setStyle(styleName);

    PreviewWindow window;
    window.show();
    return QApplication::exec();
}
