// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_JOBFIXTURE_H
#define FMTASK_TESTS_JOBFIXTURE_H

#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

// One print job in a temporary folder: both settings keys redirected there, fresh job values,
// and optionally a DjVu converter beside the "program".
struct JobFixture
{
    JobFixture()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir.filePath("user"));
        QSettings::setPath(
            QSettings::NativeFormat, QSettings::SystemScope, dir.filePath("machine"));
        jobSettings() = JobSettings();
        jobSettings().newFileName = QStringLiteral("Document1");
    }

    QString path(const QString &relative) const { return dir.filePath(relative); }
    QString userFile() const { return path("user/Tarnwick/Vellumio.conf"); }
    QString machineFile() const { return path("machine/Tarnwick/Vellumio.conf"); }

    // Writes a file, such as a key file as the driver or an earlier job left it.
    void writeFile(const QString &file, const QByteArray &ini) const
    {
        QDir().mkpath(file.section(QLatin1Char('/'), 0, -2));
        QFile out(file);
        out.open(QIODevice::WriteOnly) && out.write(ini) == ini.size();
    }

    static QByteArray bytesOf(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    static QString valueOf(const QString &file, const QString &name)
    {
        return QSettings(file, QSettings::IniFormat).value(name).toString();
    }

    // Creates the main window, with or without the DjVu converter present.
    std::unique_ptr<MainWindow> createWindow(bool converter)
    {
        jobSettings().converterPath = path("dxconv");
        if (converter)
            writeFile(path("dxconv"), QByteArray());
        return std::make_unique<MainWindow>();
    }

    QTemporaryDir dir;
};

#endif // FMTASK_TESTS_JOBFIXTURE_H
