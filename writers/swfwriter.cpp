// SPDX-License-Identifier: GPL-3.0-or-later
// The SWF writer: page images as bitmap-filled shapes, one frame each, compressed as it is written.
#include "writers/swfwriter.h"

#include "writers/md5crypt.h"
#include "writers/textdocuments.h"

#include <QBuffer>
#include <QByteArrayView>

#include <cmath>
#include <initializer_list>
#include <zlib.h>

namespace Swf {

namespace {

enum TagCode : quint16 {
    End = 0,
    ShowFrame = 1,
    DefineShape = 2,
    SetBackgroundColor = 9,
    DoAction = 12,
    DefineBitsJpeg2 = 21,
    Protect = 24,
    PlaceObject2 = 26,
    RemoveObject2 = 28,
    DefineEditText = 37,
    DefineFont2 = 48,
    FileAttributes = 69,
};

constexpr int twipsPerInch = 1440;
constexpr int imageDepth = 2;
constexpr int textDepth = 1; // beneath the image, which therefore shows exactly as rendered
constexpr quint16 fontId = 1;
constexpr int idsPerPage = 3; // bitmap, shape, text field
constexpr quint8 actionStop = 0x07;
// The player's monospaced device font, so the layout's columns line up.
const QByteArray deviceFont = QByteArrayLiteral("_typewriter");

void putU8(QByteArray &out, quint32 value)
{
    out += char(value & 0xff);
}

void putU16(QByteArray &out, quint32 value)
{
    putU8(out, value);
    putU8(out, value >> 8);
}

void putU32(QByteArray &out, quint32 value)
{
    putU16(out, value);
    putU16(out, value >> 16);
}

// A NUL-terminated UTF-8 string; a NUL inside would end it early, so none is kept.
void putString(QByteArray &out, const QString &text)
{
    out += text.toUtf8().replace('\0', QByteArray());
    out += '\0';
}

// The SWF bit fields: most significant bit first, each record padded to a whole byte.
class BitWriter
{
public:
    void put(quint32 value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            m_current = quint8(m_current << 1 | ((value >> bit) & 1));
            if (++m_used == 8)
                flushByte();
        }
    }
    QByteArray take()
    {
        if (m_used)
            put(0, 8 - m_used);
        return std::exchange(m_bytes, QByteArray());
    }

private:
    void flushByte()
    {
        m_bytes += char(m_current);
        m_current = 0;
        m_used = 0;
    }

    QByteArray m_bytes;
    quint8 m_current = 0;
    int m_used = 0;
};

// Bits that hold `value` as a two's complement field.
int signedBits(qint64 value)
{
    int bits = 1;
    while (value < -(qint64(1) << (bits - 1)) || value >= (qint64(1) << (bits - 1)))
        ++bits;
    return bits;
}

int signedBits(std::initializer_list<qint64> values)
{
    int bits = 0;
    for (qint64 value : values)
        bits = qMax(bits, signedBits(value));
    return bits;
}

QByteArray rect(qint32 width, qint32 height)
{
    BitWriter bits;
    const int size = signedBits({width, height});
    bits.put(quint32(size), 5);
    for (qint32 value : {0, width, 0, height})
        bits.put(quint32(value), size);
    return bits.take();
}

QByteArray identityMatrix()
{
    return QByteArray(1, '\0'); // no scale, no rotation, no translation
}

// A shape filled with the bitmap scaled to `width` x `height` twips.
QByteArray bitmapShape(quint16 shapeId, quint16 bitmapId, QSize pixels, QSize twips)
{
    QByteArray out;
    putU16(out, shapeId);
    out += rect(twips.width(), twips.height());
    putU8(out, 1); // one fill style
    putU8(out, 0x41); // clipped bitmap, smoothed
    putU16(out, bitmapId);
    BitWriter matrix;
    // A bitmap pixel is one twip before the matrix: scale it to the page, 16.16 fixed point.
    const qint64 scaleX = std::llround(65536.0 * twips.width() / pixels.width());
    const qint64 scaleY = std::llround(65536.0 * twips.height() / pixels.height());
    const int scaleBits = signedBits({scaleX, scaleY});
    matrix.put(1, 1);
    matrix.put(quint32(scaleBits), 5);
    matrix.put(quint32(scaleX), scaleBits);
    matrix.put(quint32(scaleY), scaleBits);
    matrix.put(0, 1); // no rotation
    matrix.put(0, 5); // no translation
    out += matrix.take();
    putU8(out, 0); // no line styles

    BitWriter records;
    records.put(1, 4); // fill style index bits
    records.put(0, 4); // line style index bits
    // Style change: move to the origin, fill style 1 on the right of the edges that follow.
    records.put(0b000101, 6);
    records.put(1, 5);
    records.put(0, 1);
    records.put(0, 1);
    records.put(1, 1);
    // Clockwise on screen (y grows down), so the inside is on the right of every edge.
    const qint64 edges[4][2]
        = {{twips.width(), 0}, {0, twips.height()}, {-twips.width(), 0}, {0, -twips.height()}};
    for (const auto &edge : edges) {
        const bool vertical = edge[0] == 0;
        const qint64 delta = vertical ? edge[1] : edge[0];
        const int size = qMax(2, signedBits(delta));
        records.put(0b11, 2); // edge, straight
        records.put(quint32(size - 2), 4);
        records.put(0, 1); // not a general line
        records.put(vertical ? 1 : 0, 1);
        records.put(quint32(delta), size);
    }
    records.put(0, 6); // end of shape
    out += records.take();
    return out;
}

QByteArray placeObject(int depth, quint16 characterId)
{
    QByteArray out;
    putU8(out, 0x06); // has matrix, has character
    putU16(out, quint32(depth));
    putU16(out, characterId);
    out += identityMatrix();
    return out;
}

QByteArray removeObject(int depth)
{
    QByteArray out;
    putU16(out, quint32(depth));
    return out;
}

QByteArray deviceFontDefinition()
{
    QByteArray out;
    putU16(out, fontId);
    putU8(out, 0x04); // wide codes only: no glyphs, the player's own font draws
    putU8(out, 0); // no language
    putU8(out, quint32(deviceFont.size()));
    out += deviceFont;
    putU16(out, 0); // no glyphs
    putU16(out, 2); // code table offset: the empty code table follows at once
    return out;
}

// A read-only, selectable, multi-line field holding the page's text in plain (not HTML) form,
// sized so that its lines and columns roughly cover the page.
QByteArray textField(quint16 id, const QStringList &lines, QSize twips)
{
    qsizetype columns = 1;
    for (const QString &line : lines)
        columns = qMax(columns, line.size());
    // A monospaced character is about 0.6 of the font height wide.
    const double byLines = double(twips.height()) / qMax<qsizetype>(1, lines.size());
    const double byColumns = twips.width() / (0.6 * double(columns));
    const int fontHeight = qBound(80, int(qMin(byLines, byColumns)), 240); // 4 to 12 points

    QByteArray out;
    putU16(out, id);
    out += rect(twips.width(), twips.height());
    putU8(out, 0x80 | 0x20 | 0x08 | 0x01); // has text, multi-line, read-only, has font
    putU8(out, 0x00); // selectable, no border, plain text, device font
    putU16(out, fontId);
    putU16(out, quint32(fontHeight));
    putString(out, QString()); // no variable
    putString(out, lines.join(QLatin1Char('\n')));
    return out;
}

QByteArray stopAction()
{
    QByteArray out;
    putU8(out, actionStop);
    putU8(out, 0); // end of actions
    return out;
}

QByteArray protection(const QString &password)
{
    QByteArray out;
    // Two reserved bytes precede the crypt text, as authoring tools write and read it.
    putU16(out, 0);
    out += md5Crypt(password.toUtf8(), md5CryptSalt());
    out += '\0';
    return out;
}

// The part of the file after its first eight bytes, deflated as it is written so that the
// uncompressed document never sits in memory.
class CompressedBody
{
public:
    explicit CompressedBody(QIODevice *out)
        : m_out(out)
    {
        // The bulk is JPEG data already: the fastest level halves the time and costs under 1%.
        m_ok = deflateInit(&m_stream, Z_BEST_SPEED) == Z_OK;
    }
    ~CompressedBody() { deflateEnd(&m_stream); }
    CompressedBody(const CompressedBody &) = delete;
    CompressedBody &operator=(const CompressedBody &) = delete;

    void write(QByteArrayView data)
    {
        m_size += quint64(data.size());
        while (m_ok && !data.isEmpty()) {
            const auto chunk = qMin<qsizetype>(data.size(), 1 << 30);
            m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data.data()));
            m_stream.avail_in = uInt(chunk);
            drain(Z_NO_FLUSH);
            data = data.sliced(chunk);
        }
    }

    // Writes a tag; bitmaps always take the long header, which players expect of them.
    void tag(TagCode code, std::initializer_list<QByteArrayView> parts, bool longHeader = false)
    {
        qsizetype length = 0;
        for (QByteArrayView part : parts)
            length += part.size();
        QByteArray header;
        if (length < 0x3f && !longHeader) {
            putU16(header, quint32(code) << 6 | quint32(length));
        } else {
            putU16(header, quint32(code) << 6 | 0x3f);
            putU32(header, quint32(length));
        }
        write(header);
        for (QByteArrayView part : parts)
            write(part);
    }

    bool finish()
    {
        drain(Z_FINISH);
        return m_ok;
    }
    bool ok() const { return m_ok; }
    quint64 size() const { return m_size; }

private:
    void drain(int flush)
    {
        char buffer[1 << 16];
        for (;;) {
            m_stream.next_out = reinterpret_cast<Bytef *>(buffer);
            m_stream.avail_out = sizeof buffer;
            const int status = deflate(&m_stream, flush);
            const auto produced = qint64(sizeof buffer - m_stream.avail_out);
            if (status == Z_STREAM_ERROR || m_out->write(buffer, produced) != produced) {
                m_ok = false;
                return;
            }
            if (flush == Z_FINISH ? status == Z_STREAM_END
                                  : m_stream.avail_in == 0 && m_stream.avail_out != 0)
                return;
        }
    }

    QIODevice *m_out;
    z_stream m_stream {};
    quint64 m_size = 0;
    bool m_ok = false;
};

QSize twipsOf(QSize pixels, int dpi)
{
    return QSize(int(std::lround(double(pixels.width()) * twipsPerInch / dpi)),
        int(std::lround(double(pixels.height()) * twipsPerInch / dpi)))
        .expandedTo(QSize(1, 1));
}

// Pages that fit the ids of one file: the font, then a bitmap, a shape and a text field a page.
constexpr int maximumFrames = (0xffff - fontId) / idsPerPage;

QByteArray fail(QString *error, const QString &message)
{
    if (error)
        *error = message;
    return QByteArray();
}

quint32 be16(const QByteArray &data, qsizetype at)
{
    return quint32(quint8(data.at(at))) << 8 | quint8(data.at(at + 1));
}

} // namespace

QSize jpegSize(const QByteArray &jpeg, QString *error)
{
    const auto reject = [error](const char *why) {
        if (error)
            *error = QLatin1String(why);
        return QSize();
    };
    if (jpeg.size() < 4 || quint8(jpeg.at(0)) != 0xff || quint8(jpeg.at(1)) != 0xd8)
        return reject("not a JPEG image");
    qsizetype at = 2;
    while (at + 4 <= jpeg.size()) {
        if (quint8(jpeg.at(at)) != 0xff)
            return reject("damaged JPEG image");
        const quint8 marker = quint8(jpeg.at(at + 1));
        if (marker == 0xff) { // fill byte
            ++at;
            continue;
        }
        if (marker == 0x01 || (marker >= 0xd0 && marker <= 0xd7)) { // markers without a length
            at += 2;
            continue;
        }
        if (marker == 0xd9 || marker == 0xda)
            return reject("JPEG image without a frame header");
        const qsizetype length = be16(jpeg, at + 2);
        if (length < 2 || at + 2 + length > jpeg.size())
            return reject("damaged JPEG image");
        if (marker == 0xc0 || marker == 0xc1) {
            if (length < 8)
                return reject("damaged JPEG image");
            const int components = quint8(jpeg.at(at + 9));
            if (quint8(jpeg.at(at + 4)) != 8 || (components != 1 && components != 3))
                return reject("JPEG image of a kind the player cannot show");
            const QSize size(int(be16(jpeg, at + 7)), int(be16(jpeg, at + 5)));
            if (size.isEmpty())
                return reject("JPEG image without a size");
            return size;
        }
        // Every other start-of-frame marker: progressive, lossless or arithmetic coding.
        if (marker >= 0xc2 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc)
            return reject("JPEG image that is not baseline");
        at += 2 + length;
    }
    return reject("damaged JPEG image");
}

struct Writer::State
{
    State(QIODevice *device, const Options &givenOptions)
        : out(device)
        , options(givenOptions)
        , body(device)
    { }

    bool fail(const QString &message)
    {
        if (error.isEmpty())
            error = message;
        return false;
    }

    QIODevice *out;
    Options options;
    CompressedBody body;
    qint64 start = 0; // where the file begins on the device
    int frames = 0;
    int added = 0;
    QSize largest;
    bool textShown = false;
    bool finished = false;
    QString error;
};

Writer::Writer(QIODevice *device, const Options &options, int frames, QSize largest)
    : d(std::make_unique<State>(device, options))
{
    d->frames = frames;
    d->largest = largest;
    if (frames <= 0)
        d->fail(QStringLiteral("no pages"));
    else if (frames > maximumFrames)
        d->fail(QStringLiteral("too many pages for one SWF file"));
    else if (options.dpi <= 0)
        d->fail(QStringLiteral("no resolution"));
    else if (largest.isEmpty())
        d->fail(QStringLiteral("no page size"));
    else if (!device->isWritable() || device->isSequential())
        d->fail(QStringLiteral("the SWF needs a seekable device to write to"));
    if (!d->error.isEmpty())
        return;

    d->start = device->pos();
    QByteArray header = QByteArrayLiteral("CWS");
    putU8(header, version);
    putU32(header, 0); // the uncompressed length, known at the end
    if (device->write(header) != header.size()) {
        d->fail(device->errorString());
        return;
    }

    CompressedBody &body = d->body;
    const QSize stage = twipsOf(largest, options.dpi);
    QByteArray frameHeader = rect(stage.width(), stage.height());
    const double rate = std::isfinite(options.frameRate) && options.frameRate > 0
        ? options.frameRate
        : Options().frameRate;
    putU16(frameHeader, quint32(qBound(1, int(std::lround(rate * 256)), 0xffff))); // 8.8 fixed
    putU16(frameHeader, quint32(frames));
    body.write(frameHeader);

    QByteArray flags;
    putU32(flags, 0); // ActionScript 1/2, local file access
    body.tag(FileAttributes, {flags});
    body.tag(SetBackgroundColor, {QByteArrayView("\xff\xff\xff", 3)});
    if (!options.password.isEmpty())
        body.tag(Protect, {protection(options.password)});
    if (options.textLayer)
        body.tag(DefineFont2, {deviceFontDefinition()});
    if (!body.ok())
        d->fail(device->errorString());
}

Writer::~Writer() = default;

bool Writer::addPage(const Page &page)
{
    if (!d->error.isEmpty() || d->finished)
        return d->fail(QStringLiteral("the movie is finished"));
    const int index = d->added;
    const QString name = QStringLiteral("page %1: ").arg(index + 1);
    if (index >= d->frames)
        return d->fail(name + QStringLiteral("more pages than announced"));
    QString why;
    const QSize pixels = jpegSize(page.jpeg, &why);
    if (pixels.isEmpty())
        return d->fail(name + why);
    if (pixels.width() > d->largest.width() || pixels.height() > d->largest.height())
        return d->fail(name + QStringLiteral("larger than announced"));

    CompressedBody &body = d->body;
    const QSize twips = twipsOf(pixels, d->options.dpi);
    const auto bitmapId = quint16(fontId + 1 + index * idsPerPage);
    const auto shapeId = quint16(bitmapId + 1);
    const auto textId = quint16(bitmapId + 2);
    if (index > 0)
        body.tag(RemoveObject2, {removeObject(imageDepth)});
    if (std::exchange(d->textShown, false))
        body.tag(RemoveObject2, {removeObject(textDepth)});

    QByteArray id;
    putU16(id, bitmapId);
    body.tag(DefineBitsJpeg2, {id, page.jpeg}, true);
    body.tag(DefineShape, {bitmapShape(shapeId, bitmapId, pixels, twips)});
    body.tag(PlaceObject2, {placeObject(imageDepth, shapeId)});

    if (d->options.textLayer && !page.text.trimmed().isEmpty()) {
        const QStringList lines = TextDocuments::linesOf(page.text);
        body.tag(DefineEditText, {textField(textId, lines, twips)});
        body.tag(PlaceObject2, {placeObject(textDepth, textId)});
        d->textShown = true;
    }
    if (!d->options.animate)
        body.tag(DoAction, {stopAction()});
    body.tag(ShowFrame, {});
    if (!body.ok())
        return d->fail(name + d->out->errorString());
    ++d->added;
    return true;
}

bool Writer::finish()
{
    if (!d->error.isEmpty() || d->finished)
        return d->fail(QStringLiteral("the movie is finished"));
    d->finished = true;
    if (d->added != d->frames)
        return d->fail(QStringLiteral("%1 of %2 pages were added").arg(d->added).arg(d->frames));
    d->body.tag(End, {});
    if (!d->body.finish())
        return d->fail(QStringLiteral("compression failed: ") + d->out->errorString());
    const quint64 length = 8 + d->body.size();
    if (length > 0xffffffffu)
        return d->fail(QStringLiteral("document too large for one SWF file"));
    QByteArray field;
    putU32(field, quint32(length));
    const qint64 end = d->out->pos();
    if (!d->out->seek(d->start + 4) || d->out->write(field) != field.size() || !d->out->seek(end))
        return d->fail(d->out->errorString());
    return true;
}

QString Writer::errorString() const
{
    return d->error;
}

QByteArray document(const QList<Page> &pages, const Options &options, QString *error)
{
    // Every page is checked before anything is written; the stage holds the largest page.
    QSize largest;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        QString why;
        const QSize size = jpegSize(pages.at(i).jpeg, &why);
        if (size.isEmpty())
            return fail(error, QStringLiteral("page %1: %2").arg(i + 1).arg(why));
        largest = largest.expandedTo(size);
    }
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    Writer writer(&buffer, options, int(qMin<qsizetype>(pages.size(), maximumFrames + 1)), largest);
    for (const Page &page : pages) {
        if (!writer.addPage(page))
            break;
    }
    if (!writer.finish())
        return fail(error, writer.errorString());
    return out;
}

} // namespace Swf
