#include "connector_test.h"

#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "session/document_init.h"
#include "word/com/com_word.h"
#include "word/fake/fake_word.h"

namespace comtest {

namespace {

// The error a call raised, or number 0 when it raised none.
template <class F>
word::ComError Raised(F&& call) {
  try {
    call();
  } catch (const word::ComError& e) {
    return e;
  }
  return word::ComError(0, "");
}

// The boxes Document_Init shows through a connector, and whether it connected.
std::string DocumentInitBoxes(lp::WordConnector& connector, bool& connected) {
  lp::RecordingPrompt prompt;
  lp::Session session(prompt);
  connected = lp::Document_Init(session, connector, [] {}) || session.WordApp;
  std::string boxes;
  for (const auto& box : prompt.Shown())
    boxes += lp::ToUtf8(box.title) + " | " + lp::ToUtf8(box.prompt) + "\n";
  return boxes;
}

}  // namespace

void CheckConnectorWithoutWord(Checks& checks) {
  auto connector = word::com::MakeComConnector();
  word::ComError attach = Raised([&] { connector->GetObject(); });
  checks.Check(attach.Number() != 0, "GetObject without Word raises an error");
  word::ComError start = Raised([&] { connector->CreateObject(); });
  checks.Check(start.Number() == 429 && std::string(start.what()) == "ActiveX 部件不能创建对象",
               "CreateObject without Word raises 429",
               "  raised " + std::to_string(start.Number()) + " " + start.what());

  // The session reports it as the fake's Word that can't be started does.
  bool connected = true, fakeConnected = true;
  std::string boxes = DocumentInitBoxes(*connector, connected);
  word::fake::FakeWord fake;
  word::fake::FakeConnector none(fake);
  none.running = false;
  none.canStart = false;
  std::string expected = DocumentInitBoxes(none, fakeConnected);
  checks.Check(!connected && boxes == expected && boxes.find("错误号: 429 | ActiveX") == 0,
               "Document_Init without Word reports 429 and connects nothing",
               "  shown: " + boxes + "  as the fake: " + expected);
}

}  // namespace comtest
