#include "support/fake_portal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace vantor {

namespace {

const auto portalRoot = QStringLiteral("/org/freedesktop/portal/desktop");

QDBusMessage responseOf(const QString& handle, uint response, const QStringList& uris) {
    auto signal = QDBusMessage::createSignal(
        handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
    signal << response << QVariantMap{{QStringLiteral("uris"), uris}};
    return signal;
}

}  // namespace

class FakePortal::Service : public QDBusVirtualObject {
  public:
    explicit Service(FakePortal& portal) : portal_(portal) {}

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (portal_.manner_ == Manner::silent) return true;
        if (portal_.manner_ == Manner::chooserless) return false;
        if (message.member() == u"Get") {
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(3U))));
            return true;
        }
        if (message.member() == u"Close") {
            if (message.path() == portal_.handle_) ++portal_.closed_;
            return true;
        }
        return message.member() == u"SaveFile" && message.signature() == u"ssa{sv}" &&
               show(message, bus);
    }

  private:
    bool show(const QDBusMessage& message, const QDBusConnection& bus) {
        ++portal_.asked_;
        if (portal_.manner_ == Manner::refusing) return false;
        portal_.parentWindow_ = message.arguments().at(0).toString();
        portal_.title_ = message.arguments().at(1).toString();
        portal_.options_ = qdbus_cast<QVariantMap>(message.arguments().at(2));
        QString sender = message.service().sliced(1);
        const QString token =
            portal_.manner_ == Manner::oldFashioned
                ? QStringLiteral("t%1").arg(portal_.asked_)
                : portal_.options_.value(QStringLiteral("handle_token")).toString();
        portal_.handle_ =
            portalRoot + QStringLiteral("/request/") + sender.replace(u'.', u'_') + u'/' + token;
        if (portal_.manner_ == Manner::stuck) return true;
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(portal_.handle_))));
        return true;
    }

    FakePortal& portal_;
};

FakePortal::FakePortal(const QString& address, Manner manner)
    : name_(QStringLiteral("played-portal-%1").arg(reinterpret_cast<quintptr>(this))),
      bus_(QDBusConnection::connectToBus(address, name_)),
      manner_(manner),
      service_(std::make_unique<Service>(*this)) {
    bus_.registerVirtualObject(portalRoot, service_.get(), QDBusConnection::SubPath);
    bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

FakePortal::~FakePortal() {
    bus_.unregisterObject(portalRoot);
    QDBusConnection::disconnectFromBus(name_);
}

void FakePortal::respond(uint response, const QStringList& uris) {
    bus_.send(responseOf(handle_, response, uris));
}

void FakePortal::respondFalsely(const QString& address, const QStringList& uris) {
    const QString name = name_ + QStringLiteral("-stranger");
    QDBusConnection::connectToBus(address, name).send(responseOf(handle_, 0, uris));
    QDBusConnection::disconnectFromBus(name);
}

}  // namespace vantor
