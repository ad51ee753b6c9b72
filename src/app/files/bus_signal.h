#pragma once

#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <utility>

namespace vantor {

/// Receives one signal of a bus: the toolkit delivers those to named slots only.
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
