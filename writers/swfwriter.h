// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_SWFWRITER_H
#define VELLUMIO_SWFWRITER_H

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

// Writes the SWF output: one frame per page, each the page image with its text laid beneath it.
namespace Swf {

struct Page
{
    QByteArray jpeg; // the page image as a baseline JPEG (Ghostscript's jpeg/jpeggray device)
    QString text; // the page's text, for the text layer
};

struct Options
{
    int dpi = 96; // resolution of the page images; the stage is the page size in twips
    bool textLayer = true; // swf_text: each page's text as a read-only, selectable text field
    bool animate = false; // swf_animate: frames play on; false stops in every frame
    QString password; // protect_swf when b_protect_swf is on: empty means no Protect tag
    double frameRate = 1.0;
};

// The version written: the first with FileAttributes, and UTF-8 strings throughout.
constexpr int version = 8;

// The pixel size of a baseline (or extended sequential) Huffman JPEG read from its frame header;
// an empty size, with the reason in `error`, for anything the player cannot show.
QSize jpegSize(const QByteArray &jpeg, QString *error = nullptr);

// A complete compressed SWF ("CWS") with one frame per page; empty when a page is not a usable
// JPEG, there are no pages, or more than the format can count.
QByteArray document(const QList<Page> &pages, const Options &options, QString *error = nullptr);

} // namespace Swf

#endif // VELLUMIO_SWFWRITER_H
