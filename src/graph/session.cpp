#include "graph/session.h"

#include <algorithm>
#include <array>

#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp::graph {
namespace {

struct TypeLabel {
  const char16_t* tag;
  const char16_t* label;
};

constexpr std::array<TypeLabel, 12> kLabels = {{
    {u"point", u"点(POINT) "},
    {u"sj", u"三角函数(SJ) "},
    {u"zx", u"直线(ZX) "},
    {u"fblhs", u"反比例函数(FBLHS) "},
    {u"mi", u"幂函数(MI) "},
    {u"ax", u"指数函数(AX) "},
    {u"logx", u"对数函数(LogX) "},
    {u"any", u"任意函数(ANY) "},
    {u"yuan", u"圆(Yuan) "},
    {u"ty", u"椭圆(TY) "},
    {u"sqx", u"双曲线(SQX) "},
    {u"pwx", u"抛物线(PWX) "},
}};

void Remove(std::vector<std::u16string>& list, const std::u16string& line) {
  list.erase(std::remove(list.begin(), list.end(), line), list.end());
}

}  // namespace

std::u16string ListLabel(const std::u16string& tag) {
  for (const TypeLabel& t : kLabels)
    if (tag == t.tag) return t.label;
  return {};
}

LineRef ParseListLine(const std::u16string& line) {
  LineRef ref;
  int32_t open = InStr(line, u"("), close = InStr(line, u")");
  if (open > 0 && close > open) ref.tag = LCase(Mid(line, open + 1, close - open - 1));
  // Only two characters carry the slot: slot 100 reads back as 0.
  ref.slot = static_cast<int>(Val(Right(Trim(line), 2)));
  return ref;
}

void GraphSession::Load(const Look& lineSettings) {
  view_ = View{};
  zbx_ = AxesRecord{view_, false, lineSettings};
  editing_ = false;
  selidx_ = 0;
  list_ = {kAxesLine};
}

void GraphSession::SetRange(const View& view) {
  view_ = view;
  zbx_.range = view;
}

void GraphSession::Confirm(const std::u16string& tag, GraphObject object) {
  std::vector<GraphObject>& records = records_[tag];
  if (editing_) {
    if (selidx_ >= 0 && selidx_ < static_cast<int>(records.size()))
      records[selidx_] = std::move(object);
    return;
  }
  list_.push_back(ListLabel(tag) + Trim(Str(static_cast<double>(records.size()))));
  records.push_back(std::move(object));
}

std::u16string GraphSession::ToggleEditing(const std::u16string& caption) {
  editing_ = caption == kAddCaption;
  return editing_ ? kChangeCaption : kAddCaption;
}

std::optional<LineRef> GraphSession::SelectLine(int index) {
  if (!editing_ || index < 0 || index >= static_cast<int>(list_.size())) return std::nullopt;
  const std::u16string& line = list_[index];
  if (line == kAxesLine || line == kGridLine) return std::nullopt;
  LineRef ref = ParseListLine(line);
  selidx_ = ref.slot;
  return ref;
}

void GraphSession::DeleteLine(int index) {
  if (index >= 0 && index < static_cast<int>(list_.size())) list_.erase(list_.begin() + index);
}

void GraphSession::ShowAxes(bool shown) {
  Remove(list_, kAxesLine);
  if (shown) list_.push_back(kAxesLine);
}

void GraphSession::ShowGrid(bool shown, const Look& look) {
  Remove(list_, kGridLine);
  if (shown) {
    zbwg_ = look;
    list_.push_back(kGridLine);
  }
}

const GraphObject* GraphSession::Record(const LineRef& ref) const {
  auto found = records_.find(ref.tag);
  if (found == records_.end() || ref.slot < 0 || ref.slot >= static_cast<int>(found->second.size()))
    return nullptr;
  return &found->second[ref.slot];
}

int GraphSession::Count(const std::u16string& tag) const {
  auto found = records_.find(tag);
  return found == records_.end() ? 0 : static_cast<int>(found->second.size());
}

}  // namespace lp::graph
