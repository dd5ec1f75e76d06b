#ifndef FMTASK_TESTS_RELIABILITYFIXTURE_H
#define FMTASK_TESTS_RELIABILITYFIXTURE_H

#include "jobfixture.h"

#include <QProcess>

// Starts the helper with the job's keys, its output going into the job's temporary folder.
inline void startHelper(QProcess &process, const JobFixture &job, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), job.path("user"));
    environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), job.path("machine"));
    environment.insert(QStringLiteral("FMTASK_OUTPUT_FOLDER"), job.dir.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(RELIABILITY_HELPER), arguments);
}

// The program's own run on the job's keys, Print pressed once the dialog shows: its output when it
// ended by itself with status 0 ("closed-by-print" in it when Print closed the dialog).
inline QByteArray runProgram(const JobFixture &job)
{
    QProcess program;
    startHelper(program, job, {QStringLiteral("run"), QStringLiteral("Document1")});
    if (!program.waitForFinished(30000))
        program.kill(), program.waitForFinished();
    const bool ended = program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0;
    return (ended ? "" : "FAILED ") + program.readAllStandardOutput();
}

#endif // FMTASK_TESTS_RELIABILITYFIXTURE_H
