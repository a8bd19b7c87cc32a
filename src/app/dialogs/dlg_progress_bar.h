// DLG_ProgressBar: "Processing.... please wait.", the modeless window that
// shows how far a response-spectrum computation has come. It lives for one
// computation and offers no cancel.
#ifndef ZEL_APP_DIALOGS_DLG_PROGRESS_BAR_H_
#define ZEL_APP_DIALOGS_DLG_PROGRESS_BAR_H_

#include <QDialog>
#include <QProgressBar>

namespace zel::app {

class DLG_ProgressBar : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_ProgressBar(QWidget* parent = nullptr);

  void SetRange(int lower, int upper);
  // Moves the bar and lets the windows repaint; the user's input waits
  // until the computation is over.
  void SetPos(int position);

  const QProgressBar& bar() const { return *bar_; }

 private:
  QProgressBar* bar_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_PROGRESS_BAR_H_
