#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <chrono>
#include <list>
#include <memory>

#include "app/session/instance_claim.h"
#include "platform/file_descriptor.h"

namespace vantor {

/// Listens on a local socket for starts of the program that ask this one for something.
///
/// A request is one line, an action and a token; the answer is one byte and the end of the
/// connection. A client that sends anything else, too much, nothing for a second, or that connects
/// beside too many others, is disconnected. Main thread.
class ActivationServer {
  public:
    static constexpr char promise = '+';
    static constexpr std::chrono::milliseconds patience{1000};
    static constexpr std::size_t maxTalkers = 8;

    static QByteArray request(const Activation& activation);

    /// A former file at `path` is removed; the caller knows that no process uses it.
    ActivationServer(QByteArray path, OnActivate onActivate);
    ActivationServer(const ActivationServer&) = delete;
    ActivationServer& operator=(const ActivationServer&) = delete;
    ~ActivationServer();

    bool isListening() const { return notifier_ != nullptr; }

  private:
    struct Talker {
        FileDescriptor socket;
        QByteArray said;
        QSocketNotifier notifier{QSocketNotifier::Read};
        QTimer timer;
    };
    using Place = std::list<Talker>::iterator;

    void accept();
    void listenTo(FileDescriptor socket);
    void read(Place talker);
    void hangUp(Place talker);

    QByteArray path_;
    OnActivate onActivate_;
    FileDescriptor socket_;
    std::list<Talker> talkers_;
    std::list<Talker> ended_;  // destroyed after the events that they are notified of
    QObject context_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantor
