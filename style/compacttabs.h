// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_COMPACTTABS_H
#define FMTASK_COMPACTTABS_H

class QTabWidget;

// Tab widgets that hold more tabs than their width shows at the padding of the style in use.
namespace CompactTabs {

// Gives the tabs the modern style's narrow padding when, with the padding of the application's
// style, they would not all show whole in the tab widget's width (the platform's styles pad a tab
// by twice as much). Called once the application's style is installed; tabs that fit are left as
// the style lays them out.
void fit(QTabWidget *tabs);

} // namespace CompactTabs

#endif // FMTASK_COMPACTTABS_H
