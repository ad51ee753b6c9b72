#pragma once

#include <QObject>
#include <QWidget>

#include <vector>

class QAbstractScrollArea;
class QLineEdit;

namespace vantor {

/// Fields and lists of a dialog on rounded grounds, with a ring around the one that has the
/// keyboard: those of the toolkit end in lines that nobody sees in the dark.
class FieldGrounds : public QWidget {
  public:
    /// Behind everything else in `dialog`, which it fills.
    explicit FieldGrounds(QWidget* dialog);

    void add(QLineEdit* field);
    void add(QAbstractScrollArea* list);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void adopt(QWidget* part);

    std::vector<QWidget*> parts_;  // of the same dialog
};

}  // namespace vantor
