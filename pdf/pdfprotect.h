#ifndef FMTASK_PDFPROTECT_H
#define FMTASK_PDFPROTECT_H

#include <QDialog>

// Advanced PDF settings: document information, encryption and permissions of the current job.
class pdfprotect : public QDialog
{
    Q_OBJECT

public:
    explicit pdfprotect(QWidget *parent = nullptr);
    ~pdfprotect() override;
};

#endif // FMTASK_PDFPROTECT_H
