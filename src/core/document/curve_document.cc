#include "core/document/curve_document.h"

#include <algorithm>

#include "core/document/c_format.h"
#include "core/document/units.h"

namespace zel {

bool CZELwDoc::SetPoint(int i, int c, double x, double y, int last) {
  if (c < 0 || c >= kMaxCurves || i < 0) return false;
  const auto item = static_cast<std::size_t>(i);
  if (!store_.SetValue(item, 2 * c, x) ||
      !store_.SetValue(item, 2 * c + 1, y)) {
    return false;
  }
  point_count[c] = last != 0 ? i + 1 : i;
  return true;
}

void CZELwDoc::SetAxisTitle(int axis, const std::string& text) {
  if (axis == 0 || axis == 1) chart.axis_titles[axis] = text;
}

const std::string& CZELwDoc::AxisTitle(int axis) const {
  return chart.axis_titles[axis == 0 ? 0 : 1];
}

std::string CZELwDoc::BuildYAxisTitle() const {
  // The text in front of the unit's "(", less the blank before it.
  const std::string& current = chart.axis_titles[1];
  std::string kept;
  const std::size_t paren = current.find('(');
  if (paren != std::string::npos && paren > 0)
    kept = current.substr(0, paren - 1);

  const std::string suffix = length_unit == 1 && IsValidUnitIndex(unit_index)
                                 ? kLengthUnits[unit_index].suffix
                                 : " (g";
  switch (spectrum_kind) {
    case kPseudoAcceleration:
      return "Pseudo Acceleration" + suffix + ")";
    case kPseudoVelocity:
    case kCombinedDVA:
      return "Pseudo Velocity" + suffix + "/sec)";
    case kAbsoluteAcceleration:
      return "Absolute Acceleration" + suffix + ")";
    case kRelativeVelocity:
      return "Relative Velocity" + suffix + "/sec)";
    case kRelativeDisplacement:
      return "Relative Displacement" + suffix + ")";
    case kLengthUnitFile:
      return kept + suffix + ")";
    default:
      return "";
  }
}

void CZELwDoc::ApplySeriesStyles() {
  thick_lines = !thick_lines;
  for (int c = 0; c < kMaxCurves; ++c) {
    chart.series[c] = {kSeriesColours[c], thick_lines + 1};
  }
}

void CZELwDoc::RefreshChartTitle() {
  chart.title_lines.clear();
  chart.title_lines.push_back(title);
  if (!subtitle.empty()) chart.title_lines.push_back(subtitle);
}

double CZELwDoc::GetUnitFactor(int new_index) {
  if (!IsValidUnitIndex(new_index)) return 1.0;
  const double factor = UnitConversionFactor(unit_index, new_index);
  unit_index = new_index;
  unit = kLengthUnits[new_index].unit;
  gravity = kLengthUnits[new_index].gravity;
  return factor;
}

void CZELwDoc::ToggleLogX() {
  log_x = !log_x;
  chart.log_range = log_x || log_y;
  if (chart.log_range) chart.log_min_x = chart.log_min_y = 0.01;
}

void CZELwDoc::ToggleLogY() {
  log_y = !log_y;
  chart.log_range = log_x || log_y;
  if (chart.log_range) chart.log_min_x = chart.log_min_y = 0.01;
}

void CZELwDoc::ConvertUnit(int new_index) {
  const double factor = GetUnitFactor(new_index);
  for (int c = 0; c < std::min(curve_count, kMaxCurves); ++c) {
    store_.Scale(2 * c + 1, factor);
  }
  SetAxisTitle(1, BuildYAxisTitle());
}

void CZELwDoc::AddLabel(ChartLabel label) {
  std::erase(label.content, '\r');
  chart.labels.push_back(std::move(label));
}

void CZELwDoc::SetDampingLegend() {
  chart.legend.title = "Damping :";
  // Spectra by the textbook decay rate say so, also once read back.
  if (title.ends_with(" (exact)")) chart.legend.title += " (exact)";
  chart.legend.entries.clear();
  for (int c = 0; c < std::min(curve_count, kMaxCurves); ++c) {
    chart.legend.entries.push_back(curve_legend[c].empty()
                                       ? CFormat(" %1.2f", damping[c])
                                       : curve_legend[c]);
  }
}

std::size_t CZELwDoc::StoredPoints(int c) const {
  return std::min(store_.Size(2 * c), store_.Size(2 * c + 1));
}

}  // namespace zel
