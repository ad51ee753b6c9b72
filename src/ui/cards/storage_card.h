#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "model/volume_stats.h"
#include "platform/platform_words.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/volume_view.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/empty_state_view.h"

namespace vantor {

/// What the storage's card shows, borrowed from the published state. Two are equal when their
/// revisions are.
struct StorageCard {
    /// More would push everything below out of sight; the first ones are the machine's own.
    static constexpr std::size_t maxVolumes = 7;

    std::span<const VolumeStats> volumes;
    std::uint64_t revision = 0;
    bool isWaiting = true;  ///< not read yet: whether there are any is unknown

    static StorageCard of(const DashboardState& state);

    bool operator==(const StorageCard& other) const {
        return revision == other.revision && isWaiting == other.isWaiting;
    }

    DashboardCard frame() const;
    std::span<const VolumeStats> shownVolumes() const;
    static EmptyState emptyState(const PlatformWords& words);
};

/// Draws the card.
class StorageCardView : public DashboardCardView {
  public:
    explicit StorageCardView(const PlatformWords& words, QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const StorageCard& card);

    EmptyStateView& emptyState() { return *emptyState_; }
    std::size_t volumeCount() const { return count_; }
    VolumeView& volume(std::size_t index) { return *volumes_.at(index); }

  private:
    EmptyStateView* emptyState_ = nullptr;  // all owned by this widget, as its children
    QVBoxLayout* list_ = nullptr;
    std::vector<VolumeView*> volumes_;  // the first ones are shown
    std::size_t count_ = 0;
    std::uint64_t revision_ = 0;
    bool isWaiting_ = true;
};

}  // namespace vantor
