#include "core/document/units.h"

namespace zel {
namespace {

constexpr double kFactors[kUnitCount][kUnitCount] = {
    {1.0, 0.1, 0.001, 0.03937, 0.003281},
    {10.0, 1.0, 0.01, 0.3937, 0.03281},
    {1000.0, 100.0, 1.0, 39.37, static_cast<double>(3.281f)},
    {25.4, 2.54, 0.0254, 1.0, 0.08333},
    {304.8, 30.48, 0.3048, 12.0, 1.0},
};

}  // namespace

double UnitConversionFactor(int from, int to) {
  if (!IsValidUnitIndex(from) || !IsValidUnitIndex(to)) return 1.0;
  return kFactors[from][to];
}

int UnitIndexOfWord(std::string_view word) {
  if (word == "MM") return 0;
  if (word == "CM") return 1;
  if (word == "M") return 2;
  if (word == "INCH" || word == "IN" || word == "IN.") return 3;
  if (word == "FEET" || word == "FT" || word == "FT.") return 4;
  return -1;
}

}  // namespace zel
