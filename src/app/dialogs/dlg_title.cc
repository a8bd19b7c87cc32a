#include "app/dialogs/dlg_title.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>
#include <QValidator>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/document/data_file.h"

namespace zel::app {
namespace {

// Lets a title grow only while File Open can read it back from a saved file
// (no "*", no line break, parts between commas within the reader's token).
// A longer title set by the program may still be shortened.
class ReadableTitle : public QValidator {
 public:
  explicit ReadableTitle(QLineEdit* edit) : QValidator(edit) {
    // The edit's text has already changed when a change is validated: keep
    // the length of the text as it was.
    connect(edit, &QLineEdit::textChanged, this,
            [this](const QString& text) { size_ = text.toStdString().size(); });
  }

  State validate(QString& input, int&) const override {
    const std::string text = input.toStdString();
    if (TitleReadsBack(text)) return Acceptable;
    return text.size() < size_ ? Intermediate : Invalid;
  }

 private:
  std::size_t size_ = 0;
};

}  // namespace

DLG_TITLE::DLG_TITLE(QWidget* parent)
    : QDialog(parent), main_title_(new QLineEdit), sub_title_(new QLineEdit) {
  setWindowTitle(QStringLiteral("Graph Title"));
  auto* group = new QGroupBox(QStringLiteral("Title of Graph"));
  auto* form = new QFormLayout(group);
  form->addRow(QStringLiteral("Main Title :"), main_title_);
  form->addRow(QStringLiteral("SubTitle :"), sub_title_);
  main_title_->setMinimumWidth(320);
  main_title_->setValidator(new ReadableTitle(main_title_));
  sub_title_->setValidator(new ReadableTitle(sub_title_));
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
}

}  // namespace zel::app
