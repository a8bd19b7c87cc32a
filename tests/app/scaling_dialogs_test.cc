// Add Design Spectrum and Scale to Design Spectrum, driven through the
// menus offscreen.
#include <QComboBox>
#include <QRadioButton>
#include <cmath>
#include <vector>

#include "app/dialogs/dlg_design_overlay.h"
#include "app/dialogs/dlg_scale.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/records/record_curve.h"
#include "core/scaling/design_target.h"
#include "core/scaling/record_scaling.h"

namespace zel::app::testing {
namespace {

int CodeIndex(const char* id) {
  for (std::size_t i = 0; i < DesignCodes().size(); ++i) {
    if (DesignCodes()[i].id == id) return static_cast<int>(i);
  }
  return -1;
}

class ScalingDialogsTest : public AppFixture {
 protected:
  // Presses OK in every dialog, after `fill` has set the first one.
  template <class Dialog>
  void AnswerWith(std::function<void(Dialog&)> fill) {
    answer_ = [fill](QDialog& dialog) {
      if (auto* first = dynamic_cast<Dialog*>(&dialog)) fill(*first);
      dialog.accept();
      return dialog.result();
    };
  }
};

TEST_F(ScalingDialogsTest, AddDesignSpectrumJoinsTheResponseSpectra) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentResponseSpectrum);
  doc->damping_flag = 1;
  doc->spectrum_kind = kPseudoAcceleration;
  doc->damping[0] = 0.05;
  for (int i = 0; i < 3; ++i) doc->SetPoint(i, 0, 0.5 * (i + 1), 0.3, 0);
  AnswerWith<DLG_DESIGN_OVERLAY>([](DLG_DESIGN_OVERLAY& dialog) {
    dialog.codes()->setCurrentIndex(CodeIndex("kds2019"));
  });
  frame().OnCommand(ID_ADD_DESIGN_SPECTRUM);
  EXPECT_EQ(dialog_titles_.size(), 2);  // the choice, then the code's own
  EXPECT_EQ(doc->curve_count, 2);
  EXPECT_EQ(doc->chart.legend.entries.back(), FindDesignCode("kds2019")->title);
  EXPECT_EQ(WindowCount(), 1);

  // A record is no response spectrum: a message and no dialog.
  app_->NewDocument(kNewDocumentRecord);
  frame().OnCommand(ID_ADD_DESIGN_SPECTRUM);
  EXPECT_EQ(dialog_titles_.size(), 2);
  EXPECT_EQ(messages(), std::vector<std::string>{kOverlayKindMessage});
}

TEST_F(ScalingDialogsTest, ScaleMakesTheScaledRecordAndTheComparison) {
  frame().OnCommand(ID_SCALE_TO_DESIGN);  // nothing to scale yet
  EXPECT_EQ(messages(), std::vector<std::string>{kScaleNeedsRecordMessage});

  CZELwDoc* record = app_->NewDocument(kNewDocumentRecord);
  PrepareRecordDocument(*record, 1.0, 1.0, "test record");
  for (int i = 0; i < 1000; ++i) {
    const double t = 0.02 * i;
    record->record_samples.push_back(
        {t, 0.2 * std::sin(9.0 * t) * std::exp(-0.3 * t)});
  }
  record->record_time_step = 0.02;
  ShowRecordSamples(*record);

  ScalingSettings settings;
  settings.rule = ScaleRule::kMinimum;
  settings.range = {0.24, 1.8};  // 0.2 T1 to 1.5 T1 for T1 = 1.2
  AnswerWith<DLG_SCALE>([](DLG_SCALE& dialog) {
    dialog.codes()->setCurrentIndex(CodeIndex("kds2019"));
    dialog.by_t1()->setChecked(true);
    dialog.t1()->setText("1.2");
    dialog.minimum()->setChecked(true);
  });
  frame().OnCommand(ID_SCALE_TO_DESIGN);
  ASSERT_EQ(WindowCount(), 3);

  // The factor the core gives for the same record, code and settings.
  MessageLog log;
  const CodeEntry& code = *FindDesignCode("kds2019");
  ScalingTarget target;
  ASSERT_TRUE(
      MakeScalingTarget(code, DefaultValues(code), settings, target, log));
  ScaleResult result;
  ASSERT_TRUE(ScaleRecord({"", record->record_samples, 0.02}, target, settings,
                          result, log));
  const auto windows =
      frame().mdi_area()->subWindowList(QMdiArea::CreationOrder);
  const CZELwDoc& scaled = static_cast<CChildFrame*>(windows[1])->GetDocument();
  EXPECT_DOUBLE_EQ(scaled.amplitude_scale, result.factor);
  EXPECT_DOUBLE_EQ(scaled.record_samples[5].value,
                   record->record_samples[5].value * result.factor);
  EXPECT_EQ(child()->GetDocument().title, "Record Scaled to Design Spectrum");
  // The record, the code, its required fraction and the range.
  EXPECT_EQ(child()->GetDocument().curve_count, 4);
}

}  // namespace
}  // namespace zel::app::testing
