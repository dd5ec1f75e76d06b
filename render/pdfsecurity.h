// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_PDFSECURITY_H
#define VELLUMIO_PDFSECURITY_H

#include "render/renderoptions.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

// The qpdf side of a PDF: document information and encryption, handed to qpdf in job files so
// that no password ever stands on a command line.
namespace PdfSecurity {

// Why a password cannot be used with 128-bit AES encryption, whose passwords are at most 32
// characters of PDFDocEncoding; empty when it can. Such a password is refused, never changed.
QString passwordProblem(const QString &password);

// The first problem of the options' passwords, named for the user; empty when encryption can
// take them (or the PDF is not protected).
QString refusal(const PdfSettings &pdf);

// A qpdf job (--job-json-file) that copies `input` to `output`, applying the update file
// `infoUpdate` when it is not empty and encrypting as `pdf` asks.
QByteArray qpdfJob(
    const QString &input, const QString &output, const QString &infoUpdate, const PdfSettings &pdf);

// The arguments of qpdf that print a file's trailer as qpdf JSON.
QStringList trailerQuery(const QString &input);

// A qpdf JSON update that gives the file whose trailer qpdf printed as `trailerJson` the
// document information of `pdf`, dated `now`. Empty, with `error` set, when the trailer cannot
// be read.
QByteArray infoUpdate(
    const QByteArray &trailerJson, const PdfSettings &pdf, const QDateTime &now, QString *error);

} // namespace PdfSecurity

#endif // VELLUMIO_PDFSECURITY_H
