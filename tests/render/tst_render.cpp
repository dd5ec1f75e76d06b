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

// Rows give settings and expectations as "name=value|name=value".
QVariantMap mapOf(const QString &pairs)
{
    QVariantMap map;
    for (const QString &pair : pairs.split('|', Qt::SkipEmptyParts))
        map.insert(pair.section('=', 0, 0), pair.section('=', 1));
    return map;
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
    if (data.startsWith("\xff\xd8"))
        return data.at(data.indexOf("\xff\xc0") + 9) == 1 ? "grey" : "rgb";
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
QString propertyOf(const QString &name, const QString &file, const QString &password)
{
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
    if (name.startsWith("info "))
        return ('\n' + run("pdfinfo", {"-upw", password, file}))
            .section('\n' + name.mid(5) + ':', 1, 1)
            .section('\n', 0, 0)
            .trimmed();
    if (name.startsWith("encryption "))
        return run("qpdf", {"--show-encryption", "--password=" + password, file})
            .section(name.mid(11) + ": ", 1, 1)
            .section('\n', 0, 0);
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

    QTemporaryDir m_dir;
    const QString m_job = m_dir.filePath("job.pdf"); // two pages
    const QString m_out = m_dir.filePath("out") + '/';

    // The values as the dialog leaves them after Print, passwords scrambled as it stores them.
    // Rows render at 50 dpi unless they say otherwise; an empty value leaves the value out.
    void writeSettings(const QString &pairs)
    {
        QVariantMap values = mapOf("newfilename=Doc|isabort=false|render_dpi=50|Path=" + m_out);
        values.insert(mapOf(pairs));
        QSettings user(QSettings::NativeFormat, QSettings::UserScope, "Tarnwick", "Vellumio");
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            const QString value = it.value().toString();
            const bool secret
                = QStringList {"pdf_user_pw", "pdf_owner_pw", "protect_swf"}.contains(it.key());
            if (!value.isEmpty())
                user.setValue(it.key(), secret ? scramblePassword(value) : value);
        }
    }

    // Files left in the output folder besides those a row expects: private folders included.
    QStringList leftovers() const
    {
        return QDir(m_out).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    // vellumio-render as the user runs it, with the test's settings keys.
    void startRender(QProcess &process, const QStringList &arguments)
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

private slots:
    void initTestCase()
    {
        for (const char *tool :
            {"gs", "qpdf", "pdftotext", "tiffinfo", "djvused", "opj_dump", "pdfimages"})
            if (QStandardPaths::findExecutable(tool).isEmpty())
                QSKIP(
                    qPrintable(QString("%1 is not installed (scripts/install-deps.sh installs it)")
                                   .arg(tool)));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath("user"));
        QSettings::setPath(
            QSettings::NativeFormat, QSettings::SystemScope, m_dir.filePath("machine"));
        makeJob(m_job, 2);
    }

    void init()
    {
        QDir(m_out).removeRecursively();
        QDir().mkpath(m_out);
        QFile::remove(m_dir.filePath("user/Tarnwick/Vellumio.conf"));
        QFile::remove(m_dir.filePath("machine/Tarnwick/Vellumio.conf"));
    }

    // Settings, the files written in order, the pages of each (but the extracted text) and the
    // properties every such file has. "job" asks for a PostScript job or one of that many pages,
    // "present" for files at the names before, "existing" for keeping them all.
    void formats_data()
    {
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("files");
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &settings, const char *files, int pages,
                             const QString &expected) {
            QTest::newRow(name) << settings << QString(files) << pages << expected;
        };
        const QString protect = "format=pdf|pdf_protect=true|pdf_protect_print=true|";
        // clang-format off
        row("PNG true colour at 300 dpi, Add 1", "format=png|image_color=24|prefix_firstpage=true|render_dpi=", "Doc1.png|Doc2.png", 1, "colour=rgb|width=2550");
        row("PNG monochrome",                    "format=png|image_color=1",                 "Doc.png|Doc2.png",   1, "colour=mono");
        row("PNG 256 colours",                   "format=png|image_color=8",                 "Doc.png|Doc2.png",   1, "colour=palette");
        row("PNG greyscale, custom number 098",  "format=png|image_color=24g|custom_number=098", "Doc098.png|Doc099.png", 1, "colour=grey");
        row("BMP 256 colours",                   "format=bmp|image_color=8",                 "Doc.bmp|Doc2.bmp",   1, "colour=palette");
        row("BMP greyscale, own extension",      "format=bmp|image_color=24g|ext_bmp=dib",   "Doc.dib|Doc2.dib",   1, "colour=grey");
        row("BMP monochrome",                    "format=bmp|image_color=1",                 "Doc.bmp|Doc2.bmp",   1, "colour=mono");
        row("JPEG quality 10",                   "format=jpg|q_jpg=10",                      "Doc.jpg|Doc2.jpg",   1, "colour=rgb|quantisation=80");
        row("JPEG greyscale quality 100",        "format=jpg|image_color=24g",               "Doc.jpg|Doc2.jpg",   1, "colour=grey|quantisation=1");
        row("JPEG 2000 greyscale",               "format=jp2|image_color=24g",               "Doc.jp2|Doc2.jp2",   1, "colour=grey");
        row("GIF monochrome",                    "format=gif|image_color=1",                 "Doc.gif|Doc2.gif",   1, "colour=mono");
        row("GIF greyscale",                     "format=gif|image_color=24g",               "Doc.gif|Doc2.gif",   1, "colour=grey");
        row("GIF from true colour takes 256 colours", "format=gif|image_color=24",           "Doc.gif|Doc2.gif",   1, "colour=palette");
        row("TIFF LZW true colour, one file",    "format=tif|format_ext=LZW",                "Doc.tif",            2, "compression=LZW|colour=rgb");
        row("TIFF G4, a file per page",          "format=tif|format_ext=G4|multipage_tiff=false|image_color=24", "Doc.tif|Doc2.tif", 1, "compression=CCITT Group 4|colour=mono");
        row("TIFF G3",                           "format=tif|format_ext=G3",                 "Doc.tif",            2, "compression=CCITT Group 3|colour=mono");
        row("TIFF JPEG greyscale",               "format=tif|format_ext=JPEG|image_color=24g|q_tif=40", "Doc.tif", 2, "compression=JPEG|colour=grey");
        row("TIFF ZIP 256 colours",              "format=tif|format_ext=ZIP|image_color=8",  "Doc.tif",            2, "compression=Deflate|colour=palette");
        row("TIFF ZIP monochrome, a file per page", "format=tif|format_ext=ZIP|image_color=1|multipage_tiff=false", "Doc.tif|Doc2.tif", 1, "compression=AdobeDeflate|colour=mono");
        row("TIFF PackBits greyscale",           "format=tif|format_ext=PACKBITS|image_color=24g", "Doc.tif",      2, "compression=PackBits|colour=grey");
        row("PDF document information",
            "format=pdf|pdf_title=Tï \"quoted\" Жук|pdf_author=A\\B|pdf_subject=S|pdf_keywords=k1, k2|pdf_creator=C|pdf_producer=Prod", "Doc.pdf", 2,
            "info Title=Tï \"quoted\" Жук|info Author=A\\B|info Subject=S|info Keywords=k1, k2|info Creator=C|info Producer=Prod|text=yes|colour=rgb");
        row("PDF greyscale without text, a file per page", "format=pdf|image_color=24g|pdf_text=false|multipage_pdf=false", "Doc.pdf|Doc2.pdf", 1, "text=no|colour=grey");
        row("PDF quality 10",                    "format=pdf|q_pdf=10",                      "Doc.pdf",            2, "pdf quantisation=80|kept=no");
        row("PDF kept as the job made it",       "format=pdf",                               "Doc.pdf",            2, "kept=yes|text=yes");
        row("PDF kept, a file per page",         "format=pdf|multipage_pdf=false",           "Doc.pdf|Doc2.pdf",   1, "text=yes|colour=rgb");
        row("PDF greyscale drawn anew with its text", "format=pdf|image_color=24g",          "Doc.pdf",            2, "kept=no|text=yes|colour=grey");
        row("PostScript job as PDF",             "format=pdf|job=ps",                        "Doc.pdf",            2, "text=yes|colour=rgb");
        row("PostScript job as PNG",             "format=png|job=ps",                        "Doc.png|Doc2.png",   1, "colour=rgb");
        row("PDF protected, odd passwords",
            protect + "pdf_user_pw=u\"s\\er\nÆ|pdf_owner_pw=own€r|pdf_protect_highprint=true|pdf_protect_copy=true|pdf_protect_assemble=true", "Doc.pdf", 2,
            "encryption print high resolution=allowed|encryption modify document assembly=allowed|encryption modify other=not allowed|"
            "encryption modify annotations=not allowed|encryption modify forms=not allowed|encryption file encryption method=AESv2|text=yes|encryption extract for any purpose=allowed");
        row("PDF protected, printing only at low resolution",
            protect + "pdf_owner_pw=o|pdf_protect_editnotes=true|pdf_protect_fillandsign=true|pdf_protect_edit=true", "Doc.pdf", 2,
            "encryption print low resolution=allowed|encryption print high resolution=not allowed|encryption modify annotations=allowed|"
            "encryption modify forms=allowed|encryption modify other=allowed|encryption extract for any purpose=not allowed");
        row("RTF",                               "format=rtf",                               "Doc.rtf",            2, "text=yes");
        row("MS Excel",                          "format=msxml",                             "Doc.xls",            2, "text=yes");
        row("HTML with text, a file per page",   "format=htm|multipage_htm=false",           "Doc.html|Doc2.html", 1, "text=yes");
        row("HTML of page images",               "format=htm|htm_text=false|q_htm=30",       "Doc.html",           2, "text=no");
        row("SWF protected, stopping, with text", "format=swf|b_protect_swf=true|protect_swf=pw", "Doc.swf",       2, "swf protect=yes|swf stop=yes|text=yes");
        row("SWF animated without text, a file per page", "format=swf|swf_animate=true|swf_text=false|multipage_swf=false|protect_swf=pw", "Doc.swf|Doc2.swf", 1, "swf protect=no|swf stop=no|text=no");
        row("DjVu, one file",                    "format=djvu",                              "Doc.djvu",           2, "text=yes");
        row("DjVu greyscale, a file per page",   "format=djvu|image_color=24g|multipage_djvu=false", "Doc.djvu|Doc2.djvu", 1, "text=yes");
        row("text extracted, a name with folders, dashes and a tab", "format=jpg|extract_text=true|newfilename=-x/../--dr\taft 'one'",
            "--draft 'one'.jpg|--draft 'one'2.jpg|--draft 'one'.txt", 1, "text=no");
        row("text asked in capitals is not extracted", "format=rtf|extract_text=TRUE",       "Doc.rtf",            2, "");
        row("replacing a file at the name",      "format=pdf|present=Doc.pdf",               "Doc.pdf",            2, "kept=yes");
        row("keeping all",                       "format=pdf|present=Doc.pdf,Doc (2).pdf|existing=keep all", "Doc (3).pdf", 2, "kept=yes");
        row("keeping all, a set of pages with its text", "format=png|extract_text=true|present=Doc2.png|existing=keep all", "Doc (2).png|Doc2 (2).png|Doc (2).txt", 1, "colour=rgb");
        row("500 pages in one TIFF",             "format=tif|format_ext=G4|render_dpi=10|job=500", "Doc.tif",    500, "compression=CCITT Group 4");
        // clang-format on
    }
    void formats()
    {
        QFETCH(QString, settings);
        QFETCH(QString, files);
        QFETCH(int, pages);
        QFETCH(QString, expected);
        const QVariantMap options = mapOf(settings);
        const QString password = options.value("pdf_user_pw").toString();
        QString job = m_job;
        if (options.value("job") == "ps") {
            job = m_dir.filePath("job.ps");
            makeJob(job, 2);
        } else if (options.contains("job")) {
            job = m_dir.filePath("long.pdf");
            if (!QFileInfo::exists(job))
                makeJob(job, options.value("job").toInt(), false);
        }
        const QStringList present
            = options.value("present").toString().split(',', Qt::SkipEmptyParts);
        for (const QString &name : present) {
            QFile old(m_out + name);
            QVERIFY(old.open(QIODevice::WriteOnly) && old.write("kept") == 4);
        }
        writeSettings(settings);
        const Result result = renderJob(
            job, QString(), options.contains("existing") ? Existing::KeepAll : Existing::Replace);
        QVERIFY2(result.ok(), qPrintable(result.message));

        QStringList names = files.split('|'), paths;
        for (const QString &name : names)
            paths << QDir(m_out).absoluteFilePath(name);
        QCOMPARE(result.files, paths);
        for (const QString &name : present)
            QCOMPARE(contentOf(m_out + name) == "kept", !names.contains(name));
        names += present;
        names.removeDuplicates();
        names.sort();
        QCOMPARE(leftovers(), names);

        const QHash<QString, QByteArray> magic {{"png", "\x89PNG"}, {"bmp", "BM"},
            {"jpg", "\xff\xd8\xff"}, {"jp2", QByteArray("\0\0\0\x0cjP  ", 8)}, {"gif", "GIF8"},
            {"tif", QByteArray("II*\0", 4)}, {"pdf", "%PDF"}, {"swf", "CWS"}, {"djvu", "AT&TFORM"},
            {"rtf", "{\\rtf"}, {"msxml", "<?xml"}, {"htm", "<!DOCTYPE"}};
        const QVariantMap properties = mapOf(expected);
        for (const QString &path : result.files) {
            if (path.endsWith(".txt")) {
                QVERIFY(contentOf(path).contains((pageWord + " 2").toUtf8()));
                continue;
            }
            QVERIFY2(contentOf(path).startsWith(magic[options.value("format").toString()]),
                qPrintable(path));
            QCOMPARE(pagesOf(path, password), pages);
            for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
                // Kept: the very bytes of the job.
                const QString actual = it.key() == "kept"
                    ? (contentOf(path) == contentOf(job) ? "yes" : "no")
                    : propertyOf(it.key(), path, password);
                QCOMPARE(actual, it.value().toString());
            }
        }
    }

    // Around the run: "PATH=..." the only programs found, "removed" the output folder removed
    // once the work has started, "full" the output on a file system of 1 MB.
    void failures_data()
    {
        QTest::addColumn<QByteArray>("job"); // the job's PDF
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("around");
        QTest::addColumn<Failure>("expected");
        QTest::addColumn<QString>("named"); // a word the message holds
        const QByteArray good = contentOf(m_job);
        const auto row = [](const char *name, const QByteArray &job, const QString &settings,
                             Failure failure, const char *named, const char *around = "") {
            QTest::newRow(name) << job << settings << QString(around) << failure << QString(named);
        };
        // clang-format off
        row("damaged job",   good.left(300), "format=png", Failure::DamagedJob, "cannot be read");
        row("empty job",     QByteArray(),   "format=png", Failure::DamagedJob, "cannot be read");
        row("job without pages", "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n<< /Type /Pages /Kids [] /Count 0 >>\n"
                                 "endobj\ntrailer\n<< /Root 1 0 R >>\n%%EOF\n", "format=png", Failure::DamagedJob, "no pages");
        row("damaged PostScript", "%!PS\n/Helvetica findfont 9 scalefont setfont (x) shw showpage\n", "format=png", Failure::DamagedJob, "cannot be converted");
        row("folder missing",    good, "format=png|Path=" + m_dir.filePath("nowhere/"), Failure::FolderGone, "does not exist");
        row("folder is a file",  good, "format=png|Path=" + m_job,                     Failure::FolderGone, "does not exist");
        row("non-Latin PDF password", good, "format=pdf|pdf_protect=true|pdf_user_pw=пароль",        Failure::Refused, "user password");
        row("PDF password too long",  good, "format=pdf|pdf_protect=true|pdf_owner_pw=" + QString(33, 'x'), Failure::Refused, "longer than 32");
        row("job name that names no file", good, "format=png|newfilename=x/..",                      Failure::Refused, "no file name");
        row("DjVu without pdf2djvu",  good, "format=djvu", Failure::MissingTool, "pdf2djvu", "PATH=gs qpdf pdftotext");
        // Long enough to be caught in the middle: JPEG 2000 at 300 dpi; true colour BMP: 25 MB a page.
        row("folder disappears", good, "format=jp2|render_dpi=300", Failure::FolderGone, "disappeared", "removed");
        row("disk fills",        good, "format=bmp|render_dpi=300", Failure::DiskFull,   "full",        "full");
        // clang-format on
    }
    void failures()
    {
        QFETCH(QByteArray, job);
        QFETCH(QString, settings);
        QFETCH(QString, around);
        QFETCH(Failure, expected);
        QFETCH(QString, named);
        QFile file(m_dir.filePath("row.pdf"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(job) >= 0);
        file.close();
        const QByteArray path = qgetenv("PATH"), out = QFile::encodeName(m_out);
        if (around.startsWith("PATH=")) {
            const QString bin = m_dir.filePath("bin");
            QDir().mkpath(bin);
            for (const QString &tool : around.mid(5).split(' '))
                QFile::link(QStandardPaths::findExecutable(tool), bin + '/' + tool);
            qputenv("PATH", QFile::encodeName(bin));
        }
        if (around == "full" && ::mount("tmpfs", out.constData(), "tmpfs", 0, "size=1m,mode=0755"))
            QSKIP(qPrintable("a small file system for the output cannot be mounted here: "
                + QString::fromLocal8Bit(strerror(errno))));
        writeSettings(settings);
        std::atomic<bool> removed {false};
        std::thread remover([&] {
            for (int i = 0; around == "removed" && i < 3000 && !removed; ++i) {
                if (!QDir(m_out).entryList({".vellumio-*"}, QDir::Dirs | QDir::Hidden).isEmpty())
                    removed = QDir(m_out).removeRecursively();
                QThread::msleep(5);
            }
        });
        const Result result = renderJob(file.fileName());
        remover.join();
        const QStringList left = leftovers();
        if (around == "full")
            ::umount(out.constData());
        qputenv("PATH", path);
        QCOMPARE(removed, around == "removed");
        QCOMPARE(result.failure, expected);
        QVERIFY2(result.message.contains(named) && !result.message.contains('\n'),
            qPrintable(result.message));
        QVERIFY(result.files.isEmpty());
        QCOMPARE(left, QStringList());
        QVERIFY(QFileInfo::exists(m_out) != removed);
    }

    // vellumio-render as the user runs it: the paths it wrote on standard output, or one line
    // naming the cause and a failing status. Stopped by a signal once the first page is finished
    // in the work folder, it ends by the signal, its tools end with it and nothing is left.
    void command_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("signal"); // 0: none
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("printed");
        QTest::newRow("renders and prints the paths")
            << QStringList {"job.pdf", "-Report"} << 0 << 0 << QStringList {"-Report.pdf"};
        QTest::newRow("damaged job") << QStringList {"user"} << 0 << 1 << QStringList {};
        QTest::newRow("no job") << QStringList {} << 0 << 2 << QStringList {};
        QTest::newRow("SIGTERM") << QStringList {"twenty.pdf"} << SIGTERM << SIGTERM
                                 << QStringList {};
        QTest::newRow("SIGINT") << QStringList {"twenty.pdf"} << SIGINT << SIGINT << QStringList {};
    }
    void command()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, signal);
        QFETCH(int, status);
        QFETCH(QStringList, printed);
        if (signal && !QFileInfo::exists(m_dir.filePath("twenty.pdf")))
            makeJob(m_dir.filePath("twenty.pdf"), 20, false);
        writeSettings(signal ? "format=jp2|render_dpi=150" : "format=pdf");
        QProcess process;
        startRender(process, arguments);
        QVERIFY(process.waitForStarted());
        bool started = !signal;
        for (int i = 0; i < 1200 && !started && process.state() == QProcess::Running; ++i) {
            QThread::msleep(50);
            started = QDirIterator(
                m_out, {"*.jp2"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories)
                          .hasNext();
        }
        QVERIFY2(started, process.readAllStandardError().constData());
        if (signal)
            ::kill(pid_t(process.processId()), signal);
        QVERIFY(process.waitForFinished(120000));
        QCOMPARE(process.exitStatus(), signal ? QProcess::CrashExit : QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
        QCOMPARE(leftovers(), printed);
        for (QString &name : printed)
            name = QDir(m_out).absoluteFilePath(name);
        QCOMPARE(
            QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
            printed);
        if (!signal)
            QCOMPARE(int(process.readAllStandardError().count('\n')), status == 0 ? 0 : 1);
        QStringList working; // tools still running in the output folder
        QDirIterator processes("/proc", {"[0-9]*"}, QDir::Dirs);
        while (processes.hasNext()) {
            const QString folder = QFileInfo(processes.next() + "/cwd").symLinkTarget();
            if (folder.startsWith(QDir(m_out).absolutePath()))
                working << folder;
        }
        QCOMPARE(working, QStringList());
    }

    // The work folder of a run that was killed is removed by a later run, and no other.
    void staleWorkFolders_data()
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
    void staleWorkFolders()
    {
        QFETCH(int, ageHours);
        QFETCH(bool, held);
        QFETCH(bool, othersUser);
        QFETCH(bool, removed);
        if (othersUser && ::geteuid() != 0)
            QSKIP("only root can leave a folder of another user");
        const QString left = m_out + ".vellumio-Ab12Cd";
        QFile page(left + "/r1-1.png");
        QVERIFY(QDir().mkpath(left + "/inner") && page.open(QIODevice::WriteOnly)
            && page.write("half a page") > 0);
        page.close();
        if (othersUser)
            QCOMPARE(::chown(QFile::encodeName(left).constData(), 65534, 65534), 0);
        const int fd = ::open(QFile::encodeName(left).constData(), O_RDONLY | O_DIRECTORY);
        QVERIFY(fd >= 0 && (!held || ::flock(fd, LOCK_EX) == 0));
        const timespec age[2]
            = {{::time(nullptr) - ageHours * 3600, 0}, {::time(nullptr) - ageHours * 3600, 0}};
        QCOMPARE(::futimens(fd, age), 0);
        writeSettings("format=png");
        const Result result = renderJob(m_job);
        ::close(fd);
        QVERIFY2(result.ok(), qPrintable(result.message));
        QCOMPARE(QFileInfo::exists(left), !removed);
    }
};

QTEST_GUILESS_MAIN(tst_Render)
#include "tst_render.moc"
