// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the values of a printed job from the settings keys, as the dialog left them.
#include "render/renderoptions.h"

#include "settings/passwordscrambling.h"
#include "settings/settingskey.h"

namespace Render {

namespace {

// The stored token of the chosen format. A token the dialog would not load (unknown, or empty
// after a save-as-only run that matched no filter) renders as the dialog would then show it.
Formats::Index formatOf(const QString &token)
{
    const Formats::Format *format = Formats::byToken(token);
    return format ? format->index : Formats::Jpeg;
}

int qualityOf(const SettingsKey &key, Settings::Value value)
{
    return qBound(1, key.integer(value), 100);
}

// A text value, unscrambled when it is stored scrambled.
QString textOf(const SettingsKey &key, const Settings::Entry &row)
{
    const QString text = key.text(row.value);
    return row.form == Settings::Form::Scrambled ? unscramblePassword(text) : text;
}

// The PDF dialog's values and the extensions, each read where the settings table binds it.
void readBound(const SettingsKey &key, Options &o)
{
    for (const Settings::Entry &row : Settings::entries()) {
        const Settings::Binding &to = row.binding;
        if (to.pdfText)
            o.pdf.*to.pdfText = textOf(key, row);
        else if (to.pdfFlag)
            o.pdf.*to.pdfFlag = key.flag(row.value);
        else if (to.permission)
            o.pdf.permissions.*to.permission = key.flag(row.value);
        else if (Formats::byIndex(to.extensionOf))
            o.extensions[to.extensionOf] = key.text(row.value);
    }
}

} // namespace

bool hasInformation(const PdfSettings &pdf)
{
    return !(pdf.title.isEmpty() && pdf.author.isEmpty() && pdf.subject.isEmpty()
        && pdf.keywords.isEmpty() && pdf.creator.isEmpty() && pdf.producer.isEmpty());
}

Options readOptions(const SettingsKey &options, const SettingsKey &user)
{
    Options o;
    o.format = formatOf(user.text(Settings::Format));
    o.folder = user.text(Settings::PathRead);
    o.name = user.text(Settings::NewFileName);

    o.colorCode = options.text(Settings::ImageColor);
    o.compression = options.text(Settings::FormatExt);
    o.qualityJpg = qualityOf(options, Settings::QJpg);
    o.qualityTif = qualityOf(options, Settings::QTif);
    o.qualitySwf = qualityOf(options, Settings::QSwf);
    o.qualityPdf = qualityOf(options, Settings::QPdf);
    o.qualityHtm = qualityOf(options, Settings::QHtm);
    o.multipageTiff = options.flag(Settings::MultipageTiff);
    o.multipageSwf = options.flag(Settings::MultipageSwf);
    o.multipagePdf = options.flag(Settings::MultipagePdf);
    o.multipageHtm = options.flag(Settings::MultipageHtm);
    o.multipageDjvu = options.flag(Settings::MultipageDjvu);
    o.pdfText = options.flag(Settings::PdfText);
    o.htmText = options.flag(Settings::HtmText);
    o.swfText = options.flag(Settings::SwfText);
    o.swfAnimate = options.flag(Settings::SwfAnimate);
    if (options.flag(Settings::BProtectSwf))
        o.swfPassword = textOf(options, Settings::entry(Settings::ProtectSwf));
    readBound(options, o);

    // An exact flag in the table: only the text "true" asks for the text file.
    o.extractText = options.flag(Settings::ExtractText);
    o.prefixFirstPage = options.flag(Settings::PrefixFirstPage);
    o.customNumber = options.text(Settings::CustomNumber);

    // Outside the dialog: the resolution of raster pages, for a site that wants another one.
    bool ok = false;
    const int dpi = options.value(QStringLiteral("render_dpi"), Options::defaultDpi).toInt(&ok);
    o.dpi = ok ? qBound(Options::minimumDpi, dpi, Options::maximumDpi) : Options::defaultDpi;
    return o;
}

Options currentOptions()
{
    const SettingsKey machine(SettingsScope::Machine);
    const SettingsKey user(SettingsScope::User);
    return readOptions(machine.flag(Settings::SettingsForAllUsers) ? machine : user, user);
}

} // namespace Render
