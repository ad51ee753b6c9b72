#include "ui/dashboard/horizontal_fit.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>

#include <algorithm>

namespace vantor {

namespace {

int heightAt(const QWidget& block, int width) {
    return block.hasHeightForWidth() ? block.heightForWidth(width) : block.sizeHint().height();
}

}  // namespace

VantorHorizontalFit::Form VantorHorizontalFit::choose(double available, double fitting,
                                                      std::optional<double> legacyBreakpoint) {
    const double needed = legacyBreakpoint.value_or(fitting);
    return available > 0 && available >= needed ? Form::primary : Form::fallback;
}

VantorHorizontalFit::VantorHorizontalFit(QWidget* leading, QWidget* trailing, int gap, int spacing,
                                         std::optional<double> legacyBreakpoint, QWidget* parent)
    : QWidget(parent),
      leading_(leading),
      trailing_(trailing),
      gap_(gap),
      spacing_(spacing),
      legacyBreakpoint_(legacyBreakpoint) {
    leading_->setParent(this);
    trailing_->setParent(this);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

VantorHorizontalFit::Form VantorHorizontalFit::choose(int width) const {
    const int fitting = leading_->sizeHint().width() + gap_ + trailing_->sizeHint().width();
    return choose(width, fitting, legacyBreakpoint_);
}

int VantorHorizontalFit::heightForWidth(int width) const {
    if (choose(width) == Form::primary) {
        return std::max(leading_->sizeHint().height(), trailing_->sizeHint().height());
    }
    return heightAt(*leading_, width) + spacing_ + heightAt(*trailing_, width);
}

QSize VantorHorizontalFit::sizeHint() const {
    return {leading_->sizeHint().width() + gap_ + trailing_->sizeHint().width(),
            std::max(leading_->sizeHint().height(), trailing_->sizeHint().height())};
}

QSize VantorHorizontalFit::minimumSizeHint() const {
    return {std::max(leading_->minimumSizeHint().width(), trailing_->minimumSizeHint().width()),
            std::min(leading_->sizeHint().height(), trailing_->sizeHint().height())};
}

void VantorHorizontalFit::resizeEvent(QResizeEvent*) {
    layOut();
}

bool VantorHorizontalFit::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        layOut();
    }
    return QWidget::event(event);
}

void VantorHorizontalFit::layOut() {
    const auto place = [this](QWidget& block, const QRect& area) {
        block.setGeometry(QStyle::visualRect(layoutDirection(), rect(), area));
    };
    if (form() == Form::primary) {
        const auto centred = [this](const QSize& size) { return (height() - size.height()) / 2; };
        const QSize first = leading_->sizeHint();
        const int room = std::max(0, width() - first.width() - gap_);
        const QSize second(std::min(trailing_->sizeHint().width(), room),
                           trailing_->sizeHint().height());
        place(*leading_, {QPoint(0, centred(first)), first});
        place(*trailing_, {QPoint(width() - second.width(), centred(second)), second});
    } else {
        const int first = heightAt(*leading_, width());
        place(*leading_, {0, 0, width(), first});
        place(*trailing_, {0, first + spacing_, width(), heightAt(*trailing_, width())});
    }
}

}  // namespace vantor
