#ifndef FMTASK_TESTS_RELIABILITYFIXTURE_H
#define FMTASK_TESTS_RELIABILITYFIXTURE_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

#include <sys/stat.h>

// A temporary home for one test: the user and machine settings folders, an output folder, and
// helper processes started with the settings redirected there.
class ReliabilityFixture
{
public:
    ReliabilityFixture()
    {
        QDir().mkpath(userFolder());
        QDir().mkpath(machineFolder());
        QDir().mkpath(outputFolder());
    }

    bool isValid() const { return dir.isValid(); }
    QString path(const QString &relative) const { return dir.filePath(relative); }
    QString userFolder() const { return path(QStringLiteral("user/Tarnwick")); }
    QString machineFolder() const { return path(QStringLiteral("machine/Tarnwick")); }
    QString userFile() const { return userFolder() + QStringLiteral("/Vellumio.conf"); }
    QString machineFile() const { return machineFolder() + QStringLiteral("/Vellumio.conf"); }
    QString outputFolder() const { return path(QStringLiteral("out")); }

    static bool writeFile(const QString &fileName, const QByteArray &bytes)
    {
        QFile file(fileName);
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            && file.write(bytes) == bytes.size();
    }

    static QByteArray readFile(const QString &fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static int modeOf(const QString &fileName)
    {
        struct stat status
        {
        };
        return ::lstat(QFile::encodeName(fileName).constData(), &status) == 0
            ? int(status.st_mode & 07777)
            : -1;
    }

    // A helper process whose settings keys live in this fixture's folders.
    void prepare(QProcess *process) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("user")));
        environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), path(QStringLiteral("machine")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("FMTASK_OUTPUT_FOLDER"), outputFolder());
        process->setProcessEnvironment(environment);
        process->setProgram(QStringLiteral(RELIABILITY_HELPER));
    }

private:
    QTemporaryDir dir;
};

#endif // FMTASK_TESTS_RELIABILITYFIXTURE_H
