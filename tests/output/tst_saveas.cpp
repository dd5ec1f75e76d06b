#include "jobfixture.h"
#include "scriptedprompts.h"

#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace {

QLineEdit *fileNameEdit(MainWindow &window)
{
    return window.findChild<QLineEdit *>(QStringLiteral("le_filename"));
}

QTabWidget *tabs(MainWindow &window)
{
    return window.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
}

const char *const bmpFilter = "BMP Format (*.bmp)";
const char *const pngFilter = "PNG Format (*.png)";
const char *const jpegFilter = "JPEG Format (*.jpg)";
const char *const jp2Filter = "JPEG2000 Format (*.jp2)";
const char *const tiffFilter = "TIFF Format (*.tif)";
const char *const gifFilter = "GIF Format (*.gif)";
const char *const swfFilter = "SWF Format (*.swf)";
const char *const pdfFilter = "PDF Format (*.pdf)";
const char *const rtfFilter = "RTF Format (*.rtf)";
const char *const excelFilter = "MS Excel Format (*.xls)";
const char *const htmlFilter = "HTML Format (*.html)";
const char *const djvuFilter = "DjVu Format (*.djvu)";

} // namespace

class SaveAsTest : public QObject
{
    Q_OBJECT

private slots:
    void selectFormat_data();
    void selectFormat();
    void fullOutputFileName_data();
    void fullOutputFileName();
    void saveAsQuestion_data();
    void saveAsQuestion();
    void saveAsResult_data();
    void saveAsResult();
};

void SaveAsTest::selectFormat_data()
{
    // stored token, converter present, page shown before, expected page, expected selected filter
    // (null: left as it was)
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("converter");
    QTest::addColumn<int>("startPage");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("filter");

    // clang-format off
    QTest::newRow("bmp")                    << "bmp"   << true  << 5 << 0  << bmpFilter;
    QTest::newRow("png")                    << "png"   << true  << 5 << 1  << pngFilter;
    QTest::newRow("jpg")                    << "jpg"   << true  << 5 << 2  << jpegFilter;
    QTest::newRow("jp2")                    << "jp2"   << true  << 5 << 3  << jp2Filter;
    QTest::newRow("tif")                    << "tif"   << true  << 5 << 4  << tiffFilter;
    QTest::newRow("gif")                    << "gif"   << true  << 0 << 5  << gifFilter;
    QTest::newRow("swf")                    << "swf"   << true  << 5 << 6  << swfFilter;
    QTest::newRow("pdf")                    << "pdf"   << true  << 5 << 7  << pdfFilter;
    QTest::newRow("rtf")                    << "rtf"   << true  << 5 << 8  << rtfFilter;
    QTest::newRow("msxml")                  << "msxml" << true  << 5 << 9  << excelFilter;
    QTest::newRow("htm")                    << "htm"   << true  << 5 << 10 << htmlFilter;
    QTest::newRow("htm without converter")  << "htm"   << false << 5 << 10 << htmlFilter;
    QTest::newRow("djvu keeps the page")    << "djvu"  << true  << 7 << 7  << djvuFilter;
    QTest::newRow("djvu without converter") << "djvu"  << false << 7 << 2  << jpegFilter;
    QTest::newRow("unknown token")          << "xyz"   << true  << 3 << 3  << QString();
    QTest::newRow("empty token")            << ""      << true  << 3 << 3  << QString();
    QTest::newRow("token in capitals")      << "PDF"   << true  << 3 << 3  << QString();
    // clang-format on
}

void SaveAsTest::selectFormat()
{
    QFETCH(QString, token);
    QFETCH(bool, converter);
    QFETCH(int, startPage);
    QFETCH(int, page);
    QFETCH(QString, filter);

    JobFixture job;
    auto window = job.createWindow(converter);
    QCOMPARE(window->isDjvuAvailable(), converter);
    tabs(*window)->setCurrentIndex(startPage);
    jobSettings().selectedFilter = QStringLiteral("as before");

    window->selectFormat(token);

    QCOMPARE(tabs(*window)->currentIndex(), page);
    QCOMPARE(jobSettings().selectedFilter, filter.isNull() ? QStringLiteral("as before") : filter);
}

void SaveAsTest::fullOutputFileName_data()
{
    // converter present, current page, stored extension of that page (null: default), text of
    // le_filename, expected full name, expected filter of the page
    QTest::addColumn<bool>("converter");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("filter");

    // clang-format off
    QTest::newRow("pdf appended")          << false << 7  << QString() << "/out/report"      << "/out/report.pdf"      << pdfFilter;
    QTest::newRow("html default is html")  << false << 10 << QString() << "/out/page"        << "/out/page.html"       << htmlFilter;
    QTest::newRow("excel default is xls")  << false << 9  << QString() << "/out/sheet"       << "/out/sheet.xls"       << excelFilter;
    QTest::newRow("djvu page")             << true  << 11 << QString() << "/out/scan"        << "/out/scan.djvu"       << djvuFilter;
    QTest::newRow("stored extension used") << false << 7  << "PDF"     << "/out/report.pdf"  << "/out/report.pdf.PDF"  << "PDF Format (*.PDF)";
    QTest::newRow("empty stored extension") << false << 0 << ""        << "/out/report"      << "/out/report."         << "BMP Format (*.)";
    // clang-format on
}

void SaveAsTest::fullOutputFileName()
{
    QFETCH(bool, converter);
    QFETCH(int, page);
    QFETCH(QString, extension);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QString, filter);

    JobFixture job;
    auto window = job.createWindow(converter);
    if (!extension.isNull())
        jobSettings().extensions[page] = extension;
    tabs(*window)->setCurrentIndex(page);
    fileNameEdit(*window)->setText(text);

    QCOMPARE(window->fullOutputFileName(), expected);
    window->updateSelectedFilter();
    QCOMPARE(jobSettings().selectedFilter, filter);
}

void SaveAsTest::saveAsQuestion_data()
{
    // converter present, current page, expected filter list, expected preselected filter
    QTest::addColumn<bool>("converter");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("filters");
    QTest::addColumn<QString>("preselected");

    const QString withoutDjvu
        = QStringList({bmpFilter, pngFilter, tiffFilter, jpegFilter, jp2Filter, gifFilter,
                          pdfFilter, swfFilter, rtfFilter, excelFilter})
              .join(QLatin1String(";;"));
    const QString withDjvu
        = QStringList({bmpFilter, pngFilter, tiffFilter, jpegFilter, jp2Filter, gifFilter,
                          pdfFilter, swfFilter, djvuFilter, rtfFilter, excelFilter})
              .join(QLatin1String(";;"));

    QTest::newRow("11 filters without converter") << false << 7 << withoutDjvu << pdfFilter;
    QTest::newRow("12 filters with converter") << true << 11 << withDjvu << djvuFilter;
    // The HTML page's filter is preselected although the list does not offer it.
    QTest::newRow("html page current") << false << 10 << withoutDjvu << htmlFilter;
}

void SaveAsTest::saveAsQuestion()
{
    QFETCH(bool, converter);
    QFETCH(int, page);
    QFETCH(QString, filters);
    QFETCH(QString, preselected);

    JobFixture job;
    auto window = job.createWindow(converter);
    ScriptedPrompts prompts;
    tabs(*window)->setCurrentIndex(page);
    fileNameEdit(*window)->setText(QStringLiteral("/out/report"));
    const QString proposed = window->fullOutputFileName();

    window->pb_filename();

    QCOMPARE(prompts.saveAsCalls.size(), 1);
    const ScriptedPrompts::SaveAs &call = prompts.saveAsCalls.first();
    QCOMPARE(call.parent, window.get());
    QCOMPARE(call.caption, QStringLiteral("Save File As..."));
    QCOMPARE(call.path, proposed);
    QCOMPARE(call.filters, filters);
    QCOMPARE(call.preselectedFilter, preselected);
    QVERIFY(prompts.questions.isEmpty());
}

void SaveAsTest::saveAsResult_data()
{
    // converter present, page before, RTF extension setting (null: default), file returned by
    // Save As (empty: cancelled), filter left selected (null: unchanged), expected le_filename,
    // format token, page and selected filter afterwards
    QTest::addColumn<bool>("converter");
    QTest::addColumn<int>("startPage");
    QTest::addColumn<QString>("rtfExtension");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("chosenFilter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("token");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("filter");

    const QString unchanged = QStringLiteral("/start/Document1");
    // clang-format off
    QTest::newRow("BMP chosen")       << true << 3 << QString() << "/out/a.bmp"  << bmpFilter   << "/out/a" << "bmp"   << 0 << bmpFilter;
    QTest::newRow("PNG chosen")       << true << 3 << QString() << "/out/a.png"  << pngFilter   << "/out/a" << "png"   << 1 << pngFilter;
    QTest::newRow("TIFF chosen")      << true << 3 << QString() << "/out/a.tif"  << tiffFilter  << "/out/a" << "tif"   << 4 << tiffFilter;
    QTest::newRow("JPEG chosen")      << true << 3 << QString() << "/out/a.jpg"  << jpegFilter  << "/out/a" << "jpg"   << 2 << jpegFilter;
    QTest::newRow("JPEG2000 chosen")  << true << 0 << QString() << "/out/a.jp2"  << jp2Filter   << "/out/a" << "jp2"   << 3 << jp2Filter;
    QTest::newRow("GIF chosen")       << true << 3 << QString() << "/out/a.gif"  << gifFilter   << "/out/a" << "gif"   << 5 << gifFilter;
    QTest::newRow("PDF chosen")       << true << 3 << QString() << "/out/a.pdf"  << pdfFilter   << "/out/a" << "pdf"   << 7 << pdfFilter;
    QTest::newRow("SWF chosen")       << true << 3 << QString() << "/out/a.swf"  << swfFilter   << "/out/a" << "swf"   << 6 << swfFilter;
    QTest::newRow("RTF chosen")       << true << 3 << QString() << "/out/a.rtf"  << rtfFilter   << "/out/a" << "rtf"   << 8 << rtfFilter;
    QTest::newRow("Excel chosen")     << true << 3 << QString() << "/out/a.xls"  << excelFilter << "/out/a" << "msxml" << 9 << excelFilter;
    QTest::newRow("DjVu keeps page")  << true << 3 << QString() << "/out/a.djvu" << djvuFilter  << "/out/a" << "djvu"  << 3 << djvuFilter;
    QTest::newRow("RTF, other extension")     << false << 3 << "doc" << "/out/a.doc" << "RTF Format (*.doc)" << "/out/a" << "" << 3 << "";
    QTest::newRow("fixed RTF text, other ext") << false << 3 << "doc" << "/out/a.rtf" << rtfFilter << "/out/a" << "rtf" << 8 << "RTF Format (*.doc)";
    QTest::newRow("HTML not recognised")      << false << 3 << QString() << "/out/a.html" << htmlFilter << "/out/a" << "" << 3 << "";
    QTest::newRow("unknown filter")           << false << 3 << QString() << "/out/a"      << "All (*)"  << "/out/a" << "" << 3 << "";
    QTest::newRow("no extension typed")       << false << 3 << QString() << "/out/report" << pdfFilter  << "/out/report" << "pdf" << 7 << pdfFilter;
    QTest::newRow("dotted folder")            << false << 3 << QString() << "/o.v2/r.pdf" << pdfFilter  << "/o.v2/r" << "pdf" << 7 << pdfFilter;
    QTest::newRow("forward slashes")          << false << 3 << QString() << "C:/out/a.png" << pngFilter << "C:/out/a" << "png" << 1 << pngFilter;
    QTest::newRow("4 characters accepted")    << false << 3 << QString() << "/a.b"        << pngFilter  << "/a.b"    << "png" << 1 << pngFilter;
    QTest::newRow("3 characters ignored")     << false << 3 << QString() << "a.b"         << pngFilter  << unchanged << "before" << 3 << pngFilter;
    QTest::newRow("cancelled")                << false << 3 << QString() << ""            << QString()  << unchanged << "before" << 3 << jp2Filter;
    // clang-format on
}

void SaveAsTest::saveAsResult()
{
    QFETCH(bool, converter);
    QFETCH(int, startPage);
    QFETCH(QString, rtfExtension);
    QFETCH(QString, file);
    QFETCH(QString, chosenFilter);
    QFETCH(QString, text);
    QFETCH(QString, token);
    QFETCH(int, page);
    QFETCH(QString, filter);

    JobFixture job;
    auto window = job.createWindow(converter);
    ScriptedPrompts prompts;
    prompts.chosenFile = file;
    prompts.chosenFilter = chosenFilter;
    if (!rtfExtension.isNull())
        jobSettings().extensions[Formats::Rtf] = rtfExtension;
    tabs(*window)->setCurrentIndex(startPage);
    fileNameEdit(*window)->setText(QStringLiteral("/start/Document1"));
    jobSettings().formatToken = QStringLiteral("before");
    QVERIFY(!window->isNameChosenByDialog());

    window->pb_filename();

    QVERIFY(window->isNameChosenByDialog());
    QCOMPARE(fileNameEdit(*window)->text(), text);
    QCOMPARE(jobSettings().formatToken, token);
    QCOMPARE(tabs(*window)->currentIndex(), page);
    QCOMPARE(jobSettings().selectedFilter, filter);
    // The folder and name the driver receives are the two halves of the field.
    if (file.size() >= 4)
        QCOMPARE(jobSettings().outputFolder + jobSettings().newFileName, text);
    else
        QCOMPARE(jobSettings().newFileName, QStringLiteral("Document1"));
}

QTEST_MAIN(SaveAsTest)

#include "tst_saveas.moc"
