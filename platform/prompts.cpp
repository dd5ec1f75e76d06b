// SPDX-License-Identifier: GPL-3.0-or-later
// The interactive message boxes and Save As dialog, replaceable by tests.
#include "platform/prompts.h"

#include <QFileDialog>

namespace {

// Asks the user.
class InteractivePrompts : public Prompts
{
public:
    QMessageBox::StandardButton message(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons) override
    {
        QMessageBox box(QMessageBox::NoIcon, title, text, buttons, parent);
        return static_cast<QMessageBox::StandardButton>(box.exec());
    }

    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
        const QString &filters, QString *selectedFilter) override
    {
        return QFileDialog::getSaveFileName(parent, caption, path, filters, selectedFilter);
    }
};

Prompts *installedPrompts = nullptr;

} // namespace

Prompts::~Prompts() = default;

Prompts &Prompts::current()
{
    static InteractivePrompts interactive;
    return installedPrompts ? *installedPrompts : interactive;
}

void Prompts::install(Prompts *prompts)
{
    installedPrompts = prompts;
}
