// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_FILESAVEDIALOG_H
#define FMTASK_FILESAVEDIALOG_H

#include <QDialog>
#include <QString>

class MainWindow;

namespace Ui {
class FileSaveDialog;
}

// The banner of the save-as-only mode: it sits near the lower right corner of the screen, takes
// the foreground from the printing application and carries the Save As dialog.
class FileSaveDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FileSaveDialog(QWidget *parent = nullptr);
    ~FileSaveDialog() override;

    // Whether the DjVu filter is offered; copied from the main dialog.
    void setDjvuAvailable(bool available) { djvuAvailable = available; }

    // Shows the banner and asks for a file. `selectedFilter` is the preselected filter on entry
    // and the chosen one on return; `format` receives the token of the chosen filter, or stays
    // empty when the filter is not recognised. Returns the chosen name, empty when cancelled.
    QString askFileName(const QString &initialPath, QString *selectedFilter, QString *format);

protected:
    void changeEvent(QEvent *event) override;

private:
    bool djvuAvailable = false;
    Ui::FileSaveDialog *ui;
};

namespace SaveAsOnly {

// One start step of the save-as-only mode; false means "ask again".
bool startStep(MainWindow &window);

} // namespace SaveAsOnly

#endif // FMTASK_FILESAVEDIALOG_H
