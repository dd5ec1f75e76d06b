// SPDX-License-Identifier: GPL-3.0-or-later
// The print path's rules without files or processes: hostile job titles, what the agent does after
// the dialog, the order of jobs, the job description, and which jobs CUPS lays out first.
#include "agent/jobrules.h"
#include "backend/spooljob.h"

#include <QTest>

using JobRules::AfterDialog;

Q_DECLARE_METATYPE(AfterDialog)

namespace {

QByteArray bytes(const std::string &text)
{
    return QByteArray::fromStdString(text);
}

const std::string options = "media=A4 job-name=%ZZ"; // escaped in the description

} // namespace

class tst_PrintRules : public QObject
{
    Q_OBJECT

private slots:
    void safeFileName_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("name"); // handed to the dialog

        const QString smile = QStringLiteral("\U0001F600");
        // clang-format off
        QTest::newRow("plain")                << "Quarterly report"          << "Quarterly report";
        QTest::newRow("extension dropped")    << "notes.txt"                 << "notes";
        QTest::newRow("two-letter kept")      << "archive.tar.gz"            << "archive.tar.gz";
        QTest::newRow("absolute path")        << "/home/ann/letters/to-bob.odt" << "to-bob";
        QTest::newRow("Windows path")         << "C:\\Users\\ann\\memo.docx" << "memo";
        QTest::newRow("trailing slash")       << "/srv/share/"               << "share";
        QTest::newRow("parent folder")        << ".."                        << "Document";
        QTest::newRow("escape by parents")    << "../../../etc/passwd"       << "passwd";
        QTest::newRow("hidden file")          << ".bashrc"                   << "bashrc";
        QTest::newRow("leading dashes")       << "--platform=vnc"            << "platform=vnc";
        QTest::newRow("dash after dots")      << ".-.-rf"                    << "rf";
        QTest::newRow("line breaks")          << "two\nlines\r\nthree"       << "two lines three";
        QTest::newRow("tab and escape")       << "a\tb\x1b[31mred"           << "a b[31mred";
        QTest::newRow("NUL and DEL")          << QString::fromUtf8("a\0b\x7f" "c", 5) << "abc";
        QTest::newRow("C1 controls")          << QString("x") + QChar(0x85) + "y" + QChar(0x9b) + "z" << "x yz";
        QTest::newRow("right-to-left trick")  << QString("invoice") + QChar(0x202e) + "fdp.exe" << "invoicefdp";
        QTest::newRow("paragraph separator")  << QString("a") + QChar(0x2029) + "b" << "a b";
        QTest::newRow("lone surrogate")       << QString("a") + QChar(0xd800) + "b" << "ab";
        QTest::newRow("emoji kept")           << smile + " party"            << smile + " party";
        QTest::newRow("empty")                << ""                          << "Document";
        QTest::newRow("only spaces")          << "   \t "                    << "Document";
        QTest::newRow("only dots and dashes") << "-.-..--"                   << "Document";
        QTest::newRow("10,000 characters")    << QString(10000, 'a')         << QString(JobRules::maxNameBytes, 'a');
        // 4 bytes each: a character is never cut in half.
        QTest::newRow("10,000 emoji halves")  << smile.repeated(5000)        << smile.repeated(JobRules::maxNameBytes / 4);
        QTest::newRow("cut before a space")   << QString(JobRules::maxNameBytes - 1, 'a') + " b" << QString(JobRules::maxNameBytes - 1, 'a');
        // clang-format on
    }
    void safeFileName()
    {
        QFETCH(QString, title);
        QFETCH(QString, name);
        const QString made = JobRules::safeFileName(title);
        QCOMPARE(made, name);
        QVERIFY(made.toUtf8().size() <= JobRules::maxNameBytes);
        QVERIFY(!made.contains('/') && !made.startsWith('-') && !made.startsWith('.'));
        QCOMPARE(JobRules::safeFileName(made), made);
    }

    void afterDialog_data()
    {
        QTest::addColumn<bool>("started");
        QTest::addColumn<bool>("exitedNormally");
        QTest::addColumn<bool>("keyRewritten");
        QTest::addColumn<QString>("isAbort");
        QTest::addColumn<AfterDialog>("next");

        // clang-format off
        QTest::newRow("Print")                     << true  << true  << true  << "false" << AfterDialog::Render;
        QTest::newRow("Cancel")                    << true  << true  << true  << "true"  << AfterDialog::Cancelled;
        QTest::newRow("title bar: nothing saved")  << true  << true  << false << "true"  << AfterDialog::Cancelled;
        QTest::newRow("earlier Print left")        << true  << true  << false << "false" << AfterDialog::Cancelled;
        QTest::newRow("killed after saving")       << true  << false << true  << "false" << AfterDialog::EndedAbnormally;
        QTest::newRow("display gone")              << true  << false << false << "true"  << AfterDialog::EndedAbnormally;
        QTest::newRow("value edited by hand")      << true  << true  << true  << "no"    << AfterDialog::Cancelled;
        QTest::newRow("missing program")           << false << false << false << "false" << AfterDialog::NotStarted;
        // clang-format on
    }
    void afterDialog()
    {
        QFETCH(bool, started);
        QFETCH(bool, exitedNormally);
        QFETCH(bool, keyRewritten);
        QFETCH(QString, isAbort);
        QFETCH(AfterDialog, next);
        QCOMPARE(JobRules::afterDialog({started, exitedNormally, keyRewritten, isAbort}), next);
    }

    void pendingJobs_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("order");

        const QString early = QString::fromStdString(Spool::jobName(1700000000000000, "9"));
        const QString late = QString::fromStdString(Spool::jobName(1700000000000001, "2"));
        const QString sameTime10 = QString::fromStdString(Spool::jobName(1700000000000000, "10"));
        // clang-format off
        QTest::newRow("oldest first")      << QStringList{late, early}             << QStringList{early, late};
        QTest::newRow("same time, by id")  << QStringList{sameTime10, early}       << QStringList{early, sameTime10};
        QTest::newRow("work in progress")  << QStringList{".incoming-7-123", ".finished-" + early, late} << QStringList{late};
        QTest::newRow("other entries")     << QStringList{"failed", "123", "00000000000000000001-x", early + "-"} << QStringList{};
        // clang-format on
    }
    void pendingJobs()
    {
        QFETCH(QStringList, entries);
        QFETCH(QStringList, order);
        QStringList taken;
        std::vector<std::string> names;
        for (const QString &entry : entries)
            names.push_back(entry.toStdString());
        for (const std::string &name : Spool::pendingJobs(names))
            taken += QString::fromStdString(name);
        QCOMPARE(taken, order);
    }

    void layoutFilter_data()
    {
        QTest::addColumn<QString>("options"); // as the scheduler hands them to the backend
        QTest::addColumn<QString>("type"); // the document the backend receives
        QTest::addColumn<QString>("filter");

        const QString pdf = "application/vnd.cups-pdf", ps = "application/postscript";
        // What every job carries, and layout options at values that change nothing.
        const QString usual
            = "finishings=3 number-up=1 print-color-mode=color job-uuid=urn:uuid:49a2 "
              "page-set=all outputorder=normal orientation-requested=3 nolandscape ";
        // clang-format off
        QTest::newRow("every job's options")       << usual                          << pdf << "";
        QTest::newRow("page range")                << usual + "page-ranges=2-3"      << pdf << "pdftopdf";
        QTest::newRow("two on a sheet, PostScript") << "number-up=2"                 << ps  << "pstops";
        QTest::newRow("odd pages")                 << "page-set=odd"                 << pdf << "pdftopdf";
        QTest::newRow("reversed")                  << "outputorder=reverse"          << pdf << "pdftopdf";
        QTest::newRow("landscape")                 << "landscape"                    << pdf << "pdftopdf";
        QTest::newRow("reverse landscape asked")   << "orientation-requested=5"      << ps  << "pstops";
        QTest::newRow("fit to page")               << "fit-to-page=true"             << pdf << "pdftopdf";
        QTest::newRow("mirrored")                  << "mirror"                       << pdf << "pdftopdf";
        QTest::newRow("option inside a quoted value") << "job-name='x page-ranges=1' number-up=1" << pdf << "";
        QTest::newRow("option after an escaped blank") << "job-name=x\\ page-ranges=1" << pdf << "";
        QTest::newRow("quoted range")              << "page-ranges=\"1-2\""          << pdf << "pdftopdf";
        QTest::newRow("no filter for the type")    << "page-ranges=1"                << "image/png" << "";
        // clang-format on
    }
    void layoutFilter()
    {
        QFETCH(QString, options);
        QFETCH(QString, type);
        QFETCH(QString, filter);
        QCOMPARE(
            QString::fromStdString(Spool::layoutFilter(options.toStdString(), type.toStdString())),
            filter);
    }

    // The description the backend writes, read back whole whatever the title; damaged ones not at
    // all, and a hand-written one so that the reader is not only proven by its own writer.
    void description_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("title"); // read back; null when the text must not parse

        const std::pair<const char *, QByteArray> titles[] = {{"plain", "Quarterly report"},
            {"lines and escapes", "a\nb\r\n%41%\x1b\x7f=c"}, {"NUL inside", QByteArray("a\0b", 3)},
            {"not UTF-8", "\xff\xfe\xc3"}, {"10,000 bytes", QByteArray(10000, 'x')}, {"empty", ""}};
        for (const auto &[name, title] : titles) {
            Spool::Info info {"42", "ann", title.toStdString(), "2", options, 1700000000, 12345};
            QTest::newRow(name) << bytes(Spool::formatInfo(info)) << title;
        }
        const QByteArray whole = "vellumio-job 1\njob-id=42\nuser=ann\ntitle=t\ncopies=1\n"
                                 "options=media=A4 job-name=%25ZZ\ntime=5\nsize=12345\n";
        QTest::newRow("whole by hand") << whole << QByteArray("t");
        const char *const damaged[][3] = {{"cut short", "12345\n", "12345"},
            {"line missing", "copies=1\n", ""}, {"line twice", "12345\n", "12345\nsize=7\n"},
            {"bad escape", "title=t", "title=%G1"}, {"escape cut", "title=t", "title=%4"},
            {"raw control", "title=t", "title=\x01"}, {"other header", "vellumio-job 1", "job 2"},
            {"negative size", "size=1", "size=-1"}, {"job id not a number", "=42", "=../4"}};
        const QByteArray none;
        for (const auto &[name, from, to] : damaged)
            QTest::newRow(name) << QByteArray(whole).replace(from, to) << none;
        QTest::newRow("empty") << QByteArray() << none;
    }
    void description()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, title);
        const std::optional<Spool::Info> read = Spool::parseInfo(text.toStdString());
        QCOMPARE(read.has_value(), !title.isNull());
        if (!read)
            return;
        QCOMPARE(text.count('\n'), 8);
        QCOMPARE(bytes(read->title), title);
        QCOMPARE(bytes(read->options), bytes(options));
        QCOMPARE(read->size, 12345);
        QCOMPARE(bytes(read->jobId), QByteArray("42"));
    }
};

QTEST_GUILESS_MAIN(tst_PrintRules)
#include "tst_printrules.moc"
