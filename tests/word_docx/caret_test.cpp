// The caret survives between runs as a hidden bookmark: positions all through
// every corpus document, end-of-row marks included, are stored and read back.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "docx_test_util.h"
#include "word/docx/docx_application.h"
#include "word/docx/docx_document.h"

namespace word::docx {
namespace {

namespace fs = std::filesystem;

// A simple field keeps its code in an attribute: a caret inside it is kept
// behind the field, the nearest place a bookmark can stand.
long Storable(const StoryIndex& ix, long pos) {
  for (const FieldSpan& f : ix.fields)
    if (std::string(f.begin.name()) == "w:fldSimple" && f.beginPos < pos && pos <= f.sepPos + 1)
      return f.endPos + 1;
  return pos;
}

long StoredCaret(DocxDocument& doc) {
  for (const BookmarkSpan& b : doc.MainStory().Index().bookmarks)
    if (b.name == "_lpCaret") return b.start;
  return -1;
}

TEST(Caret, PositionsOfEveryCorpusDocumentAreStored) {
  long checked = 0;
  for (const auto& e : fs::recursive_directory_iterator(testing::Corpus("docx"))) {
    if (e.path().extension() != ".docx") continue;
    std::unique_ptr<DocxApplication> app;
    try {
      app = OpenDocx(e.path());
    } catch (const DocxFileError&) {
      continue;
    }
    SCOPED_TRACE(e.path().filename().string());
    DocxDocument& doc = app->Document();
    const long length = doc.MainStory().Length();
    // Positions in an even stride, and the first end-of-row marks.
    const long stride = std::max(1L, length / 12);
    doc.MarkChanged();  // stores the caret even where it already stands
    int rowEnds = 0;
    for (long pos = 0; pos < length; ++pos) {
      const StoryIndex& ix = doc.MainStory().Index();
      const bool rowEnd = ix.segments[ix.SegmentAt(pos)].kind == SegKind::RowEnd;
      if (rowEnd ? ++rowEnds > 8 : pos % stride != 0) continue;
      const long expected = Storable(ix, pos);
      app->Selection().SetStart(pos);
      app->Selection().SetEnd(pos);
      doc.StoreCaret();
      ASSERT_EQ(StoredCaret(doc), expected) << pos;
      doc.RemoveCaretMarkers();
      ++checked;
    }
  }
  EXPECT_GT(checked, 2000);
}

}  // namespace
}  // namespace word::docx
