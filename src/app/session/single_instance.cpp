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

SingleInstance::SingleInstance(const Activation& activation, const Surroundings& surroundings)
    : role_(claim({activation.action, checkedToken(activation.token)}, surroundings)) {}

SingleInstance::~SingleInstance() = default;

SingleInstance::Role SingleInstance::claim(const Activation& activation,
                                           const Surroundings& surroundings) {
    const QDeadlineTimer deadline(surroundings.patience);
    const auto onActivate = [this](const Activation& received) { activate(received); };
    auto outcome = ClaimOutcome::unavailable;
    if (!surroundings.runtimeFolder.isEmpty()) {
        local_ = std::make_unique<LocalClaim>(surroundings.runtimeFolder, surroundings.display,
                                              onActivate);
        outcome = local_->claim(activation, deadline);
        if (outcome == ClaimOutcome::handedOver) return Role::second;
    }
    if (!surroundings.busAddress.isEmpty()) {
        bus_ = std::make_unique<SessionBusClaim>(surroundings.busAddress, onActivate);
        // A program that has not answered here will not answer there.
        if (outcome != ClaimOutcome::noAnswer &&
            bus_->claim(activation, deadline) == ClaimOutcome::handedOver) {
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
    if (!onActivate_) return;
    for (const Activation& activation : std::exchange(waiting_, {}))
        onActivate_(activation);
}

void SingleInstance::activate(const Activation& activation) {
    constexpr std::size_t most = 16;
    if (onActivate_) {
        onActivate_(activation);
    } else if (waiting_.size() < most) {
        waiting_.push_back(activation);
    }
}

}  // namespace vantor
