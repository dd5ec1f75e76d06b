// SPDX-License-Identifier: GPL-3.0-or-later
// The documents a plan writes in-process: SWF, RTF, SpreadsheetML, image HTML and PDF updates.
#include "render/inprocesswrites.h"

#include "render/pdfsecurity.h"
#include "writers/swfwriter.h"
#include "writers/textdocuments.h"

#include <QDateTime>
#include <QFile>

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
QString writeHtmlPages(const Write &write, const QDir &work)
{
    QFile out(work.filePath(write.output));
    if (!out.open(QIODevice::WriteOnly) || out.write(htmlHead(write.title)) < 0)
        return out.errorString();
    for (int i = 0; i < write.inputs.size(); ++i) {
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

} // namespace

QString perform(const Write &write, const QDir &work)
{
    if (write.kind == Write::HtmlPages)
        return writeHtmlPages(write, work);

    QString error;
    QByteArray content;
    QList<QByteArray> inputs;
    for (const QString &input : write.inputs) {
        if (!readFile(work.filePath(input), &content, &error))
            return error;
        inputs << content;
    }

    QByteArray document;
    switch (write.kind) {
    case Write::Swf: {
        QStringList texts;
        if (!write.textFile.isEmpty()) {
            if (!readFile(work.filePath(write.textFile), &content, &error))
                return error;
            texts = TextDocuments::pagesOf(content);
        }
        QList<Swf::Page> pages;
        for (int i = 0; i < inputs.size(); ++i) {
            const int index = write.pages.value(i, i + 1) - 1;
            pages.append({inputs.at(i), texts.value(index)});
        }
        inputs.clear();
        Swf::Options options;
        options.dpi = write.dpi;
        options.textLayer = !write.textFile.isEmpty();
        options.animate = write.animate;
        options.password = write.password;
        document = Swf::document(pages, options, &error);
        break;
    }
    case Write::Rtf:
        document = TextDocuments::rtf(TextDocuments::pagesOf(inputs.value(0)));
        break;
    case Write::SpreadsheetMl:
        document = TextDocuments::spreadsheetMl(TextDocuments::pagesOf(inputs.value(0)));
        break;
    case Write::HtmlPages:
        break;
    case Write::PdfInfo:
        document = PdfSecurity::infoUpdate(
            inputs.value(0), write.pdf, QDateTime::currentDateTime(), &error);
        break;
    }
    if (document.isEmpty())
        return error.isEmpty() ? QStringLiteral("nothing was written") : error;
    return writeFile(work.filePath(write.output), document);
}

} // namespace Render
