// DLG_TITLE: the two title lines of a chart.
#ifndef ZEL_APP_DIALOGS_DLG_TITLE_H_
#define ZEL_APP_DIALOGS_DLG_TITLE_H_

#include <QDialog>
#include <QLineEdit>

namespace zel::app {

class DLG_TITLE : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_TITLE(QWidget* parent = nullptr);

  void SetMainTitle(const QString& text) { main_title_->setText(text); }
  void SetSubTitle(const QString& text) { sub_title_->setText(text); }
  QString MainTitle() const { return main_title_->text(); }
  QString SubTitle() const { return sub_title_->text(); }

 private:
  QLineEdit* main_title_;
  QLineEdit* sub_title_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_TITLE_H_
