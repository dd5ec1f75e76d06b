// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_OPENWINDOW_H
#define FMTASK_TESTS_OPENWINDOW_H

#include "tests/support/findwidget.h"
#include "tests/support/jobfixture.h"
#include "tests/support/scriptedprompts.h"

#include <QLineEdit>
#include <QTabWidget>

// A main window on a fresh job in a temporary folder, with scripted answers, and its parts by
// object name.
struct OpenWindow
{
    explicit OpenWindow(bool converter)
        : window(job.createWindow(converter))
    { }

    // A missing part fails the running test, naming it (see findWidget).
    template<class T = QWidget>
    T *part(const char *name) const
    {
        return findWidget<T>(window.get(), QLatin1String(name));
    }
    QTabWidget *tabs() const { return part<QTabWidget>("tabWidget"); }
    QLineEdit *fileName() const { return part<QLineEdit>("le_filename"); }

    JobFixture job;
    ScriptedPrompts prompts;
    std::unique_ptr<MainWindow> window;
};

#endif // FMTASK_TESTS_OPENWINDOW_H
