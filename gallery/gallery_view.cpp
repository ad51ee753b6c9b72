#include "gallery_view.h"

#include <QPainter>
#include <QVBoxLayout>

#include "ui/components/make_child.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/flow_layout.h"
#include "ui/rendering.h"
#include "ui/typography.h"

#include "subjects.h"

namespace vantor {

namespace {

constexpr int margin = 24;
constexpr int spacing = 20;
constexpr int captionSpacing = 8;

QWidget* framed(const Subject& subject, ColorScheme scheme, QWidget* parent) {
    auto* frame = makeChild<QWidget>(parent);
    auto* column = makeLayout<QVBoxLayout>(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(captionSpacing);
    column->addWidget(makeChild<TextLineView>(frame, subject.name, Typography::caption2,
                                              QFont::Normal, TextLineView::Tone::secondary));
    QWidget* const widget = subject.make().release();  // the layout gives it its parent
    column->addWidget(widget);
    widget->setPalette(paletteOf(scheme));
    QSize size = widget->sizeHint();
    if (subject.width > 0) size.setWidth(subject.width);
    if (widget->hasHeightForWidth()) size.setHeight(widget->heightForWidth(size.width()));
    widget->setFixedSize(size);
    return frame;
}

}  // namespace

GalleryView::GalleryView(ColorScheme scheme, QWidget* parent)
    : BackgroundView(parent), scheme_(scheme) {
    setPalette(paletteOf(scheme));
    auto* flow = std::make_unique<FlowLayout>(spacing, this).release();
    for (const Subject& subject : subjects())
        flow->addWidget(framed(subject, scheme, this));
    setContentsMargins(margin, margin, margin, margin);
}

}  // namespace vantor
