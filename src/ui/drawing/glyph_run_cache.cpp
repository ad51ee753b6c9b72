#include "ui/drawing/glyph_run_cache.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

#include "ui/drawing/digits.h"
#include "ui/shown_text.h"

namespace vantor {

namespace {

constexpr int uncut = -1;
constexpr double unlimited = 1e6;

/// Whether a character stands for itself, whatever its neighbours are.
bool isPlain(QChar c) {
    const bool isKnownScript =
        c.script() == QChar::Script_Latin || c.script() == QChar::Script_Common;
    return isKnownScript && !c.isSurrogate() && !c.isMark() && c.isPrint();
}

double left(const QRectF& area, Qt::Alignment alignment, double width) {
    if (alignment & Qt::AlignRight) return area.right() - width;
    if (alignment & Qt::AlignHCenter) return area.left() + (area.width() - width) / 2;
    return area.left();
}

/// Calls visit(part) for each number of a text that reads from the right, and for what is between,
/// the last one first. Within themselves numbers read from the left in every script.
template <class Visit>
void forEachNumber(const QString& text, Visit&& visit) {
    for (qsizetype end = text.size(); end > 0;) {
        const bool isNumber = isDigit(text[end - 1]);
        qsizetype start = end - 1;
        while (start > 0) {
            const bool isSign = start > 1 && isDigit(text[start]) && isDigit(text[start - 2]) &&
                                text[start - 1].isPunct();
            if ((isDigit(text[start - 1]) || isSign) != isNumber) break;
            --start;
        }
        visit(text.mid(start, end - start));
        end = start;
    }
}

double top(const QRectF& area, Qt::Alignment alignment, double height) {
    if (alignment & Qt::AlignTop) return area.top();
    if (alignment & Qt::AlignBottom) return area.bottom() - height;
    return area.top() + (area.height() - height) / 2;
}

}  // namespace

GlyphRunCache::Face GlyphRunCache::makeFace(const TextStyle& style, std::size_t index) {
    Face face;
    face.index = index;
    face.style = style;
    face.font = Typography::font(style);
    face.raw = QRawFont::fromFont(face.font);
    const QFontMetricsF metrics(face.font);
    face.ascent = metrics.ascent();
    face.height = metrics.height();
    return face;
}

double GlyphRunCache::digitWidth(Face& face, QChar zero) {
    if (face.zero == zero) return face.digitWidth;
    face.zero = zero;
    face.digitWidth = 0;
    const QFontMetricsF metrics(face.font);
    for (char16_t value = 0; value <= 9; ++value) {
        const QChar digit(static_cast<char16_t>(zero.unicode() + value));
        face.digitWidth = std::max(face.digitWidth, metrics.horizontalAdvance(digit));
    }
    return face.digitWidth;
}

GlyphRunCache::Face& GlyphRunCache::faceOf(const TextStyle& style) {
    if (const QFont now = QApplication::font(); now != systemFont_) {
        systemFont_ = now;
        faces_.clear();
        shapes_.clear();
    }
    const auto found = std::ranges::find(faces_, style, &Face::style);
    return found != faces_.end() ? *found : faces_.emplace_back(makeFace(style, faces_.size()));
}

GlyphRunCache::Figure GlyphRunCache::makeFigure(Face& face, QChar character) {
    Figure figure{character, 0, 0, 0};
    if (!isPlain(character)) return figure;
    const QList<quint32> glyphs = face.raw.glyphIndexesForString(QString(character));
    if (glyphs.size() != 1) return figure;
    const double own = QFontMetricsF(face.font).horizontalAdvance(character);
    figure.glyph = glyphs.front();
    figure.advance = isDigit(character) ? digitWidth(face, zeroOf(character)) : own;
    figure.inset = (figure.advance - own) / 2;
    return figure;
}

const GlyphRunCache::Figure& GlyphRunCache::figureOf(Face& face, QChar character) {
    const auto found = std::ranges::find(face.figures, character, &Figure::character);
    return found != face.figures.end() ? *found
                                       : face.figures.emplace_back(makeFigure(face, character));
}

/// False where the text cannot be put together from single glyphs.
bool GlyphRunCache::layOutFigures(Face& face, const QString& text) {
    glyphs_.clear();
    places_.clear();
    figuresWidth_ = 0;
    if (readsFromTheRight(text)) return false;
    for (const QChar character : text) {
        const Figure& figure = figureOf(face, character);
        if (figure.glyph == 0) return false;
        glyphs_.push_back(figure.glyph);
        places_.emplace_back(figuresWidth_ + figure.inset, 0);
        figuresWidth_ += figure.advance;
    }
    return true;
}

const GlyphRunCache::Shape& GlyphRunCache::shapeOf(const Face& face, const QString& text, int room,
                                                   Qt::TextElideMode cut) {
    const ShapeKey key{face.index, room, cut, text};
    if (const Shape* const kept = shapes_.object(key)) return *kept;
    QString line = shownText(text.left(Typography::maxLineLength));
    if (room != uncut) line = QFontMetricsF(face.font).elidedText(line, cut, room);
    auto shape = std::make_unique<Shape>();
    QTextLayout layout(line, face.font);
    layout.beginLayout();
    QTextLine only = layout.createLine();
    if (only.isValid()) {
        only.setLineWidth(unlimited);
        shape->width = only.naturalTextWidth();
        // As wide as it is: else a text that reads from the right would begin far away.
        only.setLineWidth(std::ceil(shape->width));
    }
    layout.endLayout();
    shape->runs = layout.glyphRuns();
    const Shape& result = *shape;
    shapes_.insert(key, shape.release());
    return result;
}

void GlyphRunCache::draw(QPainter& painter, const Shape& shape, QPointF place) const {
    for (const QGlyphRun& run : shape.runs)
        painter.drawGlyphRun(place, run);
}

void GlyphRunCache::drawLine(QPainter& painter, const TextStyle& style, const QRectF& area,
                             Qt::Alignment alignment, const QString& text, Qt::TextElideMode cut) {
    if (text.isEmpty() || !(area.width() > 0)) return;
    const Face& face = faceOf(style);
    if (text.size() > Typography::maxLineLength) {
        drawLine(painter, style, area, alignment, text.left(Typography::maxLineLength), cut);
        return;
    }
    const Shape* shape = &shapeOf(face, text, uncut);
    if (shape->width > area.width())
        shape = &shapeOf(face, text, static_cast<int>(std::floor(area.width())), cut);
    draw(painter, *shape, {left(area, alignment, shape->width), top(area, alignment, face.height)});
}

double GlyphRunCache::lineWidth(const TextStyle& style, const QString& text) {
    return shapeOf(faceOf(style), text, uncut).width;
}

QStringList GlyphRunCache::cutLines() const {
    QStringList lines;
    if (shapes_.isEmpty()) return lines;  // the toolkit's 6.4 crashes over the keys of none
    const QList<ShapeKey> kept = shapes_.keys();
    for (const ShapeKey& key : kept) {
        if (key.room != uncut) lines << key.text;
    }
    return lines;
}

/// Calls visit(run, width, inset) for each digit and each run of other characters, as they follow
/// each other from the left.
template <class Visit>
void GlyphRunCache::forEachRun(Face& face, const QString& text, Visit&& visit) {
    if (readsFromTheRight(text)) {
        forEachNumber(text, [&](const QString& part) { visitRuns(face, part, visit); });
    } else {
        visitRuns(face, text, visit);
    }
}

template <class Visit>
void GlyphRunCache::visitRuns(Face& face, const QString& text, Visit&& visit) {
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start + 1;
        const bool digit = isDigit(text[start]);
        while (!digit && end < text.size() && !isDigit(text[end]))
            ++end;
        const Shape& shape = shapeOf(face, text.mid(start, end - start), uncut);
        const double width = digit ? digitWidth(face, zeroOf(text[start])) : shape.width;
        visit(shape, width, (width - shape.width) / 2);
        start = end;
    }
}

double GlyphRunCache::figuresWidth(const TextStyle& style, const QString& text) {
    Face& face = faceOf(style);
    if (layOutFigures(face, text)) return figuresWidth_;
    double width = 0;
    forEachRun(face, text, [&](const Shape&, double advance, double) { width += advance; });
    return width;
}

void GlyphRunCache::drawFigures(QPainter& painter, const TextStyle& style, const QRectF& area,
                                Qt::Alignment alignment, const QString& text) {
    if (text.isEmpty()) return;
    Face& face = faceOf(style);
    const double y = top(area, alignment, face.height);
    if (layOutFigures(face, text)) {
        run_.setRawFont(face.raw);
        run_.setRawData(glyphs_.data(), places_.data(), static_cast<int>(glyphs_.size()));
        painter.drawGlyphRun({left(area, alignment, figuresWidth_), y + face.ascent}, run_);
        return;
    }
    double x = left(area, alignment, figuresWidth(style, text));
    forEachRun(face, text, [&](const Shape& shape, double advance, double inset) {
        draw(painter, shape, {x + inset, y});
        x += advance;
    });
}

}  // namespace vantor
