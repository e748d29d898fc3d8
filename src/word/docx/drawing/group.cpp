#include <algorithm>
#include <limits>

#include "word/docx/drawing/anchor.h"
#include "word/docx/drawing/markup.h"
#include "word/docx/drawing/shape_range.h"
#include "word/docx/drawing/z_order.h"
#include "word/docx/host/xml_order.h"
#include "word/errors.h"

namespace word::docx::drawing {

namespace {

Frame FrameOf(DocxHost& host, pugi::xml_node anchor) {
  return {PageOffsetOf(host, anchor, Axis::kHorizontal),
          PageOffsetOf(host, anchor, Axis::kVertical), ExtentOf(anchor, Axis::kHorizontal),
          ExtentOf(anchor, Axis::kVertical)};
}

Frame Bounds(DocxHost& host, const std::vector<pugi::xml_node>& anchors) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  std::int64_t left = kMax, top = kMax, right = -kMax, bottom = -kMax;
  for (pugi::xml_node anchor : anchors) {
    const Frame frame = FrameOf(host, anchor);
    left = std::min(left, frame.x);
    top = std::min(top, frame.y);
    right = std::max(right, frame.x + frame.cx);
    bottom = std::max(bottom, frame.y + frame.cy);
  }
  return {left, top, right - left, bottom - top};
}

std::string GroupXml(const Frame& bounds) {
  const std::string cx = std::to_string(bounds.cx), cy = std::to_string(bounds.cy);
  return "<wpg:wgp><wpg:cNvGrpSpPr/><wpg:grpSpPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"" +
         cx + "\" cy=\"" + cy + "\"/><a:chOff x=\"0\" y=\"0\"/><a:chExt cx=\"" + cx + "\" cy=\"" +
         cy + "\"/></a:xfrm></wpg:grpSpPr></wpg:wgp>";
}

// Moves the member's shape into the group, placed relative to the group's
// corner; a member group becomes a nested wpg:grpSp. Moved, not copied, the
// nodes stay the same, and so do the text box stories the engine holds.
void AddMember(DocxHost& host, pugi::xml_node group, pugi::xml_node anchor, const Frame& bounds) {
  const Frame frame = FrameOf(host, anchor);
  pugi::xml_node shape = group.append_move(GraphicOf(anchor));
  const bool nested = Is(shape, "wpg:wgp");
  if (nested) shape.set_name("wpg:grpSp");
  const char* nonVisualName = nested ? "wpg:cNvPr" : "wps:cNvPr";
  shape.remove_child(nonVisualName);
  pugi::xml_node nonVisual = shape.prepend_child(nonVisualName);
  const pugi::xml_node docPr = anchor.child("wp:docPr");
  nonVisual.append_attribute("id") = docPr.attribute("id").value();
  nonVisual.append_attribute("name") = docPr.attribute("name").value();
  pugi::xml_node xfrm = TransformOf(shape);
  SetAttr(xfrm.child("a:off"), "x", frame.x - bounds.x);
  SetAttr(xfrm.child("a:off"), "y", frame.y - bounds.y);
  SetAttr(xfrm.child("a:ext"), "cx", frame.cx);
  SetAttr(xfrm.child("a:ext"), "cy", frame.cy);
}

void CheckGroupable(const std::vector<pugi::xml_node>& anchors) {
  for (pugi::xml_node anchor : anchors) {
    const pugi::xml_node shape = GraphicOf(anchor);
    if (!Is(shape, "wps:wsp") && !Is(shape, "wpg:wgp")) {
      throw ShapeArgument("此类形状无法组合。");
    }
  }
}

unsigned HighestOf(const std::vector<pugi::xml_node>& anchors) {
  unsigned highest = 0;
  for (pugi::xml_node anchor : anchors) {
    highest = std::max(highest, anchor.attribute("relativeHeight").as_uint());
  }
  return highest;
}

// A selected member hands the selection on to its group.
void SelectGroupForMembers(DocxHost& host, const std::vector<pugi::xml_node>& members,
                           pugi::xml_node group) {
  std::vector<pugi::xml_node> selected = host.SelectedShapes();
  const auto isMember = [&members](pugi::xml_node anchor) {
    return std::find(members.begin(), members.end(), anchor) != members.end();
  };
  if (std::none_of(selected.begin(), selected.end(), isMember)) return;
  std::erase_if(selected, isMember);
  selected.push_back(group);
  host.SelectShapes(selected, true);
}

}  // namespace

pugi::xml_node GroupAnchors(DocxHost& host, const std::vector<pugi::xml_node>& anchors) {
  CheckGroupable(anchors);
  DeclareNamespaces(host.DocumentXml());
  const pugi::xml_node first = anchors.front();
  const Frame bounds = Bounds(host, anchors);
  pugi::xml_document parsed;
  parsed.load_string(AnchorXml(bounds, host.NextDrawingId(), HighestOf(anchors),
                               GraphicKind::kGroup, GroupXml(bounds))
                         .c_str());
  pugi::xml_node anchor = first.parent().insert_copy_before(parsed.first_child(), first);
  NameByPrefix(anchor, u"Group");
  for (const Axis axis : {Axis::kHorizontal, Axis::kVertical}) {
    SetRelativeFrom(anchor, axis, RelativeFromOf(first, axis).c_str());
    SetPageOffset(host, anchor, axis, axis == Axis::kHorizontal ? bounds.x : bounds.y);
  }
  SetWrapType(anchor, WrapTypeOf(first));
  const pugi::xml_node group = GraphicOf(anchor);
  for (pugi::xml_node member : anchors) AddMember(host, group, member, bounds);

  const pugi::xml_node choice = anchor.parent().parent();
  if (Is(choice, "mc:Choice")) SetAttr(choice, "Requires", "wpg");
  DropFallback(anchor);
  SelectGroupForMembers(host, anchors, anchor);
  // The group takes the first member's place in its run.
  host.Live().Removing(first);
  first.parent().remove_child(first);
  for (size_t i = 1; i < anchors.size(); ++i) RemoveAnchor(host, anchors[i]);
  host.MarkChanged();
  return anchor;
}

}  // namespace word::docx::drawing
