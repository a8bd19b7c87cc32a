// ScratchHost: a DialogHost whose new document is one of its own, not a new
// window. A code dialog run on it leaves its spectrum there, for a command
// that lays it over another chart or scales a record to it.
#ifndef ZEL_APP_DIALOGS_SCRATCH_HOST_H_
#define ZEL_APP_DIALOGS_SCRATCH_HOST_H_

#include "app/dialogs/dialog_host.h"

namespace zel::app {

class ScratchHost : public DialogHost {
 public:
  explicit ScratchHost(DialogHost& host) : host_(host) {}

  CZELwDoc* NewDocument(int) override {
    document_ = CZELwDoc();
    return &document_;
  }
  MessageSink& messages() override { return host_.messages(); }
  QString AskOpenFileName(QWidget* parent, const QString& filter) override {
    return host_.AskOpenFileName(parent, filter);
  }
  std::string ProgramFolder() const override { return host_.ProgramFolder(); }
  FollowUpValues& follow_up() override { return host_.follow_up(); }
  int RunDialog(QDialog& dialog) override { return host_.RunDialog(dialog); }

  const CZELwDoc& document() const { return document_; }

 private:
  DialogHost& host_;
  CZELwDoc document_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_SCRATCH_HOST_H_
