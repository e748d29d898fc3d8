#pragma once
// Naming the shapes of a figure and placing the finished figure at the caret.

#include <string>

#include "session/session.h"

namespace lp {

// Sets AnchorX and AnchorY to the selection's place on the page, kept at
// least 20 points from the top left corner and within the page.
void GetCaretAnchor(Session& session);

// base, "：", a random 1 to 999, the digits of the date and time, "_lumenpad",
// cut to 32 characters. Stored as ShapeNames element ShapeCounter, which the
// caller has raised by one; a ShapeCounter below 1 raises error 9.
std::u16string MakeShapeName(Session& session, const std::u16string& base);

// The column arithmetic's own unique name: prefix, "：", the digits of the
// date and time, a random 1 to 999, "_lumenpad", kept whole and recorded
// nowhere.
std::u16string strGetShapeName(const std::u16string& prefix);

// Groups the shapes named in ShapeNames (one shape stays as it is), selects the group, names it
// after kindBase (such as "区间"), sends it behind, then in front of the text, and moves it to the
// caret anchor. ShapeCounter and ShapeNames stay as they are.
void CloseFigure(Session& session, const std::u16string& kindBase);

}  // namespace lp
