#include "core/plot/emf_records.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>

namespace zel {
namespace {

constexpr std::uint32_t kSignature = 0x464D4520;  // " EMF"
constexpr std::uint32_t kVersion = 0x00010000;
constexpr std::size_t kHeaderSize = 108;  // with the micrometre extension
constexpr std::uint32_t kMmText = 1;
constexpr std::uint32_t kTransparent = 1;
constexpr std::uint32_t kTaBaseline = 24;
constexpr std::uint32_t kRgnCopy = 5;
constexpr std::uint32_t kGmCompatible = 1;
constexpr std::uint32_t kPsGeometric = 0x00010000;
constexpr std::uint32_t kNullBrush = 0x80000005;
constexpr std::uint32_t kNullPen = 0x80000008;
constexpr std::uint32_t kDeviceDefaultFont = 0x8000000E;
constexpr std::uint8_t kDefaultCharset = 1;
constexpr std::uint8_t kAntialiasedQuality = 4;
constexpr std::size_t kFaceUnits = 32;
// Beyond this many live objects, the ones not selected are deleted.
constexpr std::uint32_t kMaxHandles = 256;

enum Kind { kPen = 0, kBrush = 1, kFont = 2 };

EmfRect BoundsOf(const std::vector<EmfPoint>& points) {
  EmfRect r{std::numeric_limits<std::int32_t>::max(),
            std::numeric_limits<std::int32_t>::max(),
            std::numeric_limits<std::int32_t>::min(),
            std::numeric_limits<std::int32_t>::min()};
  for (const EmfPoint& p : points) {
    r.left = std::min(r.left, p.x);
    r.top = std::min(r.top, p.y);
    r.right = std::max(r.right, p.x);
    r.bottom = std::max(r.bottom, p.y);
  }
  return r;
}

bool Fits16(const EmfRect& r) {
  return r.left >= std::numeric_limits<std::int16_t>::min() &&
         r.top >= std::numeric_limits<std::int16_t>::min() &&
         r.right <= std::numeric_limits<std::int16_t>::max() &&
         r.bottom <= std::numeric_limits<std::int16_t>::max();
}

}  // namespace

EmfWriter::EmfWriter(std::int32_t width, std::int32_t height,
                     std::int32_t units_per_mm,
                     const std::u16string& description) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  units_per_mm = std::max(units_per_mm, 1);
  units_per_mm_ = units_per_mm;
  // The reference device: whole millimetres, exactly `units_per_mm` device
  // units to each, at least as large as the picture.
  const std::int32_t mm_x = (width + units_per_mm - 1) / units_per_mm;
  const std::int32_t mm_y = (height + units_per_mm - 1) / units_per_mm;
  const std::size_t start = Begin(kEmrHeader);
  Rect({0, 0, width - 1, height - 1});
  Rect({0, 0,
        static_cast<std::int32_t>(std::int64_t{width} * 100 / units_per_mm),
        static_cast<std::int32_t>(std::int64_t{height} * 100 / units_per_mm)});
  U32(kSignature);
  U32(kVersion);
  U32(0);  // bytes, patched by Finish
  U32(0);  // records
  U16(0);  // handles
  U16(0);
  U32(static_cast<std::uint32_t>(description.size() + 1));
  U32(description.empty() ? 0 : kHeaderSize);
  U32(0);  // palette entries
  I32(mm_x * units_per_mm);
  I32(mm_y * units_per_mm);
  I32(mm_x);
  I32(mm_y);
  U32(0);  // no pixel format
  U32(0);
  U32(0);  // not OpenGL
  I32(mm_x * 1000);
  I32(mm_y * 1000);
  if (!description.empty()) Utf16(description, description.size() + 1);
  End(start);

  Simple(kEmrSetMapMode, kMmText);
  Simple(kEmrSetBkMode, kTransparent);
  Simple(kEmrSetTextAlign, kTaBaseline);
  text_colour_ = {};
  const std::size_t colour = Begin(kEmrSetTextColor);
  Colour(text_colour_);
  End(colour);
}

void EmfWriter::U16(std::uint16_t v) {
  U8(static_cast<std::uint8_t>(v & 0xFF));
  U8(static_cast<std::uint8_t>(v >> 8));
}

void EmfWriter::U32(std::uint32_t v) {
  for (int shift = 0; shift < 32; shift += 8) {
    U8(static_cast<std::uint8_t>((v >> shift) & 0xFF));
  }
}

void EmfWriter::Colour(const EmfColour& c) {
  U8(c.red);
  U8(c.green);
  U8(c.blue);
  U8(0);
}

void EmfWriter::Rect(const EmfRect& r) {
  I32(r.left);
  I32(r.top);
  I32(r.right);
  I32(r.bottom);
}

// `units` UTF-16 units of `s`, zeros where `s` is shorter.
void EmfWriter::Utf16(const std::u16string& s, std::size_t units) {
  for (std::size_t i = 0; i < units; ++i) U16(i < s.size() ? s[i] : 0);
}

void EmfWriter::Patch32(std::size_t at, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) {
    bytes_[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
  }
}

std::size_t EmfWriter::Begin(std::uint32_t type) {
  const std::size_t start = bytes_.size();
  U32(type);
  U32(0);  // size, patched by End
  return start;
}

void EmfWriter::End(std::size_t start) {
  while (bytes_.size() % 4 != 0) U8(0);
  Patch32(start + 4, static_cast<std::uint32_t>(bytes_.size() - start));
  ++records_;
}

void EmfWriter::Simple(std::uint32_t type, std::uint32_t value) {
  if (finished_) return;
  const std::size_t start = Begin(type);
  U32(value);
  End(start);
}

std::uint32_t EmfWriter::NewHandle() {
  if (free_handles_.empty() && handle_count_ >= kMaxHandles) {
    DeleteUnselected();
  }
  if (!free_handles_.empty()) {
    const std::uint32_t handle = free_handles_.back();
    free_handles_.pop_back();
    return handle;
  }
  return handle_count_++;
}

void EmfWriter::Select(std::uint32_t handle, int kind) {
  if (selected_[kind] == handle) return;
  selected_[kind] = handle;
  Simple(kEmrSelectObject, handle);
}

void EmfWriter::DeleteUnselected() {
  const auto sweep = [this](auto& cache) {
    for (auto it = cache.begin(); it != cache.end();) {
      if (std::find(std::begin(selected_), std::end(selected_), it->second) !=
          std::end(selected_)) {
        ++it;
        continue;
      }
      Simple(kEmrDeleteObject, it->second);
      free_handles_.push_back(it->second);
      it = cache.erase(it);
    }
  };
  sweep(pens_);
  sweep(brushes_);
  sweep(fonts_);
}

template <typename Key, typename Body>
void EmfWriter::SelectMade(std::map<Key, std::uint32_t>& made, const Key& key,
                           int kind, std::uint32_t type, Body body) {
  if (finished_) return;
  auto it = made.find(key);
  if (it == made.end()) {
    const std::uint32_t handle = NewHandle();
    const std::size_t start = Begin(type);
    U32(handle);
    body();
    End(start);
    it = made.emplace(key, handle).first;
  }
  Select(it->second, kind);
}

void EmfWriter::SelectPen(const EmfPen& pen) {
  SelectMade(pens_, pen, kPen, kEmrExtCreatePen, [&] {
    U32(0);  // no brush bitmap: offset and size of header and bits
    U32(0);
    U32(0);
    U32(0);
    U32(kPsGeometric | pen.dash | pen.cap | pen.join);
    I32(std::max(pen.width, 1));
    U32(0);  // solid brush
    Colour(pen.colour);
    U32(0);  // hatch
    U32(0);  // no style entries
  });
}

void EmfWriter::SelectNullPen() { Select(kNullPen, kPen); }

void EmfWriter::SelectBrush(const EmfColour& colour) {
  SelectMade(brushes_, colour, kBrush, kEmrCreateBrushIndirect, [&] {
    U32(0);  // solid
    Colour(colour);
    U32(0);  // hatch
  });
}

void EmfWriter::SelectNullBrush() { Select(kNullBrush, kBrush); }

void EmfWriter::SelectFont(const EmfFont& font) {
  SelectMade(fonts_, font, kFont, kEmrExtCreateFontIndirectW, [&] {
    // LOGFONTW; in compatible graphics mode the baseline and the characters
    // turn together, so orientation equals escapement.
    I32(-std::abs(font.height));
    I32(font.width);
    I32(font.escapement);
    I32(font.escapement);
    I32(font.weight);
    U8(font.italic ? 1 : 0);
    U8(font.underline ? 1 : 0);
    U8(0);  // strike-out
    U8(kDefaultCharset);
    U8(0);  // output precision
    U8(0);  // clip precision
    U8(kAntialiasedQuality);
    U8(font.pitch_and_family);
    Utf16(font.face.substr(0, kFaceUnits - 1), kFaceUnits);
    // The rest of LogFontPanose: full name, style, version, style size,
    // match, reserved, vendor, culture, panose and padding, all empty.
    Utf16(u"", 64 + 32);
    for (int i = 0; i < 6; ++i) U32(0);
    for (int i = 0; i < 12; ++i) U8(0);
  });
}

void EmfWriter::SetTextColour(const EmfColour& colour) {
  if (finished_ || colour == text_colour_) return;
  text_colour_ = colour;
  const std::size_t start = Begin(kEmrSetTextColor);
  Colour(colour);
  End(start);
}

void EmfWriter::SetClip(const EmfRect* rect) {
  wanted_clip_ = rect != nullptr ? std::optional<EmfRect>(*rect) : std::nullopt;
}

// The clip takes effect only when something is drawn in it, so that a
// drawing state set and undone without drawing writes nothing.
bool EmfWriter::Draws() {
  if (finished_) return false;
  if (wanted_clip_ == clip_) return true;
  // Back to the whole picture, then narrowed.
  std::size_t start = Begin(kEmrExtSelectClipRgn);
  U32(0);
  U32(kRgnCopy);
  End(start);
  clip_ = wanted_clip_;
  if (clip_) {
    start = Begin(kEmrIntersectClipRect);
    Rect(*clip_);
    End(start);
  }
  return true;
}

void EmfWriter::Points(std::uint32_t type16, std::uint32_t type32,
                       const std::vector<EmfPoint>& points) {
  if (points.size() < 2 || !Draws()) return;
  const EmfRect bounds = BoundsOf(points);
  const bool small = Fits16(bounds);
  const std::size_t start = Begin(small ? type16 : type32);
  Rect(bounds);
  U32(static_cast<std::uint32_t>(points.size()));
  for (const EmfPoint& p : points) {
    if (small) {
      U16(static_cast<std::uint16_t>(static_cast<std::int16_t>(p.x)));
      U16(static_cast<std::uint16_t>(static_cast<std::int16_t>(p.y)));
    } else {
      I32(p.x);
      I32(p.y);
    }
  }
  End(start);
}

void EmfWriter::Polyline(const std::vector<EmfPoint>& points) {
  Points(kEmrPolyline16, kEmrPolyline, points);
}

void EmfWriter::Polygon(const std::vector<EmfPoint>& points) {
  Points(kEmrPolygon16, kEmrPolygon, points);
}

void EmfWriter::Box(std::uint32_t type, const EmfRect& box) {
  if (!Draws()) return;
  const std::size_t start = Begin(type);
  Rect(box);
  End(start);
}

void EmfWriter::Rectangle(const EmfRect& box) { Box(kEmrRectangle, box); }

void EmfWriter::Ellipse(const EmfRect& box) { Box(kEmrEllipse, box); }

void EmfWriter::TextOut(EmfPoint origin, const std::u16string& text,
                        const std::vector<std::int32_t>& advances) {
  if (text.empty() || !Draws()) return;
  constexpr std::uint32_t kStringOffset = 76;
  const std::uint32_t string_bytes =
      static_cast<std::uint32_t>((text.size() * 2 + 3) / 4 * 4);
  const bool spaced = advances.size() == text.size();
  const std::size_t start = Begin(kEmrExtTextOutW);
  Rect({0, 0, -1, -1});  // bounds: not computed
  U32(kGmCompatible);
  // Hundredths of a millimetre to a unit, along x and along y.
  const float scale = 100.0f / static_cast<float>(units_per_mm_);
  U32(std::bit_cast<std::uint32_t>(scale));
  U32(std::bit_cast<std::uint32_t>(scale));
  I32(origin.x);
  I32(origin.y);
  U32(static_cast<std::uint32_t>(text.size()));
  U32(kStringOffset);
  U32(0);                // options: no clipping or opaque rectangle
  Rect({0, 0, -1, -1});  // that rectangle
  U32(spaced ? kStringOffset + string_bytes : 0);
  Utf16(text, text.size());
  while ((bytes_.size() - start) % 4 != 0) U8(0);
  if (spaced) {
    for (std::int32_t dx : advances) I32(dx);
  }
  End(start);
}

std::string EmfWriter::Finish() {
  if (finished_) return bytes_;
  for (std::uint32_t& handle : selected_) handle = 0;
  // Every object is deselected by the stock objects, then deleted.
  Select(kNullPen, kPen);
  Select(kNullBrush, kBrush);
  Select(kDeviceDefaultFont, kFont);
  DeleteUnselected();
  const std::size_t start = Begin(kEmrEof);
  U32(0);   // palette entries
  U32(16);  // their offset
  U32(20);  // this record's size, repeated at its end
  End(start);
  finished_ = true;
  Patch32(48, static_cast<std::uint32_t>(bytes_.size()));
  Patch32(52, records_);
  bytes_[56] = static_cast<char>(handle_count_ & 0xFF);
  bytes_[57] = static_cast<char>((handle_count_ >> 8) & 0xFF);
  return bytes_;
}

}  // namespace zel
