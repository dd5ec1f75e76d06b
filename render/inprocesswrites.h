// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_INPROCESSWRITES_H
#define VELLUMIO_INPROCESSWRITES_H

#include "render/renderplan.h"

#include <QDir>
#include <QString>

#include <atomic>

namespace Render {

// Writes the document of `write` from its work files in `work`. Returns why it could not, or an
// empty text. Documents written page by page give up between pages once `stop` is set.
QString perform(const Write &write, const QDir &work, const std::atomic<bool> *stop = nullptr);

// The parts of an HTML page that shows JPEG page images in order, each at its printed size.
QByteArray htmlHead(const QString &title);
QByteArray htmlImage(const QByteArray &jpeg, int page, int dpi);
QByteArray htmlTail();

} // namespace Render

#endif // VELLUMIO_INPROCESSWRITES_H
