#include <cstring>

#include "word/docx/docx_application.h"
#include "word/docx/range_impl.h"
#include "word/docx/xml_part.h"
#include "word/errors.h"

namespace word::docx {
namespace {

const char* const kMathNs = "http://schemas.openxmlformats.org/officeDocument/2006/math";
const char* const kWordNs = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

}  // namespace

void InsertOmml(word::Range& where, const std::string& ommlXml) {
  auto* holder = dynamic_cast<const PlaceHolder*>(&where);
  if (!holder) throw ObjectNotAvailable();
  const Place& place = holder->GetPlace();
  pugi::xml_document fragment;
  std::string wrapped = std::string("<root xmlns:m=\"") + kMathNs + "\" xmlns:w=\"" + kWordNs +
                        "\">" + ommlXml + "</root>";
  if (!ParseXml(wrapped, fragment)) throw ObjectNotAvailable("公式的 XML 无法读取。");
  pugi::xml_node math = fragment.child("root").first_child();
  while (math && math.type() != pugi::node_element) math = math.next_sibling();
  if (!math || (std::strcmp(math.name(), "m:oMath") && std::strcmp(math.name(), "m:oMathPara")))
    throw ObjectNotAvailable("不是公式的 XML。");
  math.remove_attribute("xmlns:m");
  math.remove_attribute("xmlns:w");
  pugi::xml_node root = place.doc->DocumentXml().document_element();
  if (!root.attribute("xmlns:m")) root.append_attribute("xmlns:m") = kMathNs;
  Story& story = *place.story;
  long start = place.Start();
  story.Delete(start, place.End());
  story.InsertInline(start, math, 1);
}

}  // namespace word::docx
