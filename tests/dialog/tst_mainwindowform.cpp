#include "ui_mainwindow.h"

#include <QTabBar>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

// The main dialog's form as its build operation leaves it, before any behaviour or loading.
class MainWindowFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void window();
    void widgetTree_data();
    void widgetTree();
    void noOtherWidgets();
    void headings_data();
    void headings();
    void tabs();
    void raiseOrder();
    void plainTips_data();
    void plainTips();
    void runApplicationTip();
    void editFields();
    void printButton();

private:
    QWidget *widget(const char *name) const;

    QMainWindow *host = nullptr;
    Ui::MainWindow *form = nullptr;
};

namespace {

// The text a widget shows: button and label text, group title or line edit contents.
QString shownText(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->title();
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    return QString();
}

// -1 for widgets that cannot be checked, else 0 or 1.
int checkState(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->isCheckable() ? int(button->isChecked()) : -1;
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->isCheckable() ? int(group->isChecked()) : -1;
    return -1;
}

} // namespace

void MainWindowFormTest::init()
{
    host = new QMainWindow;
    form = new Ui::MainWindow;
    form->setupUi(host);
}

void MainWindowFormTest::cleanup()
{
    delete form;
    form = nullptr;
    delete host;
    host = nullptr;
}

QWidget *MainWindowFormTest::widget(const char *name) const
{
    return host->findChild<QWidget *>(QLatin1String(name));
}

void MainWindowFormTest::window()
{
    QCOMPARE(host->objectName(), QStringLiteral("MainWindow"));
    QCOMPARE(host->windowModality(), Qt::ApplicationModal);
    QCOMPARE(host->size(), QSize(494, 503));
    QCOMPARE(host->minimumSize(), QSize(494, 503));
    QCOMPARE(host->maximumSize(), QSize(494, 503));
    QCOMPARE(host->font().pointSize(), 8);
    QCOMPARE(host->windowTitle(), QStringLiteral("Vellumio"));
    QCOMPARE(host->centralWidget()->objectName(), QStringLiteral("centralWidget"));
}

void MainWindowFormTest::widgetTree_data()
{
    // object name, class, parent, geometry, shown text, checked (-1: cannot be checked)
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("checked");

    // clang-format off
    QTest::newRow("groupBox_2")        << "QGroupBox"    << "centralWidget"  << QRect(10, 10, 471, 101)  << "File Name"                    << -1;
    QTest::newRow("groupBox_3")        << "QGroupBox"    << "centralWidget"  << QRect(10, 120, 471, 91)  << "Enabled"                      << -1;
    QTest::newRow("tabWidget")         << "QTabWidget"   << "centralWidget"  << QRect(10, 230, 471, 191) << ""                             << -1;
    QTest::newRow("pb_print")          << "QPushButton"  << "centralWidget"  << QRect(310, 450, 83, 25)  << "Print"                        << -1;
    QTest::newRow("pb_cancel")         << "QPushButton"  << "centralWidget"  << QRect(400, 450, 83, 25)  << "Cancel Print"                 << -1;
    QTest::newRow("cd_dialog")         << "QCheckBox"    << "centralWidget"  << QRect(10, 450, 171, 24)  << "Show this dialog next time"   << 1;
    QTest::newRow("le_filename")       << "QLineEdit"    << "groupBox_2"     << QRect(10, 60, 411, 20)   << ""                             << -1;
    QTest::newRow("rb_pefix_1")        << "QRadioButton" << "groupBox_2"     << QRect(10, 20, 211, 24)   << "Add \"1\" to first file name" << 1;
    QTest::newRow("rb_pefix_custom")   << "QRadioButton" << "groupBox_2"     << QRect(220, 20, 101, 21)  << "Custom"                       << 0;
    QTest::newRow("le_pr_custom")      << "QLineEdit"    << "groupBox_2"     << QRect(340, 20, 101, 20)  << "1"                            << -1;
    QTest::newRow("pb_filename")       << "QToolButton"  << "groupBox_2"     << QRect(420, 60, 27, 20)   << "..."                          << -1;
    QTest::newRow("ch_exe")            << "QCheckBox"    << "groupBox_3"     << QRect(20, 20, 171, 24)   << "Run application"              << 0;
    QTest::newRow("ch_email")          << "QCheckBox"    << "groupBox_3"     << QRect(20, 50, 111, 24)   << "Send to EMail"                << 0;
    QTest::newRow("ch_tcp")            << "QCheckBox"    << "groupBox_3"     << QRect(150, 50, 91, 24)   << "TCP delivery"                 << 0;
    QTest::newRow("ch_ftp")            << "QCheckBox"    << "groupBox_3"     << QRect(150, 20, 121, 24)  << "FTP delivery"                 << 0;
    QTest::newRow("ch_image")          << "QCheckBox"    << "groupBox_3"     << QRect(290, 50, 141, 24)  << "Draw watermarks Image"        << 0;
    QTest::newRow("ch_text")           << "QCheckBox"    << "groupBox_3"     << QRect(290, 20, 141, 24)  << "Draw watermarks Text"         << 0;
    QTest::newRow("label_9")           << "QLabel"       << "tab_4"          << QRect(10, 40, 151, 18)   << "Quality of Image compression " << -1;
    QTest::newRow("spb_q_jpg")         << "QSpinBox"     << "tab_4"          << QRect(10, 60, 121, 20)   << ""                             << -1;
    QTest::newRow("label_10")          << "QLabel"       << "tab_6"          << QRect(10, 40, 271, 18)   << "Quality of Image compression (JPEG)" << -1;
    QTest::newRow("spb_q_tif")         << "QSpinBox"     << "tab_6"          << QRect(10, 60, 121, 20)   << ""                             << -1;
    QTest::newRow("groupBox_4")        << "QGroupBox"    << "tab_6"          << QRect(210, 20, 231, 81)  << "Method of compression"        << -1;
    QTest::newRow("rb_1")              << "QRadioButton" << "groupBox_4"     << QRect(10, 20, 61, 24)    << "LZW"                          << 0;
    QTest::newRow("rb_zip")            << "QRadioButton" << "groupBox_4"     << QRect(80, 20, 51, 24)    << "ZIP"                          << 1;
    QTest::newRow("rb_packbits")       << "QRadioButton" << "groupBox_4"     << QRect(140, 20, 91, 24)   << "PACKBITS"                     << 0;
    QTest::newRow("rb_4")              << "QRadioButton" << "groupBox_4"     << QRect(10, 50, 51, 24)    << "JPEG"                         << 0;
    QTest::newRow("rb_2")              << "QRadioButton" << "groupBox_4"     << QRect(80, 50, 51, 24)    << "FAX4"                         << 0;
    QTest::newRow("rb_3")              << "QRadioButton" << "groupBox_4"     << QRect(140, 50, 61, 24)   << "FAX3"                         << 0;
    QTest::newRow("ch_multipage_tiff") << "QCheckBox"    << "tab_6"          << QRect(10, 100, 171, 24)  << "MultiPage"                    << 1;
    QTest::newRow("label_11")          << "QLabel"       << "tab_2"          << QRect(10, 40, 151, 18)   << "Quality of image "            << -1;
    QTest::newRow("spb_q_swf")         << "QSpinBox"     << "tab_2"          << QRect(10, 60, 121, 20)   << ""                             << -1;
    QTest::newRow("ch_multipage_swf")  << "QCheckBox"    << "tab_2"          << QRect(10, 100, 91, 24)   << "MultiPage"                    << 1;
    QTest::newRow("ch_swf_animate")    << "QCheckBox"    << "tab_2"          << QRect(160, 70, 111, 24)  << "Animate"                      << 0;
    QTest::newRow("ch_swf_protect")    << "QGroupBox"    << "tab_2"          << QRect(290, 40, 141, 61)  << " Protect SWF"                 << 1;
    QTest::newRow("le_swf_protect")    << "QLineEdit"    << "ch_swf_protect" << QRect(10, 30, 121, 20)   << ""                             << -1;
    QTest::newRow("cd_extract_text")   << "QCheckBox"    << "tab_2"          << QRect(10, 130, 171, 24)  << "Extract text to file"         << 1;
    QTest::newRow("gb_color")          << "QGroupBox"    << "tab_2"          << QRect(290, 110, 141, 51) << "Color"                        << -1;
    QTest::newRow("cb_combobox")       << "QComboBox"    << "gb_color"       << QRect(10, 20, 121, 20)   << ""                             << -1;
    QTest::newRow("rb_swf_text")       << "QCheckBox"    << "tab_2"          << QRect(160, 40, 101, 17)  << "Add Text Layer"               << 1;
    QTest::newRow("label_12")          << "QLabel"       << "tab_7"          << QRect(10, 40, 151, 18)   << "Quality of image "            << -1;
    QTest::newRow("spb_q_pdf")         << "QSpinBox"     << "tab_7"          << QRect(10, 60, 121, 20)   << ""                             << -1;
    QTest::newRow("ch_multipage_pdf")  << "QCheckBox"    << "tab_7"          << QRect(10, 100, 111, 24)  << "MultiPage"                    << 1;
    QTest::newRow("pb_pdf_protect")    << "QPushButton"  << "tab_7"          << QRect(300, 40, 121, 24)  << "Advanced"                     << -1;
    QTest::newRow("rb_pdf_text")       << "QCheckBox"    << "tab_7"          << QRect(160, 40, 111, 17)  << "Add Text Layer"               << 1;
    QTest::newRow("spb_q_htm")         << "QSpinBox"     << "tab_11"         << QRect(10, 60, 121, 20)   << ""                             << -1;
    QTest::newRow("label_17")          << "QLabel"       << "tab_11"         << QRect(10, 40, 121, 18)   << "Quality of Image  "           << -1;
    QTest::newRow("rb_htm_text")       << "QCheckBox"    << "tab_11"         << QRect(160, 40, 111, 17)  << "Add Text Layer"               << 1;
    QTest::newRow("ch_multipage_htm")  << "QCheckBox"    << "tab_11"         << QRect(10, 100, 111, 24)  << "MultiPage"                    << 1;
    QTest::newRow("ch_multipage_djvu") << "QCheckBox"    << "tab_10"         << QRect(10, 100, 181, 24)  << "MultiPage"                    << 1;
    // clang-format on
}

void MainWindowFormTest::widgetTree()
{
    QFETCH(QString, className);
    QFETCH(QString, parent);
    QFETCH(QRect, geometry);
    QFETCH(QString, text);
    QFETCH(int, checked);

    const QWidget *found = widget(QTest::currentDataTag());
    QVERIFY(found);
    QCOMPARE(QLatin1String(found->metaObject()->className()), className);
    QCOMPARE(found->parentWidget()->objectName(), parent);
    QCOMPARE(found->geometry(), geometry);
    QCOMPARE(shownText(found), text);
    QCOMPARE(checkState(found), checked);
    QVERIFY(found->isEnabled());
}

void MainWindowFormTest::noOtherWidgets()
{
    // The rows above, twelve headings, twelve pages and the central widget. The toolkit's own
    // inner widgets are named "qt_..." or sit in the tab bar.
    int named = 0;
    for (const QWidget *child : host->findChildren<QWidget *>()) {
        if (child->objectName().isEmpty() || child->objectName().startsWith(QLatin1String("qt_"))
            || qobject_cast<const QTabBar *>(child->parentWidget()))
            continue;
        ++named;
    }
    QCOMPARE(named, 49 + 12 + 12 + 1);
}

void MainWindowFormTest::headings_data()
{
    // heading label, its page, width, text
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("text");

    // clang-format off
    QTest::newRow("label")    << "tab"    << 171 << "Print As BMP";
    QTest::newRow("label_2")  << "tab_3"  << 191 << "Print As PNG";
    QTest::newRow("label_3")  << "tab_4"  << 171 << "Print As JPEG";
    QTest::newRow("label_13") << "tab_9"  << 181 << "Print As JPEG2000";
    QTest::newRow("label_4")  << "tab_6"  << 121 << "Print As TIFF";
    QTest::newRow("label_5")  << "tab_5"  << 121 << "Print As GIF";
    QTest::newRow("label_6")  << "tab_2"  << 161 << "Print As SWF";
    QTest::newRow("label_7")  << "tab_7"  << 121 << "Print As PDF";
    QTest::newRow("label_8")  << "tab_8"  << 121 << "Print As RTF";
    QTest::newRow("label_16") << "tab_12" << 171 << "Print As MS Office  Excel";
    QTest::newRow("label_15") << "tab_11" << 171 << "Print As HTML";
    QTest::newRow("label_14") << "tab_10" << 121 << "Print As DjVu";
    // clang-format on
}

void MainWindowFormTest::headings()
{
    QFETCH(QString, page);
    QFETCH(int, width);
    QFETCH(QString, text);

    const auto *label = qobject_cast<QLabel *>(widget(QTest::currentDataTag()));
    QVERIFY(label);
    QCOMPARE(label->parentWidget()->objectName(), page);
    QCOMPARE(label->geometry(), QRect(10, 10, width, 18));
    QCOMPARE(label->text(), text);
    QVERIFY(label->font().bold());
    QCOMPARE(label->font().pointSize(), 8);
}

void MainWindowFormTest::tabs()
{
    const QStringList pages
        = {QStringLiteral("tab"), QStringLiteral("tab_3"), QStringLiteral("tab_4"),
            QStringLiteral("tab_9"), QStringLiteral("tab_6"), QStringLiteral("tab_5"),
            QStringLiteral("tab_2"), QStringLiteral("tab_7"), QStringLiteral("tab_8"),
            QStringLiteral("tab_12"), QStringLiteral("tab_11"), QStringLiteral("tab_10")};
    const QStringList texts = {QStringLiteral("BMP"), QStringLiteral("PNG"), QStringLiteral("JPEG"),
        QStringLiteral("JP2"), QStringLiteral("TIFF"), QStringLiteral("GIF"), QStringLiteral("SWF"),
        QStringLiteral("PDF"), QStringLiteral("RTF"), QStringLiteral("XLS"), QStringLiteral("HTML"),
        QStringLiteral("DjVu")};

    QTabWidget *tabs = form->tabWidget;
    QCOMPARE(tabs->count(), pages.size());
    for (int index = 0; index < tabs->count(); ++index) {
        QCOMPARE(tabs->widget(index)->objectName(), pages.at(index));
        QCOMPARE(QLatin1String(tabs->widget(index)->metaObject()->className()),
            QLatin1String("QWidget"));
        QCOMPARE(tabs->tabText(index), texts.at(index));
    }
    QCOMPARE(tabs->currentIndex(), 6);
    QCOMPARE(tabs->tabShape(), QTabWidget::Rounded);
    QCOMPARE(tabs->elideMode(), Qt::ElideLeft);
    QVERIFY(!tabs->documentMode());
    QVERIFY(!tabs->tabsClosable());
}

void MainWindowFormTest::raiseOrder()
{
    // Raising moves a widget to the end of its parent's children, so the list is the raise order.
    QStringList order;
    for (const QObject *child : host->centralWidget()->children())
        order << child->objectName();
    const QStringList expected
        = {QStringLiteral("groupBox_2"), QStringLiteral("groupBox_3"), QStringLiteral("pb_print"),
            QStringLiteral("pb_cancel"), QStringLiteral("cd_dialog"), QStringLiteral("tabWidget")};
    QCOMPARE(order, expected);
}

void MainWindowFormTest::plainTips_data()
{
    // check box, tool tip (also its What's This text)
    QTest::addColumn<QString>("tip");

    // clang-format off
    QTest::newRow("ch_email") << "Sends printed files via email.";
    QTest::newRow("ch_tcp")   << "Sends printed files via TCP protocol";
    QTest::newRow("ch_ftp")   << "Sends printed files via FTP protocol";
    QTest::newRow("ch_image") << "Enables printing of chosen image as watermark";
    QTest::newRow("ch_text")  << "Enables printing of chosen text as watermark";
    // clang-format on
}

void MainWindowFormTest::plainTips()
{
    QFETCH(QString, tip);

    const QWidget *box = widget(QTest::currentDataTag());
    QCOMPARE(box->toolTip(), tip);
    QCOMPARE(box->whatsThis(), tip);
}

void MainWindowFormTest::runApplicationTip()
{
    const QCheckBox *box = form->ch_exe;
    QCOMPARE(box->whatsThis(), box->toolTip());
    QVERIFY(box->statusTip().isEmpty());
    QVERIFY(Qt::mightBeRichText(box->toolTip()));
    QVERIFY(box->toolTip().contains(QLatin1String("HTML 4.0")));
    QVERIFY(box->toolTip().contains(QLatin1String("font-family:'MS Shell Dlg 2'")));
    QVERIFY(box->toolTip().contains(QLatin1String("font-size:8.25pt")));

    QTextDocument document;
    document.setHtml(box->toolTip());
    QCOMPARE(document.blockCount(), 2);
    const QStringList paragraphs = {QStringLiteral("This option allows Vellumio to open "),
        QStringLiteral("printed document for a view.")};
    QTextBlock block = document.begin();
    for (const QString &paragraph : paragraphs) {
        QCOMPARE(block.text(), paragraph);
        QCOMPARE(block.blockFormat().topMargin(), 0.0);
        QCOMPARE(block.blockFormat().bottomMargin(), 0.0);
        QCOMPARE(block.blockFormat().leftMargin(), 0.0);
        QCOMPARE(block.blockFormat().rightMargin(), 0.0);
        QCOMPARE(block.begin().fragment().charFormat().fontPointSize(), 8.0);
        block = block.next();
    }
}

void MainWindowFormTest::editFields()
{
    QCOMPARE(form->cb_combobox->count(), 2);
    QCOMPARE(form->cb_combobox->itemText(0), QStringLiteral("TrueColor"));
    QCOMPARE(form->cb_combobox->itemText(1), QStringLiteral("Grayscale"));
    QCOMPARE(form->cb_combobox->currentText(), QStringLiteral("TrueColor"));

    // Only the dialog's own filter restricts the custom number; no field has a limit of its own.
    for (const QLineEdit *edit : host->findChildren<QLineEdit *>()) {
        if (edit->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QCOMPARE(edit->maxLength(), QLineEdit().maxLength());
        QVERIFY(!edit->validator());
        QVERIFY(edit->inputMask().isEmpty());
        QCOMPARE(edit->echoMode(),
            edit == form->le_swf_protect ? QLineEdit::Password : QLineEdit::Normal);
    }

    const QList<QSpinBox *> spinBoxes = host->findChildren<QSpinBox *>();
    QCOMPARE(spinBoxes.size(), 5);
    for (const QSpinBox *spin : spinBoxes) {
        QCOMPARE(spin->minimum(), 1);
        QCOMPARE(spin->maximum(), 100);
        QCOMPARE(spin->singleStep(), 1);
        QCOMPARE(spin->value(), 1);
        QVERIFY(spin->prefix().isEmpty());
        QVERIFY(spin->suffix().isEmpty());
    }
}

void MainWindowFormTest::printButton()
{
    QVERIFY(!form->pb_print->autoDefault());
    QVERIFY(!form->pb_print->isDefault());
    QVERIFY(!form->pb_print->isFlat());
}

QTEST_MAIN(MainWindowFormTest)
#include "tst_mainwindowform.moc"
