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

// What a user sees of a form, by object name: check boxes, radio buttons and checkable groups
// "checked" or "unchecked", spin boxes their number, line edits their text, combo boxes their
// current text, tab widgets their current index. Tables compare it as plain values.
using FormState = QMap<QString, QString>;

namespace FormStates {

// The property that holds a widget's state; null for widgets without a state of their own.
inline const char *stateProperty(const QWidget *widget)
{
    if (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QGroupBox *>(widget))
        return widget->property("checkable").toBool() ? "checked" : nullptr;
    if (qobject_cast<const QSpinBox *>(widget))
        return "value";
    if (qobject_cast<const QLineEdit *>(widget))
        return "text";
    if (qobject_cast<const QComboBox *>(widget))
        return "currentText";
    return qobject_cast<const QTabWidget *>(widget) ? "currentIndex" : nullptr;
}

// Sets a widget as a user would leave it in that state.
inline void set(QWidget *widget, const QString &state)
{
    if (const char *name = stateProperty(widget))
        widget->setProperty(name,
            widget->property(name).typeId() == QMetaType::Bool ? QVariant(state == "checked")
                                                               : QVariant(state));
}

// Every named widget with a state below `root`; Qt's own inner widgets are left out.
inline FormState all(const QWidget *root)
{
    FormState state;
    for (const QWidget *widget : root->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        const char *property = stateProperty(widget);
        if (name.isEmpty() || name.startsWith("qt_") || !property)
            continue;
        const QVariant value = widget->property(property);
        state.insert(name,
            value.typeId() != QMetaType::Bool ? value.toString()
                : value.toBool()              ? "checked"
                                              : "unchecked");
    }
    return state;
}

// What differs in `after`, with the state it has there ("(gone)" where it is missing).
inline FormState changes(const FormState &before, const FormState &after)
{
    FormState changed;
    for (auto it = after.begin(); it != after.end(); ++it)
        if (before.value(it.key(), "(gone)") != it.value())
            changed.insert(it.key(), it.value());
    for (auto it = before.begin(); it != before.end(); ++it)
        if (!after.contains(it.key()))
            changed.insert(it.key(), "(gone)");
    return changed;
}

// One line a failure message can show: "ch_tcp=checked; le_filename=/out/Document1".
inline QString text(const FormState &state)
{
    QStringList pairs;
    for (auto it = state.begin(); it != state.end(); ++it)
        pairs << it.key() + '=' + it.value();
    return pairs.join("; ");
}

} // namespace FormStates

#endif // FMTASK_TESTS_FORMSTATE_H
