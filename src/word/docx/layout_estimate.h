#pragma once
// Where things fall on the page, estimated without a layout engine: each
// paragraph takes lines by the width of its characters (a CJK character as
// wide as the font size, others half of it) at its first run's size, and
// pages break when the lines no longer fit between the margins.

#include <vector>

#include <pugixml.hpp>

#include "word/docx/story_index.h"
#include "word/docx/styles.h"

namespace word::docx {

struct PageGeometry {
  float width = 595.3f, height = 841.9f;  // A4, points
  float top = 72, bottom = 72, left = 90, right = 90;
  float linePitch = 15.6f;  // the document grid's line height, 0 if none
  float columnWidth = 0;    // the width of a text column, 0 for the whole text width
};

PageGeometry ReadPageGeometry(pugi::xml_node sectPr);

struct CaretEstimate {
  float x = 0, y = 0;    // points from the page's left and top edges
  float paragraphY = 0;  // the top of the caret's paragraph, its spacing before included
  int page = 0;
  // The positions spanned by the paragraphs of the caret's page.
  long pageStart = 0, pageEnd = 0;
};

CaretEstimate EstimateCaret(const StoryIndex& body, const StyleSheet& styles,
                            const PageGeometry& page, long pos);

}  // namespace word::docx
