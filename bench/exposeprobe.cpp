// SPDX-License-Identifier: GPL-3.0-or-later
// Ends a benchmarked program the moment its first window is on screen.
#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

#include <unistd.h>

namespace {

// Tells the benchmark driver the moment a top-level window is first on screen, with two words as
// the program's translators give them (a dialog text and a standard button of Qt's), then ends
// the process at once so that teardown costs do not count.
class FirstExposeProbe : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Expose && watched->isWindowType()) {
            const auto *window = static_cast<const QWindow *>(watched);
            if (window->isTopLevel() && window->isExposed()) {
                const QByteArray line = "exposed\t"
                    + QCoreApplication::translate("MainWindow", "Print").toUtf8() + '\t'
                    + QCoreApplication::translate("QPlatformTheme", "Cancel").toUtf8() + '\n';
                [[maybe_unused]] const ssize_t written = ::write(1, line.data(), line.size());
                ::_exit(0);
            }
        }
        return false;
    }
};

void installFirstExposeProbe()
{
    QCoreApplication::instance()->installEventFilter(
        new FirstExposeProbe(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(installFirstExposeProbe)
