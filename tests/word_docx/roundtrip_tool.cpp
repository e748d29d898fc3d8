// Types a marker at the caret of a copy of a .docx and saves it: the input of
// the schema check of round-tripped files.
#include <filesystem>
#include <iostream>

#include "word/docx/docx_application.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: docx_roundtrip_tool IN.docx OUT.docx\n";
    return 2;
  }
  std::filesystem::copy_file(argv[1], argv[2], std::filesystem::copy_options::overwrite_existing);
  try {
    auto app = word::docx::OpenDocx(argv[2]);
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
