#pragma once
// A floating shape of the main story is a wp:anchor inside w:drawing, itself
// in a run, often inside mc:AlternateContent/mc:Choice beside a VML fallback.
// These functions read and edit one anchor and find anchors in the document.

#include <cstdint>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "word/docx/host/docx_host.h"
#include "word/types.h"

namespace word::docx::drawing {

// The top-level anchors of the body in document order; fallbacks and the
// shapes inside text boxes are not among them.
std::vector<pugi::xml_node> FindAnchors(const pugi::xml_document& document);

// The first top-level anchor with this name, or an empty node.
pugi::xml_node FindAnchorByName(const pugi::xml_document& document, const Text& name);

// The shape the anchor holds: wps:wsp, wpg:wgp, pic:pic, wpc:wpc ...
pugi::xml_node GraphicOf(pugi::xml_node anchor);

// Every wps:wsp the anchor holds: the shape itself, or all those of a group.
std::vector<pugi::xml_node> WspsOf(pugi::xml_node anchor);

MsoShapeType TypeOf(pugi::xml_node anchor);
Text NameOf(pugi::xml_node anchor);
void SetNameOf(pugi::xml_node anchor, const Text& name);
// The alternative text: the descr attribute of wp:docPr.
Text DescriptionOf(pugi::xml_node anchor);
void SetDescriptionOf(pugi::xml_node anchor, const Text& text);

enum class Axis { kHorizontal, kVertical };
// The offset of wp:positionH or wp:positionV; 0 when the shape is aligned.
std::int64_t OffsetOf(pugi::xml_node anchor, Axis axis);
void SetOffset(pugi::xml_node anchor, Axis axis, std::int64_t emu);
// relativeFrom of the axis: "page", "margin", "column", "paragraph" ...
std::string RelativeFromOf(pugi::xml_node anchor, Axis axis);
void SetRelativeFrom(pugi::xml_node anchor, Axis axis, const char* from);

// Offsets on the page, in EMU. A shape placed by its page position is kept
// relative to the top of its paragraph and the left of its text column, the
// paragraph's place on the page being the text engine's estimate: where Word
// or another reader breaks the pages, columns or table cells otherwise, the
// shape still stands beside its text.
std::int64_t PageOffsetOf(DocxHost& host, pugi::xml_node anchor, Axis axis);
// Whether the offset along `axis` is kept from the paragraph's origin.
bool KeptFromParagraph(pugi::xml_node anchor, Axis axis);
void SetPageOffset(DocxHost& host, pugi::xml_node anchor, Axis axis, std::int64_t emu);

std::int64_t ExtentOf(pugi::xml_node anchor, Axis axis);
// Sets wp:extent and the size of the shape's own transform together.
void SetExtent(pugi::xml_node anchor, Axis axis, std::int64_t emu);

// The a:xfrm of a wsp, or of the group properties of a wgp/grpSp.
pugi::xml_node TransformOf(pugi::xml_node shape);

// The run that holds the anchor.
pugi::xml_node RunOf(pugi::xml_node anchor);

// Takes the anchor out of the document, with its run when nothing else is in it.
void RemoveAnchor(DocxHost& host, pugi::xml_node anchor);

// A shape that this layer changes no longer matches its VML fallback; Word
// reads the wps choice, so the stale fallback goes.
void DropFallback(pugi::xml_node anchor);

}  // namespace word::docx::drawing
