// SPDX-License-Identifier: GPL-3.0-or-later
// The pure side of rendering: the numbered file names, and what every plan promises whatever the
// options (sandboxed Ghostscript, no secret on a command line, every page once).
#include "render/filenames.h"
#include "render/renderplan.h"

#include <QRegularExpression>
#include <QTest>

using namespace Render;

class tst_RenderPlan : public QObject
{
    Q_OBJECT

private slots:
    void stems_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("prefixFirstPage");
        QTest::addColumn<QString>("customNumber");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("one file is never numbered")      << 1 << true  << "5"   << "Doc";
        QTest::newRow("add 1")                           << 3 << true  << ""    << "Doc1 Doc2 Doc3";
        QTest::newRow("add 1 wins over a custom number") << 2 << true  << "7"   << "Doc1 Doc2";
        QTest::newRow("custom keeps its width")          << 3 << false << "098" << "Doc098 Doc099 Doc100";
        QTest::newRow("custom grows past its width")     << 2 << false << "9"   << "Doc9 Doc10";
        QTest::newRow("custom longer than any integer")  << 2 << false << "99999999999999999999" << "Doc99999999999999999999 Doc100000000000000000000";
        QTest::newRow("empty custom")                    << 3 << false << ""    << "Doc Doc2 Doc3";
        QTest::newRow("custom that is no number")        << 2 << false << "1a"  << "Doc Doc2";
        // clang-format on
    }
    void stems()
    {
        QFETCH(int, count);
        QFETCH(bool, prefixFirstPage);
        QFETCH(QString, customNumber);
        QFETCH(QString, expected);
        QCOMPARE(
            FileNames::stems("Doc", count, {prefixFirstPage, customNumber}).join(' '), expected);
    }

    void everyPlan_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<bool>("multipage");
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("parallel");
        for (const Formats::Format &format : Formats::all()) {
            for (bool multipage : {true, false})
                QTest::addRow(
                    "%s %s, 57 pages, 2 cores", format.token, multipage ? "one file" : "split")
                    << int(format.index) << multipage << 57 << 2;
            QTest::addRow("%s, 1 page, 1 core", format.token)
                << int(format.index) << true << 1 << 1;
        }
    }
    // Whatever the options: Ghostscript sandboxed, no shell, no secret on a command line, every
    // page rendered exactly once, and one output per page unless one file is asked for.
    void everyPlan()
    {
        QFETCH(int, format);
        QFETCH(bool, multipage);
        QFETCH(int, pages);
        QFETCH(int, parallel);
        const QString secret = "s3cr3t-Pass";
        Options options;
        options.format = Formats::Index(format);
        options.name = "Doc";
        options.multipageTiff = options.multipageSwf = options.multipagePdf = options.multipageHtm
            = options.multipageDjvu = multipage;
        options.pdf = {"T", "A", "S", "K", "C", "P", secret, secret + "o", true, {}};
        options.swfPassword = secret;
        options.extractText = true;
        static const QRegularExpression first("^-dFirstPage=(\\d+)$"), last("^-dLastPage=(\\d+)$");
        for (const char *colour : {"1", "8", "24g", "24"}) {
            for (const char *compression : {"LZW", "G4", "G3", "JPEG", "ZIP", "PACKBITS"}) {
                options.colorCode = colour;
                options.compression = compression;
                const Plan plan = makePlan(options, {"/spool/job.pdf", pages, parallel});
                QVERIFY(plan.refusal.isEmpty());
                QList<int> rendered(pages + 1, 0);
                for (const Step &step : plan.steps()) {
                    const Command &command = step.command;
                    QVERIFY2(
                        !command.arguments.join(' ').contains(secret), qPrintable(command.program));
                    QVERIFY(!QStringList({"sh", "bash", "env"}).contains(command.program));
                    if (command.program != "gs")
                        continue;
                    for (const char *flag : {"-dSAFER", "-dBATCH", "-dNOPAUSE"})
                        QVERIFY(command.arguments.contains(flag));
                    int from = 1, to = pages;
                    for (const QString &argument : command.arguments) {
                        if (first.match(argument).hasMatch())
                            from = first.match(argument).captured(1).toInt();
                        if (last.match(argument).hasMatch())
                            to = last.match(argument).captured(1).toInt();
                    }
                    if (command.arguments.last() == "/spool/job.pdf")
                        for (int page = from; page <= to; ++page)
                            ++rendered[page];
                }
                if (rendered.mid(1).contains(1) || rendered.mid(1).contains(2))
                    QCOMPARE(rendered.mid(1), QList<int>(pages, 1));
                // RTF and MS Excel are one document; the image formats are one file per page.
                const bool oneFile = pages == 1 || format == Formats::Rtf
                    || format == Formats::Excel
                    || (multipage && format != Formats::Bmp && format != Formats::Png
                        && format != Formats::Jpeg && format != Formats::Jpeg2000
                        && format != Formats::Gif);
                QCOMPARE(plan.outputs.size(), (oneFile ? 1 : pages) + 1);
                QCOMPARE(plan.outputs.last().fileName, "Doc.txt");
                QCOMPARE(plan.outputs.first().fileName, "Doc." + options.extension());
            }
        }
    }

    // A PDF is drawn anew only when the options change its pages; otherwise no program renders
    // it.
    void programs_data()
    {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<int>("quality");
        QTest::addColumn<bool>("text");
        QTest::addColumn<bool>("multipage");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("programs");
        // clang-format off
        QTest::newRow("kept PDF: copied in-process") << "24"  << 100 << true  << true  << ""  << "";
        QTest::newRow("kept PDF, information")       << "24"  << 100 << true  << true  << "T" << "qpdf";
        QTest::newRow("kept PDF, a file per page")   << "24"  << 100 << true  << false << ""  << "qpdf";
        QTest::newRow("greyscale drawn anew")        << "24g" << 100 << true  << true  << ""  << "gs";
        QTest::newRow("monochrome drawn anew")       << "1"   << 100 << true  << true  << ""  << "gs";
        QTest::newRow("lower quality drawn anew")    << "24"  << 99  << true  << true  << ""  << "gs";
        QTest::newRow("no text layer drawn anew")    << "24"  << 100 << false << true  << ""  << "gs";
        // clang-format on
    }
    void programs()
    {
        Options options;
        options.format = Formats::Pdf;
        options.name = "Doc";
        QFETCH(QString, colour);
        QFETCH(int, quality);
        QFETCH(bool, text);
        QFETCH(bool, multipage);
        QFETCH(QString, title);
        QFETCH(QString, programs);
        options.colorCode = colour;
        options.qualityPdf = quality;
        options.pdfText = text;
        options.multipagePdf = multipage;
        options.pdf.title = title;
        QCOMPARE(makePlan(options, {"/spool/job.pdf", 3, 2}).programs().join(' '), programs);
    }
};

QTEST_GUILESS_MAIN(tst_RenderPlan)
#include "tst_renderplan.moc"
