#pragma once
// Paints a drawing list with Qt: the picture of a figure or formula on white,
// at a chosen resolution.

#include <QImage>

#include "gallery/drawing_list.h"

namespace lp::gallery {

// One point is dpi / 72 pixels; a small white margin goes round the figure.
QImage RenderDrawing(const DrawingList& drawing, double dpi);

}  // namespace lp::gallery
