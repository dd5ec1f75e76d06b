// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_FORMATCATALOGUE_H
#define FMTASK_FORMATCATALOGUE_H

#include <QString>
#include <QStringList>

#include <array>

// The twelve output formats of the dialog. A format is chosen by the page of the tab widget, so
// the format index is the tab position as the form builds it; the token is what the driver reads.
namespace Formats {

enum Index {
    Bmp = 0,
    Png = 1,
    Jpeg = 2,
    Jpeg2000 = 3,
    Tiff = 4,
    Gif = 5,
    Swf = 6,
    Pdf = 7,
    Rtf = 8,
    Excel = 9,
    Html = 10,
    Djvu = 11,
    Count = 12
};

struct Format
{
    Index index;
    const char *tabText; // text of the tab, translated in the main window's context
    const char *page; // object name of the tab page
    const char *token; // stored in the value "format"
    const char *defaultExtension; // its default, without the dot
    const char *filterLabel; // file-dialog filter, completed by extension and ")"
};

// All formats in tab order.
const std::array<Format, Count> &all();

// The format at a tab index, or nullptr outside 0..11.
const Format *byIndex(int index);

// The format of a stored token (exact, case-sensitive), or nullptr.
const Format *byToken(const QString &token);

// A filter text such as "PDF Format (*.pdf)".
QString filterText(const Format &format, const QString &extension);

// The fixed RTF filter the file dialogs compare with, whatever the RTF extension setting holds.
QString fixedRtfFilter();

// The stored file extension of every format, by index.
using Extensions = std::array<QString, Count>;

// Which Save As a filter list is for. Driver contract: the main dialog's leaves HTML out, the
// save-as-only dialog's offers it last.
enum class SaveAsOffer { MainDialog, SaveAsOnly };

// The filters of a Save As dialog joined by ";;", in their own order rather than the page order:
// BMP, PNG, TIFF, JPEG, JPEG2000, GIF, PDF, SWF, DjVu (only with the converter), RTF, MS Excel,
// then HTML for the save-as-only dialog.
QString saveAsFilterList(const Extensions &extensions, bool withDjvu, SaveAsOffer offer);

// The token of the filter chosen in a Save As dialog; empty when no offered filter matches.
// Driver contract: RTF is recognised only by its fixed text, so another RTF extension yields no
// format.
QString tokenOfSaveAsFilter(const QString &filter, const Extensions &extensions, SaveAsOffer offer);

// Colour modes and the colour code each one selects ("1", "8", "24g", "24").
struct ColorMode
{
    const char *text;
    const char *code;
};
const std::array<ColorMode, 4> &colorModes();

// The colour code of an item text of the colour list; empty for any other text.
QString colorCodeForText(const QString &text);

// TIFF compression methods: radio button, the text it shows and the code stored in "format_ext".
struct CompressionMethod
{
    const char *button;
    const char *text;
    const char *code;
};
const std::array<CompressionMethod, 6> &compressionMethods();

// What the colour list shows for a page. `hidden` pages leave the list untouched; otherwise the
// list is cleared and refilled with `items`, `selectedRow` is selected when the list is not empty,
// and the code is forced when `forcedCode` is not empty.
struct ColorList
{
    bool hidden = false;
    bool enabled = true;
    QStringList items;
    int selectedRow = -1;
    QString forcedCode;
};
ColorList colorListFor(int index, const QString &compression);

} // namespace Formats

#endif // FMTASK_FORMATCATALOGUE_H
