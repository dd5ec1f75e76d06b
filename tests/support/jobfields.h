// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_JOBFIELDS_H
#define FMTASK_TESTS_JOBFIELDS_H

#include "settings/jobsettings.h"
#include "tests/support/formstate.h"

// The job values by their names in JobSettings ("pdf.permissions.accessible",
// "extensions[Formats::Html]"), as texts ("true"/"false" for flags), so that a table can name
// the job value a stored value feeds as it names a widget.
namespace JobFields {

struct Field
{
    const char *name;
    QString *(*text)(JobSettings &);
    bool *(*flag)(JobSettings &);
};

// clang-format off
#define FMTASK_TEXT(member) {#member, [](JobSettings &job) { return &job.member; }, nullptr}
#define FMTASK_FLAG(member) {#member, nullptr, [](JobSettings &job) { return &job.member; }}
inline const Field fields[] = {
    FMTASK_TEXT(formatToken), FMTASK_TEXT(outputFolder), FMTASK_TEXT(newFileName),
    FMTASK_TEXT(colorCode), FMTASK_TEXT(customNumber), FMTASK_TEXT(selectedFilter),
    FMTASK_TEXT(extensions[Formats::Bmp]), FMTASK_TEXT(extensions[Formats::Png]),
    FMTASK_TEXT(extensions[Formats::Jpeg]), FMTASK_TEXT(extensions[Formats::Jpeg2000]),
    FMTASK_TEXT(extensions[Formats::Tiff]), FMTASK_TEXT(extensions[Formats::Gif]),
    FMTASK_TEXT(extensions[Formats::Swf]), FMTASK_TEXT(extensions[Formats::Pdf]),
    FMTASK_TEXT(extensions[Formats::Rtf]), FMTASK_TEXT(extensions[Formats::Excel]),
    FMTASK_TEXT(extensions[Formats::Html]), FMTASK_TEXT(extensions[Formats::Djvu]),
    FMTASK_TEXT(pdf.title), FMTASK_TEXT(pdf.author), FMTASK_TEXT(pdf.subject),
    FMTASK_TEXT(pdf.keywords), FMTASK_TEXT(pdf.creator), FMTASK_TEXT(pdf.producer),
    FMTASK_TEXT(pdf.userPassword), FMTASK_TEXT(pdf.ownerPassword), FMTASK_FLAG(pdf.protect),
    FMTASK_FLAG(pdf.permissions.print), FMTASK_FLAG(pdf.permissions.edit),
    FMTASK_FLAG(pdf.permissions.copy), FMTASK_FLAG(pdf.permissions.editNotes),
    FMTASK_FLAG(pdf.permissions.fillAndSign), FMTASK_FLAG(pdf.permissions.accessible),
    FMTASK_FLAG(pdf.permissions.assemble), FMTASK_FLAG(pdf.permissions.highPrint),
    FMTASK_FLAG(allUsers), FMTASK_FLAG(saveAsOnly),
};
#undef FMTASK_TEXT
#undef FMTASK_FLAG
// clang-format on

// Every job value of the process by name.
inline FormState all()
{
    FormState state;
    for (const Field &field : fields)
        state.insert(QLatin1String(field.name),
            field.text ? *field.text(jobSettings())
                       : QVariant(*field.flag(jobSettings())).toString());
    return state;
}

// Sets the job value of that name; returns false when there is none.
inline bool set(const QString &name, const QString &value)
{
    for (const Field &field : fields) {
        if (name == QLatin1String(field.name)) {
            field.text ? void(*field.text(jobSettings()) = value)
                       : void(*field.flag(jobSettings()) = value == QLatin1String("true"));
            return true;
        }
    }
    return false;
}

} // namespace JobFields

#endif // FMTASK_TESTS_JOBFIELDS_H
