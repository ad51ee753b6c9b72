#include "support/fake_notifier_tray.h"

#include <QDBusPendingCall>
#include <QDBusVariant>

#include <algorithm>

#include "support/event_patience.h"

namespace vantor {

namespace {

const auto watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");
const auto itemList = QStringLiteral("RegisteredStatusNotifierItems");
const auto menuInterface = QStringLiteral("com.canonical.dbusmenu");
const auto itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

constexpr auto watcherDescription =
    "    <property name=\"IsStatusNotifierHostRegistered\" type=\"b\" access=\"read\"/>\n"
    "    <property name=\"RegisteredStatusNotifierItems\" type=\"as\" access=\"read\"/>\n"
    "    <property name=\"ProtocolVersion\" type=\"i\" access=\"read\"/>\n"
    "    <method name=\"RegisterStatusNotifierItem\">\n"
    "      <arg type=\"s\" name=\"service\" direction=\"in\"/>\n"
    "    </method>\n";

}  // namespace

class FakeNotifierTray::Service : public BusObject {
  public:
    explicit Service(FakeNotifierTray& tray)
        : BusObject(watcherPath, watcherName,
                    tray.manner_ == Manner::undescribed ? QString()
                                                        : QString::fromLatin1(watcherDescription)),
          tray_(tray) {}

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const bool isHandled = BusObject::handleMessage(message, connection);
        const QVariantList arguments = message.arguments();
        if (!arguments.isEmpty() && arguments.constLast() == itemList) ++tray_.listings_;
        return isHandled;
    }

  protected:
    QVariantMap properties() const override {
        ++tray_.looks_;
        QVariantMap all{{QStringLiteral("IsStatusNotifierHostRegistered"), tray_.hasHost_},
                        {QStringLiteral("ProtocolVersion"), 0}};
        if (tray_.manner_ != Manner::discreet) all.insert(itemList, names());
        return all;
    }
    std::optional<QVariantList> call(const QString& method, const QString& signature,
                                     const QVariantList& arguments) override {
        const bool isAsked = method == u"RegisterStatusNotifierItem" && signature == u"s";
        if (!isAsked || tray_.manner_ == Manner::refusing) return std::nullopt;
        if (tray_.manner_ != Manner::ignoring) {
            const QString item = arguments.constFirst().toString();
            tray_.items_.append(item);
            tray_.owners_.addWatchedService(item);
            tray_.tell(QStringLiteral("StatusNotifierItemRegistered"), {item});
        }
        return QVariantList();
    }

  private:
    QStringList names() const {
        return tray_.manner_ == Manner::misnaming ? QStringList{QStringLiteral("item 1")}
                                                  : tray_.items_;
    }

    FakeNotifierTray& tray_;
};

FakeNotifierTray::FakeNotifierTray(const QString& address, Manner manner)
    : name_(QStringLiteral("played-tray-%1").arg(reinterpret_cast<quintptr>(this))),
      bus_(QDBusConnection::connectToBus(address, name_)),
      manner_(manner),
      hasHost_(manner != Manner::hostless) {
    owners_.setConnection(bus_);
    owners_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&owners_, &QDBusServiceWatcher::serviceUnregistered, &owners_,
                     [this](const QString& item) { items_.removeAll(item); });
    service_ = std::make_unique<Service>(*this);
    bus_.registerVirtualObject(watcherPath, service_.get());
    bus_.registerService(watcherName);
}

FakeNotifierTray::~FakeNotifierTray() {
    bus_.unregisterObject(watcherPath);
    QDBusConnection::disconnectFromBus(name_);
}

void FakeNotifierTray::tell(const QString& signal, const QVariantList& arguments) {
    auto message = QDBusMessage::createSignal(watcherPath, watcherName, signal);
    message.setArguments(arguments);
    bus_.send(message);
}

void FakeNotifierTray::setHost(bool isThere) {
    hasHost_ = isThere;
    tell(isThere ? QStringLiteral("StatusNotifierHostRegistered")
                 : QStringLiteral("StatusNotifierHostUnregistered"));
}

QDBusMessage FakeNotifierTray::ask(const QString& path, const QString& interface,
                                   const QString& method, const QVariantList& arguments) {
    if (items_.isEmpty()) return {};
    auto question = QDBusMessage::createMethodCall(items_.constLast(), path, interface, method);
    question.setArguments(arguments);
    const QDBusPendingCall call = bus_.asyncCall(question);
    handleEventsUntil([&] { return call.isFinished(); });
    return call.reply();
}

QVariant FakeNotifierTray::property(const QString& name) {
    const QVariantList found = ask(QStringLiteral("/StatusNotifierItem"), propertiesInterface,
                                   QStringLiteral("Get"), {itemInterface, name})
                                   .arguments();
    return found.isEmpty() ? QVariant() : qvariant_cast<QDBusVariant>(found.constFirst()).variant();
}

QVariantMap FakeNotifierTray::properties() {
    const QVariantList found = ask(QStringLiteral("/StatusNotifierItem"), propertiesInterface,
                                   QStringLiteral("GetAll"), {itemInterface})
                                   .arguments();
    return found.isEmpty() ? QVariantMap() : qdbus_cast<QVariantMap>(found.constFirst());
}

BusMenuNode FakeNotifierTray::menu() {
    const QString path = qvariant_cast<QDBusObjectPath>(property(QStringLiteral("Menu"))).path();
    ask(path, menuInterface, QStringLiteral("AboutToShow"), {0});
    const QVariantList found =
        ask(path, menuInterface, QStringLiteral("GetLayout"), {0, -1, QStringList()}).arguments();
    return found.size() < 2 ? BusMenuNode() : qdbus_cast<BusMenuNode>(found.constLast());
}

bool FakeNotifierTray::choose(const QString& label) {
    const QString path = qvariant_cast<QDBusObjectPath>(property(QStringLiteral("Menu"))).path();
    const auto entries = menu().children;
    const auto found = std::ranges::find_if(entries, [&](const BusMenuNode& one) {
        return one.properties.value(QStringLiteral("label")).toString() == label;
    });
    if (found == entries.end()) return false;
    const QVariant nothing = QVariant::fromValue(QDBusVariant(QString()));
    ask(path, menuInterface, QStringLiteral("Event"),
        {found->id, QStringLiteral("clicked"), nothing, 0U});
    return true;
}

void FakeNotifierTray::activate(QPoint point) {
    ask(QStringLiteral("/StatusNotifierItem"), itemInterface, QStringLiteral("Activate"),
        {point.x(), point.y()});
}

}  // namespace vantor
