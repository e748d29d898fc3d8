// The fraction and radical dialogs, offscreen: what they type, what they
// refuse, and the state they keep between runs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>

#include "formula/frmFraction.h"
#include "formula/frmRadicalExpression.h"
#include "runtime/recording_prompt.h"
#include "word/fake/fake_word.h"

namespace lp {
namespace {

class ExactFormDialogs : public ::testing::Test {
 protected:
  void SetUp() override {
    session.databasePath = (std::filesystem::temp_directory_path() /
                            ("lp_exact_forms_" + std::to_string(::getpid()) + ".db"))
                               .string();
    session.EndRun = [] {};
  }
  void TearDown() override { std::filesystem::remove(session.databasePath); }

  int FieldsAdded(const std::string& code) const {
    int n = 0;
    for (const std::string& call : word.Calls())
      if (call.find("Fields.Add") != std::string::npos &&
          (code.empty() || call.find(code) != std::string::npos))
        ++n;
    return n;
  }
  template <class T>
  T* Child(QWidget& form, const char* name) {
    return form.findChild<T*>(QString::fromLatin1(name));
  }

  int argc = 1;
  char name[16] = "exact_forms";
  char* argv[1] = {name};
  QApplication qt{argc, argv};
  word::fake::FakeWord word;
  RecordingPrompt prompt;
  Session session{word, prompt};
};

TEST_F(ExactFormDialogs, FractionTypesDecimalsPaletteAndRefusesBadInput) {
  {
    frmFraction form(session);
    Child<QRadioButton>(form, "optKind_1")->setChecked(true);
    Child<QLineEdit>(form, "txtDecimal")->setText(QStringLiteral("12.5"));
    Child<QPushButton>(form, "cmdOK")->click();
    EXPECT_EQ(FieldsAdded("EQ \\F(25,2)"), 1);
    Child<QPushButton>(form, "cmdCommon_4")->click();
    EXPECT_EQ(FieldsAdded("EQ \\F(3,4)"), 1);
    Child<QLineEdit>(form, "txtDecimal")->setText(QStringLiteral("1.2.3"));
    Child<QPushButton>(form, "cmdOK")->click();
    EXPECT_EQ(FieldsAdded(""), 2);
    ASSERT_EQ(prompt.Shown().size(), 1u);
    EXPECT_EQ(prompt.Shown()[0].prompt.substr(0, 5), u"请输入有限");
    form.close();
  }
  frmFraction again(session);
  EXPECT_TRUE(Child<QRadioButton>(again, "optKind_1")->isChecked());
  EXPECT_EQ(Child<QLineEdit>(again, "txtDecimal")->text(), QStringLiteral("1.2.3"));
}

TEST_F(ExactFormDialogs, RadicalIsSimplifiedAndRemembered) {
  {
    frmRadicalExpression form(session);
    Child<QLineEdit>(form, "txtXiShu")->setText(QStringLiteral("3"));
    Child<QLineEdit>(form, "txtBeiKaiFang")->setText(QStringLiteral("72"));
    Child<QPushButton>(form, "cmdOK")->click();
    EXPECT_EQ(FieldsAdded("EQ 18\\R(,2)"), 1);
    Child<QLineEdit>(form, "txtGenZhiShu")->setText(QStringLiteral("1"));
    Child<QPushButton>(form, "cmdOK")->click();
    EXPECT_EQ(FieldsAdded(""), 1);
    EXPECT_EQ(prompt.Shown().size(), 1u);
    form.close();
  }
  frmRadicalExpression again(session);
  EXPECT_EQ(Child<QLineEdit>(again, "txtBeiKaiFang")->text(), QStringLiteral("72"));
}

}  // namespace
}  // namespace lp
