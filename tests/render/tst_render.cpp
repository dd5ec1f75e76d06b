// SPDX-License-Identifier: GPL-3.0-or-later
// Every format rendered from a real job with the real tools, each output opened with a reader and
// checked against what the user asked for; bad input and vanishing folders end in one clear
// failure with nothing left behind.
#include "render/renderjob.h"
#include "settings/passwordscrambling.h"
#include "tests/writers/swfreader.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <csignal>

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Render;

Q_DECLARE_METATYPE(Render::Failure)

namespace {

// The word every page of a test job shows, with its page number.
const QString pageWord = "Zebra";

QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(120000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray contentOf(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

// A letter-size job of `pages` pages, each with a line of text and a coloured noise image: a PDF,
// or the PostScript program itself when `pdf` ends in ".ps".
void makeJob(const QString &pdf, int pages, bool image = true)
{
    QTemporaryDir dir;
    const QString ps = pdf.endsWith(".ps") ? pdf : dir.filePath("job.ps");
    QFile out(ps);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(
        "%!PS\n<< /PageSize [612 792] >> setpagedevice\n/Helvetica findfont 24 scalefont setfont\n"
        "/row 300 string def\n1 1 "
        + QByteArray::number(pages) + " { /n exch def 72 700 moveto (" + pageWord.toLatin1()
        + " ) show n 4 string cvs show\n");
    if (image)
        out.write("gsave 72 200 translate 300 300 scale 100 100 8 [100 0 0 -100 0 100]\n"
                  "{ 0 1 299 { row exch rand -16 bitshift 255 and put } for row } false 3 "
                  "colorimage grestore\n");
    out.write("showpage } for\n");
    out.close();
    if (ps == pdf)
        return;
    run("gs",
        {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite", "-sOutputFile=" + pdf, ps});
    QVERIFY(QFileInfo(pdf).size() > 0);
}

// The colour mode of an image file: "mono", "palette", "grey" or "rgb".
QString colourOf(const QString &file)
{
    const QByteArray data = contentOf(file);
    const QString suffix = QFileInfo(file).suffix();
    const auto grey = [](const char *rgb) { return rgb[0] == rgb[1] && rgb[1] == rgb[2]; };
    if (data.startsWith("\x89PNG")) {
        const int depth = data.at(24), type = data.at(25);
        return type == 3 ? "palette" : type == 2 ? "rgb" : depth == 1 ? "mono" : "grey";
    }
    if (data.startsWith("BM")) {
        const int bits = qFromLittleEndian<quint16>(data.constData() + 28);
        if (bits != 8)
            return bits == 1 ? "mono" : "rgb";
        const int table = 14 + qFromLittleEndian<quint32>(data.constData() + 14);
        for (int i = 0; i < 256; ++i)
            if (!grey(data.constData() + table + 4 * i))
                return "palette";
        return "grey";
    }
    if (data.startsWith("GIF8")) {
        const int entries = 2 << (data.at(10) & 7);
        for (int i = 0; i < entries; ++i)
            if (!grey(data.constData() + 13 + 3 * i))
                return "palette";
        return entries == 2 ? "mono" : "grey";
    }
    if (data.startsWith("\xff\xd8")) {
        const qsizetype frame = data.indexOf("\xff\xc0");
        return data.at(frame + 9) == 1 ? "grey" : "rgb";
    }
    if (suffix == "jp2")
        return run("opj_dump", {"-i", file}).contains("numcomps=1") ? "grey" : "rgb";
    if (suffix == "tif") {
        const QString info = run("tiffinfo", {file});
        if (info.contains("palette"))
            return "palette";
        if (info.contains("min-is-"))
            return info.contains("Bits/Sample: 1") ? "mono" : "grey";
        return "rgb";
    }
    if (suffix == "pdf")
        return run("pdfimages", {"-list", file})
                    .split('\n')
                    .value(2)
                    .section(' ', 5, 5, QString::SectionSkipEmpty)
                == "gray"
            ? "grey"
            : "rgb";
    return "unknown";
}

// The DC entry of the first quantisation table of a JPEG: 1 at quality 100, 80 at quality 10.
QString quantisationOf(const QByteArray &jpeg)
{
    const qsizetype table = jpeg.indexOf("\xff\xdb");
    return table < 0 ? QString() : QString::number(quint8(jpeg.at(table + 5)));
}

// Pages (frames, worksheets) of one output, read by the format's own reader.
int pagesOf(const QString &file, const QString &password)
{
    const QByteArray data = contentOf(file);
    const QString suffix = QFileInfo(file).suffix();
    if (data.startsWith("%PDF"))
        return run("qpdf", {"--password=" + password, "--show-npages", file}).toInt();
    if (suffix == "tif")
        return run("tiffinfo", {file}).count("TIFF Directory");
    if (data.startsWith("AT&T"))
        return run("djvused", {"-e", "n", file}).toInt();
    if (data.startsWith("CWS"))
        return SwfFile::read(data).frameCount;
    if (data.startsWith("{\\rtf"))
        return data.count("\\page ") + data.count("\\page\n") + data.count("\\page\\") + 1;
    if (data.contains("<Workbook"))
        return data.count("<Worksheet ");
    if (suffix == "html")
        return data.count("<img");
    return 1;
}

// Whether the page text can be read from an output.
bool hasText(const QString &file, const QString &password)
{
    const QByteArray data = contentOf(file);
    if (data.startsWith("%PDF")) {
        // Decrypted by qpdf first: pdftotext takes no password with a line break.
        QTemporaryDir plain;
        run("qpdf", {"--password=" + password, "--decrypt", file, plain.filePath("plain.pdf")});
        return run("pdftotext", {plain.filePath("plain.pdf"), "-"}).contains(pageWord);
    }
    if (data.startsWith("AT&T"))
        return run("djvutxt", {file}).contains(pageWord);
    if (data.startsWith("CWS"))
        return SwfFile::read(data).tags.value(37).join().contains(pageWord.toUtf8());
    return data.contains(pageWord.toUtf8());
}

// One property of an output, by the name a test row gives it.
QString propertyOf(const QString &name, const QString &file, const QVariantMap &settings)
{
    const QString password = settings.value("pdf_user_pw").toString();
    if (name == "colour")
        return colourOf(file);
    if (name == "text")
        return hasText(file, password) ? "yes" : "no";
    if (name == "width")
        return QString::number(qFromBigEndian<quint32>(contentOf(file).constData() + 16));
    if (name == "compression")
        return run("tiffinfo", {file}).section("Compression Scheme: ", 1, 1).section('\n', 0, 0);
    if (name == "quantisation")
        return quantisationOf(contentOf(file));
    if (name == "pdf quantisation") {
        QTemporaryDir images;
        run("pdfimages", {"-j", "-f", "1", "-l", "1", file, images.filePath("i")});
        return quantisationOf(contentOf(images.filePath("i-000.jpg")));
    }
    if (name.startsWith("info ")) {
        const QString line = ('\n' + run("pdfinfo", {"-upw", password, file}))
                                 .section('\n' + name.mid(5) + ':', 1, 1)
                                 .section('\n', 0, 0);
        return line.trimmed();
    }
    if (name.startsWith("encryption ")) {
        const QString info = run("qpdf", {"--show-encryption", "--password=" + password, file});
        return info.section(name.mid(11) + ": ", 1, 1).section('\n', 0, 0);
    }
    if (name == "swf protect" || name == "swf stop")
        return SwfFile::read(contentOf(file)).codes.contains(name == "swf protect" ? 24 : 12)
            ? "yes"
            : "no";
    return "unknown property " + name;
}

} // namespace

class tst_Render : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void formats_data();
    void formats();
    void failures_data();
    void failures();
    void existing_data();
    void existing();
    void folderDisappears();
    void diskFills();
    void command_data();
    void command();
    void stoppedBySignal_data();
    void stoppedBySignal();
    void staleWorkFolders_data();
    void staleWorkFolders();

private:
    void writeSettings(const QVariantMap &settings);
    QStringList leftovers() const;
    QString twentyPages();
    void startRender(QProcess &process, const QStringList &arguments);

    QTemporaryDir m_dir;
    QString m_job; // two pages
    QString m_out;
};

void tst_Render::initTestCase()
{
    for (const char *tool :
        {"gs", "qpdf", "pdftotext", "tiffinfo", "djvused", "opj_dump", "pdfimages"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            QSKIP(qPrintable(
                QString("%1 is not installed (scripts/install-deps.sh installs it)").arg(tool)));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath("user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, m_dir.filePath("machine"));
    m_job = m_dir.filePath("job.pdf");
    makeJob(m_job, 2);
}

void tst_Render::init()
{
    m_out = m_dir.filePath("out") + '/';
    QDir(m_out).removeRecursively();
    QDir().mkpath(m_out);
    QFile::remove(m_dir.filePath("user/Tarnwick/Vellumio.conf"));
    QFile::remove(m_dir.filePath("machine/Tarnwick/Vellumio.conf"));
}

// The values as the dialog leaves them after Print, passwords scrambled as it stores them. Rows
// render at 50 dpi unless they say otherwise; an invalid value leaves the value out.
void tst_Render::writeSettings(const QVariantMap &settings)
{
    QVariantMap values {
        {"Path", m_out}, {"newfilename", "Doc"}, {"isabort", "false"}, {"render_dpi", 50}};
    values.insert(settings);
    QSettings user(QSettings::NativeFormat, QSettings::UserScope, "Tarnwick", "Vellumio");
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!it.value().isValid())
            continue;
        const bool secret
            = it.key() == "pdf_user_pw" || it.key() == "pdf_owner_pw" || it.key() == "protect_swf";
        user.setValue(it.key(), secret ? scramblePassword(it.value().toString()) : it.value());
    }
}

// Files left in the output folder besides those a row expects: private folders included.
QStringList tst_Render::leftovers() const
{
    return QDir(m_out).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void tst_Render::formats_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("magic");
    QTest::addColumn<int>("pages"); // of every file but the extracted text
    QTest::addColumn<QVariantMap>("expected"); // property -> value, for every such file

    const QByteArray png("\x89PNG"), bmp("BM"), jpeg("\xff\xd8\xff"), gif("GIF8"), pdf("%PDF");
    const QByteArray jp2("\0\0\0\x0cjP  ", 8), tif("II*\0", 4), swf("CWS"), djvu("AT&TFORM");
    const QStringList two {"Doc.%1", "Doc2.%1"};
    const auto named = [](const QStringList &names, const char *extension) {
        QStringList files;
        for (const QString &name : names)
            files << name.arg(extension);
        return files;
    };

    QTest::newRow("PNG true colour at 300 dpi, Add 1")
        << QVariantMap {{"format", "png"}, {"image_color", "24"}, {"prefix_firstpage", "true"},
               {"render_dpi", {}}}
        << QStringList {"Doc1.png", "Doc2.png"} << png << 1
        << QVariantMap {{"colour", "rgb"}, {"width", "2550"}};
    QTest::newRow("PNG monochrome")
        << QVariantMap {{"format", "png"}, {"image_color", "1"}} << named(two, "png") << png << 1
        << QVariantMap {{"colour", "mono"}};
    QTest::newRow("PNG 256 colours")
        << QVariantMap {{"format", "png"}, {"image_color", "8"}} << named(two, "png") << png << 1
        << QVariantMap {{"colour", "palette"}};
    QTest::newRow("PNG greyscale, custom number 098")
        << QVariantMap {{"format", "png"}, {"image_color", "24g"}, {"custom_number", "098"}}
        << QStringList {"Doc098.png", "Doc099.png"} << png << 1 << QVariantMap {{"colour", "grey"}};
    QTest::newRow("BMP 256 colours")
        << QVariantMap {{"format", "bmp"}, {"image_color", "8"}} << named(two, "bmp") << bmp << 1
        << QVariantMap {{"colour", "palette"}};
    QTest::newRow("BMP greyscale, own extension")
        << QVariantMap {{"format", "bmp"}, {"image_color", "24g"}, {"ext_bmp", "dib"}}
        << named(two, "dib") << bmp << 1 << QVariantMap {{"colour", "grey"}};
    QTest::newRow("BMP monochrome")
        << QVariantMap {{"format", "bmp"}, {"image_color", "1"}} << named(two, "bmp") << bmp << 1
        << QVariantMap {{"colour", "mono"}};
    QTest::newRow("JPEG quality 10")
        << QVariantMap {{"format", "jpg"}, {"q_jpg", 10}} << named(two, "jpg") << jpeg << 1
        << QVariantMap {{"colour", "rgb"}, {"quantisation", "80"}};
    QTest::newRow("JPEG greyscale quality 100")
        << QVariantMap {{"format", "jpg"}, {"image_color", "24g"}} << named(two, "jpg") << jpeg << 1
        << QVariantMap {{"colour", "grey"}, {"quantisation", "1"}};
    QTest::newRow("JPEG 2000 greyscale")
        << QVariantMap {{"format", "jp2"}, {"image_color", "24g"}} << named(two, "jp2") << jp2 << 1
        << QVariantMap {{"colour", "grey"}};
    QTest::newRow("GIF monochrome")
        << QVariantMap {{"format", "gif"}, {"image_color", "1"}} << named(two, "gif") << gif << 1
        << QVariantMap {{"colour", "mono"}};
    QTest::newRow("GIF greyscale")
        << QVariantMap {{"format", "gif"}, {"image_color", "24g"}} << named(two, "gif") << gif << 1
        << QVariantMap {{"colour", "grey"}};
    QTest::newRow("GIF from true colour takes 256 colours")
        << QVariantMap {{"format", "gif"}, {"image_color", "24"}} << named(two, "gif") << gif << 1
        << QVariantMap {{"colour", "palette"}};
    QTest::newRow("TIFF LZW true colour, one file")
        << QVariantMap {{"format", "tif"}, {"format_ext", "LZW"}} << QStringList {"Doc.tif"} << tif
        << 2 << QVariantMap {{"compression", "LZW"}, {"colour", "rgb"}};
    QTest::newRow("TIFF G4, a file per page")
        << QVariantMap {{"format", "tif"}, {"format_ext", "G4"}, {"multipage_tiff", "false"},
               {"image_color", "24"}}
        << named(two, "tif") << tif << 1
        << QVariantMap {{"compression", "CCITT Group 4"}, {"colour", "mono"}};
    QTest::newRow("TIFF G3") << QVariantMap {{"format", "tif"}, {"format_ext", "G3"}}
                             << QStringList {"Doc.tif"} << tif << 2
                             << QVariantMap {{"compression", "CCITT Group 3"}, {"colour", "mono"}};
    QTest::newRow("TIFF JPEG greyscale")
        << QVariantMap {{"format", "tif"}, {"format_ext", "JPEG"}, {"image_color", "24g"},
               {"q_tif", 40}}
        << QStringList {"Doc.tif"} << tif << 2
        << QVariantMap {{"compression", "JPEG"}, {"colour", "grey"}};
    QTest::newRow("TIFF ZIP 256 colours")
        << QVariantMap {{"format", "tif"}, {"format_ext", "ZIP"}, {"image_color", "8"}}
        << QStringList {"Doc.tif"} << tif << 2
        << QVariantMap {{"compression", "Deflate"}, {"colour", "palette"}};
    QTest::newRow("TIFF ZIP monochrome, a file per page")
        << QVariantMap {{"format", "tif"}, {"format_ext", "ZIP"}, {"image_color", "1"},
               {"multipage_tiff", "false"}}
        << named(two, "tif") << tif << 1
        << QVariantMap {{"compression", "AdobeDeflate"}, {"colour", "mono"}};
    QTest::newRow("TIFF PackBits greyscale")
        << QVariantMap {{"format", "tif"}, {"format_ext", "PACKBITS"}, {"image_color", "24g"}}
        << QStringList {"Doc.tif"} << tif << 2
        << QVariantMap {{"compression", "PackBits"}, {"colour", "grey"}};
    QTest::newRow("PDF document information")
        << QVariantMap {{"format", "pdf"}, {"pdf_title", "Tï \"quoted\" Жук"},
               {"pdf_author", "A\\B"}, {"pdf_subject", "S"}, {"pdf_keywords", "k1, k2"},
               {"pdf_creator", "C"}, {"pdf_producer", "Prod"}}
        << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"info Title", "Tï \"quoted\" Жук"}, {"info Author", "A\\B"},
               {"info Subject", "S"}, {"info Keywords", "k1, k2"}, {"info Creator", "C"},
               {"info Producer", "Prod"}, {"text", "yes"}, {"colour", "rgb"}};
    QTest::newRow("PDF greyscale without text, a file per page")
        << QVariantMap {{"format", "pdf"}, {"image_color", "24g"}, {"pdf_text", "false"},
               {"multipage_pdf", "false"}}
        << named(two, "pdf") << pdf << 1 << QVariantMap {{"text", "no"}, {"colour", "grey"}};
    QTest::newRow("PDF quality 10")
        << QVariantMap {{"format", "pdf"}, {"q_pdf", 10}} << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"pdf quantisation", "80"}, {"kept", "no"}};
    QTest::newRow("PDF kept as the job made it")
        << QVariantMap {{"format", "pdf"}} << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"kept", "yes"}, {"text", "yes"}};
    QTest::newRow("PDF kept, a file per page")
        << QVariantMap {{"format", "pdf"}, {"multipage_pdf", "false"}} << named(two, "pdf") << pdf
        << 1 << QVariantMap {{"text", "yes"}, {"colour", "rgb"}};
    QTest::newRow("PDF greyscale drawn anew with its text")
        << QVariantMap {{"format", "pdf"}, {"image_color", "24g"}} << QStringList {"Doc.pdf"} << pdf
        << 2 << QVariantMap {{"kept", "no"}, {"text", "yes"}, {"colour", "grey"}};
    QTest::newRow("PostScript job as PDF")
        << QVariantMap {{"format", "pdf"}, {"job", "ps"}} << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"text", "yes"}, {"colour", "rgb"}};
    QTest::newRow("PostScript job as PNG")
        << QVariantMap {{"format", "png"}, {"job", "ps"}} << named(two, "png") << png << 1
        << QVariantMap {{"colour", "rgb"}};
    QTest::newRow("PDF protected, odd passwords")
        << QVariantMap {{"format", "pdf"}, {"pdf_protect", true}, {"pdf_user_pw", "u\"s\\er\nÆ"},
               {"pdf_owner_pw", "own€r"}, {"pdf_protect_print", "true"},
               {"pdf_protect_highprint", "true"}, {"pdf_protect_copy", "true"},
               {"pdf_protect_assemble", "true"}}
        << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"encryption print high resolution", "allowed"},
               {"encryption extract for any purpose", "allowed"},
               {"encryption modify document assembly", "allowed"},
               {"encryption modify other", "not allowed"},
               {"encryption modify annotations", "not allowed"},
               {"encryption modify forms", "not allowed"},
               {"encryption file encryption method", "AESv2"}, {"text", "yes"}};
    QTest::newRow("PDF protected, printing only at low resolution")
        << QVariantMap {{"format", "pdf"}, {"pdf_protect", true}, {"pdf_owner_pw", "o"},
               {"pdf_protect_print", "true"}, {"pdf_protect_editnotes", "true"},
               {"pdf_protect_fillandsign", "true"}, {"pdf_protect_edit", "true"}}
        << QStringList {"Doc.pdf"} << pdf << 2
        << QVariantMap {{"encryption print low resolution", "allowed"},
               {"encryption print high resolution", "not allowed"},
               {"encryption modify annotations", "allowed"}, {"encryption modify forms", "allowed"},
               {"encryption modify other", "allowed"},
               {"encryption extract for any purpose", "not allowed"}};
    QTest::newRow("RTF") << QVariantMap {{"format", "rtf"}} << QStringList {"Doc.rtf"}
                         << QByteArray("{\\rtf") << 2 << QVariantMap {{"text", "yes"}};
    QTest::newRow("MS Excel") << QVariantMap {{"format", "msxml"}} << QStringList {"Doc.xls"}
                              << QByteArray("<?xml") << 2 << QVariantMap {{"text", "yes"}};
    QTest::newRow("HTML with text, a file per page")
        << QVariantMap {{"format", "htm"}, {"multipage_htm", "false"}} << named(two, "html")
        << QByteArray("<!DOCTYPE") << 1 << QVariantMap {{"text", "yes"}};
    QTest::newRow("HTML of page images")
        << QVariantMap {{"format", "htm"}, {"htm_text", "false"}, {"q_htm", 30}}
        << QStringList {"Doc.html"} << QByteArray("<!DOCTYPE") << 2 << QVariantMap {{"text", "no"}};
    QTest::newRow("SWF protected, stopping, with text")
        << QVariantMap {{"format", "swf"}, {"b_protect_swf", "true"}, {"protect_swf", "pw"}}
        << QStringList {"Doc.swf"} << swf << 2
        << QVariantMap {{"swf protect", "yes"}, {"swf stop", "yes"}, {"text", "yes"}};
    QTest::newRow("SWF animated without text, a file per page")
        << QVariantMap {{"format", "swf"}, {"swf_animate", "true"}, {"swf_text", "false"},
               {"multipage_swf", "false"}, {"protect_swf", "pw"}}
        << named(two, "swf") << swf << 1
        << QVariantMap {{"swf protect", "no"}, {"swf stop", "no"}, {"text", "no"}};
    QTest::newRow("DjVu, one file") << QVariantMap {{"format", "djvu"}} << QStringList {"Doc.djvu"}
                                    << djvu << 2 << QVariantMap {{"text", "yes"}};
    QTest::newRow("DjVu greyscale, a file per page")
        << QVariantMap {{"format", "djvu"}, {"image_color", "24g"}, {"multipage_djvu", "false"}}
        << named(two, "djvu") << djvu << 1 << QVariantMap {{"text", "yes"}};
    QTest::newRow("text extracted, a name with folders, dashes and a tab")
        << QVariantMap {{"format", "jpg"}, {"extract_text", "true"},
               {"newfilename", "-x/../--dr\taft 'one'"}}
        << QStringList {"--draft 'one'.jpg", "--draft 'one'2.jpg", "--draft 'one'.txt"} << jpeg << 1
        << QVariantMap {{"text", "no"}};
    QTest::newRow("text asked in capitals is not extracted")
        << QVariantMap {{"format", "rtf"}, {"extract_text", "TRUE"}} << QStringList {"Doc.rtf"}
        << QByteArray("{\\rtf") << 2 << QVariantMap {};
    QTest::newRow("500 pages in one TIFF")
        << QVariantMap {{"format", "tif"}, {"format_ext", "G4"}, {"render_dpi", 10}, {"job", 500}}
        << QStringList {"Doc.tif"} << tif << 500 << QVariantMap {{"compression", "CCITT Group 4"}};
}

void tst_Render::formats()
{
    QFETCH(QVariantMap, settings);
    QFETCH(QStringList, files);
    QFETCH(QByteArray, magic);
    QFETCH(int, pages);
    QFETCH(QVariantMap, expected);

    QString job = m_job;
    if (settings.value("job") == "ps") {
        job = m_dir.filePath("job.ps");
        makeJob(job, 2);
    } else if (settings.contains("job")) {
        job = m_dir.filePath("long.pdf");
        if (!QFileInfo::exists(job))
            makeJob(job, settings.value("job").toInt(), false);
    }
    writeSettings(settings);
    const Result result = renderJob(job);
    QVERIFY2(result.ok(), qPrintable(result.message));

    QStringList expectedPaths;
    for (const QString &file : files)
        expectedPaths << QDir(m_out).absoluteFilePath(file);
    QCOMPARE(result.files, expectedPaths);
    QStringList sorted = files;
    sorted.sort();
    QCOMPARE(leftovers(), sorted);

    for (const QString &path : result.files) {
        if (path.endsWith(".txt")) {
            QVERIFY(contentOf(path).contains((pageWord + " 2").toUtf8()));
            continue;
        }
        QVERIFY2(contentOf(path).startsWith(magic), qPrintable(path));
        QCOMPARE(pagesOf(path, settings.value("pdf_user_pw").toString()), pages);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            // Kept: the very bytes of the job.
            const QString actual = it.key() == "kept"
                ? (contentOf(path) == contentOf(job) ? "yes" : "no")
                : propertyOf(it.key(), path, settings);
            QCOMPARE(actual, it.value().toString());
        }
    }
}

void tst_Render::failures_data()
{
    QTest::addColumn<QByteArray>("job"); // the job's PDF
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QStringList>("tools"); // when given, the only programs on the PATH
    QTest::addColumn<Failure>("expected");
    QTest::addColumn<QString>("named"); // a word the message holds

    const QByteArray good = contentOf(m_job);
    const QVariantMap png {{"format", "png"}};
    QTest::newRow("damaged job") << good.left(300) << png << QStringList() << Failure::DamagedJob
                                 << "cannot be read";
    QTest::newRow("empty job") << QByteArray() << png << QStringList() << Failure::DamagedJob
                               << "cannot be read";
    QTest::newRow("job without pages")
        << QByteArray("%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n"
                      "<< /Type /Pages /Kids [] /Count 0 >>\nendobj\ntrailer\n<< /Root 1 0 R >>\n"
                      "%%EOF\n")
        << png << QStringList() << Failure::DamagedJob << "no pages";
    QTest::newRow("damaged PostScript")
        << QByteArray("%!PS\n/Helvetica findfont 9 scalefont setfont (x) shw showpage\n") << png
        << QStringList() << Failure::DamagedJob << "cannot be converted";
    QTest::newRow("folder missing")
        << good << QVariantMap {{"format", "png"}, {"Path", m_dir.filePath("nowhere/")}}
        << QStringList() << Failure::FolderGone << "does not exist";
    QTest::newRow("folder is a file") << good << QVariantMap {{"format", "png"}, {"Path", m_job}}
                                      << QStringList() << Failure::FolderGone << "does not exist";
    QTest::newRow("non-Latin PDF password")
        << good << QVariantMap {{"format", "pdf"}, {"pdf_protect", true}, {"pdf_user_pw", "пароль"}}
        << QStringList() << Failure::Refused << "user password";
    QTest::newRow("PDF password too long") << good
                                           << QVariantMap {{"format", "pdf"}, {"pdf_protect", true},
                                                  {"pdf_owner_pw", QString(33, 'x')}}
                                           << QStringList() << Failure::Refused << "longer than 32";
    QTest::newRow("job name that names no file")
        << good << QVariantMap {{"format", "png"}, {"newfilename", "x/.."}} << QStringList()
        << Failure::Refused << "no file name";
    QTest::newRow("DjVu without pdf2djvu")
        << good << QVariantMap {{"format", "djvu"}} << QStringList {"gs", "qpdf", "pdftotext"}
        << Failure::MissingTool << "pdf2djvu";
}

void tst_Render::failures()
{
    QFETCH(QByteArray, job);
    QFETCH(QVariantMap, settings);
    QFETCH(QStringList, tools);
    QFETCH(Failure, expected);
    QFETCH(QString, named);

    QFile file(m_dir.filePath("row.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(job);
    file.close();
    const QByteArray path = qgetenv("PATH");
    if (!tools.isEmpty()) {
        const QString bin = m_dir.filePath("bin");
        QDir().mkpath(bin);
        for (const QString &tool : tools)
            QFile::link(QStandardPaths::findExecutable(tool), bin + '/' + tool);
        qputenv("PATH", QFile::encodeName(bin));
    }
    writeSettings(settings);
    const Result result = renderJob(file.fileName());
    qputenv("PATH", path);

    QCOMPARE(result.failure, expected);
    QVERIFY2(result.message.contains(named), qPrintable(result.message));
    QVERIFY(!result.message.contains('\n'));
    QVERIFY(result.files.isEmpty());
    QCOMPARE(leftovers(), QStringList());
}

void tst_Render::existing_data()
{
    QTest::addColumn<Existing>("existing");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("written");

    QTest::newRow("replace") << Existing::Replace << QStringList {"Doc.pdf"}
                             << QStringList {"Doc.pdf"};
    QTest::newRow("keep all") << Existing::KeepAll << QStringList {"Doc.pdf", "Doc (2).pdf"}
                              << QStringList {"Doc (3).pdf"};
    QTest::newRow("keep all, a set of pages with its text")
        << Existing::KeepAll << QStringList {"Doc2.png"}
        << QStringList {"Doc (2).png", "Doc2 (2).png", "Doc (2).txt"};
}

Q_DECLARE_METATYPE(Render::Existing)

void tst_Render::existing()
{
    QFETCH(Existing, existing);
    QFETCH(QStringList, present);
    QFETCH(QStringList, written);

    for (const QString &name : present) {
        QFile old(m_out + name);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("kept");
    }
    const bool pages = written.first().endsWith(".png");
    writeSettings({{"format", pages ? "png" : "pdf"}, {"extract_text", pages ? "true" : "false"}});
    const Result result = renderJob(m_job, QString(), existing);
    QVERIFY2(result.ok(), qPrintable(result.message));
    QStringList names;
    for (const QString &file : result.files)
        names << QFileInfo(file).fileName();
    QCOMPARE(names, written);
    for (const QString &name : present) {
        const bool replaced = written.contains(name);
        QCOMPARE(contentOf(m_out + name) == "kept", !replaced);
    }
}

void tst_Render::folderDisappears()
{
    // Long enough to be caught in the middle: JPEG 2000 at 300 dpi.
    writeSettings({{"format", "jp2"}, {"render_dpi", 300}});
    std::atomic<bool> removed {false};
    std::thread remover([&] {
        for (int i = 0; i < 3000 && !removed; ++i) {
            if (!QDir(m_out).entryList({".vellumio-*"}, QDir::Dirs | QDir::Hidden).isEmpty())
                removed = QDir(m_out).removeRecursively();
            QThread::msleep(5);
        }
    });
    const Result result = renderJob(m_job);
    remover.join();
    QVERIFY(removed);
    QCOMPARE(result.failure, Failure::FolderGone);
    QVERIFY2(result.message.contains("disappeared"), qPrintable(result.message));
    QVERIFY(!QFileInfo::exists(m_out));
}

void tst_Render::diskFills()
{
    const QByteArray target = QFile::encodeName(m_out);
    if (::mount("tmpfs", target.constData(), "tmpfs", 0, "size=1m,mode=0755") != 0)
        QSKIP(qPrintable("a small file system for the output cannot be mounted here: "
            + QString::fromLocal8Bit(strerror(errno))));
    // True colour BMP at 300 dpi: 25 MB a page.
    writeSettings({{"format", "bmp"}, {"render_dpi", 300}});
    const Result result = renderJob(m_job);
    const QStringList left = leftovers();
    ::umount(target.constData());
    QCOMPARE(result.failure, Failure::DiskFull);
    QVERIFY2(result.message.contains("full"), qPrintable(result.message));
    QCOMPARE(left, QStringList());
}

void tst_Render::command_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("printed");

    QTest::newRow("renders and prints the paths")
        << QStringList {"job.pdf", "-Report"} << 0 << QStringList {"-Report.pdf"};
    QTest::newRow("damaged job") << QStringList {"user"} << 1 << QStringList {};
    QTest::newRow("no job") << QStringList {} << 2 << QStringList {};
}

// vellumio-render as the user runs it: the paths it wrote on standard output, or one line naming
// the cause and a failing status.
void tst_Render::command()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QStringList, printed);

    writeSettings({{"format", "pdf"}});
    QProcess process;
    startRender(process, arguments);
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitCode(), status);
    QStringList paths;
    for (const QString &name : printed)
        paths << QDir(m_out).absoluteFilePath(name);
    QCOMPARE(
        QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
        paths);
    const QString errors = QString::fromLocal8Bit(process.readAllStandardError());
    QCOMPARE(errors.count('\n'), status == 0 ? 0 : 1);
}

QString tst_Render::twentyPages()
{
    const QString job = m_dir.filePath("twenty.pdf");
    if (!QFileInfo::exists(job))
        makeJob(job, 20, false);
    return job;
}

// vellumio-render as the user runs it, with the test's settings keys.
void tst_Render::startRender(QProcess &process, const QStringList &arguments)
{
    process.setWorkingDirectory(m_dir.path());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_dir.filePath("user"));
    environment.insert("XDG_CONFIG_DIRS", m_dir.filePath("machine"));
    process.setProcessEnvironment(environment);
    process.start(
        QFileInfo(qEnvironmentVariable("FMTASK_BINARY")).dir().filePath("vellumio-render"),
        arguments);
}

void tst_Render::stoppedBySignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

// vellumio-render ended in the middle of a job: it ends by the signal, its tools end with it and
// nothing is left in the output folder.
void tst_Render::stoppedBySignal()
{
    QFETCH(int, signal);
    const QString job = twentyPages();
    writeSettings({{"format", "jp2"}, {"render_dpi", 150}});
    QProcess process;
    startRender(process, {job});
    QVERIFY(process.waitForStarted());
    // Mid-render: once the first page is finished in the work folder.
    bool started = false;
    for (int i = 0; i < 1200 && !started && process.state() == QProcess::Running; ++i) {
        QThread::msleep(50);
        started = QDirIterator(
            m_out, {"*.jp2"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories)
                      .hasNext();
    }
    QVERIFY2(started, process.readAllStandardError().constData());
    ::kill(pid_t(process.processId()), signal);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), signal);
    QCOMPARE(leftovers(), QStringList());
    QStringList working; // tools still running in the output folder
    QDirIterator processes("/proc", {"[0-9]*"}, QDir::Dirs);
    while (processes.hasNext()) {
        const QString folder = QFileInfo(processes.next() + "/cwd").symLinkTarget();
        if (folder.startsWith(QDir(m_out).absolutePath()))
            working << folder;
    }
    QCOMPARE(working, QStringList());
}

void tst_Render::staleWorkFolders_data()
{
    QTest::addColumn<int>("ageHours");
    QTest::addColumn<bool>("held"); // locked, as a live run holds its folder
    QTest::addColumn<bool>("othersUser");
    QTest::addColumn<bool>("removed");
    QTest::newRow("left two days ago") << 48 << false << false << true;
    QTest::newRow("left an hour ago") << 1 << false << false << false;
    QTest::newRow("two days old, a live run's") << 48 << true << false << false;
    QTest::newRow("two days old, another user's") << 48 << false << true << false;
}

// The work folder of a run that was killed is removed by a later run, and no other.
void tst_Render::staleWorkFolders()
{
    QFETCH(int, ageHours);
    QFETCH(bool, held);
    QFETCH(bool, othersUser);
    QFETCH(bool, removed);
    if (othersUser && ::geteuid() != 0)
        QSKIP("only root can leave a folder of another user");
    const QString left = m_out + ".vellumio-Ab12Cd";
    QVERIFY(QDir().mkpath(left + "/inner"));
    QFile page(left + "/r1-1.png");
    QVERIFY(page.open(QIODevice::WriteOnly) && page.write("half a page") > 0);
    page.close();
    if (othersUser)
        QCOMPARE(::chown(QFile::encodeName(left).constData(), 65534, 65534), 0);
    const int fd = ::open(QFile::encodeName(left).constData(), O_RDONLY | O_DIRECTORY);
    QVERIFY(fd >= 0);
    if (held)
        QCOMPARE(::flock(fd, LOCK_EX), 0);
    const timespec age[2]
        = {{::time(nullptr) - ageHours * 3600, 0}, {::time(nullptr) - ageHours * 3600, 0}};
    QCOMPARE(::futimens(fd, age), 0);

    writeSettings({{"format", "png"}});
    const Result result = renderJob(m_job);
    ::close(fd);
    QVERIFY2(result.ok(), qPrintable(result.message));
    QCOMPARE(QFileInfo::exists(left), !removed);
}

QTEST_GUILESS_MAIN(tst_Render)
#include "tst_render.moc"
