#pragma once

#include <QCache>
#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <vector>

#include "ui/typography.h"

namespace vantor {

/// A cache of shaped texts. Finding the glyphs of a text and their places costs many times what
/// drawing them does, and most texts are drawn again and again.
///
/// Lines are kept, the least recently drawn ones evicted. Figures, which rarely repeat, are
/// composed of single glyphs, with all digits as wide as the widest one so that a number that
/// changes moves nothing: many fonts have only proportional digits, and the toolkit's 6.4 has no
/// font features. Main thread.
class GlyphRunCache {
  public:
    double height(const TextStyle& style) { return faceOf(style).height; }

    /// Draws one line in the painter's pen, cut with an ellipsis where it does not fit. Control
    /// characters and line breaks in it are drawn as blanks.
    void drawLine(QPainter& painter, const TextStyle& style, const QRectF& area,
                  Qt::Alignment alignment, const QString& text,
                  Qt::TextElideMode cut = Qt::ElideRight);

    /// Draws figures in the painter's pen: whole, and with equally wide digits.
    void drawFigures(QPainter& painter, const TextStyle& style, const QRectF& area,
                     Qt::Alignment alignment, const QString& text);

    double lineWidth(const TextStyle& style, const QString& text);
    double figuresWidth(const TextStyle& style, const QString& text);

    /// Of the kept lines, those that were drawn with an ellipsis. For tests of a window's room.
    QStringList cutLines() const;

  private:
    struct Shape {
        QList<QGlyphRun> runs;
        double width = 0;
    };
    struct ShapeKey {
        std::size_t face = 0;
        int room = 0;  // what it is cut to, in whole points; -1 where it is not
        Qt::TextElideMode cut = Qt::ElideRight;
        QString text;
        bool operator==(const ShapeKey&) const = default;
        friend std::size_t qHash(const ShapeKey& key, std::size_t seed) {
            return qHashMulti(seed, key.face, key.room, static_cast<int>(key.cut), key.text);
        }
    };
    struct Figure {
        QChar character;
        std::uint32_t glyph = 0;  // 0: not to be put together from single glyphs
        double advance = 0;
        double inset = 0;
    };
    struct Face {
        std::size_t index = 0;
        TextStyle style;
        QFont font;
        QRawFont raw;
        double ascent = 0;
        double height = 0;
        QChar zero;  // of the script that digitWidth is of
        double digitWidth = 0;
        std::vector<Figure> figures;
    };

    Face& faceOf(const TextStyle& style);
    static Face makeFace(const TextStyle& style, std::size_t index);
    static double digitWidth(Face& face, QChar zero);
    static Figure makeFigure(Face& face, QChar character);
    static const Figure& figureOf(Face& face, QChar character);
    const Shape& shapeOf(const Face& face, const QString& text, int room,
                         Qt::TextElideMode cut = Qt::ElideRight);
    bool layOutFigures(Face& face, const QString& text);
    void draw(QPainter& painter, const Shape& shape, QPointF place) const;
    template <class Visit>
    void forEachRun(Face& face, const QString& text, Visit&& visit);
    template <class Visit>
    void visitRuns(Face& face, const QString& text, Visit&& visit);

    QFont systemFont_;
    std::deque<Face> faces_;
    QCache<ShapeKey, Shape> shapes_{512};
    // The figures laid out last; kept for their storage.
    QGlyphRun run_;
    std::vector<std::uint32_t> glyphs_;
    std::vector<QPointF> places_;
    double figuresWidth_ = 0;
};

}  // namespace vantor
