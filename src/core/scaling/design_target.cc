#include "core/scaling/design_target.h"

#include <cstddef>
#include <utility>

#include "core/document/c_format.h"

namespace zel {

std::vector<SpectrumPoint> StoredCurve(const CZELwDoc& doc, int c) {
  std::vector<SpectrumPoint> curve;
  const std::size_t n = doc.StoredPoints(c);
  curve.reserve(n);
  for (std::size_t i = 0; i < n; ++i) {
    curve.push_back(
        {doc.store().Value(i, 2 * c), doc.store().Value(i, 2 * c + 1)});
  }
  return curve;
}

bool GenerateDesignDocument(const CodeEntry& code, const ParamValues& values,
                            CZELwDoc& design, MessageSink& messages) {
  return PrecheckCode(code, values, messages) && code.generate &&
         code.generate(values, design, messages);
}

ParamValues TargetGridValues(const CodeEntry& code, ParamValues values,
                             const PeriodRange& range) {
  if (FindParam(code, "from") != nullptr && FindParam(code, "to") != nullptr &&
      FindParam(code, "steps") != nullptr) {
    values["from"] = CFormat("%.17g", range.low);
    values["to"] = CFormat("%.17g", range.high);
    values["steps"] = CFormat("%d", kTargetGridSteps);
  }
  return values;
}

bool CanAddDesignSpectrum(const CZELwDoc& doc, MessageSink& messages) {
  const bool accelerations = doc.damping_flag == 1 && doc.tripartite == 0 &&
                             doc.length_unit == 0 && doc.unit == "GRAV" &&
                             doc.type == "ACCEL";
  if (!accelerations) {
    messages.Show(kOverlayKindMessage);
    return false;
  }
  if (doc.curve_count >= kMaxCurves) {
    messages.Show(kOverlayFullMessage);
    return false;
  }
  return true;
}

bool AddDesignSpectrum(CZELwDoc& doc, const CZELwDoc& design,
                       MessageSink& messages) {
  if (!CanAddDesignSpectrum(doc, messages)) return false;
  const int c = doc.curve_count;
  const std::vector<SpectrumPoint> curve = StoredCurve(design);
  for (std::size_t i = 0; i < curve.size(); ++i) {
    doc.SetPoint(static_cast<int>(i), c, curve[i].period, curve[i].sa, 1);
  }
  doc.point_count[c] = design.point_count[0];
  // Design spectra are drawn for 5 % damping; a reader that does not know
  // the legend line shows this ratio.
  doc.damping[c] = 0.05;
  doc.curve_legend[c] = design.title;
  doc.curve_count = c + 1;
  doc.SetDampingLegend();
  doc.UpdateAllViews();
  return true;
}

}  // namespace zel
