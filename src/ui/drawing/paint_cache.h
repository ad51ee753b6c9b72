#pragma once

#include "ui/drawing/glyph_run_cache.h"
#include "ui/drawing/line_raster.h"
#include "ui/drawing/ring_raster.h"

namespace vantor {

/// What the views of one window share for drawing. Main thread.
struct PaintCache {
    GlyphRunCache shapes;
    LineRaster lines;
    RingRaster rings;
};

}  // namespace vantor
