// Columns of numbers separated by blanks, tabs, commas or semicolons, after
// any header lines: one column of accelerations at a time step the user
// gives, or a time column and an acceleration column, in the unit the user
// chooses.
#include <algorithm>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {

ReadResult ReadPlainText(TextLines& lines, RecordBuilder& out) {
  std::size_t columns = 0;
  bool found = false;
  while (!found && lines.Next()) found = IsNumberRow(lines.text(), &columns);
  ReadResult problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  if (!found) {
    return out.Refuse("No data found", lines.number(),
                      ": no line holds numbers only.");
  }
  const int first = lines.number();
  const ImportChoices choices = WithDefaultColumns(out.choices(), columns);
  const int count = static_cast<int>(columns);
  const int time = choices.time_column;
  const int accel = choices.accel_column;
  if (accel < 1 || accel > count || time < 0 || time > count) {
    return out.Refuse("No such column", first,
                      CFormat(": the rows have %d column%s; time column %d, "
                              "acceleration column %d were chosen.",
                              count, count == 1 ? "" : "s", time, accel));
  }
  if (time == accel) {
    return out.Refuse(
        "Columns must differ", first,
        CFormat(": column %d holds both time and acceleration.", time));
  }
  if (time == 0) {
    if (choices.time_step <= 0.0) {
      return out.Refuse("Time step needed", first,
                        ": the file has no time column; give its time step.");
    }
    if (!out.SetTimeStep(choices.time_step, first)) {
      return ReadResult::kRefused;
    }
  } else if (choices.time_step != 0.0) {
    return out.Refuse("Time step given twice", first,
                      CFormat(": column %d gives the times; choose no time "
                              "column to use the given step.",
                              time));
  }

  const double factor = GravitiesPer(choices.unit);
  std::vector<std::string_view> fields;
  int last = first;
  do {
    SplitFields(lines.text(), kPlainSeparators, fields);
    if (fields.empty()) continue;
    double values[2] = {0.0, 0.0};  // time, acceleration
    for (std::size_t i = 0; i < fields.size(); ++i) {
      double value;
      if (!ParseNumber(fields[i], value)) {
        return out.Refuse("Value is not a number", lines.number(),
                          ": \"" + std::string(fields[i]) + "\".");
      }
      if (static_cast<int>(i) + 1 == time) values[0] = value;
      if (static_cast<int>(i) + 1 == accel) values[1] = value;
    }
    if (static_cast<int>(fields.size()) < std::max(time, accel)) {
      return out.Refuse(
          "Too few columns", lines.number(),
          CFormat(": %zu of %d.", fields.size(), std::max(time, accel)));
    }
    const bool added =
        time == 0 ? out.Add(values[1] * factor, lines.number())
                  : out.AddTimed(values[0], values[1] * factor, lines.number());
    if (!added) return ReadResult::kRefused;
    last = lines.number();
  } while (lines.Next());
  problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  return out.Finish(last);
}

}  // namespace zel
