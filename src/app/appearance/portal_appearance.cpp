#include "app/appearance/portal_appearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QUuid>

#include <optional>
#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

namespace {

const auto appearancePortal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto appearancePortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceNamespace = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");
const auto contrastKey = QStringLiteral("contrast");

/// Old portals wrap what they answer once more than their signals.
std::optional<uint> numberIn(QVariant value) {
    constexpr int mostWrappers = 4;
    for (int i = 0; i < mostWrappers && value.metaType() == QMetaType::fromType<QDBusVariant>();
         ++i)
        value = value.value<QDBusVariant>().variant();
    if (value.typeId() != QMetaType::UInt) return std::nullopt;
    return value.toUInt();
}

}  // namespace

PortalAppearance::PortalAppearance(std::shared_ptr<PatientQuestions> questions,
                                   BusLine::Connect connect)
    : questions_(std::move(questions)),
      connect_(std::move(connect)),
      change_([this](const QDBusMessage& message) { changed(message); }),
      lineEnd_([this](const QDBusMessage&) { tryLater(); }) {
    retry_.setSingleShot(true);
    QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { join(); });
    join();
}

PortalAppearance::~PortalAppearance() = default;

void PortalAppearance::join() {
    owner_.reset();
    line_.reset();
    const QString name =
        QStringLiteral("vantor_appearance_") + QUuid::createUuid().toString(QUuid::Id128);
    connecting_ = questions_->ask<std::shared_ptr<BusLine>>(
        [connect = connect_, name] { return std::make_shared<BusLine>(connect, name); },
        [this](const std::optional<std::shared_ptr<BusLine>>& line) {
            if (!line || !(*line)->bus().isConnected()) return tryLater();
            line_ = *line;
            backOff_ = BackOff();
            listen();
            ask();
        });
}

/// The connection stays until then: it must outlive its own signal.
void PortalAppearance::tryLater() {
    portal_.clear();
    answers_.reset();
    retry_.start(backOff_.next());
}

/// From any sender, see changed: to subscribe to one, the toolkit would wait for the bus.
void PortalAppearance::listen() {
    QDBusConnection& bus = line_->bus();
    bus.connect(QString(), appearancePortalPath, settingsInterface,
                QStringLiteral("SettingChanged"), &change_, SLOT(arrive(QDBusMessage)));
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                &lineEnd_, SLOT(arrive(QDBusMessage)));
    owner_ = std::make_unique<QDBusServiceWatcher>(appearancePortal, bus,
                                                   QDBusServiceWatcher::WatchForOwnerChange);
    QObject::connect(owner_.get(), &QDBusServiceWatcher::serviceOwnerChanged, owner_.get(),
                     [this](const QString&, const QString&, const QString& now) {
                         portal_.clear();
                         if (!now.isEmpty()) ask();
                     });
}

void PortalAppearance::ask() {
    answers_ = std::make_unique<QObject>();
    for (const QString& key : {colorSchemeKey, contrastKey})
        ask(key);
}

/// The desktop may have to start its portal first; whatever time that takes, nobody waits.
void PortalAppearance::ask(const QString& key) {
    auto question = QDBusMessage::createMethodCall(appearancePortal, appearancePortalPath,
                                                   settingsInterface, QStringLiteral("Read"));
    question << appearanceNamespace << key;
    auto* const answer =
        makeChild<QDBusPendingCallWatcher>(answers_.get(), line_->bus().asyncCall(question));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answers_.get(),
                     [this, answer, key] {
                         const QDBusPendingReply<QDBusVariant> reply = *answer;
                         answer->deleteLater();
                         if (reply.isError()) return;
                         portal_ = reply.reply().service();
                         takeUp(key, QVariant::fromValue(reply.value()));
                     });
}

void PortalAppearance::changed(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    const bool isOurs = !portal_.isEmpty() && message.service() == portal_ &&
                        message.signature() == u"ssv" &&
                        arguments.at(0).toString() == appearanceNamespace;
    if (isOurs) takeUp(arguments.at(1).toString(), arguments.at(2));
}

void PortalAppearance::takeUp(const QString& key, const QVariant& value) {
    constexpr uint dark = 1;
    constexpr uint light = 2;
    constexpr uint high = 1;
    const auto number = numberIn(value);
    if (!number) return;
    DesktopLook next = look_.value();
    if (key == colorSchemeKey) {
        using Scheme = DesktopLook::Scheme;
        next.scheme = *number == dark    ? Scheme::dark
                      : *number == light ? Scheme::light
                                         : Scheme::unknown;
    } else if (key == contrastKey) {
        next.hasHighContrast = *number == high;
    }
    if (next != look_.value()) look_.set(next);
}

}  // namespace vantor
