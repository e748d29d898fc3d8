#include "pictures/jpeg_tables.h"

#include <string_view>

namespace lp {

namespace {

// DQT payload: the luminance table of the standard times 0.625 and the
// chrominance table times 15/16, both truncated. This reduced table is the
// fixed base that the quality value scales further down.
constexpr std::string_view kQuantisationHex =
    "000A06070807060A0808080B0A0A0B0F19100F0D0D0F1E15171219241F262523"
    "1F2322282D3930282A362B2223324432363B3D4041402630464B463E4B393F40"
    "3D010F10101613162C18182C5C3D343D5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C"
    "5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C5C"
    "5C5C";

// DHT payload: the typical tables of the standard for luminance DC, AC and
// chrominance DC, AC, each as class/number byte, 16 counts and the values.
constexpr std::string_view kHuffmanHex =
    "0000010501010101010100000000000000000102030405060708090A0B100002"
    "010303020403050504040000017D010203000411051221314106135161072271"
    "14328191A1082342B1C11552D1F02433627282090A161718191A25262728292A"
    "3435363738393A434445464748494A535455565758595A636465666768696A73"
    "7475767778797A838485868788898A92939495969798999AA2A3A4A5A6A7A8A9"
    "AAB2B3B4B5B6B7B8B9BAC2C3C4C5C6C7C8C9CAD2D3D4D5D6D7D8D9DAE1E2E3E4"
    "E5E6E7E8E9EAF1F2F3F4F5F6F7F8F9FA01000301010101010101010100000000"
    "00000102030405060708090A0B11000201020404030407050404000102770001"
    "02031104052131061241510761711322328108144291A1B1C109233352F01562"
    "72D10A162434E125F11718191A262728292A35363738393A434445464748494A"
    "535455565758595A636465666768696A737475767778797A8283848586878889"
    "8A92939495969798999AA2A3A4A5A6A7A8A9AAB2B3B4B5B6B7B8B9BAC2C3C4C5"
    "C6C7C8C9CAD2D3D4D5D6D7D8D9DAE2E3E4E5E6E7E8E9EAF2F3F4F5F6F7F8F9FA";

int HexDigit(char c) {
  return c <= '9' ? c - '0' : c - 'A' + 10;
}

std::vector<std::uint8_t> FromHex(std::string_view text) {
  std::vector<std::uint8_t> bytes(text.size() / 2);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::uint8_t>(HexDigit(text[2 * i]) * 16 + HexDigit(text[2 * i + 1]));
  }
  return bytes;
}

// Codes of one table from its 16 counts and its values, as the standard's
// procedure assigns them: by length, counting upward, doubling per length.
HuffmanCodes BuildHuffmanCodes(const std::uint8_t* counts, const std::uint8_t* values) {
  HuffmanCodes codes;
  unsigned code = 0;
  int k = 0;
  for (int length = 1; length <= 16; ++length) {
    for (int i = 0; i < counts[length - 1]; ++i, ++k, ++code) {
      codes.code[values[k]] = static_cast<std::uint16_t>(code);
      codes.length[values[k]] = static_cast<std::uint8_t>(length);
    }
    code <<= 1;
  }
  return codes;
}

JpegTables MakeTables() {
  JpegTables t;
  t.quantisationPayload = FromHex(kQuantisationHex);
  t.huffmanPayload = FromHex(kHuffmanHex);
  std::size_t at = 0;
  while (at < t.huffmanPayload.size()) {
    const std::uint8_t classAndNumber = t.huffmanPayload[at];
    const std::uint8_t* counts = &t.huffmanPayload[at + 1];
    const std::uint8_t* values = counts + 16;
    HuffmanCodes& codes =
        (classAndNumber >> 4) ? t.ac[classAndNumber & 1] : t.dc[classAndNumber & 1];
    codes = BuildHuffmanCodes(counts, values);
    int total = 0;
    for (int i = 0; i < 16; ++i) total += counts[i];
    at += 17 + total;
  }
  return t;
}

}  // namespace

const JpegTables& GetJpegTables() {
  static const JpegTables tables = MakeTables();  // the language guards the first build
  return tables;
}

std::array<std::uint8_t, 64> ScaledQuantisationTable(int table, int q) {
  const std::uint8_t* base = &GetJpegTables().quantisationPayload[table * 65 + 1];
  std::array<std::uint8_t, 64> scaled{};
  for (int i = 0; i < 64; ++i) {
    scaled[i] = static_cast<std::uint8_t>(((base[i] - 1) * (100 - q) + 50) / 100 + 1);
  }
  return scaled;
}

}  // namespace lp
