// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_SETTINGSSCHEMA_H
#define FMTASK_SETTINGSSCHEMA_H

#include <QList>
#include <QString>
#include <QVariant>

#include <array>

// Every value the dialog and the driver share in a settings key: its name, how it is stored, its
// default when absent and when the dialog writes it. The names and stored forms are read by the
// driver, so they are kept exactly, odd spellings included.
namespace Settings {

enum Value {
    Format,
    FormatExt,
    QHtm,
    QJpg,
    QTif,
    QSwf,
    QPdf,
    MultipageTiff,
    MultipageSwf,
    MultipagePdf,
    MultipageHtm,
    MultipageDjvu,
    ExtHtm,
    ExtBmp,
    ExtPng,
    ExtJpg,
    ExtJp2,
    ExtTif,
    ExtPdf,
    ExtSwf,
    ExtRtf,
    ExtGif,
    ExtDjvu,
    ExtMsxml,
    PdfText,
    HtmText,
    SwfText,
    SwfAnimate,
    ProtectSwf,
    BProtectSwf,
    PathRead,
    PdfTitle,
    PdfAuthor,
    PdfSubject,
    PdfKeywords,
    PdfCreator,
    PdfProducer,
    LoadExtApp,
    MailDelivery,
    TcpDelivery,
    FtpDelivery,
    EnabledBackgroundText,
    BackgroundEnable,
    CustomNumber,
    PrefixFirstPage,
    ExtractText,
    ImageColor,
    PdfUserPw,
    PdfOwnerPw,
    PdfProtect,
    PdfProtectPrint,
    PdfProtectEdit,
    PdfProtectCopy,
    PdfProtectEditNotes,
    PdfProtectFillAndSign,
    PdfProtectAccessible,
    PdfProtectAssemble,
    PdfProtectHighPrint,
    Style,
    ChDialogSaveAs,
    SettingsForAllUsers,
    IsAbort,
    NewFileName,
    PathWritten,
    ChDialog,
    ValueCount
};

enum class Form {
    Text,
    Flag, // "true"/"false", read back with the string-to-boolean conversion
    ExactFlag, // "true"/"false", only the exact text "true" counts on reading
    Integer,
    Boolean, // handed to the store as a typed boolean
    Scrambled, // a password after scramblePassword
};

enum class Written {
    Never,
    EverySave,
    PageCurrent, // only when the tab of `page` is current at saving
    WhenUnchecked, // only as "false", when its check box is unchecked
};

struct Entry
{
    Value value;
    const char *name;
    Form form;
    const char *defaultText; // nullptr: no default, the read gives an invalid value
    Written written;
    int page; // format index for Written::PageCurrent, else -1
};

// The whole table, in the order of Value.
const std::array<Entry, ValueCount> &entries();

const Entry &entry(Value value);
QString name(Value value);

// The default handed to the store on reading, typed by the stored form (an integer for
// integers, a boolean for flags, text otherwise); invalid where there is none.
QVariant defaultValue(Value value);

// The per-format values of a format page in the order in which saving writes them, "format"
// among them; empty outside 0..11.
const QList<Value> &pageValues(int index);

} // namespace Settings

#endif // FMTASK_SETTINGSSCHEMA_H
