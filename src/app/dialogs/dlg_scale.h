// DLG_SCALE: "Scale to Design Spectrum". Scales the record of the active
// document to a design code's spectrum: the code and its parameters (the
// code's own dialog), the period range (absolute, or multiples of a
// fundamental period T1), the damping of the record's spectrum and the rule.
// OK makes two documents: the scaled record, and the chart of its spectrum
// over the code's with the range marked and the factor as its label.
#ifndef ZEL_APP_DIALOGS_DLG_SCALE_H_
#define ZEL_APP_DIALOGS_DLG_SCALE_H_

#include <QDialog>

#include "app/dialogs/dialog_host.h"
#include "core/codes/code_registry.h"
#include "core/document/curve_document.h"
#include "core/scaling/spectrum_scaling.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace zel::app {

class DLG_SCALE : public QDialog {
  Q_OBJECT

 public:
  DLG_SCALE(DialogHost& host, const CZELwDoc& record,
            QWidget* parent = nullptr);

  // The settings as the fields read (numbers with atof).
  ScalingSettings Settings() const;
  const CodeEntry& Code() const;
  const ParamValues& code_values() const { return values_; }

  QComboBox* codes() const { return codes_; }
  QLineEdit* from() const { return from_; }
  QLineEdit* to() const { return to_; }
  QLineEdit* t1() const { return t1_; }
  QRadioButton* by_t1() const { return by_t1_; }
  QRadioButton* minimum() const { return minimum_; }
  QLineEdit* fraction() const { return fraction_; }
  QLineEdit* damping() const { return damping_; }

  // OK: the code's spectrum over the range, the factor by the rule, then
  // the two new documents. A message keeps the dialog open.
  void accept() override;

 private:
  void OnCodeChanged();
  void OnParameters();
  void UpdateStates();

  DialogHost& host_;
  const CZELwDoc& record_;
  ParamValues values_;
  QComboBox* codes_;
  QLabel* parameters_note_;
  QRadioButton* absolute_;
  QRadioButton* by_t1_;
  QLineEdit* from_;
  QLineEdit* to_;
  QLineEdit* t1_;
  QLineEdit* low_factor_;
  QComboBox* high_factor_;
  QLineEdit* damping_;
  QRadioButton* least_squares_;
  QRadioButton* minimum_;
  QLineEdit* fraction_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_SCALE_H_
