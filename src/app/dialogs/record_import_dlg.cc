#include "app/dialogs/record_import_dlg.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/document/c_format.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/record_curve.h"
#include "core/records/record_reader.h"

namespace zel::app {
namespace {

// The units of --unit, as the list shows them.
constexpr const char* kUnitWords[] = {"g", "gal", "m/s2", "mm/s2"};
constexpr const char* kUnitNames[] = {"g", "gal (cm/s\u00B2)", "m/s\u00B2",
                                      "mm/s\u00B2"};
// Samples listed in the preview.
constexpr std::size_t kPreviewSamples = 8;

}  // namespace

DLG_RecordImport::DLG_RecordImport(std::string path, RecordLayout layout,
                                   QWidget* parent)
    : QDialog(parent), path_(std::move(path)), layout_(std::move(layout)) {
  setWindowTitle(QStringLiteral("Import Record"));
  auto* form = new QFormLayout;
  form->addRow(
      QStringLiteral("Format:"),
      new QLabel(QString::fromLatin1(RecordFormatName(layout_.format))));
  if (layout_.channels.size() > 1) {
    channel_list_ = new QComboBox;
    for (const std::string& name : layout_.channels) {
      channel_list_->addItem(QString::fromStdString(name));
    }
    form->addRow(QStringLiteral("Channel:"), channel_list_);
    connect(channel_list_, &QComboBox::currentIndexChanged, this,
            [this] { UpdatePreview(); });
  }
  if (layout_.format == RecordFormat::kPlainText) {
    time_column_ = new QComboBox;
    accel_column_ = new QComboBox;
    time_column_->addItem(QStringLiteral("(none: give the time step)"));
    for (const std::string& name : layout_.columns) {
      time_column_->addItem(QString::fromStdString(name));
      accel_column_->addItem(QString::fromStdString(name));
    }
    time_column_->setCurrentIndex(std::max(0, layout_.defaults.time_column));
    accel_column_->setCurrentIndex(
        std::max(0, layout_.defaults.accel_column - 1));
    time_step_ = new QLineEdit;
    time_step_->setPlaceholderText(QStringLiteral("seconds, e.g. 0.01"));
    unit_list_ = new QComboBox;
    for (const char* name : kUnitNames) {
      unit_list_->addItem(QString::fromUtf8(name));
    }
    form->addRow(QStringLiteral("Time column:"), time_column_);
    form->addRow(QStringLiteral("Acceleration column:"), accel_column_);
    form->addRow(QStringLiteral("Time step (sec):"), time_step_);
    form->addRow(QStringLiteral("Unit:"), unit_list_);
    for (QComboBox* list : {time_column_, accel_column_, unit_list_}) {
      connect(list, &QComboBox::currentIndexChanged, this,
              [this] { UpdatePreview(); });
    }
    connect(time_step_, &QLineEdit::textChanged, this,
            [this] { UpdatePreview(); });
  }
  preview_ = new QPlainTextEdit;
  preview_->setReadOnly(true);
  preview_->setMinimumHeight(160);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(new QLabel(QStringLiteral("Preview:")));
  column->addWidget(preview_);
  column->addWidget(OkCancelButtons(this));
  UpdatePreview();
}

ImportChoices DLG_RecordImport::choices() const {
  ImportChoices choices = layout_.defaults;
  if (channel_list_ != nullptr) {
    choices.channel = channel_list_->currentIndex() + 1;
  }
  if (time_column_ != nullptr) {
    choices.time_column = time_column_->currentIndex();
    choices.accel_column = accel_column_->currentIndex() + 1;
    // The step counts only when there is no time column to give it.
    choices.time_step = choices.time_column == 0
                            ? AtoF(time_step_->text().trimmed().toStdString())
                            : 0.0;
    PlainUnitOfWord(kUnitWords[std::max(0, unit_list_->currentIndex())],
                    choices.unit);
  }
  return choices;
}

void DLG_RecordImport::UpdatePreview() {
  RecordReading reading;
  reading.choices = choices();
  MessageLog log;
  Record record;
  std::string text;
  if (ReadRecord(InputFile::Open(path_), reading, record, log) ==
      ReadResult::kRead) {
    const std::string description = RecordDescription(record);
    if (!description.empty()) text += description + "\n";
    const RecordPeak peak = PeakOf(record.samples);
    text += CFormat("%zu samples, dt = %g sec, peak %.4f g at %.3f sec\n",
                    record.samples.size(), record.time_step, peak.magnitude,
                    peak.time);
    for (std::size_t i = 0;
         i < std::min(kPreviewSamples, record.samples.size()); ++i) {
      text += CFormat("%10.4f  %12.6g\n", record.samples[i].time,
                      record.samples[i].value);
    }
  }
  for (const std::string& message : log.texts()) text += message + "\n";
  preview_->setPlainText(QString::fromStdString(text));
}

}  // namespace zel::app
