#pragma once
// Selecting the figures of the caret's page by kind, so that grouping and
// joining can follow on the selection.

#include <array>

#include "word/api.h"

namespace lp::figures {

// The kinds the teacher picks from, in the order of the dialog's boxes.
enum class ShapeFamily { kLine, kCurve, kTextBox, kGroup, kPicture, kAutoShape };
constexpr int kShapeFamilyCount = 6;

// How many shapes of each kind the page holds, or which kinds to select.
using FamilyCounts = std::array<long, kShapeFamilyCount>;
using FamilyChoice = std::array<bool, kShapeFamilyCount>;

ShapeFamily FamilyOf(word::MsoShapeType type);

// The floating shapes of the caret's page, counted by kind.
FamilyCounts CountPageShapes(word::Application& app);

// Selects every shape of the page whose kind is chosen, in page order, and
// returns how many; with none to select, the selection stays as it was.
long SelectPageShapes(word::Application& app, const FamilyChoice& chosen);

}  // namespace lp::figures
