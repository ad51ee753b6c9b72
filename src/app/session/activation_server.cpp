#include "app/session/activation_server.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

#include "app/session/local_socket.h"

namespace vantor {

namespace {

constexpr qsizetype maxRequestSize = 1024;

/// What a line without its end asks for; none where it is no request.
std::optional<Activation> activationIn(const QByteArray& line) {
    const qsizetype space = line.indexOf(' ');
    if (space < 0) return std::nullopt;
    const auto action = actionNamed({line.constData(), static_cast<std::size_t>(space)});
    if (!action) return std::nullopt;
    return Activation{*action, checkedToken(QString::fromLatin1(line.mid(space + 1)))};
}

}  // namespace

QByteArray ActivationServer::request(const Activation& activation) {
    const std::string_view name = nameOf(activation.action);
    return QByteArray(name.data(), static_cast<qsizetype>(name.size())) + ' ' +
           activation.token.toLatin1() + '\n';
}

ActivationServer::ActivationServer(QByteArray path, OnActivate onActivate)
    : path_(std::move(path)), onActivate_(std::move(onActivate)) {
    ::unlink(path_.constData());
    socket_ = listeningAt(path_);
    if (!socket_) return;
    notifier_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, &context_, [this] { accept(); });
}

ActivationServer::~ActivationServer() {
    if (notifier_) ::unlink(path_.constData());
}

void ActivationServer::accept() {
    ended_.clear();
    FileDescriptor socket = acceptedFrom(socket_);
    if (socket) {
        if (talkers_.size() < maxTalkers) listenTo(std::move(socket));
        return;
    }
    if (errno == EAGAIN || errno == EINTR || errno == ECONNABORTED) return;
    // Without free descriptors the waiting client stays in the queue: the loop would spin.
    notifier_->setEnabled(false);
    QTimer::singleShot(patience, &context_, [this] { notifier_->setEnabled(true); });
}

void ActivationServer::listenTo(FileDescriptor socket) {
    const Place talker = talkers_.emplace(talkers_.end());
    talker->socket = std::move(socket);
    talker->notifier.setSocket(talker->socket.get());
    QObject::connect(&talker->notifier, &QSocketNotifier::activated, &context_,
                     [this, talker] { read(talker); });
    QObject::connect(&talker->timer, &QTimer::timeout, &context_,
                     [this, talker] { hangUp(talker); });
    talker->timer.setSingleShot(true);
    talker->timer.start(patience);
    talker->notifier.setEnabled(true);
}

void ActivationServer::read(Place talker) {
    std::array<char, maxRequestSize> bytes{};
    const auto count = ::read(talker->socket.get(), bytes.data(), bytes.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (count > 0) talker->said.append(bytes.data(), count);
    const auto end = talker->said.indexOf('\n');
    if (count > 0 && end < 0 && talker->said.size() < maxRequestSize) return;
    const auto asked = end < 0 ? std::nullopt : activationIn(talker->said.left(end));
    if (asked) [[maybe_unused]]
        const auto told = ::write(talker->socket.get(), &promise, 1);
    hangUp(talker);
    if (asked) onActivate_(*asked);
}

void ActivationServer::hangUp(Place talker) {
    talker->notifier.setEnabled(false);
    talker->timer.stop();
    // The notifier is the caller: it must not be destroyed before it returns.
    talker->socket.reset();
    ended_.splice(ended_.end(), talkers_, talker);
}

}  // namespace vantor
