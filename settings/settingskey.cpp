// SPDX-License-Identifier: GPL-3.0-or-later
// One settings key on disk: names without regard to case, owner-only and atomic writes.
#include "settings/settingskey.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

SettingsKey::WriteObserver writeObserver = nullptr;

const QString organisation = QStringLiteral("Tarnwick");
const QString application = QStringLiteral("Vellumio");

QSettings::Scope qtScope(SettingsScope scope)
{
    return scope == SettingsScope::Machine ? QSettings::SystemScope : QSettings::UserScope;
}

#ifndef Q_OS_WIN
// The file of a key, found without reading it: the organisation's own settings object names the
// folder.
QString keyFilePath(SettingsScope scope)
{
    const QSettings organisationKey(QSettings::NativeFormat, qtScope(scope), organisation);
    return QFileInfo(organisationKey.fileName()).path() + QLatin1Char('/') + organisation
        + QLatin1Char('/') + application + QLatin1String(".conf");
}
#endif

// Opens a key. Opening reads its file at once, and reading a named pipe or a device would wait
// for ever, so a key whose file is anything but a regular file is opened empty and unwritable.
std::unique_ptr<QSettings> openKey(SettingsScope scope)
{
#ifndef Q_OS_WIN
    const QFileInfo keyFile(keyFilePath(scope));
    if (keyFile.exists() && !keyFile.isFile())
        return std::make_unique<QSettings>(QString(), QSettings::IniFormat);
#endif
    return std::make_unique<QSettings>(
        QSettings::NativeFormat, qtScope(scope), organisation, application);
}

constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr QFileDevice::Permissions groupAndOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup
    | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther
    | QFileDevice::ExeOther;

} // namespace

SettingsKey::SettingsKey(SettingsScope scope)
    : m_scope(scope)
    , m_settings(openKey(scope))
{
    // The user key must never show values of the all-users key.
    m_settings->setFallbacksEnabled(false);
}

SettingsKey::~SettingsKey() = default;

QVariant SettingsKey::value(Settings::Value value) const
{
    return this->value(Settings::name(value), Settings::defaultValue(value));
}

QString SettingsKey::text(Settings::Value value) const
{
    return this->value(value).toString();
}

bool SettingsKey::flag(Settings::Value value) const
{
    // Driver contract: some switches count only when they hold exactly "true".
    if (Settings::entry(value).form == Settings::Form::ExactFlag)
        return text(value) == QLatin1String("true");
    return this->value(value).toBool();
}

int SettingsKey::integer(Settings::Value value) const
{
    return this->value(value).toInt();
}

void SettingsKey::setText(Settings::Value value, const QString &text)
{
    setValue(Settings::name(value), text);
}

void SettingsKey::setFlag(Settings::Value value, bool on)
{
    if (Settings::entry(value).form == Settings::Form::Boolean)
        setValue(Settings::name(value), on);
    else
        setValue(Settings::name(value), on ? QStringLiteral("true") : QStringLiteral("false"));
}

void SettingsKey::setInteger(Settings::Value value, int number)
{
    setValue(Settings::name(value), number);
}

QVariant SettingsKey::value(const QString &name, const QVariant &defaultValue) const
{
    const QString stored = storedName(name);
    if (stored.isEmpty())
        return defaultValue;
    return m_settings->value(stored, defaultValue);
}

void SettingsKey::setValue(const QString &name, const QVariant &value)
{
    if (writeObserver)
        writeObserver(m_scope, name, value);
    prepareFileForWriting();

    indexStoredNames();
    const QString fold = name.toLower();
    const QStringList spellings = m_namesByFold.values(fold);
    for (const QString &other : spellings) {
        if (other != name)
            m_settings->remove(other);
    }
    m_namesByFold.remove(fold);
    m_namesByFold.insert(fold, name);
    m_settings->setValue(name, value);
}

QString SettingsKey::fileName(SettingsScope scope)
{
#ifdef Q_OS_WIN
    const QSettings settings(QSettings::NativeFormat, qtScope(scope), organisation, application);
    return settings.fileName();
#else
    return keyFilePath(scope);
#endif
}

void SettingsKey::setWriteObserver(WriteObserver observer)
{
    writeObserver = observer;
}

QString SettingsKey::storedName(const QString &name) const
{
    if (m_settings->contains(name))
        return name;
    indexStoredNames();
    return m_namesByFold.value(name.toLower());
}

void SettingsKey::indexStoredNames() const
{
    if (m_namesIndexed)
        return;
    m_namesIndexed = true;
    const QStringList stored = m_settings->allKeys();
    for (const QString &key : stored)
        m_namesByFold.insert(key.toLower(), key);
}

void SettingsKey::prepareFileForWriting()
{
#ifdef Q_OS_WIN
    // The registry key is guarded by its own access rights.
    m_filePrepared = true;
#endif
    // The user key holds the scrambled passwords: only its owner may read it.
    if (m_filePrepared || m_scope != SettingsScope::User)
        return;
    m_filePrepared = true;
    const QString path = m_settings->fileName();
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    if (!info.exists()) {
        QDir().mkpath(info.absolutePath());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly))
            file.close();
    } else if (info.isFile() && (info.permissions() & groupAndOthers)) {
        QFile::setPermissions(path, info.permissions() & ~groupAndOthers);
    }
}
