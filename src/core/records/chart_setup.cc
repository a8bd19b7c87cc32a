#include "core/records/chart_setup.h"

namespace zel {
namespace {

// Where the context label sits, in per cent of the plot area: just inside
// the top of the frame, in the room a linear axis leaves above the curves,
// whatever the number of title lines and the window's size.
constexpr double kContextLabelX = 55.0;
constexpr double kContextLabelY = 1.0;

bool HasContextLabel(const CZELwDoc& doc) {
  return doc.context_label_index >= 0 &&
         static_cast<std::size_t>(doc.context_label_index) <
             doc.chart.labels.size();
}

}  // namespace

void SetUpChart(CZELwDoc& doc) {
  doc.RefreshChartTitle();
  // The styles command toggles the thickness; twice gives the colours alone.
  doc.ApplySeriesStyles();
  doc.ApplySeriesStyles();
}

void SetContextLabel(CZELwDoc& doc, const std::string& text) {
  if (HasContextLabel(doc)) {
    doc.chart.labels[static_cast<std::size_t>(doc.context_label_index)]
        .content = text;
    return;
  }
  ChartLabel label;
  label.content = text;
  label.x_percent = kContextLabelX;
  label.y_percent = kContextLabelY;
  label.in_plot_area = true;
  doc.AddLabel(label);
  doc.context_label_index = static_cast<int>(doc.chart.labels.size()) - 1;
}

std::string ContextLabel(const CZELwDoc& doc) {
  if (!HasContextLabel(doc)) return "";
  return doc.chart.labels[static_cast<std::size_t>(doc.context_label_index)]
      .content;
}

}  // namespace zel
