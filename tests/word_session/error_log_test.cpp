#include <gtest/gtest.h>

#include "errorlog/error_log.h"
#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "word/errors.h"

namespace {

TEST(ErrorLog, ReportErrorShowsDescriptionLabelAndNumber) {
  lp::RecordingPrompt prompt;
  lp::ReportError(prompt, lp::ErrorLabel(u"submain", 20), 13, u"类型不匹配");
  lp::ReportError(prompt, u"", 0, u"");
  lp::ReportError(prompt, lp::ErrorLabel(u"Join_LR"), word::ItemNotFound());
  lp::ReportError(prompt, u"x", lp::RuntimeError(6, "Overflow"));
  lp::ReportError(prompt, u"x", std::logic_error("bug"));

  const auto& shown = prompt.Shown();
  ASSERT_EQ(shown.size(), 5u);
  EXPECT_EQ(shown[0].prompt, u"类型不匹配\r\nsubmain-->line 20");
  EXPECT_EQ(shown[0].title, u"错误号: 13");
  EXPECT_EQ(shown[0].style, 0);
  EXPECT_EQ(shown[1].prompt, u"\r\n");
  EXPECT_EQ(shown[1].title, u"错误号: 0");
  EXPECT_EQ(shown[2].prompt, u"集合中所需的成员不存在。\r\nJoin_LR-->line 0");
  EXPECT_EQ(shown[2].title, u"错误号: 5941");
  EXPECT_EQ(shown[3].title, u"错误号: 6");
  EXPECT_EQ(shown[4].prompt, u"内部错误\r\nx");
}

TEST(ErrorLog, InputErrorPutsTheComplaintInTheTitle) {
  lp::RecordingPrompt prompt;
  lp::ShowInputError(prompt, u"");
  lp::ShowInputError(prompt, u" ");
  const auto& shown = prompt.Shown();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].prompt, u"您所输入的数据范围有误，请检查后重新输入！");
  EXPECT_EQ(shown[0].title, u"");
  EXPECT_EQ(shown[1].prompt, u" ");
  EXPECT_EQ(shown[1].title, u" 数据输入有误，请检查后重新输入");
}

TEST(ErrorLog, TrailingZeros) {
  EXPECT_EQ(lp::TrailingZeros(1200), 2);
  EXPECT_EQ(lp::TrailingZeros(7), 0);
  EXPECT_EQ(lp::TrailingZeros(-50), 1);
  EXPECT_THROW(lp::TrailingZeros(0), lp::RuntimeError);
}

TEST(ErrorLog, RegistryIsEmptyWhereThereIsNone) {
#ifndef _WIN32
  EXPECT_EQ(lp::ReadRegistryValue(lp::RegistryRoot::kClassesRoot, u"Word.Application\\CurVer", u""),
            u"");
#endif
}

}  // namespace
