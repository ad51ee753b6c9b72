#pragma once

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

#include "platform/main_loop.h"
#include "platform/process_info.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/empty_state_view.h"
#include "ui/components/segmented_picker.h"
#include "ui/explorer/filter_field.h"
#include "ui/explorer/process_explorer.h"
#include "ui/explorer/process_table_view.h"

class QStackedLayout;

namespace vantor {

/// The wide card with the running processes: sorted by processor or memory, and filtered by what
/// the user types. Sort, filter and the chosen row survive every refresh. Main thread.
class ProcessExplorerView : public DashboardCardView {
  public:
    /// How long the filter waits for the next keystroke: longer than between two keystrokes of a
    /// quick typist, too short to be noticed.
    static constexpr std::chrono::milliseconds filterDelay{150};

    /// `mainLoop` lets time pass between a keystroke and the search.
    ProcessExplorerView(const ProcessInfo& versions, std::shared_ptr<MainLoop> mainLoop,
                        QWidget* parent = nullptr);
    ~ProcessExplorerView() override;

    /// Shows the processes unless they are shown already. What they are borrowed from must outlive
    /// the call that shows the next ones.
    void show(const ProcessExplorer& explorer);

    SortMode sortMode() const { return sortMode_; }
    const QString& query() const { return query_; }
    const QString& debouncedQuery() const { return debouncedQuery_; }

    /// Gives the filter the focus and scrolls it into view.
    void focusFilter();

    FilterField& filter() { return *filter_; }
    SegmentedPicker& picker() { return *picker_; }
    ProcessTableView& table() { return *table_; }
    EmptyStateView& emptyState() { return *emptyState_; }
    bool isEmptyStateShown() const;

  private:
    void build(const ProcessInfo& versions);
    void addShortcuts();
    void setQuery(const QString& query);
    void applyQuery();
    void cancelDebounce();
    void refresh();

    std::shared_ptr<MainLoop> mainLoop_;
    ProcessExplorer explorer_;
    SortMode sortMode_ = SortMode::cpu;
    QString query_;
    QString debouncedQuery_;
    std::optional<MainLoop::TimerID> debounce_;
    FilterField* filter_ = nullptr;  // all owned by this widget, as its children
    SegmentedPicker* picker_ = nullptr;
    QStackedLayout* content_ = nullptr;
    ProcessTableView* table_ = nullptr;
    EmptyStateView* emptyState_ = nullptr;
};

}  // namespace vantor
