// EQ field codes into Office Math: each construct lumenpad writes, the
// looks of the characters, what is refused, and every formula of the corpus
// as gs codes it, against the math schema of the document format.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "../shared_material.h"
#include "formula/eq_code.h"
#include "formula/eq_to_omml.h"
#include "formula/generators.h"
#include "math_schema.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

bool IsLatinLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// The code with the looks the font pass gives it: letters italic and digits
// upright in Times New Roman, each grave accent the next greek key in the
// Symbol font, signs in the paragraph's font.
std::vector<word::CodeCharacter> Looked(const std::u16string& code,
                                        const std::vector<std::u16string>& greek = {}) {
  std::vector<word::CodeCharacter> out;
  size_t nextGreek = 0;
  for (char16_t c : code) {
    word::CodeCharacter cc{c, {}, false, false, 10.5f};
    if (c == u'`' && nextGreek < greek.size()) {
      cc = {greek[nextGreek++][0], u"Symbol", true, false, 10.5f};
    } else if (IsLatinLetter(c) || (c >= u'0' && c <= u'9')) {
      cc.font = u"Times New Roman";
      cc.italic = IsLatinLetter(c);
    }
    out.push_back(cc);
  }
  return out;
}

std::string Convert(const std::u16string& code) {
  return EqFieldToOmml(Looked(code)).value_or("(refused)");
}

struct ConversionRow {
  const char* name;
  const char16_t* code;
  std::vector<const char*> expected;  // parts of the equation, or "(refused)"
};

// Each row's code converts to an equation holding each expected part; the
// equations must also satisfy the math schema.
void ExpectConversions(const std::vector<ConversionRow>& rows, const std::string& name) {
  std::string equations;
  for (const ConversionRow& row : rows) {
    const std::string omml = Convert(row.code);
    for (const char* part : row.expected)
      EXPECT_NE(omml.find(part), std::string::npos) << row.name << ": " << omml;
    if (omml != "(refused)") equations += omml + "\n";
  }
  LP_SKIP_WITHOUT_SHARED(LP_XSD_DRIVER);
  const int check = CheckMathAgainstSchema(equations, name);
  if (check == -1) GTEST_SKIP() << "no xmllint";
  EXPECT_EQ(check, 0);
}

TEST(EqToOmml, EveryConstructLumenpadWrites) {
  ExpectConversions(
      {
          {"Fraction", u"EQ \\F(a＋b,c＋d)", {"<m:f><m:num>", "+</m:t>", "</m:num><m:den>"}},
          {"SquareRoot", u"EQ \\R(,b\\S(2)－4ac)", {"<m:degHide m:val=\"1\"/>", "<m:sSup>", "−"}},
          {"RootOfOneCharacter", u"EQ \\r(2)", {"<m:rad><m:radPr><m:degHide"}},
          {"RootWithIndex", u"EQ \\R(\\S\\DO(3),x)＋1", {"<m:rad><m:deg><m:r>", ">3</m:t>"}},
          {"Power", u"EQ x\\S\\UP6(n＋1)", {"<m:sSup><m:e><m:r>", ">x</m:t>", "<m:sup>"}},
          {"PowerOfBracket",
           u"EQ (a＋b)\\S(2)",
           {"<m:sSup><m:e><m:d><m:dPr><m:begChr m:val=\"(\"/><m:endChr m:val=\")\"/>"}},
          {"LoneBracket", u"EQ (a＋b", {">(</m:t>"}},
          {"Index", u"EQ a\\S\\DO(12)", {"<m:sSub><m:e>", "<m:sub>"}},
          {"IndexAndPower", u"EQ x\\S\\DO(1)\\S(2)", {"<m:sSubSup><m:e>"}},
          {"Arrangement",
           u"EQ A\\o(\\S\\UP5(5),\\S\\DO3(3))",
           {"<m:sSubSup><m:e><m:r>", ">A</m:t>"}},
          {"ArrangementTyped", u"eq \\o(\\s\\up 5(m),\\s\\do 3(n))", {"<m:sSubSup>"}},
          {"Arc",
           u"EQ \\o\\ac(\\S\\UP7(⌒),AB)",
           {"<m:groupChr><m:groupChrPr><m:chr m:val=\"\u23DC\"/>"}},
          {"AbsoluteValue",
           u"EQ \\R(a\\S(2))＝|a|",
           {"<m:begChr m:val=\"|\"/><m:endChr m:val=\"|\"/>"}},
          {"Vector", u"EQ \\o \\ac(\\S\\UP7(→),AB)", {"<m:chr m:val=\"\u20D7\"/>"}},
          {"BarOfLetter",
           u"EQ \\o\\ac(\\S\\UP7(－),a)",
           {"<m:bar><m:barPr><m:pos m:val=\"top\"/>"}},
          {"BarOfGroup", u"EQ \\x\\to(ab)", {"<m:bar><m:barPr><m:pos m:val=\"top\"/>"}},
          {"RecurringDot", u"eq \\o(\\s\\up 3(˙),3)", {"<m:chr m:val=\"\u0307\"/>", ">3</m:t>"}},
          {"System",
           u"EQ \\B\\lc\\{(\\a\\al(x＋y＝1,x－y＝3))",
           {"<m:d><m:dPr><m:begChr m:val=\"{\"/><m:endChr m:val=\"\"/></m:dPr><m:e><m:eqArr><m:e>",
            "</m:e><m:e>"}},
          {"BothBrackets", u"EQ \\b\\bc\\[(x)", {"<m:begChr m:val=\"[\"/><m:endChr m:val=\"]\"/>"}},
          {"Matrix",
           u"EQ \\b\\bc\\[(\\a\\co2\\hs3(1,0,0,1))",
           {"<m:e><m:m><m:mr><m:e>", "</m:mr><m:mr>"}},
          {"Box", u"EQ \\x(5)＋\\x\\to\\bo\\le\\ri(6)", {"<m:borderBox><m:e>"}},
          {"List", u"EQ \\l(1,2)", {">1</m:t></m:r><m:r><m:t xml:space=\"preserve\">,</m:t>"}},
          {"EscapedComma", u"EQ \\F(1\\,5,2)", {">,</m:t>"}},
          {"Looks",
           u"EQ x1",
           {"<m:sty m:val=\"i\"/></m:rPr><w:rPr><w:rFonts w:ascii=\"Times New Roman\"",
            "<w:sz w:val=\"21\"/>"}},
      },
      "eq_constructs");
}

// The fields Word's own commands write beyond lumenpad's: integrals, sums
// and products with their limits, displacements, enclosed characters.
TEST(EqToOmml, WordsOwnFields) {
  ExpectConversions(
      {
          {"Sum",
           u"EQ \\i \\su(n=1,5,n)",
           {"<m:nary><m:naryPr><m:chr m:val=\"∑\"/><m:limLoc m:val=\"undOvr\"/><m:grow "
            "m:val=\"0\"/>"
            "</m:naryPr><m:sub><m:r>",
            ">5</m:t></m:r></m:sup><m:e><m:r>", ">n</m:t></m:r></m:e></m:nary>"}},
          {"ProductWithSquaredLimit",
           u"eq \\i\\pr(i=0,n\\s(2),\\r(i))",
           {"<m:chr m:val=\"∏\"/><m:limLoc m:val=\"undOvr\"/>", "<m:sup><m:sSup>", "<m:e><m:rad>"}},
          {"Integral",
           u"eq \\i(\\r(-3,a),\\f(1,\\r(b)),e\\s(n))",
           {"<m:chr m:val=\"∫\"/><m:limLoc m:val=\"subSup\"/>", "<m:sub><m:rad><m:deg>",
            "<m:sup><m:f>", "<m:e><m:sSup>"}},
          {"LimitsBeside",
           u"EQ \\i \\su \\in( tan x, \\s \\up2(sec x), \\b(\\r(3) )\\s \\up4(t)  dt)",
           {"<m:chr m:val=\"∑\"/><m:limLoc m:val=\"subSup\"/>", "<m:sup><m:r>",
            ">t</m:t></m:r></m:sup></m:sSup><m:r>"}},
          {"NoLimitsAndSquareBehind",
           u"EQ \\i (,,  \\b(\\f(x,x2 + 3x + 2))) \\s \\up10(2)",
           {"<m:subHide m:val=\"1\"/><m:supHide "
            "m:val=\"1\"/></m:naryPr><m:sub></m:sub><m:sup></m:sup>"
            "<m:e><m:sSup><m:e><m:d>",
            "</m:sup></m:sSup></m:e></m:nary></m:oMath>"}},
          {"OwnSignGrowing",
           u"EQ \\i\\vc\\∮(C,,f)",
           {"<m:chr m:val=\"∮\"/><m:limLoc m:val=\"subSup\"/><m:grow m:val=\"1\"/><m:supHide"}},
          {"OwnSignFixed",
           u"EQ \\i\\fc\\∯(,,f)",
           {"<m:chr m:val=\"∯\"/>", "<m:grow m:val=\"0\"/>"}},
          {"BlankWithLine",
           u"EQ A \\d \\fo30 \\li() B",
           {">A</m:t></m:r><m:bar><m:barPr><m:pos "
            "m:val=\"bot\"/></m:barPr><m:e><m:r><m:rPr><m:nor/>"
            "</m:rPr><w:rPr><w:sz w:val=\"21\"/></w:rPr><m:t "
            "xml:space=\"preserve\">\u2003\u2003\u2002"
            "\u2009</m:t></m:r></m:e></m:bar><m:r>"}},
          {"Space",
           u"EQ a\\d\\fo5()b",
           {">a</m:t></m:r><m:r><m:rPr><m:nor/></m:rPr><w:rPr><w:sz w:val=\"21\"/></w:rPr><m:t "
            "xml:space=\"preserve\">\u2002</m:t></m:r><m:r>"}},
          {"TooSmallToShow",
           u"EQ a\\d\\fo1()b",
           {">a</m:t></m:r><m:r><m:rPr><m:sty m:val=\"i\"/>"}},
          {"MoveBackOverlapsTheScript",
           u"eq V\\d\\ba8()\\s\\up9(re)\\d\\ba1()isionary",
           {"<m:oMath><m:sSup><m:e><m:r>", ">V</m:t></m:r></m:e><m:sup>",
            "</m:sup></m:sSup><m:r>"}},
          {"SpaceBetweenWords",
           u"eq V\\d\\ba8()\\s\\up9(re)\\d\\ba1()isionary Manuals",
           {">y</m:t></m:r><m:r><m:rPr><m:nor/></m:rPr><w:rPr><w:sz w:val=\"21\"/></w:rPr>"
            "<m:t xml:space=\"preserve\"> </m:t></m:r><m:r>"}},
          {"BlanksAroundSignsSetTheCodeOut", u"EQ x2 + 3 x", {">2</m:t></m:r><m:r><w:rPr><w:sz"}},
          {"ExponentOfExponent",
           u"EQ \\b(\\r(3) )\\s \\up4(t) \\s \\up7(2)",
           {"</m:d></m:e><m:sup><m:sSup><m:e><m:r>", ">t</m:t></m:r></m:e><m:sup><m:r>",
            ">2</m:t></m:r></m:sup></m:sSup></m:sup></m:sSup></m:oMath>"}},
          {"PhoneticGuide",
           u"EQ \\* jc2 \\* \"Font:宋体\" \\* hps10 \\o\\ad(\\s\\up 9(pīn),拼)",
           {"<m:oMath><m:limUpp><m:e><m:r><w:rPr><w:sz w:val=\"21\"/></w:rPr><m:t "
            "xml:space=\"preserve\">拼</m:t></m:r></m:e><m:lim><m:r>",
            "</m:lim></m:limUpp></m:oMath>"}},
          {"ScriptWithoutBase",
           u"EQ \\s\\up8(Super)Text",
           {"<m:oMath><m:sSup><m:e><m:r>", "\u200B</m:t></m:r></m:e><m:sup>"}},
          {"FormatSwitchAtTheEnd", u"EQ \\F(1,2) \\* MERGEFORMAT", {"</m:den></m:f></m:oMath>"}},
          {"CircledNumber", u"eq \\o\\ac(○,3)", {">③</m:t>"}},
          {"CircledTwenty", u"eq \\o\\ac(◯,20)", {">⑳</m:t>"}},
          {"CircledFifty", u"eq \\o\\ac(○,50)", {">㊿</m:t>"}},
          {"CircledRaisedLetter", u"eq \\o\\ac(○,\\s\\up1(A))", {">Ⓐ</m:t>"}},
          {"CircledSeal",
           u"eq \\o\\ac(○,印)",
           {"<m:oMath><m:r><w:rPr><w:sz w:val=\"21\"/></w:rPr><m:t "
            "xml:space=\"preserve\">㊞</m:t></m:r></m:oMath>"}},
          {"CircleSecond", u"eq \\o\\ac(中,\\s\\up-1(○))", {">㊥</m:t>"}},
          {"CircledOther", u"eq \\o\\ac(○,我)", {"<m:nor/>", ">我\u20DD</m:t>"}},
          {"CircledNumberBeyondFifty", u"eq \\o\\ac(○,7)＋\\o\\ac(○,51)", {"(refused)"}},
          {"Square",
           u"eq \\o\\ac(□,12)",
           {"<m:borderBox><m:e><m:r>", ">2</m:t></m:r></m:e></m:borderBox>"}},
          {"Triangle", u"eq \\o\\ac(△,1)", {"<m:nor/>", ">1\u20E4</m:t>"}},
          {"Diamond", u"eq \\o\\ac(◇,优)", {"<m:nor/>", ">优\u20DF</m:t>"}},
      },
      "eq_word_fields");
}

TEST(EqToOmml, SymbolFontCharactersBecomeUnicode) {
  std::vector<word::CodeCharacter> code = Looked(u"EQ ab");
  for (auto& c : code) c.size = 0;
  code[3] = {u'a', u"Symbol", true, false, 0};
  code[4] = {0xF070, u"SYMBOL", false, false, 0};
  const std::string omml = EqFieldToOmml(code).value_or("");
  EXPECT_NE(omml.find("<m:sty m:val=\"i\"/></m:rPr><m:t xml:space=\"preserve\">α"),
            std::string::npos)
      << omml;
  EXPECT_NE(omml.find("<m:sty m:val=\"p\"/></m:rPr><m:t xml:space=\"preserve\">π"),
            std::string::npos)
      << omml;
  EXPECT_EQ(SymbolFontCharacter(u'W'), u'Ω');
  EXPECT_EQ(SymbolFontCharacter(0xF0B3), u'≥');
  EXPECT_EQ(SymbolFontCharacter(0xF0E6), 0);  // a piece of a tall bracket
}

TEST(EqToOmml, WhatItCannotConvertIsRefused) {
  const char16_t* refused[] = {
      u"",
      u"EQ",
      u"SYMBOL 97",
      u"EQ \\F(a)",
      u"EQ \\F(a,b",
      u"EQ \\d\\fo10(a)",
      u"EQ \\d\\fo10",
      u"EQ \\i\\su(1,n)",
      u"EQ \\i\\fc(a,b,c)",
      u"EQ \\s\\up5(a,b)",
      u"EQ \\x\\to\\le(a)",
      u"EQ \\a\\co2(1,2,3)",
      u"EQ \\o\\ac(○,我们)",
      u"EQ \\Fx(a,b)",
      u"EQ \\F\\zz(a,b)",
      u"EQ a\\",
  };
  for (const char16_t* code : refused) EXPECT_EQ(Convert(code), "(refused)") << ToUtf8(code);
  std::vector<word::CodeCharacter> unknownSymbol = Looked(u"EQ a");
  unknownSymbol[3] = {0xF0E6, u"Symbol", false, false, 0};
  EXPECT_FALSE(EqFieldToOmml(unknownSymbol));
  std::u16string deep = u"EQ ";
  for (int i = 0; i < 40; ++i) deep += u"\\R(";
  EXPECT_THROW(ParseEqCode(deep), EqCodeError);
}

std::vector<std::string> Lines(const char* path) {
  std::ifstream in(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  return lines;
}

// Codes the generator writes for notation it does not understand, which
// Word shows as an error as well: a switch where an option belongs, a
// radical without its brackets, unbalanced brackets.
bool WordShowsAnError(const std::u16string& code) {
  for (const char16_t* bad : {u"\\F\\x", u"\\to\\x", u"\\ac\\x", u"\\R)", u"\\R,"})
    if (code.find(bad) != std::u16string::npos) return true;
  int depth = 0;
  for (size_t i = 0; i < code.size(); ++i) {
    if (code[i] == u'\\')
      ++i;
    else if (code[i] == u'(')
      ++depth;
    else if (code[i] == u')' && --depth < 0)
      return true;
  }
  return depth != 0;
}

TEST(EqToOmml, EveryCorpusFormulaAsGsCodesItGivesSchemaValidMath) {
  std::string equations;
  int converted = 0, written = 0;
  for (const std::string& formula : Lines(LP_FORMULA_CORPUS)) {
    for (const FormulaSettings& settings : {FormulaSettings{}, FormulaSettings{true, true}}) {
      std::u16string code;
      try {
        code = FormulaToEq(FromUtf8(formula), settings,
                           DriverControl::WithTimeout(std::chrono::milliseconds(60)));
      } catch (const FormulaAborted&) {
        continue;  // gs writes no field for it
      }
      ++written;
      const MaskedGreek greek = MaskGreek(u"EQ " + code);
      auto omml = EqFieldToOmml(Looked(SignsToWide(greek.text), greek.GreekChars));
      EXPECT_EQ(omml.has_value(), !WordShowsAnError(code)) << formula << " -> " << ToUtf8(code);
      if (!omml) continue;
      ++converted;
      equations += *omml + "\n";
    }
  }
  std::printf("%d of the %d codes gs writes for the corpus converted\n", converted, written);
  EXPECT_GE(converted, 900);
  LP_SKIP_WITHOUT_SHARED(LP_XSD_DRIVER);
  const int check = CheckMathAgainstSchema(equations, "eq_omml");
  if (check == -1) GTEST_SKIP() << "no xmllint";
  EXPECT_EQ(check, 0);
}

}  // namespace
}  // namespace lp
