// The last steps every record generator takes on its document: composing the
// chart and attaching the result label.
#ifndef ZEL_CORE_RECORDS_CHART_SETUP_H_
#define ZEL_CORE_RECORDS_CHART_SETUP_H_

#include <string>

#include "core/document/curve_document.h"

namespace zel {

// Lets the document set up its chart: the title lines from title and
// subtitle, the colours and widths of the curves (the thickness is kept).
void SetUpChart(CZELwDoc& doc);

// Shows `text` as the document's context label, replacing the one an
// earlier generator step attached; free labels of the user stay.
void SetContextLabel(CZELwDoc& doc, const std::string& text);

// The context label's text, empty when there is none.
std::string ContextLabel(const CZELwDoc& doc);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_CHART_SETUP_H_
