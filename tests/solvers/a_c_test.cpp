// Permutations and combinations: counts, refusals and the typed symbol.
#include "solvers/a_c.h"

#include "solver_fixture.h"

namespace lp {
namespace {

using testing::SolverDocument;
using ACTest = SolverDocument;

TEST_F(ACTest, CountsAndRefusals) {
  EXPECT_EQ(CountOf({u"2", u"5", false}, prompt), 20);
  EXPECT_EQ(CountOf({u"2", u"5", true}, prompt), 10);
  EXPECT_EQ(CountOf({u"5", u"5", false}, prompt), 120);
  EXPECT_EQ(ACResultLabel(20), u"运算结果： 20");
  EXPECT_TRUE(prompt.Shown().empty());
  for (ACControls refused :
       {ACControls{u"0", u"5"}, ACControls{u"6", u"5"}, ACControls{u"2", u""}}) {
    EXPECT_FALSE(CountOf(refused, prompt));
    EXPECT_EQ(prompt.Shown().back().prompt, u"数据输入有误，请检查！");
    EXPECT_EQ(prompt.Shown().back().title, u"数据错误");
    EXPECT_EQ(prompt.Shown().back().style, vbCritical);
  }
  EXPECT_FALSE(CountOf({u"2", u"171", false}, prompt));
  EXPECT_NE(prompt.Shown().back().prompt.find(u"170"), std::u16string::npos);
}

TEST_F(ACTest, InsertsTheSymbolAndTheCount) {
  InsertAC(*session, {u"2", u"5", true, true});
  app->Selection().TypeText(u"。");
  EXPECT_EQ(Text(), "C{ eq \\o(\\s\\up 5(2),\\s\\do 3(5)) }=10。\n");
  Reopen();
  InsertAC(*session, {u" 3", u"7 ", false, false});
  EXPECT_EQ(Text(), "A{ eq \\o(\\s\\up 5(3),\\s\\do 3(7)) }\n");
}

TEST_F(ACTest, RefusedInputLeavesTheDocumentAlone) {
  InsertAC(*session, {u"", u"5", false, false});
  InsertAC(*session, {u"0", u"5", false, true});
  EXPECT_EQ(Text(), "\n");
  EXPECT_EQ(prompt.Shown().size(), 2u);
}

}  // namespace
}  // namespace lp
