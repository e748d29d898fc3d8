#include "connector_test.h"

#include "word/com/com_word.h"

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

}  // namespace

void CheckConnectorWithoutWord(Checks& checks) {
  auto connector = word::com::MakeComConnector();
  word::ComError attach = Raised([&] { connector->GetObject(); });
  checks.Check(attach.Number() != 0, "GetObject without Word raises an error");
  word::ComError start = Raised([&] { connector->CreateObject(); });
  checks.Check(start.Number() == 429 && std::string(start.what()) == "ActiveX 部件不能创建对象",
               "CreateObject without Word raises 429",
               "  raised " + std::to_string(start.Number()) + " " + start.what());
}

}  // namespace comtest
