#pragma once

#include <QWidget>

#include <tuple>
#include <type_traits>

#include "platform/machine.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/make_child.h"

namespace vantor {

/// A card and the view that draws it.
template <class CardValue, class CardView>
struct CardEntry {
    using Value = CardValue;
    using View = CardView;
};

/// All of them, in the order in which the grid has them and the keys reach them.
using AllCards =
    std::tuple<CardEntry<CPUCard, CPUCardView>, CardEntry<MemoryCard, MemoryCardView>,
               CardEntry<NetworkCard, NetworkCardView>, CardEntry<GPUCard, GPUCardView>,
               CardEntry<StorageCard, StorageCardView>, CardEntry<SystemCard, SystemCardView>>;

/// The views of all cards: children of a widget that owns them and must outlive this.
class DashboardCards {
  public:
    static constexpr int count = std::tuple_size_v<AllCards>;

    /// The machine must outlive the widget.
    DashboardCards(QWidget* owner, Machine& machine) {
        forEach([&]<class Entry>(Entry, auto*& view) {
            view = make<typename Entry::View>(owner, machine);
        });
    }

    template <class View>
    View& get() const {
        return *std::get<View*>(views_);
    }

    void show(const DashboardState& state) {
        forEach([&]<class Entry>(Entry, auto* view) { view->show(Entry::Value::of(state)); });
    }

    /// Calls `visit` with each card's view, in their order.
    template <class Visit>
    void forEachView(Visit&& visit) {
        forEach([&](auto, QWidget* view) { visit(view); });
    }

  private:
    template <class... Entries>
    static std::tuple<typename Entries::View*...> viewsOf(std::tuple<Entries...>);

    template <class Visit>
    void forEach(Visit&& visit) {
        std::apply(
            [&](auto... entry) {
                (visit(entry, std::get<typename decltype(entry)::View*>(views_)), ...);
            },
            AllCards{});
    }

    /// A view asks for what it depends on in its constructor.
    template <class View>
    static View* make(QWidget* owner, Machine& machine) {
        View* view = nullptr;
        if constexpr (std::is_constructible_v<View, const ProcessInfo&, QWidget*>) {
            view = makeChild<View>(owner, machine.processInfo());
        } else if constexpr (std::is_constructible_v<View, const PlatformWords&, QWidget*>) {
            view = makeChild<View>(owner, machine.words());
        } else {
            view = makeChild<View>(owner);
        }
        const FigureMeanings& meanings = machine.words().meanings;
        if constexpr (requires { view->explain(meanings); }) view->explain(meanings);
        return view;
    }

    decltype(viewsOf(AllCards{})) views_;
};

}  // namespace vantor
