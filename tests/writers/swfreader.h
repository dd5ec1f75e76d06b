// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_TESTS_SWFREADER_H
#define VELLUMIO_TESTS_SWFREADER_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSize>
#include <QtEndian>

// A compressed SWF read as a player walks it: the stage, the frame count and the tags.
struct SwfFile
{
    QSize stage;
    int frameCount = -1; // -1: the file is not a whole compressed SWF
    QList<int> codes; // tag codes in file order
    QHash<int, QList<QByteArray>> tags; // tag bodies by code, in file order

    // The size a RECT at `data` spans from the origin; `bytes` is what it takes.
    static QSize rectSize(const QByteArray &data, int *bytes = nullptr)
    {
        const auto bits = [&data](int first, int count) {
            int value = 0;
            for (int bit = first; bit < first + count; ++bit)
                value = value << 1 | ((quint8(data.at(bit / 8)) >> (7 - bit % 8)) & 1);
            return value;
        };
        const int size = bits(0, 5);
        if (bytes)
            *bytes = (5 + 4 * size + 7) / 8;
        return QSize(bits(5 + size, size), bits(5 + 3 * size, size));
    }

    // The header's length must match what the body inflates to, as players check.
    static SwfFile read(const QByteArray &file)
    {
        SwfFile swf;
        if (!file.startsWith("CWS") || file.size() < 8)
            return swf;
        QByteArray sized(4, '\0');
        qToBigEndian(qFromLittleEndian<quint32>(file.constData() + 4) - 8, sized.data());
        const QByteArray body = qUncompress(sized + file.mid(8));
        if (body.isEmpty() || body.size() + 8 != qFromLittleEndian<quint32>(file.constData() + 4))
            return swf;
        int at = 0;
        swf.stage = rectSize(body, &at);
        swf.frameCount = qFromLittleEndian<quint16>(body.constData() + at + 2);
        for (at += 4; at + 2 <= body.size() && (swf.codes.isEmpty() || swf.codes.last());) {
            const quint16 header = qFromLittleEndian<quint16>(body.constData() + at);
            const bool longSize = (header & 0x3f) == 0x3f;
            const int size
                = longSize ? qFromLittleEndian<qint32>(body.constData() + at + 2) : header & 0x3f;
            at += longSize ? 6 : 2;
            swf.codes += header >> 6;
            swf.tags[header >> 6] += body.mid(at, size);
            at += size;
        }
        return swf;
    }
};

#endif // VELLUMIO_TESTS_SWFREADER_H
