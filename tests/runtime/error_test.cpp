// The runtime's own functions raise the error numbers the tools' handlers
// test for, and return normally on the edge of what they accept.

#include "runtime/error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "runtime/convert.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

::testing::AssertionResult Raises(int number, const std::function<void()>& body) {
  try {
    body();
  } catch (const RuntimeError& e) {
    if (e.Number() == number) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "raised " << e.Number() << " (" << e.what() << ")";
  }
  return ::testing::AssertionFailure() << "raised nothing";
}

TEST(RuntimeError, BadArgumentsRaiseTheirNumbers) {
  struct Row {
    const char* name;
    int number;
    std::function<void()> body;
  };
  const Row rows[] = {
      {"CInt past 32767", kOverflow, [] { CInt(32767.5); }},
      {"CInt below -32768", kOverflow, [] { CInt(-32768.6); }},
      {"CLng past its range", kOverflow, [] { CLng(2147483647.5); }},
      {"CSng past single precision", kOverflow, [] { CSng(1e39); }},
      {"Val of 1e400", kOverflow, [] { Val(u"1e400"); }},
      {"Mid from 0", kInvalidProcedureCall, [] { Mid(u"abc", 0); }},
      {"Left of a negative length", kInvalidProcedureCall, [] { Left(u"abc", -1); }},
      {"InStrRev from 0", kInvalidProcedureCall, [] { InStrRev(u"abc", u"b", 0); }},
      {"Chr past 65535", kInvalidProcedureCall, [] { Chr(65536); }},
      {"Asc of nothing", kInvalidProcedureCall, [] { Asc(u""); }},
  };
  for (const Row& row : rows) EXPECT_TRUE(Raises(row.number, row.body)) << row.name;
}

TEST(RuntimeError, EdgesThatAreAcceptedRaiseNothing) {
  EXPECT_NO_THROW(CInt(32767.4));
  EXPECT_NO_THROW(CInt(-32768.5));  // half to even: -32768
  EXPECT_NO_THROW(CLng(-2147483648.0));
  EXPECT_NO_THROW(Mid(u"abc", 4));  // past the end: empty
  EXPECT_NO_THROW(Chr(-32768));
}

// Every error the runtime raises reads in Chinese: no description is a
// sentence of Latin letters only.
TEST(RuntimeError, EveryNumberHasAChineseDescription) {
  for (const ErrorText& t : RuntimeErrorTexts()) {
    const std::u16string text = FromUtf8(t.description);
    const bool chinese =
        std::any_of(text.begin(), text.end(), [](char16_t c) { return c >= 0x3000; });
    EXPECT_TRUE(chinese) << t.number << " " << t.description;
    try {
      throw RuntimeError(t.number);
    } catch (const RuntimeError& e) {
      EXPECT_EQ(std::string(e.what()), t.description);
    }
  }
  const std::pair<int, const char*> known[] = {{kOverflow, "溢出"},
                                               {kSubscriptOutOfRange, "下标越界"},
                                               {kTypeMismatch, "类型不匹配"},
                                               {kInvalidUseOfNull, "无效使用 Null"},
                                               {kInternalError, "内部错误"}};
  for (auto [number, text] : known) EXPECT_EQ(ErrorDescription(number), text);
  try {
    RaiseOverflow();
  } catch (const RuntimeError& e) {
    EXPECT_STREQ(e.what(), "溢出");
  }
}

}  // namespace
}  // namespace lp
