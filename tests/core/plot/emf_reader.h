// A small Enhanced Metafile reader for the tests: walks the records and
// checks the structure a reader relies on, independently of the writer.
#ifndef ZEL_TESTS_CORE_PLOT_EMF_READER_H_
#define ZEL_TESTS_CORE_PLOT_EMF_READER_H_

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zel::testing {

inline std::uint32_t U32At(std::string_view b, std::size_t at) {
  std::uint32_t v = 0;
  for (int i = 3; i >= 0; --i) {
    v = (v << 8) | static_cast<unsigned char>(b[at + i]);
  }
  return v;
}
inline std::int32_t I32At(std::string_view b, std::size_t at) {
  return static_cast<std::int32_t>(U32At(b, at));
}
inline std::int16_t I16At(std::string_view b, std::size_t at) {
  return static_cast<std::int16_t>(static_cast<unsigned char>(b[at]) |
                                   static_cast<unsigned char>(b[at + 1]) << 8);
}

struct EmfRecord {
  std::uint32_t type;
  std::string_view bytes;  // the whole record
};

struct EmfPicture {
  std::vector<EmfRecord> records;
  std::string error;  // empty when the structure holds
};

// Every record 4-byte aligned inside the file, the header's byte, record
// and handle counts right, EOF last and only there.
inline EmfPicture ReadEmf(std::string_view b) {
  EmfPicture p;
  if (b.size() < 108 || U32At(b, 0) != 1 || U32At(b, 40) != 0x464D4520) {
    p.error = "no EMF header";
    return p;
  }
  std::uint32_t handles_needed = 1;
  for (std::size_t at = 0; at < b.size();) {
    const std::uint32_t size = at + 8 <= b.size() ? U32At(b, at + 4) : 0;
    if (size < 8 || size % 4 != 0 || size > b.size() - at) {
      p.error = "bad record size at " + std::to_string(at);
      return p;
    }
    const EmfRecord r{U32At(b, at), b.substr(at, size)};
    // Pens, brushes and fonts name their table slot first.
    if (r.type == 95 || r.type == 39 || r.type == 82) {
      handles_needed = std::max(handles_needed, U32At(r.bytes, 8) + 1);
    }
    if (!p.records.empty() && p.records.back().type == 14) {
      p.error = "record after EOF";
    }
    p.records.push_back(r);
    at += size;
  }
  if (U32At(b, 48) != b.size()) p.error = "header's byte count";
  if (U32At(b, 52) != p.records.size()) p.error = "header's record count";
  if ((U32At(b, 56) & 0xFFFF) < handles_needed) p.error = "header's handles";
  if (p.records.back().type != 14) p.error = "no EOF at the end";
  return p;
}

// The characters of an EXTTEXTOUTW record.
inline std::u16string TextOf(const EmfRecord& r) {
  std::u16string text;
  const std::uint32_t count = U32At(r.bytes, 44);
  const std::uint32_t offset = U32At(r.bytes, 48);
  if (offset + 2ull * count > r.bytes.size()) return u"<outside the record>";
  for (std::uint32_t i = 0; i < count; ++i) {
    text.push_back(static_cast<char16_t>(I16At(r.bytes, offset + 2 * i)));
  }
  return text;
}

struct Point32 {
  std::int32_t x, y;
};

// The points of a POLYLINE16/POLYGON16 (16-bit) or POLYLINE/POLYGON record.
inline std::vector<Point32> PointsOf(const EmfRecord& r) {
  const bool small = r.type == 86 || r.type == 87;
  std::vector<Point32> points;
  const std::uint32_t count = U32At(r.bytes, 24);
  if (28 + (small ? 4ull : 8ull) * count > r.bytes.size()) return points;
  for (std::uint32_t i = 0; i < count; ++i) {
    if (small) {
      points.push_back(
          {I16At(r.bytes, 28 + 4 * i), I16At(r.bytes, 30 + 4 * i)});
    } else {
      points.push_back(
          {I32At(r.bytes, 28 + 8 * i), I32At(r.bytes, 32 + 8 * i)});
    }
  }
  return points;
}

}  // namespace zel::testing

#endif  // ZEL_TESTS_CORE_PLOT_EMF_READER_H_
