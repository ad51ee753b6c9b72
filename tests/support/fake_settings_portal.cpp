#include "support/fake_settings_portal.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace vantor {

namespace {

const auto settingsPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsPortalInterface = QStringLiteral("org.freedesktop.portal.Settings");

QDBusMessage changeOf(const QString& where, const QString& key, const QVariant& value) {
    auto signal = QDBusMessage::createSignal(settingsPortalPath, settingsPortalInterface,
                                             QStringLiteral("SettingChanged"));
    signal << where << key << QVariant::fromValue(QDBusVariant(value));
    return signal;
}

}  // namespace

class FakeSettingsPortal::Service : public QDBusVirtualObject {
  public:
    explicit Service(FakeSettingsPortal& portal) : portal_(portal) {}

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != settingsPortalInterface || message.member() != u"Read")
            return false;
        ++portal_.asked_;
        if (portal_.isSilent) return true;
        const QVariant value = portal_.look_.value(message.arguments().at(1).toString());
        if (!value.isValid()) return false;
        // Wrapped twice, as by this method alone.
        const QDBusVariant inner(value);
        bus.send(
            message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)))));
        return true;
    }

  private:
    FakeSettingsPortal& portal_;
};

FakeSettingsPortal::FakeSettingsPortal(const QString& address, Look look)
    : name_(QStringLiteral("played-settings-%1").arg(reinterpret_cast<quintptr>(this))),
      bus_(QDBusConnection::connectToBus(address, name_)),
      look_(std::move(look)),
      service_(std::make_unique<Service>(*this)) {
    bus_.registerVirtualObject(settingsPortalPath, service_.get(), QDBusConnection::SubPath);
    bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

FakeSettingsPortal::~FakeSettingsPortal() {
    bus_.unregisterObject(settingsPortalPath);
    QDBusConnection::disconnectFromBus(name_);
}

void FakeSettingsPortal::change(const QString& key, const QVariant& value, const QString& where) {
    look_.insert(key, value);
    bus_.send(changeOf(where, key, value));
}

void FakeSettingsPortal::changeFalsely(const QString& address, const QString& key,
                                       const QVariant& value) const {
    const QString name = name_ + QStringLiteral("-stranger");
    QDBusConnection::connectToBus(address, name)
        .send(changeOf(QStringLiteral("org.freedesktop.appearance"), key, value));
    QDBusConnection::disconnectFromBus(name);
}

}  // namespace vantor
