#pragma once

#include <QLayout>
#include <QLayoutItem>

#include <memory>
#include <vector>

namespace vantor {

/// Lays widgets out in a row that breaks where it must, each line centred vertically.
class FlowLayout : public QLayout {
  public:
    explicit FlowLayout(int spacing, QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;     ///< of everything in one line
    QSize minimumSize() const override;  ///< of the largest item alone
    void setGeometry(const QRect& area) override;

  private:
    int layOut(const QRect& area, bool place) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace vantor
