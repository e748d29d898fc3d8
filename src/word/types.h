#pragma once
// Values and errors shared by every class of the Word API. The numbers are
// Word's own, so that tools pass the constants they would pass to Word.

#include <stdexcept>
#include <string>

namespace word {

using Text = std::u16string;

// A failed call into Word, with Word's error number and description, as the
// tools' error handlers read them from Err.
class ComError : public std::runtime_error {
 public:
  ComError(long number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  long Number() const { return number_; }

 private:
  long number_;
};

// The colour Word calls automatic (black on a light page).
constexpr long wdColorAutomatic = -16777216;

// Tri-state values of Font and Find properties.
constexpr long wdTrue = -1;
constexpr long wdFalse = 0;
constexpr long wdToggle = 9999998;
constexpr long wdUndefined = 9999999;

enum WdUnits { wdCharacter = 1, wdWord = 2, wdLine = 5, wdStory = 6 };
enum WdMovementType { wdMove = 0, wdExtend = 1 };
enum WdCollapseDirection { wdCollapseEnd = 0, wdCollapseStart = 1 };
enum WdSelectionType {
  wdNoSelection = 0,
  wdSelectionIP = 1,
  wdSelectionNormal = 2,
  wdSelectionFrame = 3,
  wdSelectionColumn = 4,
  wdSelectionRow = 5,
  wdSelectionBlock = 6,
  wdSelectionInlineShape = 7,
  wdSelectionShape = 8,
};
enum WdInformation {
  wdHorizontalPositionRelativeToPage = 5,
  wdVerticalPositionRelativeToPage = 6,
};
enum WdFieldType { wdFieldEmpty = -1 };
enum WdKeyCategory { wdKeyCategoryMacro = 2 };
enum WdKey { wdNoKey = 255, wdKeyControl = 512, wdKeyAlt = 1024 };
enum WdFindWrap { wdFindStop = 0, wdFindContinue = 1, wdFindAsk = 2 };
enum WdReplace { wdReplaceNone = 0, wdReplaceOne = 1, wdReplaceAll = 2 };
enum WdParagraphAlignment {
  wdAlignParagraphLeft = 0,
  wdAlignParagraphCenter = 1,
  wdAlignParagraphRight = 2,
};

enum MsoZOrderCmd {
  msoBringToFront = 0,
  msoSendToBack = 1,
  msoBringForward = 2,
  msoSendBackward = 3,
  msoBringInFrontOfText = 4,
  msoSendBehindText = 5,
};
enum MsoAutoShapeType {
  msoShapeRectangle = 1,
  msoShapeOval = 9,
  msoShapeFlowchartProcess = 61,
  msoShapeFlowchartDecision = 63,
  msoShapeFlowchartData = 64,
  msoShapeFlowchartTerminator = 69,
};
enum MsoConnectorType { msoConnectorStraight = 1, msoConnectorElbow = 2 };
enum MsoTextOrientation { msoTextOrientationHorizontal = 1 };
enum MsoEditingType { msoEditingAuto = 0, msoEditingCorner = 1 };
enum MsoSegmentType { msoSegmentLine = 0, msoSegmentCurve = 1 };
enum MsoLineDashStyle {
  msoLineSolid = 1,
  msoLineSquareDot = 2,
  msoLineRoundDot = 3,
  msoLineDash = 4,
  msoLineDashDot = 5,
  msoLineDashDotDot = 6,
  msoLineLongDash = 7,
  msoLineLongDashDot = 8,
};
enum MsoArrowheadStyle {
  msoArrowheadNone = 1,
  msoArrowheadTriangle = 2,
  msoArrowheadOpen = 3,
  msoArrowheadStealth = 4,
  msoArrowheadDiamond = 5,
  msoArrowheadOval = 6,
};
enum MsoArrowheadLength {
  msoArrowheadShort = 1,
  msoArrowheadLengthMedium = 2,
  msoArrowheadLong = 3,
};
enum MsoArrowheadWidth {
  msoArrowheadNarrow = 1,
  msoArrowheadWidthMedium = 2,
  msoArrowheadWide = 3,
};
enum MsoShapeType {
  msoAutoShape = 1,
  msoFreeform = 5,
  msoGroup = 6,
  msoLine = 9,
  msoPicture = 13,
  msoTextBox = 17,
  msoCanvas = 20,
};
enum WdWrapType {
  wdWrapSquare = 0,
  wdWrapTight = 1,
  wdWrapThrough = 2,
  wdWrapNone = 3,
  wdWrapTopBottom = 4,
  wdWrapBehind = 5,
  wdWrapInline = 7,
};
enum WdRelativeHorizontalPosition {
  wdRelativeHorizontalPositionMargin = 0,
  wdRelativeHorizontalPositionPage = 1,
  wdRelativeHorizontalPositionColumn = 2,
  wdRelativeHorizontalPositionCharacter = 3,
};
enum WdRelativeVerticalPosition {
  wdRelativeVerticalPositionMargin = 0,
  wdRelativeVerticalPositionPage = 1,
  wdRelativeVerticalPositionParagraph = 2,
  wdRelativeVerticalPositionLine = 3,
};

// Word colours are BGR packed in a long, as RGB() builds them.
constexpr long RGB(int r, int g, int b) {
  return r | (g << 8) | (b << 16);
}

}  // namespace word
