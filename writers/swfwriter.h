// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_SWFWRITER_H
#define VELLUMIO_SWFWRITER_H

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

#include <memory>

class QIODevice;

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

// Writes a compressed SWF ("CWS") to a device one frame per page as the pages come, so that no
// more than one page is held at a time. The stage and the frame count stand at the start of the
// file and are therefore given before the first page; finish() writes the file's length into its
// header, so the device must be seekable (a file or a buffer).
class Writer
{
public:
    // A movie of `frames` pages, none larger than `largest` pixels, written from the device's
    // current position.
    Writer(QIODevice *device, const Options &options, int frames, QSize largest);
    ~Writer();
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    // The next page as the next frame. False, with errorString() naming the page, when it is not
    // a usable JPEG, is larger than announced, is one more than announced, or cannot be written;
    // the writer then writes nothing more.
    bool addPage(const Page &page);
    // Ends the movie once every announced page was added and writes its length into the header.
    bool finish();
    QString errorString() const;

private:
    struct State;
    std::unique_ptr<State> d;
};

// A complete compressed SWF with one frame per page; empty when a page is not a usable JPEG,
// there are no pages, or more than the format can count.
QByteArray document(const QList<Page> &pages, const Options &options, QString *error = nullptr);

} // namespace Swf

#endif // VELLUMIO_SWFWRITER_H
