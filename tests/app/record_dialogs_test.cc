// The record and response-spectrum dialogs, their progress window and the
// Time<->Frequency command, driven through the menus offscreen.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/dialogs/dlg_progress_bar.h"
#include "app/dialogs/dlg_record_info.h"
#include "app/dialogs/earth_dlg.h"
#include "app/dialogs/eq_rec_dlg.h"
#include "app/dialogs/record_import_dlg.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/test_files.h"
#include "core/records/chart_setup.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"
#include "core/records/record_fixtures.h"
#include "core/records/spectrum_choices.h"

namespace zel::app::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

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

TEST_F(RecordDialogsTest, DefaultsTypeListLogBoxAndAdd) {
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
    EXPECT_EQ(c->record_name(), kElCentro);
    EXPECT_EQ(c->caption_box()->toPlainText(),
              QString(kElCentro) + "\nPeak = 0.3569 g  Duration = 53.72 sec");
    EXPECT_TRUE(c->caption_box()->isReadOnly());
    EXPECT_EQ(c->amplitude_scale()->text() + c->time_scale()->text(), "11");
  }
  record.chooser().record_list()->setCurrentIndex(3);
  EXPECT_EQ(record.chooser().caption_text(),
            "1952, Taft Lincoln School, 69 Deg\r\n"
            "Peak = -0.1557   Duration = 54.38 sec");

  EXPECT_EQ(spectra.type_list()->count(), 6);
  EXPECT_EQ(spectra.type_list()->currentText(), "Pseudo Acceleration");
  const char* shown[] = {"0", "0.01", "0.02", "0.05", "0.1", "0.2"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(spectra.damping_edit(i)->text(), shown[i]);
    EXPECT_EQ(spectra.damping_edit(i)->isEnabled(), i == 0);
  }
  EXPECT_EQ(spectra.from_edit()->text(), "0.01");
  EXPECT_EQ(spectra.from_edit()->Value(), 0.009999999776482582);
  EXPECT_FALSE(spectra.exact_box()->isChecked());
  EXPECT_FALSE(spectra.log_grid_box()->isChecked());
  EXPECT_EQ(spectra.to_edit()->text() + spectra.step_edit()->text(), "10200");
  EXPECT_FALSE(spectra.log_box()->isChecked());
  // "Step" takes digits only; an edited text is read as typed, as far as it
  // is a number.
  spectra.step_edit()->clear();
  QTest::keyClicks(spectra.step_edit(), "3x0-0");
  EXPECT_EQ(spectra.step_edit()->text(), "300");
  spectra.from_edit()->SetText("0.01");
  EXPECT_EQ(spectra.from_edit()->Value(), 0.01);
  spectra.to_edit()->setText("0,5");
  EXPECT_EQ(spectra.to_edit()->Value(), 0.0);

  // The tripartite type suggests its periods and the log box, the others
  // theirs; a click on the log box sets "To" and shows every field again.
  spectra.type_list()->setCurrentIndex(kCombinedDVA);
  EXPECT_EQ(spectra.from_edit()->text() + " " + spectra.to_edit()->text(),
            "0.01 50");
  EXPECT_TRUE(spectra.log_box()->isChecked());
  spectra.type_list()->setCurrentIndex(kRelativeVelocity);
  EXPECT_EQ(spectra.from_edit()->text() + " " + spectra.to_edit()->text(),
            "0.0 3.0");
  EXPECT_FALSE(spectra.log_box()->isChecked());
  spectra.log_box()->click();
  EXPECT_EQ(spectra.from_edit()->text() + " " + spectra.to_edit()->text() +
                " " + spectra.step_edit()->text(),
            "0 10 300");
  EXPECT_EQ(spectra.damping_edit(1)->Value(), 0.009999999776482582);
  spectra.log_box()->click();
  EXPECT_EQ(spectra.to_edit()->text(), "3");

  for (int press = 1; press <= 5; ++press) {
    QTest::mouseClick(spectra.add_button(), Qt::LeftButton);
    EXPECT_EQ(spectra.damping_count(), press + 1);
    EXPECT_TRUE(spectra.damping_edit(press)->isEnabled());
    if (press < 5) {
      EXPECT_FALSE(spectra.damping_edit(press + 1)->isEnabled());
    }
  }
  EXPECT_TRUE(messages().empty());
  QTest::mouseClick(spectra.add_button(), Qt::LeftButton);
  EXPECT_THAT(messages(), ElementsAre("No more damping!"));
  EXPECT_EQ(spectra.damping_count(), 6);
}

TEST_F(RecordDialogsTest, RangeChecksKeepTheDialogOpen) {
  EarthDlg spectra(*app_);
  NumberEdit* amplitude = spectra.chooser().amplitude_scale();
  NumberEdit* from = spectra.from_edit();
  NumberEdit* to = spectra.to_edit();
  NumberEdit* step = spectra.step_edit();
  NumberEdit* damping1 = spectra.damping_edit(0);
  NumberEdit* damping2 = spectra.damping_edit(1);
  NumberEdit* damping6 = spectra.damping_edit(5);
  const char* kPeriods = "Please enter a number between 0 and 100.";
  const char* kRatio = "Please enter a number between 0 and 1.";
  // Each row types into the fields and names the one OK then complains of;
  // fields are checked in the order amplitude, from, step, to, dampings 2,
  // 1, 3 to 6, disabled ones too. The focus goes to the field if it can.
  const struct {
    std::vector<std::pair<NumberEdit*, const char*>> typed;
    NumberEdit* focus;
    const char* message;
  } cases[] = {
      {{{step, "0"}}, step, "Please enter an integer between 1 and 5000."},
      {{{step, "5001"}}, step, "Please enter an integer between 1 and 5000."},
      {{{amplitude, "100.5"}}, amplitude, kPeriods},
      {{{amplitude, "100"}, {step, "5000"}, {to, "100.1"}, {from, "-1"}},
       from,
       kPeriods},
      {{{from, "0"}}, to, kPeriods},
      {{{to, "3"}, {damping1, "-0.1"}, {damping2, "1.5"}}, damping2, kRatio},
      {{{damping2, "1"}}, damping1, kRatio},
      {{{damping1, "0.05"}, {damping6, "2"}}, damping6, kRatio},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    messages_->Clear();
    for (const auto& [edit, text] : c.typed) edit->setText(text);
    spectra.accept();
    EXPECT_THAT(messages(), ElementsAre(c.message));
    EXPECT_EQ(spectra.result(), QDialog::Rejected);
    if (!c.focus->isEnabled()) continue;
    EXPECT_EQ(spectra.focusWidget(), c.focus);
    EXPECT_EQ(c.focus->selectedText(), c.focus->text());
  }
  for (int i = 0; i < 5; ++i) spectra.OnAdd();
  spectra.accept();
  EXPECT_EQ(spectra.focusWidget(), damping6);
  EXPECT_FALSE(app_->follow_up().spectrum_follows);

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

TEST_F(RecordDialogsTest, MissingOrBadRecordFiles) {
  // A missing file keeps the dialog open.
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
  spectra.chooser().record_list()->setCurrentIndex(0);
  spectra.chooser().time_scale()->setText("0");
  messages_->Clear();
  spectra.accept();
  EXPECT_THAT(messages(),
              ElementsAre(::testing::StartsWith("Error : Times must increase!"),
                          "an Error occurred while reading data!"));
  EXPECT_EQ(spectra.result(), QDialog::Rejected);
  EXPECT_EQ(WindowCount(), 0);
}

TEST_F(RecordDialogsTest, ImportTakesTheChosenFile) {
  const std::string user = (dir_ / "kobe_ns.dbs").string();
  zel::testing::WriteAll(user, "0.0, 0.1\n0.01, -0.5\n0.02, 0.2\n0.03, 0\n");
  AnswerWith<EQ_REC_DLG>([&](EQ_REC_DLG& d) {
    RecordChooser& c = d.chooser();
    next_open_.clear();  // Cancel changes nothing
    QTest::mouseClick(c.import_button(), Qt::LeftButton);
    EXPECT_FALSE(c.imported());
    EXPECT_TRUE(c.record_list()->isEnabled());
    next_open_ = QString::fromStdString(user);
    QTest::mouseClick(c.import_button(), Qt::LeftButton);
    EXPECT_TRUE(c.imported());
    EXPECT_EQ(c.record_list()->currentText(), "User-imported Data");
    EXPECT_FALSE(c.record_list()->isEnabled());
    EXPECT_EQ(c.record_name(), "User EQ : kobe_ns.dbs");
    EXPECT_EQ(c.caption_box()->toPlainText(), "User EQ : kobe_ns.dbs");
  });
  frame().OnCommand(ID_GENERATE_EQ_RECORD);
  EXPECT_EQ(open_filters_, QStringList({kRecordFileFilter, kRecordFileFilter}));
  ASSERT_EQ(WindowCount(), 1);
  EXPECT_EQ(app_->follow_up().record_path, user);
  EXPECT_EQ(ContextLabel(child()->GetDocument()),
            "Max =   0.5000(g) at  0.010 sec");

  // The response-spectrum dialog imports the same way.
  AnswerWith<EarthDlg>([&](EarthDlg& d) {
    QTest::mouseClick(d.chooser().import_button(), Qt::LeftButton);
    d.step_edit()->setText("4");
  });
  frame().OnCommand(ID_GENERATE_RESPONSE_SPECTRA);
  ASSERT_EQ(WindowCount(), 2);
  EXPECT_EQ(child()->GetDocument().subtitle, "User EQ : kobe_ns.dbs");
  EXPECT_EQ(child()->GetDocument().StoredPoints(0), 4u);
}

TEST_F(RecordDialogsTest, RecordDocumentAndTimeFrequencySwitch) {
  app_->follow_up().spectrum_follows = true;
  AnswerWith<EQ_REC_DLG>(
      [](EQ_REC_DLG& d) { d.chooser().amplitude_scale()->setText("2"); });
  frame().OnCommand(ID_GENERATE_EQ_RECORD);
  EXPECT_TRUE(messages().empty());
  ASSERT_EQ(WindowCount(), 1);
  EXPECT_FALSE(app_->follow_up().spectrum_follows);
  EXPECT_EQ(app_->follow_up().record_path, record_path_);
  EXPECT_EQ(app_->new_document_mode(), 0);
  CZELwDoc& doc = child()->GetDocument();
  ChartWidget& view = child()->GetView();
  EXPECT_EQ(doc.subtitle, kElCentro);
  EXPECT_EQ(child()->windowTitle(), "Earthquake Record");
  EXPECT_EQ(ContextLabel(doc), "Max =   0.8200(g) at  2.460 sec");
  ASSERT_EQ(doc.StoredPoints(0), static_cast<std::size_t>(kSamples));
  EXPECT_EQ(doc.store().Value(999, 1), 2.0 * values_[999]);
  EXPECT_EQ(view.xAxis->label(), "Time (sec)");

  // 1000 samples: the first 512 are transformed; round frequencies at the
  // ticks (0, 5, 10 Hz), not multiples of a bin.
  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  EXPECT_EQ(child()->windowTitle(), "Frequency Spectrum");
  EXPECT_EQ(view.xAxis->label(), "Frequency (Hz)");
  EXPECT_NEAR(doc.x_axis_step, 1.0 / 0.02 / 512, 1e-12);
  view.replot();
  const QVector<double> ticks = view.xAxis->tickVector();
  ASSERT_GE(ticks.size(), 3);
  EXPECT_EQ(ticks[0], 0.0);
  EXPECT_TRUE(ticks.contains(10.0));
  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  EXPECT_EQ(ContextLabel(doc), "Max = 0.8200(g) at 2.46 sec");

  // Record Information lists the parameters; Copy puts their text on the
  // clipboard.
  answer_ = [](QDialog& d) {
    auto& info = dynamic_cast<DLG_RecordInfo&>(d);
    EXPECT_EQ(info.table()->item(0, 1)->text(), "-0.8200 g");
    EXPECT_EQ(info.table()->item(1, 1)->text(), "2.460 s");
    info.copy_button()->click();
    return int(QDialog::Rejected);
  };
  frame().OnCommand(ID_VIEW_RECORD_INFO);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      QString("Record : ") + kElCentro + "\nPGA : -0.8200 g\nTime of PGA : "));

  // A response-spectrum document stays as it is.
  AnswerWith<EarthDlg>([](EarthDlg& d) { d.step_edit()->setText("10"); });
  frame().OnCommand(ID_GENERATE_RESPONSE_SPECTRA);
  ASSERT_EQ(WindowCount(), 2);
  frame().OnCommand(ID_VIEW_TIME_FREQUENCY);
  EXPECT_EQ(child()->GetDocument().frequency_mode, 0);
  EXPECT_EQ(child()->GetDocument().StoredPoints(0), 10u);
}

TEST_F(RecordDialogsTest, ResponseSpectraEqualTheCoreComputation) {
  const struct {
    int kind;
    bool click_log;  // after the type change
    int adds;
    int steps;
    double from, to;  // what the dialog then holds
    bool log;
  } runs[] = {
      // The first type is chosen already: the opening periods stay.
      {kPseudoAcceleration, false, 2, 40, 0.009999999776482582, 10.0, false},
      {kCombinedDVA, false, 0, 30, 0.01, 50.0, true},
      // A log axis starts at 0.01 in single precision, not at the
      // zero-period substitute.
      {kRelativeDisplacement, true, 1, 25, 0.0, 10.0, true},
  };
  for (const auto& run : runs) {
    SCOPED_TRACE(run.kind);
    std::vector<int> positions;
    bool tripartite_while_computing = false;
    AnswerWith<EarthDlg>([&](EarthDlg& d) {
      d.type_list()->setCurrentIndex(run.kind);
      if (run.click_log) d.log_box()->click();
      for (int i = 0; i < run.adds; ++i) d.add_button()->click();
      d.step_edit()->SetValue(run.steps);
      d.SetProgressObserver([&](const DLG_ProgressBar& p) {
        EXPECT_EQ(p.windowTitle(), "Processing.... please wait.");
        EXPECT_TRUE(p.isVisible());
        EXPECT_EQ(p.bar().maximum(), run.steps);
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
    s.period_count = run.steps;
    s.period_from = run.from;
    s.period_to = run.to;
    s.log_axis = run.log;
    const CZELwDoc expected =
        zel::testing::SpectrumOf(zel::testing::ReadAll(record_path_), s);
    const CZELwDoc& doc = child()->GetDocument();
    EXPECT_EQ(doc.subtitle, kElCentro);
    EXPECT_EQ(doc.AxisTitle(1), expected.AxisTitle(1));
    EXPECT_EQ(doc.unit, expected.unit);
    EXPECT_EQ(doc.tripartite + doc.log_x + doc.log_y,
              expected.tripartite + expected.log_x + expected.log_y);
    EXPECT_EQ(doc.chart.legend.entries, expected.chart.legend.entries);
    for (int col = 0; col < 2 * s.damping_count; ++col) {
      ASSERT_EQ(doc.store().Size(col), static_cast<std::size_t>(run.steps));
      for (int j = 0; j < run.steps; ++j) {
        EXPECT_EQ(doc.store().Value(j, col), expected.store().Value(j, col));
      }
    }
    // The bar rises to its last period once for every damping ratio.
    EXPECT_EQ(std::count(positions.begin(), positions.end(), run.steps - 1),
              s.damping_count);
    EXPECT_EQ(positions.back(), run.steps - 1);
  }
}

TEST_F(RecordDialogsTest, ImportStepAndWhatAFailedReadLeaves) {
  // Two CSMIP channels: the import step offers both and previews each.
  const std::string csmip = (dir_ / "two.v2").string();
  zel::testing::WriteAll(
      csmip,
      "Corrected accelerogram\nTest Earthquake of 2004\nStation 1 Test Site\n"
      "Chan  1:   90 Deg\n"
      "     4 points of accel data equally spaced at  .010 sec, in g. "
      "(8f10.6)\n"
      "  0.100000 -0.20000  0.000000  0.100000\n"
      "Corrected accelerogram\nTest Earthquake of 2004\nStation 1 Test Site\n"
      "Chan  2:  360 Deg\n"
      "     3 points of accel data equally spaced at  .020 sec, in g. "
      "(8f10.6)\n"
      "  0.300000 -0.40000  0.000000\n");
  EQ_REC_DLG record(*app_);
  next_open_ = QString::fromStdString(csmip);
  answer_ = [](QDialog& d) {
    auto& step = dynamic_cast<DLG_RecordImport&>(d);
    EXPECT_EQ(step.channel_list()->count(), 2);
    EXPECT_EQ(step.time_column(), nullptr);  // not plain text
    EXPECT_THAT(step.preview()->toPlainText().toStdString(),
                HasSubstr("4 samples, dt = 0.01 sec, peak 0.2000 g"));
    step.channel_list()->setCurrentIndex(1);
    EXPECT_THAT(step.preview()->toPlainText().toStdString(),
                HasSubstr("3 samples, dt = 0.02 sec, peak 0.4000 g"));
    step.accept();
    return step.result();
  };
  QTest::mouseClick(record.chooser().import_button(), Qt::LeftButton);
  EXPECT_EQ(record.chooser().choices().channel, 2);
  record.accept();
  ASSERT_EQ(WindowCount(), 1);
  const CZELwDoc& doc = child()->GetDocument();
  EXPECT_EQ(doc.subtitle,
            "User EQ : two.v2 (Test Earthquake of 2004, Station 1 Test Site, "
            "Chan 2: 360 Deg)");
  EXPECT_EQ(ContextLabel(doc), "Max =   0.4000(g) at  0.020 sec");

  // A .dbs file in the wrong format: the document is made and stays empty.
  const std::string wrong = (dir_ / "wrong.dbs").string();
  zel::testing::WriteAll(wrong, "no commas here\n");
  answer_ = nullptr;
  EarthDlg spectra(*app_);
  next_open_ = QString::fromStdString(wrong);
  QTest::mouseClick(spectra.chooser().import_button(), Qt::LeftButton);
  messages_->Clear();
  spectra.accept();
  EXPECT_THAT(messages(), ElementsAre("Error : Wrong Format!",
                                      "an Error occurred while reading data!"));
  EXPECT_EQ(spectra.result(), QDialog::Accepted);
  ASSERT_EQ(WindowCount(), 2);
  EXPECT_EQ(child()->GetDocument().StoredPoints(0), 0u);

  // A record in another format that cannot be used: no document, the dialog
  // stays open.
  const std::string peer = (dir_ / "zero.AT2").string();
  zel::testing::WriteAll(peer,
                         "PEER\nTest, A, 0\nACCELERATION IN G\n"
                         "NPTS= 2, DT= 0.0 SEC\n 0.1 0.2\n");
  EQ_REC_DLG refused(*app_);
  next_open_ = QString::fromStdString(peer);
  QTest::mouseClick(refused.chooser().import_button(), Qt::LeftButton);
  messages_->Clear();
  refused.accept();
  EXPECT_THAT(
      messages(),
      ElementsAre(::testing::StartsWith("Error : Time step must be above 0! " +
                                        peer + ", line 4"),
                  "an Error occurred while reading data!"));
  EXPECT_EQ(refused.result(), QDialog::Rejected);
  EXPECT_EQ(WindowCount(), 2);
}

}  // namespace
}  // namespace zel::app::testing
