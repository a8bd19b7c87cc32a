// A design code's spectrum as the target of a record: read out of the
// document its generator fills, laid over a record's response spectra, or
// sampled finely over the period range a record is scaled in.
#ifndef ZEL_CORE_SCALING_DESIGN_TARGET_H_
#define ZEL_CORE_SCALING_DESIGN_TARGET_H_

#include <string>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"
#include "core/scaling/spectrum_scaling.h"

namespace zel {

inline constexpr char kOverlayKindMessage[] =
    "A design spectrum can only be added to response spectra of pseudo or "
    "absolute acceleration in g";
inline constexpr char kOverlayFullMessage[] =
    "The chart already holds 6 curves: no more can be added";

// Intervals of the grid a code's spectrum is sampled on over a scaling
// range: fine enough that the chord between two grid periods stays within
// 0.01 % of a 1/T branch from 0.1 sec on.
inline constexpr int kTargetGridSteps = 2000;

// The points of curve 0 as the chart shows them (every stored point).
std::vector<SpectrumPoint> StoredCurve(const CZELwDoc& doc, int c = 0);

// Runs the code's generator on a document of its own, with the dialog's
// checks and messages. False after a message.
bool GenerateDesignDocument(const CodeEntry& code, const ParamValues& values,
                            CZELwDoc& design, MessageSink& messages);

// `values` with the code's period grid ("from", "to", "steps"), when it has
// one, set to `range` in kTargetGridSteps intervals; a code on fixed
// periods keeps them.
ParamValues TargetGridValues(const CodeEntry& code, ParamValues values,
                             const PeriodRange& range);

// Whether `doc` holds response spectra that a design spectrum can join:
// acceleration in g, not tripartite, fewer than six curves. Shows
// kOverlayKindMessage or kOverlayFullMessage when not.
bool CanAddDesignSpectrum(const CZELwDoc& doc, MessageSink& messages);

// Adds curve 0 of `design` as the next curve of `doc`, with the code's title
// as its legend entry in place of a damping ratio; its saved points are
// those the code's own document saves. False after CanAddDesignSpectrum's
// message.
bool AddDesignSpectrum(CZELwDoc& doc, const CZELwDoc& design,
                       MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_SCALING_DESIGN_TARGET_H_
