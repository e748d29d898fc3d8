#include "session/figure.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <random>

#include "runtime/clock.h"
#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace lp {

namespace {

// The present date and time as a Chinese Windows writes them by default,
// "2024/5/6 14:03:07".
std::u16string NowText() {
  const std::tm local = lp::LocalTime(std::time(nullptr));
  char text[40];
  std::snprintf(text, sizeof text, "%d/%d/%d %d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
  return std::u16string(text, text + std::char_traits<char>::length(text));
}

std::u16string Digits(const std::u16string& text) {
  std::u16string digits;
  for (char16_t c : text) {
    if (c >= u'0' && c <= u'9') digits += c;
  }
  return digits;
}

// A number from 1 to 999 from a generator seeded afresh from the clock.
long RandomNumber() {
  auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  std::mt19937 generator(static_cast<unsigned>(ticks));
  double r = std::uniform_real_distribution<double>(0.0, 1.0)(generator);
  return static_cast<long>(Int(999 * r + 1));
}

}  // namespace

void GetCaretAnchor(Session& s) {
  word::PageSetup& page = s.WordApp->ActiveDocument().PageSetup();
  float h = page.PageHeight();
  float w = page.PageWidth();
  word::Selection& selection = s.WordApp->Selection();
  s.AnchorX = static_cast<float>(selection.Information(word::wdHorizontalPositionRelativeToPage));
  s.AnchorY = static_cast<float>(selection.Information(word::wdVerticalPositionRelativeToPage));
  if (s.AnchorX < 20.0f) s.AnchorX = 20.0f;
  if (s.AnchorX > w) s.AnchorX = w - 10;
  if (s.AnchorY < 20) s.AnchorY = 20;
  if (s.AnchorY > h) s.AnchorY = h - 10;
}

std::u16string MakeShapeName(Session& s, const std::u16string& base) {
  if (s.ShapeCounter < 1) throw RuntimeError(kSubscriptOutOfRange);
  s.ShapeNames.resize(static_cast<size_t>(s.ShapeCounter));
  const auto earlier = s.ShapeNames.begin() + (s.ShapeCounter - 1);
  // Shapes of one kind drawn within a second differ only by the random
  // number; a figure's names must differ for it to be grouped by name, so a
  // number already drawn is drawn again (a while: a base so long that the
  // cut leaves no number keeps its name).
  std::u16string name;
  for (int tries = 0; tries < 1000; ++tries) {
    name = base + u"：" + Trim(Str(static_cast<double>(RandomNumber()))) +
           Digits(Mid(NowText(), 3)) + u"_lumenpad";
    if (name.size() > 32) name.resize(32);
    if (std::find(s.ShapeNames.begin(), earlier, name) == earlier) break;
  }
  s.ShapeNames[s.ShapeCounter - 1] = name;
  return name;
}

std::u16string strGetShapeName(const std::u16string& prefix) {
  return prefix + u"：" + Digits(NowText()) + Trim(Str(static_cast<double>(RandomNumber()))) +
         u"_lumenpad";
}

void CloseFigure(Session& s, const std::u16string& kindBase) {
  std::unique_ptr<word::ShapeRange> shapes =
      s.WordApp->ActiveDocument().Shapes().Range(s.ShapeNames);
  // Word groups two shapes or more; a figure of one shape is placed as it is.
  if (s.ShapeNames.size() > 1) {
    shapes->Group()->Select();
  } else {
    shapes->Select();
  }
  GetCaretAnchor(s);
  std::unique_ptr<word::ShapeRange> figure = s.WordApp->Selection().ShapeRange();
  figure->SetName(MakeShapeName(s, kindBase));
  figure->ZOrder(word::msoSendToBack);
  figure->ZOrder(word::msoBringInFrontOfText);
  figure->SetLeft(s.AnchorX);
  figure->SetTop(s.AnchorY);
}

}  // namespace lp
