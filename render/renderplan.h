// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_RENDERPLAN_H
#define VELLUMIO_RENDERPLAN_H

#include "render/renderoptions.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// What rendering a job does, worked out before anything runs: the tools with their argument
// lists, the documents written in-process, and the final names. Every file name in a plan is
// relative to the job's private work folder, where the tools run; only the job's PDF is named
// by its absolute path.
namespace Render {

// One tool run. Never through a shell.
struct Command
{
    QString program;
    QStringList arguments;
    QString standardInput; // a work file read as standard input; empty: none
    QString standardOutput; // a work file that receives standard output; empty: discarded
    QString secretFile; // written owner-only with `secret` before the run, removed after it
    QByteArray secret;
    int pages = 1; // how many pages the run handles, for its time limit
    int warningStatus = 0; // an exit status that still means success (qpdf's warnings)
};

// A document written in-process from work files.
struct Write
{
    enum Kind {
        Swf, // page JPEGs (+ the text file) -> one SWF
        Rtf, // text file -> RTF, one page break per page
        SpreadsheetMl, // text file -> SpreadsheetML 2003, one worksheet per page
        HtmlPages, // page JPEGs -> one HTML page holding them
        PdfInfo, // qpdf's trailer JSON -> qpdf JSON update with the document information
        Copy, // the one input, as it is
    };
    Kind kind = Rtf;
    QStringList inputs; // the page images, or the one text, JSON or copied file
    QString textFile; // SWF: the text of all pages, empty without a text layer
    QList<int> pages; // SWF: the page numbers (from 1) of `inputs`, to find their text
    QString output;
    QString title; // HTML: the document title
    int dpi = 0; // SWF and HTML: resolution of the page images
    bool animate = false; // SWF
    QString password; // SWF: empty when not protected
    PdfSettings pdf; // PDF information
};

// A step is either a command or a write.
struct Step
{
    Command command;
    Write write;
    bool isWrite = false;
    QStringList removeAfter; // work files no longer needed once the step is done
};

// Steps run one after another; once they are done, the tasks in `then` may start, side by side
// with the rest of the stage (the pages a Ghostscript run rendered, each converted on its own).
struct Task
{
    QList<Step> steps;
    QList<Task> then;
};

// Tasks that may run side by side, one per core.
struct Stage
{
    QList<Task> tasks;
};

// A finished work file and the name it takes in the output folder.
struct Output
{
    QString workFile;
    QString fileName;
    QString extension; // the dotted end of fileName that a kept-aside name goes before
};

struct Plan
{
    QList<Stage> stages;
    QList<Output> outputs; // in page order, the extracted text last
    QString refusal; // the options ask for what cannot be made; nothing else is planned

    // Every program the plan runs, each once.
    QStringList programs() const;
    // Every step, in an order that one core may run them in.
    QList<Step> steps() const;
};

// What a plan is made for besides the options.
struct Job
{
    QString pdf; // absolute path of the job's PDF
    int pages = 1;
    int parallel = 1; // tasks run side by side
};

// The plan of a job. Pure: it reads nothing and runs nothing.
Plan makePlan(const Options &options, const Job &job);

// The Debian package that installs a program the plans run.
QString packageOf(const QString &program);

} // namespace Render

#endif // VELLUMIO_RENDERPLAN_H
