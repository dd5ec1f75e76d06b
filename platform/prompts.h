// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_PROMPTS_H
#define FMTASK_PROMPTS_H

#include <QMessageBox>
#include <QString>

class QWidget;

// The modal questions of the dialogs: message boxes and the Save As dialog. Production code asks
// the user; tests install their own answers.
class Prompts
{
public:
    virtual ~Prompts();

    // A modal message box without icon. A null title leaves the box without a title of its own.
    // Returns the button that closed it.
    virtual QMessageBox::StandardButton message(QWidget *parent, const QString &title,
        const QString &text, QMessageBox::StandardButtons buttons)
        = 0;

    // The platform's Save As dialog; `selectedFilter` is the preselected filter on entry and the
    // chosen one on return. Returns the chosen file name, empty when cancelled.
    virtual QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter)
        = 0;

    // The prompts in use: the interactive ones unless a test installed others.
    static Prompts &current();
    // Installs other prompts (not owned); nullptr restores the interactive ones.
    static void install(Prompts *prompts);
};

#endif // FMTASK_PROMPTS_H
