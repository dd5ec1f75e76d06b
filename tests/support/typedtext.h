// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_TYPEDTEXT_H
#define FMTASK_TESTS_TYPEDTEXT_H

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTestEventList>

// Characters typed one key each as a keyboard layout sends them: a key press carrying the
// character as its text and no key code, so that digits of any script and other characters that
// QTest's own key clicks cannot spell arrive as a user types them.
struct TypedCharacter : public QTestEvent
{
    explicit TypedCharacter(QChar typed)
        : character(typed)
    { }
    void simulate(QWidget *widget) override
    {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(widget, &press);
        QCoreApplication::sendEvent(widget, &release);
    }
    QTestEvent *clone() const override { return new TypedCharacter(*this); }

    QChar character;
};

inline QTestEventList typedText(const QString &text)
{
    QTestEventList events;
    for (const QChar character : text)
        events.append(new TypedCharacter(character));
    return events;
}

#endif // FMTASK_TESTS_TYPEDTEXT_H
