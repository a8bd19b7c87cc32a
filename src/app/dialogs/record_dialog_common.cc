#include "app/dialogs/record_dialog_common.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <optional>
#include <utility>

#include "app/dialogs/record_import_dlg.h"
#include "core/document/c_format.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"

namespace zel::app {

NumberEdit::NumberEdit(bool digits_only, QWidget* parent) : QLineEdit(parent) {
  if (digits_only) {
    setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]*")), this));
  }
}

void NumberEdit::SetValue(double value) {
  value_ = value;
  shown_ = QString::fromStdString(CFormat("%g", value));
  setText(shown_);
}

void NumberEdit::SetText(const QString& text) {
  shown_ = QString();
  setText(text);
}

double NumberEdit::Value() const {
  if (!shown_.isNull() && text() == shown_) return value_;
  return AtoF(text().toStdString());
}

bool CheckRange(NumberEdit* edit, const ValueRange& range,
                MessageSink& messages, double* value) {
  double v = edit->Value();
  if (range.integer) v = TruncateToInt(v);
  if (value != nullptr) *value = v;
  if (InRange(v, range)) return true;
  messages.Show(RangeMessage(range));
  edit->setFocus();
  edit->selectAll();
  return false;
}

RecordChooser::RecordChooser(DialogHost& host, QWidget* parent)
    : QWidget(parent),
      host_(host),
      record_list_(new QComboBox),
      caption_box_(new QPlainTextEdit),
      amplitude_scale_(new NumberEdit),
      time_scale_(new NumberEdit),
      import_button_(new QPushButton(QStringLiteral("Import"))) {
  for (const CatalogEntry& entry : RecordCatalog()) {
    record_list_->addItem(QString::fromLatin1(entry.title));
  }
  record_list_->setMaxVisibleItems(20);
  caption_box_->setReadOnly(true);
  caption_box_->setFixedHeight(caption_box_->fontMetrics().lineSpacing() * 3 +
                               12);
  amplitude_scale_->SetValue(1.0);
  time_scale_->SetValue(1.0);

  auto* top = new QHBoxLayout;
  top->addWidget(record_list_, 1);
  top->addWidget(import_button_);
  auto* scales = new QHBoxLayout;
  scales->addWidget(new QLabel(QStringLiteral("Amplitude Scale")));
  scales->addWidget(amplitude_scale_);
  scales->addSpacing(16);
  scales->addWidget(new QLabel(QStringLiteral("Time Scale :")));
  scales->addWidget(time_scale_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(top);
  layout->addWidget(caption_box_);
  layout->addLayout(scales);

  connect(record_list_, &QComboBox::currentIndexChanged, this,
          &RecordChooser::OnRecordChanged);
  connect(import_button_, &QPushButton::clicked, this,
          &RecordChooser::OnImport);
  record_list_->setCurrentIndex(0);
  OnRecordChanged(0);
}

void RecordChooser::OnRecordChanged(int index) {
  if (imported_ || index < 0) return;
  record_name_ = record_list_->itemText(index).toStdString();
  caption_text_ = CatalogCaptionText(index);
  ShowCaption();
}

void RecordChooser::ShowCaption() {
  // The caption's "\r\n" is one line break; the text box would show two.
  QString shown = QString::fromStdString(caption_text_);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  caption_box_->setPlainText(shown);
}

void RecordChooser::OnImport() {
  const QString path =
      host_.AskOpenFileName(this, QString::fromLatin1(kRecordFileFilter));
  if (path.isEmpty()) return;
  const std::string file_path = QFile::encodeName(path).toStdString();
  ImportChoices choices;
  const std::optional<RecordLayout> layout =
      InspectRecordFile(InputFile::Open(file_path));
  if (layout && layout->NeedsImportStep()) {
    DLG_RecordImport step(file_path, *layout, this);
    if (host_.RunDialog(step) != QDialog::Accepted) return;
    choices = step.choices();
  }
  choices_ = choices;
  record_path_ = file_path;
  imported_ = true;
  // The list keeps the imported record for the rest of the dialog's life.
  record_list_->blockSignals(true);
  record_list_->clear();
  record_list_->addItem(QString::fromLatin1(kImportedListText));
  record_list_->blockSignals(false);
  record_list_->setEnabled(false);
  record_name_ = ImportedRecordName(path.toStdString());
  caption_text_ = record_name_;
  ShowCaption();
}

std::string RecordChooser::ResolveRecordPath() {
  if (!imported_) {
    record_path_ = FindCatalogFile(record_list_->currentText().toStdString(),
                                   host_.messages(), host_.ProgramFolder());
  }
  return record_path_;
}

ReadResult ReadChosenRecord(const std::string& path,
                            const RecordReading& reading, Record& record,
                            MessageLog& held, MessageSink& messages) {
  InputFile file = InputFile::Open(path);
  if (!file.is_open()) {
    messages.ShowFileError(path, file.error());
    return ReadResult::kRefused;
  }
  const ReadResult result = ReadRecord(std::move(file), reading, record, held);
  if (result == ReadResult::kRefused) ShowReadOutcome(result, held, messages);
  return result;
}

void ShowReadOutcome(ReadResult result, const MessageLog& held,
                     MessageSink& messages) {
  for (const std::string& text : held.texts()) messages.Show(text);
  if (result != ReadResult::kRead) messages.Show(kRecordReadFailedMessage);
}

CZELwDoc* NewRecordDocument(DialogHost& host, int mode) {
  CZELwDoc* doc = host.NewDocument(mode);
  if (doc == nullptr) host.messages().Show("Document Identification failed!");
  return doc;
}

}  // namespace zel::app
