// SPDX-License-Identifier: GPL-3.0-or-later
// The whole print path on a real CUPS: the project installed into a folder of its own, a private
// scheduler with its backend, description and policy, two throwaway users, the first one's desktop
// on a virtual display with the installed agent in it. Jobs go in with `lp`, Print is pressed with
// xdotool, and the files are read back with real readers.
#include "tests/printing/printharness.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace PrintHarness;

class tst_PrintCups : public QObject
{
    Q_OBJECT

public:
    int passed = 0, failed = 0;

private slots:
    void initTestCase()
    {
        if (::geteuid() != 0)
            QSKIP("needs root: a scheduler, throwaway users and a backend that drops to them");
        m_systemSpoolBefore = QFileInfo::exists("/var/spool/vellumio");
        removeStaleUsers();
        QVERIFY(m_dir.isValid() && ::chmod(QFile::encodeName(m_dir.path()), 0711) == 0);
        QProcessEnvironment install = QProcessEnvironment::systemEnvironment();
        install.insert("DESTDIR", path("root"));
        QCOMPARE(runAs(nullptr, CMAKE_COMMAND, {"--install", BUILD_DIR}, install), 0);
        m_ann = std::make_unique<ThrowawayUser>('a', m_dir.path());
        m_bob = std::make_unique<ThrowawayUser>('b', m_dir.path());
        QVERIFY(m_ann->uid && m_bob->uid && m_ann->makeFolder(m_ann->home + "/out", 0700));
        QVERIFY(makeSpoolRoot(path("spool")) && QDir().mkpath(path("cups")));
        m_cups = std::make_unique<PrivateCups>(path("cups"), path("spool"));
        QVERIFY(m_cups->start(installed(BACKEND_DIR "/vellumio"),
            installed(DATA_DIR "/vellumio/vellumio-policy.conf")));
        QVERIFY(m_cups->addQueue(installed(DATA_DIR "/ppd/vellumio/vellumio.ppd")));
        const QString display = startDisplay(m_xvfb, *m_ann);
        QVERIFY(!display.isEmpty() && QFile::exists(path("root" AUTOSTART_ENTRY)));
        m_session = m_ann->session(display, path("spool"));
        m_session.insert("CUPS_SERVER", m_cups->socket());
        startAs(m_agent, m_ann.get(), installed(BIN_DIR "/vellumio-agent"), {}, m_session);
        QVERIFY(m_agent.waitForStarted());
    }
    void cleanup() { ++(QTest::currentTestFailed() ? failed : passed); }

    void print_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("job"); // lp's options, then "pdf": two pages, "txt": a line
                                              // of text, "ps": a PostScript page
        QTest::addColumn<QVariantMap>("settings"); // chosen before printing
        QTest::addColumn<QString>("file"); // the result in the output folder
        QTest::addColumn<QStringList>("reader"); // run on the result
        QTest::addColumn<QStringList>("says"); // in what the reader prints

        using V = QVariantMap;
        using L = QStringList;
        // clang-format off
        QTest::newRow("PDF as PDF with its title")    << "Quarterly" << L{"pdf"}
            << V{{"format", "pdf"}, {"pdf_title", "Figures of the quarter"}}
            << "Quarterly.pdf"  << L{"pdfinfo"}         << L{"Pages:           2", "Title:           Figures of the quarter"};
        QTest::newRow("PDF as one grey LZW TIFF")     << "Scan" << L{"pdf"}
            << V{{"format", "tif"}, {"multipage_tiff", "true"}, {"image_color", "24g"}, {"format_ext", "LZW"}}
            << "Scan.tif"       << L{"tiffinfo"}        << L{"Compression Scheme: LZW", "Bits/Sample: 8", "multi-page document", "Image Width: 2479"};
        QTest::newRow("text as monochrome PNG")       << "notes.txt" << L{"txt"}
            << V{{"format", "png"}, {"image_color", "1"}}
            << "notes.png"      << L{"file", "-b"}      << L{"PNG image data, 2479 x 3508, 1-bit"};
        QTest::newRow("PDF as JPEG at quality 40")    << "Photo" << L{"pdf"}
            << V{{"format", "jpg"}, {"image_color", "24"}, {"q_jpg", 40}}
            << "Photo.jpg"      << L{"file", "-b"}      << L{"JPEG image data", "2479x3508"};
        QTest::newRow("text as RTF")                  << "letter.txt" << L{"txt"}
            << V{{"format", "rtf"}}
            << "letter.rtf"     << L{"file", "-b"}      << L{"Rich Text Format"};
        // PostScript reaches the backend as it is; the agent converts it.
        QTest::newRow("PostScript as PDF")            << "Memo" << L{"ps"}
            << V{{"format", "pdf"}}
            << "Memo.pdf"       << L{"pdfinfo"}         << L{"Pages:           1", "Producer:        GPL Ghostscript"};
        // A page range: the backend has CUPS's pdftopdf lay out the pages.
        QTest::newRow("second page only, as PDF")     << "Second" << L{"-P", "2", "pdf"}
            << V{{"format", "pdf"}}
            << "Second.pdf"     << L{"pdfinfo"}         << L{"Pages:           1"};
        // Only a file name is asked; Return takes the one offered.
        QTest::newRow("save-as-only mode")            << "Receipt" << L{"txt"}
            << V{{"format", "pdf"}, {"chDialog_SaveAs", "true"}}
            << "Receipt.pdf"    << L{"pdfinfo"}         << L{"Pages:           1"};
        // clang-format on
    }
    void print()
    {
        QFETCH(QString, title);
        QFETCH(QStringList, job);
        QFETCH(QVariantMap, settings);
        QFETCH(QString, file);
        QFETCH(QStringList, reader);
        QFETCH(QStringList, says);
        const bool saveAsOnly = settings.contains("chDialog_SaveAs");
        settings.insert("path", m_ann->home + "/out/");
        QFile::remove(m_ann->settingsFile());
        m_ann->writeSettings(settings);
        job.last() = input(job.last());
        QCOMPARE(lp(QStringList {"-t", title} + job, nullptr), 0);
        const QString name = saveAsOnly ? "^Save File As" : "^Vellumio$";
        QByteArray found;
        QCOMPARE(runAs(nullptr, "timeout",
                     {"30", "xdotool", "search", "--sync", "--onlyvisible", "--name", name},
                     m_session, &found),
            0);
        const QString window = QString::fromUtf8(found.split('\n').first());
        QCOMPARE(runAs(nullptr, "xdotool", {"windowfocus", "--sync", window, "key", "Return"},
                     m_session),
            0);
        const QString result = m_ann->home + "/out/" + file;
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(result), 60000);
        QTRY_VERIFY_WITH_TIMEOUT(
            entries(path("spool/") + QString::number(m_ann->uid)).isEmpty(), 10000);
        QByteArray read;
        QCOMPARE(runAs(nullptr, reader.first(), reader.mid(1) << result, m_session, &read), 0);
        for (const QString &part : says)
            QVERIFY2(read.contains(part.toUtf8()), read.constData());
        QCOMPARE(QFileInfo(result).ownerId(), m_ann->uid);
    }

    // The first user claims to be the second: the policy wants the real owner. Nor may the second
    // look into the first one's spool.
    void otherUserRefused()
    {
        QByteArray said;
        QVERIFY(lp({"-U", m_bob->name, input("txt")}, &said) != 0);
        QVERIFY2(said.contains("Unauthorized") || said.contains("Forbidden"), said.constData());
        QVERIFY(!QFileInfo::exists(path("spool/") + QString::number(m_bob->uid)));
        QVERIFY(runAs(m_bob.get(), "ls", {path("spool/") + QString::number(m_ann->uid)}, m_session)
            != 0);
    }

    void cleanupTestCase()
    {
        m_agent.kill();
        m_agent.waitForFinished();
        m_xvfb.kill();
        m_xvfb.waitForFinished();
        m_cups.reset();
        m_ann.reset();
        m_bob.reset();
        QCOMPARE(QFileInfo::exists("/var/spool/vellumio"), m_systemSpoolBefore);
    }

private:
    QString path(const QString &relative) const { return m_dir.filePath(relative); }
    QString installed(const QString &relative) const
    {
        return path("root" INSTALL_PREFIX "/") + relative;
    }

    // lp as the first user, through the scheduler's socket, where peer credentials say who it is.
    int lp(const QStringList &arguments, QByteArray *output)
    {
        return runAs(m_ann.get(), "lp",
            QStringList {"-h", m_cups->socket(), "-d", "Vellumio"} + arguments, m_session, output);
    }

    // Documents readable by the scheduler's filters: a line of text, a PostScript page, two PDF
    // pages.
    QString input(const QString &kind)
    {
        const QString name = path("input.") + kind;
        const QByteArray page = "/Times-Roman findfont 20 scalefont setfont 72 700 moveto ";
        if (kind == "txt")
            writeFile(name, "A line of plain text, printed from a terminal.\n");
        else if (kind == "ps")
            writeFile(name, "%!PS\n" + page + "(A memo) show showpage\n");
        else
            writePdf(name,
                page + "(First page) show showpage 72 700 moveto (Second page) show showpage");
        ::chmod(QFile::encodeName(name), 0644);
        return name;
    }

    QTemporaryDir m_dir;
    std::unique_ptr<ThrowawayUser> m_ann, m_bob;
    std::unique_ptr<PrivateCups> m_cups;
    QProcess m_xvfb, m_agent;
    QProcessEnvironment m_session;
    bool m_systemSpoolBefore = false;
};

// CI reads the closing line.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    tst_PrintCups test;
    const int status = QTest::qExec(&test, argc, argv);
    std::printf("%d passed, %d failed\n", test.passed, std::max(test.failed, status));
    return status;
}

#include "tst_printcups.moc"
