// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settingsschema.h"

#include "formats/formatcatalogue.h"

namespace Settings {

namespace {

constexpr int anyPage = -1;

// clang-format off
const std::array<Entry, ValueCount> table = {{
    // value                  name                       stored form       default   written when            page
    {Format,                  "format",                  Form::Text,       "tif",    Written::EverySave,     anyPage},
    {FormatExt,               "format_ext",              Form::Text,       "LZW",    Written::PageCurrent,   Formats::Tiff},
    {QHtm,                    "q_htm",                   Form::Integer,    "100",    Written::PageCurrent,   Formats::Html},
    {QJpg,                    "q_jpg",                   Form::Integer,    "100",    Written::PageCurrent,   Formats::Jpeg},
    {QTif,                    "q_tif",                   Form::Integer,    "100",    Written::PageCurrent,   Formats::Tiff},
    {QSwf,                    "q_swf",                   Form::Integer,    "100",    Written::PageCurrent,   Formats::Swf},
    {QPdf,                    "q_pdf",                   Form::Integer,    "100",    Written::PageCurrent,   Formats::Pdf},
    {MultipageTiff,           "multipage_tiff",          Form::Flag,       "true",   Written::PageCurrent,   Formats::Tiff},
    {MultipageSwf,            "multipage_swf",           Form::Flag,       "true",   Written::PageCurrent,   Formats::Swf},
    {MultipagePdf,            "multipage_pdf",           Form::Flag,       "true",   Written::PageCurrent,   Formats::Pdf},
    {MultipageHtm,            "multipage_htm",           Form::Flag,       "true",   Written::PageCurrent,   Formats::Html},
    {MultipageDjvu,           "multipage_djvu",          Form::Flag,       "true",   Written::PageCurrent,   Formats::Djvu},
    {ExtHtm,                  "ext_htm",                 Form::Text,       "html",   Written::Never,         anyPage},
    {ExtBmp,                  "ext_bmp",                 Form::Text,       "bmp",    Written::Never,         anyPage},
    {ExtPng,                  "ext_png",                 Form::Text,       "png",    Written::Never,         anyPage},
    {ExtJpg,                  "ext_jpg",                 Form::Text,       "jpg",    Written::Never,         anyPage},
    {ExtJp2,                  "ext_jp2",                 Form::Text,       "jp2",    Written::Never,         anyPage},
    {ExtTif,                  "ext_tif",                 Form::Text,       "tif",    Written::Never,         anyPage},
    {ExtPdf,                  "ext_pdf",                 Form::Text,       "pdf",    Written::Never,         anyPage},
    {ExtSwf,                  "ext_swf",                 Form::Text,       "swf",    Written::Never,         anyPage},
    {ExtRtf,                  "ext_rtf",                 Form::Text,       "rtf",    Written::Never,         anyPage},
    {ExtGif,                  "ext_gif",                 Form::Text,       "gif",    Written::Never,         anyPage},
    {ExtDjvu,                 "ext_djvu",                Form::Text,       "djvu",   Written::Never,         anyPage},
    {ExtMsxml,                "ext_msxml",               Form::Text,       "xls",    Written::Never,         anyPage},
    {PdfText,                 "pdf_text",                Form::Flag,       "true",   Written::PageCurrent,   Formats::Pdf},
    {HtmText,                 "htm_text",                Form::Flag,       "true",   Written::PageCurrent,   Formats::Html},
    {SwfText,                 "swf_text",                Form::Flag,       "true",   Written::PageCurrent,   Formats::Swf},
    {SwfAnimate,              "swf_animate",             Form::Flag,       "false",  Written::PageCurrent,   Formats::Swf},
    {ProtectSwf,              "protect_swf",             Form::Scrambled,  nullptr,  Written::PageCurrent,   Formats::Swf},
    {BProtectSwf,             "b_protect_swf",           Form::Flag,       "false",  Written::PageCurrent,   Formats::Swf},
    {PathRead,                "path",                    Form::Text,       nullptr,  Written::Never,         anyPage},
    {PdfTitle,                "pdf_title",               Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PdfAuthor,               "pdf_author",              Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PdfSubject,              "pdf_subject",             Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PdfKeywords,             "pdf_keywords",            Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PdfCreator,              "pdf_creator",             Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PdfProducer,             "pdf_producer",            Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {LoadExtApp,              "load_ext_app",            Form::Flag,       "false",  Written::EverySave,     anyPage},
    {MailDelivery,            "Mail_Delivery",           Form::Flag,       "false",  Written::EverySave,     anyPage},
    {TcpDelivery,             "TCP_Delivery",            Form::Flag,       "false",  Written::EverySave,     anyPage},
    {FtpDelivery,             "FTP_Delivery",            Form::Flag,       "false",  Written::EverySave,     anyPage},
    {EnabledBackgroundText,   "EnabledBackgroundText",   Form::Flag,       "false",  Written::EverySave,     anyPage},
    {BackgroundEnable,        "BackgroundEnable",        Form::Flag,       "false",  Written::EverySave,     anyPage},
    {CustomNumber,            "custom_number",           Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PrefixFirstPage,         "prefix_firstpage",        Form::Flag,       "false",  Written::EverySave,     anyPage},
    {ExtractText,             "extract_text",            Form::ExactFlag,  "false",  Written::EverySave,     anyPage},
    {ImageColor,              "image_color",             Form::Text,       "24",     Written::EverySave,     anyPage},
    {PdfUserPw,               "pdf_user_pw",             Form::Scrambled,  nullptr,  Written::EverySave,     anyPage},
    {PdfOwnerPw,              "pdf_owner_pw",            Form::Scrambled,  nullptr,  Written::EverySave,     anyPage},
    {PdfProtect,              "pdf_protect",             Form::Boolean,    "false",  Written::EverySave,     anyPage},
    {PdfProtectPrint,         "pdf_protect_print",       Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectEdit,          "pdf_protect_edit",        Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectCopy,          "pdf_protect_copy",        Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectEditNotes,     "pdf_protect_editnotes",   Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectFillAndSign,   "pdf_protect_fillandsign", Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectAccessible,    "pdf_protect_accessible",  Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectAssemble,      "pdf_protect_assemble",    Form::Flag,       "false",  Written::EverySave,     anyPage},
    {PdfProtectHighPrint,     "pdf_protect_highprint",   Form::Flag,       "false",  Written::EverySave,     anyPage},
    {Style,                   "style",                   Form::Text,       nullptr,  Written::Never,         anyPage},
    {ChDialogSaveAs,          "chDialog_SaveAs",         Form::ExactFlag,  nullptr,  Written::Never,         anyPage},
    {SettingsForAllUsers,     "settings_for_all_users",  Form::Flag,       nullptr,  Written::Never,         anyPage},
    {IsAbort,                 "isabort",                 Form::Flag,       nullptr,  Written::EverySave,     anyPage},
    {NewFileName,             "newfilename",             Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {PathWritten,             "Path",                    Form::Text,       nullptr,  Written::EverySave,     anyPage},
    {ChDialog,                "chDialog",                Form::Flag,       nullptr,  Written::WhenUnchecked, anyPage},
}};

// The order in which each format page has always written its values.
const std::array<QList<Value>, Formats::Count> &pageTable()
{
    static const std::array<QList<Value>, Formats::Count> pages = {{
        /* BMP  */ {Format},
        /* PNG  */ {Format},
        /* JPEG */ {QJpg, Format},
        /* JP2  */ {Format},
        /* TIFF */ {QTif, FormatExt, MultipageTiff, Format},
        /* GIF  */ {Format},
        /* SWF  */ {QSwf, MultipageSwf, SwfText, SwfAnimate, BProtectSwf, ProtectSwf, Format},
        /* PDF  */ {QPdf, MultipagePdf, PdfText, Format},
        /* RTF  */ {Format},
        /* XLS  */ {Format},
        /* HTML */ {QHtm, Format, MultipageHtm, HtmText},
        /* DjVu */ {Format, MultipageDjvu},
    }};
    return pages;
}
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

const QList<Value> &pageValues(int index)
{
    static const QList<Value> none;
    if (index < 0 || index >= Formats::Count)
        return none;
    return pageTable()[index];
}

} // namespace Settings
