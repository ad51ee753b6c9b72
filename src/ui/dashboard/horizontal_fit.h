#pragma once

#include <QWidget>

#include <optional>

namespace vantor {

/// Two blocks side by side where they fit, and one above the other where they do not.
class VantorHorizontalFit : public QWidget {
  public:
    enum class Form {
        primary,  ///< a row: the leading block, a flexible gap, the trailing block
        fallback  ///< the leading block above the trailing one
    };

    /// The form for `available`: what fits is measured. Older systems have a breakpoint instead,
    /// and the fallback before the first measurement (a width of 0).
    static Form choose(double available, double fitting, std::optional<double> legacyBreakpoint);

    /// With a breakpoint this behaves as on an older system. `gap` is the least one of the row,
    /// `spacing` stands between the stacked blocks. The blocks become this widget's children.
    VantorHorizontalFit(QWidget* leading, QWidget* trailing, int gap, int spacing,
                        std::optional<double> legacyBreakpoint, QWidget* parent = nullptr);

    Form form() const { return choose(width()); }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    Form choose(int width) const;
    void layOut();

    QWidget* leading_;  // owned by this widget, as its children
    QWidget* trailing_;
    int gap_;
    int spacing_;
    std::optional<double> legacyBreakpoint_;
};

}  // namespace vantor
