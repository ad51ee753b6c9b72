#include "app/session_bus_claim.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

const auto busName = QStringLiteral("org.freedesktop.DBus");
const auto interfaceName = QStringLiteral("org.freedesktop.Application");
const auto objectPath = QStringLiteral("/com/kestrone/Vantor");
const auto waylandKey = QStringLiteral("activation-token");
const auto x11Key = QStringLiteral("desktop-startup-id");

constexpr auto introspection =
    "  <interface name=\"org.freedesktop.Application\">\n"
    "    <method name=\"Activate\">\n"
    "      <arg type=\"a{sv}\" name=\"platform_data\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"Open\">\n"
    "      <arg type=\"as\" name=\"uris\" direction=\"in\"/>\n"
    "      <arg type=\"a{sv}\" name=\"platform_data\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"ActivateAction\">\n"
    "      <arg type=\"s\" name=\"action_name\" direction=\"in\"/>\n"
    "      <arg type=\"av\" name=\"parameter\" direction=\"in\"/>\n"
    "      <arg type=\"a{sv}\" name=\"platform_data\" direction=\"in\"/>\n"
    "    </method>\n"
    "  </interface>\n";

QString name() {
    return QString::fromLatin1(applicationIdentifier);
}

int busPatience(const QDeadlineTimer& deadline) {
    return static_cast<int>(std::clamp<qint64>(deadline.remainingTime(), 1, 60'000));
}

QString tokenIn(const QVariant& platformData) {
    const auto data = qdbus_cast<QVariantMap>(platformData);
    for (const QString& key : {waylandKey, x11Key}) {
        const QVariant value = data.value(key);
        if (value.typeId() != QMetaType::QString) continue;
        if (QString token = checkedToken(value.toString()); !token.isEmpty()) return token;
    }
    return {};
}

}  // namespace

class SessionBusClaim::Application : public QDBusVirtualObject {
  public:
    explicit Application(OnActivate onActivate) : onActivate_(std::move(onActivate)) {}

    QString introspect(const QString& path) const override {
        return path == objectPath ? QString::fromLatin1(introspection) : QString();
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const bool isOurs = message.interface().isEmpty() || message.interface() == interfaceName;
        if (!isOurs || message.path() != objectPath) return false;
        const QString method = message.member();
        const QString signature = message.signature();
        const bool isActivate = method == u"Activate" && signature == u"a{sv}";
        const bool isAction = method == u"ActivateAction" && signature == u"sava{sv}";
        const bool isOpen = method == u"Open" && signature == u"asa{sv}";
        if (!isActivate && !isAction && !isOpen) return false;
        // First of all: whoever asks waits for it, and coming forward may take a moment.
        if (message.isReplyRequired()) connection.send(message.createReply());
        // There are neither files to be opened nor actions; who asks for one wants to see the
        // program at least.
        if (!isOpen) onActivate_(tokenIn(message.arguments().constLast()));
        return true;
    }

  private:
    OnActivate onActivate_;
};

SessionBusClaim::SessionBusClaim(const QString& address, OnActivate onActivate)
    : connectionName_(name() + QString::number(reinterpret_cast<quintptr>(this))),
      application_(std::make_unique<Application>(std::move(onActivate))),
      connection_(QDBusConnection::connectToBus(address, connectionName_)) {}

SessionBusClaim::~SessionBusClaim() {
    if (connection_.isConnected()) connection_.unregisterObject(objectPath);
    QDBusConnection::disconnectFromBus(connectionName_);
}

ClaimOutcome SessionBusClaim::claim(const QString& token, const QDeadlineTimer& deadline) {
    // Before the name, so that nobody finds the one without the other.
    if (!connection_.isConnected() ||
        !connection_.registerVirtualObject(objectPath, application_.get())) {
        return ClaimOutcome::unavailable;
    }
    const QVariantMap platformData =
        token.isEmpty() ? QVariantMap() : QVariantMap{{waylandKey, token}, {x11Key, token}};
    do {
        const Name found = requestName(deadline);
        if (found == Name::ours) return ClaimOutcome::owned;
        if (found == Name::unknown) return ClaimOutcome::unavailable;
        auto activate = QDBusMessage::createMethodCall(name(), objectPath, interfaceName,
                                                       QStringLiteral("Activate"));
        activate.setArguments({platformData});
        activate.setAutoStartService(false);
        const QDBusMessage reply = connection_.call(activate, QDBus::Block, busPatience(deadline));
        if (reply.type() == QDBusMessage::ReplyMessage) return ClaimOutcome::handedOver;
        const auto error = QDBusError(reply).type();
        // Otherwise it has just ended, and the name may be free now.
        if (error != QDBusError::NoReply && error != QDBusError::ServiceUnknown) break;
    } while (!deadline.hasExpired());
    return ClaimOutcome::noAnswer;
}

SessionBusClaim::Name SessionBusClaim::requestName(const QDeadlineTimer& deadline) {
    constexpr uint doNotQueue = 4;
    constexpr uint isOwner = 1;
    constexpr uint exists = 3;
    auto request = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"),
                                                  busName, QStringLiteral("RequestName"));
    request.setArguments({name(), doNotQueue});
    const QDBusMessage reply = connection_.call(request, QDBus::Block, busPatience(deadline));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return Name::unknown;
    const uint answer = reply.arguments().constFirst().toUInt();
    if (answer == isOwner) return Name::ours;
    return answer == exists ? Name::taken : Name::unknown;
}

}  // namespace vantor
