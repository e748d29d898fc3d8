#include "gallery/gallery_seed.h"

#include <algorithm>

#include "gallery/gallery_store.h"
#include "gallery/selection_drawing.h"
#include "runtime/text.h"
#include "runtime/utf8.h"
#include "session/files.h"
#include "settings/record_slots.h"

namespace lp::gallery {
namespace {

constexpr int kUpdateSlot = 2;
constexpr long kCaptionReach = 40;  // positions looked back for a caption

// The caption of the paragraph a figure is anchored in: its text before the
// anchor, without the colon that ends it.
std::u16string CaptionBefore(word::Document& document, long anchor) {
  std::u16string text = document.Range(std::max(0L, anchor - kCaptionReach), anchor)->Text();
  const size_t mark = text.find_last_of(u'\r');
  if (mark != std::u16string::npos) text = text.substr(mark + 1);
  text = Trim(text);
  while (!text.empty() && (text.back() == u'：' || text.back() == u':')) text.pop_back();
  return text.empty() ? u"图形" : text;
}

}  // namespace

bool GalleryWantsSeeds(const std::string& dbPath) {
  const std::u16string state = Trim(ReadRecordSlot(dbPath, kUpdateSlot));
  if (state == u"new") return true;
  return state.empty() && ListEntries(dbPath).empty();
}

int SeedGallery(Session& session) {
  const std::u16string seed = session.programFolder + kPathSeparator + u"gallery.docx";
  if (!FileExists(seed)) return 0;
  word::Document& document = session.WordApp->Documents().Open(seed, false);
  const TempFragment temp("lumenpad_seed");
  int added = 0;
  word::Shapes& shapes = document.Shapes();
  for (long i = 1; i <= shapes.Count(); ++i) {
    const std::u16string name = shapes.Item(i)->Name();
    std::unique_ptr<word::Range> span = AnchorSpan(document, {name});
    if (!span) continue;
    const std::u16string caption = CaptionBefore(document, span->Start());
    span->ExportFragment(FromUtf8(temp.path));
    if (AddEntry(session.databasePath, caption, temp.path, {name}, session.prompt)) ++added;
  }
  document.Close(false);
  WriteRecordSlot(session.databasePath, kUpdateSlot, u"UpdateOk");
  return added;
}

}  // namespace lp::gallery
