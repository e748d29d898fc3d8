#include "runtime/text.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

TEST(Text, CutsAndFindsByOneBasedPositions) {
  std::u16string s = u"abcabc";
  EXPECT_EQ(Len(s), 6);
  EXPECT_EQ(Mid(s, 2, 3), u"bca");
  EXPECT_EQ(Mid(s, 5), u"bc");
  EXPECT_EQ(Mid(s, 7), u"");
  EXPECT_EQ(Mid(s, 5, 10), u"bc");
  EXPECT_THROW(Mid(s, 0, 1), RuntimeError);
  EXPECT_EQ(Left(s, 2), u"ab");
  EXPECT_EQ(Left(s, 10), s);
  EXPECT_EQ(Right(s, 2), u"bc");
  EXPECT_EQ(Right(s, 10), s);
  EXPECT_EQ(InStr(s, u"c"), 3);
  EXPECT_EQ(InStr(4, s, u"c"), 6);
  EXPECT_EQ(InStr(s, u"d"), 0);
  EXPECT_EQ(InStr(s, u""), 1);
  EXPECT_EQ(InStr(7, s, u"a"), 0);
  EXPECT_EQ(InStrText(u"SIN(x)", u"sin"), 1);
  EXPECT_EQ(InStrText(u"1／2", u"/"), 2);
  EXPECT_EQ(InStr(u"SIN(x)", u"sin"), 0);
  EXPECT_EQ(InStrRev(s, u"bc"), 5);
  EXPECT_EQ(InStrRev(s, u"bc", 5), 2);
  EXPECT_EQ(InStrRev(s, u"z"), 0);
}

TEST(Text, RewritesWholeStrings) {
  EXPECT_EQ(Replace(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(Replace(u"log(x)log", u"log", u"ln"), u"ln(x)ln");
  EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
  using Pieces = std::vector<std::u16string>;
  EXPECT_EQ(Split(u"3,5,,4", u","), (Pieces{u"3", u"5", u"", u"4"}));
  EXPECT_EQ(Split(u"2:1", u"@@"), Pieces{u"2:1"});
  EXPECT_EQ(Split(u"a@@b@@", u"@@"), (Pieces{u"a", u"b", u""}));
  EXPECT_TRUE(Split(u"", u",").empty());
  EXPECT_EQ(Trim(u"  a b \u3000"), u"a b");
  EXPECT_EQ(LTrim(u"  a "), u"a ");
  EXPECT_EQ(RTrim(u"  a "), u"  a");
  EXPECT_EQ(LCase(u"Sin X 中Ä"), u"sin x 中ä");
  EXPECT_EQ(UCase(u"sqr(x)ä"), u"SQR(X)Ä");
  EXPECT_EQ(StrConvNarrow(u"（１，２）：ＡＢ\u3000中。"), u"(1,2):AB 中。");
  EXPECT_EQ(Chr(65), u"A");
  EXPECT_EQ(Asc(u"中"), 0x4E2D);
  EXPECT_THROW(Asc(u""), RuntimeError);
}

TEST(Utf8, ConvertsBothWays) {
  std::u16string text = u"x²+中文 😀";
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
  EXPECT_EQ(ToUtf8(u"中"), "\xE4\xB8\xAD");
  EXPECT_EQ(FromUtf8("a\xFF"
                     "b"),
            u"a\uFFFDb");
  EXPECT_EQ(FromUtf8("\xE4\xB8"), u"\uFFFD\uFFFD");
  EXPECT_EQ(ToUtf8(std::u16string(1, 0xD800)), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace lp
