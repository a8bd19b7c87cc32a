#include "app/shell/interaction.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

namespace zel::app {
namespace {

class MessageBoxSink : public MessageSink {
 public:
  void Show(std::string_view text) override {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("ZEL"),
                    QString::fromUtf8(text.data(), qsizetype(text.size())),
                    QMessageBox::Ok, QApplication::activeWindow());
    box.exec();
  }
};

QString AskOpenFile(QWidget* parent, const QString& filter) {
  QFileDialog dialog(parent);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilter(QtNameFilter(filter));
  dialog.setOption(QFileDialog::ReadOnly, false);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return {};
  }
  return dialog.selectedFiles().first();
}

QString AskSaveFile(QWidget* parent, const QString& filter,
                    const QString& default_suffix) {
  QFileDialog dialog(parent);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilter(QtNameFilter(filter));
  dialog.setDefaultSuffix(default_suffix);  // overwrite is confirmed
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return {};
  }
  return dialog.selectedFiles().first();
}

}  // namespace

Interaction Interaction::Desktop() {
  Interaction ui;
  ui.messages = std::make_unique<MessageBoxSink>();
  ui.open_file = AskOpenFile;
  ui.save_file = AskSaveFile;
  ui.run_dialog = [](QDialog& dialog) { return dialog.exec(); };
  ui.ask_yes_no = [](QWidget* parent, const QString& question) {
    return QMessageBox::question(parent, QStringLiteral("ZEL"), question,
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
  };
  return ui;
}

QString QtNameFilter(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    if (!parts[i].isEmpty()) names << parts[i];
  }
  return names.join(QStringLiteral(";;"));
}

}  // namespace zel::app
