#include "document_text.h"

#include <pugixml.hpp>

#include <cstdio>
#include <stdexcept>

namespace lp::testing {
namespace {

std::string RunText(const pugi::xml_node& run) {
  std::string vert = run.child("w:rPr").child("w:vertAlign").attribute("w:val").value();
  std::string text;
  for (pugi::xml_node child : run.children()) {
    std::string name = child.name();
    if (name == "w:t" || name == "w:instrText") text += child.text().get();
    if (name == "w:sym")
      text += std::string("<") + child.attribute("w:font").value() + ":" +
              child.attribute("w:char").value() + ">";
    if (name == "w:fldChar") {
      std::string type = child.attribute("w:fldCharType").value();
      text += type == "begin" ? "{" : type == "end" ? "}" : "";
    }
  }
  if (text.empty()) return text;
  if (vert == "superscript") return "^(" + text + ")";
  if (vert == "subscript") return "_(" + text + ")";
  return text;
}

}  // namespace

std::string PackagePart(const std::filesystem::path& docx, const std::string& part) {
  std::string command = "unzip -p '" + docx.string() + "' '" + part + "'";
  std::FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) throw std::runtime_error("unzip");
  std::string data;
  char buffer[4096];
  for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) data.append(buffer, n);
  pclose(pipe);
  return data;
}

std::string DocumentText(const std::filesystem::path& docx) {
  pugi::xml_document xml;
  std::string data = PackagePart(docx, "word/document.xml");
  if (!xml.load_buffer(data.data(), data.size())) throw std::runtime_error("document.xml");
  std::string text;
  for (pugi::xml_node p : xml.child("w:document").child("w:body").children("w:p")) {
    for (pugi::xml_node run : p.children("w:r")) text += RunText(run);
    text += "\n";
  }
  return text;
}

}  // namespace lp::testing
