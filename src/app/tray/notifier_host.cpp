#include "app/tray/notifier_host.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

#include "app/tray/notifier_item.h"
#include "ui/components/make_child.h"

namespace vantor {

namespace {

// Milliseconds; a host that hangs shows nothing, and an embedding tray may be available.
constexpr int hostPatience = 3000;

/// The first is a bus's answer where it may not start the service, which the toolkit has no type
/// for.
bool isAbsence(const QDBusError& error) {
    return error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner" ||
           error.type() == QDBusError::ServiceUnknown;
}

}  // namespace

NotifierHost::NotifierHost(const QDBusConnection& bus, std::function<void()> onAnswer)
    : bus_(bus),
      onAnswer_(std::move(onAnswer)),
      service_(NotifierItem::watcherService(), bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { look(); });
    QObject::connect(&service_, &QDBusServiceWatcher::serviceOwnerChanged, &soon_,
                     [this](const QString&, const QString&, const QString& owner) {
                         hasService_ = !owner.isEmpty();
                         ++owners_;
                         settle(false);
                         look();
                     });
    for (const auto& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                               QStringLiteral("StatusNotifierHostUnregistered")}) {
        bus_.connect(NotifierItem::watcherService(), NotifierItem::watcherPath(),
                     NotifierItem::watcherService(), signal, &soon_, SLOT(start()));
    }
}

void NotifierHost::settle(bool isThere) {
    isThere_ = isThere;
    onAnswer_();
}

void NotifierHost::look() {
    if (isAsked_) return;
    if (!hasService_) {
        settle(false);
        return;
    }
    isAsked_ = true;
    const int asked = owners_;
    auto question = QDBusMessage::createMethodCall(
        NotifierItem::watcherService(), NotifierItem::watcherPath(),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << NotifierItem::watcherService() << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    auto* answer = makeChild<QDBusPendingCallWatcher>(static_cast<QObject*>(&soon_),
                                                      bus_.asyncCall(question, hostPatience));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &soon_, [this, answer, asked] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        isAsked_ = false;
        if (asked != owners_) {  // the answer is from a former owner
            look();
            return;
        }
        if (isAbsence(reply.error())) hasService_ = false;
        settle(!reply.isError() && reply.value().variant().toBool());
    });
}

}  // namespace vantor
