#pragma once
// One graph session: the ordered list of objects on one coordinate system,
// the growing record array of each type behind it, the view and the two
// singletons. Pure state; nothing of Word or of the dialog.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "graph/canvas.h"
#include "graph/records.h"

namespace lp::graph {

inline constexpr char16_t kAxesLine[] = u"平面直角坐标系(ZBX)";
inline constexpr char16_t kGridLine[] = u"坐标网格(ZBWG)";
inline constexpr char16_t kAddCaption[] = u"添加图像";
inline constexpr char16_t kChangeCaption[] = u"修改图像";

// The list label of a type tag ("any" gives "任意函数(ANY) "); empty for an
// unknown tag.
std::u16string ListLabel(const std::u16string& tag);

// What a list line points at: the lower-cased text between the first "("
// and ")", and the value of the line's last two characters.
struct LineRef {
  std::u16string tag;
  int slot = 0;
};
LineRef ParseListLine(const std::u16string& line);

struct AxesRecord {
  View range;
  bool drawScale = false;
  Look look;
};

class GraphSession {
 public:
  GraphSession() { Load(Look{}); }

  // The state of a freshly opened dialog, with the line settings it shows.
  void Load(const Look& lineSettings);

  const std::vector<std::u16string>& List() const { return list_; }
  const View& Range() const { return view_; }
  void SetRange(const View& view);
  AxesRecord& Axes() { return zbx_; }
  const AxesRecord& Axes() const { return zbx_; }
  Look& Grid() { return zbwg_; }
  const Look& Grid() const { return zbwg_; }

  // Adds a new object of the type, or with editing on changes the record in
  // the selected slot (a slot the type never had is left alone).
  void Confirm(const std::u16string& tag, GraphObject object);

  bool Editing() const { return editing_; }
  // Flips edit mode by the button's caption and returns the new caption.
  std::u16string ToggleEditing(const std::u16string& caption);
  // With editing on, selects the object of a list line for change; returns
  // its reference, or nothing for the singletons and with editing off.
  std::optional<LineRef> SelectLine(int index);

  // Removes the list line; the record stays in its slot, unread.
  void DeleteLine(int index);
  void ShowAxes(bool shown);
  void ShowGrid(bool shown, const Look& look);
  void ClearList() { list_.clear(); }

  const GraphObject* Record(const LineRef& ref) const;
  int Count(const std::u16string& tag) const;

 private:
  View view_;
  AxesRecord zbx_;
  Look zbwg_;
  std::vector<std::u16string> list_;
  std::map<std::u16string, std::vector<GraphObject>> records_;
  bool editing_ = false;
  int selidx_ = 0;
};

}  // namespace lp::graph
