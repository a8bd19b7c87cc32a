// The About box: program name, version and licence.
#ifndef ZEL_APP_DIALOGS_ABOUT_BOX_H_
#define ZEL_APP_DIALOGS_ABOUT_BOX_H_

#include <QDialog>

namespace zel::app {

class AboutBox : public QDialog {
  Q_OBJECT

 public:
  explicit AboutBox(QWidget* parent = nullptr);
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_ABOUT_BOX_H_
