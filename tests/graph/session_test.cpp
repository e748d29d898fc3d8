// The list and its records: slots, edit mode, singletons, and the scene
// that the list draws.
#include <gtest/gtest.h>

#include "graph/reedit.h"
#include "graph/scene.h"
#include "graph/session.h"
#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp::graph {
namespace {

GraphObject Point(double x) {
  PointParams p;
  p.x = x;
  return GraphObject{Look{}, p, {}};
}

TEST(Session, SlotsAreNeverReused) {
  GraphSession s;
  EXPECT_EQ(s.List(), std::vector<std::u16string>{kAxesLine});
  for (int i = 0; i < 5; ++i) s.Confirm(u"point", Point(i));
  EXPECT_EQ(s.List()[4], u"点(POINT) 3");
  s.DeleteLine(4);  // slot 3
  s.Confirm(u"point", Point(9));
  EXPECT_EQ(s.List().back(), u"点(POINT) 5");
  EXPECT_EQ(ParseListLine(s.List()[3]).slot, 2);
  EXPECT_EQ(ParseListLine(s.List()[4]).slot, 4);
  EXPECT_EQ(s.Count(u"point"), 6);
  const GraphObject* four = s.Record(ParseListLine(s.List()[4]));
  ASSERT_NE(four, nullptr);
  EXPECT_EQ(std::get<PointParams>(four->params).x, 4);

  LineRef ref = ParseListLine(u"任意函数(ANY) 100");
  EXPECT_EQ(ref.tag, u"any");
  EXPECT_EQ(ref.slot, 0);  // two characters carry the slot
  EXPECT_EQ(ParseListLine(u"对数函数(LogX) 12").tag, u"logx");
}

TEST(Session, EditModeChangesTheSelectedSlot) {
  GraphSession s;
  s.Confirm(u"point", Point(1));
  s.Confirm(u"point", Point(2));
  EXPECT_FALSE(s.SelectLine(2).has_value());  // editing off: nothing happens
  EXPECT_EQ(s.ToggleEditing(kAddCaption), kChangeCaption);
  EXPECT_FALSE(s.SelectLine(0).has_value());  // the coordinate system
  std::optional<LineRef> ref = s.SelectLine(2);
  ASSERT_TRUE(ref.has_value());
  EXPECT_EQ(ref->slot, 1);
  s.Confirm(u"point", Point(7));
  EXPECT_EQ(s.List().size(), 3u);
  EXPECT_EQ(std::get<PointParams>(s.Record(*ref)->params).x, 7);
  EXPECT_EQ(s.ToggleEditing(kChangeCaption), kAddCaption);
  EXPECT_FALSE(s.Editing());
}

TEST(Session, SingletonsTakeTheirOrderFromTheSwitches) {
  GraphSession s;
  s.ShowGrid(true, Look{2, 0.5f, 0xC0C0C0});
  s.ShowAxes(false);
  s.ShowAxes(true);
  EXPECT_EQ(s.List(), (std::vector<std::u16string>{kGridLine, kAxesLine}));
  EXPECT_EQ(s.Grid().color, 0xC0C0C0);
  s.ShowGrid(false, Look{});
  EXPECT_EQ(s.List(), std::vector<std::u16string>{kAxesLine});

  s.Confirm(u"point", Point(2));
  s.Axes().drawScale = true;
  Scene scene = BuildScene(s, AxisOptions{});
  ASSERT_EQ(scene.entries.size(), 2u);
  EXPECT_TRUE(std::holds_alternative<AxesDrawing>(scene.entries[0]));
  EXPECT_EQ(scene.labels.plainX.size(), 8u);  // the point's 2 doubles the axis number
  s.ClearList();
  EXPECT_TRUE(BuildScene(s, AxisOptions{}).entries.empty());
}

TEST(Session, SavedGraphOpensAgain) {
  GraphSession s;
  s.SetRange({-8, 8, -6, 6});
  s.Axes().drawScale = true;
  s.ShowGrid(true, Look{3, 0.5f, 0xC0C0C0});
  FormState circle = {{u"optType_Y_1", u"1"},
                      {u"txtY_0", u"1"},
                      {u"txtY_1", u"-1"},
                      {u"txtY_2", u"2"},
                      {u"chkCentreOfCircle", u"1"}};
  s.Confirm(u"yuan", {Look{2, 1.5f, 0xFF}, CircleParams{1, -1, 4, true}, circle});
  s.Confirm(u"point", Point(3));  // no typed texts: it can't be read again
  s.DeleteLine(0);
  s.ShowAxes(true);

  GraphSession reopened;
  ASSERT_TRUE(RestoreGraph(SaveGraph(s), reopened));
  EXPECT_EQ(reopened.List(), (std::vector<std::u16string>{kGridLine, u"圆(Yuan) 0", kAxesLine}));
  EXPECT_EQ(reopened.Range().xmin, -8);
  EXPECT_TRUE(reopened.Axes().drawScale);
  EXPECT_EQ(reopened.Grid().color, 0xC0C0C0);
  const GraphObject* c = reopened.Record({u"yuan", 0});
  ASSERT_NE(c, nullptr);
  EXPECT_EQ(c->look.style, 2);
  EXPECT_EQ(c->look.color, 0xFF);
  EXPECT_EQ(std::get<CircleParams>(c->params).r2, 4);
  EXPECT_EQ(c->texts, circle);
  EXPECT_FALSE(RestoreGraph(u"a picture's own description", reopened));
  EXPECT_EQ(reopened.List().size(), 3u);  // untouched
}

}  // namespace
}  // namespace lp::graph
