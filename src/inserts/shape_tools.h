#pragma once
// Tools on the shapes the teacher has selected: laying them edge to edge,
// grouping them, marking a shape's centre, the plain text box, enlarging.
// Word errors leave these routines for the command's handler.

#include <string>
#include <vector>

#include "session/session.h"

namespace lp {

constexpr char16_t kTooFewToJoin[] = u"您选择的少于两个对象，无法拼接！";
constexpr char16_t kGroupWholePage[] = u"您没有选中任何图形对象，是否要将本页的所有图形对象组合？";
constexpr char16_t kNotAShape[] = u"您选中的不是shape对象，无法取得它的几何中心！";

// The order in which shapes at these places stand, lowest first; equal
// places keep their order in the list.
std::vector<size_t> AscendingOrder(const std::vector<float>& places);

// join_lr and join_ud: from the leftmost (topmost) shape on, each next one
// starts where the one before it ends.
void JoinLeftToRight(Session& session);
void JoinTopToBottom(Session& session);
// group: two or more selected shapes become one group; with none selected,
// the page's shapes, if the teacher agrees.
void GroupSelection(Session& session);
// drawcenter: a black dot of 2 points at the selected shape's centre,
// grouped with it.
void DrawCenter(Session& session);

// wbk_b, wbk_y, wbk_n: a label without border or fill at the caret, or in
// the selected drawing canvas, holding text, selected for typing on.
void InsertPlainTextBox(Session& session, const std::u16string& text);
// enlarge: the selected floating shape or inline picture grows by a tenth.
void EnlargeSelection(Session& session);

}  // namespace lp
