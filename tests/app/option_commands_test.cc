// The Option commands, their dialogs and Add Label: what reaches the
// document and its chart (the rules themselves are tested in core).
#include "app/dialogs/dlg_ctxlabel.h"
#include "app/dialogs/dlg_title.h"
#include "app/dialogs/dlg_unit.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

TEST_F(AppFixture, UnitAndTitleDialogs) {
  CZELwDoc* doc = app_->NewDocument(1);
  doc->length_unit = 1;
  doc->spectrum_kind = kPseudoVelocity;
  doc->title = "Spectrum";
  doc->SetPoint(0, 0, 0.1, 250.0, 1);
  // The unit dialog starts at the document's unit; Cancel changes nothing.
  for (const int choice : {2, 4}) {
    answer_ = [choice](QDialog& d) {
      auto& unit = dynamic_cast<DLG_UNIT&>(d);
      EXPECT_EQ(unit.UnitIndex(), choice == 2 ? 0 : 2);
      unit.SetUnitIndex(choice);
      return choice == 2 ? int(QDialog::Accepted) : int(QDialog::Rejected);
    };
    frame().OnCommand(ID_OPTION_UNIT);
    EXPECT_EQ(doc->store().Value(0, 1), 0.25);  // mm to m
    EXPECT_EQ(child()->GetView().yAxis->label(), "Pseudo Velocity (m/sec)");
  }
  // The title dialog shows the titles; OK takes them, and OK and Cancel
  // alike refresh the chart's and the window's title.
  answer_ = [](QDialog& d) {
    auto& title = dynamic_cast<DLG_TITLE&>(d);
    EXPECT_EQ(title.MainTitle(), "Spectrum");
    title.SetMainTitle("My spectrum");
    title.SetSubTitle("Site 3");
    return int(QDialog::Accepted);
  };
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(doc->chart.title_lines,
            (std::vector<std::string>{"My spectrum", "Site 3"}));
  doc->title = "Changed elsewhere";
  answer_ = nullptr;
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(doc->chart.title_lines[0], "Changed elsewhere");
  EXPECT_EQ(child()->windowTitle(), "Changed elsewhere");
  EXPECT_EQ(dialog_titles_, QStringList({"Unit conversion", "Unit conversion",
                                         "Graph Title", "Graph Title"}));
}

TEST_F(AppFixture, LabelScaleAndThicknessReachTheChart) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 10; ++i) doc->SetPoint(i, 0, 0.5 * i, 0.2 + 0.1 * i, 0);
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  view.resize(800, 400);
  answer_ = [](QDialog& d) {
    auto& label = dynamic_cast<DLG_CTXLABEL&>(d);
    label.SetTitle("Note");
    label.SetContent("line 1\r\nline 2");
    return int(QDialog::Accepted);
  };
  view.OnAddLabel(QPoint(200, 300));  // at the click, in per cent
  ASSERT_EQ(view.itemCount(), 1);
  auto* text = qobject_cast<QCPItemText*>(view.item(0));
  EXPECT_EQ(text->text(), "Note\nline 1\nline 2");
  EXPECT_EQ(text->position->coords(), QPointF(0.25, 0.75));
  answer_ = nullptr;  // Cancel adds nothing
  view.OnAddLabel(QPoint(10, 10));
  EXPECT_EQ(doc->chart.labels.size(), 1u);

  frame().OnCommand(ID_OPTION_XLOG);
  EXPECT_EQ(view.xAxis->scaleType(), QCPAxis::stLogarithmic);
  // Period 0 cannot be shown on a log axis; the range starts at the decade
  // of the first period that can.
  EXPECT_EQ(view.graph(0)->data()->size(), 10);
  EXPECT_DOUBLE_EQ(view.xAxis->range().lower, 0.1);
  frame().OnCommand(ID_OPTION_XLOG);
  EXPECT_EQ(view.xAxis->scaleType(), QCPAxis::stLinear);
  frame().OnCommand(ID_OPTION_LINE_THICKNESS);
  EXPECT_EQ(view.graph(0)->pen().width(), 2);
  view.xAxis->setRange(1.0, 2.0);
  frame().OnCommand(ID_OPTION_XGRID);  // an update keeps the zoom
  EXPECT_EQ(view.xAxis->range().lower, 1.0);
}

}  // namespace
}  // namespace zel::app::testing
