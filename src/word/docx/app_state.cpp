#include "word/docx/app_state.h"

#include <fstream>
#include <sstream>

#include "runtime/utf8.h"

namespace word::docx {

void AppState::Open(const std::filesystem::path& file) {
  file_ = file;
  std::ifstream in(file, std::ios::binary);
  std::stringstream bytes;
  bytes << in.rdbuf();
  if (!in || !xml_.load_string(bytes.str().c_str()) || !xml_.child("lumenpadWord")) xml_.reset();
}

pugi::xml_node AppState::Root() {
  pugi::xml_node root = xml_.child("lumenpadWord");
  return root ? root : xml_.append_child("lumenpadWord");
}

pugi::xml_node AppState::Find(const char* element, const char* attribute, const std::string& value,
                              const char* attribute2, const std::string& value2) const {
  for (pugi::xml_node e : xml_.child("lumenpadWord").children(element))
    if (value == e.attribute(attribute).value() &&
        (!attribute2 || value2 == e.attribute(attribute2).value()))
      return e;
  return {};
}

void AppState::Store() {
  if (file_.empty()) return;
  const std::filesystem::path temporary = file_.string() + ".tmp";
  if (!xml_.save_file(temporary.c_str(), "  ", pugi::format_default, pugi::encoding_utf8)) return;
  std::error_code error;
  std::filesystem::rename(temporary, file_, error);
}

Text AppState::Caption(const Text& bar, long control) const {
  pugi::xml_node e = Find("caption", "bar", lp::ToUtf8(bar), "control", std::to_string(control));
  return lp::FromUtf8(e.text().get());
}

void AppState::SetCaption(const Text& bar, long control, const Text& caption) {
  pugi::xml_node e = Find("caption", "bar", lp::ToUtf8(bar), "control", std::to_string(control));
  if (!e) {
    e = Root().append_child("caption");
    e.append_attribute("bar") = lp::ToUtf8(bar).c_str();
    e.append_attribute("control") = control;
  }
  e.text() = lp::ToUtf8(caption).c_str();
  Store();
}

bool AppState::Option(const std::string& name, bool fallback) const {
  pugi::xml_node e = Find("option", "name", name);
  return e ? e.attribute("on").as_bool() : fallback;
}

void AppState::SetOption(const std::string& name, bool on) {
  pugi::xml_node e = Find("option", "name", name);
  if (!e) {
    e = Root().append_child("option");
    e.append_attribute("name") = name.c_str();
    e.append_attribute("on");
  }
  e.attribute("on") = on;
  Store();
}

Text AppState::KeyCommand(const Text& templateName, long keyCode) const {
  pugi::xml_node e =
      Find("key", "template", lp::ToUtf8(templateName), "code", std::to_string(keyCode));
  return lp::FromUtf8(e.attribute("command").value());
}

void AppState::BindKey(const Text& templateName, long keyCode, const Text& command) {
  pugi::xml_node e =
      Find("key", "template", lp::ToUtf8(templateName), "code", std::to_string(keyCode));
  if (!e) {
    e = Root().append_child("key");
    e.append_attribute("template") = lp::ToUtf8(templateName).c_str();
    e.append_attribute("code") = keyCode;
    e.append_attribute("command");
  }
  e.attribute("command") = lp::ToUtf8(command).c_str();
  Store();
}

}  // namespace word::docx
