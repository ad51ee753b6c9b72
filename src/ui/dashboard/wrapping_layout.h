#pragma once

#include <QLayout>
#include <QLayoutItem>

#include <memory>
#include <vector>

namespace vantor {

/// Base of layouts whose height follows from their width: they keep items in the order added, and
/// one function both measures and places them.
class WrappingLayout : public QLayout {
  public:
    explicit WrappingLayout(QWidget* parent);
    ~WrappingLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;  ///< of the largest item alone
    void setGeometry(const QRect& area) override;

  protected:
    using Items = std::vector<std::unique_ptr<QLayoutItem>>;

    const Items& items() const { return items_; }

    /// The height that the items need in `area`; puts them there when `place` is set.
    virtual int layOut(const QRect& area, bool place) const = 0;

    /// Puts an item at a left-to-right `cell` of `area`, mirrored where the language is read
    /// from right to left.
    void placeItem(QLayoutItem& item, const QRect& cell, const QRect& area) const;

  private:
    Items items_;
};

}  // namespace vantor
