// SPDX-License-Identifier: GPL-3.0-or-later
// The twelve formats, their colour modes and compressions, and the Save As filter lists.
#include "formats/formatcatalogue.h"

namespace Formats {

namespace {

// clang-format off
const std::array<Format, Count> formatTable = {{
    // index     tab      page      token    default  filter label
    {Bmp,      "BMP",  "tab",    "bmp",   "bmp",   "BMP Format (*."},
    {Png,      "PNG",  "tab_3",  "png",   "png",   "PNG Format (*."},
    {Jpeg,     "JPEG", "tab_4",  "jpg",   "jpg",   "JPEG Format (*."},
    {Jpeg2000, "JP2",  "tab_9",  "jp2",   "jp2",   "JPEG2000 Format (*."},
    {Tiff,     "TIFF", "tab_6",  "tif",   "tif",   "TIFF Format (*."},
    {Gif,      "GIF",  "tab_5",  "gif",   "gif",   "GIF Format (*."},
    {Swf,      "SWF",  "tab_2",  "swf",   "swf",   "SWF Format (*."},
    {Pdf,      "PDF",  "tab_7",  "pdf",   "pdf",   "PDF Format (*."},
    {Rtf,      "RTF",  "tab_8",  "rtf",   "rtf",   "RTF Format (*."},
    {Excel,    "XLS",  "tab_12", "msxml", "xls",   "MS Excel Format (*."},
    {Html,     "HTML", "tab_11", "htm",   "html",  "HTML Format (*."},
    {Djvu,     "DjVu", "tab_10", "djvu",  "djvu",  "DjVu Format (*."},
}};

const std::array<ColorMode, 4> colorModeTable = {{
    {"Monochrome", "1"},
    {"256 colors", "8"},
    {"Grayscale",  "24g"},
    {"TrueColor",  "24"},
}};

const std::array<CompressionMethod, 6> compressionTable = {{
    // button         text        code
    {"rb_1",        "LZW",      "LZW"},
    {"rb_2",        "FAX4",     "G4"},
    {"rb_3",        "FAX3",     "G3"},
    {"rb_4",        "JPEG",     "JPEG"},
    {"rb_zip",      "ZIP",      "ZIP"},
    {"rb_packbits", "PACKBITS", "PACKBITS"},
}};
// clang-format on

QStringList modeTexts(std::initializer_list<int> rows)
{
    QStringList texts;
    for (int row : rows)
        texts << QString::fromLatin1(colorModeTable[row].text);
    return texts;
}

const QStringList &allModes()
{
    static const QStringList modes = modeTexts({0, 1, 2, 3});
    return modes;
}

const QStringList &grayAndTrueColor()
{
    static const QStringList modes = modeTexts({2, 3});
    return modes;
}

} // namespace

const std::array<Format, Count> &all()
{
    return formatTable;
}

const Format *byIndex(int index)
{
    if (index < 0 || index >= Count)
        return nullptr;
    return &formatTable[index];
}

const Format *byToken(const QString &token)
{
    for (const Format &format : formatTable) {
        if (token == QLatin1String(format.token))
            return &format;
    }
    return nullptr;
}

QString filterText(const Format &format, const QString &extension)
{
    return QLatin1String(format.filterLabel) + extension + QLatin1Char(')');
}

QString fixedRtfFilter()
{
    return QStringLiteral("RTF Format (*.rtf)");
}

namespace {

// The formats a Save As dialog offers, in the order of its list.
QList<Index> saveAsFormats(bool withDjvu, SaveAsOffer offer)
{
    QList<Index> formats = {Bmp, Png, Tiff, Jpeg, Jpeg2000, Gif, Pdf, Swf};
    if (withDjvu)
        formats << Djvu;
    formats << Rtf << Excel;
    if (offer == SaveAsOffer::SaveAsOnly)
        formats << Html;
    return formats;
}

} // namespace

QString saveAsFilterList(const Extensions &extensions, bool withDjvu, SaveAsOffer offer)
{
    QStringList filters;
    for (Index index : saveAsFormats(withDjvu, offer))
        filters << filterText(formatTable[index], extensions[index]);
    return filters.join(QLatin1String(";;"));
}

QString tokenOfSaveAsFilter(const QString &filter, const Extensions &extensions, SaveAsOffer offer)
{
    // The labels differ, so at most one filter matches and the order of the tests cannot matter.
    for (Index index : saveAsFormats(true, offer)) {
        const Format &format = formatTable[index];
        const QString text
            = index == Rtf ? fixedRtfFilter() : filterText(format, extensions[index]);
        if (filter == text)
            return QLatin1String(format.token);
    }
    return QString();
}

const std::array<ColorMode, 4> &colorModes()
{
    return colorModeTable;
}

QString colorCodeForText(const QString &text)
{
    for (const ColorMode &mode : colorModeTable) {
        if (text == QLatin1String(mode.text))
            return QString::fromLatin1(mode.code);
    }
    return QString();
}

const std::array<CompressionMethod, 6> &compressionMethods()
{
    return compressionTable;
}

ColorList colorListFor(int index, const QString &compression)
{
    ColorList list;
    switch (index) {
    case Rtf:
    case Excel:
        list.hidden = true;
        break;
    case Jpeg:
    case Jpeg2000:
    case Swf:
    case Pdf:
    case Html:
    case Djvu:
        list.items = grayAndTrueColor();
        list.selectedRow = 1;
        break;
    case Bmp:
    case Png:
        list.items = allModes();
        list.selectedRow = 3;
        list.forcedCode = QStringLiteral("24");
        break;
    case Gif:
        // GIF has no true-colour mode.
        list.items = modeTexts({0, 1, 2});
        list.selectedRow = 1;
        list.forcedCode = QStringLiteral("8");
        break;
    case Tiff:
        if (compression == QLatin1String("G4") || compression == QLatin1String("G3")) {
            list.items = modeTexts({0});
            list.selectedRow = 0;
            list.enabled = false;
            list.forcedCode = QStringLiteral("1");
        } else if (compression == QLatin1String("JPEG")) {
            list.items = grayAndTrueColor();
            list.selectedRow = 1;
        } else if (compression == QLatin1String("LZW") || compression == QLatin1String("ZIP")
            || compression == QLatin1String("PACKBITS")) {
            list.items = allModes();
            list.selectedRow = 3;
            list.forcedCode = QStringLiteral("24");
        }
        // Any other code (empty before loading) leaves the list empty and enabled.
        break;
    default:
        break;
    }
    return list;
}

} // namespace Formats
