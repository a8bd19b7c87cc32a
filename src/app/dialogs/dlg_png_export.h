// DLG_PNG_EXPORT: the size in pixels and the resolution of an exported PNG.
// The chart is drawn as a window of the same physical size shows it, so a
// higher resolution gives a sharper picture of the same chart; the printed
// size at that resolution is shown as the numbers change.
#ifndef ZEL_APP_DIALOGS_DLG_PNG_EXPORT_H_
#define ZEL_APP_DIALOGS_DLG_PNG_EXPORT_H_

#include <QDialog>
#include <QSize>

class QLabel;
class QSpinBox;

namespace zel::app {

class DLG_PNG_EXPORT : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_PNG_EXPORT(QWidget* parent = nullptr);

  void SetPixels(QSize pixels);
  void SetDpi(int dpi);
  QSize Pixels() const;
  int Dpi() const;

  static constexpr int kDefaultDpi = 300;

 private:
  void ShowPrintedSize();

  QSpinBox* width_;
  QSpinBox* height_;
  QSpinBox* dpi_;
  QLabel* printed_size_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_PNG_EXPORT_H_
