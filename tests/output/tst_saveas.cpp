// SPDX-License-Identifier: GPL-3.0-or-later
#include "formats/pathhelpers.h"
#include "tests/support/openwindow.h"

#include <QTest>

using namespace PathHelpers;

// The output path rules, the format a stored token selects, and the main dialog's Save As button.
class SaveAsTest : public QObject
{
    Q_OBJECT

private slots:
    void pathRules_data()
    {
        // The pure rules of the output path, on both folder separators, where Save As below does
        // not reach them:
        // rule, its input, the separator ('\' or '/') or the extension, the result; "split" gives
        // "folder|name", "saveas" the folder and name a Save As result is stored as
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("arg");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("slash not a folder")  << "split"  << "C:/out/a.png"   << "\\" << "|C:/out/a.png";
        QTest::newRow("no separator")        << "split"  << "Document1"      << "/"  << "|Document1";
        QTest::newRow("too short")           << "strip"  << "pdf"            << ""   << "pdf";
        QTest::newRow("case differs")        << "with"   << "/out/report.PDF" << "pdf" << "/out/report.PDF.pdf";
        QTest::newRow("first occurrence")    << "with"   << "a.pdf.copy.pdf" << "pdf"  << "a.pdf.copy.pdf.pdf";
        QTest::newRow("3 characters, .pdf")  << "with"   << "abc"            << "pdf"  << "abc";
        QTest::newRow("html after htm")      << "with"   << "page.htm"       << "html" << "page.htm.html";
        QTest::newRow("empty extension")     << "with"   << "report"         << ""     << "report.";
        QTest::newRow("slashes turned")      << "saveas" << "C:/out\\sub/x.djvu" << "\\" << "C:\\out\\sub\\|x";
        QTest::newRow("slashes kept")        << "saveas" << "/home/u/notes.ab" << "/" << "/home/u/|notes.ab";
        // clang-format on
    }
    void pathRules()
    {
        QFETCH(QString, rule);
        QFETCH(QString, input);
        QFETCH(QString, arg);
        QFETCH(QString, result);
        const QChar sep = arg.isEmpty() ? QLatin1Char('/') : arg.at(0);
        const QString path = rule == "saveas" ? toNativeSeparators(input, sep) : input;
        const QString name
            = rule == "saveas" ? stripExtension(fileNamePart(path, sep)) : fileNamePart(path, sep);
        if (rule == "strip")
            QCOMPARE(stripExtension(input), result);
        else if (rule == "with")
            QCOMPARE(withExtension(input, arg), result);
        else
            QCOMPARE(directoryPart(path, sep) + '|' + name, result);
    }
    void saveAs_data()
    {
        // a stored token selected first, the converter present, what Save As returns (the file,
        // empty when cancelled, and the filter left selected); then "page, selected filter" after
        // the selection, "name offered, filter preselected" to Save As, and "le_filename, token,
        // page, selected filter" after it. The job starts at /start/Document1 on page 3 with the
        // token and filter "before" and RTF's extension set to doc.
        QTest::addColumn<QString>("token");
        QTest::addColumn<bool>("converter");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("outcome");
        const QString p = QStringLiteral("PNG Format (*.png)"),
                      j = QStringLiteral("JPEG2000 Format (*.jp2)");
        // clang-format off
        QTest::newRow("msxml selected")         << "msxml" << false << "" << ""  << "9 | MS Excel Format (*.xls) | /start/Document1.xls | MS Excel Format (*.xls) > /start/Document1 | before | 9 | MS Excel Format (*.xls)";
        // The HTML filter is preselected although the list does not offer it.
        QTest::newRow("htm without converter")  << "htm"   << false << "" << ""  << "10 | HTML Format (*.html) | /start/Document1.html | HTML Format (*.html) > /start/Document1 | before | 10 | HTML Format (*.html)";
        QTest::newRow("djvu keeps the page")    << "djvu"  << true  << "" << ""  << "3 | DjVu Format (*.djvu) | /start/Document1.jp2 | " + j + " > /start/Document1 | before | 3 | " + j;
        QTest::newRow("djvu without converter") << "djvu"  << false << "" << ""  << "2 | JPEG Format (*.jpg) | /start/Document1.jpg | JPEG Format (*.jpg) > /start/Document1 | before | 2 | JPEG Format (*.jpg)";
        QTest::newRow("unknown token")          << "xyz"   << true  << "" << ""  << "3 | before | /start/Document1.jp2 | " + j + " > /start/Document1 | before | 3 | " + j;
        QTest::newRow("PNG")                    << "" << true << "/out/a.png"  << p << "3 | before | /start/Document1.jp2 | " + j + " > /out/a | png | 1 | " + p;
        QTest::newRow("DjVu keeps the page")    << "" << true << "/out/a.djvu" << "DjVu Format (*.djvu)" << "3 | before | /start/Document1.jp2 | " + j + " > /out/a | djvu | 3 | DjVu Format (*.djvu)";
        QTest::newRow("RTF, other extension")   << "" << true << "/out/a.doc"  << "RTF Format (*.doc)"   << "3 | before | /start/Document1.jp2 | " + j + " > /out/a |  | 3 | ";
        QTest::newRow("fixed RTF text")         << "" << true << "/out/a.rtf"  << "RTF Format (*.rtf)"   << "3 | before | /start/Document1.jp2 | " + j + " > /out/a | rtf | 8 | RTF Format (*.doc)";
        QTest::newRow("HTML not offered")       << "" << true << "/out/a.html" << "HTML Format (*.html)" << "3 | before | /start/Document1.jp2 | " + j + " > /out/a |  | 3 | ";
        QTest::newRow("dotted folder")          << "" << true << "/o.v2/r"     << p << "3 | before | /start/Document1.jp2 | " + j + " > /o.v2/r | png | 1 | " + p;
        QTest::newRow("4 characters taken")     << "" << true << "/a.b"        << p << "3 | before | /start/Document1.jp2 | " + j + " > /a.b | png | 1 | " + p;
        QTest::newRow("3 characters ignored")   << "" << true << "a.b"         << p << "3 | before | /start/Document1.jp2 | " + j + " > /start/Document1 | before | 3 | " + p;
        QTest::newRow("cancelled")              << "" << true << ""            << "" << "3 | before | /start/Document1.jp2 | " + j + " > /start/Document1 | before | 3 | " + j;
        // clang-format on
    }
    void saveAs()
    {
        QFETCH(QString, token);
        QFETCH(bool, converter);
        QFETCH(QString, file);
        QFETCH(QString, chosen);
        QFETCH(QString, outcome);
        OpenWindow w(converter);
        w.prompts.chosenFile = file;
        w.prompts.chosenFilter = chosen.isEmpty() ? QString() : chosen;
        JobSettings &settings = jobSettings();
        settings.extensions[Formats::Rtf] = QStringLiteral("doc");
        settings.formatToken = settings.selectedFilter = QStringLiteral("before");
        w.tabs()->setCurrentIndex(3);
        w.fileName()->setText(QStringLiteral("/start/Document1"));
        w.window->selectFormat(token);
        QString found = QString::number(w.tabs()->currentIndex()) + " | " + settings.selectedFilter;
        w.window->pb_filename(); // what it means for Print: its "from Save As" rows
        QCOMPARE(w.prompts.saveAsCalls.size(), 1);
        const ScriptedPrompts::SaveAs &call = w.prompts.saveAsCalls.first();
        found += " | " + call.path + " | " + call.preselectedFilter + " > "
            + QStringList({w.fileName()->text(), settings.formatToken,
                              QString::number(w.tabs()->currentIndex()), settings.selectedFilter})
                  .join(" | ");
        QCOMPARE(found, outcome);
        QCOMPARE(call.parent, w.window.get());
        QCOMPARE(call.caption, QStringLiteral("Save File As..."));
        QCOMPARE(call.filters,
            QStringLiteral("BMP Format (*.bmp);;PNG Format (*.png);;TIFF Format (*.tif);;JPEG "
                           "Format (*.jpg);;JPEG2000 Format (*.jp2);;GIF Format (*.gif);;PDF "
                           "Format (*.pdf);;SWF Format (*.swf);;%1RTF Format (*.doc);;MS Excel "
                           "Format (*.xls)")
                .arg(QLatin1String(converter ? "DjVu Format (*.djvu);;" : "")));
        // The driver gets the folder and the name as the two halves of the field.
        QCOMPARE(settings.outputFolder + settings.newFileName,
            file.size() < 4 ? QStringLiteral("Document1") : w.fileName()->text());
    }
};

QTEST_MAIN(SaveAsTest)
#include "tst_saveas.moc"
