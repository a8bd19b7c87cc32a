#include "app/dialogs/earth_dlg.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/document/c_format.h"
#include "core/records/record_catalog.h"
#include "core/records/record_reader.h"
#include "core/records/response_spectrum.h"

namespace zel::app {

EarthDlg::EarthDlg(DialogHost& host, QWidget* parent)
    : QDialog(parent),
      host_(host),
      chooser_(new RecordChooser(host)),
      add_(new QPushButton(QStringLiteral("Add"))),
      from_(new NumberEdit),
      to_(new NumberEdit),
      step_(new NumberEdit(/*digits_only=*/true)),
      log_box_(new QCheckBox(QStringLiteral("x-axis log scale"))),
      log_grid_box_(new QCheckBox(QStringLiteral("Log-spaced periods"))),
      exact_box_(new QCheckBox(QStringLiteral("Exact damping rate"))),
      type_list_(new QComboBox) {
  setWindowTitle(
      QStringLiteral("Earthquake Response Spectra Generation Dialog"));

  auto* damping_group = new QGroupBox(QStringLiteral("Damping Ratio"));
  auto* damping_grid = new QGridLayout(damping_group);
  for (int i = 0; i < kMaxCurves; ++i) {
    damping_[i] = new NumberEdit;
    damping_[i]->setMaximumWidth(90);
    damping_[i]->setEnabled(i == 0);
    damping_grid->addWidget(damping_[i], i / 3, i % 3);
  }
  add_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  damping_grid->addWidget(add_, 0, 3);
  damping_grid->setColumnStretch(4, 1);
  exact_box_->setToolTip(QStringLiteral(
      "Textbook decay rate (damping ratio times the natural frequency) in "
      "the oscillator's velocity and acceleration; the chart says (exact)"));
  damping_grid->addWidget(exact_box_, 2, 0, 1, 4);

  auto* period_group = new QGroupBox(QStringLiteral("Output Period"));
  auto* period_grid = new QGridLayout(period_group);
  period_grid->addWidget(new QLabel(QStringLiteral("From")), 0, 0);
  period_grid->addWidget(from_, 0, 1);
  period_grid->addWidget(new QLabel(QStringLiteral("To")), 0, 2);
  period_grid->addWidget(to_, 0, 3);
  period_grid->addWidget(new QLabel(QStringLiteral("Step")), 0, 4);
  period_grid->addWidget(step_, 0, 5);
  period_grid->addWidget(log_box_, 1, 0, 1, 3);
  log_grid_box_->setToolTip(QStringLiteral(
      "Periods spaced geometrically from From to To, both included"));
  period_grid->addWidget(log_grid_box_, 1, 3, 1, 3);

  for (const char* name : SpectrumTypeNames()) {
    type_list_->addItem(QString::fromLatin1(name));
  }
  auto* type_row = new QHBoxLayout;
  type_row->addWidget(new QLabel(QStringLiteral("Spectrum type:")));
  type_row->addWidget(type_list_, 1);

  auto* buttons = OkCancelButtons(this);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(chooser_);
  layout->addWidget(damping_group);
  layout->addWidget(period_group);
  layout->addLayout(type_row);
  layout->addWidget(buttons);

  const SpectrumSettings defaults = DefaultSpectrumChoices();
  ShowValues(defaults);
  log_box_->setChecked(defaults.log_axis);
  type_list_->setCurrentIndex(defaults.kind);
  damping_count_ = defaults.damping_count;

  connect(type_list_, &QComboBox::currentIndexChanged, this,
          &EarthDlg::OnTypeChanged);
  connect(log_box_, &QCheckBox::clicked, this, &EarthDlg::OnLogClicked);
  connect(add_, &QPushButton::clicked, this, &EarthDlg::OnAdd);
  resize(560, sizeHint().height());
}

NumberEdit* EarthDlg::FieldEdit(SpectrumField field) {
  switch (field) {
    case SpectrumField::kAmplitudeScale:
      return chooser_->amplitude_scale();
    case SpectrumField::kPeriodFrom:
      return from_;
    case SpectrumField::kPeriodCount:
      return step_;
    case SpectrumField::kPeriodTo:
      return to_;
    default:
      return damping_[static_cast<int>(field) -
                      static_cast<int>(SpectrumField::kDamping1)];
  }
}

void EarthDlg::ShowValues(const SpectrumSettings& s) {
  chooser_->amplitude_scale()->SetValue(s.amplitude_scale);
  chooser_->time_scale()->SetValue(s.time_scale);
  for (int i = 0; i < kMaxCurves; ++i) damping_[i]->SetValue(s.damping[i]);
  from_->SetValue(s.period_from);
  to_->SetValue(s.period_to);
  step_->SetValue(s.period_count);
}

SpectrumSettings EarthDlg::ReadValues() {
  SpectrumSettings s;
  s.amplitude_scale = chooser_->amplitude_scale()->Value();
  s.time_scale = chooser_->time_scale()->Value();
  s.record_name = chooser_->record_name();
  for (int i = 0; i < kMaxCurves; ++i) s.damping[i] = damping_[i]->Value();
  s.damping_count = damping_count_;
  s.period_from = from_->Value();
  s.period_to = to_->Value();
  s.period_count = TruncateToInt(step_->Value());
  s.kind = type_list_->currentIndex();
  s.log_axis = log_box_->isChecked();
  s.log_grid = log_grid_box_->isChecked();
  s.exact_damping = exact_box_->isChecked();
  return s;
}

void EarthDlg::OnTypeChanged(int kind) {
  const PeriodAxisPreset preset = PeriodPresetForKind(kind);
  log_box_->setChecked(preset.log);
  from_->SetText(QString::fromLatin1(preset.from));
  to_->SetText(QString::fromLatin1(preset.to));
}

void EarthDlg::OnLogClicked() {
  SpectrumSettings s = ReadValues();
  s.period_to = PeriodToForLogAxis(log_box_->isChecked());
  ShowValues(s);
}

void EarthDlg::OnAdd() {
  if (damping_count_ >= kMaxCurves) {
    host_.messages().Show("No more damping!");
    return;
  }
  damping_[damping_count_]->setEnabled(true);
  ++damping_count_;
}

void EarthDlg::accept() {
  MessageSink& messages = host_.messages();
  for (const FieldCheck& check : SpectrumFieldChecks()) {
    if (!CheckRange(FieldEdit(check.field), check.range, messages, nullptr)) {
      return;
    }
  }
  const SpectrumSettings settings = ReadValues();
  if (!CheckSpectrumSettings(settings, messages)) {
    from_->setFocus();
    return;
  }

  FollowUpValues& follow_up = host_.follow_up();
  follow_up.spectrum_follows = true;
  const std::string path = chooser_->ResolveRecordPath();
  follow_up.record_path = path;
  if (settings.kind == kCombinedDVA) follow_up.tripartite_follows = true;
  RecordReading reading;
  reading.scales = {settings.time_scale, settings.amplitude_scale};
  reading.choices = chooser_->choices();
  reading.use = TimeStepUse::kNeeded;
  Record record;
  MessageLog held;
  const ReadResult result =
      ReadChosenRecord(path, reading, record, held, messages);
  if (result == ReadResult::kRefused) {
    follow_up.tripartite_follows = false;  // no tripartite chart follows now
    return;
  }

  CZELwDoc* doc = NewRecordDocument(host_, kNewDocumentResponseSpectrum);
  if (doc == nullptr) {
    follow_up.tripartite_follows = false;
    QDialog::accept();
    return;
  }
  PrepareSpectrumDocument(*doc, settings);
  ShowReadOutcome(result, held, messages);
  if (result == ReadResult::kRead) {
    StoreRecord(*doc, record);
    SpectrumSettings named = settings;
    named.record_name = doc->record_name;  // with the file's description
    Compute(*doc, named);
  }
  follow_up.tripartite_follows = false;
  QDialog::accept();
}

void EarthDlg::Compute(CZELwDoc& doc, const SpectrumSettings& settings) {
  // Shown once the record has been read and the first periods are done;
  // gone when the spectra are complete. The spectra are integrated on worker
  // threads while this thread moves the bar.
  std::unique_ptr<DLG_ProgressBar> progress;
  SpectrumRun run;
  run.progress = [&](int position, int range) {
    if (!progress) {
      progress = std::make_unique<DLG_ProgressBar>(this);
      progress->SetRange(0, range);
      progress->show();
    }
    progress->SetPos(position);
    if (progress_observer_) progress_observer_(*progress);
  };
  ComputeResponseSpectrum(doc, settings, doc.record_samples,
                          doc.record_time_step, host_.messages(), run);
}

}  // namespace zel::app
