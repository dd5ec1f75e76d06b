// SPDX-License-Identifier: GPL-3.0-or-later
// The main dialog's construction and behaviour: pages, colour modes, numbering, keys, languages.
#include "dialog/mainwindow.h"
#include "ui_mainwindow.h"

#include "formats/formatcatalogue.h"
#include "pdf/pdfprotect.h"
#include "platform/windoworder.h"
#include "settings/jobsettings.h"
#include "style/compacttabs.h"

#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <cstring>

namespace {

// The compression code that a radio button of the TIFF page stands for.
const char *compressionCodeOf(const char *button)
{
    for (const Formats::CompressionMethod &method : Formats::compressionMethods()) {
        if (std::strcmp(method.button, button) == 0)
            return method.code;
    }
    return "";
}

// Only "0" to "9" make a number the driver can read; digits of other scripts do not.
bool isAsciiDigits(const QString &text)
{
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

// The point size of the form's font, as mainwindow.ui gives it to the window.
constexpr int formPointSize = 8;

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::MainWindow)
{
    // The form is built with the application's font at the form's size, which is then put back.
    // Qt lays out a new line edit's text once in the application's font before it takes its own,
    // and the pages are built without a parent, in the application's font, before they join the
    // window. Built in another size, each would load that size of the font and lay out again when
    // its page joins, and the colour list would build its pop-up list then. Only the font that
    // new widgets start from changes: the widgets that exist and the fonts the desktop gives to
    // kinds of widgets (menus, tool tips) are left alone.
    const QFont applicationFont = QGuiApplication::font();
    QFont formFont = applicationFont;
    formFont.setPointSize(formPointSize);
    QGuiApplication::setFont(formFont);
    ui->setupUi(this);
    QGuiApplication::setFont(applicationFont);

    connect(ui->pb_filename, &QToolButton::clicked, this, &MainWindow::pb_filename);
    connect(ui->pb_print, &QPushButton::clicked, this, &MainWindow::pb_print);
    connect(ui->rb_pefix_1, &QRadioButton::clicked, this, &MainWindow::rb_pefix_1);
    connect(ui->rb_pefix_custom, &QRadioButton::clicked, this, &MainWindow::rb_pefix_custom);
    connect(ui->pb_cancel, &QPushButton::clicked, this, &MainWindow::pb_cancel);
    connect(ui->pb_pdf_protect, &QPushButton::clicked, this, &MainWindow::pb_pdf_protect);
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::currentChanged);
    connect(ui->le_pr_custom, &QLineEdit::textChanged, this, &MainWindow::le_custom);
    connect(ui->rb_1, &QRadioButton::clicked, this, &MainWindow::rb_1);
    connect(ui->rb_2, &QRadioButton::clicked, this, &MainWindow::rb_2);
    connect(ui->rb_3, &QRadioButton::clicked, this, &MainWindow::rb_3);
    connect(ui->rb_4, &QRadioButton::clicked, this, &MainWindow::rb_4);
    connect(ui->rb_zip, &QRadioButton::clicked, this, &MainWindow::rb_zip);
    connect(ui->rb_packbits, &QRadioButton::clicked, this, &MainWindow::rb_packbits);
    // The colour lookup works on item texts; -1 (while the list is cleared) gives the empty text.
    connect(ui->cb_combobox, &QComboBox::currentIndexChanged, this,
        [this](int index) { cb_combobox_currentIndexChanged(ui->cb_combobox->itemText(index)); });

    nameChosenByDialog = false;

    djvuAvailable = QFile::exists(jobSettings().converterPath);
    // Driver contract: SWF is current, so removing the last page changes no page and signals
    // nothing.
    if (!djvuAvailable)
        ui->tabWidget->removeTab(Formats::Djvu);

    readAllUsersFlag();
    loadSettings();
    // Loading installs the style, whose tab padding decides whether all twelve tabs show whole.
    CompactTabs::fit(ui->tabWidget);
}

MainWindow::~MainWindow()
{
    delete ui;
}

void MainWindow::currentChanged(int index)
{
    // Driver contract: the shared options follow the page the tab widget shows, whatever index
    // was signalled (the DjVu page is asked for as index 12).
    if (QWidget *page = ui->tabWidget->currentWidget()) {
        ui->cd_extract_text->setParent(page);
        ui->cd_extract_text->show();
        ui->gb_color->setParent(page);
        ui->gb_color->show();
    }
    refillColorModes(index);
}

void MainWindow::refillColorModes(int index)
{
    const Formats::ColorList list = Formats::colorListFor(index, compression);
    if (list.hidden) {
        // Driver contract: the colour mode chosen before stays in force on these pages.
        ui->gb_color->hide();
        return;
    }
    ui->gb_color->show();
    ui->cb_combobox->setEnabled(true);
    ui->cb_combobox->clear();
    ui->cb_combobox->addItems(list.items);
    if (!list.items.isEmpty())
        ui->cb_combobox->setCurrentIndex(list.selectedRow);
    ui->cb_combobox->setEnabled(list.enabled);
    if (!list.forcedCode.isEmpty())
        jobSettings().colorCode = list.forcedCode;
}

void MainWindow::cb_combobox_currentIndexChanged(const QString &text)
{
    const QString code = Formats::colorCodeForText(text);
    if (!code.isEmpty())
        jobSettings().colorCode = code;
}

void MainWindow::setCompression(const char *code, bool state)
{
    if (state)
        compression = QLatin1String(code);
    // Driver contract: also a click on the checked button resets the colour list to the
    // method's default.
    refillColorModes(Formats::Tiff);
}

void MainWindow::rb_1(bool state)
{
    setCompression(compressionCodeOf("rb_1"), state);
}

void MainWindow::rb_2(bool state)
{
    setCompression(compressionCodeOf("rb_2"), state);
}

void MainWindow::rb_3(bool state)
{
    setCompression(compressionCodeOf("rb_3"), state);
}

void MainWindow::rb_4(bool state)
{
    setCompression(compressionCodeOf("rb_4"), state);
}

void MainWindow::rb_zip(bool state)
{
    setCompression(compressionCodeOf("rb_zip"), state);
}

void MainWindow::rb_packbits(bool state)
{
    setCompression(compressionCodeOf("rb_packbits"), state);
}

// Driver contract: the prefix buttons read the pressed-down state, which is already released when
// the click is signalled: clicking "Add 1" disables the custom number, clicking "Custom" enables
// it.
void MainWindow::rb_pefix_1()
{
    ui->le_pr_custom->setEnabled(ui->rb_pefix_1->isDown());
}

void MainWindow::rb_pefix_custom()
{
    ui->le_pr_custom->setEnabled(!ui->rb_pefix_custom->isDown());
}

void MainWindow::le_custom(const QString &text)
{
    // Restoring the last accepted number signals again, with a text this filter accepts.
    if (!isAsciiDigits(text)) {
        ui->le_pr_custom->setText(jobSettings().customNumber);
        return;
    }
    jobSettings().customNumber = text;
}

void MainWindow::pb_pdf_protect()
{
    // Out of the topmost band first, or the PDF dialog would open behind this one.
    WindowOrder::clearTopmost(this);
    pdfprotect dialog;
    dialog.exec();
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    // Return and keypad Enter print from anywhere; every other key stops here.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        pb_print();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

// The form's text operation also empties the file name, resets the custom number and renames the
// first two colour items; a language change must change the words and nothing the user chose.
// The colour items stay as they are: their texts are what the colour lookup reads.
void MainWindow::retranslate()
{
    const QString fileName = ui->le_filename->text();
    const QString customNumber = ui->le_pr_custom->text();
    QStringList colorItems;
    for (int row = 0; row < ui->cb_combobox->count(); ++row)
        colorItems << ui->cb_combobox->itemText(row);

    const QSignalBlocker numberBlocker(ui->le_pr_custom);
    const QSignalBlocker colorBlocker(ui->cb_combobox);
    ui->retranslateUi(this);
    ui->le_filename->setText(fileName);
    ui->le_pr_custom->setText(customNumber);
    for (int row = 0; row < colorItems.size(); ++row)
        ui->cb_combobox->setItemText(row, colorItems.at(row));
}
