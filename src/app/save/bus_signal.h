#pragma once

#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <utility>

namespace vantor {

/// A signal of a bus that somebody listens to: the toolkit delivers those to named slots alone.
class BusSignal : public QObject {
    Q_OBJECT

  public:
    explicit BusSignal(std::function<void(const QDBusMessage&)> onArrival)
        : onArrival_(std::move(onArrival)) {}

  public Q_SLOTS:
    void arrive(const QDBusMessage& message) { onArrival_(message); }

  private:
    std::function<void(const QDBusMessage&)> onArrival_;
};

}  // namespace vantor
