#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <chrono>
#include <list>
#include <memory>

#include "app/instance_claim.h"
#include "platform/file_descriptor.h"

namespace vantor {

/// Listens on a local socket for starts of the program that want this one to come forward.
///
/// A request is one line; the answer is one byte, and the end of the connection. Whoever says
/// anything else, or too much, or nothing for a second, or comes while many others talk, is hung
/// up on. Main thread.
class ActivationServer {
  public:
    static constexpr char promise = '+';
    static constexpr std::chrono::milliseconds patience{1000};
    static constexpr std::size_t mostTalkers = 8;

    static QByteArray request(const QString& token);

    /// Whatever was at `path` before is removed; the caller knows that it belongs to nobody.
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
    std::list<Talker> ended_;  // end after the events that they are told of
    QObject context_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantor
