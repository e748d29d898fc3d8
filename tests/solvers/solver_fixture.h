#pragma once
// A fresh .docx, a settings file and a session over them, for the solvers'
// tests that read their worked solutions back from word/document.xml.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "document_text.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "word/docx/docx_application.h"
#include "session/session.h"

namespace lp::testing {

class SolverDocument : public ::testing::Test {
 protected:
  void SetUp() override {
    auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir = std::filesystem::temp_directory_path() /
          (std::string("lp_solvers_") + info->test_suite_name() + "_" + info->name());
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    Reopen();
  }
  void TearDown() override { std::filesystem::remove_all(dir); }

  // A new empty document, the settings file kept.
  void Reopen() {
    session.reset();
    app.reset();
    std::filesystem::remove(dir / "doc.docx");
    app = word::docx::OpenDocx(dir / "doc.docx");
    session = std::make_unique<Session>(*app, prompt);
    session->databasePath = (dir / "config.db").string();
    session->programFolder = dir.u16string();
  }
  // Saves and reads the body back as text.
  std::string Text() {
    app->SaveIfChanged();
    return DocumentText(dir / "doc.docx");
  }
  std::string Part(const std::string& name) {
    app->SaveIfChanged();
    return PackagePart(dir / "doc.docx", name);
  }

  std::filesystem::path dir;
  std::unique_ptr<word::docx::DocxApplication> app;
  RecordingPrompt prompt;
  std::unique_ptr<Session> session;
};

}  // namespace lp::testing
