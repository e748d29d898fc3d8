#pragma once
// Sectors, arcs and annulus sectors as shape lists: the centre sits at the
// figure origin plus the radius, angles run counter-clockwise from the
// rightward radius, and arcs are cubic Beziers of at most a quarter turn.

#include <string>

#include "figures/shape_list.h"

namespace lp::figures {

enum class SectorKind { kSector, kArc, kAnnulus };

struct SectorRequest {
  SectorKind kind = SectorKind::kSector;
  std::u16string radius = u"2";       // cm, as typed
  std::u16string angle = u"120";      // degrees, as typed
  std::u16string innerRadius = u"1";  // cm, annulus only
  bool radii = true;                  // an arc's two radii, dashed
  bool angleMark = true;              // a small arc at the centre
  std::u16string label;               // beside the mark, on the bisector
  bool filled = false;
  float originX = 180;
  float originY = 180;
};

// The shapes, or the message telling the teacher why the input was refused
// (then shapes is empty).
struct SectorFigure {
  ShapeList shapes;
  std::u16string error;
};

SectorFigure MakeSector(const SectorRequest& request);

}  // namespace lp::figures
