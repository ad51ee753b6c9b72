#include "ui/help/help_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/components/make_child.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/dashboard/width_limit_layout.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int helpViewPadding = 28;
constexpr int widestText = 760;
constexpr int helpViewTitleGap = 6;
constexpr int sectionGap = 22;
constexpr double summarySize = 15;
constexpr double helpViewIdealWidth = 700;
constexpr double helpViewIdealHeight = 620;

}  // namespace

HelpSectionView::HelpSectionView(const HelpSection& section, QWidget* parent)
    : QWidget(parent),
      title_(makeChild<HeadingView>(this, section.title, Typography::headline, QFont::Bold)),
      text_(makeChild<ParagraphView>(this, section.text, Typography::body, QFont::Normal,
                                     TextLineView::Tone::secondary)) {
    auto* column = makeLayout<QVBoxLayout>(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(helpViewTitleGap);
    column->addWidget(title_);
    column->addWidget(text_);
}

HelpView::HelpView(const ProcessInfo& versions, const PlatformWords& words, QWidget* parent)
    : BackgroundView(parent) {
    auto* content = makeChild<QWidget>(this);
    content->setContentsMargins(helpViewPadding, helpViewPadding, helpViewPadding, helpViewPadding);
    auto* limit = std::make_unique<WidthLimitLayout>(widestText, content).release();
    limit->addWidget(makeColumn(words, content));
    if (versions.isOperatingSystemAtLeast(13, 0, 0)) {
        scroll_ = makeChild<VantorScrollView>(this, Qt::Vertical);
    } else {
        scroll_ = makeChild<LegacyVantorScrollView>(this, Qt::Vertical);
    }
    scroll_->setWidget(content);
    content->setAutoFillBackground(false);  // setWidget turns it on, and the background is ours
    auto* whole = makeLayout<QVBoxLayout>(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
    setFocusProxy(scroll_);
}

QWidget* HelpView::makeColumn(const PlatformWords& words, QWidget* content) {
    auto* widget = makeChild<QWidget>(content);
    auto* column = makeLayout<QVBoxLayout>(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(sectionGap);
    summary_ = makeChild<ParagraphView>(widget, HelpTexts::summary(words), summarySize,
                                        QFont::Medium, TextLineView::Tone::primary);
    column->addWidget(summary_);
    for (const HelpSection& section : HelpTexts::sections(words)) {
        sections_.push_back(makeChild<HelpSectionView>(widget, section));
        column->addWidget(sections_.back());
    }
    return widget;
}

QSize HelpView::sizeHint() const {
    return QSize(Typography::scaled(helpViewIdealWidth), Typography::scaled(helpViewIdealHeight))
        .expandedTo(minimumSizeHint());
}

void HelpView::keyPressEvent(QKeyEvent* event) {
    QScrollBar& bar = *scroll_->verticalScrollBar();
    switch (event->key()) {
        case Qt::Key_Home:
            bar.triggerAction(QScrollBar::SliderToMinimum);
            return;
        case Qt::Key_End:
            bar.triggerAction(QScrollBar::SliderToMaximum);
            return;
        case Qt::Key_Space:
            bar.triggerAction(event->modifiers() & Qt::ShiftModifier
                                  ? QScrollBar::SliderPageStepSub
                                  : QScrollBar::SliderPageStepAdd);
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vantor
