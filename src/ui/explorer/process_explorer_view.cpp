#include "ui/explorer/process_explorer_view.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QStackedLayout>

#include <algorithm>

#include "ui/cards/process_mini_list.h"
#include "ui/components/make_child.h"
#include "ui/components/reveal.h"
#include "ui/explorer/process_columns.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int processExplorerControlSpacing = 12;

DashboardCard explorerFrame() {
    return {//: the title of the card
            translate("ProcessExplorer", "Process Explorer"),
            translate("ProcessExplorer", "Live process activity"),
            QStringLiteral("list.bullet.rectangle"), VantorTheme::cyan()};
}

/// Reaches into the card's padding on both sides: the chosen row's background is wider than its
/// texts, which begin and end where all else in the card does.
class OutdentedStack : public QStackedLayout {
  public:
    void setGeometry(const QRect& area) override {
        QStackedLayout::setGeometry(area.adjusted(-outdent, 0, outdent, 0));
    }
    QSize sizeHint() const override { return QStackedLayout::sizeHint() - both; }
    QSize minimumSize() const override { return QStackedLayout::minimumSize() - both; }

  private:
    static constexpr int outdent = static_cast<int>(ProcessColumns::sideInset);
    static constexpr QSize both{2 * outdent, 0};
};

}  // namespace

ProcessExplorerView::ProcessExplorerView(const ProcessInfo& versions,
                                         std::shared_ptr<MainLoop> mainLoop, QWidget* parent)
    : DashboardCardView(explorerFrame(), parent), mainLoop_(std::move(mainLoop)) {
    build(versions);
    addShortcuts();
    refresh();
}

ProcessExplorerView::~ProcessExplorerView() {
    cancelDebounce();
}

void ProcessExplorerView::build(const ProcessInfo& versions) {
    auto* controls = makeInnerLayout<QHBoxLayout>();
    controls->setSpacing(processExplorerControlSpacing);
    filter_ = makeChild<FilterField>(this,
                                     //: shown in an empty field that is typed into
                                     translate("ProcessExplorer", "Filter processes"));
    filter_->setMaximumWidth(Typography::scaled(FilterField::widest));
    connect(filter_, &QLineEdit::textChanged, this,
            [this](const QString& text) { setQuery(text); });
    controls->addWidget(filter_, 1);
    controls->addStretch();
    QStringList labels;
    for (const SortMode mode : allSortModes)
        labels << sortModeLabel(mode);
    const auto onChange = [this](int choice) {
        sortMode_ = allSortModes.at(static_cast<std::size_t>(choice));
        table_->showSort(sortMode_);
        refresh();
    };
    picker_ = makeChild<SegmentedPicker>(this,
                                         //: for screen readers: by what the list is sorted
                                         translate("ProcessExplorer", "Sort"), labels, onChange);
    controls->addWidget(picker_);
    body().addLayout(controls);

    content_ = makeInnerLayout<OutdentedStack>();
    table_ = makeChild<ProcessTableView>(this, processSymbol(versions));
    table_->setActions({[this](SortMode mode) { picker_->choose(static_cast<int>(mode)); },
                        [this](const QString& name) { filter_->setText(name); }});
    emptyState_ = makeChild<EmptyStateView>(this, ProcessExplorer::noProcesses());
    content_->addWidget(table_);
    content_->addWidget(emptyState_);
    body().addLayout(content_);
    setTabOrder(filter_, &picker_->button(0));
    setTabOrder(&picker_->button(1), table_);
}

void ProcessExplorerView::addShortcuts() {
    auto* find = makeChild<QShortcut>(this, QKeySequence(QKeySequence::Find));
    find->setContext(Qt::WindowShortcut);
    connect(find, &QShortcut::activated, this, [this] { focusFilter(); });
    auto* clear = makeChild<QShortcut>(this, QKeySequence(Qt::Key_Escape));
    clear->setContext(Qt::WidgetWithChildrenShortcut);
    connect(clear, &QShortcut::activated, this, [this] { filter_->clear(); });
}

void ProcessExplorerView::focusFilter() {
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
    // With the rows that are found, not the field alone.
    reveal(*this, rect());
}

void ProcessExplorerView::setQuery(const QString& query) {
    query_ = query;
    cancelDebounce();
    if (query_.isEmpty()) {
        applyQuery();  // at once: there is nothing to wait for
        return;
    }
    debounce_ = mainLoop_->runAfter(filterDelay, [this] {
        debounce_.reset();
        applyQuery();
    });
}

void ProcessExplorerView::applyQuery() {
    if (debouncedQuery_ == query_) return;
    debouncedQuery_ = query_;
    refresh();
}

void ProcessExplorerView::cancelDebounce() {
    if (debounce_) mainLoop_->cancel(*debounce_);
    debounce_.reset();
}

void ProcessExplorerView::show(const ProcessExplorer& explorer) {
    const bool isSame = explorer == explorer_;
    explorer_ = explorer;  // even when equal: what the former one borrowed from may be gone
    if (!isSame) refresh();
}

bool ProcessExplorerView::isEmptyStateShown() const {
    return content_->currentWidget() == emptyState_;
}

void ProcessExplorerView::refresh() {
    const auto visible = explorer_.makeVisibleProcesses(debouncedQuery_, sortMode_, locale());
    double maximumCPU = 0;
    std::uint64_t maximumMemory = 0;
    for (const ProcessStats* process : visible) {
        maximumCPU = std::max(maximumCPU, process->cpuPercent);
        maximumMemory = std::max(maximumMemory, process->residentMemoryBytes);
    }
    std::vector<ProcessRow> rows;
    rows.reserve(visible.size());
    for (const ProcessStats* process : visible)
        rows.push_back({*process, maximumCPU, maximumMemory});
    table_->show(rows);
    if (rows.empty()) {
        const bool hasNone = explorer_.processes.empty();
        emptyState_->show(hasNone ? ProcessExplorer::noProcesses()
                                  : ProcessExplorer::noMatch(debouncedQuery_));
    }
    content_->setCurrentWidget(rows.empty() ? static_cast<QWidget*>(emptyState_) : table_);
}

}  // namespace vantor
