#include "e2e/assistive_client.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

namespace vantor {

namespace {

constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr std::size_t maxElements = 4000;
constexpr int patience = 5000;

QString text(const char* latin) {
    return QString::fromLatin1(latin);
}

QVariantList answer(const QDBusConnection& bus, const QString& service, const QString& path,
                    const char* interface, const char* method, const QVariantList& arguments = {}) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, text(interface), text(method));
    call.setArguments(arguments);
    const QDBusMessage reply = bus.call(call, QDBus::Block, patience);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QVariantList();
}

}  // namespace

AssistiveClient::AssistiveClient(const QString& sessionBus) {
    const QDBusConnection session =
        QDBusConnection::connectToBus(sessionBus, QStringLiteral("vantor-test-session"));
    const QVariantList address =
        answer(session, QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
               "org.a11y.Bus", "GetAddress");
    if (address.isEmpty()) return;
    const QDBusConnection bus = QDBusConnection::connectToBus(
        address.first().toString(), QStringLiteral("vantor-test-accessibility"));
    if (bus.isConnected()) bus_ = bus;
}

AssistiveClient::~AssistiveClient() {
    bus_.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("vantor-test-accessibility"));
    QDBusConnection::disconnectFromBus(QStringLiteral("vantor-test-session"));
}

QString AssistiveClient::property(const AccessibleElement& element, const char* name) const {
    const QVariantList values =
        answer(*bus_, element.service, element.path.path(), "org.freedesktop.DBus.Properties",
               "Get", {text(accessible), text(name)});
    if (values.isEmpty()) return {};
    return values.first().value<QDBusVariant>().variant().toString();
}

std::vector<AccessibleElement> AssistiveClient::childrenOf(const AccessibleElement& element) const {
    std::vector<AccessibleElement> children;
    const QVariantList values =
        answer(*bus_, element.service, element.path.path(), accessible, "GetChildren");
    if (values.isEmpty()) return children;
    const auto list = values.first().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        AccessibleElement child;
        list.beginStructure();
        list >> child.service >> child.path;
        list.endStructure();
        children.push_back(child);
    }
    list.endArray();
    for (AccessibleElement& child : children) {
        child.name = property(child, "Name");
        child.description = property(child, "Description");
        const QVariantList role =
            answer(*bus_, child.service, child.path.path(), accessible, "GetRoleName");
        if (!role.isEmpty()) child.role = role.first().toString();
    }
    return children;
}

bool AssistiveClient::act(const AccessibleElement& element, const char* action) const {
    constexpr char actions[] = "org.a11y.atspi.Action";
    // What the toolkit adds itself, such as a number's increase, it lists by number alone.
    constexpr int maxActions = 8;
    int found = 0;
    while (found < maxActions && answer(*bus_, element.service, element.path.path(), actions,
                                        "GetName", {found}) != QVariantList{text(action)})
        ++found;
    if (found == maxActions) return false;
    QDBusMessage call = QDBusMessage::createMethodCall(element.service, element.path.path(),
                                                       text(actions), text("DoAction"));
    call << found;
    return bus_->send(call);
}

bool AssistiveClient::hasState(const AccessibleElement& element, unsigned state) const {
    const QVariantList values =
        answer(*bus_, element.service, element.path.path(), accessible, "GetState");
    if (values.isEmpty()) return false;
    const auto states = qdbus_cast<QList<uint>>(values.first());
    return !states.isEmpty() && ((states.first() >> state) & 1U) != 0;
}

bool AssistiveClient::isShowing(const AccessibleElement& element) const {
    constexpr unsigned showing = 25;  // of the states of the protocol
    return hasState(element, showing);
}

bool AssistiveClient::isChecked(const AccessibleElement& element) const {
    constexpr unsigned checked = 4;
    return hasState(element, checked);
}

std::optional<int> AssistiveClient::leftOf(const AccessibleElement& element) const {
    constexpr uint inWindow = 1;
    auto question = QDBusMessage::createMethodCall(element.service, element.path.path(),
                                                   QStringLiteral("org.a11y.atspi.Component"),
                                                   QStringLiteral("GetExtents"));
    question << inWindow;
    const QList<QVariant> values = bus_->call(question).arguments();
    if (values.isEmpty() || !values.first().canConvert<QDBusArgument>()) return std::nullopt;
    int left = 0;
    const auto area = values.first().value<QDBusArgument>();
    area.beginStructure();
    area >> left;
    area.endStructure();
    return left;
}

void AssistiveClient::collect(const AccessibleElement& element,
                              std::vector<AccessibleElement>& all) const {
    if (all.size() >= maxElements) return;
    all.push_back(element);
    for (const AccessibleElement& child : childrenOf(element))
        collect(child, all);
}

std::vector<AccessibleElement> AssistiveClient::walk(const QString& program) const {
    std::vector<AccessibleElement> all;
    if (!bus_) return all;
    AccessibleElement registry;
    registry.service = QStringLiteral("org.a11y.atspi.Registry");
    registry.path = QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"));
    for (const AccessibleElement& application : childrenOf(registry)) {
        if (application.name == program) collect(application, all);
    }
    return all;
}

}  // namespace vantor
