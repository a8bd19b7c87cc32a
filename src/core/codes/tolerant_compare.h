// Comparison of doubles that forgives the last few bits, and the clamped
// piecewise-linear table lookup built on it. The site-coefficient tables of
// the Korean codes are read through these, so that an input typed as "0.1"
// lands on the 0.1 column however it was computed.
#ifndef ZEL_CORE_CODES_TOLERANT_COMPARE_H_
#define ZEL_CORE_CODES_TOLERANT_COMPARE_H_

#include <span>

namespace zel {

// Returns 0 when a and b are within 32 units in the last place of the
// smaller one (measured towards the other), -1 when a is below b, +1 when it
// is above. Unordered values (NaN) compare as 0.
int TolerantCompare(double a, double b);

// Interpolates y at x over the ascending table (xs, ys), clamping to the end
// values outside it. Uses the shorter length of the two spans. Returns false,
// leaving `result` untouched, only for an empty table.
bool InterpolateTable(double x, std::span<const double> xs,
                      std::span<const double> ys, double& result);

}  // namespace zel

#endif  // ZEL_CORE_CODES_TOLERANT_COMPARE_H_
