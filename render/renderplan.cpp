// SPDX-License-Identifier: GPL-3.0-or-later
// Turns a job's options into the tool runs, in-process writes and final names that render it.
#include "render/renderplan.h"

#include "render/filenames.h"
#include "render/pdfsecurity.h"

#include <QCoreApplication>
#include <QtMath>

#include <array>
#include <functional>

namespace Render {

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

QString number(int value)
{
    return QString::number(value);
}

// Page images of the formats that show pages on screen rather than print them.
constexpr int swfDpi = 96;
constexpr int htmlDpi = 150;
// pdf2djvu takes nothing coarser.
constexpr int djvuMinimumDpi = 72;
// Pages per Ghostscript run of a paged raster job at most: bounds the work folder's size.
constexpr int pagesPerChunk = 25;
// qpdf's exit status for a file written with warnings.
constexpr int qpdfWarnings = 3;
// The image quality that asks for no change.
constexpr int maximumQuality = 100;

enum class Colour { Mono, Palette, Grey, Rgb };

Colour colourOf(const QString &code)
{
    if (code == QLatin1String("1"))
        return Colour::Mono;
    if (code == QLatin1String("8"))
        return Colour::Palette;
    if (code == QLatin1String("24g"))
        return Colour::Grey;
    return Colour::Rgb;
}

// Formats that offer only Grayscale and TrueColor take monochrome as grey, 256 colours as true
// colour.
bool greyOnly(Colour colour)
{
    return colour == Colour::Mono || colour == Colour::Grey;
}

// A page range of one Ghostscript run, pages counted from 1.
struct Chunk
{
    int first;
    int last;
};

// The runs of a paged raster job: a multiple of the cores, so that they share them evenly, and no
// more, since every run reads the job anew. The pages they render are converted on any core.
QList<Chunk> chunksOf(int pages, int parallel)
{
    const int needed = (pages + pagesPerChunk - 1) / pagesPerChunk;
    const int count = qBound(1, (needed + parallel - 1) / parallel * parallel, pages);
    QList<Chunk> chunks;
    int first = 1;
    for (int i = 0; i < count; ++i) {
        const int size = pages / count + (i < pages % count ? 1 : 0);
        chunks.append({first, first + size - 1});
        first += size;
    }
    return chunks;
}

Step run(const QString &program, const QStringList &arguments, int pages = 1)
{
    Step step;
    step.command.program = program;
    step.command.arguments = arguments;
    step.command.pages = pages;
    return step;
}

// One Ghostscript run, always sandboxed and non-interactive.
Step gs(const QString &device, const QStringList &options, const QString &output,
    const QString &input, int pages)
{
    QStringList arguments {str("-q"), str("-dSAFER"), str("-dBATCH"), str("-dNOPAUSE"),
        QStringLiteral("-sDEVICE=") + device, QStringLiteral("-sOutputFile=") + output};
    // PostScript given with -c runs at once, so the device and its file come first.
    arguments << options << input;
    return run(str("gs"), arguments, pages);
}

QStringList resolution(int dpi)
{
    return {QStringLiteral("-r") + number(dpi)};
}

// Smooth edges for devices with grey levels.
QStringList antialiased(int dpi)
{
    return resolution(dpi) << str("-dTextAlphaBits=4") << str("-dGraphicsAlphaBits=4");
}

// JPEG quality 1..100 as the scale of pdfwrite's DCT tables, the scale libjpeg gives it.
QString qFactor(int quality)
{
    const double scale = quality < 50 ? 50.0 / quality : (200.0 - 2.0 * quality) / 100.0;
    return QString::number(qMax(scale, 0.01), 'f', 3);
}

class Planner
{
public:
    Planner(const Options &options, const Job &job)
        : o(options)
        , m_job(job)
        , m_colour(colourOf(options.colorCode))
    { }

    Plan plan();

private:
    // What a page conversion leaves: the steps after Ghostscript, and the finished page file.
    using PageSteps = std::function<QList<Step>(int page, const QString &rendered, QString &done)>;

    QList<QString> pagedRaster(const QString &device, const QString &extension,
        const QStringList &options, const PageSteps &convert = {});
    QString textFile();
    QString greyPdf();
    QString source() const { return m_job.pdf; }
    void addOutputs(const QStringList &workFiles);
    Stage &stage(int index);
    void addTask(int stageIndex, const QList<Step> &steps)
    {
        stage(stageIndex).tasks.append({steps, {}});
    }
    bool oneFile(bool multipage) const { return multipage || m_job.pages == 1; }

    void bitmap(const std::array<QString, 4> &devices, const QString &workExtension,
        const QStringList &options = {});
    void jpeg2000();
    void gif();
    void tiff();
    void pdf();
    void keptPdf(bool split, bool finish);
    void protectPdfs(const QStringList &files, int stageIndex);
    void textDocument(Write::Kind kind);
    void html();
    void swf();
    void djvu();

    const Options &o;
    const Job &m_job;
    Colour m_colour;
    Plan m_plan;
    QString m_textFile;
    int m_secrets = 0;
};

Stage &Planner::stage(int index)
{
    while (m_plan.stages.size() <= index)
        m_plan.stages.append(Stage());
    return m_plan.stages[index];
}

// Renders every page with `device` into its own file, spread over runs of Ghostscript that may
// go side by side. The steps that turn a rendered page into its finished file are a task of their
// own, so a run's pages are converted on every core, not one after another behind the run.
QStringList Planner::pagedRaster(const QString &device, const QString &extension,
    const QStringList &options, const PageSteps &convert)
{
    QStringList pages;
    for (const Chunk &chunk : chunksOf(m_job.pages, m_job.parallel)) {
        const QString prefix = QStringLiteral("r") + number(chunk.first) + QLatin1Char('-');
        const int count = chunk.last - chunk.first + 1;
        QStringList rangeOptions = options;
        if (count < m_job.pages)
            rangeOptions << QStringLiteral("-dFirstPage=") + number(chunk.first)
                         << QStringLiteral("-dLastPage=") + number(chunk.last);
        Task task {
            {gs(device, rangeOptions, prefix + QStringLiteral("%d.") + extension, source(), count)},
            {}};
        for (int page = chunk.first; page <= chunk.last; ++page) {
            const QString rendered
                = prefix + number(page - chunk.first + 1) + QLatin1Char('.') + extension;
            QString done = rendered;
            if (convert)
                task.then.append({convert(page, rendered, done), {}});
            pages << done;
        }
        stage(0).tasks.append(task);
    }
    return pages;
}

QString Planner::textFile()
{
    if (m_textFile.isEmpty()) {
        m_textFile = QStringLiteral("text.txt");
        addTask(0,
            {run(str("pdftotext"),
                {str("-layout"), str("-enc"), str("UTF-8"), source(), m_textFile}, m_job.pages)});
    }
    return m_textFile;
}

QString Planner::greyPdf()
{
    const QString grey = QStringLiteral("grey.pdf");
    addTask(0,
        {gs(str("pdfwrite"),
            {str("-sColorConversionStrategy=Gray"), str("-dProcessColorModel=/DeviceGray"),
                str("-dAutoRotatePages=/None")},
            grey, source(), m_job.pages)});
    return grey;
}

void Planner::addOutputs(const QStringList &workFiles)
{
    FileNames::Numbering numbering {o.prefixFirstPage, o.customNumber};
    const QStringList stems = FileNames::stems(o.name, int(workFiles.size()), numbering);
    for (int i = 0; i < workFiles.size(); ++i) {
        m_plan.outputs.append(
            {workFiles.at(i), FileNames::withExtension(stems.at(i), o.extension()),
                QLatin1Char('.') + o.extension()});
    }
}

// Formats that Ghostscript writes page by page as they are, by colour mode.
void Planner::bitmap(
    const std::array<QString, 4> &devices, const QString &workExtension, const QStringList &options)
{
    const QStringList deviceOptions
        = (m_colour == Colour::Mono ? resolution(o.dpi) : antialiased(o.dpi)) + options;
    addOutputs(pagedRaster(devices[int(m_colour)], workExtension, deviceOptions));
}

void Planner::jpeg2000()
{
    const QString device = greyOnly(m_colour) ? str("pnggray") : str("png16m");
    addOutputs(pagedRaster(device, str("png"), antialiased(o.dpi),
        [](int page, const QString &rendered, QString &done) {
            done = QStringLiteral("p") + number(page) + QStringLiteral(".jp2");
            Step step = run(str("opj_compress"), {str("-i"), rendered, str("-o"), done});
            step.removeAfter = {rendered};
            return QList<Step> {step};
        }));
}

void Planner::gif()
{
    // GIF offers no true colour: it takes 256 colours.
    const bool pnm = m_colour == Colour::Mono || m_colour == Colour::Grey;
    const QString device = m_colour == Colour::Mono ? str("pbmraw")
        : m_colour == Colour::Grey                  ? str("pgmraw")
                                                    : str("png256");
    const QString extension = pnm ? str("pnm") : str("png");
    const QStringList options = m_colour == Colour::Mono ? resolution(o.dpi) : antialiased(o.dpi);
    addOutputs(pagedRaster(
        device, extension, options, [pnm](int page, const QString &rendered, QString &done) {
            QList<Step> steps;
            QString image = rendered;
            if (!pnm) {
                image = QStringLiteral("p") + number(page) + QStringLiteral(".ppm");
                Step convert = run(str("pngtopnm"), {rendered});
                convert.command.standardOutput = image;
                convert.removeAfter = {rendered};
                steps << convert;
            }
            done = QStringLiteral("p") + number(page) + QStringLiteral(".gif");
            Step write = run(str("pamtogif"), {image});
            write.command.standardOutput = done;
            write.removeAfter = {image};
            return steps << write;
        }));
}

void Planner::tiff()
{
    const QString &code = o.compression;
    const bool fax = code == QLatin1String("G4") || code == QLatin1String("G3");
    const bool jpeg = code == QLatin1String("JPEG");
    const bool zip = code == QLatin1String("ZIP");
    const bool packbits = code == QLatin1String("PACKBITS");
    Colour colour = m_colour;
    if (fax)
        colour = Colour::Mono;
    else if (jpeg)
        colour = greyOnly(colour) ? Colour::Grey : Colour::Rgb;

    // Ghostscript writes no ZIP or JPEG TIFF: those are recompressed by tiffcp.
    QStringList recompress;
    if (zip)
        recompress = {str("-c"), str("zip")};
    else if (jpeg)
        recompress
            = {str("-c"), QStringLiteral("jpeg:") + number(o.qualityTif), str("-r"), str("16")};
    const bool multipage = o.multipageTiff && m_job.pages > 1;

    QStringList pages;
    if (colour == Colour::Palette) {
        // 256 colours: Ghostscript's palette PNG, made a palette TIFF by netpbm.
        const QString flag = zip ? str("-flate") : packbits ? str("-packbits") : str("-lzw");
        pages = pagedRaster(str("png256"), str("png"), antialiased(o.dpi),
            [flag](int page, const QString &rendered, QString &done) {
                const QString image = QStringLiteral("p") + number(page) + QStringLiteral(".ppm");
                done = QStringLiteral("p") + number(page) + QStringLiteral(".tif");
                Step toPnm = run(str("pngtopnm"), {rendered});
                toPnm.command.standardOutput = image;
                toPnm.removeAfter = {rendered};
                Step toTiff = run(str("pnmtotiff"), {flag, image});
                toTiff.command.standardOutput = done;
                toTiff.removeAfter = {image};
                return QList<Step> {toPnm, toTiff};
            });
        recompress.clear();
    } else {
        QString device;
        QStringList options = colour == Colour::Mono ? resolution(o.dpi) : antialiased(o.dpi);
        const QString gsCompression = jpeg ? str("none") : packbits ? str("pack") : str("lzw");
        switch (colour) {
        case Colour::Mono:
            device = code == QLatin1String("G4") ? str("tiffg4")
                : code == QLatin1String("G3")    ? str("tiffg3")
                : packbits                       ? str("tiffpack")
                                                 : str("tifflzw");
            break;
        case Colour::Grey:
            device = str("tiffgray");
            options << QStringLiteral("-sCompression=") + gsCompression;
            break;
        default:
            device = str("tiff24nc");
            options << QStringLiteral("-sCompression=") + gsCompression;
            break;
        }
        PageSteps perPage;
        if (!multipage && !recompress.isEmpty()) {
            perPage = [recompress](int page, const QString &rendered, QString &done) {
                done = QStringLiteral("p") + number(page) + QStringLiteral(".tif");
                Step step = run(str("tiffcp"), QStringList(recompress) << rendered << done);
                step.removeAfter = {rendered};
                return QList<Step> {step};
            };
        }
        pages = pagedRaster(device, str("tif"), options, perPage);
    }

    if (!multipage) {
        addOutputs(pages);
        return;
    }
    // One file: the pages merged in order, recompressed on the way where asked.
    const QString merged = QStringLiteral("document.tif");
    Step merge = run(str("tiffcp"), recompress + pages << merged, m_job.pages);
    merge.removeAfter = pages;
    addTask(1, {merge});
    addOutputs({merged});
}

// The job's own PDF is kept as it came when nothing asks for its pages to be drawn anew: colour
// kept, images at the best quality (they stay as the job has them), the text layer kept. Then only
// what is asked of the file is done: a copy; the split into pages, the document information and
// the encryption by qpdf, which leaves the page contents alone.
void Planner::keptPdf(bool split, bool finish)
{
    if (!split && !finish) {
        Step copy;
        copy.isWrite = true;
        copy.write.kind = Write::Copy;
        copy.write.inputs = {source()};
        copy.write.output = str("document.pdf");
        addTask(0, {copy});
        addOutputs({copy.write.output});
        return;
    }
    if (!split) {
        protectPdfs({source()}, 0);
        return;
    }
    // qpdf numbers the pages with as many digits as the last one has.
    Step pages
        = run(str("qpdf"), {str("--split-pages"), source(), str("page-%d.pdf")}, m_job.pages);
    pages.command.warningStatus = qpdfWarnings;
    addTask(0, {pages});
    const int digits = int(number(m_job.pages).size());
    QStringList files;
    for (int page = 1; page <= m_job.pages; ++page)
        files << QStringLiteral("page-%1.pdf").arg(page, digits, 10, QLatin1Char('0'));
    if (finish)
        protectPdfs(files, 1);
    else
        addOutputs(files);
}

void Planner::pdf()
{
    const bool grey = greyOnly(m_colour);
    const bool split = !oneFile(o.multipagePdf);
    const bool finish = hasInformation(o.pdf) || o.pdf.protect;
    if (o.pdfText && !grey && o.qualityPdf >= maximumQuality)
        return keptPdf(split, finish);
    const QString output = split ? str("page-%d.pdf") : str("document.pdf");
    if (o.pdfText) {
        QStringList options {str("-dAutoRotatePages=/None"), str("-dPassThroughJPEGImages=false")};
        if (grey)
            options << str("-sColorConversionStrategy=Gray")
                    << str("-dProcessColorModel=/DeviceGray");
        // The image quality: every image JPEG-compressed with tables scaled by the quality.
        const QString tables = QStringLiteral("<< /QFactor ") + qFactor(o.qualityPdf)
            + QStringLiteral(" /Blend 1 /HSamples [1 1 1 1] /VSamples [1 1 1 1] >>");
        options << str("-dAutoFilterColorImages=false") << str("-dColorImageFilter=/DCTEncode")
                << str("-dAutoFilterGrayImages=false") << str("-dGrayImageFilter=/DCTEncode")
                << str("-dDownsampleColorImages=false") << str("-dDownsampleGrayImages=false");
        if (hasInformation(o.pdf))
            options << str("-dOmitXMP");
        options << str("-c")
                << QStringLiteral("<< /ColorImageDict ") + tables
                + QStringLiteral(" /GrayImageDict ") + tables
                + QStringLiteral(" >> setdistillerparams")
                << str("-f");
        addTask(0, {gs(str("pdfwrite"), options, output, source(), m_job.pages)});
    } else {
        // No text layer: every page one image.
        addTask(0,
            {gs(grey ? str("pdfimage8") : str("pdfimage24"),
                antialiased(o.dpi) << str("-sCompression=JPEG")
                                   << QStringLiteral("-dJPEGQ=") + number(o.qualityPdf),
                output, source(), m_job.pages)});
    }

    QStringList files;
    if (split) {
        for (int page = 1; page <= m_job.pages; ++page)
            files << QStringLiteral("page-") + number(page) + QStringLiteral(".pdf");
    } else {
        files << output;
    }
    if (finish)
        protectPdfs(files, 1);
    else
        addOutputs(files);
}

// Document information and encryption by qpdf, one task per file; the passwords reach qpdf only
// through its owner-only job file. The job's own PDF is read where it is and left alone.
void Planner::protectPdfs(const QStringList &files, int stageIndex)
{
    QStringList finished;
    for (const QString &file : files) {
        const bool workFile = file != source();
        const QString base = workFile ? file.chopped(4) : str("document");
        QList<Step> steps;
        QString update;
        if (hasInformation(o.pdf)) {
            const QString trailer = base + QStringLiteral(".trailer.json");
            update = base + QStringLiteral(".update.json");
            Step query = run(str("qpdf"), PdfSecurity::trailerQuery(file));
            query.command.warningStatus = qpdfWarnings;
            query.command.standardOutput = trailer;
            Step write;
            write.isWrite = true;
            write.write.kind = Write::PdfInfo;
            write.write.inputs = {trailer};
            write.write.output = update;
            write.write.pdf = o.pdf;
            write.removeAfter = {trailer};
            steps << query << write;
        }
        const QString done = base + QStringLiteral(".final.pdf");
        const QString jobFile
            = QStringLiteral("qpdf-job-") + number(++m_secrets) + QStringLiteral(".json");
        Step apply = run(str("qpdf"), {QStringLiteral("--job-json-file=") + jobFile});
        apply.command.warningStatus = qpdfWarnings;
        apply.command.secretFile = jobFile;
        apply.command.secret = PdfSecurity::qpdfJob(file, done, update, o.pdf);
        if (workFile)
            apply.removeAfter << file;
        if (!update.isEmpty())
            apply.removeAfter << update;
        steps << apply;
        addTask(stageIndex, steps);
        finished << done;
    }
    addOutputs(finished);
}

void Planner::textDocument(Write::Kind kind)
{
    const QString text = textFile();
    Step write;
    write.isWrite = true;
    write.write.kind = kind;
    write.write.inputs = {text};
    write.write.output = kind == Write::Rtf ? str("document.rtf") : str("document.xml");
    addTask(1, {write});
    addOutputs({write.write.output});
}

void Planner::html()
{
    const bool split = !oneFile(o.multipageHtm);
    if (o.htmText) {
        const QString input = greyOnly(m_colour) ? greyPdf() : source();
        const int stageIndex = input == source() ? 0 : 1;
        const QStringList options
            = {str("-q"), str("-c"), str("-s"), str("-dataurls"), str("-noframes")};
        if (!split) {
            addTask(stageIndex,
                {run(str("pdftohtml"), options + QStringList {input, str("document")},
                    m_job.pages)});
            addOutputs({str("document.html")});
            return;
        }
        QStringList files;
        for (int page = 1; page <= m_job.pages; ++page) {
            const QString base = QStringLiteral("page-") + number(page);
            addTask(stageIndex,
                {run(str("pdftohtml"),
                    options
                        + QStringList {
                            str("-f"), number(page), str("-l"), number(page), input, base})});
            files << base + QStringLiteral(".html");
        }
        addOutputs(files);
        return;
    }

    // No text layer: the pages as JPEG images in the page.
    const QStringList images = pagedRaster(greyOnly(m_colour) ? str("jpeggray") : str("jpeg"),
        str("jpg"), antialiased(htmlDpi) << QStringLiteral("-dJPEGQ=") + number(o.qualityHtm));
    QList<QStringList> groups;
    if (split) {
        for (const QString &image : images)
            groups << QStringList {image};
    } else {
        groups << images;
    }
    QStringList files;
    for (const QStringList &group : groups) {
        Step write;
        write.isWrite = true;
        write.write.kind = Write::HtmlPages;
        write.write.inputs = group;
        write.write.output
            = QStringLiteral("document-") + number(int(files.size()) + 1) + QStringLiteral(".html");
        write.write.title = o.name;
        write.write.dpi = htmlDpi;
        write.removeAfter = group;
        addTask(1, {write});
        files << write.write.output;
    }
    addOutputs(files);
}

void Planner::swf()
{
    const QStringList images = pagedRaster(greyOnly(m_colour) ? str("jpeggray") : str("jpeg"),
        str("jpg"), antialiased(swfDpi) << QStringLiteral("-dJPEGQ=") + number(o.qualitySwf));
    const QString text = o.swfText ? textFile() : QString();
    const bool split = !oneFile(o.multipageSwf);
    QStringList files;
    for (int first = 1; first <= m_job.pages; first += split ? 1 : m_job.pages) {
        const int count = split ? 1 : m_job.pages;
        Step write;
        write.isWrite = true;
        write.write.kind = Write::Swf;
        write.write.inputs = images.mid(first - 1, count);
        for (int page = first; page < first + count; ++page)
            write.write.pages << page;
        write.write.textFile = text;
        write.write.output = QStringLiteral("movie-") + number(first) + QStringLiteral(".swf");
        write.write.dpi = swfDpi;
        write.write.animate = o.swfAnimate;
        write.write.password = o.swfPassword;
        addTask(1, {write});
        files << write.write.output;
    }
    addOutputs(files);
}

void Planner::djvu()
{
    const QString input = greyOnly(m_colour) ? greyPdf() : source();
    const int stageIndex = input == source() ? 0 : 1;
    const QStringList resolutionOption {str("-q"), str("-d"), number(qMax(o.dpi, djvuMinimumDpi))};
    if (!oneFile(o.multipageDjvu)) {
        QStringList files;
        for (int page = 1; page <= m_job.pages; ++page) {
            const QString file = QStringLiteral("page-") + number(page) + QStringLiteral(".djvu");
            addTask(stageIndex,
                {run(str("pdf2djvu"),
                    resolutionOption
                        + QStringList {str("-p"), number(page), str("-o"), file, input})});
            files << file;
        }
        addOutputs(files);
        return;
    }
    // One file: pdf2djvu shares the pages among its own threads, one per core.
    addTask(stageIndex,
        {run(str("pdf2djvu"),
            resolutionOption
                + QStringList {str("-j"), number(m_job.parallel), str("-o"), str("document.djvu"),
                    input},
            m_job.pages)});
    addOutputs({str("document.djvu")});
}

Plan Planner::plan()
{
    switch (o.format) {
    case Formats::Bmp:
        bitmap({str("bmpmono"), str("bmp256"), str("bmpgray"), str("bmp16m")}, str("bmp"));
        break;
    case Formats::Png:
        bitmap({str("pngmono"), str("png256"), str("pnggray"), str("png16m")}, str("png"));
        break;
    case Formats::Jpeg:
        bitmap({str("jpeggray"), str("jpeg"), str("jpeggray"), str("jpeg")}, str("jpg"),
            {QStringLiteral("-dJPEGQ=") + number(o.qualityJpg)});
        break;
    case Formats::Jpeg2000:
        jpeg2000();
        break;
    case Formats::Tiff:
        tiff();
        break;
    case Formats::Gif:
        gif();
        break;
    case Formats::Swf:
        swf();
        break;
    case Formats::Pdf:
        m_plan.refusal = PdfSecurity::refusal(o.pdf);
        if (!m_plan.refusal.isEmpty())
            return m_plan;
        pdf();
        break;
    case Formats::Rtf:
        textDocument(Write::Rtf);
        break;
    case Formats::Excel:
        textDocument(Write::SpreadsheetMl);
        break;
    case Formats::Html:
        html();
        break;
    case Formats::Djvu:
        djvu();
        break;
    case Formats::Count:
        m_plan.refusal = QCoreApplication::translate("Render", "The format is unknown.");
        return m_plan;
    }
    if (o.extractText)
        m_plan.outputs.append(
            {textFile(), FileNames::withExtension(o.name, str("txt")), str(".txt")});
    return m_plan;
}

} // namespace

QStringList Plan::programs() const
{
    QStringList result;
    for (const Step &step : steps()) {
        if (!step.isWrite && !result.contains(step.command.program))
            result << step.command.program;
    }
    return result;
}

QList<Step> Plan::steps() const
{
    QList<Step> result;
    const std::function<void(const Task &)> add = [&](const Task &task) {
        result << task.steps;
        for (const Task &next : task.then)
            add(next);
    };
    for (const Stage &stage : stages) {
        for (const Task &task : stage.tasks)
            add(task);
    }
    return result;
}

Plan makePlan(const Options &options, const Job &job)
{
    return Planner(options, job).plan();
}

QString packageOf(const QString &program)
{
    static const std::pair<const char *, const char *> packages[]
        = {{"gs", "ghostscript"}, {"pdfinfo", "poppler-utils"}, {"pdftotext", "poppler-utils"},
            {"pdftohtml", "poppler-utils"}, {"qpdf", "qpdf"}, {"tiffcp", "libtiff-tools"},
            {"pngtopnm", "netpbm"}, {"pnmtotiff", "netpbm"}, {"pamtogif", "netpbm"},
            {"opj_compress", "libopenjp2-tools"}, {"pdf2djvu", "pdf2djvu"}};
    for (const auto &[name, package] : packages) {
        if (program == QLatin1String(name))
            return QLatin1String(package);
    }
    return program;
}

} // namespace Render
