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

inline std::optional<QString> of(const QWidget *widget)
{
    const char *name = stateProperty(widget);
    if (!name)
        return std::nullopt;
    const QVariant value = widget->property(name);
    if (value.typeId() == QMetaType::Bool)
        return QString::fromLatin1(value.toBool() ? "checked" : "unchecked");
    return value.toString();
}

// Sets a widget as a user would leave it in that state.
inline void set(QWidget *widget, const QString &state)
{
    if (const char *name = stateProperty(widget))
        widget->setProperty(name,
            widget->property(name).typeId() == QMetaType::Bool
                ? QVariant(state == QLatin1String("checked"))
                : QVariant(state));
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
