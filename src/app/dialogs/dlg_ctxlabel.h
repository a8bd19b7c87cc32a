// DLG_CTXLABEL: a free label for the chart, with a title, a multi-line
// content and one of two styles.
#ifndef ZEL_APP_DIALOGS_DLG_CTXLABEL_H_
#define ZEL_APP_DIALOGS_DLG_CTXLABEL_H_

#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace zel::app {

class DLG_CTXLABEL : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_CTXLABEL(QWidget* parent = nullptr);

  void SetTitle(const QString& text) { title_->setText(text); }
  void SetContent(const QString& text) { content_->setPlainText(text); }
  // ChartLabel::Style: 0 for "Style1", 1 for "Style2".
  void SetStyle(int style);
  QString Title() const { return title_->text(); }
  QString Content() const { return content_->toPlainText(); }
  int Style() const;

 private:
  QLineEdit* title_;
  QPlainTextEdit* content_;
  QRadioButton* style1_;
  QRadioButton* style2_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_CTXLABEL_H_
