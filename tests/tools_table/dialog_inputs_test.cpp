// Every dialog of the tool table, driven with input a teacher should never
// type: overflowing, empty, full-width and absurd. Whatever each button does
// with it, no error leaves the guard and what the run typed before stays.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <filesystem>

#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "tools/tool_table.h"
#include "word/docx/docx_application.h"

namespace lp {
namespace {

namespace fs = std::filesystem;

const char16_t* const kSeed = u"第一题已经写好。";

const std::u16string kInputs[] = {
    u"1e400", u"-1e400",     std::u16string(400, u'9'),
    u"",      u"１２３４５", u"ｘ＾２＋１＝０",
    u"(((",   u"?*#@!",      u"-0",
    u"   ",   u"2147483648", u"0.000000000000000000001",
};

void Fill(QWidget& form, const std::u16string& input) {
  const QString text = QString::fromStdU16String(input);
  for (auto* edit : form.findChildren<QLineEdit*>()) edit->setText(text);
  for (auto* edit : form.findChildren<QTextEdit*>()) edit->setPlainText(text);
  for (auto* edit : form.findChildren<QPlainTextEdit*>()) edit->setPlainText(text);
}

TEST(DialogInputs, NoInputEscapesTheGuardOrLosesEarlierWork) {
  int argc = 1;
  char name[] = "dialog_inputs_test";
  char* argv[] = {name};
  QApplication qt(argc, argv);
  const fs::path dir = fs::temp_directory_path() / ("lp_inputs_" + std::to_string(::getpid()));
  fs::create_directories(dir);
  auto app = word::docx::OpenDocx(dir / "sheet.docx");
  app->Selection().TypeText(kSeed);
  RecordingPrompt prompt;
  Session session(*app, prompt);
  session.databasePath = (dir / "config.db").string();
  session.headless = true;
  session.formulaTimeLimit = std::chrono::milliseconds(500);
  int ended = 0, clicks = 0;
  session.EndRun = [&] { ++ended; };
  for (const tools::FormBinding& binding : tools::Forms()) {
    for (const std::u16string& input : kInputs) {
      // Each button of a fresh dialog, as each may end the run.
      session.WordApp = app.get();
      const size_t buttons = binding.make(session)->findChildren<QAbstractButton*>().size();
      for (size_t b = 0; b < buttons; ++b) {
        session.WordApp = app.get();
        std::unique_ptr<ui::Form> form = binding.make(session);
        Fill(*form, input);
        QAbstractButton* button = form->findChildren<QAbstractButton*>()[static_cast<int>(b)];
        SCOPED_TRACE(ToUtf8(std::u16string(binding.name)) + " " +
                     button->objectName().toStdString() + " \"" + ToUtf8(input.substr(0, 20)) +
                     "\"");
        EXPECT_NO_THROW(button->click());
        ++clicks;
        QCoreApplication::processEvents();
      }
    }
  }
  EXPECT_GE(clicks, static_cast<int>(std::size(kInputs)) * 4);
  EXPECT_GT(ended, 0);
  EXPECT_NE(app->ActiveDocument().Content()->Text().find(kSeed), std::u16string::npos);
  fs::remove_all(dir);
}

}  // namespace
}  // namespace lp
