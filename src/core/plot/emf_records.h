// Writes an Enhanced Metafile: the vector picture format that word
// processors take for charts pasted into reports. Records are laid out as
// the published format gives them (little-endian, every record a multiple
// of four bytes); the header's byte, record and handle counts are filled in
// when the picture is finished.
//
// Coordinates are logical units of MM_TEXT mapping: the picture spans
// `width` x `height` units with `units_per_mm` of them to the millimetre.
// Pens, brushes and fonts are made once and selected again whenever the
// same one is asked for.
#ifndef ZEL_CORE_PLOT_EMF_RECORDS_H_
#define ZEL_CORE_PLOT_EMF_RECORDS_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zel {

// Record types used here.
enum EmfRecordType : std::uint32_t {
  kEmrHeader = 1,
  kEmrPolygon = 3,
  kEmrPolyline = 4,
  kEmrEof = 14,
  kEmrSetMapMode = 17,
  kEmrSetBkMode = 18,
  kEmrSetTextAlign = 22,
  kEmrSetTextColor = 24,
  kEmrIntersectClipRect = 30,
  kEmrSelectObject = 37,
  kEmrCreateBrushIndirect = 39,
  kEmrDeleteObject = 40,
  kEmrEllipse = 42,
  kEmrRectangle = 43,
  kEmrExtSelectClipRgn = 75,
  kEmrExtCreateFontIndirectW = 82,
  kEmrExtTextOutW = 84,
  kEmrPolygon16 = 86,
  kEmrPolyline16 = 87,
  kEmrExtCreatePen = 95,
};

struct EmfPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

// Inclusive corners, as the format's RectL.
struct EmfRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
  bool operator==(const EmfRect&) const = default;
};

struct EmfColour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  auto operator<=>(const EmfColour&) const = default;
};

struct EmfPen {
  enum Dash : std::uint32_t { kSolid = 0, kDash, kDot, kDashDot, kDashDotDot };
  enum Cap : std::uint32_t {
    kRoundCap = 0,
    kSquareCap = 0x100,
    kFlatCap = 0x200
  };
  enum Join : std::uint32_t {
    kRoundJoin = 0,
    kBevelJoin = 0x1000,
    kMiterJoin = 0x2000
  };
  EmfColour colour;
  std::int32_t width = 1;  // logical units
  Dash dash = kSolid;
  Cap cap = kFlatCap;
  Join join = kMiterJoin;
  auto operator<=>(const EmfPen&) const = default;
};

struct EmfFont {
  std::int32_t height = 0;      // character height (em) in logical units
  std::int32_t width = 0;       // average character width; 0 for natural
  std::int32_t escapement = 0;  // tenths of a degree counter-clockwise
  std::int32_t weight = 400;    // 400 normal, 700 bold
  bool italic = false;
  bool underline = false;
  std::uint8_t pitch_and_family = 0;  // LOGFONT's lfPitchAndFamily
  std::u16string face;                // at most 31 characters are kept
  auto operator<=>(const EmfFont&) const = default;
};

class EmfWriter {
 public:
  // A picture of `width` x `height` units, `units_per_mm` (at least 1) to
  // the millimetre; `description` names the program and the picture
  // ("program\0picture\0"; the closing second terminator is added here).
  EmfWriter(std::int32_t width, std::int32_t height, std::int32_t units_per_mm,
            const std::u16string& description);

  // The drawing state: objects are made on first use and kept.
  void SelectPen(const EmfPen& pen);
  void SelectNullPen();
  void SelectBrush(const EmfColour& colour);
  void SelectNullBrush();
  void SelectFont(const EmfFont& font);
  void SetTextColour(const EmfColour& colour);
  // Drawing is clipped to `rect`; `nullptr` clips to the whole picture.
  void SetClip(const EmfRect* rect);

  // Polylines and polygons use 16-bit points whenever all of them fit.
  void Polyline(const std::vector<EmfPoint>& points);
  void Polygon(const std::vector<EmfPoint>& points);
  void Rectangle(const EmfRect& box);
  void Ellipse(const EmfRect& box);
  // `text` from its baseline's left end at `origin`; `advances` (one per
  // UTF-16 unit, or empty) place each character where the layout put it.
  void TextOut(EmfPoint origin, const std::u16string& text,
               const std::vector<std::int32_t>& advances);

  // Deletes the objects, ends the picture and returns its bytes. The writer
  // takes no more records afterwards.
  std::string Finish();

 private:
  std::size_t Begin(std::uint32_t type);
  void End(std::size_t start);
  void U8(std::uint8_t v) { bytes_.push_back(static_cast<char>(v)); }
  void U16(std::uint16_t v);
  void U32(std::uint32_t v);
  void I32(std::int32_t v) { U32(static_cast<std::uint32_t>(v)); }
  void Colour(const EmfColour& c);
  void Rect(const EmfRect& r);
  void Utf16(const std::u16string& s, std::size_t units);
  void Patch32(std::size_t at, std::uint32_t v);
  // Brings the clip up to date before a drawing record; false once
  // finished.
  bool Draws();
  void Simple(std::uint32_t type, std::uint32_t value);
  void Points(std::uint32_t type16, std::uint32_t type32,
              const std::vector<EmfPoint>& points);
  // A record of one box: a rectangle or the ellipse inside it.
  void Box(std::uint32_t type, const EmfRect& box);
  // A free object slot; when the table grows long, unselected objects are
  // deleted first.
  std::uint32_t NewHandle();
  void Select(std::uint32_t handle, int kind);
  // Selects the object made for `key`, first writing its creation record
  // (type, slot, then what `body` writes) when there is none yet.
  template <typename Key, typename Body>
  void SelectMade(std::map<Key, std::uint32_t>& made, const Key& key, int kind,
                  std::uint32_t type, Body body);
  void DeleteUnselected();

  std::string bytes_;
  std::int32_t units_per_mm_ = 1;
  std::uint32_t records_ = 0;
  std::uint32_t handle_count_ = 1;  // slot 0 is the metafile itself
  std::vector<std::uint32_t> free_handles_;
  std::map<EmfPen, std::uint32_t> pens_;
  std::map<EmfColour, std::uint32_t> brushes_;
  std::map<EmfFont, std::uint32_t> fonts_;
  std::uint32_t selected_[3] = {0, 0, 0};  // pen, brush, font; 0 for none
  EmfColour text_colour_;
  std::optional<EmfRect> clip_;         // as written; none: whole picture
  std::optional<EmfRect> wanted_clip_;  // as last set
  bool finished_ = false;
};

}  // namespace zel

#endif  // ZEL_CORE_PLOT_EMF_RECORDS_H_
