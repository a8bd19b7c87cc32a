// What the record dialog and the response-spectrum dialog share: number
// edits that read back exactly what they show, the range check of OK, the
// record chooser (catalog list, caption box, scales, Import) and the steps
// that open the record file and make the new document.
#ifndef ZEL_APP_DIALOGS_RECORD_DIALOG_COMMON_H_
#define ZEL_APP_DIALOGS_RECORD_DIALOG_COMMON_H_

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <string>

#include "app/dialogs/dialog_host.h"
#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/range_check.h"
#include "core/records/record_reader.h"

namespace zel::app {

// A numeric edit. Numbers are shown in the C locale ("%g") and read with
// atof; while the user leaves the text as shown, the value given back is the
// one set, with all its digits (0.01 in single precision stays
// 0.009999999776482582 although "0.01" is shown).
class NumberEdit : public QLineEdit {
  Q_OBJECT

 public:
  // `digits_only`: the edit accepts nothing but the digits 0 to 9.
  explicit NumberEdit(bool digits_only = false, QWidget* parent = nullptr);

  void SetValue(double value);
  // Shows `text` as if typed: the value is read from it from now on.
  void SetText(const QString& text);
  double Value() const;

 private:
  double value_ = 0.0;
  QString shown_;
};

// Reads `edit` and checks it against `range` (an integer range reads the
// whole part). Out of range: shows the range message, puts the focus on the
// edit with its text selected and returns false.
bool CheckRange(NumberEdit* edit, const ValueRange& range,
                MessageSink& messages, double* value);

// The record list with its caption box, the "Amplitude Scale" and
// "Time Scale :" edits and the "Import" button.
class RecordChooser : public QWidget {
  Q_OBJECT

 public:
  explicit RecordChooser(DialogHost& host, QWidget* parent = nullptr);

  QComboBox* record_list() { return record_list_; }
  QPlainTextEdit* caption_box() { return caption_box_; }
  NumberEdit* amplitude_scale() { return amplitude_scale_; }
  NumberEdit* time_scale() { return time_scale_; }
  QPushButton* import_button() { return import_button_; }

  const std::string& record_name() const { return record_name_; }
  const std::string& caption_text() const { return caption_text_; }
  bool imported() const { return imported_; }
  const std::string& record_path() const { return record_path_; }
  // How to read the imported file (channel, columns, step, unit), as its
  // import step left them.
  const ImportChoices& choices() const { return choices_; }

  // Import: asks for a record file and, when it holds several channels or
  // columns of text, for the import step's choices; on OK it becomes the
  // record for the rest of the dialog's life.
  void OnImport();
  // The record file to read: the imported one, or the catalog file of the
  // selected title in the program's "dbase/" folder.
  std::string ResolveRecordPath();

 private:
  void OnRecordChanged(int index);
  void ShowCaption();

  DialogHost& host_;
  QComboBox* record_list_;
  QPlainTextEdit* caption_box_;
  NumberEdit* amplitude_scale_;
  NumberEdit* time_scale_;
  QPushButton* import_button_;
  std::string record_name_;
  std::string caption_text_;
  bool imported_ = false;
  std::string record_path_;
  ImportChoices choices_;
};

// Reads the record file once, as the generator will use it. kRefused: the
// file did not open ("ERROR! File Not Found!") or the reader refused the
// record (its message, then "an Error occurred while reading data!"); no
// document is to be made and the dialog stays open. kFailed: a .dbs file
// in the wrong format or without data; kRead: `record` holds it. Either
// way a document follows, and ShowReadOutcome tells what the read said.
ReadResult ReadChosenRecord(const std::string& path,
                            const RecordReading& reading, Record& record,
                            MessageLog& held, MessageSink& messages);

// Shows the messages held while reading, and after a failed read "an Error
// occurred while reading data!": the new document stays empty.
void ShowReadOutcome(ReadResult result, const MessageLog& held,
                     MessageSink& messages);

// File New under `mode`: the new document, or nullptr after "Document
// Identification failed!".
CZELwDoc* NewRecordDocument(DialogHost& host, int mode);

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_RECORD_DIALOG_COMMON_H_
