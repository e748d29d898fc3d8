#include "word/docx/field_runs.h"

#include <cctype>
#include <cstring>

#include "word/docx/xml_part.h"

namespace word::docx {

std::vector<FieldRuns> OutermostFields(pugi::xml_node root) {
  std::vector<FieldRuns> fields;
  int depth = 0;
  for (pugi::xml_node run : DescendantsNamed(root, {"w:r", "w:fldSimple"})) {
    if (Named(run, "w:fldSimple")) {
      if (depth > 0) continue;
      FieldRuns f;
      f.instruction = run.attribute("w:instr").value();
      f.simple = run;
      f.runs = DescendantsNamed(run, {"w:r"});
      fields.push_back(std::move(f));
      continue;
    }
    for (pugi::xml_node c = run.first_child(); c; c = c.next_sibling()) {
      const bool mark = Named(c, "w:fldChar"), code = Named(c, "w:instrText");
      const std::string type = mark ? c.attribute("w:fldCharType").value() : "";
      if (type == "begin" && depth++ == 0) fields.emplace_back();
      if (depth == 0) continue;
      FieldRuns& f = fields.back();
      if (f.runs.empty() || f.runs.back() != run) f.runs.push_back(run);
      if (depth == 1 && (mark || code)) f.marks.push_back(c);
      if (depth == 1 && code) f.instruction += c.text().get();
      if (type == "end") --depth;
    }
  }
  return fields;
}

std::string FieldKeyword(const std::string& instruction) {
  size_t start = instruction.find_first_not_of(" \t");
  if (start == std::string::npos) return {};
  size_t end = instruction.find_first_of(" \t\\", start);
  std::string word = instruction.substr(start, end == std::string::npos ? end : end - start);
  for (char& c : word) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return word;
}

void RemoveFromRun(pugi::xml_node node) {
  pugi::xml_node run = node.parent();
  run.remove_child(node);
  if (std::strcmp(run.name(), "w:r") != 0) return;
  for (pugi::xml_node c = run.first_child(); c; c = c.next_sibling())
    if (std::strcmp(c.name(), "w:rPr") != 0) return;
  run.parent().remove_child(run);
}

}  // namespace word::docx
