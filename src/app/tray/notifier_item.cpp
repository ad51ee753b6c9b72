#include "app/tray/notifier_item.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QtEndian>

#include <algorithm>
#include <utility>

#include "ui/components/make_child.h"
#include "ui/product_icon.h"

namespace vantor {

namespace {

const auto itemPath = QStringLiteral("/StatusNotifierItem");
const auto menuPath = QStringLiteral("/MenuBar");

// Milliseconds; a desktop's panel that is busy with its own start may take a while.
constexpr int watcherPatience = 10'000;
// Some watchers list an item only once they have read all of it.
constexpr int maxMissed = 5;

constexpr auto itemDescription =
    "    <property name=\"Category\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"Id\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"Title\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"Status\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"WindowId\" type=\"i\" access=\"read\"/>\n"
    "    <property name=\"IconThemePath\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"IconName\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"IconPixmap\" type=\"a(iiay)\" access=\"read\"/>\n"
    "    <property name=\"OverlayIconName\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"OverlayIconPixmap\" type=\"a(iiay)\" access=\"read\"/>\n"
    "    <property name=\"AttentionIconName\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"AttentionIconPixmap\" type=\"a(iiay)\" access=\"read\"/>\n"
    "    <property name=\"AttentionMovieName\" type=\"s\" access=\"read\"/>\n"
    "    <property name=\"ToolTip\" type=\"(sa(iiay)ss)\" access=\"read\"/>\n"
    "    <property name=\"ItemIsMenu\" type=\"b\" access=\"read\"/>\n"
    "    <property name=\"Menu\" type=\"o\" access=\"read\"/>\n"
    "    <method name=\"ContextMenu\">\n"
    "      <arg type=\"i\" name=\"x\" direction=\"in\"/>\n"
    "      <arg type=\"i\" name=\"y\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"Activate\">\n"
    "      <arg type=\"i\" name=\"x\" direction=\"in\"/>\n"
    "      <arg type=\"i\" name=\"y\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"SecondaryActivate\">\n"
    "      <arg type=\"i\" name=\"x\" direction=\"in\"/>\n"
    "      <arg type=\"i\" name=\"y\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"Scroll\">\n"
    "      <arg type=\"i\" name=\"delta\" direction=\"in\"/>\n"
    "      <arg type=\"s\" name=\"orientation\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <signal name=\"NewToolTip\"/>\n";

BusPixmap pixmapOf(const QIcon& icon, int side) {
    const QImage image =
        icon.pixmap(QSize(side, side), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    BusPixmap pixmap{image.width(), image.height(), {}};
    pixmap.bytes.reserve(image.sizeInBytes());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const quint32 pixel = qToBigEndian<quint32>(image.pixel(x, y));
            pixmap.bytes.append(reinterpret_cast<const char*>(&pixel), sizeof pixel);
        }
    }
    return pixmap;
}

/// The product's own tile: its light wave on a coloured background can be seen on light panels and
/// on dark ones, and a program cannot know which the panel is.
QList<BusPixmap> tile() {
    QList<BusPixmap> pixmaps;
    for (const int side : {16, 22, 24, 32, 48, 64})
        pixmaps.append(pixmapOf(productIcon(), side));
    return pixmaps;
}

/// Whether an entry of a watcher's list is of that name; some add the object's path.
bool isOf(const QString& entry, const QString& name) {
    return entry == name || entry.startsWith(name + u'/') || entry.startsWith(name + u'@');
}

QString nameOf(int number) {
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(number);
}

}  // namespace

QRect areaOfPress(QPoint point) {
    constexpr QSize spot(1, 1);
    // Desktops that do not know the place send this.
    if (!point.isNull()) {
        for (const QScreen* const screen : QGuiApplication::screens()) {
            const QRect area = screen->geometry();
            const qreal ratio = screen->devicePixelRatio();
            if (!QRect(area.topLeft(), (QSizeF(area.size()) * ratio).toSize()).contains(point))
                continue;
            const QPointF inside = QPointF(point - area.topLeft()) / ratio;
            return {area.topLeft() + inside.toPoint(), spot};
        }
    }
    return {QCursor::pos(), spot};
}

/// The object that the desktop reads and presses.
class NotifierItem::Face : public BusObject {
  public:
    explicit Face(NotifierItem& item)
        : BusObject(itemPath, QStringLiteral("org.kde.StatusNotifierItem"),
                    QString::fromLatin1(itemDescription)),
          item_(item),
          pixmaps_(tile()) {}

    bool wasRead() const { return wasRead_; }
    bool takeUnseenRead() { return std::exchange(wasReadSince_, false); }

  protected:
    QVariantMap properties() const override {
        wasRead_ = true;
        wasReadSince_ = true;
        const QString title = item_.content_.title;
        const auto none = QVariant::fromValue(QList<BusPixmap>());
        return {
            {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
            {QStringLiteral("Id"), QStringLiteral("vantor")},
            {QStringLiteral("Title"), title},
            {QStringLiteral("Status"), QStringLiteral("Active")},
            {QStringLiteral("WindowId"), 0},
            {QStringLiteral("IconThemePath"), QString()},
            {QStringLiteral("IconName"), QString()},
            {QStringLiteral("IconPixmap"), QVariant::fromValue(pixmaps_)},
            {QStringLiteral("OverlayIconName"), QString()},
            {QStringLiteral("OverlayIconPixmap"), none},
            {QStringLiteral("AttentionIconName"), QString()},
            {QStringLiteral("AttentionIconPixmap"), none},
            {QStringLiteral("AttentionMovieName"), QString()},
            {QStringLiteral("ToolTip"),
             QVariant::fromValue(BusToolTip{
                 {}, {}, title, item_.content_.toolTip ? item_.content_.toolTip() : QString()})},
            {QStringLiteral("ItemIsMenu"), false},
            {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(menuPath))}};
    }

    std::optional<QVariantList> call(const QString& method, const QString& signature,
                                     const QVariantList& arguments) override {
        const bool isAtPoint = signature == u"ii";
        if (isAtPoint && method == u"Activate") {
            const QPoint point(arguments.at(0).toInt(), arguments.at(1).toInt());
            // In a turn of its own, as a press may take the item away.
            QMetaObject::invokeMethod(
                &item_.context_, [this, point] { item_.content_.onPress(areaOfPress(point)); },
                Qt::QueuedConnection);
            return QVariantList();
        }
        // Desktops draw the menu themselves; the other ways to press it mean nothing here.
        const bool isNothing =
            (isAtPoint && (method == u"ContextMenu" || method == u"SecondaryActivate")) ||
            (method == u"Scroll" && signature == u"is");
        if (isNothing) return QVariantList();
        return std::nullopt;
    }

  private:
    NotifierItem& item_;
    QList<BusPixmap> pixmaps_;
    mutable bool wasRead_ = false;
    mutable bool wasReadSince_ = false;  // the last signal
};

QString NotifierItem::watcherService() {
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString NotifierItem::watcherPath() {
    return QStringLiteral("/StatusNotifierWatcher");
}

NotifierItem::NotifierItem(const BusConnector& connect, int number, StatusItemContent content,
                           std::function<void()> onDecided)
    : content_(std::move(content)),
      onDecided_(std::move(onDecided)),
      name_(nameOf(number)),
      bus_(connect(name_)),
      menu_(
          menuPath, [this] { return content_.menu(); },
          [this](const QDBusMessage& signal) { bus_.send(signal); }) {
    qDBusRegisterMetaType<BusPixmap>();
    qDBusRegisterMetaType<QList<BusPixmap>>();
    qDBusRegisterMetaType<BusToolTip>();
    face_ = std::make_unique<Face>(*this);
    bus_.registerVirtualObject(itemPath, face_.get());
    bus_.registerVirtualObject(menuPath, &menu_);
    // After the objects, so that the name is never there without them.
    bus_.registerService(name_);
    ask();
}

NotifierItem::~NotifierItem() {
    bus_.unregisterObject(itemPath);
    bus_.unregisterObject(menuPath);
    QDBusConnection::disconnectFromBus(name_);
}

void NotifierItem::ask() {
    isAsking_ = true;
    auto question =
        QDBusMessage::createMethodCall(watcherService(), watcherPath(), watcherService(),
                                       QStringLiteral("RegisterStatusNotifierItem"));
    question << name_;
    question.setAutoStartService(false);
    auto* answer =
        makeChild<QDBusPendingCallWatcher>(&context_, bus_.asyncCall(question, watcherPatience));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [this, answer] {
        const QDBusPendingReply<> reply = *answer;
        answer->deleteLater();
        isAsking_ = false;
        hasAnswered_ = !reply.isError();
        if (hasAnswered_) {
            look();
        } else if (reply.error().type() != QDBusError::NoReply) {
            decide(Standing::refused);
        }
    });
}

/// A watcher may confirm an item and do nothing. One without a list is believed, and one that has
/// read the item has it, whatever it lists.
void NotifierItem::look() {
    if (isAsking_ || standing_ != Standing::asked) return;
    if (!hasAnswered_) {
        ask();  // that was too busy to answer
        return;
    }
    isAsking_ = true;
    auto question = QDBusMessage::createMethodCall(
        watcherService(), watcherPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << watcherService() << QStringLiteral("RegisteredStatusNotifierItems");
    question.setAutoStartService(false);
    auto* answer =
        makeChild<QDBusPendingCallWatcher>(&context_, bus_.asyncCall(question, watcherPatience));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        isAsking_ = false;
        const QStringList listed =
            reply.isError() ? QStringList() : reply.value().variant().toStringList();
        const bool isListed = std::ranges::any_of(listed, [this](const QString& one) {
            return isOf(one, name_) || isOf(one, bus_.baseService());
        });
        if (reply.isError() || isListed || face_->wasRead()) {
            decide(Standing::taken);
        } else if (++missed_ >= maxMissed) {
            decide(Standing::refused);
        }
    });
}

void NotifierItem::toolTipChanged() {
    if (!face_->takeUnseenRead()) return;
    bus_.send(QDBusMessage::createSignal(itemPath, QStringLiteral("org.kde.StatusNotifierItem"),
                                         QStringLiteral("NewToolTip")));
}

void NotifierItem::decide(Standing standing) {
    standing_ = standing;
    onDecided_();
}

}  // namespace vantor
