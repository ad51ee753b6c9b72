#include "app/session/session_bus_claim.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

namespace {

const auto busName = QStringLiteral("org.freedesktop.DBus");
const auto interfaceName = QStringLiteral("org.freedesktop.Application");
const auto objectPath = QStringLiteral("/com/kestrone/Vantor");

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

/// Of a message of any peer, no more is looked at than a desktop sends.
QVariantMap firstEntriesOf(const QVariant& platformData) {
    constexpr int most = 32;
    QVariantMap entries;
    const auto dictionary = platformData.value<QDBusArgument>();
    if (dictionary.currentType() != QDBusArgument::MapType) return entries;
    dictionary.beginMap();
    for (int i = 0; i < most && !dictionary.atEnd(); ++i) {
        QString key;
        QDBusVariant value;
        dictionary.beginMapEntry();
        dictionary >> key >> value;
        dictionary.endMapEntry();
        entries.insert(key, value.variant());
    }
    return entries;
}

/// What a call asks for; none where there is no such action, or not with these parameters.
std::optional<AppAction> actionAskedFor(const QVariantList& arguments) {
    constexpr qsizetype longestName = 64;
    const QString name = arguments.at(0).toString();
    const auto parameters = arguments.at(1).value<QDBusArgument>();
    if (name.size() > longestName || parameters.currentType() != QDBusArgument::ArrayType)
        return std::nullopt;
    parameters.beginArray();
    if (!parameters.atEnd()) return std::nullopt;
    return actionNamed(name.toStdString());
}

int busPatience(const QDeadlineTimer& deadline) {
    return static_cast<int>(std::clamp<qint64>(deadline.remainingTime(), 1, 60'000));
}

QDBusMessage requestFor(const Activation& activation) {
    const QString& token = activation.token;
    const QVariantMap platformData =
        token.isEmpty() ? QVariantMap()
                        : QVariantMap{{waylandTokenKey, token}, {x11TokenKey, token}};
    const bool isActivate = activation.action == AppAction::activate;
    auto request = QDBusMessage::createMethodCall(
        name(), objectPath, interfaceName,
        isActivate ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    if (isActivate) {
        request.setArguments({platformData});
    } else {
        const std::string_view action = nameOf(activation.action);
        request.setArguments(
            {QString::fromLatin1(action.data(), static_cast<qsizetype>(action.size())),
             QVariantList(), platformData});
    }
    request.setAutoStartService(false);
    return request;
}

QDBusMessage nameRequest(uint flags) {
    auto request = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"),
                                                  busName, QStringLiteral("RequestName"));
    request.setArguments({name(), flags});
    return request;
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
        const QVariantList arguments = message.arguments();
        const auto action = isAction ? actionAskedFor(arguments) : AppAction::activate;
        // First: the caller waits for it, and coming forward may take a moment.
        if (message.isReplyRequired())
            connection.send(action ? message.createReply()
                                   : message.createErrorReply(QDBusError::InvalidArgs,
                                                              QStringLiteral("No such action")));
        // There are no files to open.
        if (action && !isOpen)
            onActivate_({*action, tokenIn(firstEntriesOf(arguments.constLast()))});
        return true;
    }

  private:
    OnActivate onActivate_;
};

SessionBusClaim::SessionBusClaim(const QString& address, OnActivate onActivate)
    : address_(address),
      connectionName_(name() + QString::number(reinterpret_cast<quintptr>(this))),
      application_(std::make_unique<Application>(std::move(onActivate))) {
    for (QTimer* const timer : {&lost_, &retry_})
        timer->setSingleShot(true);
    lost_.setInterval(0);
    retry_.setTimerType(Qt::VeryCoarseTimer);
    QObject::connect(&lost_, &QTimer::timeout, &lost_, [this] {
        disconnect();
        if (isHolding_) tryLater();
    });
    QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { hold(); });
}

SessionBusClaim::~SessionBusClaim() {
    disconnect();
}

bool SessionBusClaim::connect() {
    if (connection_ && connection_->isConnected()) return true;
    disconnect();
    connection_.emplace(QDBusConnection::connectToBus(address_, connectionName_));
    // Before the name, so that the name is never there without the object.
    const bool isJoined = connection_->isConnected() &&
                          connection_->registerVirtualObject(objectPath, application_.get());
    if (isJoined) {
        connection_->connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                             QStringLiteral("org.freedesktop.DBus.Local"),
                             QStringLiteral("Disconnected"), &lost_, SLOT(start()));
    } else {
        disconnect();
    }
    return isJoined;
}

void SessionBusClaim::disconnect() {
    if (!connection_) return;
    if (connection_->isConnected()) connection_->unregisterObject(objectPath);
    connection_.reset();
    isOwner_ = false;
    lost_.stop();
    QDBusConnection::disconnectFromBus(connectionName_);
}

void SessionBusClaim::hold() {
    isHolding_ = true;
    if (connect()) {
        if (!isOwner_) waitInLine();
    } else {
        tryLater();
    }
}

void SessionBusClaim::tryLater() {
    retry_.start(backOff_.next());
}

void SessionBusClaim::waitInLine() {
    constexpr uint nothingSpecial = 0;
    auto* const answer = makeChild<QDBusPendingCallWatcher>(
        static_cast<QObject*>(&retry_), connection_->asyncCall(nameRequest(nothingSpecial)));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &retry_, [this, answer] {
        const bool isInLine = !answer->isError();
        answer->deleteLater();
        if (isInLine) {
            backOff_ = BackOff();
        } else if (!retry_.isActive()) {
            disconnect();
            tryLater();
        }
    });
}

ClaimOutcome SessionBusClaim::claim(const Activation& activation, const QDeadlineTimer& deadline) {
    if (!connect()) return ClaimOutcome::unavailable;
    QDBusMessage request = requestFor(activation);
    do {
        const Name found = requestName(deadline);
        if (found == Name::ours) {
            isOwner_ = true;
            return ClaimOutcome::owned;
        }
        if (found == Name::unknown) return ClaimOutcome::unavailable;
        const QDBusMessage reply = connection_->call(request, QDBus::Block, busPatience(deadline));
        if (reply.type() == QDBusMessage::ReplyMessage) return ClaimOutcome::handedOver;
        const auto error = QDBusError(reply).type();
        // Otherwise the owner has just ended, and the name may be free now.
        if (error != QDBusError::NoReply && error != QDBusError::ServiceUnknown) break;
    } while (!deadline.hasExpired());
    return ClaimOutcome::noAnswer;
}

SessionBusClaim::Name SessionBusClaim::requestName(const QDeadlineTimer& deadline) {
    constexpr uint doNotQueue = 4;
    constexpr uint isOwner = 1;
    constexpr uint exists = 3;
    const QDBusMessage reply =
        connection_->call(nameRequest(doNotQueue), QDBus::Block, busPatience(deadline));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return Name::unknown;
    const uint answer = reply.arguments().constFirst().toUInt();
    if (answer == isOwner) return Name::ours;
    return answer == exists ? Name::taken : Name::unknown;
}

}  // namespace vantor
