#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "exchangevalues.h"
#include "formatcatalogue.h"
#include "jobsettings.h"
#include "pathhelpers.h"
#include "prompts.h"
#include "windoworder.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace {

// The filter text of a format with the extension the user configured for it.
QString filterOf(Formats::Index index)
{
    return Formats::filterText(*Formats::byIndex(index), jobSettings().extension(index));
}

// The formats Save As offers, in their own order rather than the page order. HTML is left out on
// purpose: it cannot be chosen from the main dialog's Save As.
QString saveAsFilterList(bool djvuAvailable)
{
    QStringList filters;
    for (Formats::Index index : {Formats::Bmp, Formats::Png, Formats::Tiff, Formats::Jpeg,
             Formats::Jpeg2000, Formats::Gif, Formats::Pdf, Formats::Swf})
        filters << filterOf(index);
    if (djvuAvailable)
        filters << filterOf(Formats::Djvu);
    filters << filterOf(Formats::Rtf) << filterOf(Formats::Excel);
    return filters.join(QLatin1String(";;"));
}

// The format token of the filter chosen in Save As; empty when none matches. RTF is recognised
// only by its fixed text, so another RTF extension setting yields no format, as the driver expects.
QString formatOfFilter(const QString &filter)
{
    QString token;
    for (Formats::Index index :
        {Formats::Bmp, Formats::Png, Formats::Tiff, Formats::Jpeg, Formats::Jpeg2000, Formats::Gif,
            Formats::Pdf, Formats::Swf, Formats::Rtf, Formats::Djvu, Formats::Excel}) {
        const QString text = index == Formats::Rtf ? Formats::fixedRtfFilter() : filterOf(index);
        if (filter == text)
            token = QLatin1String(Formats::byIndex(index)->token);
    }
    return token;
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
            // One beyond the last page: the tab widget ignores it and the shown page stays.
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
        fullOutputFileName(), saveAsFilterList(djvuAvailable), &job.selectedFilter);
    // Set even when cancelled: Print then never asks the overwrite question.
    nameChosenByDialog = true;

    QString chosen;
    if (!result.isEmpty())
        chosen = formatOfFilter(job.selectedFilter);
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
    if (!nameChosenByDialog && QFile::exists(name)) {
        const QMessageBox::StandardButton answer = prompts.message(nullptr, tr("Vellumio"),
            name + tr(" already exists.\n") + tr("Do you want to replace it?"),
            QMessageBox::Yes | QMessageBox::No);
        if (answer == QMessageBox::No)
            return;
    }

    // Creating the file is the only reliable test of write access; it is removed again so the
    // driver writes a fresh one. A NUL would cut the name short in the system call and create
    // (or truncate) another file, so such a name counts as one that cannot be created.
    QFile file(name);
    if (!name.contains(QChar(0)) && file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.remove();
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
