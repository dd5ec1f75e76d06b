// SPDX-License-Identifier: GPL-3.0-or-later
// Print's checks and their questions, what stands at the output name afterwards, Cancel, and
// closing by the title bar.
#include "tests/support/openwindow.h"

#include <QApplication>
#include <QSpinBox>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// What stands at the output name before Print. Links point outside the output folder.
enum class AtName { Nothing, File, Folder, Link, DanglingLink, Pipe };

// The questions Print may ask, in the order it asks them.
enum class Asked { MissingFolder, Replace, NoPermission };

const QByteArray earlierPrint = "an earlier print";

} // namespace

Q_DECLARE_METATYPE(AtName)
Q_DECLARE_METATYPE(QList<Asked>)

// What Print saves is proven by the settings suite's write-order test.
class tst_Print : public QObject
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
        using A = Asked;
        using N = AtName;
        const QList<Asked> replace {A::Replace}, missing {A::MissingFolder};
        // clang-format off
        QTest::newRow("new file")               << "report"         << N::Nothing      << false << none << QList<Asked>{} << true  << false;
        QTest::newRow("missing folder")         << "missing/report" << N::Nothing      << false << none << missing        << false << false;
        QTest::newRow("missing, from Save As")  << "missing/report" << N::Nothing      << true  << none << missing        << false << false;
        QTest::newRow("existing file, Yes")     << "report"         << N::File         << false << yes  << replace        << true  << false;
        QTest::newRow("existing file, No")      << "report"         << N::File         << false << no   << replace        << false << true;
        // Driver contract: a box closed otherwise is taken as consent.
        QTest::newRow("box closed otherwise")   << "report"         << N::File         << false << none << replace        << true  << false;
        QTest::newRow("existing, from Save As") << "report"         << N::File         << true  << none << QList<Asked>{} << true  << false;
        QTest::newRow("folder at name, Yes")    << "report"         << N::Folder       << false << yes  << QList<Asked>{A::Replace, A::NoPermission} << false << true;
        QTest::newRow("folder, from Save As")   << "report"         << N::Folder       << true  << none << QList<Asked>{A::NoPermission} << false << true;
        QTest::newRow("NUL in name")            << QStringLiteral("rep") + QChar(0) + "ort" << N::Nothing << false << none << QList<Asked>{A::NoPermission} << false << false;
        // The link is what is replaced; the file it points to outside the folder is untouched.
        QTest::newRow("link, Yes")              << "report"         << N::Link         << false << yes  << replace        << true  << false;
        QTest::newRow("link, No")               << "report"         << N::Link         << false << no   << replace        << false << true;
        QTest::newRow("dangling link, Yes")     << "report"         << N::DanglingLink << false << yes  << replace        << true  << false;
        // Opening a pipe would wait for a reader for good.
        QTest::newRow("pipe, Yes")              << "report"         << N::Pipe         << false << yes  << QList<Asked>{A::Replace, A::NoPermission} << false << true;
        QTest::newRow("pipe, from Save As")     << "report"         << N::Pipe         << true  << none << QList<Asked>{A::NoPermission} << false << true;
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

        QCOMPARE(w.prompts.questions.size(), asked.size());
        for (int i = 0; i < asked.size(); ++i) {
            const ScriptedPrompts::Question &question = w.prompts.questions.at(i);
            QCOMPARE(question.title, asked[i] == Asked::MissingFolder ? QString() : "Vellumio");
            QCOMPARE(question.text, expectedText(asked[i], root + '/', file));
            QCOMPARE(question.buttons,
                asked[i] == Asked::Replace ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
            // Boxes have no parent, and the dialog was taken off the top before the first.
            QVERIFY(!question.parent);
            QVERIFY(!question.watchedWasTopmost);
        }
        QCOMPARE(!w.window->isVisible(), closed);
        QCOMPARE(standsAt(file), kept);
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
        const QByteArray path = QFile::encodeName(file);
        switch (atName) {
        case AtName::Nothing:
            break;
        case AtName::File:
            job.writeFile(file, earlierPrint);
            break;
        case AtName::Folder:
            QVERIFY(QDir().mkpath(file));
            break;
        case AtName::Link:
            job.writeFile(outside, earlierPrint);
            QVERIFY(QFile::link(outside, file));
            break;
        case AtName::DanglingLink:
            QVERIFY(QFile::link(outside, file));
            break;
        case AtName::Pipe:
            QCOMPARE(::mkfifo(path.constData(), 0600), 0);
            break;
        }
    }

    // Whether anything stands at a path, a link that points nowhere included.
    static bool standsAt(const QString &path)
    {
        struct stat status;
        return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
    }

    static QString expectedText(Asked asked, const QString &folder, const QString &file)
    {
        switch (asked) {
        case Asked::MissingFolder:
            return folder
                + "missing/\nThis directory doesn't exist.\n\nPlease choose correct directory";
        case Asked::Replace:
            return file + " already exists.\nDo you want to replace it?";
        case Asked::NoPermission:
            break;
        }
        return "You have no permission to write in this directory.\nPlease, choose another one.";
    }
};

QTEST_MAIN(tst_Print)
#include "tst_print.moc"
