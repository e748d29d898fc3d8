#include "word/docx/host/live_anchors.h"

#include <algorithm>

#include "word/errors.h"
#include "word/types.h"

namespace word::docx {

LiveAnchors::Handle LiveAnchors::Track(pugi::xml_node anchor) {
  std::erase_if(handles_, [](const auto& entry) { return entry.second.expired(); });
  std::weak_ptr<pugi::xml_node>& entry = handles_[anchor.internal_object()];
  Handle handle = entry.lock();
  if (!handle) {
    handle = std::make_shared<pugi::xml_node>(anchor);
    entry = handle;
  }
  return handle;
}

void LiveAnchors::Removing(pugi::xml_node node) {
  if (handles_.empty()) return;
  for (const pugi::xpath_node& x : node.select_nodes("descendant-or-self::wp:anchor")) {
    const auto entry = handles_.find(x.node().internal_object());
    if (entry == handles_.end()) continue;
    if (Handle handle = entry->second.lock()) *handle = pugi::xml_node();
    handles_.erase(entry);
  }
  std::erase_if(selected_, [](const Handle& handle) { return !*handle; });
}

void LiveAnchors::Select(const std::vector<pugi::xml_node>& anchors, bool replace) {
  if (replace) selected_.clear();
  for (pugi::xml_node anchor : anchors) {
    Handle handle = Track(anchor);
    if (std::find(selected_.begin(), selected_.end(), handle) == selected_.end())
      selected_.push_back(std::move(handle));
  }
}

std::vector<pugi::xml_node> LiveAnchors::Selected() const {
  std::vector<pugi::xml_node> anchors;
  for (const Handle& handle : selected_) anchors.push_back(*handle);
  return anchors;
}

pugi::xml_node LiveAnchor(const LiveAnchors::Handle& handle) {
  if (!*handle) throw ObjectDeleted();
  return *handle;
}

}  // namespace word::docx
