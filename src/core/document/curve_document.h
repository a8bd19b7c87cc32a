// CZELwDoc: the curve document behind every chart. It owns up to six curves
// (in a DataStore), their titles, unit and type, damping ratios, display
// flags, the chart's plain data, and the working data of the generators.
#ifndef ZEL_CORE_DOCUMENT_CURVE_DOCUMENT_H_
#define ZEL_CORE_DOCUMENT_CURVE_DOCUMENT_H_

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/document/data_store.h"
#include "core/plot/chart_model.h"

namespace zel {

// Spectrum kind codes.
enum SpectrumKind : int {
  kKindNotSet = -1,
  kPseudoAcceleration = 0,
  kPseudoVelocity = 1,
  kAbsoluteAcceleration = 2,  // also every design spectrum
  kRelativeVelocity = 3,
  kRelativeDisplacement = 4,
  kCombinedDVA = 5,  // tripartite chart
  kLengthUnitFile = 99,
};

inline constexpr int kRecordCapacity = 50000;

struct RecordSample {
  double time = 0.0;
  double value = 0.0;
};

class CZELwDoc {
 public:
  CZELwDoc() = default;

  // Stores point i of curve c; the point count of c becomes i + 1 when `last`
  // is non-zero, else i. Generators store without the mark, so their saved
  // curves end one point short of the chart; this is kept on purpose.
  // Returns false, storing nothing, for a curve index outside 0..5.
  bool SetPoint(int i, int c, double x, double y, int last);
  // Axis 0 is the X axis, 1 the Y axis.
  void SetAxisTitle(int axis, const std::string& text);
  const std::string& AxisTitle(int axis) const;
  // The Y-axis title for the spectrum kind and the unit.
  std::string BuildYAxisTitle() const;
  // The Line Thickness command: toggles thick lines, then applies width and
  // colours to every curve.
  void ApplySeriesStyles();
  // Composes the chart's title lines from title and subtitle.
  void RefreshChartTitle();
  // Returns the factor from the current to the new length unit and makes the
  // new one current (unit string and gravity follow).
  double GetUnitFactor(int new_index);

  // Option commands, Qt-free: the GUI's handlers call these.
  void ToggleLogX();
  void ToggleLogY();
  void ToggleGridX() { grid_x = !grid_x; }
  void ToggleGridY() { grid_y = !grid_y; }
  void ToggleDiagonalGrid() { diagonal_grid = !diagonal_grid; }
  // Converts the y values of every curve to the length unit `new_index` and
  // rebuilds the Y-axis title.
  void ConvertUnit(int new_index);
  // Adds a free label; carriage returns are removed from the content.
  void AddLabel(ChartLabel label);
  // Legend "Damping :" with one " %1.2f" entry per curve, or the curve's
  // own legend text where it has one; "Damping : (exact)" when the title
  // ends with " (exact)".
  void SetDampingLegend();

  // The framework's title of the document's window.
  void SetTitle(const std::string& text) { window_title = text; }
  // Tells the views to redraw; a view registers `on_update`.
  void UpdateAllViews() const {
    if (on_update) on_update();
  }

  DataStore& store() { return store_; }
  const DataStore& store() const { return store_; }
  // Number of values of curve c actually held (the chart shows these).
  std::size_t StoredPoints(int c) const;

  // --- Titles and unit ---
  std::string title;
  std::string subtitle;
  std::string third_title;
  std::string window_title;
  std::string unit = "GRAV";  // "GRAV" or a length unit
  std::string type = "ACCEL";
  int unit_index = 0;
  int length_unit = 0;
  double gravity = 9815.0;
  double pi = 3.141592;

  // --- Curves ---
  int spectrum_kind = kKindNotSet;
  int tripartite = 0;
  int damping_flag = 0;
  int curve_count = 1;
  std::array<int, kMaxCurves> point_count{};
  std::array<double, kMaxCurves> damping{};
  // A legend entry that takes the place of the damping ratio, such as a
  // design code's title laid over response spectra; empty for a ratio.
  std::array<std::string, kMaxCurves> curve_legend{};

  // --- Display flags ---
  int record_flag = 0;
  int log_x = 0;
  int log_y = 0;
  int grid_x = 1;
  int grid_y = 1;
  int diagonal_grid = 1;
  int thick_lines = 0;
  int negative_x_seen = 0;
  int negative_y_seen = 0;
  int loaded = 0;

  // --- Generator working data ---
  double amplitude_scale = 1.0;
  double time_scale = 1.0;
  double period_from = 0.0;
  double period_to = 0.0;
  int period_steps = 0;
  std::vector<RecordSample> record_samples;  // at most kRecordCapacity
  double record_time_step = 0.0;
  std::string record_name;

  // --- Records, response spectra and the time/frequency switch ---
  // Record values are kept in g and acceleration results are not divided by
  // g (set for record documents).
  int results_in_g = 0;
  // The user asked for a logarithmic period axis.
  int log_period_axis = 0;
  // The chart's axis-display switch, toggled by the spectrum generator.
  int axis_display = 0;
  // 0 while the time history is shown, 1 while the frequency spectrum is.
  int frequency_mode = 0;
  // Step of the x-axis ticks for the view; 0 lets the view choose.
  double x_axis_step = 0.0;
  // Index in chart.labels of the generator's result label, -1 when none.
  int context_label_index = -1;

  ChartModel chart;
  std::function<void()> on_update;

 private:
  DataStore store_;
};

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_CURVE_DOCUMENT_H_
