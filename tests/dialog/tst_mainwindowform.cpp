#include "ui_mainwindow.h"

#include <QTabBar>
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

// Every named widget of the form except the twelve pages and the central widget.
// clang-format off
const char *const tree[] = {
    "groupBox_2 QGroupBox centralWidget 10,10 471x101",        "groupBox_3 QGroupBox centralWidget 10,120 471x91",
    "tabWidget QTabWidget centralWidget 10,230 471x191",       "pb_print QPushButton centralWidget 310,450 83x25",
    "cd_dialog QCheckBox centralWidget 10,450 171x24",         "le_filename QLineEdit groupBox_2 10,60 411x20",
    "rb_pefix_custom QRadioButton groupBox_2 220,20 101x21",   "pb_filename QToolButton groupBox_2 420,60 27x20",
    "ch_exe QCheckBox groupBox_3 20,20 171x24",                "ch_tcp QCheckBox groupBox_3 150,50 91x24",
    "ch_ftp QCheckBox groupBox_3 150,20 121x24",               "ch_image QCheckBox groupBox_3 290,50 141x24",
    "ch_text QCheckBox groupBox_3 290,20 141x24",              "spb_q_jpg QSpinBox tab_4 10,60 121x20",
    "label_10 QLabel tab_6 10,40 271x18",                      "spb_q_tif QSpinBox tab_6 10,60 121x20",
    "groupBox_4 QGroupBox tab_6 210,20 231x81",                "rb_1 QRadioButton groupBox_4 10,20 61x24",
    "rb_zip QRadioButton groupBox_4 80,20 51x24",              "rb_packbits QRadioButton groupBox_4 140,20 91x24",
    "rb_4 QRadioButton groupBox_4 10,50 51x24",                "rb_2 QRadioButton groupBox_4 80,50 51x24",
    "rb_3 QRadioButton groupBox_4 140,50 61x24",               "ch_multipage_tiff QCheckBox tab_6 10,100 171x24",
    "spb_q_swf QSpinBox tab_2 10,60 121x20",                   "ch_multipage_swf QCheckBox tab_2 10,100 91x24",
    "ch_swf_animate QCheckBox tab_2 160,70 111x24",            "le_swf_protect QLineEdit ch_swf_protect 10,30 121x20",
    "cd_extract_text QCheckBox tab_2 10,130 171x24",           "gb_color QGroupBox tab_2 290,110 141x51",
    "cb_combobox QComboBox gb_color 10,20 121x20",             "rb_swf_text QCheckBox tab_2 160,40 101x17",
    "label_12 QLabel tab_7 10,40 151x18",                      "spb_q_pdf QSpinBox tab_7 10,60 121x20",
    "ch_multipage_pdf QCheckBox tab_7 10,100 111x24",          "pb_pdf_protect QPushButton tab_7 300,40 121x24",
    "rb_pdf_text QCheckBox tab_7 160,40 111x17",               "spb_q_htm QSpinBox tab_11 10,60 121x20",
    "rb_htm_text QCheckBox tab_11 160,40 111x17",              "ch_multipage_htm QCheckBox tab_11 10,100 111x24",
    "ch_multipage_djvu QCheckBox tab_10 10,100 181x24",        "label QLabel tab 10,10 171x18",
    "label_2 QLabel tab_3 10,10 191x18",                       "label_3 QLabel tab_4 10,10 171x18",
    "label_13 QLabel tab_9 10,10 181x18",                      "label_4 QLabel tab_6 10,10 121x18",
    "label_5 QLabel tab_5 10,10 121x18",                       "label_6 QLabel tab_2 10,10 161x18",
    "label_7 QLabel tab_7 10,10 121x18",                       "label_8 QLabel tab_8 10,10 121x18",
    "label_15 QLabel tab_11 10,10 171x18",                     "label_14 QLabel tab_10 10,10 121x18",
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

// The main dialog's form as its build operation leaves it, before any behaviour or loading.
class MainWindowFormTest : public QObject
{
    Q_OBJECT

private slots:
    void form()
    {
        QMainWindow host;
        Ui::MainWindow ui;
        ui.setupUi(&host);
        QCOMPARE(host.minimumSize(), QSize(494, 503));
        QCOMPARE(host.maximumSize(), QSize(494, 503));
        QCOMPARE(host.windowTitle(), QStringLiteral("Vellumio"));

        for (const char *row : tree) {
            const QString expected = QString::fromLatin1(row);
            const QWidget *w = host.findChild<QWidget *>(expected.section(' ', 0, 0));
            QVERIFY2(w, row);
            QCOMPARE(describe(w, expected.contains(" | ")), expected);
        }
        int named = 0; // the toolkit's own widgets are "qt_..." or sit in the tab bar
        for (const QWidget *w : host.findChildren<QWidget *>())
            named += !w->objectName().isEmpty() && !w->objectName().startsWith(QLatin1String("qt_"))
                && !qobject_cast<const QTabBar *>(w->parentWidget());
        QCOMPARE(named, int(std::size(tree)) + 12 + 1);
        // The tab position is the format index.
        QStringList pages;
        for (int index = 0; index < ui.tabWidget->count(); ++index)
            pages << ui.tabWidget->widget(index)->objectName();
        QCOMPARE(pages.join(' '),
            QStringLiteral(
                "tab tab_3 tab_4 tab_9 tab_6 tab_5 tab_2 tab_7 tab_8 tab_12 tab_11 tab_10"));
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
};

QTEST_MAIN(MainWindowFormTest)
#include "tst_mainwindowform.moc"
