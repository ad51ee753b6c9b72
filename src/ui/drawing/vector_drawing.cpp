#include "ui/drawing/vector_drawing.h"

#include <QPen>
#include <QResource>

#include <algorithm>
#include <array>
#include <utility>

#include "ui/drawing/path_data.h"
#include "ui/drawing/text_scanner.h"

namespace vantor {

namespace {

/// A tag's text behind its name.
using Attributes = std::string_view;

/// The value of an attribute, absent where the tag does not have it.
std::optional<std::string_view> textOf(Attributes attributes, std::string_view name) {
    for (size_t at = attributes.find(name); at != std::string_view::npos;
         at = attributes.find(name, at + 1)) {
        const std::string_view behind = attributes.substr(at + name.size());
        const bool isWhole = at > 0 && attributes[at - 1] == ' ' && behind.starts_with("=\"");
        if (isWhole) return behind.substr(2, behind.find('"', 2) - 2);
    }
    return std::nullopt;
}

double numberOf(Attributes attributes, std::string_view name, double otherwise = 0) {
    const auto text = textOf(attributes, name);
    return text ? TextScanner(*text).takeNumber().value_or(otherwise) : otherwise;
}

/// How a tag, or the one around it, has its shape painted.
struct Paint {
    bool isFilled = true;
    bool isStroked = false;
    double strokeWidth = 1;
    std::string_view dashes;

    Paint in(Attributes attributes) const {
        Paint own = *this;
        if (const auto fill = textOf(attributes, "fill")) own.isFilled = fill != "none";
        if (const auto stroke = textOf(attributes, "stroke")) own.isStroked = stroke != "none";
        own.strokeWidth = numberOf(attributes, "stroke-width", strokeWidth);
        own.dashes = textOf(attributes, "stroke-dasharray").value_or(dashes);
        return own;
    }
};

std::optional<QPainterPath> pathOf(std::string_view tag, Attributes attributes) {
    const auto number = [&](std::string_view name) { return numberOf(attributes, name); };
    QPainterPath path;
    if (tag == "path") return pathOfData(textOf(attributes, "d").value_or("?"));
    if (tag == "rect") {
        path.addRoundedRect(QRectF(number("x"), number("y"), number("width"), number("height")),
                            number("rx"), number("rx"));
    } else if (tag == "circle") {
        path.addEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
    } else if (tag == "ellipse") {
        path.addEllipse(QPointF(number("cx"), number("cy")), number("rx"), number("ry"));
    } else {
        return std::nullopt;
    }
    return path;
}

QList<double> dashesOf(const Paint& paint) {
    QList<double> dashes;
    TextScanner scanner(paint.dashes);
    while (const auto length = scanner.takeNumber())
        dashes << *length / paint.strokeWidth;
    return dashes;
}

/// The next tag's text between its brackets; empty behind the last one.
std::string_view takeTag(std::string_view& text) {
    const size_t begin = text.find('<');
    const size_t end = text.find('>', begin);
    if (begin == std::string_view::npos || end == std::string_view::npos) return {};
    const std::string_view tag = text.substr(begin + 1, end - begin - 1);
    text.remove_prefix(end + 1);
    return tag;
}

}  // namespace

std::optional<VectorDrawing> VectorDrawing::parse(std::string_view text) {
    VectorDrawing drawing;
    Paint around;
    for (std::string_view tag = takeTag(text); !tag.empty(); tag = takeTag(text)) {
        const std::string_view name = tag.substr(0, tag.find_first_of(" /", 1));
        const Attributes attributes = tag.substr(name.size());
        if (name == "defs") text.remove_prefix(std::min(text.find("</defs>"), text.size()));
        if (name == "defs" || name.front() == '/') continue;
        if (name == "svg") {
            around = around.in(attributes);
            TextScanner box(textOf(attributes, "viewBox").value_or(""));
            const std::array edges{box.takeNumber(), box.takeNumber(), box.takeNumber(),
                                   box.takeNumber()};
            if (edges[0] != 0 || edges[1] != 0 || !edges[2] || edges[2] != edges[3]) return {};
            drawing.side_ = *edges[2];
            continue;
        }
        const auto path = pathOf(name, attributes);
        if (!path) return {};
        const Paint own = around.in(attributes);
        drawing.shapes_.push_back(
            {*path, own.isFilled, own.isStroked ? own.strokeWidth : 0, dashesOf(own)});
    }
    return drawing.side_ > 0 ? std::optional(std::move(drawing)) : std::nullopt;
}

std::optional<VectorDrawing> VectorDrawing::ofResource(const QString& path) {
    const QResource resource(path);
    if (!resource.isValid()) return {};
    const QByteArray text = resource.uncompressedData();
    return parse({text.constData(), static_cast<size_t>(text.size())});
}

void VectorDrawing::paint(QPainter& painter, const QRectF& area, const QBrush& fill,
                          const QBrush& stroke) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / side_, area.height() / side_);
    for (const Shape& shape : shapes_) {
        QPen pen(Qt::NoPen);
        if (shape.strokeWidth > 0) {
            pen = QPen(stroke, shape.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
            if (!shape.dashes.isEmpty()) pen.setDashPattern(shape.dashes);
        }
        painter.setPen(pen);
        painter.setBrush(shape.isFilled ? fill : QBrush(Qt::NoBrush));
        painter.drawPath(shape.path);
    }
    painter.restore();
}

}  // namespace vantor
