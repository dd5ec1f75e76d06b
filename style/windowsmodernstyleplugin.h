// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_WINDOWSMODERNSTYLEPLUGIN_H
#define FMTASK_WINDOWSMODERNSTYLEPLUGIN_H

#include <QStylePlugin>

// Offers the modern style to QStyleFactory under the name "windowsmodernstyle". Linking the style
// library imports it into the program.
class WindowsModernStylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "windowsmodernstyle.json")

public:
    QStyle *create(const QString &key) override;
};

#endif // FMTASK_WINDOWSMODERNSTYLEPLUGIN_H
