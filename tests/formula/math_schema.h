#pragma once
// Equations checked against the math schema of the document format with
// xmllint (LP_XSD_DRIVER names the schema's driver).

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace lp {

// xmllint's exit code for the equations (m:oMath elements, one after the
// other) in one m:oMathPara; -1 when xmllint is missing.
inline int CheckMathAgainstSchema(const std::string& equations, const std::string& name) {
  if (std::system("xmllint --version >/dev/null 2>&1") != 0) return -1;
  const auto file = std::filesystem::temp_directory_path() / ("lp_" + name + "_check.xml");
  std::ofstream(file)
      << "<m:oMathPara xmlns:m=\"http://schemas.openxmlformats.org/officeDocument/2006/math\" "
         "xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\">"
      << equations << "</m:oMathPara>\n";
  const std::string command =
      "xmllint --noout --schema " LP_XSD_DRIVER " " + file.string() + " >/dev/null 2>&1";
  const int code = std::system(command.c_str());
  std::filesystem::remove(file);
  return code;
}

}  // namespace lp
