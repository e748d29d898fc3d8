// The tabs' confirm logic: typed texts to records, and the messages that
// refuse bad input.
#include <gtest/gtest.h>

#include <cmath>

#include "graph/inputs.h"
#include "runtime/recording_prompt.h"

namespace lp::graph {
namespace {

struct Tab {
  FormState state;
  View view;
  RecordingPrompt prompt;
  std::optional<Params> Read(Reader reader) { return reader(TabInput(state, view, prompt)); }
  std::u16string Message() const {
    return prompt.Shown().empty() ? u"" : prompt.Shown().back().prompt;
  }
};

TEST(Inputs, FivePointSineMarksAndLabels) {
  Tab tab;
  tab.state = {{u"optType_SJ_0", u"1"}, {u"txtA_sin", u"1"}, {u"txtW_sin", u"1"},
               {u"txtF_sin", u"0"},     {u"txtK_sin", u"0"}, {u"chkHD_SJ", u"1"},
               {u"optFW_0", u"1"},      {u"optFS_2", u"1"},  {u"txtXmin_SJ", u"1"},
               {u"txtXmax_SJ", u"0"}};
  tab.view = {-1, 7, -4, 4};
  std::optional<Params> p = tab.Read(&ReadTrig);
  ASSERT_TRUE(p.has_value()) << std::string(tab.Message().begin(), tab.Message().end());
  const TrigParams& sine = std::get<TrigParams>(*p);
  EXPECT_DOUBLE_EQ(sine.rxmin, 0);
  EXPECT_NEAR(sine.rxmax, 2 * 3.14159265358979, 1e-12);
  ASSERT_EQ(sine.marks.size(), 5u);
  const char16_t* xs[] = {u"(0@p)/1", u"(@p)/2", u"@p", u"(3@p)/2", u"2@p"};
  const char16_t* ys[] = {u"0", u"1", u"0", u"-1", u"0"};
  for (int i = 1; i < 5; ++i) {
    EXPECT_EQ(sine.marks[i].xText, xs[i]) << i;
    EXPECT_EQ(sine.marks[i].yText, ys[i]) << i;
    EXPECT_NEAR(sine.marks[i].at.x, i * 3.14159265358979 / 2, 1e-12);
  }
  ASSERT_EQ(sine.segments.size(), 1u);
  EXPECT_TRUE(tab.prompt.Shown().empty());
}

TEST(Inputs, RangeQuestionCancelRefuses) {
  Tab tab;
  tab.state = {{u"optType_SJ_0", u"1"}, {u"txtA_sin", u"3"},   {u"txtW_sin", u"1"},
               {u"txtF_sin", u"0"},     {u"txtK_sin", u"0"},   {u"chkHD_SJ", u"1"},
               {u"optFW_1", u"1"},      {u"txtXmin_SJ", u"0"}, {u"txtXmax_SJ", u"2*PI"}};
  tab.view = {-1, 7, -2, 2};
  tab.prompt.Answer(u"cancel");
  EXPECT_FALSE(tab.Read(&ReadTrig).has_value());
  EXPECT_EQ(tab.Message(), u"您所要绘制的函数图像将有部分超出当前坐标范围，您还要继续作图吗？");
}

TEST(Inputs, Messages) {
  struct Row {
    const char* name;
    Reader reader;
    FormState state;
    const char16_t* message;
  } rows[] = {
      {"circle radius",
       &ReadCircle,
       {{u"optType_Y_0", u"1"}, {u"txtY_0", u"0"}},
       u"圆的半径不能为负或者零，请检查后重新输入。"},
      {"no form", &ReadCircle, {{u"txtY_0", u"1"}}, kNoForm},
      {"ellipse a not above b",
       &ReadEllipse,
       {{u"optType_TY_2", u"1"},
        {u"txtTY_0", u"0"},
        {u"txtTY_1", u"0"},
        {u"txtTY_2", u"4"},
        {u"txtTY_3", u"9"}},
       u"椭圆中a要大于b，请检查你的数据！"},
      {"ellipse standard",
       &ReadEllipse,
       {{u"optType_TY_0", u"1"}, {u"txtTY_0", u"-4"}, {u"txtTY_1", u"1"}},
       u"椭圆中a,b均为正数且a>b"},
      {"ellipse general",
       &ReadEllipse,
       {{u"optType_TY_4", u"1"},
        {u"txtTY_0", u"1"},
        {u"txtTY_1", u"-2"},
        {u"txtTY_2", u"0"},
        {u"txtTY_3", u"0"},
        {u"txtTY_4", u"-1"}},
       u"在椭圆的一般式方程中应保证A,B同号且不相等。"},
      {"hyperbola",
       &ReadHyperbola,
       {{u"optType_SQX_0", u"1"}, {u"txtSQX_0", u"0"}, {u"txtSQX_1", u"1"}},
       u"a^2或b^2必须是正数"},
      {"hyperbola general",
       &ReadHyperbola,
       {{u"optType_SQX_4", u"1"},
        {u"txtSQX_0", u"1"},
        {u"txtSQX_1", u"2"},
        {u"txtSQX_2", u"0"},
        {u"txtSQX_3", u"0"},
        {u"txtSQX_4", u"-1"}},
       u"在双曲线的一般式方程中，A,B不能同号"},
      {"parabola range",
       &ReadParabola,
       {{u"optType_PWX_0", u"1"},
        {u"txtPWX_0", u"1"},
        {u"txtXmin_PWX", u"3"},
        {u"txtXmax_PWX", u"-3"}},
       u"您所输入的数据范围有误，请检查后重新输入！"},
      {"line coefficients",
       &ReadLine,
       {{u"optType_ZX_6", u"1"}, {u"txtZX_0", u"0"}, {u"txtZX_1", u"0"}, {u"txtZX_2", u"1"}},
       u"请检查您输入的数据！x,y的系数不能都为0！"},
      {"empty point", &ReadPoint, {{u"txtPoint", u"(  ,  )"}}, u"您还没有输入点P的坐标值！"},
      {"bad point",
       &ReadPoint,
       {{u"txtPoint", u"(1,2+)"}},
       u"您输入的点的坐标表达式可能有误，请检查！"},
      {"log ends",
       &ReadLog,
       {{u"txtA_Log", u"2"},
        {u"txtH_Log", u"0"},
        {u"txtK_Log", u"0"},
        {u"txtXmin_Log", u"3"},
        {u"txtXmax_Log", u"1"}},
       u"自变量x的最小值大于或等于最大值！请检查后重新输入。"},
      {"any range",
       &ReadAny,
       {{u"txtExp", u"x^2"}, {u"txtXmin_Any", u"2"}, {u"txtXmax_Any", u"1"}},
       kBadRange},
      {"any expression",
       &ReadAny,
       {{u"txtExp", u"x+*("}, {u"txtXmin_Any", u"-1"}, {u"txtXmax_Any", u"1"}},
       kBadExpression},
  };
  for (Row& row : rows) {
    Tab tab;
    tab.state = row.state;
    EXPECT_FALSE(tab.Read(row.reader).has_value()) << row.name;
    EXPECT_EQ(tab.Message(), row.message) << row.name;
  }
}

TEST(Inputs, LinesAndConicsFromTheirForms) {
  Tab twoPoints;
  twoPoints.state = {{u"optType_ZX_2", u"1"},
                     {u"txtZX_0", u"(1,2)"},
                     {u"txtZX_1", u"(3,6)"},
                     {u"txtXmin_ZX", u"-2"},
                     {u"txtXmax_ZX", u"2"}};
  LineParams l = std::get<LineParams>(*twoPoints.Read(&ReadLine));
  EXPECT_DOUBLE_EQ(l.y1, -4);
  EXPECT_DOUBLE_EQ(l.y2, 4);
  Tab vertical;
  vertical.state = {{u"optType_ZX_6", u"1"}, {u"txtZX_0", u"2"},     {u"txtZX_1", u"0"},
                    {u"txtZX_2", u"-6"},     {u"txtXmin_ZX", u"-1"}, {u"txtXmax_ZX", u"1"}};
  LineParams v = std::get<LineParams>(*vertical.Read(&ReadLine));
  EXPECT_DOUBLE_EQ(v.x1, 3);
  EXPECT_DOUBLE_EQ(v.x2, 3);
  EXPECT_DOUBLE_EQ(v.y1, -1);

  // x^2 + 4y^2 - 2x - 3 = 0 is (x-1)^2/4 + y^2 = 1.
  Tab general;
  general.state = {{u"optType_TY_4", u"1"}, {u"txtTY_0", u"1"}, {u"txtTY_1", u"4"},
                   {u"txtTY_2", u"-2"},     {u"txtTY_3", u"0"}, {u"txtTY_4", u"-3"}};
  ConicParams e = std::get<ConicParams>(*general.Read(&ReadEllipse));
  EXPECT_DOUBLE_EQ(e.cx, 1);
  EXPECT_DOUBLE_EQ(e.a2, 4);
  EXPECT_DOUBLE_EQ(e.b2, 1);
  EXPECT_TRUE(e.horizontal);

  // y = x^2 - 2x + 3: vertex (1, 2), q = 1.
  Tab quadratic;
  quadratic.state = {{u"optType_PWX_8", u"1"}, {u"txtPWX_0", u"1"},     {u"txtPWX_1", u"-2"},
                     {u"txtPWX_2", u"3"},      {u"txtXmin_PWX", u"-1"}, {u"txtXmax_PWX", u"3"}};
  ParabolaParams p = std::get<ParabolaParams>(*quadratic.Read(&ReadParabola));
  EXPECT_DOUBLE_EQ(p.h, 1);
  EXPECT_DOUBLE_EQ(p.k, 2);
  EXPECT_DOUBLE_EQ(p.q, 1);
}

}  // namespace
}  // namespace lp::graph
