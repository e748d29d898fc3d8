// Seeds: corpus/ here, and the .docx files of ../shared/corpus/docx.
#include <cstddef>
#include <cstdint>
#include <string>

#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"
#include "word/docx/selection.h"
#include "word/docx/xml_part.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  try {
    auto package =
        word::docx::Package::FromBytes(std::string(reinterpret_cast<const char*>(data), size));
    word::docx::DocxDocument doc(std::move(package), "fuzz.docx");
    auto& sel = doc.Selection();
    sel.TypeText(u"x\ty");
    sel.TypeParagraph();
    sel.MoveLeft(word::wdCharacter, 3, word::wdExtend);
    sel.Font().SetSuperscript(word::wdToggle);
    sel.Fields().Add(*sel.Range(), word::wdFieldEmpty, u"EQ \\F(1,2)", false);
    doc.Content()->Text();
    doc.Fields().ToggleShowCodes();
    doc.Content()->Characters().Count();
    word::docx::SerializeXml(doc.DocumentXml());
  } catch (const word::docx::DocxFileError&) {
  } catch (const word::ComError&) {
  }
  return 0;
}
