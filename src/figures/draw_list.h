#pragma once
// The one drawer of figure shapes: writes a shape list into the active
// document through the Word API, names each shape and records it in
// ShapeNames, then closes the figure at the caret. Every figure tool that
// computes a ShapeList draws it here.

#include <string>

#include "figures/shape_list.h"
#include "session/session.h"

namespace lp::figures {

// Adds each shape, raising ShapeCounter and recording its name in ShapeNames.
void DrawShapeList(Session& session, const ShapeList& shapes);

// Starts a new figure, draws the shapes with screen updating off, closes the
// figure under kindBase (group, name, z-order, caret) and empties ShapeNames
// for the next one. Returns false, touching nothing, for an empty list.
bool DrawFigure(Session& session, const ShapeList& shapes, const std::u16string& kindBase);

}  // namespace lp::figures
