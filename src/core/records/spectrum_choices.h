// The choices of the response-spectrum dialog and of "zel-cli spectrum": the
// spectrum types and their command-line words, the starting values, the
// period axis each type suggests, and the ranges the fields are checked
// against, in the order they are checked.
#ifndef ZEL_CORE_RECORDS_SPECTRUM_CHOICES_H_
#define ZEL_CORE_RECORDS_SPECTRUM_CHOICES_H_

#include <span>
#include <string_view>

#include "core/records/range_check.h"
#include "core/records/response_spectrum.h"

namespace zel {

// The spectrum types in list order; a type's position is its kind number.
std::span<const char* const> SpectrumTypeNames();

// The command line's words for the types, in the same order: psa, psv, sa,
// sv, sd, dva.
std::span<const char* const> SpectrumKindWords();
// The kind named by `word`, or -1.
int SpectrumKindOfWord(std::string_view word);

// The values the dialog opens with: one damping ratio of 0.0 enabled out of
// 0.0, 0.01, 0.02, 0.05, 0.1 and 0.2, periods from 0.01 to 10.0 in 200
// steps, pseudo acceleration, linear period axis. The ratios and the first
// period are single-precision values widened to double (0.01 reads
// 0.009999999776482582).
SpectrumSettings DefaultSpectrumChoices();

// The period axis a spectrum type suggests: the texts for "From" and "To"
// and whether the axis is logarithmic.
struct PeriodAxisPreset {
  const char* from;
  const char* to;
  bool log;
};
PeriodAxisPreset PeriodPresetForKind(int kind);

// The upper period once the user turns the logarithmic axis on or off.
double PeriodToForLogAxis(bool log);

// The dialog's checked fields; the six damping edits follow each other.
enum class SpectrumField {
  kAmplitudeScale,
  kPeriodFrom,
  kPeriodCount,
  kPeriodTo,
  kDamping1,
  kDamping2,
  kDamping3,
  kDamping4,
  kDamping5,
  kDamping6,
};

struct FieldCheck {
  SpectrumField field;
  ValueRange range;
};

// Every checked field in the order OK checks them; the first failure stops
// the check. Disabled damping edits are checked too.
std::span<const FieldCheck> SpectrumFieldChecks();

// The range `field` is checked against.
ValueRange SpectrumFieldRange(SpectrumField field);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_SPECTRUM_CHOICES_H_
