#pragma once
// The twelve tabs of the graph dialog as data: each control with its
// object name, caption and default, the buttons that confirm or reset the
// tab, and the captions that the coefficient boxes take for each equation
// form.

#include <string>
#include <vector>

namespace lp::graph {

struct TabControl {
  enum Kind { kText, kCheck, kOption, kNote, kRow } kind;
  const char16_t* name;     // objectName; empty for notes and row breaks
  const char16_t* caption;  // label of a box, text of a check or option
  const char16_t* value;    // default: text, or "1"/"0"
  const char16_t* group;    // options that exclude each other share it
};

// A button of the tab: it confirms an object of the type tag, or with an
// empty tag puts the tab back to its defaults.
struct TabButton {
  const char16_t* name;
  const char16_t* caption;
  const char16_t* tag;
};

// The captions of the boxes name_0, name_1, ... for each option of group.
struct FormCaptions {
  const char16_t* group;
  const char16_t* boxes;
  std::vector<std::vector<const char16_t*>> captions;
};

struct GraphTab {
  const char16_t* caption;
  std::vector<TabControl> controls;
  std::vector<TabButton> buttons;
  std::vector<FormCaptions> forms;
};

// In the order of SSTab1.
const std::vector<GraphTab>& GraphTabs();

// The tab that shows objects of a type tag.
int TabOfTag(const std::u16string& tag);

}  // namespace lp::graph
