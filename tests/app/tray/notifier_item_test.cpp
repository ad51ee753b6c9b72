#include <gtest/gtest.h>

#include <QCursor>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/session/instance_world.h"
#include "app/tray/qt_status_bar.h"
#include "app/tray/qt_status_bar_fixture.h"
#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"
#include "ui/rendering.h"

namespace vantor::notifier_item_test {
namespace {

using namespace std::chrono_literals;
using Manner = FakeNotifierTray::Manner;

/// Something that has happened to an entry, as it travels together with others.
struct MenuEvent {
    int id = 0;
    QString name;
};
QDBusArgument& operator<<(QDBusArgument& out, const MenuEvent& event) {
    out.beginStructure();
    out << event.id << event.name << QDBusVariant(QString()) << 0U;
    out.endStructure();
    return out;
}
const QDBusArgument& operator>>(const QDBusArgument& in, MenuEvent&) {
    return in;
}

/// On a tray that has taken it.
class NotifierItemTest : public QtStatusBarTest {
  protected:
    void SetUp() override {
        QtStatusBarTest::SetUp();
        startTray();
        start();
        ASSERT_TRUE(becomesAvailable());
    }
    QString text(const char* name) { return tray->property(QString::fromLatin1(name)).toString(); }
    std::vector<std::string> labels() {
        std::vector<std::string> all;
        for (const BusMenuNode& one : tray->menu().children)
            all.push_back(utf8(one.properties.value(QStringLiteral("label")).toString()));
        return all;
    }
    bool isRefused(const char* path, const char* interface, const char* method,
                   const QVariantList& arguments = {}) {
        return tray->ask(QString::fromLatin1(path), QString::fromLatin1(interface),
                         QString::fromLatin1(method), arguments)
                   .type() == QDBusMessage::ErrorMessage;
    }
};

TEST_F(NotifierItemTest, SaysWhatItIs) {
    EXPECT_EQ(utf8(text("Title")), "Vantor");
    EXPECT_EQ(utf8(text("Id")), "vantor");
    EXPECT_EQ(utf8(text("Category")), "ApplicationStatus");
    EXPECT_EQ(utf8(text("Status")), "Active");
    EXPECT_FALSE(tray->property(QStringLiteral("ItemIsMenu")).toBool());
    const auto toolTip = qdbus_cast<BusToolTip>(tray->property(QStringLiteral("ToolTip")));
    EXPECT_EQ(utf8(toolTip.title), "Vantor");
    const QVariantMap all = tray->properties();
    EXPECT_EQ(utf8(all.value(QStringLiteral("Title")).toString()), "Vantor");
    EXPECT_EQ(all.size(), 16);
}

TEST_F(NotifierItemTest, ItsToolTipIsMadeWhenItIsReadAndAnnouncedToThoseWhoReadTheLastOne) {
    const auto read = [this] {
        return utf8(qdbus_cast<BusToolTip>(tray->property(QStringLiteral("ToolTip"))).text);
    };
    QTimer heard;
    heard.setSingleShot(true);
    heard.setInterval(1h);
    QDBusConnection host = QDBusConnection::connectToBus(bus.address(), QStringLiteral("host"));
    ASSERT_TRUE(host.connect({}, QStringLiteral("/StatusNotifierItem"),
                             QStringLiteral("org.kde.StatusNotifierItem"),
                             QStringLiteral("NewToolTip"), &heard, SLOT(start())));
    EXPECT_EQ(read(), "CPU 1%");
    toolTip = QStringLiteral("CPU 2%");
    item->toolTipChanged();
    EXPECT_TRUE(handleEventsUntil([&] { return heard.isActive(); }));
    heard.stop();
    item->toolTipChanged();
    tray->items();
    // Its signal would have come before this answer.
    host.call(QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    settleEvents();
    EXPECT_FALSE(heard.isActive()) << "nobody has read it since";
    EXPECT_EQ(read(), "CPU 2%");
    item->toolTipChanged();
    EXPECT_TRUE(handleEventsUntil([&] { return heard.isActive(); }));
    QDBusConnection::disconnectFromBus(QStringLiteral("host"));
}

TEST_F(NotifierItemTest, HasItsTileInTheSizesOfPanels) {
    const auto icons = qdbus_cast<QList<BusPixmap>>(tray->property(QStringLiteral("IconPixmap")));
    ASSERT_EQ(icons.size(), 6);
    EXPECT_EQ(icons.first().width, 16);
    EXPECT_EQ(icons.last().width, 64);
    for (const BusPixmap& icon : icons) {
        ASSERT_EQ(icon.bytes.size(), 4 * icon.width * icon.height) << icon.width;
        const auto byte = [&](int x, int y, int which) {
            return static_cast<unsigned char>(icon.bytes[4 * (y * icon.width + x) + which]);
        };
        EXPECT_LT(byte(0, 0, 0), 128) << "its corners are round";
        EXPECT_EQ(byte(icon.width / 2, icon.height / 4, 0), 255) << icon.width;
        EXPECT_GT(byte(icon.width / 2, icon.height / 5, 3),
                  byte(icon.width / 2, icon.height / 5, 1))
            << "its ground is more blue than red";
    }
}

TEST_F(NotifierItemTest, ItsMenuSaysWhatIsSoWhenItOpens) {
    entries = {{QStringLiteral("CPU  1%"), {}}, {}, {QStringLiteral("a_b"), [] {}}};
    const BusMenuNode menu = tray->menu();
    EXPECT_EQ(utf8(menu.properties.value(QStringLiteral("children-display")).toString()),
              "submenu");
    ASSERT_EQ(menu.children.size(), 3);
    EXPECT_FALSE(menu.children[0].properties.value(QStringLiteral("enabled")).toBool());
    EXPECT_EQ(utf8(menu.children[1].properties.value(QStringLiteral("type")).toString()),
              "separator");
    EXPECT_TRUE(menu.children[2].properties.value(QStringLiteral("enabled")).toBool());
    EXPECT_EQ(labels(), (std::vector<std::string>{"CPU  1%", "", "a__b"}));
    entries[0].title = QStringLiteral("CPU  2%");
    EXPECT_EQ(labels().front(), "CPU  2%");
}

TEST_F(NotifierItemTest, TellsAboutToShowWhetherAnythingHasChanged) {
    const auto isChanged = [this] {
        return tray
            ->ask(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"),
                  QStringLiteral("AboutToShow"), {0})
            .arguments()
            .value(0)
            .toBool();
    };
    entries = {{QStringLiteral("CPU  1%"), {}}};
    EXPECT_TRUE(isChanged());
    EXPECT_FALSE(isChanged());
    entries[0].title = QStringLiteral("CPU  2%");
    EXPECT_TRUE(isChanged());
}

TEST_F(NotifierItemTest, AChangeOfTheMenuThatOneReaderFindsIsToldToAll) {
    entries = {{QStringLiteral("CPU  —"), {}}};
    tray->menu();
    QTimer heard;
    QDBusConnection other = QDBusConnection::connectToBus(bus.address(), QStringLiteral("other"));
    ASSERT_TRUE(other.connect({}, QStringLiteral("/MenuBar"),
                              QStringLiteral("com.canonical.dbusmenu"),
                              QStringLiteral("LayoutUpdated"), &heard, SLOT(start())));
    tray->menu();
    settleEvents();
    EXPECT_FALSE(heard.isActive()) << "nothing has changed";
    entries[0].title = QStringLiteral("CPU  1%");
    tray->menu();
    EXPECT_TRUE(handleEventsUntil([&] { return heard.isActive(); }));
    QDBusConnection::disconnectFromBus(QStringLiteral("other"));
}

TEST_F(NotifierItemTest, AnEntryThatIsChosenIsDoneAndMayTakeTheItemAway) {
    int done = 0;
    entries = {{QStringLiteral("Figure"), {}}, {QStringLiteral("Do"), [&] {
                                                    ++done;
                                                    item.reset();
                                                }}};
    EXPECT_TRUE(tray->choose(QStringLiteral("Figure")));
    EXPECT_TRUE(tray->choose(QStringLiteral("Do")));
    ASSERT_TRUE(handleEventsUntil([&] { return done == 1; }));
    EXPECT_TRUE(handleEventsUntil([&] { return tray->items().isEmpty(); }));
    EXPECT_TRUE(bar->isAvailable());
    makeItem();
    EXPECT_TRUE(bar->isAvailable());
    EXPECT_TRUE(hasItem());
}

TEST_F(NotifierItemTest, SeveralEntriesAreReadAndChosenTogether) {
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    const auto ask = [this](const char* method, const QVariantList& arguments) {
        return tray
            ->ask(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"),
                  QString::fromLatin1(method), arguments)
            .arguments();
    };
    int done = 0;
    entries = {{QStringLiteral("Figure"), {}}, {QStringLiteral("Do"), [&] { ++done; }}};
    const auto changed = ask("AboutToShowGroup", {QVariant::fromValue(QList<int>{0})});
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(qdbus_cast<QList<int>>(changed[0]), QList<int>{0});
    const auto some =
        ask("GetGroupProperties", {QVariant::fromValue(QList<int>{2, 9}), QStringList()});
    ASSERT_EQ(some.size(), 1);
    const auto found = qdbus_cast<QList<BusMenuEntry>>(some[0]);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].id, 2);
    EXPECT_EQ(utf8(found[0].properties.value(QStringLiteral("label")).toString()), "Do");
    const QList<MenuEvent> events{{2, QStringLiteral("hovered")},
                                  {2, QStringLiteral("clicked")},
                                  {9, QStringLiteral("clicked")}};
    const auto unknown = ask("EventGroup", {QVariant::fromValue(events)});
    ASSERT_EQ(unknown.size(), 1);
    EXPECT_EQ(qdbus_cast<QList<int>>(unknown[0]), QList<int>{9});
    ASSERT_TRUE(handleEventsUntil([&] { return done > 0; }));
    EXPECT_EQ(done, 1);
}

TEST_F(NotifierItemTest, APressTellsWhereItWas) {
    const QPoint place = QGuiApplication::primaryScreen()->geometry().center();
    tray->activate(place);
    ASSERT_TRUE(handleEventsUntil([&] { return presses.size() == 1; }));
    EXPECT_EQ(presses.back(), QRect(place, QSize(1, 1)));
}

TEST_F(NotifierItemTest, APressThatSaysNoPlaceOnTheScreenWasWhereThePointerIs) {
    const QPoint pointer(210, 120);
    QCursor::setPos(pointer);
    ASSERT_EQ(QCursor::pos(), pointer);
    for (const QPoint place : {QPoint(0, 0), QPoint(-30'000, 4)}) {
        presses.clear();
        tray->activate(place);
        ASSERT_TRUE(handleEventsUntil([&] { return presses.size() == 1; }));
        EXPECT_EQ(presses.back(), QRect(pointer, QSize(1, 1)));
    }
}

TEST_F(NotifierItemTest, OtherWaysToPressItDoNothingAndNoiseIsRefused) {
    constexpr auto itemPath = "/StatusNotifierItem";
    constexpr auto itemInterface = "org.kde.StatusNotifierItem";
    constexpr auto menuInterface = "com.canonical.dbusmenu";
    entries = {{QStringLiteral("Figure"), {}}};
    EXPECT_FALSE(isRefused(itemPath, itemInterface, "SecondaryActivate", {4, 5}));
    EXPECT_FALSE(isRefused(itemPath, itemInterface, "ContextMenu", {4, 5}));
    EXPECT_FALSE(isRefused(itemPath, itemInterface, "Scroll", {4, QStringLiteral("vertical")}));
    EXPECT_TRUE(isRefused(itemPath, itemInterface, "Activate", {QStringLiteral("here")}));
    EXPECT_TRUE(isRefused(itemPath, itemInterface, "Dance"));
    EXPECT_TRUE(isRefused("/MenuBar", menuInterface, "AboutToShow", {7}));
    EXPECT_TRUE(isRefused("/MenuBar", menuInterface, "AboutToShow", {-1}));
    EXPECT_TRUE(isRefused("/MenuBar", menuInterface, "GetLayout", {}));
    EXPECT_TRUE(isRefused("/MenuBar", menuInterface, "GetProperty", {0, QStringLiteral("no")}));
    EXPECT_TRUE(presses.empty());
}

TEST_F(NotifierItemTest, DescribesItself) {
    const auto describes = [this](const char* path, const char* interface) {
        return tray
            ->ask(QString::fromLatin1(path), QStringLiteral("org.freedesktop.DBus.Introspectable"),
                  QStringLiteral("Introspect"))
            .arguments()
            .value(0)
            .toString()
            .contains(
                QStringLiteral("<interface name=\"%1\">").arg(QString::fromLatin1(interface)));
    };
    EXPECT_TRUE(describes("/StatusNotifierItem", "org.kde.StatusNotifierItem"));
    EXPECT_TRUE(describes("/MenuBar", "com.canonical.dbusmenu"));
}

}  // namespace
}  // namespace vantor::notifier_item_test
