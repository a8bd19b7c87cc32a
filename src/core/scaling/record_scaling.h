// Scaling one record, or a suite of records, to a design code's spectrum,
// and the comparison chart of the scaled spectrum over the code's.
#ifndef ZEL_CORE_SCALING_RECORD_SCALING_H_
#define ZEL_CORE_SCALING_RECORD_SCALING_H_

#include <span>
#include <string>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"
#include "core/scaling/spectrum_scaling.h"

namespace zel {

// The code's spectrum a record is scaled to.
struct ScalingTarget {
  std::string title;                 // the code's document title
  std::vector<SpectrumPoint> shown;  // as the code's own chart shows it
  std::vector<double> periods;       // the matching periods
  std::vector<double> code;          // the code's ordinates there
};

// Checks the settings, generates the code's spectrum from the dialog's
// values (once as set, once finely over the range) and samples it at the
// matching periods. False after a message, including "The design spectrum
// does not reach T = ... sec" for a code on fixed periods that stops short.
bool MakeScalingTarget(const CodeEntry& code, const ParamValues& values,
                       const ScalingSettings& settings, ScalingTarget& target,
                       MessageSink& messages);

// A record as read into a record document: samples in g and the time step.
struct RecordInput {
  std::string name;
  std::span<const RecordSample> samples;
  double time_step = 0.0;
};

inline constexpr char kScaleNeedsRecordMessage[] =
    "Scaling needs an earthquake record: make its window the active one";
// Whether the document holds a record to scale.
bool HoldsRecord(const CZELwDoc& doc);

// Fills a new document with the record of `record` times `factor`, as a
// record document read with the factor times its amplitude scale.
void MakeScaledRecord(CZELwDoc& scaled, const CZELwDoc& record, double factor);

// Scales a record: the factor by the settings' rule on its pseudo-acceleration
// spectrum at the matching periods.
bool ScaleRecord(const RecordInput& record, const ScalingTarget& target,
                 const ScalingSettings& settings, ScaleResult& result,
                 MessageSink& messages);

// Scales a suite with one factor common to all its records, chosen by the
// rule for the suite's mean spectrum: a common factor keeps the records'
// intensities relative to one another, the scatter the analyses are run to
// sample, and makes the factor unique. `spectra` receives each record's
// unscaled spectrum at the matching periods.
bool ScaleSuite(std::span<const RecordInput> records,
                const ScalingTarget& target, const ScalingSettings& settings,
                std::vector<std::vector<double>>& spectra, ScaleResult& result,
                MessageSink& messages);

// Fills a new document with the comparison chart: curve 0 the record's
// pseudo-acceleration spectrum times the factor over the periods of the
// code's chart (legend: its damping ratio), curve 1 the code spectrum, for
// the minimum rule the required fraction of it, and a bracket over the
// matching range. The factor and the misfit are its label.
void BuildComparisonDocument(CZELwDoc& doc, const RecordInput& record,
                             const ScalingTarget& target,
                             const ScalingSettings& settings,
                             const ScaleResult& result);

// The comparison chart's label, also what the command line prints.
std::string ScaleResultText(const ScalingTarget& target,
                            const ScalingSettings& settings,
                            const ScaleResult& result);

}  // namespace zel

#endif  // ZEL_CORE_SCALING_RECORD_SCALING_H_
