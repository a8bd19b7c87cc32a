#include "core/codes/design_document.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "core/document/c_format.h"

namespace zel {

namespace {

// Titles, axes and styles common to both hand-overs, once the points are in.
void FinishDesignDocument(CZELwDoc& doc, const std::string& title,
                          const std::string& label,
                          const std::string& y_title) {
  doc.title = title;
  doc.subtitle = label;
  doc.RefreshChartTitle();
  doc.SetAxisTitle(1, y_title);
  doc.SetAxisTitle(0, kPeriodAxisTitle);
  doc.ApplySeriesStyles();
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
}

}  // namespace

void CopyGridToDocument(const PeriodGrid& grid, CZELwDoc& doc) {
  doc.period_from = grid.from;
  doc.period_to = grid.to;
  doc.period_steps = grid.steps;
}

void StoreDesignSpectrum(CZELwDoc& doc, const std::string& title,
                         const std::string& label,
                         std::span<const SpectrumPoint> points,
                         const std::string& y_axis_title) {
  doc.spectrum_kind = kAbsoluteAcceleration;
  for (std::size_t k = 0; k < points.size(); ++k) {
    doc.SetPoint(static_cast<int>(k), 0, points[k].period, points[k].sa, 0);
  }
  FinishDesignDocument(
      doc, title, label,
      y_axis_title.empty() ? doc.BuildYAxisTitle() : y_axis_title);
}

void HandOverSpectrum(CZELwDoc& doc, std::span<const double> periods,
                      std::span<const double> ordinates,
                      const std::string& title, const std::string& label) {
  // Every design spectrum is of kind 2; the axis title is still "Sa (g)".
  doc.spectrum_kind = kAbsoluteAcceleration;
  const std::size_t n = std::min(periods.size(), ordinates.size());
  for (std::size_t k = 0; k < n; ++k) {
    doc.SetPoint(static_cast<int>(k), 0, periods[k], ordinates[k], 1);
  }
  FinishDesignDocument(doc, title, label, kSaAxisTitle);
}

void HandOverSpectrum(CZELwDoc& doc, std::span<const SpectrumPoint> points,
                      const std::string& title, const std::string& label) {
  std::vector<double> periods;
  std::vector<double> ordinates;
  periods.reserve(points.size());
  ordinates.reserve(points.size());
  for (const SpectrumPoint& point : points) {
    periods.push_back(point.period);
    ordinates.push_back(point.sa);
  }
  HandOverSpectrum(doc, periods, ordinates, title, label);
}

bool CheckChoice(int index, std::size_t count, std::string_view label,
                 MessageSink& messages) {
  if (index >= 0 && static_cast<std::size_t>(index) < count) return true;
  messages.Show("The selection in '" + std::string(label) + "' is not valid");
  return false;
}

bool CheckFiniteParameters(std::initializer_list<NamedValue> values,
                           MessageSink& messages) {
  for (const NamedValue& named : values) {
    if (!std::isfinite(named.value)) {
      messages.Show("The value " + std::string(named.name) +
                    " must be a finite number");
      return false;
    }
  }
  return true;
}

bool CheckPrintableParameters(std::initializer_list<NamedValue> values,
                              MessageSink& messages) {
  if (!CheckFiniteParameters(values, messages)) return false;
  for (const NamedValue& named : values) {
    if (std::fabs(named.value) > kMaxPrintableParameter) {
      messages.Show("The value " + std::string(named.name) + " is too large");
      return false;
    }
  }
  return true;
}

bool CheckDefinedSpectrum(std::span<const SpectrumPoint> points,
                          MessageSink& messages) {
  for (const SpectrumPoint& point : points) {
    if (std::isnan(point.period) || std::isnan(point.sa)) {
      messages.Show(kUndefinedSpectrumMessage);
      return false;
    }
  }
  return true;
}

bool HandOverDefinedSpectrum(CZELwDoc& doc,
                             std::span<const SpectrumPoint> points,
                             const std::string& title, const std::string& label,
                             MessageSink& messages) {
  if (!CheckDefinedSpectrum(points, messages)) return false;
  HandOverSpectrum(doc, points, title, label);
  return true;
}

bool StoreDefinedSpectrum(CZELwDoc& doc, const std::string& title,
                          const std::string& label,
                          std::span<const SpectrumPoint> points,
                          MessageSink& messages,
                          const std::string& y_axis_title) {
  if (!CheckDefinedSpectrum(points, messages)) return false;
  StoreDesignSpectrum(doc, title, label, points, y_axis_title);
  return true;
}

}  // namespace zel
