// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_SETTINGSKEY_H
#define FMTASK_SETTINGSKEY_H

#include "settings/settingsschema.h"
#include "settings/settingsscope.h"

#include <QHash>
#include <QSettings>
#include <QString>
#include <QVariant>

#include <memory>

// One opened settings key: the per-user or the all-users store of the driver. Value names are
// matched without regard to case, as the registry always did ("path" finds "Path"), and a write
// replaces every stored name that differs only in case. Writes are committed when the key is
// destroyed; a key that cannot be written loses them silently.
class SettingsKey
{
public:
    explicit SettingsKey(SettingsScope scope);
    ~SettingsKey();

    SettingsKey(const SettingsKey &) = delete;
    SettingsKey &operator=(const SettingsKey &) = delete;

    SettingsScope scope() const { return m_scope; }

    // A value of the table read with its default.
    QVariant value(Settings::Value value) const;
    QString text(Settings::Value value) const;
    // "false" in any case, "0" and empty are false; an exact flag is true only as "true"
    bool flag(Settings::Value value) const;
    int integer(Settings::Value value) const;

    // Writes a value in its stored form: flags as "true"/"false", typed booleans as booleans.
    void setText(Settings::Value value, const QString &text);
    void setFlag(Settings::Value value, bool on);
    void setInteger(Settings::Value value, int number);

    // Any name, for values outside the table.
    QVariant value(const QString &name, const QVariant &defaultValue) const;
    void setValue(const QString &name, const QVariant &value);

    // The file behind a key on this platform.
    static QString fileName(SettingsScope scope);

    // Called with every write before it is handed to the store, so tests can check the order of
    // writes; nullptr (the default) records nothing.
    using WriteObserver = void (*)(SettingsScope scope, const QString &name, const QVariant &value);
    static void setWriteObserver(WriteObserver observer);

private:
    QString storedName(const QString &name) const;
    void indexStoredNames() const;
    void prepareFileForWriting();

    SettingsScope m_scope;
    std::unique_ptr<QSettings> m_settings;
    // Stored names by their lower-case form, built when first needed; a file edited by hand may
    // hold several spellings of one name.
    mutable QMultiHash<QString, QString> m_namesByFold;
    mutable bool m_namesIndexed = false;
    bool m_filePrepared = false;
};

#endif // FMTASK_SETTINGSKEY_H
