// The Option commands and their dialogs, and Add Label.
#include "app/dialogs/dlg_ctxlabel.h"
#include "app/dialogs/dlg_title.h"
#include "app/dialogs/dlg_unit.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

TEST_F(AppFixture, UnitConversionThroughTheDialog) {
  CZELwDoc* doc = app_->NewDocument(1);
  doc->length_unit = 1;
  doc->spectrum_kind = kPseudoVelocity;
  doc->unit = "MM";
  doc->curve_count = 2;
  doc->SetPoint(0, 0, 0.1, 250.0, 1);
  doc->SetPoint(0, 1, 0.1, 500.0, 1);
  doc->SetPoint(0, 2, 0.1, 7.0, 1);  // beyond the curve count: untouched

  int preset = -1;
  const struct {
    int choice;
    int result;
    int preset;
    double y0;
    const char* unit;
    const char* title;
  } steps[] = {
      {2, QDialog::Accepted, 0, 0.25, "M", "Pseudo Velocity (m/sec)"},
      {4, QDialog::Rejected, 2, 0.25, "M", "Pseudo Velocity (m/sec)"},
      {4, QDialog::Accepted, 2, 0.25 * 3.2809998989105225, "FT",
       "Pseudo Velocity (ft/sec)"},
      {4, QDialog::Accepted, 4, 0.25 * 3.2809998989105225, "FT",
       "Pseudo Velocity (ft/sec)"},
      {2, QDialog::Accepted, 4, 0.25 * 3.2809998989105225 * 0.3048, "M",
       "Pseudo Velocity (m/sec)"},
  };
  for (const auto& s : steps) {
    SCOPED_TRACE(s.unit);
    answer_ = [&preset, &s](QDialog& d) {
      auto& unit = dynamic_cast<DLG_UNIT&>(d);
      preset = unit.UnitIndex();
      unit.SetUnitIndex(s.choice);
      return s.result;
    };
    frame().OnCommand(ID_OPTION_UNIT);
    EXPECT_EQ(preset, s.preset);
    EXPECT_EQ(doc->store().Value(0, 1), s.y0);
    EXPECT_EQ(doc->store().Value(0, 3), 2.0 * s.y0);
    EXPECT_EQ(doc->store().Value(0, 0), 0.1);
    EXPECT_EQ(doc->store().Value(0, 5), 7.0);
    EXPECT_EQ(doc->unit, s.unit);
    EXPECT_EQ(child()->GetView().yAxis->label().toStdString(), s.title);
  }
  EXPECT_EQ(dialog_titles_.first(), "Unit conversion");
  EXPECT_NE(doc->store().Value(0, 1), 0.25);  // m -> ft -> m is not exact
}

TEST_F(AppFixture, TitleDialogRefreshesOnOkAndCancel) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->title = "ATC 3-06 Design Spectrum";
  doc->subtitle = "Av=0.4";
  doc->RefreshChartTitle();
  doc->UpdateAllViews();

  QString seen_main;
  QString seen_sub;
  answer_ = [&](QDialog& d) {
    auto& title = dynamic_cast<DLG_TITLE&>(d);
    seen_main = title.MainTitle();
    seen_sub = title.SubTitle();
    title.SetMainTitle("My spectrum");
    title.SetSubTitle("Site 3");
    return int(QDialog::Accepted);
  };
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(seen_main, "ATC 3-06 Design Spectrum");
  EXPECT_EQ(seen_sub, "Av=0.4");
  EXPECT_EQ(doc->title, "My spectrum");
  EXPECT_EQ(doc->subtitle, "Site 3");
  EXPECT_EQ(doc->chart.title_lines,
            (std::vector<std::string>{"My spectrum", "Site 3"}));
  EXPECT_EQ(child()->windowTitle(), "My spectrum");

  // Cancel keeps the texts but still refreshes title and window title.
  doc->title = "Changed elsewhere";
  answer_ = [](QDialog& d) {
    dynamic_cast<DLG_TITLE&>(d).SetMainTitle("ignored");
    return int(QDialog::Rejected);
  };
  frame().OnCommand(ID_OPTION_EDIT_TITLE);
  EXPECT_EQ(doc->title, "Changed elsewhere");
  EXPECT_EQ(doc->chart.title_lines,
            (std::vector<std::string>{"Changed elsewhere", "Site 3"}));
  EXPECT_EQ(child()->windowTitle(), "Changed elsewhere");
  EXPECT_EQ(dialog_titles_, QStringList({"Graph Title", "Graph Title"}));
}

TEST_F(AppFixture, AddLabelAtTheClickPoint) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  CZELwView& view = child()->GetView();
  view.resize(800, 400);

  answer_ = [](QDialog& d) {
    auto& label = dynamic_cast<DLG_CTXLABEL&>(d);
    EXPECT_EQ(label.Style(), ChartLabel::kPlain);
    label.SetTitle("Note");
    label.SetContent("line 1\r\nline 2");
    label.SetStyle(ChartLabel::kBoxed);
    return int(QDialog::Accepted);
  };
  view.OnAddLabel(QPoint(200, 300));
  ASSERT_EQ(doc->chart.labels.size(), 1u);
  const ChartLabel& label = doc->chart.labels[0];
  EXPECT_DOUBLE_EQ(label.x_percent, 25.0);
  EXPECT_DOUBLE_EQ(label.y_percent, 75.0);
  EXPECT_EQ(label.title, "Note");
  EXPECT_EQ(label.content, "line 1\nline 2");
  EXPECT_EQ(label.style, ChartLabel::kBoxed);
  ASSERT_EQ(view.itemCount(), 1);
  auto* text = qobject_cast<QCPItemText*>(view.item(0));
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(), "Note\nline 1\nline 2");
  EXPECT_DOUBLE_EQ(text->position->coords().x(), 0.25);
  EXPECT_DOUBLE_EQ(text->position->coords().y(), 0.75);
  EXPECT_EQ(dialog_titles_.first(), "Add Label");

  // Cancel adds nothing.
  answer_ = nullptr;
  view.OnAddLabel(QPoint(10, 10));
  EXPECT_EQ(doc->chart.labels.size(), 1u);
}

TEST_F(AppFixture, ScaleAndThicknessCommandsReachTheChart) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 10; ++i) doc->SetPoint(i, 0, 0.5 * i, 0.2 + 0.1 * i, 0);
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  ASSERT_EQ(view.graphCount(), 1);
  EXPECT_EQ(view.graph(0)->data()->size(), 11);

  frame().OnCommand(ID_OPTION_XLOG);
  EXPECT_EQ(view.xAxis->scaleType(), QCPAxis::stLogarithmic);
  EXPECT_EQ(view.yAxis->scaleType(), QCPAxis::stLinear);
  // The point at period 0 cannot be shown on a log axis; the range starts
  // at the log minimum 0.01.
  EXPECT_EQ(view.graph(0)->data()->size(), 10);
  EXPECT_DOUBLE_EQ(view.xAxis->range().lower, 0.1);
  frame().OnCommand(ID_OPTION_XLOG);
  EXPECT_EQ(view.xAxis->scaleType(), QCPAxis::stLinear);
  EXPECT_FALSE(doc->chart.log_range);

  frame().OnCommand(ID_OPTION_LINE_THICKNESS);
  EXPECT_EQ(view.graph(0)->pen().width(), 2);
  frame().OnCommand(ID_OPTION_LINE_THICKNESS);
  EXPECT_EQ(view.graph(0)->pen().width(), 1);

  view.xAxis->setRange(1.0, 2.0);
  frame().OnCommand(ID_OPTION_XGRID);  // an update keeps the zoom
  EXPECT_EQ(view.xAxis->range().lower, 1.0);
}

}  // namespace
}  // namespace zel::app::testing
