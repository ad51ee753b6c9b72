#include "app/session/bus_object.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace vantor {

BusObject::BusObject(QString path, QString interface, QString description)
    : path_(std::move(path)),
      interface_(std::move(interface)),
      description_(std::move(description)) {}

QString BusObject::introspect(const QString& path) const {
    if (path != path_) return {};
    return QStringLiteral("  <interface name=\"%1\">\n%2  </interface>\n")
        .arg(interface_, description_);
}

bool BusObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.path() != path_) return false;
    const std::optional<QVariantList> found = answer(message);
    if (!found) return false;
    if (message.isReplyRequired()) connection.send(message.createReply(*found));
    return true;
}

std::optional<QVariantList> BusObject::answer(const QDBusMessage& message) {
    const QString interface = message.interface();
    if (interface == QLatin1StringView("org.freedesktop.DBus.Properties")) return read(message);
    if (!interface.isEmpty() && interface != interface_) return std::nullopt;
    return call(message.member(), message.signature(), message.arguments());
}

std::optional<QVariantList> BusObject::read(const QDBusMessage& message) const {
    const QVariantList arguments = message.arguments();
    if (arguments.isEmpty() || arguments.constFirst().toString() != interface_) return std::nullopt;
    if (message.member() == u"GetAll" && message.signature() == u"s")
        return QVariantList{properties()};
    if (message.member() != u"Get" || message.signature() != u"ss") return std::nullopt;
    const QVariant value = properties().value(arguments.constLast().toString());
    if (!value.isValid()) return std::nullopt;
    return QVariantList{QVariant::fromValue(QDBusVariant(value))};
}

}  // namespace vantor
