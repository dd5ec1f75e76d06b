// SPDX-License-Identifier: GPL-3.0-or-later
// The advanced PDF dialog: document information, passwords and permissions.
#include "pdf/pdfprotect.h"
#include "ui_pdfprotect.h"

#include "platform/prompts.h"
#include "settings/jobsettings.h"

#include <QEvent>

namespace {

const int passwordEncryption = 1; // index of "Password Encryption" in cb_security

} // namespace

pdfprotect::pdfprotect(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::pdfprotect)
{
    ui->setupUi(this);
    connect(ui->pb_ok, &QPushButton::clicked, this, &pdfprotect::pb_ok);
    connect(ui->pb_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->ch_showchars_pw, &QCheckBox::clicked, this, &pdfprotect::ch_showchars_pw);
    load();
}

pdfprotect::~pdfprotect()
{
    delete ui;
}

void pdfprotect::load()
{
    const PdfSettings &pdf = jobSettings().pdf;
    ui->le_pdf_user_pw->setText(pdf.userPassword);
    ui->le_pdf_user_pw_2->setText(pdf.userPassword);
    ui->le_pdf_owner_pw->setText(pdf.ownerPassword);
    ui->le_pdf_owner_pw_2->setText(pdf.ownerPassword);

    ui->ch_pdf_print->setChecked(pdf.permissions.print);
    ui->ch_pdf_edit->setChecked(pdf.permissions.edit);
    ui->ch_pdf_copy->setChecked(pdf.permissions.copy);
    ui->ch_pdf_editnotes->setChecked(pdf.permissions.editNotes);
    ui->ch_pdf_fillandsign->setChecked(pdf.permissions.fillAndSign);
    ui->ch_pdf_accessible->setChecked(pdf.permissions.accessible);
    ui->ch_pdf_assemble->setChecked(pdf.permissions.assemble);
    ui->ch_pdf_highprint->setChecked(pdf.permissions.highPrint);

    // Connected before the index is set, so that selecting "Password Encryption" runs the slot.
    connect(ui->cb_security, &QComboBox::currentIndexChanged, this,
        &pdfprotect::cb_security_currentIndexChanged);
    if (pdf.protect) {
        ui->cb_security->setCurrentIndex(passwordEncryption);
        ui->gb_pdf_protect->setEnabled(true);
    } else {
        ui->cb_security->setCurrentIndex(0);
        ui->gb_pdf_protect->setEnabled(false);
    }

    ui->le_pdf_title->setText(pdf.title);
    ui->le_pdf_author->setText(pdf.author);
    ui->le_pdf_subject->setText(pdf.subject);
    ui->le_pdf_keywords->setText(pdf.keywords);
    ui->le_pdf_creator->setText(pdf.creator);
    ui->le_pdf_producer->setText(pdf.producer);
}

void pdfprotect::pb_ok()
{
    PdfSettings &pdf = jobSettings().pdf;
    pdf.protect = ui->cb_security->currentIndex() == passwordEncryption;

    // Both pairs are compared even when encryption is off; only the first mismatch is reported.
    if (ui->le_pdf_user_pw_2->text() != ui->le_pdf_user_pw->text()) {
        ui->le_pdf_user_pw_2->clear();
        Prompts::current().message(
            this, tr("User Password"), tr("Password entered does not match."), QMessageBox::Ok);
        return;
    }
    if (ui->le_pdf_owner_pw_2->text() != ui->le_pdf_owner_pw->text()) {
        ui->le_pdf_owner_pw_2->clear();
        Prompts::current().message(
            this, tr("Owner Password"), tr("Password entered does not match."), QMessageBox::Ok);
        return;
    }

    pdf.userPassword = ui->le_pdf_user_pw->text();
    pdf.ownerPassword = ui->le_pdf_owner_pw->text();
    pdf.permissions.print = ui->ch_pdf_print->isChecked();
    pdf.permissions.edit = ui->ch_pdf_edit->isChecked();
    pdf.permissions.copy = ui->ch_pdf_copy->isChecked();
    pdf.permissions.editNotes = ui->ch_pdf_editnotes->isChecked();
    pdf.permissions.fillAndSign = ui->ch_pdf_fillandsign->isChecked();
    pdf.permissions.accessible = ui->ch_pdf_accessible->isChecked();
    pdf.permissions.assemble = ui->ch_pdf_assemble->isChecked();
    pdf.permissions.highPrint = ui->ch_pdf_highprint->isChecked();
    pdf.title = ui->le_pdf_title->text();
    pdf.author = ui->le_pdf_author->text();
    pdf.subject = ui->le_pdf_subject->text();
    pdf.keywords = ui->le_pdf_keywords->text();
    pdf.creator = ui->le_pdf_creator->text();
    pdf.producer = ui->le_pdf_producer->text();
    accept();
}

void pdfprotect::ch_showchars_pw(bool checked)
{
    const QLineEdit::EchoMode mode = checked ? QLineEdit::Normal : QLineEdit::Password;
    ui->le_pdf_user_pw->setEchoMode(mode);
    ui->le_pdf_owner_pw->setEchoMode(mode);
    ui->le_pdf_user_pw_2->setEchoMode(mode);
    ui->le_pdf_owner_pw_2->setEchoMode(mode);
}

void pdfprotect::cb_security_currentIndexChanged(int)
{
    const bool protect = ui->cb_security->currentIndex() == passwordEncryption;
    jobSettings().pdf.protect = protect;
    ui->gb_pdf_protect->setEnabled(protect);
}

void pdfprotect::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    // Translating the two items again is no choice of the user: keep the index and the flag.
    const int index = ui->cb_security->currentIndex();
    const QSignalBlocker blocker(ui->cb_security);
    ui->retranslateUi(this);
    ui->cb_security->setCurrentIndex(index);
}
