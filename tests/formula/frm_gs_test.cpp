// The formula dialog, offscreen: the rule follows the typing, Enter inserts.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "formula/frmGS.h"
#include "runtime/recording_prompt.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

TEST(frmGS, RuleFollowsTypingAndEnterInsertsNarrowedText) {
  int argc = 1;
  char name[] = "frm_gs_test";
  char* argv[] = {name};
  QApplication qt(argc, argv);
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session(word, prompt);
  bool ended = false;
  session.EndRun = [&] { ended = true; };
  frmGS form(session);
  auto* panel = form.findChild<QLabel*>(QStringLiteral("lbhelp_0"));
  auto* text = form.findChild<QLineEdit*>(QStringLiteral("txtGS"));
  ASSERT_TRUE(panel && text);
  EXPECT_TRUE(panel->text().startsWith(QStringLiteral("分式录入规则")));  // shown on load
  QTest::keyClicks(text, QStringLiteral("f"));
  EXPECT_TRUE(panel->text().startsWith(QStringLiteral("方程组录入规则")));
  text->setText(QStringLiteral("（a+b）/2"));
  QTest::keyClick(text, Qt::Key_Return);
  const auto& calls = word.Calls();
  EXPECT_NE(std::find(calls.begin(), calls.end(),
                      "Selection.Fields.Add(Selection.Range,-1,\"EQ \\F(a＋b,2)\",False)"),
            calls.end());
  EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace lp
