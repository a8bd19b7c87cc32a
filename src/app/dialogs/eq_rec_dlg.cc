#include "app/dialogs/eq_rec_dlg.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "app/dialogs/ok_cancel_buttons.h"
#include "app/shell/zelw_app.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"
#include "core/records/record_curve.h"

namespace zel::app {

EQ_REC_DLG::EQ_REC_DLG(CZELwApp& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      chooser_(new RecordChooser(app.ui())),
      program_folder_(ProgramFolder()) {
  setWindowTitle(QStringLiteral("Generate Earthquake Acceleration Record"));
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(chooser_);
  layout->addWidget(buttons);
  resize(520, sizeHint().height());
}

void EQ_REC_DLG::accept() {
  MessageSink& messages = app_.messages();
  double amplitude = 0.0;
  if (!CheckRange(chooser_->amplitude_scale(), kRecordAmplitudeRange, messages,
                  &amplitude)) {
    return;
  }
  const double time_scale = chooser_->time_scale()->Value();

  app_.SetSpectrumFollows(false);
  const std::string path =
      chooser_->ResolveRecordPath(messages, program_folder_);
  app_.SetRecordPath(path);
  std::FILE* file = OpenRecordFile(path, messages);
  if (file == nullptr) return;

  CZELwDoc* doc = NewRecordDocument(app_, kNewDocumentRecord);
  if (doc == nullptr) {
    std::fclose(file);
    QDialog::accept();
    return;
  }
  PrepareRecordDocument(*doc, amplitude, time_scale, chooser_->record_name());
  ShowRecordCurve(*doc, file, messages);
  QDialog::accept();
}

}  // namespace zel::app
