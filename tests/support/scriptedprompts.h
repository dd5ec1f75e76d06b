// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_SCRIPTEDPROMPTS_H
#define FMTASK_TESTS_SCRIPTEDPROMPTS_H

#include "platform/prompts.h"
#include "platform/windoworder.h"

#include <QList>
#include <QPointer>
#include <QQueue>
#include <QWidget>

// Answers the dialogs' modal questions from a script and records what was asked, so a test can
// run Print and Save As without a person. Installed for its lifetime.
struct ScriptedPrompts : public Prompts
{
    struct Question
    {
        QWidget *parent;
        QString title, text;
        QMessageBox::StandardButtons buttons;
        bool watchedWasTopmost; // state of `watched` while the box was up
    };

    struct SaveAs
    {
        QWidget *parent;
        QPoint parentPosition;
        QString caption, path, filters, preselectedFilter;
    };

    ScriptedPrompts() { Prompts::install(this); }
    ~ScriptedPrompts() override { Prompts::install(nullptr); }

    QMessageBox::StandardButton message(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons) override
    {
        questions.append(
            {parent, title, text, buttons, watched && WindowOrder::isTopmost(watched)});
        return answers.isEmpty() ? QMessageBox::NoButton : answers.dequeue();
    }

    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter) override
    {
        saveAsCalls.append(
            {parent, parent ? parent->pos() : QPoint(), caption, path, filters, *selectedFilter});
        *selectedFilter = chosenFilter.isNull() ? *selectedFilter : chosenFilter;
        return chosenFiles.isEmpty() ? chosenFile : chosenFiles.takeFirst();
    }

    // Message box answers, first question first; an unscripted question gets NoButton.
    QQueue<QMessageBox::StandardButton> answers;
    // What Save As returns: the file (empty = cancelled) and the filter left selected (null =
    // the preselected one); while there are any, the next of the chosen files instead.
    QString chosenFile, chosenFilter;
    QStringList chosenFiles;
    // The window whose topmost state is recorded with every question.
    QPointer<QWidget> watched;

    QList<Question> questions;
    QList<SaveAs> saveAsCalls;
};

#endif // FMTASK_TESTS_SCRIPTEDPROMPTS_H
