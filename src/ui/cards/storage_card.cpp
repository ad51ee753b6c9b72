#include "ui/cards/storage_card.h"

#include <algorithm>

#include "ui/components/make_child.h"
#include "ui/core_words.h"
#include "ui/theme.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr int volumeSpacing = 14;

}  // namespace

StorageCard StorageCard::of(const DashboardState& state) {
    return {state.snapshot.volumes, state.revisions.storage, !state.answered.volumes};
}

DashboardCard StorageCard::frame() const {
    const QString subtitle = isWaiting ? translate("StorageCard", "Waiting for storage data")
                                       : translate("StorageCard", "%Ln mounted volume(s)", nullptr,
                                                   countForPlural(volumes.size()));
    return {//: the title of the card
            translate("StorageCard", "Storage"), subtitle, QStringLiteral("internaldrive"),
            VantorTheme::blue()};
}

std::span<const VolumeStats> StorageCard::shownVolumes() const {
    return volumes.first(std::min(volumes.size(), maxVolumes));
}

EmptyState StorageCard::emptyState(const PlatformWords& words) {
    return {
        //: there is no disk to be shown
        translate("StorageCard", "No Volumes"), QStringLiteral("externaldrive.badge.questionmark"),
        wordedForPeople(words.noVolumesMessage)};
}

StorageCardView::StorageCardView(const PlatformWords& words, QWidget* parent)
    : DashboardCardView(StorageCard{}.frame(), parent),
      emptyState_(makeChild<EmptyStateView>(this, StorageCard::emptyState(words))),
      list_(makeInnerLayout<QVBoxLayout>()) {
    // Before the first list it is not known that there is none.
    emptyState_->setVisible(false);
    body().addWidget(emptyState_);
    list_->setSpacing(volumeSpacing);
    body().addLayout(list_);
    body().addStretch();
}

void StorageCardView::show(const StorageCard& card) {
    if (card.revision == revision_ && card.isWaiting == isWaiting_) return;
    revision_ = card.revision;
    isWaiting_ = card.isWaiting;
    showCard(card.frame());
    const auto shown = card.shownVolumes();
    emptyState_->setVisible(shown.empty() && !card.isWaiting);
    while (volumes_.size() < shown.size()) {
        volumes_.push_back(makeChild<VolumeView>(this));
        list_->addWidget(volumes_.back());
    }
    for (std::size_t i = 0; i < volumes_.size(); ++i) {
        if (i < shown.size()) volumes_[i]->show(shown[i]);
        volumes_[i]->setVisible(i < shown.size());
    }
    count_ = shown.size();
}

}  // namespace vantor
