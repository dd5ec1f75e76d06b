// SPDX-License-Identifier: GPL-3.0-or-later
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

using Settings::Value;

// A widget of the form that shows one value of the table as it is stored.
template<class Widget>
struct Binding
{
    Value value;
    Widget *Ui::MainWindow::*widget;
};

// The check boxes that show a flag value of the table.
using FlagBox = Binding<QCheckBox>;

// clang-format off
const FlagBox flagBoxes[] = {
    {Settings::MultipageTiff,         &Ui::MainWindow::ch_multipage_tiff},
    {Settings::MultipageSwf,          &Ui::MainWindow::ch_multipage_swf},
    {Settings::MultipagePdf,          &Ui::MainWindow::ch_multipage_pdf},
    {Settings::MultipageHtm,          &Ui::MainWindow::ch_multipage_htm},
    {Settings::MultipageDjvu,         &Ui::MainWindow::ch_multipage_djvu},
    {Settings::PdfText,               &Ui::MainWindow::rb_pdf_text},
    {Settings::HtmText,               &Ui::MainWindow::rb_htm_text},
    {Settings::SwfText,               &Ui::MainWindow::rb_swf_text},
    {Settings::SwfAnimate,            &Ui::MainWindow::ch_swf_animate},
    {Settings::LoadExtApp,            &Ui::MainWindow::ch_exe},
    {Settings::MailDelivery,          &Ui::MainWindow::ch_email},
    {Settings::TcpDelivery,           &Ui::MainWindow::ch_tcp},
    {Settings::FtpDelivery,           &Ui::MainWindow::ch_ftp},
    {Settings::EnabledBackgroundText, &Ui::MainWindow::ch_text},
    {Settings::BackgroundEnable,      &Ui::MainWindow::ch_image},
    {Settings::ExtractText,           &Ui::MainWindow::cd_extract_text},
};

// The quality spin boxes, in the order loading reads them.
using QualityBox = Binding<QSpinBox>;

const QualityBox qualityBoxes[] = {
    {Settings::QHtm, &Ui::MainWindow::spb_q_htm},
    {Settings::QJpg, &Ui::MainWindow::spb_q_jpg},
    {Settings::QTif, &Ui::MainWindow::spb_q_tif},
    {Settings::QSwf, &Ui::MainWindow::spb_q_swf},
    {Settings::QPdf, &Ui::MainWindow::spb_q_pdf},
};
// clang-format on

const Value multipageReadOrder[] = {Settings::MultipageTiff, Settings::MultipageSwf,
    Settings::MultipagePdf, Settings::MultipageHtm};
const Value extensionReadOrder[] = {Settings::ExtHtm, Settings::ExtBmp, Settings::ExtPng,
    Settings::ExtJpg, Settings::ExtJp2, Settings::ExtTif, Settings::ExtPdf, Settings::ExtSwf,
    Settings::ExtRtf, Settings::ExtGif, Settings::ExtDjvu, Settings::ExtMsxml};
const Value textLayerReadOrder[] = {Settings::PdfText, Settings::HtmText, Settings::SwfText};
const Value switchReadOrder[]
    = {Settings::LoadExtApp, Settings::MailDelivery, Settings::TcpDelivery, Settings::FtpDelivery,
        Settings::EnabledBackgroundText, Settings::BackgroundEnable};
// Saving puts extract_text among the after-print switches; loading reads it later on its own.
const Value switchWriteOrder[]
    = {Settings::LoadExtApp, Settings::MailDelivery, Settings::TcpDelivery, Settings::FtpDelivery,
        Settings::ExtractText, Settings::EnabledBackgroundText, Settings::BackgroundEnable};
const Value permissionOrder[] = {Settings::PdfProtectPrint, Settings::PdfProtectEdit,
    Settings::PdfProtectCopy, Settings::PdfProtectEditNotes, Settings::PdfProtectFillAndSign,
    Settings::PdfProtectAccessible, Settings::PdfProtectAssemble, Settings::PdfProtectHighPrint};

// The widget bound to a value, or nullptr when none of the bindings shows it.
template<class Widget, size_t Count>
Widget *boundWidget(Ui::MainWindow *ui, const Binding<Widget> (&bindings)[Count], Value value)
{
    for (const Binding<Widget> &binding : bindings) {
        if (binding.value == value)
            return ui->*binding.widget;
    }
    return nullptr;
}

QCheckBox *flagBox(Ui::MainWindow *ui, Value value)
{
    return boundWidget(ui, flagBoxes, value);
}

QSpinBox *qualityBox(Ui::MainWindow *ui, Value value)
{
    return boundWidget(ui, qualityBoxes, value);
}

bool *permissionFlag(PdfPermissions &permissions, Value value)
{
    switch (value) {
    case Settings::PdfProtectPrint:
        return &permissions.print;
    case Settings::PdfProtectEdit:
        return &permissions.edit;
    case Settings::PdfProtectCopy:
        return &permissions.copy;
    case Settings::PdfProtectEditNotes:
        return &permissions.editNotes;
    case Settings::PdfProtectFillAndSign:
        return &permissions.fillAndSign;
    case Settings::PdfProtectAccessible:
        return &permissions.accessible;
    case Settings::PdfProtectAssemble:
        return &permissions.assemble;
    case Settings::PdfProtectHighPrint:
        return &permissions.highPrint;
    default:
        return nullptr;
    }
}

// The six document-information texts in the order they are read and written.
struct InfoText
{
    Value value;
    QString PdfSettings::*text;
};

const InfoText infoTexts[] = {
    {Settings::PdfTitle, &PdfSettings::title},
    {Settings::PdfAuthor, &PdfSettings::author},
    {Settings::PdfSubject, &PdfSettings::subject},
    {Settings::PdfKeywords, &PdfSettings::keywords},
    {Settings::PdfCreator, &PdfSettings::creator},
    {Settings::PdfProducer, &PdfSettings::producer},
};

QString trueText()
{
    return QStringLiteral("true");
}

// The row of cb_combobox for a stored colour code. The four-row mapping is applied also where the
// list holds fewer rows; the combo box decides what a row beyond its entries means.
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
    // Any Windows style name of older versions now means the program's own style.
    if (name.contains(QLatin1String("Windows")))
        name = QStringLiteral("WindowsXP");
    if (name == QLatin1String("WindowsXP")) {
        QApplication::setStyle(QStringLiteral("windowsmodernstyle"));
        return;
    }
    if (QStyle *style = QStyleFactory::create(name))
        QApplication::setStyle(style);
}

} // namespace

void MainWindow::readAllUsersFlag()
{
    JobSettings &job = jobSettings();
    job.allUsers = false;
    const SettingsKey machine(SettingsScope::Machine);
    job.allUsers = machine.flag(Settings::SettingsForAllUsers);
}

void MainWindow::loadSettings()
{
    JobSettings &job = jobSettings();

    // The pressed state, not the checked one: nothing is pressed yet, so the field starts disabled.
    ui->le_pr_custom->setEnabled(ui->rb_pefix_1->isDown());

    const SettingsKey key(job.allUsers ? SettingsScope::Machine : SettingsScope::User);

    job.formatToken = key.text(Settings::Format);
    if (!Formats::byToken(job.formatToken))
        job.formatToken = QStringLiteral("jpg");
    if (!djvuAvailable && job.formatToken == QLatin1String("djvu"))
        job.formatToken = QStringLiteral("jpg");

    // The buttons are set without a click, so their slots do not record the compression.
    compression = key.text(Settings::FormatExt);
    for (const Formats::CompressionMethod &method : Formats::compressionMethods()) {
        if (compression == QLatin1String(method.code)) {
            if (auto *button = findChild<QRadioButton *>(QLatin1String(method.button)))
                button->setChecked(true);
            break;
        }
    }

    // The page decides which colour modes the list holds before the stored one is selected.
    selectFormat(job.formatToken);

    for (const QualityBox &binding : qualityBoxes)
        (ui->*binding.widget)->setValue(key.integer(binding.value));

    for (Value value : multipageReadOrder)
        flagBox(ui, value)->setChecked(key.flag(value));
    if (djvuAvailable)
        ui->ch_multipage_djvu->setChecked(key.flag(Settings::MultipageDjvu));

    for (Value value : extensionReadOrder) {
        const QString valueName = Settings::name(value);
        for (const Formats::Format &format : Formats::all()) {
            if (valueName == QLatin1String(format.extensionKey))
                job.extensions[format.index] = key.text(value);
        }
    }

    for (Value value : textLayerReadOrder)
        flagBox(ui, value)->setChecked(key.flag(value));
    // Only ever switched on here; a stored "false" leaves the box as the form built it.
    if (key.flag(Settings::SwfAnimate))
        ui->ch_swf_animate->setChecked(true);

    ui->le_swf_protect->setText(unscramblePassword(key.text(Settings::ProtectSwf)));
    ui->ch_swf_protect->setChecked(
        !ui->le_swf_protect->text().isEmpty() && key.flag(Settings::BProtectSwf));

    // The stored folder keeps its trailing separator, so nothing is put in between.
    job.outputFolder = key.text(Settings::PathRead);
    ui->le_filename->setText(job.outputFolder + job.newFileName);

    for (const InfoText &info : infoTexts)
        job.pdf.*info.text = key.text(info.value);

    for (Value value : switchReadOrder)
        flagBox(ui, value)->setChecked(key.flag(value));

    job.customNumber = key.text(Settings::CustomNumber);
    ui->le_pr_custom->setText(job.customNumber);

    if (key.flag(Settings::PrefixFirstPage)) {
        ui->rb_pefix_1->setChecked(true);
        ui->le_pr_custom->setEnabled(ui->rb_pefix_1->isDown());
    } else {
        ui->rb_pefix_custom->setChecked(true);
        ui->le_pr_custom->setEnabled(!ui->rb_pefix_custom->isDown());
    }

    ui->cd_extract_text->setChecked(key.text(Settings::ExtractText) == trueText());

    // Selecting the row runs the colour slot when the row changes, which may rewrite the code.
    job.colorCode = key.text(Settings::ImageColor);
    ui->cb_combobox->setCurrentIndex(colorRow(job.formatToken, compression, job.colorCode));

    job.pdf.userPassword = unscramblePassword(key.text(Settings::PdfUserPw));
    job.pdf.ownerPassword = unscramblePassword(key.text(Settings::PdfOwnerPw));

    job.pdf.protect = key.flag(Settings::PdfProtect);
    for (Value value : permissionOrder)
        *permissionFlag(job.pdf.permissions, value) = key.flag(value);

    const QString style = key.text(Settings::Style);

    // The driver may ask for the save-as-only mode; nothing here ever turns it off.
    if (key.text(Settings::ChDialogSaveAs) == trueText())
        job.saveAsOnly = true;

    applyStyle(style);
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

    // "true" is never written: the driver treats a missing value as "show the dialog".
    if (!ui->cd_dialog->isChecked())
        key.setFlag(Settings::ChDialog, false);

    const int page = ui->tabWidget->currentIndex();
    for (Value value : Settings::pageValues(page)) {
        switch (value) {
        case Settings::Format:
            key.setText(value, QLatin1String(Formats::byIndex(page)->token));
            break;
        case Settings::FormatExt:
            for (const Formats::CompressionMethod &method : Formats::compressionMethods()) {
                const auto *button = findChild<QRadioButton *>(QLatin1String(method.button));
                if (button && button->isChecked()) {
                    key.setText(value, QLatin1String(method.code));
                    break;
                }
            }
            break;
        case Settings::BProtectSwf:
            key.setFlag(value, ui->ch_swf_protect->isChecked());
            if (ui->ch_swf_protect->isChecked())
                key.setText(Settings::ProtectSwf, scramblePassword(ui->le_swf_protect->text()));
            break;
        case Settings::ProtectSwf:
            // With the protection off, a typed password leaves the stored one as it was.
            if (ui->le_swf_protect->text().isEmpty())
                key.setText(value, QString());
            break;
        default:
            if (QSpinBox *box = qualityBox(ui, value))
                key.setInteger(value, box->value());
            else if (QCheckBox *check = flagBox(ui, value))
                key.setFlag(value, check->isChecked());
            break;
        }
    }

    for (Value value : switchWriteOrder)
        key.setFlag(value, flagBox(ui, value)->isChecked());
    key.setText(Settings::CustomNumber, ui->le_pr_custom->text());
    key.setFlag(Settings::PrefixFirstPage, ui->rb_pefix_1->isChecked());
    key.setText(Settings::ImageColor, job.colorCode);

    key.setText(Settings::PdfUserPw, scramblePassword(job.pdf.userPassword));
    key.setText(Settings::PdfOwnerPw, scramblePassword(job.pdf.ownerPassword));
    for (const InfoText &info : infoTexts)
        key.setText(info.value, job.pdf.*info.text);
    key.setFlag(Settings::PdfProtect, job.pdf.protect);
    for (Value value : permissionOrder)
        key.setFlag(value, *permissionFlag(job.pdf.permissions, value));
}
