// DLG_DESIGN_OVERLAY: "Add Design Spectrum". The user picks a code; OK opens
// that code's own dialog, and the spectrum it makes joins the response
// spectra of the active document as one more curve.
#ifndef ZEL_APP_DIALOGS_DLG_DESIGN_OVERLAY_H_
#define ZEL_APP_DIALOGS_DLG_DESIGN_OVERLAY_H_

#include <QDialog>

#include "app/dialogs/dialog_host.h"
#include "core/document/curve_document.h"

class QComboBox;

namespace zel::app {

class DLG_DESIGN_OVERLAY : public QDialog {
  Q_OBJECT

 public:
  DLG_DESIGN_OVERLAY(DialogHost& host, CZELwDoc& target,
                     QWidget* parent = nullptr);

  QComboBox* codes() const { return codes_; }

  // OK: the chosen code's dialog; when it makes its spectrum, the curve is
  // added and this dialog closes. Cancel in the code's dialog comes back
  // here.
  void accept() override;

 private:
  DialogHost& host_;
  CZELwDoc& target_;
  QComboBox* codes_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_DESIGN_OVERLAY_H_
