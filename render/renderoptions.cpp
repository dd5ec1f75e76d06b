// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the values of a printed job from the settings keys, as the dialog left them.
#include "render/renderoptions.h"

#include "settings/passwordscrambling.h"
#include "settings/settingskey.h"

namespace Render {

namespace {

// The extension settings in format order.
constexpr std::array<Settings::Value, Formats::Count> extensionValues
    = {Settings::ExtBmp, Settings::ExtPng, Settings::ExtJpg, Settings::ExtJp2, Settings::ExtTif,
        Settings::ExtGif, Settings::ExtSwf, Settings::ExtPdf, Settings::ExtRtf, Settings::ExtMsxml,
        Settings::ExtHtm, Settings::ExtDjvu};

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

} // namespace

Formats::Extensions defaultExtensions()
{
    Formats::Extensions extensions;
    for (const Formats::Format &format : Formats::all())
        extensions[format.index] = QString::fromLatin1(format.defaultExtension);
    return extensions;
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
        o.swfPassword = unscramblePassword(options.text(Settings::ProtectSwf));

    o.pdf.title = options.text(Settings::PdfTitle);
    o.pdf.author = options.text(Settings::PdfAuthor);
    o.pdf.subject = options.text(Settings::PdfSubject);
    o.pdf.keywords = options.text(Settings::PdfKeywords);
    o.pdf.creator = options.text(Settings::PdfCreator);
    o.pdf.producer = options.text(Settings::PdfProducer);
    o.pdf.protect = options.flag(Settings::PdfProtect);
    o.pdf.userPassword = unscramblePassword(options.text(Settings::PdfUserPw));
    o.pdf.ownerPassword = unscramblePassword(options.text(Settings::PdfOwnerPw));
    o.pdf.permissions.print = options.flag(Settings::PdfProtectPrint);
    o.pdf.permissions.edit = options.flag(Settings::PdfProtectEdit);
    o.pdf.permissions.copy = options.flag(Settings::PdfProtectCopy);
    o.pdf.permissions.editNotes = options.flag(Settings::PdfProtectEditNotes);
    o.pdf.permissions.fillAndSign = options.flag(Settings::PdfProtectFillAndSign);
    o.pdf.permissions.accessible = options.flag(Settings::PdfProtectAccessible);
    o.pdf.permissions.assemble = options.flag(Settings::PdfProtectAssemble);
    o.pdf.permissions.highPrint = options.flag(Settings::PdfProtectHighPrint);

    // Driver contract: only the exact text "true" asks for the text file.
    o.extractText = options.text(Settings::ExtractText) == QLatin1String("true");
    o.prefixFirstPage = options.flag(Settings::PrefixFirstPage);
    o.customNumber = options.text(Settings::CustomNumber);
    for (int i = 0; i < Formats::Count; ++i)
        o.extensions[i] = options.text(extensionValues[i]);

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
