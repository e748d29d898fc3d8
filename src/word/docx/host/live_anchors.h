#pragma once
// The floating shapes held outside the XML: by the Shape objects a tool keeps
// and by the selection. Every holder of one anchor shares one handle, emptied
// when the anchor leaves the document (deleted, with the text holding it, or
// taken into a group), so that a Shape outliving its anchor raises "Object
// has been deleted." instead of reaching freed nodes, and the selection lets
// go of it.

#include <map>
#include <memory>
#include <vector>

#include <pugixml.hpp>

namespace word::docx {

class LiveAnchors {
 public:
  using Handle = std::shared_ptr<pugi::xml_node>;

  // The handle every holder of this wp:anchor shares.
  Handle Track(pugi::xml_node anchor);
  // `node` is about to leave the document with every anchor it holds.
  void Removing(pugi::xml_node node);

  void Select(const std::vector<pugi::xml_node>& anchors, bool replace);
  // The selected anchors still in the document.
  std::vector<pugi::xml_node> Selected() const;
  void ClearSelection() { selected_.clear(); }

 private:
  // Keyed by the node's address, which pugixml hands on to new nodes once the
  // old one is freed: an entry goes when its anchor leaves.
  std::map<const void*, std::weak_ptr<pugi::xml_node>> handles_;
  std::vector<Handle> selected_;
};

// The anchor behind the handle; ComError 5825 once it left the document.
pugi::xml_node LiveAnchor(const LiveAnchors::Handle& handle);

}  // namespace word::docx
