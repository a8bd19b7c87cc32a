#include "app/dialogs/eq_rec_dlg.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>
#include <utility>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"
#include "core/records/record_curve.h"

namespace zel::app {

EQ_REC_DLG::EQ_REC_DLG(DialogHost& host, QWidget* parent)
    : QDialog(parent), host_(host), chooser_(new RecordChooser(host)) {
  setWindowTitle(QStringLiteral("Generate Earthquake Acceleration Record"));
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(chooser_);
  layout->addWidget(buttons);
  resize(520, sizeHint().height());
}

void EQ_REC_DLG::accept() {
  MessageSink& messages = host_.messages();
  double amplitude = 0.0;
  if (!CheckRange(chooser_->amplitude_scale(), kRecordAmplitudeRange, messages,
                  &amplitude)) {
    return;
  }
  const double time_scale = chooser_->time_scale()->Value();

  FollowUpValues& follow_up = host_.follow_up();
  follow_up.spectrum_follows = false;
  const std::string path = chooser_->ResolveRecordPath();
  follow_up.record_path = path;
  RecordReading reading;
  reading.scales = {time_scale, amplitude};
  reading.choices = chooser_->choices();
  Record record;
  MessageLog held;
  const ReadResult result =
      ReadChosenRecord(path, reading, record, held, messages);
  if (result == ReadResult::kRefused) return;

  CZELwDoc* doc = NewRecordDocument(host_, kNewDocumentRecord);
  if (doc == nullptr) {
    QDialog::accept();
    return;
  }
  PrepareRecordDocument(*doc, amplitude, time_scale, chooser_->record_name());
  ShowReadOutcome(result, held, messages);
  if (result == ReadResult::kRead) ShowRecordCurve(*doc, record);
  QDialog::accept();
}

}  // namespace zel::app
