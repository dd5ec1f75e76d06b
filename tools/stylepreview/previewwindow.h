// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_PREVIEWWINDOW_H
#define FMTASK_PREVIEWWINDOW_H

#include <QMainWindow>

namespace Ui {
class PreviewWindow;
}

// A main window with a menu bar, tool bars, a dock, a tool box and tabs, so that every element
// the modern style draws can be looked at in one place.
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit PreviewWindow(QWidget *parent = nullptr);
    ~PreviewWindow() override;

private:
    // Tool buttons whose menus open from an arrow beside them or from the whole button.
    void addMenuButtons();

    Ui::PreviewWindow *m_ui;
};

#endif // FMTASK_PREVIEWWINDOW_H
