#include "app/session/local_claim.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "app/session/local_socket.h"

namespace vantor {

namespace {

constexpr int retryMilliseconds = 5;

int millisecondsUntil(const QDeadlineTimer& deadline) {
    return static_cast<int>(std::clamp<qint64>(deadline.remainingTime(), 0, 60'000));
}

}  // namespace

LocalClaim::LocalClaim(const QString& folder, const QString& display, OnActivate onActivate)
    : onActivate_(std::move(onActivate)) {
    const QByteArray screen =
        QCryptographicHash::hash(display.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    base_ = QFile::encodeName(folder) + '/' + applicationIdentifier + '-' + screen;
    std::signal(SIGPIPE, SIG_IGN);
}

ClaimOutcome LocalClaim::claim(const Activation& activation, const QDeadlineTimer& deadline) {
    for (;;) {
        const ClaimOutcome outcome = take();
        if (outcome != ClaimOutcome::noAnswer) return outcome;
        const Answer answer = ask(activation, deadline);
        if (answer == Answer::yes) return ClaimOutcome::handedOver;
        if (answer == Answer::none || deadline.hasExpired()) return ClaimOutcome::noAnswer;
        // The other program is just starting or ending.
        ::poll(nullptr, 0, std::min(retryMilliseconds, millisecondsUntil(deadline)));
    }
}

ClaimOutcome LocalClaim::take() {
    const QByteArray lockPath = base_ + ".lock";
    if (!lock_) {
        lock_ = FileDescriptor(
            ::open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    }
    if (!lock_) return ClaimOutcome::unavailable;
    if (::flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) {
        const bool isTaken = errno == EWOULDBLOCK || errno == EINTR;
        return isTaken ? ClaimOutcome::noAnswer : ClaimOutcome::unavailable;
    }
    server_ = std::make_unique<ActivationServer>(base_ + ".socket", onActivate_);
    if (server_->isListening()) return ClaimOutcome::owned;
    // Others must not wait for a program that does not listen.
    server_.reset();
    lock_.reset();
    return ClaimOutcome::unavailable;
}

LocalClaim::Answer LocalClaim::ask(const Activation& activation,
                                   const QDeadlineTimer& deadline) const {
    const FileDescriptor socket = connectedTo(base_ + ".socket");
    if (!socket) return Answer::gone;
    const QByteArray request = ActivationServer::request(activation);
    if (::write(socket.get(), request.constData(), static_cast<size_t>(request.size())) !=
        request.size()) {
        return Answer::gone;
    }
    std::array<char, 1> answer{};
    for (;;) {
        pollfd waiting{socket.get(), POLLIN, 0};
        const int ready = ::poll(&waiting, 1, millisecondsUntil(deadline));
        if (ready == 0) return Answer::none;
        if (ready < 0 && errno != EINTR) return Answer::gone;
        const auto count = ::read(socket.get(), answer.data(), answer.size());
        if (count > 0)
            return answer.front() == ActivationServer::promise ? Answer::yes : Answer::none;
        if (count == 0 || (errno != EAGAIN && errno != EINTR)) return Answer::gone;
    }
}

}  // namespace vantor
