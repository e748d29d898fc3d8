#include "word/docx/inline_shapes.h"
#include "word/docx/host/units.h"
#include "word/errors.h"

#include <vector>

namespace word::docx {
namespace {

class InlinePicture : public word::InlineShape {
 public:
  InlinePicture(pugi::xml_node inlineNode, DocxDocument& doc) : node_(inlineNode), doc_(doc) {}
  float Width() const override { return Extent("cx"); }
  void SetWidth(float points) override { SetExtent("cx", points); }
  float Height() const override { return Extent("cy"); }
  void SetHeight(float points) override { SetExtent("cy", points); }

 private:
  float Extent(const char* axis) const {
    return ToPoints(node_.child("wp:extent").attribute(axis).as_llong());
  }
  void SetExtent(const char* axis, float points) {
    const std::string emu = std::to_string(ToEmu(points));
    node_.child("wp:extent").attribute(axis).set_value(emu.c_str());
    // The picture's own transform carries the same size.
    pugi::xpath_node ext = node_.select_node(".//a:xfrm/a:ext");
    if (ext) ext.node().attribute(axis).set_value(emu.c_str());
    doc_.MarkChanged();
  }
  pugi::xml_node node_;
  DocxDocument& doc_;
};

class InlinePictures : public word::InlineShapes {
 public:
  InlinePictures(std::vector<pugi::xml_node> nodes, DocxDocument& doc)
      : nodes_(std::move(nodes)), doc_(doc) {}
  long Count() const override { return static_cast<long>(nodes_.size()); }
  std::unique_ptr<word::InlineShape> Item(long index) override {
    if (index < 1 || index > Count()) throw ItemNotFound();
    return std::make_unique<InlinePicture>(nodes_[static_cast<size_t>(index - 1)], doc_);
  }

 private:
  std::vector<pugi::xml_node> nodes_;
  DocxDocument& doc_;
};

}  // namespace

std::unique_ptr<word::InlineShapes> MakeInlineShapes(const Place& place) {
  const StoryIndex& ix = place.story->Index();
  std::vector<pugi::xml_node> found;
  if (ix.length > 0 && place.Start() < place.End()) {
    for (size_t i = ix.SegmentAt(place.Start());
         i < ix.segments.size() && ix.segments[i].pos < place.End(); ++i) {
      const Segment& s = ix.segments[i];
      if (s.kind != SegKind::Object) continue;
      pugi::xml_node inlineNode = s.node.child("wp:inline");
      if (!inlineNode) {
        pugi::xpath_node x = s.node.select_node(".//wp:inline");
        inlineNode = x.node();
      }
      if (inlineNode) found.push_back(inlineNode);
    }
  }
  return std::make_unique<InlinePictures>(std::move(found), *place.doc);
}

}  // namespace word::docx
