// SPDX-License-Identifier: GPL-3.0-or-later
// The output path rules, the format a stored token selects, Save As, Print's checks and their
// questions, what stands at the output name afterwards, Cancel, and closing by the title bar. What
// Print saves is proven by the settings suite's write-order test.
#include "formats/pathhelpers.h"
#include "tests/support/openwindow.h"

#include <QApplication>
#include <QSpinBox>
#include <QTest>

#include <sys/stat.h>

namespace {

// What stands at the output name before Print. Links point outside the output folder.
enum class AtName { Nothing, File, Folder, Link, DanglingLink, Pipe };

// The questions Print may ask, in the order it asks them.
enum Asked { MissingFolder, Replace, NoPermission };

const QByteArray earlierPrint = "an earlier print";

} // namespace

Q_DECLARE_METATYPE(AtName)
Q_DECLARE_METATYPE(QList<Asked>)

class tst_Output : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void print_data()
    {
        QTest::addColumn<QString>("name"); // le_filename below the temporary folder
        QTest::addColumn<AtName>("atName"); // at the name + ".pdf" before Print
        QTest::addColumn<bool>("fromSaveAs"); // the name was picked (and cancelled) in Save As
        QTest::addColumn<QMessageBox::StandardButton>("answer"); // to the replace question
        QTest::addColumn<QList<Asked>>("asked");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("kept"); // what stood at the name is still there

        const auto yes = QMessageBox::Yes, no = QMessageBox::No, none = QMessageBox::NoButton;
        using N = AtName;
        const QList<Asked> replace {Replace}, missing {MissingFolder};
        // clang-format off
        QTest::newRow("new file")               << "report"         << N::Nothing      << false << none << QList<Asked>{} << true  << false;
        QTest::newRow("missing folder")         << "missing/report" << N::Nothing      << false << none << missing        << false << false;
        QTest::newRow("missing, from Save As")  << "missing/report" << N::Nothing      << true  << none << missing        << false << false;
        QTest::newRow("existing file, Yes")     << "report"         << N::File         << false << yes  << replace        << true  << false;
        QTest::newRow("existing file, No")      << "report"         << N::File         << false << no   << replace        << false << true;
        // Driver contract: a box closed otherwise is taken as consent.
        QTest::newRow("box closed otherwise")   << "report"         << N::File         << false << none << replace        << true  << false;
        QTest::newRow("existing, from Save As") << "report"         << N::File         << true  << none << QList<Asked>{} << true  << false;
        QTest::newRow("folder at name, Yes")    << "report"         << N::Folder       << false << yes  << QList<Asked>{Replace, NoPermission} << false << true;
        QTest::newRow("NUL in name")            << QStringLiteral("rep") + QChar(0) + "ort" << N::Nothing << false << none << QList<Asked>{NoPermission} << false << false;
        // The link is what is replaced; the file it points to outside the folder is untouched.
        QTest::newRow("link, Yes")              << "report"         << N::Link         << false << yes  << replace        << true  << false;
        QTest::newRow("dangling link, Yes")     << "report"         << N::DanglingLink << false << yes  << replace        << true  << false;
        // Opening a pipe would wait for a reader for good.
        QTest::newRow("pipe, Yes")              << "report"         << N::Pipe         << false << yes  << QList<Asked>{Replace, NoPermission} << false << true;
        // clang-format on
    }
    void print()
    {
        QFETCH(QString, name);
        QFETCH(AtName, atName);
        QFETCH(bool, fromSaveAs);
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QList<Asked>, asked);
        QFETCH(bool, closed);
        QFETCH(bool, kept);
        OpenWindow w(false);
        const QString root = QDir::cleanPath(w.job.dir.path()) + "/out";
        const QString outside = QDir::cleanPath(w.job.dir.path()) + "/elsewhere.pdf";
        const QString file = root + '/' + name + ".pdf";
        QVERIFY(QDir().mkpath(root));
        makeAtName(w.job, atName, file, outside);
        if (fromSaveAs)
            w.window->pb_filename(); // cancelled: the name still counts as chosen there
        if (answer != QMessageBox::NoButton)
            w.prompts.answers << answer;
        w.window->show();
        WindowOrder::setTopmost(w.window.get());
        w.prompts.watched = w.window.get();
        w.tabs()->setCurrentIndex(Formats::Pdf);
        w.fileName()->setText(root + '/' + name);

        w.window->pb_print();

        const QString texts[]
            = {root + "/missing/\nThis directory doesn't exist.\n\nPlease choose correct directory",
                file + " already exists.\nDo you want to replace it?",
                "You have no permission to write in this directory.\nPlease, choose another one."};
        QCOMPARE(w.prompts.questions.size(), asked.size());
        for (int i = 0; i < asked.size(); ++i) {
            const ScriptedPrompts::Question &question = w.prompts.questions.at(i);
            QCOMPARE(question.title, asked[i] == MissingFolder ? QString() : "Vellumio");
            QCOMPARE(question.text, texts[asked[i]]);
            QCOMPARE(question.buttons,
                asked[i] == Replace ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
            // Boxes have no parent, and the dialog was taken off the top before the first.
            QVERIFY(!question.parent);
            QVERIFY(!question.watchedWasTopmost);
        }
        QCOMPARE(!w.window->isVisible(), closed);
        QCOMPARE(QFileInfo(file).exists() || QFileInfo(file).isSymLink(), kept);
        // The write test removes what it created or replaced, and creates nothing else.
        QCOMPARE(
            QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size(),
            int(kept));
        if (atName == AtName::File && kept)
            QCOMPARE(JobFixture::bytesOf(file), earlierPrint);
        QCOMPARE(
            JobFixture::bytesOf(outside), atName == AtName::Link ? earlierPrint : QByteArray());
        QCOMPARE(QFileInfo::exists(outside), atName == AtName::Link);
    }

    void pathRules_data()
    {
        // The rules of the output path where Save As below does not reach them, on both folder
        // separators. "split" gives "folder|name", "saveas" the folder and name a Save As result
        // is stored as.
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("arg"); // the separator or the extension
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
        using namespace PathHelpers;
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

    void cancelOrClose_data()
    {
        QTest::addColumn<bool>("cancel"); // Cancel, or the title bar's close button
        QTest::addColumn<bool>("allUsers");
        QTest::addColumn<QByteArray>("userKey"); // as the action leaves them
        QTest::addColumn<QByteArray>("machineKey");
        // Only the abort flag is written, to the keys in use; the dialog's changes are lost.
        const QByteArray user = "[General]\nisabort=false\nformat=png\nq_jpg=42\n";
        const QByteArray cancelled = "[General]\nformat=png\nisabort=true\nq_jpg=42\n";
        // clang-format off
        QTest::newRow("Cancel, user key")  << true  << false << cancelled << QByteArray("[General]\nisabort=false\nformat=bmp\nsettings_for_all_users=false\n");
        QTest::newRow("Cancel, both keys") << true  << true  << cancelled << QByteArray("[General]\nformat=bmp\nisabort=true\nsettings_for_all_users=true\n");
        QTest::newRow("title bar")         << false << true  << user      << QByteArray("[General]\nisabort=false\nformat=bmp\nsettings_for_all_users=true\n");
        // clang-format on
    }
    void cancelOrClose()
    {
        QFETCH(bool, cancel);
        QFETCH(bool, allUsers);
        QFETCH(QByteArray, userKey);
        QFETCH(QByteArray, machineKey);
        OpenWindow w(false);
        w.job.writeFile(w.job.machineFile(),
            QByteArray("[General]\nisabort=false\nformat=bmp\nsettings_for_all_users=")
                + (allUsers ? "true" : "false") + '\n');
        w.job.writeFile(w.job.userFile(), "[General]\nisabort=false\nformat=png\nq_jpg=42\n");
        w.window = w.job.createWindow(false); // loads the keys just written
        w.window->show();
        w.tabs()->setCurrentIndex(Formats::Pdf);
        w.part<QSpinBox>("spb_q_jpg")->setValue(7);

        cancel ? w.window->pb_cancel() : void(w.window->close());

        QVERIFY(!w.window->isVisible());
        QVERIFY(w.prompts.questions.isEmpty());
        QCOMPARE(JobFixture::bytesOf(w.job.userFile()), userKey);
        QCOMPARE(JobFixture::bytesOf(w.job.machineFile()), machineKey);
    }

private:
    static void makeAtName(
        const JobFixture &job, AtName atName, const QString &file, const QString &outside)
    {
        if (atName == AtName::File || atName == AtName::Link)
            job.writeFile(atName == AtName::File ? file : outside, earlierPrint);
        if (atName == AtName::Folder)
            QVERIFY(QDir().mkpath(file));
        if (atName == AtName::Link || atName == AtName::DanglingLink)
            QVERIFY(QFile::link(outside, file));
        if (atName == AtName::Pipe)
            QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    }
};

QTEST_MAIN(tst_Output)
#include "tst_output.moc"
