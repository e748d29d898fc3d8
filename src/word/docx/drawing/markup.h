#pragma once
// The markup of new shapes, written as Word writes it: a run holding
// mc:AlternateContent whose wps (or wpg) choice holds the w:drawing anchor.

#include <cstdint>
#include <string>

#include <pugixml.hpp>

#include "word/docx/host/docx_host.h"

namespace word::docx::drawing {

// A shape's frame on the page, in EMU.
struct Frame {
  std::int64_t x = 0;
  std::int64_t y = 0;
  std::int64_t cx = 0;
  std::int64_t cy = 0;
};

// wps:wsp of a preset shape ("rect", "ellipse"): white fill, thin black line.
std::string PresetWsp(const char* preset, const Frame& frame);
// wps:wsp of a straight line across its frame, mirrored to run from begin to end.
std::string LineWsp(const Frame& frame, bool flipH, bool flipV);
// wps:wsp of a text box with an empty paragraph and Word's default margins.
std::string TextboxWsp(const Frame& frame);
// wps:wsp of a custom path (a:path children in path units = EMU of the frame).
std::string PathWsp(const Frame& frame, const std::string& pathCommands, bool closed);

enum class GraphicKind { kShape, kGroup };

// Adds a floating shape anchored in the caret's paragraph, positioned on the
// page, in front of the text and above every other shape; returns wp:anchor.
pugi::xml_node InsertAnchor(DocxHost& host, const Frame& frame, GraphicKind kind,
                            const std::string& graphic, const Text& namePrefix);

// Names the anchor as Word names new shapes: the prefix and the drawing id.
void NameByPrefix(pugi::xml_node anchor, const Text& prefix);

// The wp:anchor markup alone, around a graphic, for an anchor that replaces another.
std::string AnchorXml(const Frame& frame, unsigned id, unsigned relativeHeight, GraphicKind kind,
                      const std::string& graphic);

// Declares on w:document the prefixes the shape markup uses.
void DeclareNamespaces(pugi::xml_document& document);

}  // namespace word::docx::drawing
