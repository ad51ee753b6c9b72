#include "settings/login_item.h"

#include <utility>

#include "settings/autostart_entry.h"

namespace vantor {

namespace {

std::string problemOf(const std::string& opening, std::string reason) {
    if (!reason.empty() && reason.front() >= 'A' && reason.front() <= 'Z')
        reason.front() = static_cast<char>(reason.front() - 'A' + 'a');
    return opening + reason;
}

LoginState readEntry(SharedFile& entry) {
    const auto reading = entry.read(AutostartEntry::largest);
    if (reading.error) return {false, problemOf("Not known: ", reading.error->description)};
    return {reading.bytes && AutostartEntry::opens(*reading.bytes), {}};
}

std::optional<DescribedError> changeEntry(SharedFile& entry, bool isOn,
                                          const std::function<std::string()>& program) {
    if (!isOn) return entry.remove();
    const auto text = AutostartEntry::textFor(program());
    if (!text) return DescribedError{"The program's own file has no name that can be kept."};
    return entry.write(*text);
}

}  // namespace

std::shared_ptr<LoginItem> LoginItem::make(Environment environment) {
    struct Made : LoginItem {
        explicit Made(Environment given) : LoginItem(std::move(given)) {}
    };
    return std::make_shared<Made>(std::move(environment));
}

LoginItem::~LoginItem() {
    stopWatching();
}

void LoginItem::look() {
    if (queue_) {
        looksAgain_ = true;
    } else {
        begin(std::nullopt);
    }
}

void LoginItem::set(bool isOn) {
    watchSlowness();
    if (queue_) {
        change_ = isOn;
    } else {
        begin(isOn);
    }
}

void LoginItem::begin(std::optional<bool> change) {
    queue_ = environment_.queues->makeQueue("com.kestrone.Vantor.login");
    // A task that hangs outlives this object: it owns what it needs.
    queue_->submit([change, entry = environment_.entry, program = environment_.program,
                    loop = environment_.mainLoop, self = weak_from_this()] {
        std::optional<DescribedError> error;
        if (change) error = changeEntry(*entry, *change, program);
        LoginState found = readEntry(*entry);
        if (error) found.problem = problemOf("Not changed: ", error->description);
        loop->post([self, found = std::move(found)] {
            if (const auto item = self.lock()) item->takeUp(found);
        });
    });
}

void LoginItem::takeUp(const LoginState& found) {
    queue_ = nullptr;
    const bool looksAgain = std::exchange(looksAgain_, false);
    if (const auto change = std::exchange(change_, std::nullopt)) return begin(change);
    stopWatching();
    state_.set(found);
    // What failed stays said until something new is known.
    if (looksAgain && found.problem.empty()) begin(std::nullopt);
}

void LoginItem::watchSlowness() {
    if (slownessTimer_) return;
    slownessTimer_ = environment_.mainLoop->runAfter(slowness, [self = weak_from_this()] {
        const auto item = self.lock();
        if (!item) return;
        item->slownessTimer_ = 0;
        item->state_.set({item->state_.value().isOn, "Not changed yet: the disk does not answer."});
    });
}

void LoginItem::stopWatching() {
    if (slownessTimer_) environment_.mainLoop->cancel(std::exchange(slownessTimer_, 0));
}

}  // namespace vantor
