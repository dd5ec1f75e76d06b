// SPDX-License-Identifier: GPL-3.0-or-later
// SIGTERM and SIGINT as a request to stop a render, through a pipe written by the handler alone.
#include "render/stopsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QThread>

#include <array>
#include <memory>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Render {

namespace {

constexpr std::array<int, 2> stopSignals = {SIGTERM, SIGINT};

int signalPipe[2] = {-1, -1};

// Only what is safe in a handler: one write of one byte, errno kept for the code it interrupted.
void onSignal(int number)
{
    const int saved = errno;
    const char byte = char(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = saved;
}

// The handlers and the pipe while a render runs; the handlers put back as they were after it.
class SignalPipe
{
public:
    explicit SignalPipe(std::atomic<bool> *stop)
    {
        if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
        QObject::connect(
            m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this, stop] {
                char byte = 0;
                while (::read(signalPipe[0], &byte, 1) == 1) {
                    if (m_signal == 0)
                        m_signal = byte;
                }
                stop->store(true);
            });
        struct sigaction action = {};
        action.sa_handler = onSignal;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART;
        for (std::size_t i = 0; i < stopSignals.size(); ++i)
            ::sigaction(stopSignals[i], &action, &m_previous[i]);
    }
    ~SignalPipe()
    {
        if (!m_notifier)
            return;
        for (std::size_t i = 0; i < stopSignals.size(); ++i)
            ::sigaction(stopSignals[i], &m_previous[i], nullptr);
        m_notifier.reset();
        ::close(signalPipe[0]);
        ::close(signalPipe[1]);
        signalPipe[0] = signalPipe[1] = -1;
    }
    SignalPipe(const SignalPipe &) = delete;
    SignalPipe &operator=(const SignalPipe &) = delete;

    int signalNumber() const { return m_signal; }

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, stopSignals.size()> m_previous {};
    int m_signal = 0;
};

} // namespace

Result renderUntilSignalled(const std::function<Result(const std::atomic<bool> *stop)> &render)
{
    std::atomic<bool> stop {false};
    Result result;
    int signal = 0;
    {
        const SignalPipe pipe(&stop);
        std::unique_ptr<QThread> worker(QThread::create([&] { result = render(&stop); }));
        QObject::connect(worker.get(), &QThread::finished, QCoreApplication::instance(),
            &QCoreApplication::quit, Qt::QueuedConnection);
        worker->start();
        QCoreApplication::exec();
        worker->wait();
        signal = pipe.signalNumber();
    }
    if (signal != 0 && !result.ok()) {
        ::signal(signal, SIG_DFL);
        ::raise(signal);
        ::_exit(128 + signal);
    }
    return result;
}

} // namespace Render
