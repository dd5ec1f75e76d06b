// SPDX-License-Identifier: GPL-3.0-or-later
// The output file of the main dialog: its name and extension, Save As, Print and Cancel.
#include "dialog/mainwindow.h"
#include "ui_mainwindow.h"

#include "formats/formatcatalogue.h"
#include "formats/pathhelpers.h"
#include "platform/prompts.h"
#include "platform/windoworder.h"
#include "platform/writetest.h"
#include "settings/exchangevalues.h"
#include "settings/jobsettings.h"

#include <QDir>

namespace {

// The filter text of a format with the extension the user configured for it.
QString filterOf(Formats::Index index)
{
    return Formats::filterText(*Formats::byIndex(index), jobSettings().extension(index));
}

} // namespace

QString MainWindow::fullOutputFileName() const
{
    const QString name = ui->le_filename->text();
    const Formats::Format *format = Formats::byIndex(ui->tabWidget->currentIndex());
    if (!format)
        return name;
    return PathHelpers::withExtension(name, jobSettings().extension(format->index));
}

void MainWindow::updateSelectedFilter()
{
    if (const Formats::Format *format = Formats::byIndex(ui->tabWidget->currentIndex()))
        jobSettings().selectedFilter = filterOf(format->index);
}

void MainWindow::selectFormat(const QString &token)
{
    const Formats::Format *format = Formats::byToken(token);
    if (!format)
        return;
    int page = format->index;
    Formats::Index filter = format->index;
    if (format->index == Formats::Djvu) {
        if (djvuAvailable) {
            // Driver contract: one beyond the last page: the tab widget ignores it and the shown
            // page stays.
            page = Formats::Count;
        } else {
            page = Formats::Jpeg;
            filter = Formats::Jpeg;
        }
    }
    ui->tabWidget->setCurrentIndex(page);
    jobSettings().selectedFilter = filterOf(filter);
}

void MainWindow::pb_filename()
{
    JobSettings &job = jobSettings();
    updateSelectedFilter();
    QString result = Prompts::current().saveFileName(this, tr("Save File As..."),
        fullOutputFileName(),
        Formats::saveAsFilterList(job.extensions, djvuAvailable, Formats::SaveAsOffer::MainDialog),
        &job.selectedFilter);
    // Driver contract: set even when cancelled: Print then never asks the overwrite question.
    nameChosenByDialog = true;

    QString chosen;
    if (!result.isEmpty())
        chosen = Formats::tokenOfSaveAsFilter(
            job.selectedFilter, job.extensions, Formats::SaveAsOffer::MainDialog);
    // Driver contract: a result of fewer than 4 characters changes nothing.
    if (result.size() < 4)
        return;

    result = PathHelpers::toNativeSeparators(result);
    ui->le_filename->setText(result);
    job.outputFolder = PathHelpers::directoryPart(result);
    job.newFileName = PathHelpers::stripExtension(PathHelpers::fileNamePart(result));
    ui->le_filename->setText(job.outputFolder + job.newFileName);

    job.formatToken = chosen;
    job.selectedFilter = chosen;
    selectFormat(job.formatToken);
}

void MainWindow::pb_print()
{
    WindowOrder::clearTopmost(this);
    JobSettings &job = jobSettings();
    Prompts &prompts = Prompts::current();

    job.outputFolder = PathHelpers::directoryPart(ui->le_filename->text());
    if (!QDir(job.outputFolder).exists()) {
        prompts.message(nullptr, QString(),
            job.outputFolder
                + tr("\nThis directory doesn't exist.\n\nPlease choose correct directory"),
            QMessageBox::Ok);
        return;
    }

    const QString name = fullOutputFileName();
    if (!nameChosenByDialog && WriteTest::occupied(name)) {
        const QMessageBox::StandardButton answer = prompts.message(nullptr, tr("Vellumio"),
            name + tr(" already exists.\n") + tr("Do you want to replace it?"),
            QMessageBox::Yes | QMessageBox::No);
        // Driver contract: only No keeps the file; a box closed otherwise counts as Yes.
        if (answer == QMessageBox::No)
            return;
    }

    if (WriteTest::createAndRemove(name)) {
        saveAllSettings();
        close();
        return;
    }
    prompts.message(nullptr, tr("Vellumio"),
        tr("You have no permission to write in this directory.\nPlease, choose another one."),
        QMessageBox::Ok);
}

void MainWindow::pb_cancel()
{
    if (jobSettings().allUsers)
        ExchangeValues::writeAbort(SettingsScope::Machine);
    ExchangeValues::writeAbort(SettingsScope::User);
    close();
}
