#include "libjpeg_side.h"

#include <cstdio>
#include <memory>

#include <jpeglib.h>

#include "pictures/jpeg_tables.h"

namespace lp::bench {

namespace {

void SetOurTables(jpeg_compress_struct& info) {
  for (int table = 0; table < 2; ++table) {
    const auto zigZagOrder = ScaledQuantisationTable(table, 0);
    unsigned natural[64];
    for (int i = 0; i < 64; ++i) natural[kZigZag[i]] = zigZagOrder[i];
    jpeg_add_quant_table(&info, table, natural, 100, TRUE);  // 100 percent: as given
  }
}

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

}  // namespace

bool LibjpegEncode(const Picture& picture, const std::string& path) {
  std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "wb"));
  if (!file) return false;
  jpeg_compress_struct info;
  jpeg_error_mgr errors;
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  jpeg_stdio_dest(&info, file.get());
  info.image_width = picture.header.width;
  info.image_height = picture.header.height;
  info.input_components = 3;
  info.in_color_space = JCS_EXT_BGR;
  jpeg_set_defaults(&info);
  SetOurTables(info);
  info.dct_method = JDCT_FLOAT;
  info.comp_info[0].h_samp_factor = info.comp_info[0].v_samp_factor = 1;
  jpeg_start_compress(&info, TRUE);
  const std::size_t stride = BitmapStride(picture.header.width, 24);
  std::vector<JSAMPROW> rows(picture.header.height);
  for (int y = 0; y < picture.header.height; ++y) {  // the bitmap's last row is the top
    rows[y] = const_cast<JSAMPROW>(&picture.bits[stride * (picture.header.height - 1 - y)]);
  }
  jpeg_write_scanlines(&info, rows.data(), picture.header.height);
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  return true;
}

std::vector<std::uint8_t> LibjpegDecode(const std::string& path, std::size_t stride) {
  std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
  if (!file) return {};
  jpeg_decompress_struct info;
  jpeg_error_mgr errors;
  info.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&info);
  jpeg_stdio_src(&info, file.get());
  jpeg_read_header(&info, TRUE);
  info.out_color_space = JCS_EXT_BGR;
  jpeg_start_decompress(&info);
  std::vector<std::uint8_t> bits(stride * info.output_height);
  while (info.output_scanline < info.output_height) {
    JSAMPROW row = &bits[stride * (info.output_height - 1 - info.output_scanline)];
    jpeg_read_scanlines(&info, &row, 1);
  }
  jpeg_finish_decompress(&info);
  jpeg_destroy_decompress(&info);
  return bits;
}

}  // namespace lp::bench
