// The number line: its scale, its validation, the intervals stacked above it
// and the figure closed into one group at the caret.
#include "figures/interval_draw.h"
#include "figures/interval_form.h"
#include "settings/record_slots.h"
#include "solver_fixture.h"

namespace lp {
namespace {

using testing::SolverDocument;

class Interval : public SolverDocument {
 protected:
  word::Shapes& Shapes() { return app->ActiveDocument().Shapes(); }
  // The shapes whose names begin with prefix.
  std::vector<std::unique_ptr<word::Shape>> Prefixed(const std::u16string& prefix) {
    std::vector<std::unique_ptr<word::Shape>> found;
    for (long i = 1; i <= Shapes().Count(); ++i) {
      auto shape = Shapes().Item(i);
      if (shape->Name().rfind(prefix, 0) == 0) found.push_back(std::move(shape));
    }
    return found;
  }
  // The shapes made from exactly this base.
  std::vector<std::unique_ptr<word::Shape>> Named(const std::u16string& base) {
    return Prefixed(base + u"：");
  }
};

TEST_F(Interval, ScaleOfTheAxis) {
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.chkNumberAxisOnly = true;
  EXPECT_EQ(IntervalOK(form, *session), IntervalClick::kDrawnAndClose);
  EXPECT_EQ(form.state.AxisLengthPt, 142);
  EXPECT_EQ(form.state.Unit, 14);
  auto axis = Named(u"数轴");
  ASSERT_EQ(axis.size(), 1u);
  EXPECT_FLOAT_EQ(axis[0]->Left(), 96);
  EXPECT_FLOAT_EQ(axis[0]->Left() + axis[0]->Width(), 264);
  EXPECT_EQ(Prefixed(u"文字").size(), 9u);  // -5 to 5 without 0 and 1
  EXPECT_EQ(form.controls.caption, u"在word中绘制当区间成功！");
  EXPECT_FALSE(form.controls.frame2Enabled);

  for (auto [typed, read] : {std::pair{u"2.5", 2}, std::pair{u"3.5", 4}}) {
    Reopen();
    IntervalForm f = LoadIntervalForm(*session);
    f.controls.txtXmax = typed;
    f.controls.chkNumberAxisOnly = true;
    IntervalOK(f, *session);
    EXPECT_EQ(f.state.XMax, read);
  }
}

TEST_F(Interval, RefusalsLeaveTheDocumentAlone) {
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.txtXmin = u"1";
  form.controls.kind = kBigThanA;
  EXPECT_EQ(IntervalOK(form, *session), IntervalClick::kRefused);
  EXPECT_EQ(form.controls.txtXmin, u"0");
  form.controls.txtA = u"6";
  EXPECT_EQ(IntervalOK(form, *session), IntervalClick::kRefused);
  form.controls.txtA = u"2";
  form.controls.kind = kNoKind;
  EXPECT_EQ(IntervalOK(form, *session), IntervalClick::kRefused);
  std::vector<std::u16string> shown;
  for (const ShownBox& box : prompt.Shown()) shown.push_back(box.prompt);
  EXPECT_EQ(shown, (std::vector<std::u16string>{
                       u"为了保证画出数轴的三要素，x的最小值不应大于0且最大值不应小于0！",
                       u"您要画的区间将超出当前数轴的范围！请调整数轴的长度后再试！",
                       u"您还没有选择所画区间的类型，请检查后再试！"}));
  EXPECT_EQ(Shapes().Count(), 0);
  EXPECT_FALSE(form.state.AxisDrawn);
}

TEST_F(Interval, IntervalsStackAboveTheAxis) {
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.kind = kNLTaLTb;
  form.controls.txtA = u"-2";
  form.controls.txtB = u"3";
  IntervalOK(form, *session);
  IntervalOK(form, *session);
  auto lines = Named(u"区间曲线");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_FLOAT_EQ(lines[0]->Top(), 170);
  EXPECT_FLOAT_EQ(lines[1]->Top(), 165);
  EXPECT_FLOAT_EQ(lines[0]->Left(), 180 - 2 * 14);
  EXPECT_FLOAT_EQ(lines[0]->Width(), 5 * 14);
  // The dots sit on the axis at the bounds: solid at a, hollow at b.
  auto a = Named(u"点a"), b = Named(u"点b");
  ASSERT_EQ(a.size(), 2u);
  EXPECT_FLOAT_EQ(a[0]->Left() + 2, 180 - 2 * 14);
  EXPECT_FLOAT_EQ(a[0]->Top() + 2, 180);
  EXPECT_FLOAT_EQ(b[0]->Left() + 2, 180 + 3 * 14);
  EXPECT_TRUE(a[0]->Fill().Visible());
  EXPECT_EQ(a[0]->Fill().ForeColor().RGB(), 0);
  EXPECT_EQ(form.state.HeightOffset, 20);
  EXPECT_EQ(Named(u"文本a").size(), 2u);  // -2 has no tick label without chkKD
}

TEST_F(Interval, ReversedPairSwapsTheBoxesOnly) {
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.kind = kBTaLTb;
  form.controls.txtA = u"3";
  form.controls.txtB = u"-1";
  IntervalOK(form, *session);
  EXPECT_EQ(form.controls.txtA, u"-1");
  EXPECT_EQ(form.controls.txtB, u" 3");
  auto line = Named(u"区间曲线");
  EXPECT_FLOAT_EQ(line[0]->Left(), 180 - 14);
}

TEST_F(Interval, TickEntriesAndFormulaLabels) {
  EXPECT_TRUE(IsFormulaEntry(u"g2"));
  EXPECT_TRUE(IsFormulaEntry(u"1/2"));
  EXPECT_FALSE(IsFormulaEntry(u"2.3"));
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.chkNumberAxisOnly = true;
  form.controls.optKD = 1;
  form.controls.txtNumberList = u"g2，1/2,2.3,0,1";
  IntervalOK(form, *session);
  auto labels = Prefixed(u"文字");
  ASSERT_EQ(labels.size(), 3u);
  EXPECT_FLOAT_EQ(labels[0]->Height(), 20);
  EXPECT_FLOAT_EQ(labels[1]->Height(), 40);
  EXPECT_EQ(labels[2]->TextFrame().TextRange()->Text().substr(0, 3), u"2.3");
  std::string xml = Part("word/document.xml");
  EXPECT_NE(xml.find("EQ \\R(,2)"), std::string::npos);
  EXPECT_NE(xml.find("EQ \\F(1,2)"), std::string::npos);
}

TEST_F(Interval, ClosingGroupsTheFigureAndKeepsTheRecord) {
  IntervalForm form = LoadIntervalForm(*session);
  form.controls.kind = kLessThanA;
  form.controls.txtA = u"1/3";
  form.controls.txtXmax = u"4";
  form.controls.chkNoX = true;
  IntervalOK(form, *session);
  CloseIntervalForm(form, *session);
  ASSERT_EQ(Shapes().Count(), 1);
  EXPECT_EQ(Shapes().Item(1)->Name().rfind(u"区间：", 0), 0u);
  EXPECT_EQ(ReadRecordSlot(session->databasePath, 9), u"-5@@4@@5@@ 0@@0@@1@@0");
  IntervalForm again = LoadIntervalForm(*session);
  EXPECT_EQ(again.controls.txtXmax, u"4");
  EXPECT_TRUE(again.controls.chkNoX);
}

}  // namespace
}  // namespace lp
