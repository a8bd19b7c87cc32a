// The Time<->Frequency command of a record document: shows the normalised
// Fourier amplitude spectrum of the record, or its time history again.
#ifndef ZEL_CORE_RECORDS_FREQUENCY_SWITCH_H_
#define ZEL_CORE_RECORDS_FREQUENCY_SWITCH_H_

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// Switches the record document between its time history (frequency_mode 0)
// and its frequency spectrum (frequency_mode 1). Does nothing in a document
// that is not a record document (results_in_g 0). The spectrum covers the
// first 2^m samples, the largest power of two not above the record length;
// the transform buffers grow with it. A record with no spectrum (fewer than
// four samples, so no time step, or all the transformed samples equal) gets
// a message, and the document stays as it is. Returns true when the
// document was switched.
bool SwitchTimeFrequency(CZELwDoc& doc, MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_FREQUENCY_SWITCH_H_
