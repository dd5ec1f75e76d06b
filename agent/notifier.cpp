// SPDX-License-Identifier: GPL-3.0-or-later
// Desktop notifications over the session bus, with a message box where no service answers.
#include "agent/notifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QVariantMap>

#include <cstdio>

namespace {

constexpr int answerMilliseconds = 3000;

} // namespace

Notifier::Notifier(const QString &messageProgram)
    : m_messageProgram(messageProgram)
{ }

void Notifier::tell(const QString &summary, const QString &body) const
{
    std::fprintf(stderr, "vellumio-agent: %s %s\n", qUtf8Printable(summary), qUtf8Printable(body));
    if (!notifyDesktop(summary, body))
        showMessageBox(summary, body);
}

bool Notifier::notifyDesktop(const QString &summary, const QString &body) const
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call
        = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
            QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    call << QStringLiteral("Vellumio") << 0u << QStringLiteral("printer-error") << summary << body
         << QStringList() << QVariantMap() << -1;
    return bus.call(call, QDBus::Block, answerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void Notifier::showMessageBox(const QString &summary, const QString &body) const
{
    // The text travels in the environment, which only the user can read, not on the command line.
    QProcess box;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELLUMIO_MESSAGE"), summary + QLatin1Char('\n') + body);
    box.setProcessEnvironment(environment);
    box.setProgram(m_messageProgram);
    if (!box.startDetached())
        std::fprintf(stderr, "vellumio-agent: %s\n",
            qUtf8Printable(tr("no notification service and no %1").arg(m_messageProgram)));
}
