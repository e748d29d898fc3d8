#include "inserts/modes.h"

#include <optional>

#include "inserts/field_steps.h"
#include "runtime/text.h"
#include "session/web_address.h"
#include "settings/database.h"

namespace lp {
namespace {

constexpr char16_t kDrawingMode[] = u"绘图模式";
constexpr char16_t kGridMode[] = u"网格模式";
constexpr char16_t kTextMode[] = u"文字模式";
constexpr char16_t kFormulaMode[] = u"公式模式";
constexpr char16_t kHotKeysSet[] = u"hotkey set ok";

struct KeyPart {
  std::u16string_view text;
  long code;
};
constexpr KeyPart kKeyParts[] = {
    {u"/", 191}, {u".", 190}, {u",", 188}, {u"'", 222},  {u";", 186},    {u"]", 221},
    {u"[", 219}, {u"_", 189}, {u"=", 187}, {u"\\", 220}, {u"Ctrl", 512}, {u"Alt", 1024},
};

// The caption of the mode button, nothing when the toolbar isn't there.
std::optional<std::u16string> ModeCaption(word::Application& app) {
  std::optional<std::u16string> caption;
  Resume([&] { caption = app.CommandBars().ControlCaption(ModeToolbarName(), kModeButton); });
  return caption;
}

void SetModeCaption(word::Application& app, const std::u16string& caption) {
  Resume([&] { app.CommandBars().SetControlCaption(ModeToolbarName(), kModeButton, caption); });
}

void BindRow(word::Application& app, const std::u16string& macro, const std::u16string& keys) {
  auto attached = app.ActiveDocument().AttachedTemplate();
  app.SetCustomizationContext(*attached);
  std::vector<long> codes = KeyCodesOf(keys);
  codes.resize(4, word::wdNoKey);
  const long keyCode = app.BuildKeyCode(codes[0], codes[1], codes[2], codes[3]);
  if (InStrText(app.FindKeyCommand(keyCode), macro) == 0)
    app.KeyBindings().Add(word::wdKeyCategoryMacro, macro, keyCode);
}

}  // namespace

std::u16string ModeToolbarName() {
  return u"流明画板图形控制工具栏(" + std::u16string(kWebAddress) + u")";
}

long KeyPartCode(const std::u16string& part) {
  for (const KeyPart& known : kKeyParts)
    if (known.text == part) return known.code;
  return Asc(part);
}

std::vector<long> KeyCodesOf(const std::u16string& keys) {
  std::vector<long> codes;
  size_t from = 0;
  for (size_t plus = keys.find(u'+');; plus = keys.find(u'+', from)) {
    codes.push_back(KeyPartCode(keys.substr(from, plus - from)));
    if (plus == std::u16string::npos) break;
    from = plus + 1;
  }
  return codes;
}

void SetHotKey(Session& session) {
  word::Application& app = *session.WordApp;
  Database db(session.databasePath);
  OpenDatabase(db);
  if (db.DbRs.State() == adStateOpen) db.DbRs.Close();
  db.DbRs.Open("select * from  hotkey  order by id asc", db.DbConn);
  for (; !db.DbRs.Eof(); db.DbRs.MoveNext())
    BindRow(app, CStrValue(db.DbRs.Value("Name")), CStrValue(db.DbRs.Value("Value")));
  session.prompt.MsgBox(kHotKeysSet);
}

void ToggleDrawingMode(Session& session) {
  word::Application& app = *session.WordApp;
  const auto caption = ModeCaption(app);
  if (!caption) return;
  const bool snap = *caption != kDrawingMode;
  Resume([&] { app.ActiveDocument().SetSnapToGrid(snap); });
  Resume([&] { app.ActiveDocument().SetSnapToShapes(snap); });
  SetModeCaption(app, snap ? kDrawingMode : kGridMode);
}

void ToggleFormulaMode(Session& session) {
  word::Application& app = *session.WordApp;
  const auto caption = ModeCaption(app);
  if (!caption) return;
  const bool toFormula = *caption == kTextMode;
  Resume([&] { app.AutoCorrect().SetCorrectSentenceCaps(!toFormula); });
  Resume([&] { app.AutoCorrect().SetReplaceText(toFormula); });
  SetModeCaption(app, toFormula ? kFormulaMode : kTextMode);
}

}  // namespace lp
