#include "pictures/picture_rows.h"

#include <filesystem>
#include <fstream>

namespace lp {

std::unique_ptr<RowSource> OpenPictureRows(const std::string& path) {
  char magic[4] = {};
  std::ifstream(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary)
      .read(magic, sizeof magic);
  if (magic[0] == 'P' && (magic[1] == '5' || magic[1] == '6')) return OpenNetpbmRows(path);
  if (std::string_view(magic, 4) == "\x89PNG") return OpenPngRows(path);
  return nullptr;
}

}  // namespace lp
