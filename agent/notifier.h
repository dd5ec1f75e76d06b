// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_NOTIFIER_H
#define VELLUMIO_NOTIFIER_H

#include <QCoreApplication>
#include <QString>

// Tells the user what became of a job: a desktop notification through
// org.freedesktop.Notifications, or, where no notification service answers, a message box from a
// small program of its own. Every message also goes to the agent's standard error.
class Notifier
{
    Q_DECLARE_TR_FUNCTIONS(Notifier)

public:
    explicit Notifier(const QString &messageProgram);

    void tell(const QString &summary, const QString &body) const;

private:
    bool notifyDesktop(const QString &summary, const QString &body) const;
    void showMessageBox(const QString &summary, const QString &body) const;

    QString m_messageProgram;
};

#endif // VELLUMIO_NOTIFIER_H
