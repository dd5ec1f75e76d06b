// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_PDFPROTECT_H
#define FMTASK_PDFPROTECT_H

#include <QDialog>

namespace Ui {
class pdfprotect;
}

// Advanced PDF settings: document information, encryption and permissions of the current job.
// It edits the PDF values of jobSettings(); they reach the settings keys when Print saves.
class pdfprotect : public QDialog
{
    Q_OBJECT

public:
    explicit pdfprotect(QWidget *parent = nullptr);
    ~pdfprotect() override;

public slots:
    // Checks both password pairs, user pair first, and stores everything when they match.
    void pb_ok();
    // Shows or hides the characters of all four password fields.
    void ch_showchars_pw(bool checked);
    // Writes the protection flag at once, so that Cancel keeps it; the driver relies on this.
    void cb_security_currentIndexChanged(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void load();

    Ui::pdfprotect *ui;
};

#endif // FMTASK_PDFPROTECT_H
