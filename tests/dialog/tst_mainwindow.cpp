// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's form and behaviour: pages, colour lists, compression, the custom number, keys,
// language and window order.
#include "tests/support/markingtranslator.h"
#include "tests/support/openwindow.h"
#include "tests/support/typedtext.h"
#include "ui_mainwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {

// What the colour group shows: its items, the current one and the colour code kept; whether the
// group is shown and the list enabled.
struct Colours
{
    QStringList items;
    QString current;
    QString code;
    bool shown = true;
    bool enabled = true;

    bool operator==(const Colours &other) const
    {
        return items == other.items && current == other.current && code == other.code
            && shown == other.shown && enabled == other.enabled;
    }
};

char *toString(const Colours &colours)
{
    return qstrdup(
        qPrintable(QStringLiteral("%1 > %2 = %3%4%5")
                       .arg(colours.items.join(", "), colours.current, colours.code,
                           colours.shown ? "" : ", hidden", colours.enabled ? "" : ", disabled")));
}

const QStringList allModes = {"Monochrome", "256 colors", "Grayscale", "TrueColor"};
const QStringList gifModes = {"Monochrome", "256 colors", "Grayscale"};
const QStringList twoModes = {"Grayscale", "TrueColor"};

} // namespace

Q_DECLARE_METATYPE(Colours)

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { w.reset(); }

    // The form as its build operation leaves it: the main blocks, and the texts with deliberate
    // blanks, quotes or wording at their places. How wide a text is, is the text-fit suite's.
    void form_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QSize>("size"); // invalid: as wide as its text needs
        QTest::addColumn<QString>("text"); // text or title; null: none
        const QSize fitted;
        // clang-format off
        QTest::newRow("groupBox_2")     << "QGroupBox"    << "centralWidget" << QPoint(10, 10)   << QSize(471, 101) << "File Name";
        QTest::newRow("groupBox_3")     << "QGroupBox"    << "centralWidget" << QPoint(10, 120)  << QSize(471, 91)  << "Enabled";
        QTest::newRow("tabWidget")      << "QTabWidget"   << "centralWidget" << QPoint(10, 230)  << QSize(471, 191) << QString();
        QTest::newRow("pb_print")       << "QPushButton"  << "centralWidget" << QPoint(310, 450) << QSize(83, 25)   << "Print";
        QTest::newRow("pb_cancel")      << "QPushButton"  << "centralWidget" << QPoint(400, 450) << QSize(83, 25)   << "Cancel Print";
        QTest::newRow("cd_dialog")      << "QCheckBox"    << "centralWidget" << QPoint(10, 450)  << fitted          << "Show this dialog next time";
        QTest::newRow("le_filename")    << "QLineEdit"    << "groupBox_2"    << QPoint(10, 60)   << QSize(411, 20)  << "";
        QTest::newRow("rb_pefix_1")     << "QRadioButton" << "groupBox_2"    << QPoint(10, 20)   << fitted          << "Add \"1\" to first file name";
        QTest::newRow("le_pr_custom")   << "QLineEdit"    << "groupBox_2"    << QPoint(340, 20)  << QSize(101, 20)  << "1";
        QTest::newRow("ch_email")       << "QCheckBox"    << "groupBox_3"    << QPoint(20, 50)   << fitted          << "Send to EMail";
        QTest::newRow("label_9")        << "QLabel"       << "tab_4"         << QPoint(10, 40)   << fitted          << "Quality of Image compression ";
        QTest::newRow("label_11")       << "QLabel"       << "tab_2"         << QPoint(10, 40)   << fitted          << "Quality of image ";
        QTest::newRow("ch_swf_protect") << "QGroupBox"    << "tab_2"         << QPoint(290, 40)  << fitted          << " Protect SWF";
        QTest::newRow("label_17")       << "QLabel"       << "tab_11"        << QPoint(10, 40)   << fitted          << "Quality of Image  ";
        QTest::newRow("label_16")       << "QLabel"       << "tab_12"        << QPoint(10, 10)   << fitted          << "Print As MS Office  Excel";
        // clang-format on
    }
    void form()
    {
        QFETCH(QString, className);
        QFETCH(QString, parent);
        QFETCH(QPoint, position);
        QFETCH(QSize, size);
        QFETCH(QString, text);
        QMainWindow host;
        Ui::MainWindow ui;
        ui.setupUi(&host);
        const QWidget *widget = findWidget(&host, QTest::currentDataTag());
        QCOMPARE(widget->metaObject()->className(), className);
        QCOMPARE(widget->parentWidget()->objectName(), parent);
        QCOMPARE(widget->pos(), position);
        if (size.isValid())
            QCOMPARE(widget->size(), size);
        QCOMPARE(widget->property(widget->property("text").isValid() ? "text" : "title").toString(),
            text);
    }

    // The window as a whole: fixed size, title, SWF current with the form's own colour list, and
    // the blocks raised in their order (raising moves a widget to the end of the children).
    void formWindow()
    {
        QMainWindow host;
        Ui::MainWindow ui;
        ui.setupUi(&host);
        QCOMPARE(host.minimumSize(), QSize(494, 503));
        QCOMPARE(host.maximumSize(), QSize(494, 503));
        QCOMPARE(host.windowTitle(), "Vellumio");
        QCOMPARE(ui.tabWidget->currentIndex(), 6);
        QCOMPARE(items(ui.cb_combobox), QStringList({"TrueColor", "Grayscale"}));
        QCOMPARE(ui.cb_combobox->currentText(), "TrueColor");
        QStringList order;
        for (const QObject *child : host.centralWidget()->children())
            order << child->objectName();
        QCOMPARE(order,
            QStringList(
                {"groupBox_2", "groupBox_3", "pb_print", "pb_cancel", "cd_dialog", "tabWidget"}));
    }

    // Every page at its index with its tab text, named by the row. Entering it refills the colour
    // list for it, after a colour was picked on the page before; RTF and MS Excel hide the list
    // and keep that page's list and code. The shared widgets follow the page, at the same place.
    void everyPage_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("picked"); // on the page before; empty: none
        QTest::addColumn<Colours>("colours");
        // clang-format off
        QTest::newRow("BMP")  << 0  << "tab"    << 5 << ""           << Colours{allModes, "TrueColor", "24"};
        QTest::newRow("PNG")  << 1  << "tab_3"  << 8 << ""           << Colours{allModes, "TrueColor", "24"};
        QTest::newRow("JPEG") << 2  << "tab_4"  << 5 << ""           << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("JP2")  << 3  << "tab_9"  << 5 << ""           << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("TIFF") << 4  << "tab_6"  << 5 << ""           << Colours{allModes, "TrueColor", "24"};
        QTest::newRow("GIF")  << 5  << "tab_5"  << 0 << ""           << Colours{gifModes, "256 colors", "8"};
        QTest::newRow("SWF")  << 6  << "tab_2"  << 5 << ""           << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("PDF")  << 7  << "tab_7"  << 5 << "Grayscale"  << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("RTF")  << 8  << "tab_8"  << 2 << "Grayscale"  << Colours{twoModes, "Grayscale", "24g", false};
        QTest::newRow("XLS")  << 9  << "tab_12" << 1 << "Monochrome" << Colours{allModes, "Monochrome", "1", false};
        QTest::newRow("HTML") << 10 << "tab_11" << 5 << ""           << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("DjVu") << 11 << "tab_10" << 5 << ""           << Colours{twoModes, "TrueColor", "24"};
        // clang-format on
    }
    void everyPage()
    {
        QFETCH(int, index);
        QFETCH(QString, page);
        QFETCH(int, from);
        QFETCH(QString, picked);
        QFETCH(Colours, colours);
        open(true);
        QCOMPARE(w->tabs()->count(), 12);
        QCOMPARE(w->tabs()->indexOf(w->part(page.toLatin1())), index);
        QCOMPARE(w->tabs()->tabText(index), QString(QTest::currentDataTag()));
        w->tabs()->setCurrentIndex(from);
        if (!picked.isEmpty())
            w->part<QComboBox>("cb_combobox")->setCurrentText(picked);
        w->tabs()->setCurrentIndex(index);
        QCOMPARE(coloursShown(), colours);
        for (const auto &[name, place] : {std::pair("cd_extract_text", QPoint(10, 130)),
                 std::pair("gb_color", QPoint(290, 110))}) {
            QCOMPARE(w->part(name)->parentWidget(), w->tabs()->currentWidget());
            QCOMPARE(w->part(name)->pos(), place);
        }
        QVERIFY(w->part("cd_extract_text")->isVisible());
    }

    // The TIFF compression buttons, clicked with the mouse: each click refills the list for its
    // method, also on the button already checked; checking one by code runs nothing.
    void compression_data()
    {
        QTest::addColumn<QStringList>("clicked");
        QTest::addColumn<QString>("picked"); // colour chosen then; empty: none
        QTest::addColumn<QStringList>("thenClicked");
        QTest::addColumn<QString>("checkedByCode"); // at the end; empty: none
        QTest::addColumn<Colours>("colours");
        const Colours mono {{"Monochrome"}, "Monochrome", "1", true, false};
        const Colours trueColor {allModes, "TrueColor", "24"};
        // clang-format off
        QTest::newRow("FAX4")                 << QStringList{"rb_1", "rb_2"}   << "" << QStringList() << "" << mono;
        QTest::newRow("FAX3")                 << QStringList{"rb_1", "rb_3"}   << "" << QStringList() << "" << mono;
        QTest::newRow("LZW after FAX4")       << QStringList{"rb_2", "rb_1"}   << "" << QStringList() << "" << trueColor;
        QTest::newRow("JPEG after FAX3")      << QStringList{"rb_3", "rb_4"}   << "" << QStringList() << "" << Colours{twoModes, "TrueColor", "24"};
        QTest::newRow("ZIP after FAX3")       << QStringList{"rb_3", "rb_zip"} << "" << QStringList() << "" << trueColor;
        QTest::newRow("PACKBITS after JPEG")  << QStringList{"rb_4", "rb_packbits"} << "" << QStringList() << "" << trueColor;
        QTest::newRow("FAX4 checked by code") << QStringList{"rb_1"} << ""          << QStringList()       << "rb_2" << trueColor;
        QTest::newRow("LZW clicked again")    << QStringList{"rb_1"} << "Grayscale" << QStringList{"rb_1"} << ""     << trueColor;
        // clang-format on
    }
    void compression()
    {
        QFETCH(QStringList, clicked);
        QFETCH(QString, picked);
        QFETCH(QStringList, thenClicked);
        QFETCH(QString, checkedByCode);
        QFETCH(Colours, colours);
        open(true);
        w->tabs()->setCurrentIndex(4);
        for (const QString &name : clicked)
            QTest::mouseClick(w->part<QRadioButton>(name.toLatin1()), Qt::LeftButton);
        if (!picked.isEmpty())
            w->part<QComboBox>("cb_combobox")->setCurrentText(picked);
        for (const QString &name : thenClicked)
            QTest::mouseClick(w->part<QRadioButton>(name.toLatin1()), Qt::LeftButton);
        if (!checkedByCode.isEmpty())
            w->part<QRadioButton>(checkedByCode.toLatin1())->setChecked(true);
        QCOMPARE(coloursShown(), colours);
    }

    // A text the colour list does not know, as it reports the empty text while it is cleared,
    // keeps the colour code.
    void unknownColourText_data()
    {
        QTest::addColumn<QString>("reported");
        QTest::newRow("Sepia") << "Sepia";
        QTest::newRow("grayscale") << "grayscale";
        QTest::newRow("empty") << "";
    }
    void unknownColourText()
    {
        QFETCH(QString, reported);
        open(true);
        w->tabs()->setCurrentIndex(5);
        w->window->cb_combobox_currentIndexChanged(reported);
        QCOMPARE(jobSettings().colorCode, "8");
    }

    // Driver contract: the custom number field follows the prefix buttons' clicks, not their
    // checked state.
    void prefixButtons_data()
    {
        QTest::addColumn<QStringList>("clicked");
        QTest::addColumn<QString>("checkedByCode"); // afterwards; empty: none
        QTest::addColumn<bool>("enabled");
        QTest::newRow("Custom") << QStringList {"rb_pefix_custom"} << "" << true;
        QTest::newRow("Add 1 after Custom")
            << QStringList {"rb_pefix_custom", "rb_pefix_1"} << "" << false;
        QTest::newRow("Add 1 checked by code")
            << QStringList {"rb_pefix_custom"} << "rb_pefix_1" << true;
    }
    void prefixButtons()
    {
        QFETCH(QStringList, clicked);
        QFETCH(QString, checkedByCode);
        QFETCH(bool, enabled);
        open(true);
        for (const QString &name : clicked)
            QTest::mouseClick(w->part<QRadioButton>(name.toLatin1()), Qt::LeftButton);
        if (!checkedByCode.isEmpty())
            w->part<QRadioButton>(checkedByCode.toLatin1())->setChecked(true);
        QCOMPARE(w->part("le_pr_custom")->isEnabled(), enabled);
    }

    // Only the ASCII digits get into the custom number, typed key by key or pasted; anything
    // else brings back the number before, and the value follows the field.
    void customNumber_data()
    {
        QTest::addColumn<QString>("before"); // the number accepted before
        QTest::addColumn<QString>("pasted"); // over the whole field; null: nothing
        QTest::addColumn<QTestEventList>("typed"); // at the end of the field
        QTest::addColumn<QString>("shown");
        for (const char digit : QByteArray("0123456789"))
            QTest::addRow("digit %c", digit)
                << QString("7") << QString() << typedText(QString(QLatin1Char(digit)))
                << QString("7") + digit;
        // clang-format off
        QTest::newRow("letter")             << "7"  << QString() << typedText("a")      << "7";
        QTest::newRow("Arabic-Indic three") << "7"  << QString() << typedText("\u0663") << "7";
        QTest::newRow("fullwidth five")     << "7"  << QString() << typedText("\uff15") << "7";
        QTest::newRow("superscript two")    << "7"  << QString() << typedText("\u00b2") << "7";
        QTest::newRow("minus")              << "7"  << QString() << typedText("-")      << "7";
        QTest::newRow("12a pasted")         << "12" << "12a"     << typedText("")       << "12";
        QTest::newRow("cleared")            << "12" << ""        << typedText("")       << "";
        QTest::newRow("typed after clear")  << "12" << ""        << typedText("05")     << "05";
        // clang-format on
    }
    void customNumber()
    {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QTestEventList, typed);
        QFETCH(QString, shown);
        open(true);
        auto *custom = w->part<QLineEdit>("le_pr_custom");
        custom->setText(before);
        if (!pasted.isNull()) {
            custom->selectAll();
            custom->insert(pasted);
        }
        custom->end(false);
        typed.simulate(custom);
        QCOMPARE(custom->text(), shown);
        QCOMPARE(jobSettings().customNumber, shown);
    }

    // Return and the keypad's Enter print wherever they are typed (the folder is missing, so
    // Print stops at its first message); other keys do nothing.
    void keys_data()
    {
        QTest::addColumn<QString>("target"); // object name; empty: the window
        QTest::addColumn<QTestEventList>("keys");
        QTest::addColumn<bool>("prints");
        QTestEventList enter, returnKey, escape;
        enter.addKeyClick(Qt::Key_Enter, Qt::KeypadModifier);
        returnKey.addKeyClick(Qt::Key_Return);
        escape.addKeyClick(Qt::Key_Escape);
        QTest::newRow("keypad Enter") << "" << enter << true;
        QTest::newRow("Return in file name") << "le_filename" << returnKey << true;
        QTest::newRow("Return on Cancel Print") << "pb_cancel" << returnKey << true;
        QTest::newRow("Escape") << "" << escape << false;
    }
    void keys()
    {
        QFETCH(QString, target);
        QFETCH(QTestEventList, keys);
        QFETCH(bool, prints);
        open(true);
        w->fileName()->setText(w->job.path("missing/out"));
        WindowOrder::setTopmost(w->window.get());
        keys.simulate(target.isEmpty() ? w->window.get() : w->part(target.toLatin1()));
        QCOMPARE(w->prompts.questions.size(), prints ? 1 : 0);
        QCOMPARE(w->window->isVisible(), true);
        QCOMPARE(WindowOrder::isTopmost(w->window.get()), !prints);
    }

    // A language installed at run time changes the words, not the file name, the number, the
    // colour or the missing DjVu page.
    void language()
    {
        open(false);
        w->tabs()->setCurrentIndex(5);
        w->part<QComboBox>("cb_combobox")->setCurrentText("Grayscale");
        QTest::mouseClick(w->part<QRadioButton>("rb_pefix_custom"), Qt::LeftButton);
        w->part<QLineEdit>("le_pr_custom")->setText("42");
        w->fileName()->setText("/out/Document1");
        MarkingTranslator translator("MainWindow");
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        const auto removeTranslator
            = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });

        QCOMPARE(w->window->windowTitle(), "~Vellumio");
        QCOMPARE(w->part<QPushButton>("pb_print")->text(), "~Print");
        // Without the converter the DjVu page is gone; the others keep their texts, set by page.
        QCOMPARE(w->tabs()->count(), 11);
        QCOMPARE(w->tabs()->indexOf(w->part("tab_10")), -1);
        QCOMPARE(w->tabs()->tabText(9), "~XLS");
        QCOMPARE(w->tabs()->tabText(10), "~HTML");
        QCOMPARE(w->fileName()->text(), "/out/Document1");
        QCOMPARE(w->part<QLineEdit>("le_pr_custom")->text(), "42");
        QCOMPARE(jobSettings().customNumber, "42");
        QCOMPARE(coloursShown(), Colours({gifModes, "Grayscale", "24g"}));
    }

    // The dialog leaves the topmost band before each modal step of its own: the PDF dialog and
    // each of Print's messages.
    void windowOrder_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("fileName"); // below the job's folder
        QTest::addColumn<QString>("atName"); // what is there already: "", "file" or "folder"
        QTest::addColumn<int>("modalSteps");
        // clang-format off
        QTest::newRow("Advanced: the PDF dialog")   << "pb_pdf_protect" << "report"         << ""       << 1;
        QTest::newRow("Print: folder missing")      << "pb_print"       << "missing/report" << ""       << 1;
        QTest::newRow("Print: file exists")         << "pb_print"       << "report"         << "file"   << 1;
        QTest::newRow("Print: replace, no access")  << "pb_print"       << "report"         << "folder" << 2;
        // clang-format on
    }
    void windowOrder()
    {
        QFETCH(QString, button);
        QFETCH(QString, fileName);
        QFETCH(QString, atName);
        QFETCH(int, modalSteps);
        open(true);
        w->tabs()->setCurrentIndex(7);
        w->fileName()->setText(w->job.path(fileName));
        if (atName == "file")
            w->job.writeFile(w->job.path(fileName + ".pdf"), "an earlier print");
        if (atName == "folder")
            QVERIFY(QDir().mkpath(w->job.path(fileName + ".pdf")));
        w->prompts.answers << QMessageBox::Yes;
        w->prompts.watched = w->window.get();
        w->window->show();
        WindowOrder::setTopmost(w->window.get());

        QList<bool> topmostDuringStep;
        QTimer dialogUp; // the PDF dialog runs its own event loop
        connect(&dialogUp, &QTimer::timeout, this, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                topmostDuringStep << WindowOrder::isTopmost(w->window.get());
                dialog->close();
            }
        });
        dialogUp.start(0);
        QTest::mouseClick(w->part<QAbstractButton>(button.toLatin1()), Qt::LeftButton);
        for (const ScriptedPrompts::Question &question : std::as_const(w->prompts.questions))
            topmostDuringStep << question.watchedWasTopmost;
        QCOMPARE(topmostDuringStep, QList<bool>(modalSteps, false));
    }

private:
    void open(bool converter)
    {
        w.reset(); // one job at a time: the old answers uninstall themselves first
        w = std::make_unique<OpenWindow>(converter);
        w->window->show();
    }
    static QStringList items(const QComboBox *combo)
    {
        QStringList texts;
        for (int row = 0; row < combo->count(); ++row)
            texts << combo->itemText(row);
        return texts;
    }
    Colours coloursShown() const
    {
        const auto *combo = w->part<QComboBox>("cb_combobox");
        return {items(combo), combo->currentText(), jobSettings().colorCode,
            w->part("gb_color")->isVisible(), combo->isEnabled()};
    }

    std::unique_ptr<OpenWindow> w;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
