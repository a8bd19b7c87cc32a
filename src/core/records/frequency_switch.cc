#include "core/records/frequency_switch.h"

#include <cmath>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/chart_setup.h"
#include "core/records/fft.h"
#include "core/records/record_curve.h"

namespace zel {
namespace {

// The largest power of two not above n (n >= 1), from ln n / ln 2 as the
// frequency command has always done it, kept exact at the boundaries.
unsigned LargestPowerOfTwo(unsigned n) {
  if ((n & (n - 1)) == 0) return n;
  int m = static_cast<int>(std::log(static_cast<double>(n)) / std::log(2.0));
  while (m > 0 && (1u << m) > n) --m;
  while (m < 31 && (1u << (m + 1)) <= n) ++m;
  return 1u << m;
}

void FinishChart(CZELwDoc& doc, const char* x_title, const char* y_title,
                 const char* title, const std::string& label) {
  doc.SetAxisTitle(1, y_title);
  doc.SetAxisTitle(0, x_title);
  doc.title = title;
  doc.subtitle = doc.record_name;
  SetUpChart(doc);
  SetContextLabel(doc, label);
  doc.axis_display = 0;
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
}

// Shows the spectrum; false, leaving the document as it was, after a
// message when the record has no frequency content to normalise by.
bool ShowFrequencySpectrum(CZELwDoc& doc, unsigned count,
                           MessageSink& messages) {
  const unsigned n = LargestPowerOfTwo(count);
  std::vector<double> real_in(n);
  std::vector<double> real_out(n);
  std::vector<double> imag_out(n);
  for (unsigned i = 0; i < n; ++i) real_in[i] = doc.record_samples[i].value;
  CFFT().fft_double(n, 0, real_in.data(), nullptr, real_out.data(),
                    imag_out.data());

  // The record's step already carries the time scale; it acts twice here,
  // as it always has.
  const double df = 1.0 / (doc.record_time_step * doc.time_scale) / n;
  std::vector<double> magnitude(n / 2 + 1);
  double largest = 0.0;
  double largest_at = 0.0;
  for (unsigned k = 1; k <= n / 2; ++k) {
    magnitude[k] =
        std::sqrt(real_out[k] * real_out[k] + imag_out[k] * imag_out[k]);
    if (magnitude[k] >= largest) {
      largest = magnitude[k];
      largest_at = df * k;
    }
  }
  if (largest == 0.0) {
    messages.Show(
        CFormat("Error : No frequency content! The first %u samples "
                "of the record are all equal.",
                n));
    return false;
  }
  if (!std::isfinite(largest)) {
    messages.Show("Error : The record's values are too large to transform!");
    return false;
  }
  doc.x_axis_step = df;
  // The curve is rebuilt: no time-history value may linger past its end.
  doc.store().Clear();
  for (unsigned k = 1; k <= n / 2; ++k) {
    doc.SetPoint(static_cast<int>(k), 0, df * k, magnitude[k] / largest, 0);
  }
  FinishChart(doc, "Frequency (Hz)", "Normalized value", "Frequency Spectrum",
              CFormat("Maximum at %3.2f Hz", largest_at));
  doc.frequency_mode = 1;
  return true;
}

void ShowTimeHistory(CZELwDoc& doc) {
  doc.x_axis_step = 0.0;
  doc.store().Clear();
  const RecordPeak peak = StoreTimeHistory(doc);
  FinishChart(
      doc, "Time (sec)", "Ground Accel.(g)", "Earthquake Record",
      CFormat("Max = %2.4f(g) at %3.2f sec", peak.magnitude, peak.time));
  doc.frequency_mode = 0;
}

}  // namespace

bool SwitchTimeFrequency(CZELwDoc& doc, MessageSink& messages) {
  if (doc.results_in_g == 0) return false;
  if (doc.frequency_mode == 1) {
    ShowTimeHistory(doc);
    return true;
  }
  const int count = static_cast<int>(doc.record_samples.size());
  if (count < 2) {
    messages.Show("Error : Too few points for a frequency spectrum!");
    return false;
  }
  // The time step is known from the fourth sample on; the time scale acts
  // on it once more in the frequency step.
  const double step = doc.record_time_step * doc.time_scale;
  if (!(step > 0.0 && std::isfinite(step) && std::isfinite(1.0 / step))) {
    messages.Show(
        "Error : No time step! A frequency spectrum needs at least 4 samples "
        "and a positive time scale.");
    return false;
  }
  return ShowFrequencySpectrum(doc, static_cast<unsigned>(count), messages);
}

}  // namespace zel
