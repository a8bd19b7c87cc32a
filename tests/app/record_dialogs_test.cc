// The record and response-spectrum dialogs, their progress window and the
// Time<->Frequency command, driven through the menus offscreen.
#include <gmock/gmock.h>

#include <QLocale>
#include <QTest>
#include <cmath>
#include <string>
#include <vector>

#include "app/dialogs/dlg_progress_bar.h"
#include "app/dialogs/earth_dlg.h"
#include "app/dialogs/eq_rec_dlg.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/c_format.h"
#include "core/document/test_files.h"
#include "core/records/chart_setup.h"
#include "core/records/record_catalog.h"
#include "core/records/record_fixtures.h"
#include "core/records/response_spectrum.h"
#include "core/records/spectrum_choices.h"

namespace zel::app::testing {
namespace {

using ::testing::ElementsAre;

constexpr const char* kElCentro = "1940, El Centro Site, 270 Deg";

// A program folder whose dbase/ holds the first catalog entry's file only.
class RecordDialogsTest : public AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    std::filesystem::create_directory(dir_ / "dbase");
    for (int i = 0; i < kSamples; ++i) {
      const double t = i * 0.02;
      times_.push_back(t);
      values_.push_back(0.25 * std::sin(9.0 * t) * std::exp(-0.3 * t) +
                        0.04 * std::cos(31.0 * t));
    }
    values_[123] = -0.41;  // the peak, negative
    record_path_ = (dir_ / "dbase" / "Elcent_h.dbs").string();
    zel::testing::WriteAll(record_path_,
                           zel::testing::RecordText(times_, values_));
    folder_ = (dir_ / "").string();
    app_->SetProgramFolder(folder_);
  }

  // Answers the next modal dialog with `fill`, then presses OK.
  template <typename Dialog>
  void AnswerWith(std::function<void(Dialog&)> fill) {
    answer_ = [this, fill](QDialog& d) {
      auto& dialog = dynamic_cast<Dialog&>(d);
      if (fill) fill(dialog);
      dialog.accept();
      return dialog.result();
    };
  }

  static constexpr int kSamples = 1000;
  zel::testing::TempDir dir_;
  std::string folder_;
  std::string record_path_;
  std::vector<double> times_;
  std::vector<double> values_;
};

TEST_F(RecordDialogsTest, DefaultsOfBothDialogs) {
  // A German desktop must not turn 0.01 into 0,01.
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EQ_REC_DLG record(*app_);
  EarthDlg spectra(*app_);
  QLocale::setDefault(before);

  EXPECT_EQ(record.windowTitle(), "Generate Earthquake Acceleration Record");
  EXPECT_EQ(spectra.windowTitle(),
            "Earthquake Response Spectra Generation Dialog");
  for (RecordChooser* c : {&record.chooser(), &spectra.chooser()}) {
    ASSERT_EQ(c->record_list()->count(), kCatalogSize);
    EXPECT_EQ(c->record_list()->currentText(), kElCentro);
    EXPECT_EQ(c->record_name(), kElCentro);
    EXPECT_EQ(
        c->caption_text(),
        std::string(kElCentro) + "\r\nPeak = 0.3569 g  Duration = 53.72 sec");
    EXPECT_EQ(c->caption_box()->toPlainText(),
              QString(kElCentro) + "\nPeak = 0.3569 g  Duration = 53.72 sec");
    EXPECT_TRUE(c->caption_box()->isReadOnly());
    EXPECT_EQ(c->amplitude_scale()->text(), "1");
    EXPECT_EQ(c->time_scale()->text(), "1");
    EXPECT_FALSE(c->imported());
  }
  record.chooser().record_list()->setCurrentIndex(3);
  EXPECT_EQ(record.chooser().record_name(),
            "1952, Taft Lincoln School, 69 Deg");
  EXPECT_EQ(record.chooser().caption_text(),
            "1952, Taft Lincoln School, 69 Deg\r\n"
            "Peak = -0.1557   Duration = 54.38 sec");

  EXPECT_EQ(spectra.type_list()->count(), 6);
  EXPECT_EQ(spectra.type_list()->currentText(), "Pseudo Acceleration");
  const char* shown[] = {"0", "0.01", "0.02", "0.05", "0.1", "0.2"};
  const SpectrumSettings defaults = DefaultSpectrumChoices();
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(spectra.damping_edit(i)->text(), shown[i]);
    EXPECT_EQ(spectra.damping_edit(i)->Value(), defaults.damping[i]);
    EXPECT_EQ(spectra.damping_edit(i)->isEnabled(), i == 0);
  }
  EXPECT_EQ(spectra.damping_count(), 1);
  EXPECT_EQ(spectra.from_edit()->text(), "0.01");
  EXPECT_EQ(spectra.from_edit()->Value(), 0.009999999776482582);
  EXPECT_EQ(spectra.to_edit()->text(), "10");
  EXPECT_EQ(spectra.step_edit()->text(), "200");
  EXPECT_FALSE(spectra.log_box()->isChecked());
  // "Step" takes digits only; an edited text is read as typed.
  spectra.step_edit()->clear();
  QTest::keyClicks(spectra.step_edit(), "3x0-0");
  EXPECT_EQ(spectra.step_edit()->text(), "300");
  spectra.from_edit()->SetText("0.01");
  EXPECT_EQ(spectra.from_edit()->Value(), 0.01);
  spectra.to_edit()->setText("0,5");  // read as far as it is a number
  EXPECT_EQ(spectra.to_edit()->Value(), 0.0);
}

TEST_F(RecordDialogsTest, TypeListLogBoxAndAdd) {
  EarthDlg dialog(*app_);
  dialog.type_list()->setCurrentIndex(kCombinedDVA);
  EXPECT_EQ(dialog.from_edit()->text(), "0.01");
  EXPECT_EQ(dialog.to_edit()->text(), "50");
  EXPECT_TRUE(dialog.log_box()->isChecked());
  dialog.type_list()->setCurrentIndex(kRelativeVelocity);
  EXPECT_EQ(dialog.from_edit()->text(), "0.0");
  EXPECT_EQ(dialog.to_edit()->text(), "3.0");
  EXPECT_FALSE(dialog.log_box()->isChecked());

  // A click on the log box sets "To" and shows every field again.
  dialog.step_edit()->setText("120");
  dialog.log_box()->click();
  EXPECT_TRUE(dialog.log_box()->isChecked());
  EXPECT_EQ(dialog.to_edit()->text(), "10");
  EXPECT_EQ(dialog.from_edit()->text(), "0");
  EXPECT_EQ(dialog.step_edit()->text(), "120");
  EXPECT_EQ(dialog.damping_edit(1)->Value(), 0.009999999776482582);
  dialog.log_box()->click();
  EXPECT_EQ(dialog.to_edit()->text(), "3");

  for (int press = 1; press <= 5; ++press) {
    QTest::mouseClick(dialog.add_button(), Qt::LeftButton);
    EXPECT_EQ(dialog.damping_count(), press + 1);
    for (int i = 0; i < 6; ++i) {
      EXPECT_EQ(dialog.damping_edit(i)->isEnabled(), i <= press);
    }
  }
  EXPECT_TRUE(messages().empty());
  QTest::mouseClick(dialog.add_button(), Qt::LeftButton);
  EXPECT_THAT(messages(), ElementsAre("No more damping!"));
  EXPECT_EQ(dialog.damping_count(), 6);
}

TEST_F(RecordDialogsTest, RangeChecksKeepTheDialogOpen) {
  EarthDlg spectra(*app_);
  struct Case {
    std::function<void()> edit;
    NumberEdit* focus;
    const char* message;
  };
  const Case cases[] = {
      {[&] { spectra.step_edit()->setText("0"); }, spectra.step_edit(),
       "Please enter an integer between 1 and 5000."},
      {[&] { spectra.step_edit()->setText("5001"); }, spectra.step_edit(),
       "Please enter an integer between 1 and 5000."},
      // The amplitude scale is checked before the period count.
      {[&] { spectra.chooser().amplitude_scale()->setText("100.5"); },
       spectra.chooser().amplitude_scale(),
       "Please enter a number between 0 and 100."},
      {[&] {
         spectra.chooser().amplitude_scale()->setText("100");
         spectra.step_edit()->setText("5000");
         spectra.to_edit()->setText("100.1");
         spectra.from_edit()->setText("-1");
       },
       spectra.from_edit(), "Please enter a number between 0 and 100."},
      {[&] { spectra.from_edit()->setText("0"); }, spectra.to_edit(),
       "Please enter a number between 0 and 100."},
      // The second damping edit before the first.
      {[&] {
         for (int i = 0; i < 5; ++i) spectra.OnAdd();
         spectra.to_edit()->setText("3");
         spectra.damping_edit(0)->setText("-0.1");
         spectra.damping_edit(1)->setText("1.5");
       },
       spectra.damping_edit(1), "Please enter a number between 0 and 1."},
      {[&] { spectra.damping_edit(1)->setText("1"); }, spectra.damping_edit(0),
       "Please enter a number between 0 and 1."},
      {[&] {
         spectra.damping_edit(0)->setText("0.05");
         spectra.damping_edit(5)->setText("2");
       },
       spectra.damping_edit(5), "Please enter a number between 0 and 1."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    messages_->Clear();
    c.edit();
    spectra.accept();
    EXPECT_THAT(messages(), ElementsAre(c.message));
    EXPECT_EQ(spectra.focusWidget(), c.focus);
    EXPECT_EQ(c.focus->selectedText(), c.focus->text());
    EXPECT_EQ(spectra.result(), QDialog::Rejected);
  }
  EXPECT_FALSE(app_->follow_up().spectrum_follows);
  // Disabled damping edits are checked too.
  EarthDlg fresh(*app_);
  messages_->Clear();
  fresh.damping_edit(4)->setText("1.01");
  fresh.accept();
  EXPECT_THAT(messages(),
              ElementsAre("Please enter a number between 0 and 1."));

  EQ_REC_DLG record(*app_);
  messages_->Clear();
  record.chooser().amplitude_scale()->setText("100001");
  record.chooser().time_scale()->setText("-7");  // never checked
  record.accept();
  EXPECT_THAT(messages(),
              ElementsAre("Please enter a number between 0 and 100000."));
  EXPECT_EQ(record.focusWidget(), record.chooser().amplitude_scale());
  EXPECT_EQ(WindowCount(), 0);  // nothing closes windows here
}

TEST_F(RecordDialogsTest, MissingRecordFileKeepsTheDialogOpen) {
  EQ_REC_DLG record(*app_);
  record.chooser().record_list()->setCurrentIndex(1);  // no file for it
  app_->follow_up().spectrum_follows = true;
  record.accept();
  EXPECT_THAT(messages(), ElementsAre("ERROR! File Not Found!"));
  EXPECT_EQ(record.result(), QDialog::Rejected);
  EXPECT_EQ(app_->follow_up().record_path, folder_ + "dbase/Elcent_t.dbs");
  EXPECT_FALSE(app_->follow_up().spectrum_follows);

  EarthDlg spectra(*app_);
  spectra.chooser().record_list()->setCurrentIndex(2);
  spectra.type_list()->setCurrentIndex(kCombinedDVA);
  messages_->Clear();
  spectra.accept();
  EXPECT_THAT(messages(), ElementsAre("ERROR! File Not Found!"));
  EXPECT_EQ(spectra.result(), QDialog::Rejected);
  EXPECT_EQ(app_->follow_up().record_path, folder_ + "dbase/Elcent_v.dbs");
  EXPECT_TRUE(app_->follow_up().spectrum_follows);
  EXPECT_FALSE(app_->follow_up().tripartite_follows);

  // A record that would give wrong answers (here through a time scale of 0)
  // is refused the same way, the reader's message first.
  EQ_REC_DLG zero(*app_);
  zero.chooser().time_scale()->setText("0");
  messages_->Clear();
  zero.accept();
  EXPECT_THAT(messages(),
              ElementsAre(::testing::StartsWith("Error : Times must increase!"),
                          "an Error occurred while reading data!"));
  EXPECT_EQ(zero.result(), QDialog::Rejected);
  EXPECT_EQ(WindowCount(), 0);  // nothing closes windows here
}

TEST_F(RecordDialogsTest, ImportTakesTheChosenFile) {
  const std::string user = (dir_ / "kobe_ns.dbs").string();
  zel::testing::WriteAll(user, "0.0, 0.1\n0.01, -0.5\n0.02, 0.2\n0.03, 0\n");

  AnswerWith<EQ_REC_DLG>([&](EQ_REC_DLG& d) {
    RecordChooser& c = d.chooser();
    next_open_.clear();  // Cancel changes nothing
    QTest::mouseClick(c.import_button(), Qt::LeftButton);
    EXPECT_FALSE(c.imported());
    EXPECT_EQ(c.record_list()->count(), kCatalogSize);

    next_open_ = QString::fromStdString(user);
    QTest::mouseClick(c.import_button(), Qt::LeftButton);
    EXPECT_TRUE(c.imported());
    EXPECT_EQ(c.record_path(), user);
    EXPECT_EQ(c.record_list()->currentText(), "User-imported Data");
    EXPECT_FALSE(c.record_list()->isEnabled());
    EXPECT_EQ(c.record_name(), "User EQ : kobe_ns.dbs");
    EXPECT_EQ(c.caption_text(), "User EQ : kobe_ns.dbs");
    EXPECT_EQ(c.caption_box()->toPlainText(), "User EQ : kobe_ns.dbs");
  });
  frame().OnCommand(ID_GENERATE_EQ_RECORD);
  EXPECT_EQ(open_filters_, QStringList({"ZEL dbase file *.dbs|*.dbs||",
                                        "ZEL dbase file *.dbs|*.dbs||"}));
  ASSERT_EQ(WindowCount(), 1);
  EXPECT_EQ(app_->follow_up().record_path, user);
  EXPECT_EQ(child()->GetDocument().subtitle, "User EQ : kobe_ns.dbs");
  EXPECT_EQ(ContextLabel(child()->GetDocument()),
            "Max =   0.5000(g) at  0.010 sec");

  // The response-spectrum dialog imports the same way.
  AnswerWith<EarthDlg>([&](EarthDlg& d) {
    QTest::mouseClick(d.chooser().import_button(), Qt::LeftButton);
    EXPECT_FALSE(d.chooser().record_list()->isEnabled());
    d.step_edit()->setText("4");
  });
  frame().OnCommand(ID_GENERATE_RESPONSE_SPECTRA);
  ASSERT_EQ(WindowCount(), 2);
  EXPECT_EQ(child()->GetDocument().subtitle, "User EQ : kobe_ns.dbs");
  EXPECT_EQ(child()->GetDocument().StoredPoints(0), 4u);
}

TEST_F(RecordDialogsTest, RecordDocumentFromTheMenu) {
  EXPECT_TRUE(frame().CommandAction(ID_GENERATE_EQ_RECORD)->isEnabled());
  EXPECT_TRUE(frame().CommandAction(ID_GENERATE_RESPONSE_SPECTRA)->isEnabled());
  app_->follow_up().spectrum_follows = true;
  AnswerWith<EQ_REC_DLG>(
      [](EQ_REC_DLG& d) { d.chooser().amplitude_scale()->setText("2"); });
  frame().OnCommand(ID_GENERATE_EQ_RECORD);
  EXPECT_EQ(dialog_titles_,
            QStringList({"Generate Earthquake Acceleration Record"}));
  EXPECT_TRUE(messages().empty());
  ASSERT_EQ(WindowCount(), 1);
  EXPECT_FALSE(app_->follow_up().spectrum_follows);
  EXPECT_EQ(app_->follow_up().record_path, record_path_);
  EXPECT_EQ(app_->new_document_mode(), 0);

  const CZELwDoc& doc = child()->GetDocument();
  EXPECT_EQ(doc.title, "Earthquake Record");
  EXPECT_EQ(doc.subtitle, kElCentro);
  EXPECT_EQ(doc.window_title, "Earthquake Record");
  EXPECT_EQ(child()->windowTitle(), "Earthquake Record");
  EXPECT_EQ(doc.AxisTitle(0), "Time (sec)");
  EXPECT_EQ(doc.AxisTitle(1), "Ground Accel. (g)");
  EXPECT_EQ(doc.results_in_g, 1);
  EXPECT_EQ(doc.amplitude_scale, 2.0);
  EXPECT_EQ(ContextLabel(doc), "Max =   0.8200(g) at  2.460 sec");
  ASSERT_EQ(doc.StoredPoints(0), static_cast<std::size_t>(kSamples));
  for (int i = 0; i < kSamples; i += 37) {
    EXPECT_EQ(doc.store().Value(i, 0), times_[i]);
    EXPECT_EQ(doc.store().Value(i, 1), 2.0 * values_[i]);
  }
  EXPECT_EQ(child()->GetView().graphCount(), 1);
  EXPECT_EQ(child()->GetView().xAxis->label(), "Time (sec)");
  frame().UpdateCommandUI();
  EXPECT_TRUE(frame().CommandAction(ID_VIEW_TIME_FREQUENCY)->isEnabled());
}

TEST_F(RecordDialogsTest, ResponseSpectraEqualTheCoreComputation) {
  struct Run {
    int kind;
    bool click_log;  // after the type change
    int adds;
    const char* step;
    double from, to;  // what the dialog then holds
    bool log;
  };
  const Run runs[] = {
      // The first type is chosen already: the opening periods stay.
      {kPseudoAcceleration, false, 2, "40", 0.009999999776482582, 10.0, false},
      {kCombinedDVA, false, 0, "30", 0.01, 50.0, true},
      {kRelativeDisplacement, true, 1, "25", 0.0, 10.0, true},
  };
  for (const Run& run : runs) {
    SCOPED_TRACE(run.kind);
    std::vector<int> positions;
    bool tripartite_while_computing = false;
    AnswerWith<EarthDlg>([&](EarthDlg& d) {
      d.type_list()->setCurrentIndex(run.kind);
      if (run.click_log) d.log_box()->click();
      for (int i = 0; i < run.adds; ++i) d.add_button()->click();
      d.step_edit()->setText(run.step);
      d.SetProgressObserver([&](const DLG_ProgressBar& p) {
        EXPECT_EQ(p.windowTitle(), "Processing.... please wait.");
        EXPECT_TRUE(p.isVisible());
        EXPECT_EQ(p.bar().minimum(), 0);
        EXPECT_EQ(p.bar().maximum(), std::atoi(run.step));
        positions.push_back(p.bar().value());
        tripartite_while_computing = app_->follow_up().tripartite_follows;
      });
    });
    const int before = WindowCount();
    frame().OnCommand(ID_GENERATE_RESPONSE_SPECTRA);
    EXPECT_TRUE(messages().empty());
    ASSERT_EQ(WindowCount(), before + 1);
    EXPECT_TRUE(app_->follow_up().spectrum_follows);
    EXPECT_FALSE(app_->follow_up().tripartite_follows);
    EXPECT_EQ(tripartite_while_computing, run.kind == kCombinedDVA);
    EXPECT_EQ(app_->new_document_mode(), 1);

    SpectrumSettings s = DefaultSpectrumChoices();
    s.kind = run.kind;
    s.record_name = kElCentro;
    s.damping_count = run.adds + 1;
    s.period_count = std::atoi(run.step);
    s.period_from = run.from;
    s.period_to = run.to;
    s.log_axis = run.log;
    CZELwDoc expected;
    PrepareSpectrumDocument(expected, s);
    MessageLog log;
    ASSERT_EQ(
        ComputeResponseSpectrum(expected, InputFile::Open(record_path_), log),
        1);

    const CZELwDoc& doc = child()->GetDocument();
    EXPECT_EQ(doc.curve_count, run.adds + 1);
    EXPECT_EQ(doc.title, "Earthquake Response Spectrum");
    EXPECT_EQ(doc.subtitle, kElCentro);
    EXPECT_EQ(doc.AxisTitle(1), expected.AxisTitle(1));
    EXPECT_EQ(doc.unit, expected.unit);
    EXPECT_EQ(doc.tripartite, run.kind == kCombinedDVA ? 1 : 0);
    EXPECT_EQ(doc.log_x, expected.log_x);
    EXPECT_EQ(doc.log_y, expected.log_y);
    EXPECT_EQ(doc.chart.legend.entries, expected.chart.legend.entries);
    for (int k = 0; k < doc.curve_count; ++k) {
      ASSERT_EQ(doc.StoredPoints(k), static_cast<std::size_t>(s.period_count));
      for (int j = 0; j < s.period_count; ++j) {
        for (int col : {2 * k, 2 * k + 1}) {
          EXPECT_EQ(doc.store().Value(j, col), expected.store().Value(j, col));
        }
      }
    }
    // A logarithmic period axis starts at 0.01 in single precision, not at
    // the zero-period substitute.
    if (run.click_log) {
      EXPECT_EQ(doc.store().Value(0, 0), 0.009999999776482582);
    }
    ASSERT_EQ(positions.size(),
              static_cast<std::size_t>(s.period_count * doc.curve_count));
    for (std::size_t i = 0; i < positions.size(); ++i) {
      EXPECT_EQ(positions[i], static_cast<int>(i) % s.period_count);
    }
  }
  EXPECT_EQ(dialog_titles_.size(), 3);  // one dialog per run
}

TEST_F(RecordDialogsTest, TimeFrequencySwitchBothWays) {
  AnswerWith<EQ_REC_DLG>({});
  frame().OnCommand(ID_GENERATE_EQ_RECORD);
  ASSERT_EQ(WindowCount(), 1);
  CZELwDoc& record = child()->GetDocument();
  ChartWidget& view = child()->GetView();

  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  // 1000 samples: the first 512 are transformed.
  const double df = 1.0 / 0.02 / 512;
  EXPECT_EQ(record.frequency_mode, 1);
  EXPECT_EQ(record.title, "Frequency Spectrum");
  EXPECT_EQ(child()->windowTitle(), "Frequency Spectrum");
  EXPECT_EQ(record.AxisTitle(0), "Frequency (Hz)");
  EXPECT_EQ(record.AxisTitle(1), "Normalized value");
  EXPECT_EQ(view.xAxis->label(), "Frequency (Hz)");
  EXPECT_NEAR(record.x_axis_step, df, 1e-12);
  EXPECT_THAT(ContextLabel(record), ::testing::StartsWith("Maximum at "));
  EXPECT_EQ(record.store().Value(256, 0), 256 * record.x_axis_step);
  // Round frequencies at the ticks (0, 5, 10 Hz), not multiples of a bin.
  view.replot();
  const QVector<double> ticks = view.xAxis->tickVector();
  ASSERT_GE(ticks.size(), 3);
  EXPECT_EQ(ticks[0], 0.0);
  EXPECT_TRUE(ticks.contains(10.0));

  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  EXPECT_EQ(record.frequency_mode, 0);
  EXPECT_EQ(record.title, "Earthquake Record");
  EXPECT_EQ(record.AxisTitle(1), "Ground Accel.(g)");
  EXPECT_EQ(record.x_axis_step, 0.0);
  EXPECT_EQ(ContextLabel(record), "Max = 0.4100(g) at 2.46 sec");
  EXPECT_EQ(record.StoredPoints(0), static_cast<std::size_t>(kSamples));

  // A response-spectrum document stays as it is; its menu entry is off.
  AnswerWith<EarthDlg>([](EarthDlg& d) { d.step_edit()->setText("10"); });
  frame().OnCommand(ID_GENERATE_RESPONSE_SPECTRA);
  ASSERT_EQ(WindowCount(), 2);
  CZELwDoc& spectrum = child()->GetDocument();
  frame().UpdateCommandUI();
  EXPECT_FALSE(frame().CommandAction(ID_VIEW_TIME_FREQUENCY)->isEnabled());
  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  EXPECT_EQ(spectrum.title, "Earthquake Response Spectrum");
  EXPECT_EQ(spectrum.frequency_mode, 0);
  EXPECT_EQ(spectrum.StoredPoints(0), 10u);
  EXPECT_TRUE(messages().empty());
}

}  // namespace
}  // namespace zel::app::testing
