// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_SETTINGSSCHEMA_H
#define FMTASK_SETTINGSSCHEMA_H

#include "settings/jobsettings.h"

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

// How loading treats a value, in the order of the table.
enum class Loading {
    Bound, // into what it is bound to
    OneSided, // only ever switched on: a stored "false" leaves the binding as it was
    WithConverter, // into its binding only when the DjVu converter is there
    OwnStep, // by a step of its own in the loading code
    NotRead, // read elsewhere, or never: values for the driver
};

enum class Written {
    Never,
    Exchange, // with the job's outcome, at the start of every save
    Always,
    PageCurrent, // only when the tab of `page` is current at saving (any page 0..11 for anyPage)
    WhenUnchecked, // only as "false", when its check box is unchecked
};

constexpr int anyPage = -1;

// What a value is shown in or kept in while the dialog runs: a widget of the main form (by
// object name, property "checked", "value" or "text" by the stored form), or a job value.
struct Binding
{
    const char *widget = nullptr;
    QString JobSettings::*jobText = nullptr;
    bool JobSettings::*jobFlag = nullptr;
    QString PdfSettings::*pdfText = nullptr;
    bool PdfSettings::*pdfFlag = nullptr;
    bool PdfPermissions::*permission = nullptr;
    int extensionOf = -1; // a format index: its stored file extension

    constexpr Binding() = default;
    constexpr Binding(const char *w)
        : widget(w)
    { }
    constexpr Binding(QString JobSettings::*text)
        : jobText(text)
    { }
    constexpr Binding(bool JobSettings::*flag)
        : jobFlag(flag)
    { }
    constexpr Binding(QString PdfSettings::*text)
        : pdfText(text)
    { }
    constexpr Binding(bool PdfSettings::*flag)
        : pdfFlag(flag)
    { }
    constexpr Binding(bool PdfPermissions::*flag)
        : permission(flag)
    { }
    constexpr explicit Binding(Formats::Index format)
        : extensionOf(format)
    { }

    bool isWidget() const { return widget != nullptr; }
};

struct Entry
{
    Value value;
    const char *name;
    Form form;
    const char *defaultText; // nullptr: no default, the read gives an invalid value
    Binding binding;
    Loading loading;
    Written written;
    int page; // format index for Written::PageCurrent, else anyPage
    int writeRank; // place among the writes of a save, smaller first
};

// The whole table, in the order in which loading reads it.
const std::array<Entry, ValueCount> &entries();

const Entry &entry(Value value);
QString name(Value value);

// The default handed to the store on reading, typed by the stored form (an integer for
// integers, a boolean for flags, text otherwise); invalid where there is none.
QVariant defaultValue(Value value);

// The values a save writes itself (the exchange values aside), in the order it writes them.
const QList<const Entry *> &writeOrder();

// Whether a save with the tab `page` current writes the value.
bool writtenOnPage(const Entry &entry, int page);

} // namespace Settings

#endif // FMTASK_SETTINGSSCHEMA_H
