#include "core/records/spectrum_choices.h"

#include <array>

namespace zel {
namespace {

constexpr std::array<const char*, 6> kTypeNames = {
    "Pseudo Acceleration",   "Pseudo Velocity",
    "Absolute Acceleration", "Relative Velocity",
    "Relative Displacement", "Combined D-V-A (Tripartite)",
};

constexpr std::array<const char*, 6> kKindWords = {"psa", "psv", "sa",
                                                   "sv",  "sd",  "dva"};

constexpr ValueRange kAmplitude{0.0, 100.0};
constexpr ValueRange kPeriod{0.0, 100.0};
constexpr ValueRange kPeriodCount{1.0, kMaxPeriods, true};
constexpr ValueRange kDamping{0.0, 1.0};

// The damping edits are checked second, first, then third to sixth.
constexpr std::array<FieldCheck, 10> kChecks = {{
    {SpectrumField::kAmplitudeScale, kAmplitude},
    {SpectrumField::kPeriodFrom, kPeriod},
    {SpectrumField::kPeriodCount, kPeriodCount},
    {SpectrumField::kPeriodTo, kPeriod},
    {SpectrumField::kDamping2, kDamping},
    {SpectrumField::kDamping1, kDamping},
    {SpectrumField::kDamping3, kDamping},
    {SpectrumField::kDamping4, kDamping},
    {SpectrumField::kDamping5, kDamping},
    {SpectrumField::kDamping6, kDamping},
}};

}  // namespace

std::span<const char* const> SpectrumTypeNames() { return kTypeNames; }

std::span<const char* const> SpectrumKindWords() { return kKindWords; }

int SpectrumKindOfWord(std::string_view word) {
  for (std::size_t kind = 0; kind < kKindWords.size(); ++kind) {
    if (word == kKindWords[kind]) return static_cast<int>(kind);
  }
  return -1;
}

SpectrumSettings DefaultSpectrumChoices() {
  SpectrumSettings s;
  constexpr std::array<float, kMaxCurves> kDampingRatios = {0.0f,  0.01f, 0.02f,
                                                            0.05f, 0.1f,  0.2f};
  for (std::size_t k = 0; k < kDampingRatios.size(); ++k) {
    s.damping[k] = static_cast<double>(kDampingRatios[k]);
  }
  s.damping_count = 1;
  s.period_from = static_cast<double>(0.01f);
  s.period_to = 10.0;
  s.period_count = 200;
  s.kind = kPseudoAcceleration;
  s.log_axis = false;
  return s;
}

PeriodAxisPreset PeriodPresetForKind(int kind) {
  if (kind == kCombinedDVA) return {"0.01", "50", true};
  return {"0.0", "3.0", false};
}

double PeriodToForLogAxis(bool log) { return log ? 10.0 : 3.0; }

std::span<const FieldCheck> SpectrumFieldChecks() { return kChecks; }

ValueRange SpectrumFieldRange(SpectrumField field) {
  for (const FieldCheck& check : kChecks) {
    if (check.field == field) return check.range;
  }
  return {};
}

}  // namespace zel
