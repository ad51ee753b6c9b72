#pragma once

#include <QLayout>
#include <QLayoutItem>

#include <memory>
#include <vector>

namespace vantor {

/// Columns that are as many as fit, each between a narrowest and a widest width.
struct AdaptiveColumns {
    double minimum = 430;
    double maximum = 680;
    double spacing = 16;

    /// At least one, however narrow the space.
    int count(double available) const;
    double width(double available) const;

    bool operator==(const AdaptiveColumns&) const = default;
};

/// Lays widgets out row by row in such columns; the cells of a row are as high as its highest, and
/// the columns together stand in the middle of the space.
class AdaptiveGridLayout : public QLayout {
  public:
    explicit AdaptiveGridLayout(AdaptiveColumns columns, QWidget* parent = nullptr);
    ~AdaptiveGridLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    int layOut(const QRect& area, bool place) const;

    AdaptiveColumns columns_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace vantor
