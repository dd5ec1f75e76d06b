// SPDX-License-Identifier: GPL-3.0-or-later
// Loading the main dialog from a settings key and saving it back, as the settings table says.
#include "dialog/mainwindow.h"
#include "ui_mainwindow.h"

#include "formats/formatcatalogue.h"
#include "formats/pathhelpers.h"
#include "settings/exchangevalues.h"
#include "settings/jobsettings.h"
#include "settings/passwordscrambling.h"
#include "settings/settingskey.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

namespace {

using Settings::Entry;
using Settings::Form;
using Settings::Value;

// The row of cb_combobox for a stored colour code. Driver contract: the four-row mapping is
// applied also where the list holds fewer rows; the combo box decides what a row beyond its
// entries means.
int colorRow(const QString &formatToken, const QString &compression, const QString &colorCode)
{
    static const char *const twoModeTokens[] = {"pdf", "swf", "jpg", "jp2", "djvu", "htm"};
    bool twoModes = formatToken == QLatin1String("tif") && compression == QLatin1String("JPEG");
    for (const char *token : twoModeTokens)
        twoModes = twoModes || formatToken == QLatin1String(token);
    if (twoModes)
        return colorCode == QLatin1String("24g") ? 0 : 1;

    const auto &modes = Formats::colorModes();
    for (int row = 0; row < 3; ++row) {
        if (colorCode == QLatin1String(modes[row].code))
            return row;
    }
    return 3;
}

void applyStyle(QString name)
{
    // Driver contract: any Windows style name of older versions means the program's own style.
    if (name.contains(QLatin1String("Windows")))
        name = QStringLiteral("WindowsXP");
    if (name == QLatin1String("WindowsXP")) {
        QApplication::setStyle(QStringLiteral("windowsmodernstyle"));
        return;
    }
    if (QStyle *style = QStyleFactory::create(name))
        QApplication::setStyle(style);
}

// The property of a bound widget that holds a value of this stored form.
const char *widgetProperty(Form form)
{
    switch (form) {
    case Form::Flag:
    case Form::ExactFlag:
    case Form::Boolean:
        return "checked";
    case Form::Integer:
        return "value";
    case Form::Text:
    case Form::Scrambled:
        break;
    }
    return "text";
}

// A value as the store hands it back, in the type of its binding.
QVariant readValue(const SettingsKey &key, const Entry &row)
{
    switch (row.form) {
    case Form::Flag:
    case Form::ExactFlag:
    case Form::Boolean:
        return key.flag(row.value);
    case Form::Integer:
        return key.integer(row.value);
    case Form::Scrambled:
        return unscramblePassword(key.text(row.value));
    case Form::Text:
        break;
    }
    return key.text(row.value);
}

// A value in its stored form.
void writeValue(SettingsKey &key, const Entry &row, const QVariant &value)
{
    switch (row.form) {
    case Form::Flag:
    case Form::ExactFlag:
    case Form::Boolean:
        key.setFlag(row.value, value.toBool());
        break;
    case Form::Integer:
        key.setInteger(row.value, value.toInt());
        break;
    case Form::Scrambled:
        key.setText(row.value, scramblePassword(value.toString()));
        break;
    case Form::Text:
        key.setText(row.value, value.toString());
        break;
    }
}

} // namespace

QWidget *MainWindow::boundWidget(const Entry &row) const
{
    return row.binding.widget ? findChild<QWidget *>(QLatin1String(row.binding.widget)) : nullptr;
}

QVariant MainWindow::boundValue(const Entry &row) const
{
    const Settings::Binding &to = row.binding;
    const JobSettings &job = jobSettings();
    if (to.isWidget())
        return boundWidget(row)->property(widgetProperty(row.form));
    if (to.jobText)
        return job.*to.jobText;
    if (to.jobFlag)
        return job.*to.jobFlag;
    if (to.pdfText)
        return job.pdf.*to.pdfText;
    if (to.pdfFlag)
        return job.pdf.*to.pdfFlag;
    if (to.permission)
        return job.pdf.permissions.*to.permission;
    return job.extension(to.extensionOf);
}

void MainWindow::setBoundValue(const Entry &row, const QVariant &value)
{
    const Settings::Binding &to = row.binding;
    JobSettings &job = jobSettings();
    if (to.isWidget())
        boundWidget(row)->setProperty(widgetProperty(row.form), value);
    else if (to.jobText)
        job.*to.jobText = value.toString();
    else if (to.jobFlag)
        job.*to.jobFlag = value.toBool();
    else if (to.pdfText)
        job.pdf.*to.pdfText = value.toString();
    else if (to.pdfFlag)
        job.pdf.*to.pdfFlag = value.toBool();
    else if (to.permission)
        job.pdf.permissions.*to.permission = value.toBool();
    else if (Formats::byIndex(to.extensionOf))
        job.extensions[to.extensionOf] = value.toString();
}

void MainWindow::readAllUsersFlag()
{
    JobSettings &job = jobSettings();
    job.allUsers = false;
    const SettingsKey machine(SettingsScope::Machine);
    job.allUsers = machine.flag(Settings::SettingsForAllUsers);
}

void MainWindow::loadSettings()
{
    // Driver contract: the pressed state, not the checked one: nothing is pressed yet, so the
    // field starts disabled.
    ui->le_pr_custom->setEnabled(ui->rb_pefix_1->isDown());

    const SettingsKey key(jobSettings().allUsers ? SettingsScope::Machine : SettingsScope::User);
    for (const Entry &row : Settings::entries()) {
        switch (row.loading) {
        case Settings::Loading::Bound:
            setBoundValue(row, readValue(key, row));
            break;
        case Settings::Loading::OneSided:
            // Driver contract: only ever switched on here; a stored "false" leaves it as it was.
            if (key.flag(row.value))
                setBoundValue(row, true);
            break;
        case Settings::Loading::WithConverter:
            if (djvuAvailable)
                setBoundValue(row, readValue(key, row));
            break;
        case Settings::Loading::OwnStep:
            loadStep(key, row.value);
            break;
        case Settings::Loading::NotRead:
            break;
        }
    }
}

void MainWindow::loadStep(const SettingsKey &key, Value value)
{
    JobSettings &job = jobSettings();
    switch (value) {
    case Settings::Format:
        job.formatToken = key.text(value);
        if (!Formats::byToken(job.formatToken))
            job.formatToken = QStringLiteral("jpg");
        if (!djvuAvailable && job.formatToken == QLatin1String("djvu"))
            job.formatToken = QStringLiteral("jpg");
        break;
    case Settings::FormatExt:
        // The buttons are set without a click, so their slots do not record the compression.
        compression = key.text(value);
        for (const Formats::CompressionMethod &method : Formats::compressionMethods()) {
            if (compression == QLatin1String(method.code)) {
                if (auto *button = findChild<QRadioButton *>(QLatin1String(method.button)))
                    button->setChecked(true);
                break;
            }
        }
        // The page decides which colour modes the list holds before the stored one is selected.
        selectFormat(job.formatToken);
        break;
    case Settings::BProtectSwf:
        // Driver contract: read only when a password was loaded.
        ui->ch_swf_protect->setChecked(!ui->le_swf_protect->text().isEmpty() && key.flag(value));
        break;
    case Settings::PathRead:
        // Driver contract: the stored folder keeps its trailing separator, so nothing is put in
        // between.
        job.outputFolder = key.text(value);
        ui->le_filename->setText(job.outputFolder + job.newFileName);
        break;
    case Settings::CustomNumber:
        job.customNumber = key.text(value);
        ui->le_pr_custom->setText(job.customNumber);
        break;
    case Settings::PrefixFirstPage:
        if (key.flag(value)) {
            ui->rb_pefix_1->setChecked(true);
            ui->le_pr_custom->setEnabled(ui->rb_pefix_1->isDown());
        } else {
            ui->rb_pefix_custom->setChecked(true);
            ui->le_pr_custom->setEnabled(!ui->rb_pefix_custom->isDown());
        }
        break;
    case Settings::ImageColor:
        // Selecting the row runs the colour slot when the row changes, which may rewrite the code.
        job.colorCode = key.text(value);
        ui->cb_combobox->setCurrentIndex(colorRow(job.formatToken, compression, job.colorCode));
        break;
    case Settings::Style:
        applyStyle(key.text(value));
        break;
    default:
        break;
    }
}

void MainWindow::saveAllSettings()
{
    if (jobSettings().allUsers)
        saveSettingsTo(SettingsScope::Machine);
    saveSettingsTo(SettingsScope::User);
}

void MainWindow::saveSettingsTo(SettingsScope scope)
{
    JobSettings &job = jobSettings();
    SettingsKey key(scope);

    const QString fileName = ui->le_filename->text();
    job.outputFolder = PathHelpers::directoryPart(fileName);
    job.newFileName = PathHelpers::stripExtension(PathHelpers::fileNamePart(fileName));
    ExchangeValues::writeOutcome(key, job.newFileName, job.outputFolder);

    const int page = ui->tabWidget->currentIndex();
    for (const Entry *row : Settings::writeOrder()) {
        if (!Settings::writtenOnPage(*row, page))
            continue;
        switch (row->value) {
        case Settings::Format:
            key.setText(row->value, QLatin1String(Formats::byIndex(page)->token));
            break;
        case Settings::FormatExt:
            for (const Formats::CompressionMethod &method : Formats::compressionMethods()) {
                const auto *button = findChild<QRadioButton *>(QLatin1String(method.button));
                if (button && button->isChecked()) {
                    key.setText(row->value, QLatin1String(method.code));
                    break;
                }
            }
            break;
        case Settings::BProtectSwf:
            key.setFlag(row->value, ui->ch_swf_protect->isChecked());
            if (ui->ch_swf_protect->isChecked())
                key.setText(Settings::ProtectSwf, scramblePassword(ui->le_swf_protect->text()));
            break;
        case Settings::ProtectSwf:
            // Driver contract: with the protection off, a typed password leaves the stored one
            // as it was.
            if (ui->le_swf_protect->text().isEmpty())
                key.setText(row->value, QString());
            break;
        case Settings::ChDialog:
            // Driver contract: "true" is never written; a missing value means "show the dialog".
            if (!ui->cd_dialog->isChecked())
                key.setFlag(row->value, false);
            break;
        default:
            writeValue(key, *row, boundValue(*row));
            break;
        }
    }
}
