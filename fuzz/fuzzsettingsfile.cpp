// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzzes the settings file through a real dialog's loading and saving.
#include "dialog/mainwindow.h"
#include "settings/jobsettings.h"

#include <QApplication>
#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString userFile;
QString machineFile;
QString existingFile; // stands in for the DjVu converter on half of the inputs

// Writes one settings file and gives it a modification time of its own, so that the settings
// cache never mistakes it for the file of the previous input.
void writeSettingsFile(const QString &fileName, const uint8_t *data, size_t size)
{
    static long generation = 1000000;
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();
    const timespec times[2] = {{++generation, 0}, {generation, 0}};
    utimensat(AT_FDCWD, QFile::encodeName(fileName).constData(), times, 0);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // Under TMPDIR, so that the script that runs the fuzzer can clear it away afterwards.
    const char *temporary = std::getenv("TMPDIR");
    QByteArray folder
        = QByteArray(temporary && *temporary ? temporary : "/tmp") + "/fmtask-fuzz-XXXXXX";
    if (!mkdtemp(folder.data()))
        std::abort();
    const QByteArray base(folder);
    setenv("XDG_CONFIG_HOME", (base + "/user").constData(), 1);
    setenv("XDG_CONFIG_DIRS", (base + "/machine").constData(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QDir().mkpath(QString::fromLocal8Bit(base + "/user/Tarnwick"));
    QDir().mkpath(QString::fromLocal8Bit(base + "/machine/Tarnwick"));
    userFile = QString::fromLocal8Bit(base + "/user/Tarnwick/Vellumio.conf");
    machineFile = QString::fromLocal8Bit(base + "/machine/Tarnwick/Vellumio.conf");
    existingFile = userFile;

    // The fuzzer's own options must not reach the toolkit's command-line parser.
    static int argc = 1;
    static char name[] = "fuzz_settings_file";
    static char *argv[] = {name, nullptr};
    new QApplication(argc, argv);
    return 0;
}

// The input becomes the user settings file; inputs whose first byte is odd are also the machine
// file, so the all-users switch and the machine-key path are reached as well.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    writeSettingsFile(userFile, data, size);
    if (size > 0 && (data[0] & 1))
        writeSettingsFile(machineFile, data, size);
    else
        QFile::remove(machineFile);

    JobSettings &job = jobSettings();
    job = JobSettings();
    job.newFileName = QStringLiteral("Document1");
    job.converterPath = size % 2 ? existingFile : QString();

    // Shown and painted, so the style draws whatever the file put into the widgets.
    MainWindow window;
    window.show();
    QCoreApplication::processEvents();
    window.saveAllSettings();
    window.close();
    return 0;
}
