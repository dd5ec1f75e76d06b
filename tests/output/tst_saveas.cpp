#include "openwindow.h"

#include <QTest>

// The format a stored token selects, and the main dialog's Save As button.
class SaveAsTest : public QObject
{
    Q_OBJECT

private slots:
    void selectThenOffer_data()
    {
        // stored token selected on page 3 with the filter "before", converter present, then
        // "page | selected filter" and what Save As gets next: "name proposed | preselected"
        QTest::addColumn<QString>("token");
        QTest::addColumn<bool>("converter");
        QTest::addColumn<QString>("outcome");
        // clang-format off
        QTest::newRow("gif")                    << "gif"   << true  << "5 | GIF Format (*.gif) | /out/report.gif | GIF Format (*.gif)";
        QTest::newRow("msxml")                  << "msxml" << false << "9 | MS Excel Format (*.xls) | /out/report.xls | MS Excel Format (*.xls)";
        // The HTML filter is preselected although the list does not offer it.
        QTest::newRow("htm without converter")  << "htm"   << false << "10 | HTML Format (*.html) | /out/report.html | HTML Format (*.html)";
        QTest::newRow("djvu keeps the page")    << "djvu"  << true  << "3 | DjVu Format (*.djvu) | /out/report.jp2 | JPEG2000 Format (*.jp2)";
        QTest::newRow("djvu without converter") << "djvu"  << false << "2 | JPEG Format (*.jpg) | /out/report.jpg | JPEG Format (*.jpg)";
        QTest::newRow("unknown token")          << "xyz"   << true  << "3 | before | /out/report.jp2 | JPEG2000 Format (*.jp2)";
        // clang-format on
    }
    void selectThenOffer()
    {
        QFETCH(QString, token);
        QFETCH(bool, converter);
        QFETCH(QString, outcome);
        OpenWindow w(converter);
        w.tabs()->setCurrentIndex(3);
        w.fileName()->setText(QStringLiteral("/out/report"));
        jobSettings().selectedFilter = QStringLiteral("before");
        w.window->selectFormat(token);
        QString found
            = QString::number(w.tabs()->currentIndex()) + " | " + jobSettings().selectedFilter;
        w.window->pb_filename();
        QCOMPARE(w.prompts.saveAsCalls.size(), 1);
        const ScriptedPrompts::SaveAs &call = w.prompts.saveAsCalls.first();
        QCOMPARE(found + " | " + call.path + " | " + call.preselectedFilter, outcome);
        QCOMPARE(call.parent, w.window.get());
        QCOMPARE(call.caption, QStringLiteral("Save File As..."));
        QCOMPARE(call.filters,
            QStringLiteral("BMP Format (*.bmp);;PNG Format (*.png);;TIFF Format (*.tif);;JPEG "
                           "Format (*.jpg);;JPEG2000 Format (*.jp2);;GIF Format (*.gif);;PDF "
                           "Format (*.pdf);;SWF Format (*.swf);;%1RTF Format (*.rtf);;MS Excel "
                           "Format (*.xls)")
                .arg(QLatin1String(converter ? "DjVu Format (*.djvu);;" : "")));
    }

    void result_data()
    {
        // RTF extension setting, file returned (empty: cancelled), filter left selected, then
        // "le_filename | format token | page | selected filter", starting from "/start/Document1"
        // on page 3 with the token "before"
        QTest::addColumn<QString>("rtf");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("outcome");
        // clang-format off
        QTest::newRow("PNG")                  << "rtf" << "/out/a.png"   << "PNG Format (*.png)"      << "/out/a | png | 1 | PNG Format (*.png)";
        QTest::newRow("DjVu keeps the page")  << "rtf" << "/out/a.djvu"  << "DjVu Format (*.djvu)"    << "/out/a | djvu | 3 | DjVu Format (*.djvu)";
        QTest::newRow("RTF, other extension") << "doc" << "/out/a.doc"   << "RTF Format (*.doc)"      << "/out/a |  | 3 | ";
        QTest::newRow("fixed RTF text")       << "doc" << "/out/a.rtf"   << "RTF Format (*.rtf)"      << "/out/a | rtf | 8 | RTF Format (*.doc)";
        QTest::newRow("HTML not offered")     << "rtf" << "/out/a.html"  << "HTML Format (*.html)"    << "/out/a |  | 3 | ";
        QTest::newRow("dotted folder")        << "rtf" << "/o.v2/r"      << "PNG Format (*.png)"      << "/o.v2/r | png | 1 | PNG Format (*.png)";
        QTest::newRow("forward slashes")      << "rtf" << "C:/out/a.png" << "PNG Format (*.png)"      << "C:/out/a | png | 1 | PNG Format (*.png)";
        QTest::newRow("4 characters taken")   << "rtf" << "/a.b"         << "PNG Format (*.png)"      << "/a.b | png | 1 | PNG Format (*.png)";
        QTest::newRow("3 characters ignored") << "rtf" << "a.b"          << "PNG Format (*.png)"      << "/start/Document1 | before | 3 | PNG Format (*.png)";
        QTest::newRow("cancelled")            << "rtf" << ""             << ""                        << "/start/Document1 | before | 3 | JPEG2000 Format (*.jp2)";
        // clang-format on
    }
    void result()
    {
        QFETCH(QString, rtf);
        QFETCH(QString, file);
        QFETCH(QString, chosen);
        QFETCH(QString, outcome);
        OpenWindow w(true);
        w.prompts.chosenFile = file;
        w.prompts.chosenFilter = chosen.isEmpty() ? QString() : chosen;
        JobSettings &settings = jobSettings();
        settings.extensions[Formats::Rtf] = rtf;
        settings.formatToken = QStringLiteral("before");
        w.tabs()->setCurrentIndex(3);
        w.fileName()->setText(QStringLiteral("/start/Document1"));
        QVERIFY(!w.window->isNameChosenByDialog());
        w.window->pb_filename();
        // Set even when nothing was taken: Print then asks no overwrite question.
        QVERIFY(w.window->isNameChosenByDialog());
        QCOMPARE(
            QStringList({w.fileName()->text(), settings.formatToken,
                            QString::number(w.tabs()->currentIndex()), settings.selectedFilter})
                .join(" | "),
            outcome);
        // The driver gets the folder and the name as the two halves of the field.
        QCOMPARE(settings.outputFolder + settings.newFileName,
            file.size() < 4 ? QStringLiteral("Document1") : w.fileName()->text());
    }
};

QTEST_MAIN(SaveAsTest)
#include "tst_saveas.moc"
