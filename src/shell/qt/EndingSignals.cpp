#include "shell/qt/EndingSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <utility>

namespace tintora {

namespace {

constexpr std::array<int, 3> Signals = {SIGHUP, SIGINT, SIGTERM};

/// Both ends of a pipe, the one to read from first. A handler of signals may write to it, and hardly anything else.
std::array<int, 2> pipeEnds = {-1, -1};

extern "C" void NoteSignal(int signal) {
    const int error = errno;
    const auto byte = static_cast<char>(signal);
    [[maybe_unused]] const ssize_t count = ::write(pipeEnds[1], &byte, 1);
    errno = error;
}

/// Gives the signal to the handler, unless it is ignored.
void Handle(int signal, void (*handler)(int)) {
    struct sigaction present {};
    if (::sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
        return;
    struct sigaction wanted {};
    wanted.sa_handler = handler;
    wanted.sa_flags = SA_RESTART;
    ::sigaction(signal, &wanted, nullptr);
}

}  // namespace

EndingSignals::EndingSignals(std::function<void(int signal)> end) : end_(std::move(end)) {
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &EndingSignals::Read);
    for (const int signal : Signals)
        Handle(signal, NoteSignal);
}

EndingSignals::~EndingSignals() {
    if (notifier_ == nullptr)
        return;
    for (const int signal : Signals)
        Handle(signal, SIG_DFL);
    delete notifier_;
    for (int& descriptor : pipeEnds)
        ::close(std::exchange(descriptor, -1));
}

void EndingSignals::Read() {
    char signal = 0;
    if (::read(pipeEnds[0], &signal, 1) == 1)
        end_(signal);
}

}  // namespace tintora
