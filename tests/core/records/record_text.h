// Small record files made by the tests themselves.
#ifndef ZEL_TESTS_CORE_RECORDS_RECORD_TEXT_H_
#define ZEL_TESTS_CORE_RECORDS_RECORD_TEXT_H_

#include <cstdio>
#include <string>
#include <vector>

namespace zel::testing {

// "time, value" lines, every number with all its digits.
inline std::string RecordText(const std::vector<double>& times,
                              const std::vector<double>& values) {
  std::string text;
  char line[96];
  for (std::size_t i = 0; i < times.size(); ++i) {
    std::snprintf(line, sizeof line, "%.17g, %.17g\n", times[i], values[i]);
    text += line;
  }
  return text;
}

// An evenly sampled record starting at `start`.
inline std::string EvenRecord(const std::vector<double>& values, double dt,
                              double start = 0.0) {
  std::vector<double> times(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) times[i] = start + i * dt;
  return RecordText(times, values);
}

}  // namespace zel::testing

#endif  // ZEL_TESTS_CORE_RECORDS_RECORD_TEXT_H_
