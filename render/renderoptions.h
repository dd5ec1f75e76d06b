// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_RENDEROPTIONS_H
#define VELLUMIO_RENDEROPTIONS_H

#include "formats/formatcatalogue.h"

#include <QString>

class SettingsKey;

namespace Render {

// The eight PDF permissions of the advanced PDF dialog, true where the user allows.
struct PdfPermissions
{
    bool print = false;
    bool edit = false;
    bool copy = false;
    bool editNotes = false;
    bool fillAndSign = false;
    bool accessible = false;
    bool assemble = false;
    bool highPrint = false;
};

// Document information, passwords and permissions of a PDF, the passwords unscrambled.
struct PdfOptions
{
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QString creator;
    QString producer;
    bool protect = false;
    QString userPassword;
    QString ownerPassword;
    PdfPermissions permissions;

    bool hasInformation() const
    {
        return !(title.isEmpty() && author.isEmpty() && subject.isEmpty() && keywords.isEmpty()
            && creator.isEmpty() && producer.isEmpty());
    }
};

// The extensions of the settings table's defaults, by format index.
Formats::Extensions defaultExtensions();

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
    PdfOptions pdf;
    bool extractText = false;
    bool prefixFirstPage = false;
    QString customNumber;
    Formats::Extensions extensions = defaultExtensions();
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
