// EarthDlg: "Earthquake Response Spectra Generation Dialog". Its OK makes a
// new document holding the response spectra of a catalog or imported record
// for up to six damping ratios.
#ifndef ZEL_APP_DIALOGS_EARTH_DLG_H_
#define ZEL_APP_DIALOGS_EARTH_DLG_H_

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <array>
#include <functional>
#include <string>

#include "app/dialogs/dlg_progress_bar.h"
#include "app/dialogs/record_dialog_common.h"
#include "core/records/spectrum_choices.h"

namespace zel::app {

class DialogHost;

class EarthDlg : public QDialog {
  Q_OBJECT

 public:
  explicit EarthDlg(DialogHost& host, QWidget* parent = nullptr);

  RecordChooser& chooser() { return *chooser_; }
  // Damping edits 0 to 5 (the first to the sixth).
  NumberEdit* damping_edit(int index) { return damping_[index]; }
  QPushButton* add_button() { return add_; }
  NumberEdit* from_edit() { return from_; }
  NumberEdit* to_edit() { return to_; }
  NumberEdit* step_edit() { return step_; }
  QCheckBox* log_box() { return log_box_; }
  QCheckBox* log_grid_box() { return log_grid_box_; }
  QCheckBox* exact_box() { return exact_box_; }
  QComboBox* type_list() { return type_list_; }
  int damping_count() const { return damping_count_; }

  // Called after every move of the progress bar during a computation.
  void SetProgressObserver(std::function<void(const DLG_ProgressBar&)> f) {
    progress_observer_ = std::move(f);
  }

  // The dialog's reactions.
  void OnTypeChanged(int kind);
  void OnLogClicked();
  void OnAdd();
  // OK: checks the fields in order, reads the record, computes the spectra
  // into a new document and closes; a failed check or a missing file keeps
  // the dialog open.
  void accept() override;

 private:
  NumberEdit* FieldEdit(SpectrumField field);
  void ShowValues(const SpectrumSettings& s);
  SpectrumSettings ReadValues();
  void Compute(CZELwDoc& doc, const SpectrumSettings& settings);

  DialogHost& host_;
  RecordChooser* chooser_;
  std::array<NumberEdit*, kMaxCurves> damping_{};
  QPushButton* add_;
  NumberEdit* from_;
  NumberEdit* to_;
  NumberEdit* step_;
  QCheckBox* log_box_;
  QCheckBox* log_grid_box_;
  QCheckBox* exact_box_;
  QComboBox* type_list_;
  int damping_count_ = 1;
  std::function<void(const DLG_ProgressBar&)> progress_observer_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_EARTH_DLG_H_
