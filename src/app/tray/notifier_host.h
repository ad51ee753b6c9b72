#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QTimer>

#include <functional>

namespace vantor {

/// Whether something on the session's bus shows items (a StatusNotifier host). The service that
/// only collects them shows nothing: it may be there without any panel. Main thread.
class NotifierHost {
  public:
    /// `onAnswer` is called after each answer, and for every new owner of the service.
    NotifierHost(const QDBusConnection& bus, std::function<void()> onAnswer);
    NotifierHost(const NotifierHost&) = delete;
    NotifierHost& operator=(const NotifierHost&) = delete;

    bool isThere() const { return isThere_; }
    /// Whether a watcher may be there, host or not: one that does not answer may do so later.
    bool hasService() const { return hasService_; }

    /// Whether it has been asked and has not answered yet.
    bool isAsked() const { return isAsked_; }

    /// How many owners the service has had; an item that one has refused, another may take.
    int owners() const { return owners_; }

    void look();

  private:
    void settle(bool isThere);

    QDBusConnection bus_;
    std::function<void()> onAnswer_;
    QDBusServiceWatcher service_;
    QTimer soon_;  // until the next look, started by signals
    bool isThere_ = false;
    bool isAsked_ = false;
    bool hasService_ = true;  // unless it does not answer
    int owners_ = 0;
};

}  // namespace vantor
