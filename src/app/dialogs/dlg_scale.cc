#include "app/dialogs/dlg_scale.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/dialogs/design_code_dialog.h"
#include "app/dialogs/ok_cancel_buttons.h"
#include "app/dialogs/scratch_host.h"
#include "core/document/c_format.h"
#include "core/scaling/record_scaling.h"

namespace zel::app {
namespace {

QLineEdit* Edit(const char* text) {
  auto* edit = new QLineEdit(QString::fromLatin1(text));
  edit->setFixedWidth(80);
  return edit;
}

double Read(const QLineEdit* edit) { return AtoF(edit->text().toStdString()); }

}  // namespace

DLG_SCALE::DLG_SCALE(DialogHost& host, const CZELwDoc& record, QWidget* parent)
    : QDialog(parent),
      host_(host),
      record_(record),
      codes_(new QComboBox),
      parameters_note_(new QLabel),
      absolute_(new QRadioButton(tr("From / To (sec)"))),
      by_t1_(new QRadioButton(tr("Multiples of T1"))),
      from_(Edit("0.2")),
      to_(Edit("3.0")),
      t1_(Edit("1.0")),
      low_factor_(Edit("0.2")),
      high_factor_(new QComboBox),
      damping_(Edit("0.05")),
      least_squares_(
          new QRadioButton(tr("Least squares of the logarithms (PEER)"))),
      minimum_(new QRadioButton(tr("Smallest factor keeping at or above"))),
      fraction_(Edit("0.9")) {
  setWindowTitle(tr("Scale to Design Spectrum"));
  auto* page = new QVBoxLayout(this);
  page->addWidget(
      new QLabel(QString::fromStdString("Record : " + record.record_name)));

  auto* code_box = new QGroupBox(tr("Design Spectrum"));
  auto* code_row = new QHBoxLayout(code_box);
  for (const CodeEntry& code : DesignCodes()) {
    codes_->addItem(QString::fromStdString(code.menu_text));
  }
  auto* parameters = new QPushButton(tr("Parameters..."));
  code_row->addWidget(codes_);
  code_row->addWidget(parameters);
  code_row->addWidget(parameters_note_);
  page->addWidget(code_box);

  auto* range_box = new QGroupBox(tr("Period Range"));
  auto* range = new QGridLayout(range_box);
  range->addWidget(absolute_, 0, 0);
  range->addWidget(new QLabel(tr("From")), 0, 1);
  range->addWidget(from_, 0, 2);
  range->addWidget(new QLabel(tr("To")), 0, 3);
  range->addWidget(to_, 0, 4);
  range->addWidget(by_t1_, 1, 0);
  range->addWidget(new QLabel(tr("T1")), 1, 1);
  range->addWidget(t1_, 1, 2);
  range->addWidget(new QLabel(tr("x")), 1, 3);
  range->addWidget(low_factor_, 1, 4);
  range->addWidget(new QLabel(tr("to")), 1, 5);
  high_factor_->setEditable(true);
  high_factor_->addItems({QStringLiteral("1.5"), QStringLiteral("2.0")});
  range->addWidget(high_factor_, 1, 6);
  absolute_->setChecked(true);
  page->addWidget(range_box);

  auto* damping_row = new QHBoxLayout;
  damping_row->addWidget(new QLabel(tr("Damping Ratio :")));
  damping_row->addWidget(damping_);
  damping_row->addStretch();
  page->addLayout(damping_row);

  auto* rule_box = new QGroupBox(tr("Scale Factor"));
  auto* rule = new QGridLayout(rule_box);
  rule->addWidget(least_squares_, 0, 0, 1, 3);
  rule->addWidget(minimum_, 1, 0);
  rule->addWidget(fraction_, 1, 1);
  rule->addWidget(new QLabel(tr("x the design spectrum")), 1, 2);
  least_squares_->setChecked(true);
  page->addWidget(rule_box);
  page->addWidget(OkCancelButtons(this));

  connect(codes_, &QComboBox::currentIndexChanged, this,
          [this] { OnCodeChanged(); });
  connect(parameters, &QPushButton::clicked, this, [this] { OnParameters(); });
  for (QRadioButton* radio : {absolute_, by_t1_, least_squares_, minimum_}) {
    connect(radio, &QRadioButton::toggled, this, [this] { UpdateStates(); });
  }
  OnCodeChanged();
}

const CodeEntry& DLG_SCALE::Code() const {
  const int index = codes_->currentIndex();
  return DesignCodes()[index < 0 ? 0 : index];
}

void DLG_SCALE::OnCodeChanged() {
  values_ = DefaultValues(Code());
  parameters_note_->setText(tr("(the code's defaults)"));
  UpdateStates();
}

void DLG_SCALE::OnParameters() {
  ScratchHost scratch(host_);
  DesignCodeDialog dialog(scratch, Code(), this);
  if (host_.RunDialog(dialog) != QDialog::Accepted) return;
  values_ = dialog.Values();
  parameters_note_->setText(tr("(as entered)"));
}

void DLG_SCALE::UpdateStates() {
  const bool t1 = by_t1_->isChecked();
  from_->setEnabled(!t1);
  to_->setEnabled(!t1);
  t1_->setEnabled(t1);
  low_factor_->setEnabled(t1);
  high_factor_->setEnabled(t1);
  fraction_->setEnabled(minimum_->isChecked());
}

ScalingSettings DLG_SCALE::Settings() const {
  ScalingSettings settings;
  settings.range =
      by_t1_->isChecked()
          ? RangeOfT1(Read(t1_), Read(low_factor_),
                      AtoF(high_factor_->currentText().toStdString()))
          : PeriodRange{Read(from_), Read(to_)};
  settings.damping = Read(damping_);
  settings.rule =
      minimum_->isChecked() ? ScaleRule::kMinimum : ScaleRule::kLeastSquares;
  settings.fraction = Read(fraction_);
  return settings;
}

void DLG_SCALE::accept() {
  MessageSink& messages = host_.messages();
  const ScalingSettings settings = Settings();
  ScalingTarget target;
  if (!MakeScalingTarget(Code(), values_, settings, target, messages)) return;
  const RecordInput input{record_.record_name, record_.record_samples,
                          record_.record_time_step};
  ScaleResult result;
  if (!ScaleRecord(input, target, settings, result, messages)) {
    return;
  }
  if (CZELwDoc* scaled = host_.NewDocument(kNewDocumentRecord)) {
    MakeScaledRecord(*scaled, record_, result.factor);
  }
  if (CZELwDoc* chart = host_.NewDocument(kNewDocumentResponseSpectrum)) {
    BuildComparisonDocument(*chart, input, target, settings, result);
  }
  QDialog::accept();
}

}  // namespace zel::app
