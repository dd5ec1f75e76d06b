#include "pathhelpers.h"

#include <QTest>

using namespace PathHelpers;

// The pure rules of the output path, on both folder separators.
class PathHelpersTest : public QObject
{
    Q_OBJECT

private slots:
    void rules_data()
    {
        // rule, its input, the separator ('\' or '/') or the extension, the result; "split" gives
        // "folder|name", "saveas" the folder and name a Save As result is stored as
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("arg");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("split backslash")     << "split"  << "C:\\a\\b\\x.pdf" << "\\" << "C:\\a\\b\\|x.pdf";
        QTest::newRow("split slash")         << "split"  << "/home/u/x.pdf"  << "/"  << "/home/u/|x.pdf";
        QTest::newRow("slash not a folder")  << "split"  << "C:/out/a.png"   << "\\" << "|C:/out/a.png";
        QTest::newRow("no separator")        << "split"  << "Document1"      << "/"  << "|Document1";
        QTest::newRow("strip 3 letters")     << "strip"  << "report.pdf"     << ""   << "report";
        QTest::newRow("strip 4 letters")     << "strip"  << "scan.djvu"      << ""   << "scan";
        QTest::newRow("2 letters kept")      << "strip"  << "notes.ab"       << ""   << "notes.ab";
        QTest::newRow("only last removed")   << "strip"  << "a.tar.bz2"      << ""   << "a.tar";
        QTest::newRow("too short")           << "strip"  << "pdf"            << ""   << "pdf";
        QTest::newRow("appended")            << "with"   << "C:\\out\\report" << "pdf" << "C:\\out\\report.pdf";
        QTest::newRow("case differs")        << "with"   << "/out/report.PDF" << "pdf" << "/out/report.PDF.pdf";
        QTest::newRow("first occurrence")    << "with"   << "a.pdf.copy.pdf" << "pdf"  << "a.pdf.copy.pdf.pdf";
        QTest::newRow("3 characters, .pdf")  << "with"   << "abc"            << "pdf"  << "abc";
        QTest::newRow("html after htm")      << "with"   << "page.htm"       << "html" << "page.htm.html";
        QTest::newRow("empty extension")     << "with"   << "report"         << ""     << "report.";
        QTest::newRow("slashes turned")      << "saveas" << "C:/out\\sub/x.djvu" << "\\" << "C:\\out\\sub\\|x";
        QTest::newRow("slashes kept")        << "saveas" << "/home/u/notes.ab" << "/" << "/home/u/|notes.ab";
        // clang-format on
    }
    void rules()
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
};

QTEST_APPLESS_MAIN(PathHelpersTest)
#include "tst_pathhelpers.moc"
