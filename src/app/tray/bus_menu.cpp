#include "app/tray/bus_menu.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

constexpr int root = 0;

constexpr auto menuDescription =
    "    <property name=\"Version\" type=\"u\" access=\"read\"/>\n"
    "    <property name=\"TextDirection\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"Status\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"IconThemePath\" type=\"as\" access=\"read\"/>\n"
    "    <method name=\"GetLayout\">\n"
    "      <arg type=\"i\" name=\"parentId\" direction=\"in\"/>\n"
    "      <arg type=\"i\" name=\"recursionDepth\" direction=\"in\"/>\n"
    "      <arg type=\"as\" name=\"propertyNames\" direction=\"in\"/>\n"
    "      <arg type=\"u\" name=\"revision\" direction=\"out\"/>\n"
    "      <arg type=\"(ia{sv}av)\" name=\"layout\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"GetGroupProperties\">\n"
    "      <arg type=\"ai\" name=\"ids\" direction=\"in\"/>\n"
    "      <arg type=\"as\" name=\"propertyNames\" direction=\"in\"/>\n"
    "      <arg type=\"a(ia{sv})\" name=\"properties\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"GetProperty\">\n"
    "      <arg type=\"i\" name=\"id\" direction=\"in\"/>\n"
    "      <arg type=\"s\" name=\"name\" direction=\"in\"/>\n"
    "      <arg type=\"v\" name=\"value\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"Event\">\n"
    "      <arg type=\"i\" name=\"id\" direction=\"in\"/>\n"
    "      <arg type=\"s\" name=\"eventId\" direction=\"in\"/>\n"
    "      <arg type=\"v\" name=\"data\" direction=\"in\"/>\n"
    "      <arg type=\"u\" name=\"timestamp\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"EventGroup\">\n"
    "      <arg type=\"a(isvu)\" name=\"events\" direction=\"in\"/>\n"
    "      <arg type=\"ai\" name=\"idErrors\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"AboutToShow\">\n"
    "      <arg type=\"i\" name=\"id\" direction=\"in\"/>\n"
    "      <arg type=\"b\" name=\"needUpdate\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"AboutToShowGroup\">\n"
    "      <arg type=\"ai\" name=\"ids\" direction=\"in\"/>\n"
    "      <arg type=\"ai\" name=\"updatesNeeded\" direction=\"out\"/>\n"
    "      <arg type=\"ai\" name=\"idErrors\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <signal name=\"LayoutUpdated\">\n"
    "      <arg type=\"u\" name=\"revision\"/>\n"
    "      <arg type=\"i\" name=\"parent\"/>\n"
    "    </signal>\n";

QString menuInterface() {
    return QStringLiteral("com.canonical.dbusmenu");
}

/// One line under a letter would mark a key, two are one line.
QString labelOf(QString title) {
    return title.replace(u'_', QStringLiteral("__"));
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& out, const BusMenuNode& node) {
    out.beginStructure();
    out << node.id << node.properties;
    out.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const BusMenuNode& child : node.children)
        out << QDBusVariant(QVariant::fromValue(child));
    out.endArray();
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, BusMenuNode& node) {
    node.children.clear();
    in.beginStructure();
    in >> node.id >> node.properties;
    in.beginArray();
    while (!in.atEnd()) {
        QDBusVariant child;
        in >> child;
        node.children.append(qdbus_cast<BusMenuNode>(child.variant()));
    }
    in.endArray();
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const BusMenuEntry& entry) {
    out.beginStructure();
    out << entry.id << entry.properties;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, BusMenuEntry& entry) {
    in.beginStructure();
    in >> entry.id >> entry.properties;
    in.endStructure();
    return in;
}

BusMenu::BusMenu(const QString& path, Ask ask, Send send)
    : BusObject(path, menuInterface(), QString::fromLatin1(menuDescription)),
      ask_(std::move(ask)),
      send_(std::move(send)),
      entries_(ask_()) {
    qDBusRegisterMetaType<BusMenuNode>();
    qDBusRegisterMetaType<BusMenuEntry>();
    qDBusRegisterMetaType<QList<BusMenuEntry>>();
}

/// Whether anything that is shown has changed. Of several readers all are told: the one that asked
/// knows it now, and what the others have is old.
bool BusMenu::refresh() {
    std::vector<StatusMenuEntry> now = ask_();
    const bool isSame =
        std::ranges::equal(now, entries_, {}, &StatusMenuEntry::title, &StatusMenuEntry::title);
    entries_ = std::move(now);
    if (isSame) return false;
    QDBusMessage signal =
        QDBusMessage::createSignal(path(), menuInterface(), QStringLiteral("LayoutUpdated"));
    signal << ++revision_ << root;
    send_(signal);
    return true;
}

bool BusMenu::has(int id) const {
    return id >= root && static_cast<std::size_t>(id) <= entries_.size();
}

QVariantMap BusMenu::propertiesOf(int id) const {
    if (id == root) return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    const StatusMenuEntry& entry = entries_[static_cast<std::size_t>(id - 1)];
    if (entry.title.isEmpty()) return {{QStringLiteral("type"), QStringLiteral("separator")}};
    return {{QStringLiteral("label"), labelOf(entry.title)},
            {QStringLiteral("enabled"), entry.action != nullptr}};
}

BusMenuNode BusMenu::layout(int id, bool withChildren) const {
    BusMenuNode node{id, propertiesOf(id), {}};
    if (id != root || !withChildren) return node;
    for (int child = 1; has(child); ++child)
        node.children.append(layout(child, false));
    return node;
}

QList<BusMenuEntry> BusMenu::group(const QList<int>& ids) const {
    QList<BusMenuEntry> found;
    for (int id = root; has(id); ++id) {
        if (ids.isEmpty() || ids.contains(id)) found.append({id, propertiesOf(id)});
    }
    return found;
}

void BusMenu::happened(int id, const QString& event) {
    if (id == root || event != u"clicked") return;
    const auto action = entries_[static_cast<std::size_t>(id - 1)].action;
    // The action may destroy this menu.
    if (action) QMetaObject::invokeMethod(&context_, action, Qt::QueuedConnection);
}

/// The unknown ones.
QList<int> BusMenu::happened(const QDBusArgument& events) {
    QList<int> unknown;
    events.beginArray();
    while (!events.atEnd()) {
        int id = 0;
        QString event;
        QDBusVariant data;
        uint time = 0;
        events.beginStructure();
        events >> id >> event >> data >> time;
        events.endStructure();
        if (has(id)) {
            happened(id, event);
        } else {
            unknown.append(id);
        }
    }
    events.endArray();
    return unknown;
}

QVariantMap BusMenu::properties() const {
    const bool isRightToLeft = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    return {{QStringLiteral("Version"), 3U},
            {QStringLiteral("TextDirection"),
             isRightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr")},
            {QStringLiteral("Status"), QStringLiteral("normal")},
            {QStringLiteral("IconThemePath"), QStringList()}};
}

std::optional<QVariantList> BusMenu::call(const QString& method, const QString& signature,
                                          const QVariantList& arguments) {
    const auto is = [&](QStringView name, QStringView kinds) {
        return method == name && signature == kinds;
    };
    const auto numbers = [&] { return qdbus_cast<QList<int>>(arguments.constFirst()); };
    if (is(u"GetGroupProperties", u"aias"))
        return QVariantList{QVariant::fromValue(group(numbers()))};
    if (is(u"EventGroup", u"a(isvu)")) {
        const auto events = arguments.constFirst().value<QDBusArgument>();
        return QVariantList{QVariant::fromValue(happened(events))};
    }
    if (is(u"AboutToShowGroup", u"ai")) {
        const QList<int> changed = refresh() ? QList<int>{root} : QList<int>{};
        return QVariantList{QVariant::fromValue(changed), QVariant::fromValue(QList<int>())};
    }
    const int id = arguments.isEmpty() ? -1 : arguments.constFirst().toInt();
    if (!has(id)) return std::nullopt;
    if (is(u"GetLayout", u"iias")) {
        if (id == root) refresh();
        const bool withChildren = arguments.at(1).toInt() != 0;
        return QVariantList{revision_, QVariant::fromValue(layout(id, withChildren))};
    }
    if (is(u"GetProperty", u"is")) {
        const QVariant value = propertiesOf(id).value(arguments.at(1).toString());
        if (!value.isValid()) return std::nullopt;
        return QVariantList{QVariant::fromValue(QDBusVariant(value))};
    }
    if (is(u"AboutToShow", u"i")) return QVariantList{refresh()};
    if (is(u"Event", u"isvu")) {
        happened(id, arguments.at(1).toString());
        return QVariantList();
    }
    return std::nullopt;
}

}  // namespace vantor
