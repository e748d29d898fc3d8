#pragma once
// What the teacher chose in the batch dialog, as plain values, and the checks
// the dialog runs on it before a run starts.

#include <array>
#include <optional>
#include <string>

namespace lp::batch {

struct BatchChoice {
  int tab = 0;  // 0: delete, 1: change
  std::u16string folder;
  std::u16string filter = u"*.doc";
  bool subFolders = false, backup = false, fast = false, activeDocument = false;
  // Tab 0.
  bool blankLine = false, pageHeader = false, linkInShape = false, linkInText = false;
  bool fileInfo = false, fileName = false;
  std::u16string fileInfoWords, fileNameWords;
  // Tab 1: find and replace texts of file names, properties and content.
  std::array<std::u16string, 6> change;
  std::array<bool, 2> align{};  // centre formulas on the text; put raised/lowered ones back
  std::array<bool, 2> scale{};  // formulas, pictures
  std::array<std::u16string, 2> scaleText{u"0.75", u"0.8"};
  bool eqToOmml = false;  // EQ fields become native equations
};

// One of the deleting choices of tab 0 is set.
bool AnyDeleteChosen(const BatchChoice& c);
// A document must be opened: something besides renaming is chosen.
bool AnyDocumentWork(const BatchChoice& c);
// The message that refuses the run, or nothing when it may start.
std::optional<std::u16string> RefusalOf(const BatchChoice& c);
// The factor of a scaling box, as Val reads it; 0 when the box is off.
double ScaleFactor(const BatchChoice& c, int which);

}  // namespace lp::batch
