#include "app/window/window_geometry.h"

#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

#include "app/window/window_system.h"

namespace vantor {

namespace {

// A window manager reports first the size and then the state, or the other way round. Until both
// are known, the size of a maximised window looks like that of a normal one.
constexpr std::chrono::milliseconds settleTime{200};

bool isSamePlace(const WindowPlacement& one, const WindowPlacement& other) {
    return one.position == other.position && one.size == other.size &&
           one.isMaximized == other.isMaximized;
}

QMargins frameOf(const QWidget& window) {
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

std::optional<WindowPlacement> storedUnder(const std::string& name, const DefaultsStore& store) {
    const auto value = store.value(name);
    const auto* const text = value ? std::get_if<std::string>(&*value) : nullptr;
    return text ? WindowPlacement::fromText(*text) : std::nullopt;
}

}  // namespace

WindowGeometry::Surroundings WindowGeometry::Surroundings::ofToolkit() {
    const auto availableAreas = [] {
        std::vector<QRect> areas;
        for (const QScreen* const screen : QGuiApplication::screens())
            areas.push_back(screen->availableGeometry());
        return areas;
    };
    return {availableAreas, !isWayland()};
}

QString WindowGeometry::fileBeside(const QString& settingsFile) {
    return QFileInfo(settingsFile).path() + QStringLiteral("/windows.ini");
}

WindowGeometry::WindowGeometry(QWidget& window, std::string name,
                               std::shared_ptr<DefaultsStore> store,
                               std::shared_ptr<MainLoop> mainLoop, Surroundings surroundings)
    : window_(&window),
      name_(std::move(name)),
      store_(std::move(store)),
      mainLoop_(std::move(mainLoop)),
      surroundings_(std::move(surroundings)),
      stored_(storedUnder(name_, *store_)) {
    current_.size = window.size();
    chosen_ = current_;
    restore();
    window.installEventFilter(this);
}

WindowGeometry::~WindowGeometry() {
    save();
    if (settleTimer_) mainLoop_->cancel(settleTimer_);
    if (window_) window_->removeEventFilter(this);
}

void WindowGeometry::restore() {
    if (!stored_) return;
    const WindowPlacement place = fitted(*stored_);
    apply(place);
    if (place.isMaximized) window_->setWindowState(window_->windowState() | Qt::WindowMaximized);
}

/// The screens may have changed while the window was hidden.
void WindowGeometry::refit() {
    if (window_->isMaximized() || window_->isFullScreen()) return;
    const bool isChosen = stored_ && chosen_ && isSamePlace(current_, *chosen_);
    const WindowPlacement& wish = isChosen ? *stored_ : current_;
    const WindowPlacement place = fitted(wish);
    if (!isSamePlace(place, current_)) apply(place);
}

WindowPlacement WindowGeometry::fitted(const WindowPlacement& wish) const {
    WindowPlacement place = wish;
    if (!surroundings_.tellsPositions) place.position.reset();
    place = place.fittedTo(surroundings_.availableAreas(), window_->minimumSize());
    if (!surroundings_.tellsPositions) place.position = wish.position;
    return place;
}

void WindowGeometry::apply(const WindowPlacement& placement) {
    current_ = placement;
    chosen_ = placement;
    if (placement.position && surroundings_.tellsPositions) {
        window_->setGeometry(QRect(*placement.position, placement.size));
    } else {
        window_->resize(placement.size);
    }
}

bool WindowGeometry::eventFilter(QObject* watched, QEvent* event) {
    if (watched != window_) return false;
    switch (event->type()) {
        case QEvent::Show:
            // A spontaneous one: the window was iconified.
            if (event->spontaneous()) break;
            refit();
            isShown_ = true;
            break;
        case QEvent::Hide:
            if (event->spontaneous()) break;
            save();
            isShown_ = false;
            break;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            noteChange();
            break;
        default:
            break;
    }
    return false;
}

void WindowGeometry::noteChange() {
    if (!isShown_) return;
    if (settleTimer_) {
        hasChangedAgain_ = true;
    } else {
        settleTimer_ = mainLoop_->runAfter(settleTime, [this] { settle(); });
    }
}

void WindowGeometry::settle() {
    settleTimer_ = 0;
    if (std::exchange(hasChangedAgain_, false)) {
        noteChange();
        return;
    }
    look();
    if (isWorthWriting() && !writeTimer_) {
        writeTimer_ = mainLoop_->runAfter(writeInterval, [this] {
            writeTimer_ = 0;
            save();
        });
    }
}

void WindowGeometry::look() {
    if (!window_ || !isShown_) return;
    const Qt::WindowStates state = window_->windowState();
    if (state & (Qt::WindowMinimized | Qt::WindowFullScreen)) return;
    current_.isMaximized = state.testFlag(Qt::WindowMaximized);
    if (current_.isMaximized) return;
    current_.size = window_->size();
    if (!surroundings_.tellsPositions) return;
    current_.position = window_->geometry().topLeft();
    current_.frame = frameOf(*window_);
}

bool WindowGeometry::isWorthWriting() const {
    return !(stored_ && isSamePlace(current_, *stored_)) &&
           !(chosen_ && isSamePlace(current_, *chosen_));
}

void WindowGeometry::save() {
    if (writeTimer_) mainLoop_->cancel(std::exchange(writeTimer_, 0));
    look();
    if (!isWorthWriting()) return;
    store_->setValue(name_, current_.text());
    stored_ = current_;
    chosen_.reset();
}

}  // namespace vantor
