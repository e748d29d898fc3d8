#pragma once
// The figure gallery in the settings store: each row of `big` above id 2 is
// one figure, its `content` the bytes of a small Word document holding it;
// the rows of `small` name the shapes that belong to it.

#include <optional>
#include <string>
#include <vector>

#include "runtime/prompt.h"

namespace lp::gallery {

struct GalleryEntry {
  long id = 0;
  std::u16string name;
  std::vector<std::u16string> shapeNames;
};

// The gallery's figures in the order they were added.
std::vector<GalleryEntry> ListEntries(const std::string& dbPath);

// Writes the figure's document to `path` (UTF-8) through LoadFieldToFile;
// false, with its box shown, when the row is gone or the bytes can't be written.
bool LoadEntryFile(const std::string& dbPath, long id, const std::string& path, Prompt& prompt);

// A new figure from the document at `path`; its id, or nothing when the file
// could not be taken in (SaveFileToField has shown why).
std::optional<long> AddEntry(const std::string& dbPath, const std::u16string& name,
                             const std::string& path, const std::vector<std::u16string>& shapeNames,
                             Prompt& prompt);

void RenameEntry(const std::string& dbPath, long id, const std::u16string& name);
// The figure and the names that belong to it.
void DeleteEntry(const std::string& dbPath, long id);

// A name for a figure: trimmed, not empty, at most 50 characters. The
// message for the teacher when refused, else empty.
std::u16string CheckEntryName(const std::u16string& name);

}  // namespace lp::gallery
