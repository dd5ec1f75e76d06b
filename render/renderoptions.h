// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_RENDEROPTIONS_H
#define VELLUMIO_RENDEROPTIONS_H

#include "formats/formatcatalogue.h"
#include "settings/jobsettings.h"

#include <QString>

class SettingsKey;

namespace Render {

// Whether any document information is set.
bool hasInformation(const PdfSettings &pdf);

// Everything rendering takes from the settings: the values the dialog left after Print, with
// the defaults of the settings table where a value is absent.
struct Options
{
    Formats::Index format = Formats::Tiff;
    QString colorCode = QStringLiteral("24"); // "1", "8", "24g" or "24"
    QString compression = QStringLiteral("LZW"); // TIFF: LZW, G4, G3, JPEG, ZIP, PACKBITS
    int qualityJpg = 100;
    int qualityTif = 100;
    int qualitySwf = 100;
    int qualityPdf = 100;
    int qualityHtm = 100;
    bool multipageTiff = true;
    bool multipageSwf = true;
    bool multipagePdf = true;
    bool multipageHtm = true;
    bool multipageDjvu = true;
    bool pdfText = true;
    bool htmText = true;
    bool swfText = true;
    bool swfAnimate = false;
    QString swfPassword; // empty: the SWF is not protected
    PdfSettings pdf; // the PDF dialog's values, the passwords unscrambled
    bool extractText = false;
    bool prefixFirstPage = false;
    QString customNumber;
    Formats::Extensions extensions = JobSettings().extensions;
    int dpi = defaultDpi;

    QString folder; // the output folder, as stored
    QString name; // the file name without folder and extension

    static constexpr int defaultDpi = 300;
    static constexpr int minimumDpi = 10;
    static constexpr int maximumDpi = 1200;

    QString extension() const { return extensions[format]; }
};

// Reads the options from `options` (the all-users key when the machine key says so, else the
// user key) and the exchange values ("format", "Path", "newfilename") from `user`.
Options readOptions(const SettingsKey &options, const SettingsKey &user);

// The options of the user's current settings, with the key chosen as the dialog chooses it.
Options currentOptions();

} // namespace Render

#endif // VELLUMIO_RENDEROPTIONS_H
