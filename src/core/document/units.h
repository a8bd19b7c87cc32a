// Length units of velocity and displacement curves, and the gravity value in
// each. g = 9815.0 mm/s^2 is ZEL's own choice and is kept.
#ifndef ZEL_CORE_DOCUMENT_UNITS_H_
#define ZEL_CORE_DOCUMENT_UNITS_H_

#include <array>
#include <string_view>

namespace zel {

struct LengthUnit {
  const char* choice;  // the unit dialog's radio button text
  const char* unit;    // the document's unit string after a conversion
  const char* suffix;  // used in axis titles, "(" included
  double gravity;      // 1 g in this unit per second squared
};

inline constexpr int kUnitCount = 5;
inline constexpr std::array<LengthUnit, kUnitCount> kLengthUnits = {{
    {"mm", "MM", " (mm", 9815.0},
    {"cm", "CM", " (cm", 98.15},
    {"m", "M", " (m", 9.815},
    {"in", "INCH", " (in", 386.4},
    {"ft", "FT", " (ft", 32.2},
}};

// Factor from unit `from` to unit `to`: a value in `from` times the factor is
// the value in `to`. The table is rounded, and m to ft is 3.281 held in
// single precision, so a conversion there and back is not exactly 1.
double UnitConversionFactor(int from, int to);

// The unit index of a data file's unit word (already upper-cased), or -1 when
// the word is not a length unit. "GRAV" is not a length unit.
int UnitIndexOfWord(std::string_view word);

inline bool IsValidUnitIndex(int index) {
  return index >= 0 && index < kUnitCount;
}

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_UNITS_H_
