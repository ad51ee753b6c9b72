#pragma once

#include <QString>

#include <span>
#include <vector>

#include "model/process_stats.h"
#include "platform/process_info.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// The few processes that use the most of something.
struct ProcessMiniList {
    enum class Metric { cpu, memory };

    QString title;
    std::span<const ProcessStats> processes;
    Metric metric = Metric::cpu;

    /// What a row says on its right side.
    static QString value(const ProcessStats& process, Metric metric);
};

/// What stands before a process; older systems lack the finer one.
QString processSymbol(const ProcessInfo& versions);

/// Draws the list with room for a number of rows, so that the card does not change its height when
/// the first processes arrive.
class ProcessMiniListView : public PaintedView {
  public:
    /// `symbol` stands before each row.
    ProcessMiniListView(const ProcessMiniList& list, std::size_t rowLimit, QString symbol,
                        QWidget* parent = nullptr);

    /// Shows other processes under the same title.
    void show(std::span<const ProcessStats> processes);
    std::size_t rowLimit() const { return rowLimit_; }
    void setRowLimit(std::size_t rows);

    /// Takes all the height that it is offered and shows as many rows as that has room for.
    void fillHeight();
    std::size_t rowCount() const;

    /// From the title to the first row, and from each row to the next: whole device pixels at the
    /// usual scales.
    double pitch() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::List; }
    QString accessibleLabel() const override { return title_; }
    QString accessibleValueText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    struct Row {
        QString name;
        QString command;
        QString value;
        bool operator==(const Row&) const = default;
    };

    double rowHeight() const;
    QRectF rowArea(std::size_t index) const;

    QString title_;
    ProcessMiniList::Metric metric_;
    std::size_t rowLimit_;
    QString symbol_;
    bool fillsHeight_ = false;
    std::vector<Row> rows_;
};

}  // namespace vantor
