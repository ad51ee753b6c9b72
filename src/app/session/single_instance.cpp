#include "app/session/single_instance.h"

#include <QDeadlineTimer>

#include <utility>

#include "app/session/local_claim.h"
#include "app/session/session_bus_claim.h"
#include "app/session/session_places.h"

namespace vantor {

SingleInstance::Surroundings SingleInstance::Surroundings::ofProcess() {
    return {sessionBusAddress(), privateRuntimeFolder(), displayName()};
}

SingleInstance::SingleInstance(const QString& activationToken, const Surroundings& surroundings)
    : role_(claim(checkedToken(activationToken), surroundings)) {}

SingleInstance::~SingleInstance() = default;

SingleInstance::Role SingleInstance::claim(const QString& token, const Surroundings& surroundings) {
    const QDeadlineTimer deadline(surroundings.patience);
    const auto onActivate = [this](const QString& received) { activate(received); };
    auto outcome = ClaimOutcome::unavailable;
    if (!surroundings.runtimeFolder.isEmpty()) {
        local_ = std::make_unique<LocalClaim>(surroundings.runtimeFolder, surroundings.display,
                                              onActivate);
        outcome = local_->claim(token, deadline);
        if (outcome == ClaimOutcome::handedOver) return Role::second;
    }
    if (!surroundings.busAddress.isEmpty()) {
        bus_ = std::make_unique<SessionBusClaim>(surroundings.busAddress, onActivate);
        // A program that has not answered here will not answer there.
        if (outcome != ClaimOutcome::noAnswer &&
            bus_->claim(token, deadline) == ClaimOutcome::handedOver) {
            bus_.reset();
            local_.reset();
            return Role::second;
        }
        bus_->hold();
    }
    localRetry_.setSingleShot(true);
    localRetry_.setTimerType(Qt::VeryCoarseTimer);
    QObject::connect(&localRetry_, &QTimer::timeout, &localRetry_, [this] { holdLocally(); });
    if (local_ && outcome != ClaimOutcome::owned) localRetry_.start(localBackOff_.next());
    return Role::first;
}

void SingleInstance::holdLocally() {
    if (local_->take() != ClaimOutcome::owned) localRetry_.start(localBackOff_.next());
}

void SingleInstance::setOnActivate(OnActivate onActivate) {
    onActivate_ = std::move(onActivate);
    if (onActivate_ && waiting_) onActivate_(*std::exchange(waiting_, nullptr));
}

void SingleInstance::activate(const QString& token) {
    if (onActivate_) {
        onActivate_(token);
    } else {
        waiting_ = std::make_unique<QString>(token);
    }
}

}  // namespace vantor
