#pragma once
// Fonts carried inside the document, as Word embeds TrueType fonts: each font
// file is an obfuscated part (word/fonts/fontN.odttf) whose first 32 bytes
// are mixed with a key, and the font table names the part and the key
// (w:embedRegular, w:fontKey), so that Word and LibreOffice show the font on
// a machine that lacks it.

#include <filesystem>
#include <string>

#include <pugixml.hpp>

#include "word/docx/package.h"

namespace word::docx {

// The fonts this machine may embed: NAME.ttf in the folder is the font NAME.
// Embeds each of them that the document body uses (in w:rFonts or w:sym) and
// that the font table does not carry yet.
void EmbedUsedFonts(Package& package, const std::string& mainPart, const pugi::xml_document& body,
                    const std::filesystem::path& fontFolder);

// The XOR of the first 32 bytes with the key of a "{XXXXXXXX-XXXX-...}"
// font key; the same call undoes it.
std::string ObfuscateFont(std::string font, const std::string& fontKey);

}  // namespace word::docx
