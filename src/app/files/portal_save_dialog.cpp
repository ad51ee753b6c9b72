#include "app/files/portal_save_dialog.h"

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QUuid>

#include <atomic>
#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

namespace {

const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto chooserInterface = QStringLiteral("org.freedesktop.portal.FileChooser");
const auto requestInterface = QStringLiteral("org.freedesktop.portal.Request");

using PortalEnd = PortalSaveDialog::Outcome::Kind;

/// The path of a request, so that one can subscribe before it is made.
QString expectedHandle(const QString& connection, const QString& token) {
    QString sender = connection;
    sender.remove(u':').replace(u'.', u'_');
    return portalPath + QStringLiteral("/request/%1/%2").arg(sender, token);
}

int valueOfDigit(QChar c) {
    const ushort digit = c.toLower().unicode();
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

/// Absent where the encoding is malformed.
std::optional<std::string> bytesOfURIPath(const QString& text) {
    std::string bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'%') {
            bytes += text[i].unicode() < 0x80 ? std::string(1, text[i].toLatin1())
                                              : QString(text[i]).toStdString();
            continue;
        }
        const int high = i + 2 < text.size() ? valueOfDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? valueOfDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0 || (high == 0 && low == 0)) return std::nullopt;
        bytes += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return bytes;
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& out, const PortalPattern& pattern) {
    out.beginStructure();
    out << pattern.kind << pattern.text;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, PortalPattern& pattern) {
    in.beginStructure();
    in >> pattern.kind >> pattern.text;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const PortalFilter& filter) {
    out.beginStructure();
    out << filter.name << filter.patterns;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, PortalFilter& filter) {
    in.beginStructure();
    in >> filter.name >> filter.patterns;
    in.endStructure();
    return in;
}

std::optional<std::filesystem::path> fileOfURI(const QString& uri) {
    const auto scheme = QStringLiteral("file://");
    if (!uri.startsWith(scheme, Qt::CaseInsensitive)) return std::nullopt;
    QString rest = uri.sliced(scheme.size());
    const auto host = QStringLiteral("localhost/");
    if (rest.startsWith(host, Qt::CaseInsensitive)) rest.remove(0, host.size() - 1);
    if (!rest.startsWith(u'/')) return std::nullopt;
    const auto bytes = bytesOfURIPath(rest);
    if (!bytes || bytes->ends_with('/')) return std::nullopt;
    return std::filesystem::path(*bytes);
}

PortalSaveDialog::PortalSaveDialog(Request request, std::shared_ptr<PatientQuestions> questions,
                                   BusLine::Connect connect, std::chrono::milliseconds patience)
    : request_(std::move(request)),
      questions_(std::move(questions)),
      connect_(std::move(connect)),
      patience_(patience),
      token_(QStringLiteral("vantor_") + QUuid::createUuid().toString(QUuid::Id128)),
      response_([this](const QDBusMessage& message) { responded(message); }),
      lineEnd_([this](const QDBusMessage&) {
          end({PortalEnd::unavailable, {}});
      }) {
    qDBusRegisterMetaType<PortalPattern>();
    qDBusRegisterMetaType<QList<PortalPattern>>();
    qDBusRegisterMetaType<PortalFilter>();
    qDBusRegisterMetaType<QList<PortalFilter>>();
}

PortalSaveDialog::~PortalSaveDialog() {
    closeRequest();
}

void PortalSaveDialog::begin(std::function<void(const Outcome&)> onEnd) {
    onEnd_ = std::move(onEnd);
    connecting_ = questions_->ask<std::shared_ptr<BusLine>>(
        [connect = connect_, name = token_] { return std::make_shared<BusLine>(connect, name); },
        [this](const std::optional<std::shared_ptr<BusLine>>& line) {
            if (!line || !(*line)->bus().isConnected()) return end({PortalEnd::unavailable, {}});
            line_ = *line;
            askWhetherItIsThere();
        });
}

/// The desktop may have to start it first.
void PortalSaveDialog::askWhetherItIsThere() {
    auto question = QDBusMessage::createMethodCall(
        service(), portalPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << chooserInterface << QStringLiteral("version");
    auto* const answer = makeChild<QDBusPendingCallWatcher>(
        &context_, line_->bus().asyncCall(question, static_cast<int>(patience_.count())));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (!onEnd_) return;
        if (reply.isError()) return end({PortalEnd::unavailable, {}});
        portal_ = reply.reply().service();
        askForDialog();
    });
}

void PortalSaveDialog::askForDialog() {
    QDBusConnection& bus = line_->bus();
    portalEnd_.setConnection(bus);
    portalEnd_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    portalEnd_.addWatchedService(portal_);
    QObject::connect(&portalEnd_, &QDBusServiceWatcher::serviceUnregistered, &context_, [this] {
        end({PortalEnd::unavailable, {}});
    });
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                &lineEnd_, SLOT(arrive(QDBusMessage)));
    listenTo(expectedHandle(bus.baseService(), token_));

    auto question = QDBusMessage::createMethodCall(portal_, portalPath, chooserInterface,
                                                   QStringLiteral("SaveFile"));
    question << request_.parentWindow << request_.title << options();
    auto* const answer = makeChild<QDBusPendingCallWatcher>(
        &context_, bus.asyncCall(question, static_cast<int>(patience_.count())));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [this, answer] {
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        answer->deleteLater();
        if (!onEnd_) return;
        if (reply.isError()) return end({PortalEnd::unavailable, {}});
        handleIs(reply.value().path());
    });
}

QVariantMap PortalSaveDialog::options() const {
    QVariantMap all{{QStringLiteral("handle_token"), token_},
                    {QStringLiteral("modal"), false},
                    {QStringLiteral("current_name"), request_.proposedName}};
    if (!request_.folder.empty()) {
        // With the zero at its end, which a string of the bus would not have.
        const std::string& folder = request_.folder.native();
        all.insert(QStringLiteral("current_folder"),
                   QByteArray(folder.c_str(), static_cast<qsizetype>(folder.size()) + 1));
    }
    if (!request_.ending.isEmpty()) {
        const PortalFilter filter{request_.kind, {{0, QStringLiteral("*.") + request_.ending}}};
        all.insert(QStringLiteral("filters"), QVariant::fromValue(QList<PortalFilter>{filter}));
    }
    return all;
}

/// From any sender: to subscribe to one sender, the toolkit would wait for the bus to resolve its
/// name.
void PortalSaveDialog::listenTo(const QString& handle) {
    handle_ = handle;
    line_->bus().connect(QString(), handle, requestInterface, QStringLiteral("Response"),
                         QStringList(), QStringLiteral("ua{sv}"), &response_,
                         SLOT(arrive(QDBusMessage)));
}

/// Old portals, before request tokens, choose the paths of requests themselves.
void PortalSaveDialog::handleIs(const QString& handle) {
    if (handle == handle_) return;
    line_->bus().disconnect(QString(), handle_, requestInterface, QStringLiteral("Response"),
                            QStringList(), QStringLiteral("ua{sv}"), &response_,
                            SLOT(arrive(QDBusMessage)));
    listenTo(handle);
}

void PortalSaveDialog::responded(const QDBusMessage& message) {
    constexpr uint success = 0;
    constexpr uint cancelled = 1;
    const QVariantList arguments = message.arguments();
    if (message.service() != portal_ || message.path() != handle_ || arguments.size() != 2) return;
    handle_.clear();  // the request is over
    const uint response = arguments.constFirst().toUInt();
    if (response == cancelled) return end({PortalEnd::cancelled, {}});
    const auto results = qdbus_cast<QVariantMap>(arguments.constLast());
    const auto uris = qdbus_cast<QStringList>(results.value(QStringLiteral("uris")));
    const auto file = uris.isEmpty() ? std::nullopt : fileOfURI(uris.constFirst());
    if (response != success || !file) return end({PortalEnd::unavailable, {}});
    end({PortalEnd::chosen, *file});
}

void PortalSaveDialog::end(Outcome outcome) {
    closeRequest();
    if (const auto onEnd = std::exchange(onEnd_, {})) onEnd(outcome);
}

/// No dialog may appear later.
void PortalSaveDialog::closeRequest() {
    if (handle_.isEmpty()) return;
    const auto close = QDBusMessage::createMethodCall(portal_, std::exchange(handle_, {}),
                                                      requestInterface, QStringLiteral("Close"));
    line_->bus().send(close);
}

}  // namespace vantor
