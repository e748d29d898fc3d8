#include "formula/formula_mode.h"

#include <istream>
#include <ostream>

#include "runtime/utf8.h"

namespace lp {
namespace {

// One result line; false when the formula timed out.
bool ConvertLine(const std::string& line, const FormulaGenerator& generate,
                 std::chrono::milliseconds limit, std::ostream& out) {
  try {
    out << ToUtf8(generate(FromUtf8(line), DriverControl::WithTimeout(limit))) << '\n';
    return true;
  } catch (const FormulaAborted&) {
    out << "error: timeout\n";
    return false;
  }
}

}  // namespace

int RunFormulaMode(const std::vector<std::string>& args, const FormulaGenerator& generate,
                   std::chrono::milliseconds limit, std::istream& in, std::ostream& out,
                   std::ostream& err) {
  if (args.empty()) {
    err << "usage: TEXT, or - to read one formula per line\n";
    return 2;
  }
  if (args[0] != "-") return ConvertLine(args[0], generate, limit, out) ? 0 : 3;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    ConvertLine(line, generate, limit, out);
    out.flush();
  }
  return 0;
}

FormulaSettings ToFormulaSettings(const ConfigGlobals& config) {
  return FormulaSettings{config.blFS != 0, config.blPLZH != 0};
}

}  // namespace lp
