// Replacing text across run boundaries: a paragraph's w:t elements are read
// as one text, where anything that is not text (a tab, a field mark, an
// object) stands as a stop no match can cross.

#include <cstring>
#include <string>
#include <vector>

#include "word/docx/batch_edits.h"
#include "word/docx/field_runs.h"
#include "word/docx/xml_part.h"

namespace word::docx {
namespace {

const char kStop = '\x01';  // never in XML text

struct Piece {
  pugi::xml_node t;  // empty for a stop
  size_t start = 0;
  std::string text;
};

// The text pieces of a paragraph, not descending into text boxes (their
// paragraphs are read on their own) nor properties.
void Collect(pugi::xml_node node, std::vector<Piece>& pieces) {
  for (pugi::xml_node c = node.first_child(); c; c = c.next_sibling()) {
    if (c.type() != pugi::node_element || Named(c, "w:pPr") || Named(c, "w:rPr")) continue;
    if (Named(c, "w:t")) {
      pieces.push_back({c, 0, c.text().get()});
    } else if (!c.first_child() || Named(c, "w:txbxContent") || Named(c, "w:instrText") ||
               Named(c, "w:delText")) {
      if (pieces.empty() || pieces.back().t) pieces.push_back({{}, 0, std::string(1, kStop)});
    } else {
      Collect(c, pieces);
    }
  }
}

void Store(Piece& piece) {
  if (piece.text.empty()) {
    RemoveFromRun(piece.t);
    return;
  }
  piece.t.text().set(piece.text.c_str());
  if (!piece.t.attribute("xml:space")) piece.t.append_attribute("xml:space") = "preserve";
}

long ReplaceIn(pugi::xml_node paragraph, const std::string& findText,
               const std::string& replacement) {
  std::vector<Piece> pieces;
  Collect(paragraph, pieces);
  std::string whole;
  for (Piece& p : pieces) {
    p.start = whole.size();
    whole += p.text;
  }
  std::vector<size_t> matches;
  for (size_t at = whole.find(findText); at != std::string::npos;
       at = whole.find(findText, at + findText.size()))
    matches.push_back(at);
  if (matches.empty()) return 0;
  std::vector<bool> touched(pieces.size());
  auto pieceAt = [&](size_t offset) {
    size_t i = pieces.size() - 1;
    while (pieces[i].start > offset) --i;
    return i;
  };
  // From the last match, so that the earlier offsets inside a piece still hold.
  for (auto m = matches.rbegin(); m != matches.rend(); ++m) {
    const size_t end = *m + findText.size();
    const size_t first = pieceAt(*m), last = pieceAt(end - 1);
    std::string tail = pieces[last].text.substr(end - pieces[last].start);
    for (size_t i = first + 1; i < last; ++i) pieces[i].text.clear(), touched[i] = true;
    Piece& head = pieces[first];
    head.text = head.text.substr(0, *m - head.start) + replacement;
    if (last == first) {
      head.text += tail;
    } else {
      pieces[last].text = tail;  // the rest keeps its own run's format
      touched[last] = true;
    }
    touched[first] = true;
  }
  for (size_t i = 0; i < pieces.size(); ++i)
    if (touched[i]) Store(pieces[i]);
  return static_cast<long>(matches.size());
}

}  // namespace

long ReplaceParagraphText(pugi::xml_node root, const std::string& findText,
                          const std::string& replacement) {
  if (findText.empty()) return 0;
  long done = 0;
  for (const pugi::xpath_node& x : root.select_nodes(".//w:p"))
    done += ReplaceIn(x.node(), findText, replacement);
  return done;
}

}  // namespace word::docx
