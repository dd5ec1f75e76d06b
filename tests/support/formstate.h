// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_FORMSTATE_H
#define FMTASK_TESTS_FORMSTATE_H

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMap>
#include <QSpinBox>
#include <QStringList>
#include <QTabWidget>

#include <optional>

// What a user sees of a form, by object name: check boxes, radio buttons and checkable groups
// "checked" or "unchecked", spin boxes their number, line edits their text, combo boxes their
// current text, tab widgets their current index. Tables compare it as plain values.
using FormState = QMap<QString, QString>;

namespace FormStates {

// The state of one widget; nothing for widgets without a state of their own.
inline std::optional<QString> of(const QWidget *widget)
{
    const auto checked = [](bool on) { return QString::fromLatin1(on ? "checked" : "unchecked"); };
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->isCheckable() ? checked(button->isChecked()) : std::optional<QString>();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->isCheckable() ? checked(group->isChecked()) : std::optional<QString>();
    if (const auto *spinBox = qobject_cast<const QSpinBox *>(widget))
        return QString::number(spinBox->value());
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentText();
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
        return QString::number(tabs->currentIndex());
    return std::nullopt;
}

// Sets a widget as a user would leave it in that state.
inline void set(QWidget *widget, const QString &state)
{
    const bool on = state == QLatin1String("checked");
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setChecked(on);
    else if (auto *group = qobject_cast<QGroupBox *>(widget))
        group->setChecked(on);
    else if (auto *spinBox = qobject_cast<QSpinBox *>(widget))
        spinBox->setValue(state.toInt());
    else if (auto *edit = qobject_cast<QLineEdit *>(widget))
        edit->setText(state);
    else if (auto *combo = qobject_cast<QComboBox *>(widget))
        combo->setCurrentText(state);
    else if (auto *tabs = qobject_cast<QTabWidget *>(widget))
        tabs->setCurrentIndex(state.toInt());
}

// Every named widget with a state below `root`; Qt's own inner widgets are left out.
inline FormState all(const QWidget *root)
{
    FormState state;
    for (const QWidget *widget : root->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        const std::optional<QString> shown = of(widget);
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && shown)
            state.insert(name, *shown);
    }
    return state;
}

// What differs in `after`, with the state it has there ("(gone)" where it is missing).
inline FormState changes(const FormState &before, const FormState &after)
{
    FormState changed;
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (before.value(it.key(), QStringLiteral("(gone)")) != it.value())
            changed.insert(it.key(), it.value());
    }
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!after.contains(it.key()))
            changed.insert(it.key(), QStringLiteral("(gone)"));
    }
    return changed;
}

// One line a failure message can show: "ch_tcp=checked; le_filename=/out/Document1".
inline QString text(const FormState &state)
{
    QStringList pairs;
    for (auto it = state.begin(); it != state.end(); ++it)
        pairs << it.key() + QLatin1Char('=') + it.value();
    return pairs.join(QLatin1String("; "));
}

} // namespace FormStates

#endif // FMTASK_TESTS_FORMSTATE_H
