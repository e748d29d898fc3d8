#include "graph/reedit.h"

#include "graph/inputs.h"
#include "graph/scene.h"
#include "graph/word_drawer.h"
#include "runtime/convert.h"
#include "runtime/recording_prompt.h"
#include "runtime/text.h"
#include "word/api.h"

namespace lp::graph {
namespace {

constexpr char16_t kMagic[] = u"lumenpad-graph 1";

std::u16string Number(double v) {
  return Trim(Str(v));
}

std::u16string LookFields(const Look& look) {
  return Number(look.style) + u"\t" + Number(look.weight) + u"\t" + Number(look.color);
}

Look ReadLook(const std::vector<std::u16string>& f, size_t at) {
  Look look;
  look.style = static_cast<int16_t>(Val(f[at]));
  look.weight = static_cast<float>(Val(f[at + 1]));
  look.color = static_cast<long>(Val(f[at + 2]));
  return look;
}

// Typed texts never hold the two separators; should one do, it becomes a blank.
std::u16string Clean(std::u16string text) {
  for (char16_t& c : text)
    if (c == u'\t' || c == u'\n' || c == u'\r') c = u' ';
  return text;
}

std::vector<std::u16string> Fields(const std::u16string& line) {
  std::vector<std::u16string> fields{{}};
  for (char16_t c : line) {
    if (c == u'\t')
      fields.emplace_back();
    else
      fields.back() += c;
  }
  return fields;
}

std::vector<std::u16string> Lines(const std::u16string& text) {
  std::vector<std::u16string> lines{{}};
  for (char16_t c : text) {
    if (c == u'\n')
      lines.emplace_back();
    else if (c != u'\r')
      lines.back() += c;
  }
  return lines;
}

// One object of a saved list: its reader runs again on the typed texts, and
// every question it asks is answered OK, as it was when the object was made.
void RestoreObject(const std::vector<std::u16string>& f, GraphSession& graph) {
  if (f.size() < 5) return;
  Reader reader = ReaderOf(f[1]);
  if (!reader) return;
  FormState state;
  for (size_t i = 5; i < f.size(); ++i) {
    size_t eq = f[i].find(u'=');
    if (eq != std::u16string::npos) state[f[i].substr(0, eq)] = f[i].substr(eq + 1);
  }
  RecordingPrompt silent;
  std::optional<Params> params = reader(TabInput(state, graph.Range(), silent));
  if (params) graph.Confirm(f[1], {ReadLook(f, 2), std::move(*params), std::move(state)});
}

}  // namespace

std::u16string SaveGraph(const GraphSession& graph) {
  const View& v = graph.Range();
  std::u16string text = std::u16string(kMagic) + u"\nview\t" + Number(v.xmin) + u"\t" +
                        Number(v.xmax) + u"\t" + Number(v.ymin) + u"\t" + Number(v.ymax) + u"\t" +
                        (graph.Axes().drawScale ? u"1" : u"0") + u"\naxes\t" +
                        LookFields(graph.Axes().look) + u"\ngrid\t" + LookFields(graph.Grid());
  for (const std::u16string& line : graph.List()) {
    if (line == kAxesLine || line == kGridLine) {
      text += line == kAxesLine ? u"\nzbx" : u"\nzbwg";
      continue;
    }
    LineRef ref = ParseListLine(line);
    const GraphObject* object = graph.Record(ref);
    if (!object) continue;
    text += u"\nobj\t" + ref.tag + u"\t" + LookFields(object->look);
    for (const auto& [name, value] : object->texts) text += u"\t" + name + u"=" + Clean(value);
  }
  return text;
}

bool RestoreGraph(const std::u16string& text, GraphSession& graph) {
  std::vector<std::u16string> lines = Lines(text);
  if (lines.size() < 4 || lines[0] != kMagic) return false;
  std::vector<std::u16string> view = Fields(lines[1]), axes = Fields(lines[2]),
                              grid = Fields(lines[3]);
  if (view.size() < 6 || axes.size() < 4 || grid.size() < 4) return false;
  graph.Load(ReadLook(axes, 1));
  graph.SetRange({Val(view[1]), Val(view[2]), Val(view[3]), Val(view[4])});
  graph.Axes().drawScale = view[5] == u"1";
  graph.ClearList();
  for (size_t i = 4; i < lines.size(); ++i) {
    std::vector<std::u16string> f = Fields(lines[i]);
    if (f[0] == u"zbx") graph.ShowAxes(true);
    if (f[0] == u"zbwg") graph.ShowGrid(true, ReadLook(grid, 1));
    if (f[0] == u"obj") RestoreObject(f, graph);
  }
  return true;
}

std::optional<PlacedGraph> SelectedGraph(Session& session, GraphSession& graph) {
  try {
    word::Selection& selection = session.WordApp->Selection();
    if (selection.Type() != word::wdSelectionShape) return std::nullopt;
    std::unique_ptr<word::ShapeRange> shapes = selection.ShapeRange();
    if (shapes->Count() != 1 || !RestoreGraph(shapes->AlternativeText(), graph))
      return std::nullopt;
    return PlacedGraph{shapes->Name(), shapes->Left(), shapes->Top()};
  } catch (const word::ComError&) {
    return std::nullopt;  // a back end without alternative texts keeps no graphs
  }
}

PlacedGraph InsertGraph(Session& session, const GraphSession& graph,
                        const std::optional<PlacedGraph>& replacing) {
  AxisOptions options = SessionAxisOptions(session);
  InsertScene(session, BuildScene(graph, options), graph.Range());
  std::unique_ptr<word::ShapeRange> group = session.WordApp->Selection().ShapeRange();
  if (group->Count() == 0) return replacing.value_or(PlacedGraph{});  // nothing was drawn
  PlacedGraph placed{group->Name(), group->Left(), group->Top()};
  try {
    group->SetAlternativeText(SaveGraph(graph));
  } catch (const word::ComError&) {
  }
  if (replacing) {
    group->SetLeft(replacing->left);
    group->SetTop(replacing->top);
    placed.left = replacing->left;
    placed.top = replacing->top;
    try {
      session.WordApp->ActiveDocument().Shapes().Item(replacing->name)->Delete();
    } catch (const word::ComError&) {
    }
  }
  return placed;
}

}  // namespace lp::graph
