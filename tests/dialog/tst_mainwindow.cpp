// SPDX-License-Identifier: GPL-3.0-or-later
#include "formats/formatcatalogue.h"
#include "tests/support/markingtranslator.h"
#include "tests/support/openwindow.h"
#include "ui_mainwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace {

// "name class parent x,y wxh[ | text]" of a widget as the form builds it.
QString describe(const QWidget *w, bool withText)
{
    const QRect g = w->geometry();
    const QVariant text = w->property(w->property("text").isValid() ? "text" : "title");
    return QString::asprintf("%s %s %s %d,%d %dx%d", qPrintable(w->objectName()),
               w->metaObject()->className(), qPrintable(w->parentWidget()->objectName()), g.x(),
               g.y(), g.width(), g.height())
        + (withText ? " | " + text.toString() : QString());
}

// The window's main blocks, and the texts with deliberate blanks, quotes or wording, where the
// form builds them.
// clang-format off
const char *const tree[] = {
    "groupBox_2 QGroupBox centralWidget 10,10 471x101", "groupBox_3 QGroupBox centralWidget 10,120 471x91", "tabWidget QTabWidget centralWidget 10,230 471x191",
    "pb_print QPushButton centralWidget 310,450 83x25", "cd_dialog QCheckBox centralWidget 10,450 171x24", "le_filename QLineEdit groupBox_2 10,60 411x20",
    // with the text shown, where it has deliberate blanks, quotes or wording
    "pb_cancel QPushButton centralWidget 400,450 83x25 | Cancel Print",
    "rb_pefix_1 QRadioButton groupBox_2 10,20 211x24 | Add \"1\" to first file name",
    "le_pr_custom QLineEdit groupBox_2 340,20 101x20 | 1",
    "ch_email QCheckBox groupBox_3 20,50 111x24 | Send to EMail",
    "label_9 QLabel tab_4 10,40 151x18 | Quality of Image compression ",
    "label_11 QLabel tab_2 10,40 151x18 | Quality of image ",
    "ch_swf_protect QGroupBox tab_2 290,40 141x61 |  Protect SWF",
    "label_17 QLabel tab_11 10,40 121x18 | Quality of Image  ",
    "label_16 QLabel tab_12 10,10 171x18 | Print As MS Office  Excel",
};
// clang-format on

} // namespace

// The main window's form and behaviour: pages, colour lists, compression, the custom number, keys,
// language.
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { translator.reset(), w.reset(); }
    // The form as its build operation leaves it, before any behaviour or loading.
    void form()
    {
        QMainWindow host;
        Ui::MainWindow ui;
        ui.setupUi(&host);
        QCOMPARE(QList<QSize>({host.minimumSize(), host.maximumSize()}),
            QList<QSize>(2, QSize(494, 503)));
        QCOMPARE(host.windowTitle(), QStringLiteral("Vellumio"));

        for (const char *row : tree) {
            const QString expected = QString::fromLatin1(row);
            const QWidget *widget = host.findChild<QWidget *>(expected.section(' ', 0, 0));
            QVERIFY2(widget, row);
            QCOMPARE(describe(widget, expected.contains(" | ")), expected);
        }
        // The page order is checked against the formats by the window's tests.
        QCOMPARE(ui.tabWidget->currentIndex(), 6);
        QCOMPARE(ui.cb_combobox->currentText() + ',' + ui.cb_combobox->itemText(1)
                + QString::number(ui.cb_combobox->count()),
            QStringLiteral("TrueColor,Grayscale2"));

        // Raising moves a widget to the end of its parent's children: this is the z-order.
        QStringList order;
        for (const QObject *child : host.centralWidget()->children())
            order << child->objectName();
        QCOMPARE(order.join(' '),
            QStringLiteral("groupBox_2 groupBox_3 pb_print pb_cancel cd_dialog tabWidget"));
    }

    void djvuPage()
    {
        for (const bool converter : {true, false}) {
            open(converter);
            QCOMPARE(tabs->count(), converter ? 12 : 11);
            // Tab texts are set by page, so every remaining page keeps its own text.
            for (const Formats::Format &format : Formats::all()) {
                const bool gone = format.index == Formats::Djvu && !converter;
                const int index = tabs->indexOf(w->part(format.page));
                QCOMPARE(index, gone ? -1 : int(format.index));
                QCOMPARE(tabs->tabText(index), gone ? QString() : QLatin1String(format.tabText));
            }
        }
    }

    void steps_data()
    {
        // steps as run() takes them, then what state() shows: the colour list, "custom" the
        // custom number, "key" whether Print ran
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("state");
        const QString all = QStringLiteral("Monochrome,256 colors,Grayscale,TrueColor > ");
        const QString gt = QStringLiteral("Grayscale,TrueColor > ");
        const QString gif = QStringLiteral("Monochrome,256 colors,Grayscale > ");
        // clang-format off
        QTest::newRow("RTF to PNG")              << "8 1"                    << all + "TrueColor = 24";
        QTest::newRow("BMP to JPEG")             << "0 2"                    << gt + "TrueColor = 24";
        QTest::newRow("GIF: no TrueColor")       << "0 5"                    << gif + "256 colors = 8";
        QTest::newRow("GIF Grayscale to PDF")    << "5 =Grayscale 7"         << gt + "TrueColor = 24";
        QTest::newRow("GIF to RTF keeps list")   << "5 8"                    << "hidden " + gif + "256 colors = 8";
        QTest::newRow("JPEG Grayscale to RTF")   << "2 =Grayscale 8"         << "hidden " + gt + "Grayscale = 24g";
        QTest::newRow("Monochrome to XLS")       << "1 =Monochrome 9"        << "hidden " + all + "Monochrome = 1";
        QTest::newRow("FAX4")                    << "4 rb_1 rb_2"            << "Monochrome > Monochrome disabled = 1";
        QTest::newRow("FAX3")                    << "4 rb_1 rb_3"            << "Monochrome > Monochrome disabled = 1";
        QTest::newRow("LZW after FAX4")          << "4 rb_2 rb_1"            << all + "TrueColor = 24";
        QTest::newRow("JPEG after FAX3")         << "4 rb_3 rb_4"            << gt + "TrueColor = 24";
        QTest::newRow("FAX4 checked from code")  << "4 rb_1 set:rb_2"        << all + "TrueColor = 24";
        QTest::newRow("PACKBITS after JPEG")     << "4 rb_4 rb_packbits"     << all + "TrueColor = 24";
        QTest::newRow("LZW clicked again")       << "4 rb_1 =Grayscale rb_1" << all + "TrueColor = 24";
        // A text the list does not know (as it reports while cleared) keeps the colour code.
        QTest::newRow("unknown colour texts")    << "5 ?Sepia ?grayscale ?"  << gif + "256 colors = 8";
        // The custom number field follows the prefix buttons' clicks, not their checked state.
        QTest::newRow("Custom")                  << "rb_pefix_custom"                 << "custom on ";
        QTest::newRow("Add 1 after Custom")      << "rb_pefix_custom rb_pefix_1"      << "custom off ";
        QTest::newRow("Add 1 checked from code") << "rb_pefix_custom set:rb_pefix_1"  << "custom on ";
        // Only ASCII digits get in, typed key by key or pasted; the value follows the field.
        QTest::newRow("digit typed")             << "rb_pefix_custom paste:12 type:3"       << "custom on 123";
        QTest::newRow("Arabic-Indic three")      << "rb_pefix_custom paste:12 type:\u0663" << "custom on 12";
        QTest::newRow("12a pasted")              << "rb_pefix_custom paste:12 paste:12a"    << "custom on 12";
        // Return and Enter print wherever they are typed (the file's folder is missing, so Print
        // stops at its first message); other keys do nothing.
        QTest::newRow("keypad Enter")            << "key::Enter"              << "key printed";
        QTest::newRow("Return in file name")     << "key:le_filename:Return"  << "key printed";
        QTest::newRow("Return on Cancel Print")  << "key:pb_cancel:Return"    << "key printed";
        // A language installed at run time changes only the words, not the file, number or colour.
        QTest::newRow("language: words")         << "5 =Grayscale rb_pefix_custom paste:42 lang" << "words ~Vellumio ~Print ~XLS11";
        QTest::newRow("language: number")        << "5 =Grayscale rb_pefix_custom paste:42 lang" << "custom on 42";
        QTest::newRow("language: colour")        << "5 =Grayscale rb_pefix_custom paste:42 lang" << gif + "Grayscale = 24g";
        QTest::newRow("Escape")                  << "key::Esc"                << "key ignored topmost";
        // clang-format on
    }
    void steps()
    {
        QFETCH(QString, steps);
        QFETCH(QString, state);
        open(!steps.endsWith("lang")); // the language must not bring back the missing DjVu page
        run(steps);
        QCOMPARE(this->state(state.section(' ', 0, 0)), state);
        // The shared widgets sit on the current page, at the same place.
        const auto place = [this](const char *name) {
            QWidget *shared = w->part(name);
            return shared->parentWidget() == tabs->currentWidget() ? shared->geometry() : QRect();
        };
        QCOMPARE(place("cd_extract_text"), QRect(10, 130, 171, 24));
        QCOMPARE(place("gb_color"), QRect(290, 110, 141, 51));
        QVERIFY(w->part("cd_extract_text")->isVisible());
    }

private:
    void open(bool converter)
    {
        w.reset(); // one job at a time: the old answers uninstall themselves first
        w = std::make_unique<OpenWindow>(converter);
        window = w->window.get();
        window->show();
        tabs = w->tabs();
        combo = w->part<QComboBox>("cb_combobox");
    }
    // Steps in turn: a number enters that page, "rb_..." is clicked with the mouse, "set:rb_..."
    // is checked from code, "=text" picks a colour, "?text" is reported as the list's text,
    // "type:" (one character) and "paste:" edit the custom number, "lang" installs a translation,
    // "key:widget:key" types a key (on the window when no widget is named; Enter is the keypad's).
    void run(const QString &steps)
    {
        w->fileName()->setText(w->job.path("missing/out"));
        WindowOrder::setTopmost(window);
        for (const QString &step : steps.split(QLatin1Char(' '))) {
            const QString arg = step.section(QLatin1Char(':'), 1);
            auto *custom = w->part<QLineEdit>("le_pr_custom");
            if (step.startsWith(QLatin1Char('=')))
                combo->setCurrentIndex(combo->findText(step.mid(1)));
            else if (step.startsWith(QLatin1Char('?')))
                window->cb_combobox_currentIndexChanged(step.mid(1));
            else if (step.startsWith(QLatin1String("set:")))
                w->part<QRadioButton>(arg.toLatin1())->setChecked(true);
            else if (step.startsWith(QLatin1String("rb_")))
                QTest::mouseClick(w->part<QRadioButton>(step.toLatin1()), Qt::LeftButton);
            else if (step.startsWith(QLatin1String("paste:")))
                custom->selectAll(), custom->insert(arg);
            else if (step.startsWith(QLatin1String("type:"))) {
                QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, arg); // as a keyboard sends it
                QCoreApplication::sendEvent(custom, &press);
            } else if (step == QLatin1String("lang")) {
                translator = std::make_unique<MarkingTranslator>("MainWindow");
                QCoreApplication::installTranslator(translator.get());
                QCoreApplication::sendPostedEvents();
            } else if (step.startsWith(QLatin1String("key:")))
                QTest::keyClick(step.section(':', 1, 1).isEmpty()
                        ? window
                        : w->part(step.section(':', 1, 1).toLatin1()),
                    QKeySequence(step.section(':', 2))[0].key(),
                    step.endsWith("Enter") ? Qt::KeypadModifier : Qt::NoModifier);
            else
                tabs->setCurrentIndex(step.toInt());
        }
    }
    // "[hidden ]items > current[ disabled] = colour code", "words" and the translated texts
    // ("lost" when the file name changed), "custom on|off text" (with "differs"
    // when the value does not follow the text), or "key printed|ignored[ topmost]"
    QString state(const QString &kind = QString()) const
    {
        auto *custom = w->part<QLineEdit>("le_pr_custom");
        if (kind == QLatin1String("custom"))
            return (custom->isEnabled() ? "custom on " : "custom off ") + custom->text()
                + (jobSettings().customNumber == custom->text() ? "" : " differs");
        if (kind == QLatin1String("words"))
            return "words " + window->windowTitle() + ' '
                + w->part<QAbstractButton>("pb_print")->text() + ' ' + tabs->tabText(Formats::Excel)
                + QString::number(tabs->count())
                + (w->fileName()->text() == w->job.path("missing/out") ? "" : " lost");
        if (kind == QLatin1String("key"))
            return QString(w->prompts.questions.size() == 1 ? "key printed" : "key ignored")
                + (WindowOrder::isTopmost(window) ? " topmost" : "");
        QStringList items;
        for (int row = 0; row < combo->count(); ++row)
            items << combo->itemText(row);
        return (w->part("gb_color")->isVisible() ? "" : "hidden ") + items.join(',') + " > "
            + combo->currentText() + (combo->isEnabled() ? "" : " disabled") + " = "
            + jobSettings().colorCode;
    }

    std::unique_ptr<MarkingTranslator> translator;
    std::unique_ptr<OpenWindow> w;
    MainWindow *window = nullptr;
    QTabWidget *tabs = nullptr;
    QComboBox *combo = nullptr;
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
