// Handing a computed design spectrum over to its new curve document, and the
// guards every generator shares before it does so.
#ifndef ZEL_CORE_CODES_DESIGN_DOCUMENT_H_
#define ZEL_CORE_CODES_DESIGN_DOCUMENT_H_

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kPeriodAxisTitle[] = "Period Tn (sec)";
inline constexpr char kSaAxisTitle[] = "Sa (g)";

// Keeps the grid in the document's working fields, as every code dialog does
// before it checks anything.
void CopyGridToDocument(const PeriodGrid& grid, CZELwDoc& doc);

// The classic generators' hand-over: kind 2 (so the Y axis reads "Absolute
// Acceleration (g)"), title, parameter label, and series 0 stored without the
// last-point mark, so a saved file ends one point short of the chart. A
// code's own Y-axis title (Korea(Bridge): "Csm/R"), when given, is set
// directly instead of the kind's.
void StoreDesignSpectrum(CZELwDoc& doc, const std::string& title,
                         const std::string& label,
                         std::span<const SpectrumPoint> points,
                         const std::string& y_axis_title = {});

// The array hand-off of the codes computed in their dialogs: every pair is
// stored with the last-point mark, and the Y axis is titled "Sa (g)"
// directly. Uses the shorter of the two arrays.
void HandOverSpectrum(CZELwDoc& doc, std::span<const double> periods,
                      std::span<const double> ordinates,
                      const std::string& title, const std::string& label);
// The same from sampled points.
void HandOverSpectrum(CZELwDoc& doc, std::span<const SpectrumPoint> points,
                      const std::string& title, const std::string& label);

struct NamedValue {
  std::string_view name;
  double value;
};

// Refuses a choice index outside 0..count-1 (only a caller other than the
// dialog can give one): "The selection in '<label>' is not valid".
bool CheckChoice(int index, std::size_t count, std::string_view label,
                 MessageSink& messages);

// CheckChoice against a code's choice table.
template <class T, std::size_t N>
bool CheckChoice(const std::array<T, N>&, int index, std::string_view label,
                 MessageSink& messages) {
  return CheckChoice(index, N, label, messages);
}

// Whether `index` selects an entry of a code's choice table, and the entry
// (`fallback` outside the table).
template <class T, std::size_t N>
bool IsChoiceIndex(const std::array<T, N>&, int index) {
  return index >= 0 && static_cast<std::size_t>(index) < N;
}
template <class T, std::size_t N>
T ChoiceValue(const std::array<T, N>& table, int index,
              std::type_identity_t<T> fallback = {}) {
  return IsChoiceIndex(table, index) ? table[index] : fallback;
}

// Refuses a parameter that is NaN or infinite: "The value %s must be a
// finite number". Returns false after the first such message.
bool CheckFiniteParameters(std::initializer_list<NamedValue> values,
                           MessageSink& messages);

// CheckFiniteParameters, and then a magnitude above this is refused with
// "The value %s is too large". A parameter printed with "%f" in a chart
// title must stay short enough for the data file's reader, which takes at
// most 120 characters between commas; no code parameter comes near it.
inline constexpr double kMaxPrintableParameter = 1e15;
bool CheckPrintableParameters(std::initializer_list<NamedValue> values,
                              MessageSink& messages);

inline constexpr char kUndefinedSpectrumMessage[] =
    "The spectrum is not defined for these values";
// Refuses a sampled curve that holds a value that is not a number, which only
// extreme finite parameters give (an overflowing term times zero). An
// infinite value is kept: it saves and reads back as it is.
bool CheckDefinedSpectrum(std::span<const SpectrumPoint> points,
                          MessageSink& messages);
// CheckDefinedSpectrum, then the array hand-off; false after the message.
bool HandOverDefinedSpectrum(CZELwDoc& doc,
                             std::span<const SpectrumPoint> points,
                             const std::string& title, const std::string& label,
                             MessageSink& messages);
// CheckDefinedSpectrum, then the classic hand-over (with the code's own
// Y-axis title when one is given); false after the message.
bool StoreDefinedSpectrum(CZELwDoc& doc, const std::string& title,
                          const std::string& label,
                          std::span<const SpectrumPoint> points,
                          MessageSink& messages,
                          const std::string& y_axis_title = {});

}  // namespace zel

#endif  // ZEL_CORE_CODES_DESIGN_DOCUMENT_H_
