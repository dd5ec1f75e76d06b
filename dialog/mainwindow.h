// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_MAINWINDOW_H
#define FMTASK_MAINWINDOW_H

#include "settings/settingsschema.h"
#include "settings/settingsscope.h"

#include <QMainWindow>
#include <QString>

namespace Ui {
class MainWindow;
}
class SettingsKey;

// The per-job options dialog: format pages, per-format options, output file and the after-print
// switches. Its choices live in the widgets and in the process-wide JobSettings values until
// Print saves them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    // Whether the DjVu converter exists beside the program (the DjVu page is there).
    bool isDjvuAvailable() const { return djvuAvailable; }
    // Whether the output name was picked in the Save As dialog (Print then asks no question).
    bool isNameChosenByDialog() const { return nameChosenByDialog; }
    // The TIFF compression code chosen by the radio buttons; empty until loaded or clicked.
    QString compressionCode() const { return compression; }

    // Sets the all-users flag from the machine key.
    void readAllUsersFlag();
    // Fills the form and the job values from the key chosen by the all-users flag.
    void loadSettings();
    // Print's complete save: machine key first when all users share the settings, then the user
    // key.
    void saveAllSettings();
    // Writes the whole state of the dialog into one key.
    void saveSettingsTo(SettingsScope scope);

    // Refills the colour modes for a format index (hides the colour group on RTF and XLS).
    void refillColorModes(int index);
    // The text of le_filename with the extension of the current page.
    QString fullOutputFileName() const;
    // Sets the selected filter to the filter of the current page.
    void updateSelectedFilter();
    // Selects the page and the filter of a format token.
    void selectFormat(const QString &token);

public slots:
    void pb_filename();
    void pb_print();
    void pb_pdf_protect();
    void rb_pefix_1();
    void rb_pefix_custom();
    void pb_cancel();
    void cb_combobox_currentIndexChanged(const QString &text);
    void rb_1(bool state);
    void rb_2(bool state);
    void rb_3(bool state);
    void rb_4(bool state);
    void rb_zip(bool state);
    void rb_packbits(bool state);
    void le_custom(const QString &text);
    void currentChanged(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // What a value of the settings table is bound to, read and set in the type of its binding.
    QWidget *boundWidget(const Settings::Entry &row) const;
    QVariant boundValue(const Settings::Entry &row) const;
    void setBoundValue(const Settings::Entry &row, const QVariant &value);
    // The loading of a value that has a step of its own.
    void loadStep(const SettingsKey &key, Settings::Value value);

    void setCompression(const char *code, bool state);
    void retranslate();

    Ui::MainWindow *ui;
    QString compression;
    bool djvuAvailable = false;
    bool nameChosenByDialog = false;
};

#endif // FMTASK_MAINWINDOW_H
