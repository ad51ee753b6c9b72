#pragma once

#include "ui/drawing/line_raster.h"
#include "ui/drawing/ring_raster.h"
#include "ui/drawing/text_shapes.h"

namespace vantor {

/// What the views of one window draw with, kept because it is worth keeping. Main thread.
struct DrawingKit {
    TextShapes shapes;
    LineRaster lines;
    RingRaster rings;
};

}  // namespace vantor
