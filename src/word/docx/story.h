#pragma once
// One story of the document and the edits made to it. Positions are those of
// StoryIndex; every edit moves the live spans (ranges, the selection) the way
// Word moves its ranges.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "word/docx/char_format.h"
#include "word/docx/story_index.h"

namespace word::docx {

struct Span {
  long start = 0;
  long end = 0;
};

class Story;

class StoryOwner : public FieldDisplay {
 public:
  virtual void StoryChanged() = 0;
  // `node`, at position pos of the story, is about to leave the document
  // with everything it holds.
  virtual void Removing(Story& story, long pos, pugi::xml_node node) = 0;
  // Where the document tracks revisions, edits are recorded as w:ins and w:del
  // stamped with an id, the author and the time.
  virtual bool TracksRevisions() { return false; }
  virtual void StampRevision(pugi::xml_node) {}
  virtual std::string RevisionAuthor() const { return {}; }
};

// The format typed text takes: a run's properties to copy, then the
// properties set on the selection since it last moved.
struct TypingFormat {
  pugi::xml_node sourceRPr;  // may be empty
  CharFormat overlay;
};

// Shared by the document and every range on it, so that a range outliving
// its story (a deleted text box) still finds it, dropped.
class Story : public std::enable_shared_from_this<Story> {
 public:
  Story(pugi::xml_node container, StoryOwner& owner) : container_(container), owner_(owner) {}

  pugi::xml_node Container() const { return container_; }
  // The story's XML is gone with its shape: from now on every use raises
  // "Object has been deleted." instead of reaching the freed nodes.
  void Drop();
  // Throws ComError 5825 for a dropped story.
  void CheckLive() const;
  const StoryIndex& Index();
  long Length() { return Index().length; }
  // The index is stale after XML changes made elsewhere (the shape layer).
  void Invalidate() { stale_ = true; }

  std::shared_ptr<Span> Track(long start, long end);

  // The properties text typed at pos takes before any selection overlay.
  pugi::xml_node FormatSourceAt(long pos);
  // What replaces [start, end) takes the properties of the first character it
  // replaces; an empty range types as at start.
  pugi::xml_node ReplacementFormat(long start, long end);
  void InsertText(long pos, const std::u16string& text, const TypingFormat& format,
                  bool forceCode = false);
  void InsertParagraph(long pos);
  void Delete(long start, long end);
  void ApplyFormat(long start, long end, const CharFormat& format);
  // Inserts a copy of a run-level node (a field mark run, an equation) at pos;
  // `positions` is how many positions it holds.
  pugi::xml_node InsertInline(long pos, const pugi::xml_node& prototype, long positions);
  // Turns the text of [start, end) into field code text (w:instrText).
  void TextToCode(long start, long end);
  // Inserts a zero-width element (bookmark start or end) at pos.
  pugi::xml_node InsertMarker(long pos, const char* name);
  // Appends a copy of a run holding one object (a floating shape's anchor) to
  // the paragraph, before its mark. Without a format of its own the run takes
  // the one text typed there would take, which text typed after it continues.
  pugi::xml_node AppendObjectRun(pugi::xml_node paragraph, const pugi::xml_node& run);
  // Takes out a run-level node with the positions it holds.
  void RemoveRunLevel(pugi::xml_node node);

  // The run-level node that starts with the position, after splitting.
  pugi::xml_node SplitBefore(long pos);
  // The run-level node that ends with the position, after splitting.
  pugi::xml_node SplitAfter(long pos);

 private:
  void Changed();
  void AdjustInsert(long pos, long count);
  void AdjustDelete(long start, long end);
  void InsertPiece(long pos, const std::u16string& piece, pugi::xml_node rPr, bool forceCode);
  bool JoinsText(const Segment* prev, const char* element, pugi::xml_node rPr);
  pugi::xml_node PlaceInline(long pos, const pugi::xml_node& prototype, bool tracked);
  // Deleting with revisions tracked: the text stays, inside w:del; the
  // author's own insertions go for good.
  void TrackDeletion(long start, long end);
  bool OwnInsertion(pugi::xml_node runLevel) const;
  void DeleteSegments(long start, long end, bool onlyOwnInsertions);
  // The segment at pos when it is inside a run (not a mark).
  std::optional<Segment> RunContentAt(long pos);
  void DeleteSegmentPart(const Segment& s, long from, long to);
  void DeleteSimpleField(const Segment& begin, long start, long end);
  bool MergeParagraphAt(const Segment& mark);

  pugi::xml_node container_;
  StoryOwner& owner_;
  StoryIndex index_;
  bool stale_ = true;
  bool dropped_ = false;
  std::vector<std::weak_ptr<Span>> spans_;
};

}  // namespace word::docx
