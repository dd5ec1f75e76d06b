// SPDX-License-Identifier: GPL-3.0-or-later
// The save-as-only mode: its banner, the Save As question and the outcome it hands the driver.
#include "app/filesavedialog.h"
#include "ui_filesavedialog.h"

#include "dialog/mainwindow.h"
#include "formats/formatcatalogue.h"
#include "formats/pathhelpers.h"
#include "platform/prompts.h"
#include "platform/windoworder.h"
#include "platform/writetest.h"
#include "settings/exchangevalues.h"
#include "settings/jobsettings.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

FileSaveDialog::FileSaveDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::FileSaveDialog)
{
    ui->setupUi(this);
}

FileSaveDialog::~FileSaveDialog()
{
    delete ui;
}

QString FileSaveDialog::askFileName(
    const QString &initialPath, QString *selectedFilter, QString *format)
{
    // Driver contract: unlike the main dialog's Save As, this one offers HTML, as its last entry.
    const QString filters = Formats::saveAsFilterList(
        jobSettings().extensions, djvuAvailable, Formats::SaveAsOffer::SaveAsOnly);

    // The native window is created first so that the frame is known, as far as it can be.
    winId();
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->geometry();
        const QRect frame = frameGeometry();
        move(area.right() - frame.width() - 40, area.bottom() - 3 * frame.height());
    }
    show();
    WindowOrder::takeForeground(this);

    const QString name = Prompts::current().saveFileName(
        this, tr("Save File As..."), initialPath, filters, selectedFilter);
    if (!name.isEmpty())
        *format = Formats::tokenOfSaveAsFilter(
            *selectedFilter, jobSettings().extensions, Formats::SaveAsOffer::SaveAsOnly);
    return name;
}

void FileSaveDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
}

namespace SaveAsOnly {

bool startStep(MainWindow &window)
{
    JobSettings &job = jobSettings();
    QString selectedFilter = job.selectedFilter;
    QString format;
    QString name;
    {
        FileSaveDialog dialog;
        dialog.setDjvuAvailable(window.isDjvuAvailable());
        name = dialog.askFileName(job.outputFolder + job.newFileName, &selectedFilter, &format);
    }

    // Driver contract: a cancelled dialog returns nothing; the limit of 3 is this mode's own.
    if (name.size() < 3) {
        window.pb_cancel();
        window.close();
        return true;
    }

    name = PathHelpers::toNativeSeparators(name);
    if (!WriteTest::createAndRemove(name)) {
        Prompts::current().message(nullptr, FileSaveDialog::tr("Vellumio"),
            FileSaveDialog::tr("You have no permission to write in this directory.\n"
                               "Please, choose another one."),
            QMessageBox::Ok);
        return false;
    }
    job.outputFolder = PathHelpers::directoryPart(name);
    job.newFileName = PathHelpers::stripExtension(PathHelpers::fileNamePart(name));

    // Driver contract: the user key first in this mode, unlike Print and Cancel.
    ExchangeValues::writeSaveAsOutcome(
        SettingsScope::User, job.newFileName, job.outputFolder, format);
    if (job.allUsers)
        ExchangeValues::writeSaveAsOutcome(
            SettingsScope::Machine, job.newFileName, job.outputFolder, format);

    window.close();
    return true;
}

} // namespace SaveAsOnly
