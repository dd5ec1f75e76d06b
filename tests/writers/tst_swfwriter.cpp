// SPDX-License-Identifier: GPL-3.0-or-later
// SWF files as a player walks them: frames, page images, text layer, stops and the password crypt.
#include "writers/md5crypt.h"
#include "writers/swfwriter.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

QByteArray opensslCrypt(const QByteArray &password, const QByteArray &salt)
{
    return run("openssl", {"passwd", "-1", "-salt", salt, QString::fromUtf8(password)}).trimmed();
}

QByteArray ghostscriptJpeg(QSize pixels)
{
    return run("gs",
        {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=jpeg", "-r96",
            QString("-g%1x%2").arg(pixels.width()).arg(pixels.height()), "-sOutputFile=-", "-c",
            "0.3 setgray 10 10 40 20 rectfill showpage"});
}

quint32 bits(const QByteArray &data, qsizetype first, int count)
{
    quint32 value = 0;
    for (qsizetype bit = first; bit < first + count; ++bit)
        value = value << 1 | ((quint8(data.at(bit / 8)) >> (7 - bit % 8)) & 1);
    return value;
}

// The size a RECT at the start of `data` spans from the origin, and the bytes it takes.
QSize rectSize(const QByteArray &data, int *bytes = nullptr)
{
    const int size = int(bits(data, 0, 5));
    if (bytes)
        *bytes = (5 + 4 * size + 7) / 8;
    return QSize(int(bits(data, 5 + size, size)), int(bits(data, 5 + 3 * size, size)));
}

struct Tag
{
    int code;
    QByteArray body;
};

struct SwfFile
{
    QByteArray signature;
    int version = 0;
    QSize stage;
    int frameCount = -1;
    QList<Tag> tags;
};

SwfFile readSwf(const QByteArray &file)
{
    SwfFile swf;
    swf.signature = file.left(3);
    swf.version = file.at(3);
    const quint32 length = qFromLittleEndian<quint32>(file.constData() + 4);
    QByteArray sized(4, '\0');
    qToBigEndian(length - 8, sized.data());
    const QByteArray body = qUncompress(sized + file.mid(8));
    if (body.size() + 8 != length)
        return swf;
    int at = 0;
    swf.stage = rectSize(body, &at);
    swf.frameCount = qFromLittleEndian<quint16>(body.constData() + at + 2);
    for (at += 4; at + 2 <= body.size() && (swf.tags.isEmpty() || swf.tags.last().code);) {
        const quint16 header = qFromLittleEndian<quint16>(body.constData() + at);
        qsizetype size = header & 0x3f;
        at += 2;
        if (size == 0x3f) {
            size = qFromLittleEndian<quint32>(body.constData() + at);
            at += 4;
        }
        swf.tags += Tag {header >> 6, body.mid(at, size)};
        at += size;
    }
    return swf;
}

} // namespace

class tst_SwfWriter : public QObject
{
    Q_OBJECT

private slots:
    void md5Crypt_data()
    {
        QTest::addColumn<QByteArray>("password");
        QTest::addColumn<QByteArray>("salt");
        QTest::newRow("empty password") << QByteArray() << QByteArray("abc");
        QTest::newRow("plain") << QByteArray("secret") << QByteArray("12345678");
        QTest::newRow("one digest long") << QByteArray("0123456789abcdef") << QByteArray("./");
        QTest::newRow("long") << QByteArray(100, 'x') + "!" << QByteArray("Zz");
        QTest::newRow("non-Latin UTF-8") << QByteArray("пароль 密码 ü") << QByteArray("s");
        QTest::newRow("salt cut to 8") << QByteArray("secret") << QByteArray("abcdefghij");
    }
    void md5Crypt()
    {
        QFETCH(QByteArray, password);
        QFETCH(QByteArray, salt);
        const QByteArray expected = opensslCrypt(password, salt);
        QVERIFY2(expected.startsWith("$1$"), "openssl passwd -1 gave no crypt");
        QCOMPARE(::md5Crypt(password, salt), expected);
    }

    void document_data()
    {
        QTest::addColumn<QList<QSize>>("pixels");
        QTest::addColumn<int>("dpi");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("fields"); // the text fields a player shows, in order
        QTest::addColumn<bool>("textLayer");
        QTest::addColumn<bool>("animate");
        QTest::addColumn<QString>("password");
        const QList<QSize> a4 {{794, 1123}};
        QTest::newRow("one page, stops")
            << a4 << 96 << QStringList {"Hello\n"} << QStringList {"Hello"} << true << false << "";
        QTest::newRow("pages of two sizes, animated")
            << QList<QSize> {{200, 100}, {100, 300}, {200, 100}} << 150
            << QStringList {"one\n", "two\n", "three\n"} << QStringList {"one", "two", "three"}
            << true << true << "";
        QTest::newRow("markup and non-Latin text, plain field")
            << a4 << 96 << QStringList {"<b>&amp; \"Ünï\" 日本語 😀\tx\r\nline 2\x01\n"}
            << QStringList {"<b>&amp; \"Ünï\" 日本語 😀\tx\nline 2\uFFFD"} << true << false << "";
        QTest::newRow("blank page has no field")
            << QList<QSize> {{100, 100}, {100, 100}} << 96 << QStringList {"  \n\n", "b\n"}
            << QStringList {"b"} << true << false << "";
        QTest::newRow("no text layer")
            << a4 << 96 << QStringList {"Hello\n"} << QStringList {} << false << false << "";
        QTest::newRow("protected, non-Latin password")
            << a4 << 96 << QStringList {"x\n"} << QStringList {"x"} << true << false
            << "пароль密码";
    }
    void document()
    {
        QFETCH(QList<QSize>, pixels);
        QFETCH(int, dpi);
        QFETCH(QStringList, texts);
        QFETCH(QStringList, fields);
        Swf::Options options;
        options.dpi = dpi;
        QFETCH(bool, textLayer);
        options.textLayer = textLayer;
        QFETCH(bool, animate);
        options.animate = animate;
        QFETCH(QString, password);
        options.password = password;
        QList<Swf::Page> pages;
        for (qsizetype i = 0; i < pixels.size(); ++i)
            pages += Swf::Page {ghostscriptJpeg(pixels.at(i)), texts.at(i)};
        QString error;
        const QByteArray file = Swf::document(pages, options, &error);
        QVERIFY2(!file.isEmpty(), qPrintable(error));

        const SwfFile swf = readSwf(file);
        QCOMPARE(swf.signature, "CWS");
        QVERIFY(swf.version >= 8);
        QCOMPARE(swf.frameCount, pages.size());
        QVERIFY(!swf.tags.isEmpty());
        QCOMPARE(swf.tags.first().code, 69); // FileAttributes, which version 8 requires first
        QCOMPARE(swf.tags.last().code, 0);
        int frames = 0;
        int stops = 0;
        QList<QByteArray> bitmaps;
        QList<QSize> shapes;
        QStringList shownFields;
        QByteArray crypt;
        for (const Tag &tag : swf.tags) {
            frames += tag.code == 1;
            stops += tag.code == 12 && tag.body == QByteArray("\x07\x00", 2);
            if (tag.code == 2)
                shapes += rectSize(tag.body.mid(2));
            if (tag.code == 21)
                bitmaps += tag.body.mid(2);
            if (tag.code == 37)
                shownFields += QString::fromUtf8(
                    tag.body.chopped(1).mid(tag.body.chopped(1).lastIndexOf('\0') + 1));
            if (tag.code == 24) {
                QCOMPARE(tag.body.left(2), QByteArray(2, '\0'));
                crypt = tag.body.mid(2).chopped(1);
            }
        }
        QCOMPARE(frames, pages.size());
        QCOMPARE(stops, animate ? 0 : pages.size());
        QCOMPARE(shownFields, fields);
        QSize stage;
        QCOMPARE(bitmaps.size(), pages.size());
        for (qsizetype i = 0; i < pages.size(); ++i) {
            QCOMPARE(bitmaps.at(i), pages.at(i).jpeg);
            const QSize twips = pixels.at(i) * 1440 / dpi;
            QCOMPARE(shapes.at(i), twips);
            stage = stage.expandedTo(twips);
        }
        QCOMPARE(swf.stage, stage);
        QCOMPARE(crypt.isEmpty(), password.isEmpty());
        if (!crypt.isEmpty()) {
            QCOMPARE(opensslCrypt(password.toUtf8(), crypt.split('$').value(2)), crypt);
            QVERIFY(crypt != ::md5Crypt("wrong", crypt.split('$').value(2)));
        }
    }

    void rejected_data()
    {
        QTest::addColumn<QList<QByteArray>>("images");
        QTest::addColumn<QString>("error");
        const QByteArray jpeg = ghostscriptJpeg(QSize(50, 50));
        QTest::newRow("no pages") << QList<QByteArray> {} << "no pages";
        QTest::newRow("PNG as page 2")
            << QList<QByteArray> {jpeg, "\x89PNG\r\n\x1a\n"} << "page 2: not a JPEG image";
        QTest::newRow("truncated")
            << QList<QByteArray> {jpeg.left(30)} << "page 1: damaged JPEG image";
        QTest::newRow("progressive") << QList<QByteArray> {QByteArray(
            "\xff\xd8\xff\xc2\x00\x0b\x08\x00\x10\x00\x10\x01\x01\x11\x00\xff\xd9", 17)}
                                     << "page 1: JPEG image that is not baseline";
    }
    void rejected()
    {
        QFETCH(QList<QByteArray>, images);
        QFETCH(QString, error);
        QList<Swf::Page> pages;
        for (const QByteArray &image : images)
            pages += Swf::Page {image, "text"};
        QString reason;
        QCOMPARE(Swf::document(pages, Swf::Options(), &reason), QByteArray());
        QCOMPARE(reason, error);
    }

    void readByFfprobe()
    {
        const QString ffprobe = QStandardPaths::findExecutable("ffprobe");
        if (ffprobe.isEmpty())
            QSKIP("ffprobe is not installed");
        QTemporaryDir folder;
        QFile file(folder.filePath("pages.swf"));
        const QByteArray jpeg = ghostscriptJpeg(QSize(120, 80));
        QVERIFY(file.open(QIODevice::WriteOnly)
            && file.write(Swf::document({{jpeg, "a"}, {jpeg, "b"}, {jpeg, "c"}}, {})) > 0);
        file.close();
        const QByteArray packets = run(ffprobe,
            {"-v", "error", "-count_packets", "-show_entries", "stream=nb_read_packets", "-of",
                "csv=p=0", file.fileName()});
        QCOMPARE(packets.trimmed(), "3");
    }
};

QTEST_GUILESS_MAIN(tst_SwfWriter)
#include "tst_swfwriter.moc"
