#pragma once

#include <QFont>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "ui/components/focus_ring.h"
#include "ui/components/painted_view.h"
#include "ui/drawing/view_painter.h"
#include "ui/explorer/process_columns.h"
#include "ui/explorer/process_explorer.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

/// Draws the column header and one row for each visible process, with room for as many as there
/// can be, so that nothing below it moves. One row can be chosen, and stays the same process
/// wherever it is sorted to. Rows are painted here and not widgets, so that a refresh repaints only
/// the rows that changed; to assistive technology each is an element of its own.
class ProcessTableView : public PaintedView {
  public:
    /// What the user asks of the table and others do.
    struct Actions {
        std::function<void(SortMode)> sort;
        std::function<void(const QString& name)> filter;
    };

    explicit ProcessTableView(QString symbol, QWidget* parent = nullptr);

    void setActions(Actions actions) { actions_ = std::move(actions); }

    /// Marks the column that the rows are sorted by.
    void showSort(SortMode mode);

    /// The column whose title is there, where a click sorts by it.
    std::optional<SortMode> titleAt(QPointF place) const;

    /// What explains a place: a title, a bar, or the command of a row.
    QString helpAt(QPointF place) const;

    void show(std::span<const ProcessRow> rows);
    std::size_t rowCount() const { return rows_.size(); }

    /// What a row says, column by column.
    QStringList rowTexts(std::size_t index) const;
    std::optional<std::size_t> currentRow() const;
    void setCurrentRow(std::optional<std::size_t> row);

    /// Puts the chosen row on the clipboard, its columns and the command divided by tabs.
    void copyCurrentRow() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::List; }
    QString accessibleLabel() const override {
        return
            //: the list, for screen readers
            translate("ProcessTableView", "Processes");
    }
    QString accessibleValueText() const override;
    int accessibleRowCount() const override { return static_cast<int>(rows_.size()); }
    QString accessibleRowLabel(int row) const override;
    QRect accessibleRowArea(int row) const override;
    bool isAccessibleRowChosen(int row) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

  private:
    static constexpr double rowSpacing = 8;
    static constexpr TextStyle nameStyle{Typography::caption};
    static constexpr TextStyle figureStyle{Typography::caption};

    struct Row {
        std::int32_t pid = 0;
        QString name;
        QString command;
        QString cpuText;
        QString memoryText;
        double cpuShare = 0;
        double memoryShare = 0;
        bool operator==(const Row&) const = default;
    };

    static Row makeRow(const ProcessRow& row);
    void endHelpOfMovedRow(const std::vector<Row>& before);
    double rowHeight() const;
    QRectF rowArea(std::size_t index) const;
    std::optional<std::size_t> rowAt(QPointF place) const;
    ProcessColumns columns() const;
    QRectF figuresArea(std::size_t index) const;
    double fromLeading(double x) const { return isRightToLeft() ? width() - x : x; }
    QString rowText(std::size_t index) const;
    void paintHeader(ViewPainter& painter) const;
    void paintTitle(ViewPainter& painter, SortMode mode, const QRectF& area) const;
    void paintRow(ViewPainter& painter, std::size_t index, bool hasName) const;
    void paintName(ViewPainter& painter, const Row& row, const QRectF& area) const;
    void paintCurrent(ViewPainter& painter, const QRectF& area) const;
    bool moveBy(Qt::Key key);

    QString symbol_;
    Actions actions_;
    SortMode sort_ = SortMode::cpu;
    std::vector<Row> rows_;
    std::optional<std::int32_t> currentPID_;
    std::optional<std::int32_t> helpPID_;  ///< the tool tip's process, while it is shown
    FocusRing ring_;
    mutable std::optional<double> rowHeight_;
    mutable QFont rowHeightFont_;  ///< the system's, when the height was computed
};

}  // namespace vantor
