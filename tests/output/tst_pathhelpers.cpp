#include "pathhelpers.h"

#include <QTest>

class PathHelpersTest : public QObject
{
    Q_OBJECT

private slots:
    void splitPath_data();
    void splitPath();
    void stripExtension_data();
    void stripExtension();
    void withExtension_data();
    void withExtension();
    void saveAsResult_data();
    void saveAsResult();
};

void PathHelpersTest::splitPath_data()
{
    // path, folder separator, expected directoryPart, expected fileNamePart
    QTest::addColumn<QString>("path");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("fileName");

    const QChar back = QLatin1Char('\\');
    const QChar slash = QLatin1Char('/');
    // clang-format off
    QTest::newRow("backslash path")     << "C:\\out\\report.pdf"  << back  << "C:\\out\\"    << "report.pdf";
    QTest::newRow("slash path")         << "/home/u/report.pdf"   << slash << "/home/u/"     << "report.pdf";
    QTest::newRow("nested backslashes") << "C:\\a\\b\\c\\x"        << back  << "C:\\a\\b\\c\\" << "x";
    QTest::newRow("slash not a folder") << "C:/out/a.png"         << back  << ""             << "C:/out/a.png";
    QTest::newRow("backslash in name")  << "/out/a\\b.png"        << slash << "/out/"        << "a\\b.png";
    QTest::newRow("no separator")       << "Document1"            << slash << ""             << "Document1";
    QTest::newRow("folder only")        << "/out/"                << slash << "/out/"        << "";
    QTest::newRow("root only")          << "\\"                   << back  << "\\"           << "";
    QTest::newRow("empty")              << ""                     << slash << ""             << "";
    // clang-format on
}

void PathHelpersTest::splitPath()
{
    QFETCH(QString, path);
    QFETCH(QChar, separator);
    QFETCH(QString, directory);
    QFETCH(QString, fileName);

    QCOMPARE(PathHelpers::directoryPart(path, separator), directory);
    QCOMPARE(PathHelpers::fileNamePart(path, separator), fileName);
    // The two parts always give the path back whole.
    QCOMPARE(directory + fileName, path);
}

void PathHelpersTest::stripExtension_data()
{
    // file name, expected name without its extension
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("3-letter extension")  << "report.pdf"      << "report";
    QTest::newRow("4-letter extension")  << "scan.djvu"       << "scan";
    QTest::newRow("html")                << "page.html"       << "page";
    QTest::newRow("2-letter kept")       << "notes.ab"        << "notes.ab";
    QTest::newRow("5-letter kept")       << "book.epub3"      << "book.epub3";
    QTest::newRow("only last removed")   << "a.tar.bz2"       << "a.tar";
    QTest::newRow("gz keeps whole name") << "archive.tar.gz"  << "archive.tar.gz";
    QTest::newRow("no dot")              << "Document1"       << "Document1";
    QTest::newRow("dot name only")       << ".pdf"            << "";
    QTest::newRow("4-letter dot name")   << ".djvu"           << "";
    QTest::newRow("too short")           << "pdf"             << "pdf";
    QTest::newRow("trailing dot")        << "report."         << "report.";
    QTest::newRow("empty")               << ""                << "";
    // clang-format on
}

void PathHelpersTest::stripExtension()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);

    QCOMPARE(PathHelpers::stripExtension(name), expected);
}

void PathHelpersTest::withExtension_data()
{
    // name as typed, stored extension without dot, expected full name
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("appended, backslash")   << "C:\\out\\report"      << "pdf"  << "C:\\out\\report.pdf";
    QTest::newRow("appended, slash")       << "/out/report"          << "pdf"  << "/out/report.pdf";
    QTest::newRow("already ends so")       << "C:\\out\\report.pdf"  << "pdf"  << "C:\\out\\report.pdf";
    QTest::newRow("other extension")       << "/out/a.png"           << "pdf"  << "/out/a.png.pdf";
    QTest::newRow("case differs")          << "/out/report.PDF"      << "pdf"  << "/out/report.PDF.pdf";
    QTest::newRow("earlier occurrence")    << "report.pdf.copy.pdf"  << "pdf"  << "report.pdf.copy.pdf.pdf";
    QTest::newRow("3 characters, .pdf")    << "abc"                  << "pdf"  << "abc";
    QTest::newRow("one shorter, .djvu")    << "scan"                 << "djvu" << "scan";
    QTest::newRow("same length, .djvu")    << "scans"                << "djvu" << "scans.djvu";
    QTest::newRow("html after htm")        << "page.htm"             << "html" << "page.htm.html";
    QTest::newRow("empty name")            << ""                     << "pdf"  << ".pdf";
    QTest::newRow("empty extension")       << "report"               << ""     << "report.";
    QTest::newRow("empty ext, ends in dot") << "report."             << ""     << "report.";
    // clang-format on
}

void PathHelpersTest::withExtension()
{
    QFETCH(QString, name);
    QFETCH(QString, extension);
    QFETCH(QString, expected);

    QCOMPARE(PathHelpers::withExtension(name, extension), expected);
}

void PathHelpersTest::saveAsResult_data()
{
    // file dialog result, native separator, expected output folder and file name
    QTest::addColumn<QString>("result");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("fileName");

    const QChar back = QLatin1Char('\\');
    const QChar slash = QLatin1Char('/');
    // clang-format off
    QTest::newRow("slashes on backslash")   << "C:/out/a.png"        << back  << "C:\\out\\"  << "a";
    QTest::newRow("native backslashes")     << "C:\\out\\report.pdf" << back  << "C:\\out\\"  << "report";
    QTest::newRow("mixed on backslash")     << "C:/out\\sub/x.djvu"  << back  << "C:\\out\\sub\\" << "x";
    QTest::newRow("slashes on slash")       << "/home/u/a.png"       << slash << "/home/u/"   << "a";
    QTest::newRow("two-letter ending kept") << "/home/u/notes.ab"    << slash << "/home/u/"   << "notes.ab";
    // clang-format on
}

void PathHelpersTest::saveAsResult()
{
    QFETCH(QString, result);
    QFETCH(QChar, separator);
    QFETCH(QString, folder);
    QFETCH(QString, fileName);

    const QString native = PathHelpers::toNativeSeparators(result, separator);
    QCOMPARE(PathHelpers::directoryPart(native, separator), folder);
    QCOMPARE(PathHelpers::stripExtension(PathHelpers::fileNamePart(native, separator)), fileName);
}

QTEST_APPLESS_MAIN(PathHelpersTest)

#include "tst_pathhelpers.moc"
