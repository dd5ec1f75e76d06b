// SPDX-License-Identifier: GPL-3.0-or-later
// The documents a plan writes in-process: SWF, RTF, SpreadsheetML, image HTML, PDF updates and
// copies.
#include "render/inprocesswrites.h"

#include "render/pdfsecurity.h"
#include "writers/swfwriter.h"
#include "writers/textdocuments.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace Render {

namespace {

bool readFile(const QString &path, QByteArray *content, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    *content = file.readAll();
    return true;
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        return file.errorString();
    return {};
}

} // namespace

QByteArray htmlHead(const QString &title)
{
    return (QStringLiteral("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>")
        + title.toHtmlEscaped()
        + QStringLiteral("</title>\n<style>body{margin:0;background:#777}"
                         "img{display:block;margin:12px auto;background:#fff}</style>\n"
                         "</head>\n<body>\n"))
        .toUtf8();
}

QByteArray htmlImage(const QByteArray &jpeg, int page, int dpi)
{
    const QSize size = Swf::jpegSize(jpeg);
    // Shown at the printed size: a CSS pixel is 1/96 inch.
    return "<img width=\"" + QByteArray::number(size.width() * 96 / dpi) + "\" height=\""
        + QByteArray::number(size.height() * 96 / dpi) + "\" alt=\"Page " + QByteArray::number(page)
        + "\" src=\"data:image/jpeg;base64," + jpeg.toBase64() + "\">\n";
}

QByteArray htmlTail()
{
    return "</body>\n</html>\n";
}

namespace {

// The page images one at a time, so a long job's HTML never sits in memory whole.
// The answer of a page-by-page write that gave up.
QString stoppedWrite()
{
    return QStringLiteral("stopped");
}

bool stopping(const std::atomic<bool> *stop)
{
    return stop && stop->load();
}

QString writeHtmlPages(const Write &write, const QDir &work, const std::atomic<bool> *stop)
{
    QFile out(work.filePath(write.output));
    if (!out.open(QIODevice::WriteOnly) || out.write(htmlHead(write.title)) < 0)
        return out.errorString();
    for (int i = 0; i < write.inputs.size(); ++i) {
        if (stopping(stop))
            return stoppedWrite();
        QByteArray jpeg;
        QString error;
        if (!readFile(work.filePath(write.inputs.at(i)), &jpeg, &error))
            return error;
        if (out.write(htmlImage(jpeg, i + 1, write.dpi)) < 0)
            return out.errorString();
    }
    if (out.write(htmlTail()) < 0 || !out.flush())
        return out.errorString();
    return {};
}

// Enough of a JPEG to hold its frame header, as Ghostscript writes it.
constexpr qint64 jpegHeadBytes = 64 << 10;

// The pixel size of a page image from the start of its file; the whole file only when its frame
// header lies further in.
QSize pageSize(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return {};
    }
    QByteArray head = file.read(jpegHeadBytes);
    QSize size = Swf::jpegSize(head, error);
    if (size.isEmpty() && !file.atEnd())
        size = Swf::jpegSize(head + file.readAll(), error);
    return size;
}

// The movie frame by frame from the page images, so no more than one page sits in memory. The
// stage stands at the start of the file: the images' sizes are read first.
QString writeSwf(const Write &write, const QDir &work, const std::atomic<bool> *stop)
{
    QString error;
    QStringList texts;
    if (!write.textFile.isEmpty()) {
        QByteArray text;
        if (!readFile(work.filePath(write.textFile), &text, &error))
            return error;
        texts = TextDocuments::pagesOf(text);
    }
    QSize largest;
    for (int i = 0; i < write.inputs.size(); ++i) {
        const QSize size = pageSize(work.filePath(write.inputs.at(i)), &error);
        if (size.isEmpty())
            return QCoreApplication::translate("Render", "page %1: %2").arg(i + 1).arg(error);
        largest = largest.expandedTo(size);
    }

    Swf::Options options;
    options.dpi = write.dpi;
    options.textLayer = !write.textFile.isEmpty();
    options.animate = write.animate;
    options.password = write.password;
    QFile out(work.filePath(write.output));
    if (!out.open(QIODevice::WriteOnly))
        return out.errorString();
    Swf::Writer writer(&out, options, int(write.inputs.size()), largest);
    for (int i = 0; i < write.inputs.size(); ++i) {
        if (stopping(stop))
            return stoppedWrite();
        QByteArray jpeg;
        if (!readFile(work.filePath(write.inputs.at(i)), &jpeg, &error))
            return error;
        if (!writer.addPage({jpeg, texts.value(write.pages.value(i, i + 1) - 1)}))
            return writer.errorString();
    }
    if (!writer.finish())
        return writer.errorString();
    return out.flush() ? QString() : out.errorString();
}

bool writeAll(int fd, const char *data, ssize_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(fd, data, size_t(size));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        size -= written;
    }
    return true;
}

// Copies a file as it is, in the kernel where it can (a shared extent on file systems that have
// them), in bounded steps so that a stop is seen. The copy is a new file, made as the tools make
// theirs.
QString copyFile(const Write &write, const QDir &work, const std::atomic<bool> *stop)
{
    const auto error = [] { return QString::fromLocal8Bit(std::strerror(errno)); };
    const int in = ::open(
        QFile::encodeName(work.filePath(write.inputs.value(0))).constData(), O_RDONLY | O_CLOEXEC);
    if (in < 0)
        return error();
    const int out = ::open(QFile::encodeName(work.filePath(write.output)).constData(),
        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (out < 0) {
        const QString why = error();
        ::close(in);
        return why;
    }
    constexpr size_t step = 16 << 20;
    QString why;
    QByteArray buffer; // for a plain read and write, where the kernel cannot copy
    for (;;) {
        if (stopping(stop)) {
            why = stoppedWrite();
            break;
        }
        ssize_t done;
        if (buffer.isEmpty()) {
            done = ::copy_file_range(in, nullptr, out, nullptr, step, 0);
            if (done < 0
                && (errno == EXDEV || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP)) {
                buffer.resize(1 << 20);
                continue;
            }
        } else {
            done = ::read(in, buffer.data(), size_t(buffer.size()));
            if (done > 0 && !writeAll(out, buffer.constData(), done))
                done = -1;
        }
        if (done < 0 && errno == EINTR)
            continue;
        if (done < 0)
            why = error();
        if (done <= 0)
            break;
    }
    ::close(in);
    if (::close(out) != 0 && why.isEmpty())
        why = error();
    return why;
}

} // namespace

QString perform(const Write &write, const QDir &work, const std::atomic<bool> *stop)
{
    if (write.kind == Write::HtmlPages)
        return writeHtmlPages(write, work, stop);
    if (write.kind == Write::Swf)
        return writeSwf(write, work, stop);
    if (write.kind == Write::Copy)
        return copyFile(write, work, stop);

    // The text or JSON file the document is made from.
    QString error;
    QByteArray input;
    if (!readFile(work.filePath(write.inputs.value(0)), &input, &error))
        return error;

    QByteArray document;
    switch (write.kind) {
    case Write::Rtf:
        document = TextDocuments::rtf(TextDocuments::pagesOf(input));
        break;
    case Write::SpreadsheetMl:
        document = TextDocuments::spreadsheetMl(TextDocuments::pagesOf(input));
        break;
    case Write::HtmlPages:
    case Write::Swf:
    case Write::Copy:
        break;
    case Write::PdfInfo:
        document = PdfSecurity::infoUpdate(input, write.pdf, QDateTime::currentDateTime(), &error);
        break;
    }
    if (document.isEmpty())
        return error.isEmpty() ? QCoreApplication::translate("Render", "nothing was written")
                               : error;
    return writeFile(work.filePath(write.output), document);
}

} // namespace Render
