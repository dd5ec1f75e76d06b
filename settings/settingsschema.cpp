// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of the values shared with the driver: names, stored forms, defaults, what each
// is bound to, and the orders of loading and saving.
#include "settings/settingsschema.h"

#include "formats/formatcatalogue.h"

#include <algorithm>

namespace Settings {

namespace {

// Readable names for the binding column.
constexpr Binding shownIn(const char *widget)
{
    return Binding(widget);
}
template<class Member>
constexpr Binding job(Member JobSettings::*member)
{
    return Binding(member);
}
template<class Member>
constexpr Binding pdf(Member PdfSettings::*member)
{
    return Binding(member);
}
constexpr Binding permission(bool PdfPermissions::*flag)
{
    return Binding(flag);
}
constexpr Binding extensionOf(Formats::Index format)
{
    return Binding(format);
}
constexpr Binding none = {};

using F = Form;
using L = Loading;
using W = Written;
using J = JobSettings;
using P = PdfSettings;
using R = PdfPermissions;
namespace Page = Formats;

// Rows in the order loading reads them. Within a save the values of the current page come first,
// by rank 10 to 22 (each page has always written "format" at rank 20, before some of its values
// and after others), then those of every save. Driver contract: names, spellings, forms and both
// orders are what the driver and its older versions read.
// clang-format off
const std::array<Entry, ValueCount> table = {{
    // value                name                       form          default  bound to                                    loading           written           page            rank
    {Format,                "format",                  F::Text,      "tif",   job(&J::formatToken),                       L::OwnStep,       W::PageCurrent,   anyPage,        20},
    {FormatExt,             "format_ext",              F::Text,      "LZW",   none,                                       L::OwnStep,       W::PageCurrent,   Page::Tiff,     11},
    {QHtm,                  "q_htm",                   F::Integer,   "100",   shownIn("spb_q_htm"),                       L::Bound,         W::PageCurrent,   Page::Html,     10},
    {QJpg,                  "q_jpg",                   F::Integer,   "100",   shownIn("spb_q_jpg"),                       L::Bound,         W::PageCurrent,   Page::Jpeg,     10},
    {QTif,                  "q_tif",                   F::Integer,   "100",   shownIn("spb_q_tif"),                       L::Bound,         W::PageCurrent,   Page::Tiff,     10},
    {QSwf,                  "q_swf",                   F::Integer,   "100",   shownIn("spb_q_swf"),                       L::Bound,         W::PageCurrent,   Page::Swf,      10},
    {QPdf,                  "q_pdf",                   F::Integer,   "100",   shownIn("spb_q_pdf"),                       L::Bound,         W::PageCurrent,   Page::Pdf,      10},
    {MultipageTiff,         "multipage_tiff",          F::Flag,      "true",  shownIn("ch_multipage_tiff"),               L::Bound,         W::PageCurrent,   Page::Tiff,     12},
    {MultipageSwf,          "multipage_swf",           F::Flag,      "true",  shownIn("ch_multipage_swf"),                L::Bound,         W::PageCurrent,   Page::Swf,      11},
    {MultipagePdf,          "multipage_pdf",           F::Flag,      "true",  shownIn("ch_multipage_pdf"),                L::Bound,         W::PageCurrent,   Page::Pdf,      11},
    {MultipageHtm,          "multipage_htm",           F::Flag,      "true",  shownIn("ch_multipage_htm"),                L::Bound,         W::PageCurrent,   Page::Html,     21},
    {MultipageDjvu,         "multipage_djvu",          F::Flag,      "true",  shownIn("ch_multipage_djvu"),               L::WithConverter, W::PageCurrent,   Page::Djvu,     21},
    {ExtHtm,                "ext_htm",                 F::Text,      "html",  extensionOf(Page::Html),                    L::Bound,         W::Never,         anyPage,        0},
    {ExtBmp,                "ext_bmp",                 F::Text,      "bmp",   extensionOf(Page::Bmp),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtPng,                "ext_png",                 F::Text,      "png",   extensionOf(Page::Png),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtJpg,                "ext_jpg",                 F::Text,      "jpg",   extensionOf(Page::Jpeg),                    L::Bound,         W::Never,         anyPage,        0},
    {ExtJp2,                "ext_jp2",                 F::Text,      "jp2",   extensionOf(Page::Jpeg2000),                L::Bound,         W::Never,         anyPage,        0},
    {ExtTif,                "ext_tif",                 F::Text,      "tif",   extensionOf(Page::Tiff),                    L::Bound,         W::Never,         anyPage,        0},
    {ExtPdf,                "ext_pdf",                 F::Text,      "pdf",   extensionOf(Page::Pdf),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtSwf,                "ext_swf",                 F::Text,      "swf",   extensionOf(Page::Swf),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtRtf,                "ext_rtf",                 F::Text,      "rtf",   extensionOf(Page::Rtf),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtGif,                "ext_gif",                 F::Text,      "gif",   extensionOf(Page::Gif),                     L::Bound,         W::Never,         anyPage,        0},
    {ExtDjvu,               "ext_djvu",                F::Text,      "djvu",  extensionOf(Page::Djvu),                    L::Bound,         W::Never,         anyPage,        0},
    {ExtMsxml,              "ext_msxml",               F::Text,      "xls",   extensionOf(Page::Excel),                   L::Bound,         W::Never,         anyPage,        0},
    {PdfText,               "pdf_text",                F::Flag,      "true",  shownIn("rb_pdf_text"),                     L::Bound,         W::PageCurrent,   Page::Pdf,      12},
    {HtmText,               "htm_text",                F::Flag,      "true",  shownIn("rb_htm_text"),                     L::Bound,         W::PageCurrent,   Page::Html,     22},
    {SwfText,               "swf_text",                F::Flag,      "true",  shownIn("rb_swf_text"),                     L::Bound,         W::PageCurrent,   Page::Swf,      12},
    {SwfAnimate,            "swf_animate",             F::Flag,      "false", shownIn("ch_swf_animate"),                  L::OneSided,      W::PageCurrent,   Page::Swf,      13},
    {ProtectSwf,            "protect_swf",             F::Scrambled, nullptr, shownIn("le_swf_protect"),                  L::Bound,         W::PageCurrent,   Page::Swf,      15},
    {BProtectSwf,           "b_protect_swf",           F::Flag,      "false", shownIn("ch_swf_protect"),                  L::OwnStep,       W::PageCurrent,   Page::Swf,      14},
    {PathRead,              "path",                    F::Text,      nullptr, job(&J::outputFolder),                      L::OwnStep,       W::Never,         anyPage,        0},
    {PdfTitle,              "pdf_title",               F::Text,      nullptr, pdf(&P::title),                             L::Bound,         W::Always,        anyPage,        42},
    {PdfAuthor,             "pdf_author",              F::Text,      nullptr, pdf(&P::author),                            L::Bound,         W::Always,        anyPage,        43},
    {PdfSubject,            "pdf_subject",             F::Text,      nullptr, pdf(&P::subject),                           L::Bound,         W::Always,        anyPage,        44},
    {PdfKeywords,           "pdf_keywords",            F::Text,      nullptr, pdf(&P::keywords),                          L::Bound,         W::Always,        anyPage,        45},
    {PdfCreator,            "pdf_creator",             F::Text,      nullptr, pdf(&P::creator),                           L::Bound,         W::Always,        anyPage,        46},
    {PdfProducer,           "pdf_producer",            F::Text,      nullptr, pdf(&P::producer),                          L::Bound,         W::Always,        anyPage,        47},
    {LoadExtApp,            "load_ext_app",            F::Flag,      "false", shownIn("ch_exe"),                          L::Bound,         W::Always,        anyPage,        30},
    {MailDelivery,          "Mail_Delivery",           F::Flag,      "false", shownIn("ch_email"),                        L::Bound,         W::Always,        anyPage,        31},
    {TcpDelivery,           "TCP_Delivery",            F::Flag,      "false", shownIn("ch_tcp"),                          L::Bound,         W::Always,        anyPage,        32},
    {FtpDelivery,           "FTP_Delivery",            F::Flag,      "false", shownIn("ch_ftp"),                          L::Bound,         W::Always,        anyPage,        33},
    {EnabledBackgroundText, "EnabledBackgroundText",   F::Flag,      "false", shownIn("ch_text"),                         L::Bound,         W::Always,        anyPage,        35},
    {BackgroundEnable,      "BackgroundEnable",        F::Flag,      "false", shownIn("ch_image"),                        L::Bound,         W::Always,        anyPage,        36},
    {CustomNumber,          "custom_number",           F::Text,      nullptr, shownIn("le_pr_custom"),                    L::OwnStep,       W::Always,        anyPage,        37},
    {PrefixFirstPage,       "prefix_firstpage",        F::Flag,      "false", shownIn("rb_pefix_1"),                      L::OwnStep,       W::Always,        anyPage,        38},
    {ExtractText,           "extract_text",            F::ExactFlag, "false", shownIn("cd_extract_text"),                 L::Bound,         W::Always,        anyPage,        34},
    {ImageColor,            "image_color",             F::Text,      "24",    job(&J::colorCode),                         L::OwnStep,       W::Always,        anyPage,        39},
    {PdfUserPw,             "pdf_user_pw",             F::Scrambled, nullptr, pdf(&P::userPassword),                      L::Bound,         W::Always,        anyPage,        40},
    {PdfOwnerPw,            "pdf_owner_pw",            F::Scrambled, nullptr, pdf(&P::ownerPassword),                     L::Bound,         W::Always,        anyPage,        41},
    {PdfProtect,            "pdf_protect",             F::Boolean,   "false", pdf(&P::protect),                           L::Bound,         W::Always,        anyPage,        48},
    {PdfProtectPrint,       "pdf_protect_print",       F::Flag,      "false", permission(&R::print),                      L::Bound,         W::Always,        anyPage,        49},
    {PdfProtectEdit,        "pdf_protect_edit",        F::Flag,      "false", permission(&R::edit),                       L::Bound,         W::Always,        anyPage,        50},
    {PdfProtectCopy,        "pdf_protect_copy",        F::Flag,      "false", permission(&R::copy),                       L::Bound,         W::Always,        anyPage,        51},
    {PdfProtectEditNotes,   "pdf_protect_editnotes",   F::Flag,      "false", permission(&R::editNotes),                  L::Bound,         W::Always,        anyPage,        52},
    {PdfProtectFillAndSign, "pdf_protect_fillandsign", F::Flag,      "false", permission(&R::fillAndSign),                L::Bound,         W::Always,        anyPage,        53},
    {PdfProtectAccessible,  "pdf_protect_accessible",  F::Flag,      "false", permission(&R::accessible),                 L::Bound,         W::Always,        anyPage,        54},
    {PdfProtectAssemble,    "pdf_protect_assemble",    F::Flag,      "false", permission(&R::assemble),                   L::Bound,         W::Always,        anyPage,        55},
    {PdfProtectHighPrint,   "pdf_protect_highprint",   F::Flag,      "false", permission(&R::highPrint),                  L::Bound,         W::Always,        anyPage,        56},
    {Style,                 "style",                   F::Text,      nullptr, none,                                       L::OwnStep,       W::Never,         anyPage,        0},
    {ChDialogSaveAs,        "chDialog_SaveAs",         F::ExactFlag, nullptr, job(&J::saveAsOnly),                        L::OneSided,      W::Never,         anyPage,        0},
    {SettingsForAllUsers,   "settings_for_all_users",  F::Flag,      nullptr, job(&J::allUsers),                          L::NotRead,       W::Never,         anyPage,        0},
    {IsAbort,               "isabort",                 F::Flag,      nullptr, none,                                       L::NotRead,       W::Exchange,      anyPage,        1},
    {NewFileName,           "newfilename",             F::Text,      nullptr, job(&J::newFileName),                       L::NotRead,       W::Exchange,      anyPage,        2},
    {PathWritten,           "Path",                    F::Text,      nullptr, job(&J::outputFolder),                      L::NotRead,       W::Exchange,      anyPage,        3},
    {ChDialog,              "chDialog",                F::Flag,      nullptr, shownIn("cd_dialog"),                       L::NotRead,       W::WhenUnchecked, anyPage,        4},
}};
// clang-format on

} // namespace

const std::array<Entry, ValueCount> &entries()
{
    return table;
}

const Entry &entry(Value value)
{
    return table[value];
}

QString name(Value value)
{
    return QString::fromLatin1(table[value].name);
}

QVariant defaultValue(Value value)
{
    const Entry &row = table[value];
    if (!row.defaultText)
        return QVariant();
    const QString text = QString::fromLatin1(row.defaultText);
    switch (row.form) {
    case Form::Integer:
        return text.toInt();
    case Form::Flag:
    case Form::Boolean:
        return text == QLatin1String("true");
    case Form::Text:
    case Form::ExactFlag:
    case Form::Scrambled:
        break;
    }
    return text;
}

const QList<const Entry *> &writeOrder()
{
    static const QList<const Entry *> order = [] {
        QList<const Entry *> rows;
        for (const Entry &row : table) {
            if (row.written != Written::Never && row.written != Written::Exchange)
                rows << &row;
        }
        std::stable_sort(rows.begin(), rows.end(),
            [](const Entry *a, const Entry *b) { return a->writeRank < b->writeRank; });
        return rows;
    }();
    return order;
}

bool writtenOnPage(const Entry &entry, int page)
{
    switch (entry.written) {
    case Written::PageCurrent:
        return entry.page == anyPage ? Formats::byIndex(page) != nullptr : entry.page == page;
    case Written::Never:
        return false;
    case Written::Exchange:
    case Written::Always:
    case Written::WhenUnchecked:
        break;
    }
    return true;
}

} // namespace Settings
