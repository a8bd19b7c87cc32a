// The Option commands and their dialogs, and Add Label: what reaches the
// document and its chart (the rules themselves are tested in core).
#include "app/dialogs/dlg_ctxlabel.h"
#include "app/dialogs/dlg_title.h"
#include "app/dialogs/dlg_unit.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

TEST_F(AppFixture, UnitDialogStartsAtTheDocumentsUnitAndCancelKeepsIt) {
  CZELwDoc* doc = app_->NewDocument(1);
  doc->length_unit = 1;
  doc->spectrum_kind = kPseudoVelocity;
  doc->SetPoint(0, 0, 0.1, 250.0, 1);
  const struct {
    int preset, choice, result;
  } steps[] = {{0, 2, QDialog::Accepted}, {2, 4, QDialog::Rejected}};
  for (const auto& s : steps) {
    answer_ = [s](QDialog& d) {
      auto& unit = dynamic_cast<DLG_UNIT&>(d);
      EXPECT_EQ(unit.UnitIndex(), s.preset);
      unit.SetUnitIndex(s.choice);
      return s.result;
    };
    frame().OnCommand(ID_OPTION_UNIT);
    EXPECT_EQ(doc->store().Value(0, 1), 0.25);  // mm to m, then unchanged
    EXPECT_EQ(child()->GetView().yAxis->label(), "Pseudo Velocity (m/sec)");
  }
  EXPECT_EQ(dialog_titles_.first(), "Unit conversion");
}

TEST_F(AppFixture, TitleDialogRefreshesOnOkAndCancel) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->title = "ATC 3-06 Design Spectrum";
  doc->subtitle = "Av=0.4";
  answer_ = [](QDialog& d) {
    auto& title = dynamic_cast<DLG_TITLE&>(d);
    EXPECT_EQ(title.MainTitle(), "ATC 3-06 Design Spectrum");
    EXPECT_EQ(title.SubTitle(), "Av=0.4");
    title.SetMainTitle("My spectrum");
    return int(QDialog::Accepted);
  };
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(doc->chart.title_lines,
            (std::vector<std::string>{"My spectrum", "Av=0.4"}));
  EXPECT_EQ(child()->windowTitle(), "My spectrum");
  // Cancel keeps the texts but still refreshes title and window title.
  doc->title = "Changed elsewhere";
  answer_ = nullptr;
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(doc->chart.title_lines[0], "Changed elsewhere");
  EXPECT_EQ(child()->windowTitle(), "Changed elsewhere");
  EXPECT_EQ(dialog_titles_, QStringList({"Graph Title", "Graph Title"}));
}

TEST_F(AppFixture, AddLabelAtTheClickPoint) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  CZELwView& view = child()->GetView();
  view.resize(800, 400);
  answer_ = [](QDialog& d) {
    auto& label = dynamic_cast<DLG_CTXLABEL&>(d);
    label.SetTitle("Note");
    label.SetContent("line 1\r\nline 2");
    label.SetStyle(ChartLabel::kBoxed);
    return int(QDialog::Accepted);
  };
  view.OnAddLabel(QPoint(200, 300));
  ASSERT_EQ(doc->chart.labels.size(), 1u);
  EXPECT_EQ(doc->chart.labels[0].style, ChartLabel::kBoxed);
  ASSERT_EQ(view.itemCount(), 1);
  auto* text = qobject_cast<QCPItemText*>(view.item(0));
  EXPECT_EQ(text->text(), "Note\nline 1\nline 2");
  EXPECT_EQ(text->position->coords(), QPointF(0.25, 0.75));
  answer_ = nullptr;  // Cancel adds nothing
  view.OnAddLabel(QPoint(10, 10));
  EXPECT_EQ(doc->chart.labels.size(), 1u);
  EXPECT_EQ(dialog_titles_.first(), "Add Label");
}

TEST_F(AppFixture, ScaleAndThicknessCommandsReachTheChart) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 10; ++i) doc->SetPoint(i, 0, 0.5 * i, 0.2 + 0.1 * i, 0);
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  frame().OnCommand(ID_OPTION_XLOG);
  EXPECT_EQ(view.xAxis->scaleType(), QCPAxis::stLogarithmic);
  EXPECT_EQ(view.yAxis->scaleType(), QCPAxis::stLinear);
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
