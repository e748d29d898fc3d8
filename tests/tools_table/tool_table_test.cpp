#include <gtest/gtest.h>

#include "launcher/command_table.h"
#include "runtime/utf8.h"
#include "tools/tool_table.h"

namespace lp {
namespace {

std::string Name(std::u16string_view word) {
  return ToUtf8(std::u16string(word));
}

// Every built row of the command table is served, and nothing is bound to a
// word or form that no built row names, so a tool is switched on in one
// place and bound in one place.
TEST(ToolTable, BuiltRowsAndBindingsMatch) {
  for (const CommandRow& row : kCommandTable) {
    if (!row.built) continue;
    if (row.how == How::kRoutine) {
      EXPECT_NE(FindRoutine(tools::Routines(), row.word), nullptr) << Name(row.word);
    } else {
      EXPECT_NE(tools::FindForm(row.form), nullptr) << Name(row.form);
    }
  }
  for (const RoutineBinding& binding : tools::Routines()) {
    const CommandRow& row = FindCommand(binding.word);
    EXPECT_TRUE(row.built && row.how == How::kRoutine && row.word == binding.word)
        << Name(binding.word);
  }
}

}  // namespace
}  // namespace lp
