#include "figures/shape_selecter.h"

#include <gtest/gtest.h>

#include "word/fake/fake_word.h"

namespace lp::figures {
namespace {

std::vector<word::Text> SelectedNames(word::Application& app) {
  std::vector<word::Text> names;
  auto selected = app.Selection().ShapeRange();
  for (long i = 1; i <= selected->Count(); ++i) names.push_back(selected->Item(i)->Name());
  return names;
}

// A page of every kind: the chosen kinds are selected together in page
// order, and a choice the page lacks leaves the selection alone.
TEST(ShapeSelecter, SelectsThePageShapesOfTheChosenKinds) {
  word::fake::FakeWord word;
  word.AddScriptedShape(u"line1", word::msoLine, 0, 0, 10, 0);
  word.AddScriptedShape(u"box1", word::msoTextBox, 0, 0, 10, 10);
  word.AddScriptedShape(u"curve", word::msoFreeform, 0, 0, 10, 10);
  word.AddScriptedShape(u"group", word::msoGroup, 0, 0, 10, 10);
  word.AddScriptedShape(u"line2", word::msoLine, 0, 0, 10, 0);
  word.AddScriptedShape(u"oval", word::msoAutoShape, 0, 0, 10, 10);
  word.AddScriptedShape(u"box2", word::msoTextBox, 0, 0, 10, 10);

  EXPECT_EQ(CountPageShapes(word), (FamilyCounts{2, 1, 2, 1, 0, 1}));

  FamilyChoice linesAndBoxes{};
  linesAndBoxes[static_cast<int>(ShapeFamily::kLine)] = true;
  linesAndBoxes[static_cast<int>(ShapeFamily::kTextBox)] = true;
  EXPECT_EQ(SelectPageShapes(word, linesAndBoxes), 4);
  EXPECT_EQ(SelectedNames(word), (std::vector<word::Text>{u"line1", u"box1", u"line2", u"box2"}));

  FamilyChoice pictures{};
  pictures[static_cast<int>(ShapeFamily::kPicture)] = true;
  EXPECT_EQ(SelectPageShapes(word, pictures), 0);
  EXPECT_EQ(SelectedNames(word).size(), 4u);

  FamilyChoice all;
  all.fill(true);
  EXPECT_EQ(SelectPageShapes(word, all), 7);
  EXPECT_EQ(SelectedNames(word).front(), u"line1");
}

}  // namespace
}  // namespace lp::figures
