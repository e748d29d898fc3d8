#pragma once
// What a worked solution reads like in word/document.xml, flattened to one
// string: paragraphs end in "\n", a field is "{code}", a raised or lowered
// run is "^(text)" or "_(text)", a symbol "<font:char>".

#include <filesystem>
#include <string>

namespace lp::testing {

std::string DocumentText(const std::filesystem::path& docx);
// A part of the package as it is stored.
std::string PackagePart(const std::filesystem::path& docx, const std::string& part);

}  // namespace lp::testing
