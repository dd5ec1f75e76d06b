// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's behaviour: pages, colour lists, compression, the custom number, keys, window
// order, and a language installed at run time in it and the other two windows. The form's texts
// are the translation suite's.
#include "app/filesavedialog.h"
#include "pdf/pdfprotect.h"
#include "tests/support/markingtranslator.h"
#include "tests/support/openwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {

// The colour lists, as coloursShown() writes them.
const QString allModes = "Monochrome, 256 colors, Grayscale, TrueColor";
const QString gifModes = "Monochrome, 256 colors, Grayscale";
const QString twoModes = "Grayscale, TrueColor";

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { w.reset(); }

    // Every page at its index with its tab text, named by the row. Entering it refills the colour
    // list for it, after a colour was picked on the page before; RTF and MS Excel hide the list
    // and keep that page's list and code. The shared widgets follow the page, at the same place.
    void everyPage_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("picked"); // on the page before; empty: none
        QTest::addColumn<QString>("colours");
        // clang-format off
        QTest::newRow("BMP")  << 0  << "tab"    << 5 << ""           << allModes + " > TrueColor = 24";
        QTest::newRow("PNG")  << 1  << "tab_3"  << 8 << ""           << allModes + " > TrueColor = 24";
        QTest::newRow("JPEG") << 2  << "tab_4"  << 5 << ""           << twoModes + " > TrueColor = 24";
        QTest::newRow("JP2")  << 3  << "tab_9"  << 5 << ""           << twoModes + " > TrueColor = 24";
        QTest::newRow("TIFF") << 4  << "tab_6"  << 5 << ""           << allModes + " > TrueColor = 24";
        QTest::newRow("GIF")  << 5  << "tab_5"  << 0 << ""           << gifModes + " > 256 colors = 8";
        QTest::newRow("SWF")  << 6  << "tab_2"  << 5 << ""           << twoModes + " > TrueColor = 24";
        QTest::newRow("PDF")  << 7  << "tab_7"  << 5 << "Grayscale"  << twoModes + " > TrueColor = 24";
        QTest::newRow("RTF")  << 8  << "tab_8"  << 2 << "Grayscale"  << twoModes + " > Grayscale = 24g, hidden";
        QTest::newRow("XLS")  << 9  << "tab_12" << 1 << "Monochrome" << allModes + " > Monochrome = 1, hidden";
        QTest::newRow("HTML") << 10 << "tab_11" << 5 << ""           << twoModes + " > TrueColor = 24";
        QTest::newRow("DjVu") << 11 << "tab_10" << 5 << ""           << twoModes + " > TrueColor = 24";
        // clang-format on
    }
    void everyPage()
    {
        QFETCH(int, index);
        QFETCH(QString, page);
        QFETCH(int, from);
        QFETCH(QString, picked);
        QFETCH(QString, colours);
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

    // Radio buttons clicked with the mouse on the TIFF page, a colour picked, one clicked again,
    // one checked by code at the end. Each compression click refills the colour list for its
    // method, also on the button already checked; checking one by code runs nothing. Driver
    // contract: the custom number field follows the prefix buttons' clicks, not their state.
    void clicks_data()
    {
        QTest::addColumn<QStringList>("clicked");
        QTest::addColumn<QString>("picked"); // colour chosen then; empty: none
        QTest::addColumn<QString>("thenClicked"); // empty: none
        QTest::addColumn<QString>("checkedByCode"); // at the end; empty: none
        QTest::addColumn<QString>("shown"); // the colour list, or the custom number field
        const QString mono = "Monochrome > Monochrome = 1, disabled";
        const QString trueColor = allModes + " > TrueColor = 24";
        // clang-format off
        QTest::newRow("FAX4")                 << QStringList{"rb_1", "rb_2"}   << "" << "" << "" << mono;
        QTest::newRow("FAX3")                 << QStringList{"rb_1", "rb_3"}   << "" << "" << "" << mono;
        QTest::newRow("LZW after FAX4")       << QStringList{"rb_2", "rb_1"}   << "" << "" << "" << trueColor;
        QTest::newRow("JPEG after FAX3")      << QStringList{"rb_3", "rb_4"}   << "" << "" << "" << twoModes + " > TrueColor = 24";
        QTest::newRow("ZIP after FAX3")       << QStringList{"rb_3", "rb_zip"} << "" << "" << "" << trueColor;
        QTest::newRow("PACKBITS after JPEG")  << QStringList{"rb_4", "rb_packbits"} << "" << "" << "" << trueColor;
        QTest::newRow("FAX4 checked by code") << QStringList{"rb_1"} << ""          << ""     << "rb_2" << trueColor;
        QTest::newRow("LZW clicked again")    << QStringList{"rb_1"} << "Grayscale" << "rb_1" << ""     << trueColor;
        QTest::newRow("Custom")               << QStringList{"rb_pefix_custom"} << "" << "" << "" << "custom enabled";
        QTest::newRow("Add 1 after Custom")   << QStringList{"rb_pefix_custom", "rb_pefix_1"} << "" << "" << "" << "custom disabled";
        QTest::newRow("Add 1 checked by code") << QStringList{"rb_pefix_custom"} << "" << "" << "rb_pefix_1" << "custom enabled";
        // clang-format on
    }
    void clicks()
    {
        QFETCH(QStringList, clicked);
        QFETCH(QString, picked);
        QFETCH(QString, thenClicked);
        QFETCH(QString, checkedByCode);
        QFETCH(QString, shown);
        open(true);
        w->tabs()->setCurrentIndex(4);
        for (const QString &name : clicked)
            QTest::mouseClick(w->part<QRadioButton>(name.toLatin1()), Qt::LeftButton);
        if (!picked.isEmpty())
            w->part<QComboBox>("cb_combobox")->setCurrentText(picked);
        if (!thenClicked.isEmpty())
            QTest::mouseClick(w->part<QRadioButton>(thenClicked.toLatin1()), Qt::LeftButton);
        if (!checkedByCode.isEmpty())
            w->part<QRadioButton>(checkedByCode.toLatin1())->setChecked(true);
        QCOMPARE(shown.startsWith("custom ")
                ? (w->part("le_pr_custom")->isEnabled() ? "custom enabled" : "custom disabled")
                : coloursShown(),
            shown);
    }

    // Only the ASCII digits get into the custom number, typed key by key (as a keyboard layout
    // sends them: the character as the key's text) or pasted; anything else brings back the
    // number before, and the value follows the field.
    void customNumber_data()
    {
        QTest::addColumn<QString>("before"); // the number accepted before
        QTest::addColumn<QString>("pasted"); // over the whole field; null: nothing
        QTest::addColumn<QString>("typed"); // at the end of the field
        QTest::addColumn<QString>("shown");
        for (const char digit : QByteArray("0123456789"))
            QTest::addRow("digit %c", digit)
                << QString("7") << QString() << QString(QLatin1Char(digit)) << QString("7") + digit;
        // clang-format off
        QTest::newRow("letter")             << "7"  << QString() << "a"      << "7";
        QTest::newRow("Arabic-Indic three") << "7"  << QString() << "\u0663" << "7";
        QTest::newRow("fullwidth five")     << "7"  << QString() << "\uff15" << "7";
        QTest::newRow("superscript two")    << "7"  << QString() << "\u00b2" << "7";
        QTest::newRow("minus")              << "7"  << QString() << "-"      << "7";
        QTest::newRow("12a pasted")         << "12" << "12a"     << ""       << "12";
        QTest::newRow("cleared")            << "12" << ""        << ""       << "";
        QTest::newRow("typed after clear")  << "12" << ""        << "05"     << "05";
        // clang-format on
    }
    void customNumber()
    {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        open(true);
        auto *custom = w->part<QLineEdit>("le_pr_custom");
        custom->setText(before);
        if (!pasted.isNull()) {
            custom->selectAll();
            custom->insert(pasted);
        }
        custom->end(false);
        for (const QChar character : typed) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(custom, &press);
        }
        QCOMPARE(custom->text(), shown);
        QCOMPARE(jobSettings().customNumber, shown);
    }

    // Return and the keypad's Enter print wherever they are typed (the folder is missing, so
    // Print stops at its first message); other keys do nothing. Print leaves the topmost band
    // before its messages, as the Print suite checks for each.
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
    // The window leaves the topmost band before the PDF dialog opens, or would hide it.
    void pdfDialogInFront()
    {
        open(true);
        w->tabs()->setCurrentIndex(7);
        WindowOrder::setTopmost(w->window.get());
        QList<bool> topmostWhileUp;
        QTimer dialogUp; // the PDF dialog runs its own event loop
        connect(&dialogUp, &QTimer::timeout, this, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                topmostWhileUp << WindowOrder::isTopmost(w->window.get());
                dialog->close();
            }
        });
        dialogUp.start(0);
        QTest::mouseClick(w->part<QPushButton>("pb_pdf_protect"), Qt::LeftButton);
        QCOMPARE(topmostWhileUp, QList<bool> {false});
    }

    // A language installed at run time changes the words of the window and of the PDF dialog and
    // the save-as banner, not the file name, the number, the colour, the missing DjVu page, the
    // encryption chosen or the fixed size; removed, the words come back.
    void language()
    {
        open(false);
        w->tabs()->setCurrentIndex(5);
        w->part<QComboBox>("cb_combobox")->setCurrentText("Grayscale");
        QTest::mouseClick(w->part<QRadioButton>("rb_pefix_custom"), Qt::LeftButton);
        w->part<QLineEdit>("le_pr_custom")->setText("42");
        w->fileName()->setText("/out/Document1");
        jobSettings().pdf.protect = true;
        pdfprotect pdf;
        FileSaveDialog banner;
        const auto *label = findWidget<QLabel>(&banner, "label_3");
        const QString bannerText = label->text();
        MarkingTranslator translator({"MainWindow", "pdfprotect", "FileSaveDialog"});
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
        QCOMPARE(coloursShown(), gifModes + " > Grayscale = 24g");
        QCOMPARE(w->window->minimumSize(), QSize(494, 503));
        QCOMPARE(w->window->maximumSize(), QSize(494, 503));
        QCOMPARE(pdf.windowTitle(), "~ Advanced PDF Settings ");
        const auto *security = findWidget<QComboBox>(&pdf, "cb_security");
        QCOMPARE(security->itemText(1), "~Password Encryption");
        QCOMPARE(security->currentIndex(), 1);
        QVERIFY(jobSettings().pdf.protect);
        QCOMPARE(banner.windowTitle() + '|' + label->text(), "~Vellumio|~" + bannerText);

        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(w->window->windowTitle() + '|' + pdf.windowTitle() + '|' + label->text(),
            "Vellumio| Advanced PDF Settings |" + bannerText);
    }

private:
    void open(bool converter)
    {
        w.reset(); // one job at a time: the old answers uninstall themselves first
        w = std::make_unique<OpenWindow>(converter);
        w->window->show();
    }
    // "items > current = code", and whether the group is hidden or the list disabled.
    QString coloursShown() const
    {
        const auto *combo = w->part<QComboBox>("cb_combobox");
        QStringList items;
        for (int row = 0; row < combo->count(); ++row)
            items << combo->itemText(row);
        return items.join(", ") + " > " + combo->currentText() + " = " + jobSettings().colorCode
            + (w->part("gb_color")->isVisible() ? "" : ", hidden")
            + (combo->isEnabled() ? "" : ", disabled");
    }

    std::unique_ptr<OpenWindow> w;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
