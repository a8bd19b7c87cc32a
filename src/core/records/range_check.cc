#include "core/records/range_check.h"

#include "core/document/c_format.h"

namespace zel {

bool InRange(double value, const ValueRange& range) {
  return value >= range.min && value <= range.max;
}

std::string RangeMessage(const ValueRange& range) {
  // Bounds with all their digits: 100000 must not read as 1e+05.
  return CFormat("Please enter %s between %.15g and %.15g.",
                 range.integer ? "an integer" : "a number", range.min,
                 range.max);
}

}  // namespace zel
