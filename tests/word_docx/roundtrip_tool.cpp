// Types at the caret of a copy of a .docx and saves it, or with --new builds a
// small worksheet (superscript, an EQ field with a shrunk script) in a new
// file: the input of the schema check.
#include <filesystem>
#include <iostream>
#include <string>

#include "word/docx/docx_application.h"

namespace {

void Worksheet(word::Selection& sel) {
  sel.TypeText(u"360=2");
  sel.Font().SetSuperscript(word::wdToggle);
  sel.TypeText(u"3");
  sel.Font().SetSuperscript(word::wdToggle);
  sel.TypeText(u"×45；");
  auto field = sel.Fields().Add(*sel.Range(), word::wdFieldEmpty, u"EQ \\F(x\\S(2),2)", false);
  field->Code()->Characters();
  field->Select();
  sel.Fields().ToggleShowCodes();
  sel.Find().SetText(u"\\S(2)");
  if (sel.Find().Execute(word::wdReplaceNone)) sel.Font().SetSize(7);
  sel.Fields().ToggleShowCodes();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: docx_roundtrip_tool IN.docx|--new OUT.docx\n";
    return 2;
  }
  const bool fresh = std::string(argv[1]) == "--new";
  if (fresh)
    std::filesystem::remove(argv[2]);
  else
    std::filesystem::copy_file(argv[1], argv[2], std::filesystem::copy_options::overwrite_existing);
  try {
    auto app = word::docx::OpenDocx(argv[2]);
    if (fresh) Worksheet(app->Selection());
    app->Selection().TypeText(u"〔lumenpad〕");
    app->Selection().TypeParagraph();
    app->Selection().TypeText(u"x");
    app->SaveIfChanged();
  } catch (const word::docx::DocxFileError& e) {
    std::cerr << e.what() << "\n";
    return 2;
  }
  return 0;
}
