// DLG_UNIT: choice of the length unit that velocity and displacement curves
// are converted to.
#ifndef ZEL_APP_DIALOGS_DLG_UNIT_H_
#define ZEL_APP_DIALOGS_DLG_UNIT_H_

#include <QButtonGroup>
#include <QDialog>

namespace zel::app {

class DLG_UNIT : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_UNIT(QWidget* parent = nullptr);

  // Index into the length-unit table: 0 mm, 1 cm, 2 m, 3 in, 4 ft.
  void SetUnitIndex(int index);
  int UnitIndex() const;

 private:
  QButtonGroup units_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_UNIT_H_
