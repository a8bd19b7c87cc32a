// The range a dialog checks an entered value against when OK is pressed, and
// the message that asks for a value inside it.
#ifndef ZEL_CORE_RECORDS_RANGE_CHECK_H_
#define ZEL_CORE_RECORDS_RANGE_CHECK_H_

#include <string>

namespace zel {

struct ValueRange {
  double min = 0.0;
  double max = 0.0;
  bool integer = false;  // the field holds a whole number
};

// min <= value <= max; a value that is not a number is never in range.
bool InRange(double value, const ValueRange& range);

// "Please enter a number between 0 and 100." or, for an integer field,
// "Please enter an integer between 1 and 5000."
std::string RangeMessage(const ValueRange& range);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RANGE_CHECK_H_
