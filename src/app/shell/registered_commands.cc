// Commands served by dialogs and operations from other parts of the program:
// the Generate dialogs, Time<->Frequency and printing. A command's menu item
// (and tool bar button) is enabled once it is registered here, with one line
// such as
//   registry.Register(ID_DESIGN_UBC97, [](CMainFrame& frame) {
//     DLG_UBC97 dialog(frame.app(), &frame);
//     frame.app().RunDialog(dialog);
//   });
// On OK the dialog makes its document through its DialogHost:
//   CZELwDoc* doc = host.NewDocument(kNewDocumentDesignSpectrum);
// fills it, sets its title and calls doc->UpdateAllViews().
#include "app/dialogs/cdlg_ch2002.h"
#include "app/dialogs/cdlg_ch_brg89.h"
#include "app/dialogs/cdlg_ch_gbj111_87.h"
#include "app/dialogs/cdlg_chsh2003.h"
#include "app/dialogs/cdlg_euro1996.h"
#include "app/dialogs/cdlg_ibc2000.h"
#include "app/dialogs/cdlg_jpn2000.h"
#include "app/dialogs/cdlg_nbc1995.h"
#include "app/dialogs/cdlg_ntc2018.h"
#include "app/dialogs/dlg_atc.h"
#include "app/dialogs/dlg_design_overlay.h"
#include "app/dialogs/dlg_euro1996_elastic.h"
#include "app/dialogs/dlg_kbc2005.h"
#include "app/dialogs/dlg_kds2019.h"
#include "app/dialogs/dlg_ks.h"
#include "app/dialogs/dlg_ks2000.h"
#include "app/dialogs/dlg_ks_bridge.h"
#include "app/dialogs/dlg_ksce2019.h"
#include "app/dialogs/dlg_newmark.h"
#include "app/dialogs/dlg_record_info.h"
#include "app/dialogs/dlg_scale.h"
#include "app/dialogs/dlg_ubc.h"
#include "app/dialogs/dlg_ubc97.h"
#include "app/dialogs/earth_dlg.h"
#include "app/dialogs/eq_rec_dlg.h"
#include "app/shell/child_frame.h"
#include "app/shell/command_registry.h"
#include "app/shell/command_table.h"
#include "app/shell/main_frame.h"
#include "app/shell/print_commands.h"
#include "app/shell/zelw_app.h"
#include "core/records/frequency_switch.h"
#include "core/scaling/design_target.h"
#include "core/scaling/record_scaling.h"

namespace zel::app {
namespace {

// Opens a Generate dialog; its OK makes and fills the new document.
template <class Dialog>
void RunGenerateDialog(CMainFrame& frame) {
  Dialog dialog(frame.app(), &frame);
  frame.app().RunDialog(dialog);
}

}  // namespace

void RegisterCommands(CommandRegistry& registry) {
  // Records, response spectra and the Time<->Frequency switch.
  registry.Register(ID_GENERATE_EQ_RECORD, RunGenerateDialog<EQ_REC_DLG>);
  registry.Register(ID_GENERATE_RESPONSE_SPECTRA, RunGenerateDialog<EarthDlg>);
  registry.Register(ID_VIEW_TIME_FREQUENCY, [](CMainFrame& frame) {
    // Only a record document switches; any other stays as it is.
    if (CChildFrame* child = frame.ActiveChild()) {
      SwitchTimeFrequency(child->GetDocument(), frame.app().messages());
    }
  });
  registry.Register(ID_VIEW_RECORD_INFO, [](CMainFrame& frame) {
    CChildFrame* child = frame.ActiveChild();
    if (child == nullptr || child->GetDocument().record_flag != 1) return;
    DLG_RecordInfo dialog(child->GetDocument(), &frame);
    frame.app().RunDialog(dialog);
  });

  // A record against a design code.
  registry.Register(ID_ADD_DESIGN_SPECTRUM, [](CMainFrame& frame) {
    CZELwApp& app = frame.app();
    CChildFrame* child = frame.ActiveChild();
    if (child == nullptr ||
        !CanAddDesignSpectrum(child->GetDocument(), app.messages())) {
      return;
    }
    DLG_DESIGN_OVERLAY dialog(app, child->GetDocument(), &frame);
    app.RunDialog(dialog);
  });
  registry.Register(ID_SCALE_TO_DESIGN, [](CMainFrame& frame) {
    CZELwApp& app = frame.app();
    CChildFrame* child = frame.ActiveChild();
    if (child == nullptr || !HoldsRecord(child->GetDocument())) {
      app.messages().Show(kScaleNeedsRecordMessage);
      return;
    }
    DLG_SCALE dialog(app, child->GetDocument(), &frame);
    app.RunDialog(dialog);
  });

  // Design spectra by code.
  registry.Register(ID_DESIGN_ATC, RunGenerateDialog<DLG_ATC>);
  registry.Register(ID_DESIGN_UBC, RunGenerateDialog<DLG_UBC>);
  registry.Register(ID_DESIGN_UBC97, RunGenerateDialog<DLG_UBC97>);
  registry.Register(ID_DESIGN_IBC2000, RunGenerateDialog<CDLG_IBC2000>);
  registry.Register(ID_DESIGN_CH2002, RunGenerateDialog<CDLG_CH2002>);
  registry.Register(ID_DESIGN_CH_BRG89, RunGenerateDialog<CDLG_CH_BRG89>);
  registry.Register(ID_DESIGN_CH_GBJ111_87,
                    RunGenerateDialog<CDLG_CH_GBJ111_87>);
  registry.Register(ID_DESIGN_KDS2019, RunGenerateDialog<DLG_KDS2019>);
  registry.Register(ID_DESIGN_NEWMARK, RunGenerateDialog<DLG_NEWMARK>);
  registry.Register(ID_DESIGN_KSCE2019, RunGenerateDialog<DLG_KSCE2019>);
  registry.Register(ID_DESIGN_KBC2005, RunGenerateDialog<DLG_KBC2005>);
  registry.Register(ID_DESIGN_NTC2018, RunGenerateDialog<CDLG_NTC2018>);
  registry.Register(ID_DESIGN_CHSH2003, RunGenerateDialog<CDLG_CHSH2003>);
  registry.Register(ID_DESIGN_NBC1995, RunGenerateDialog<CDLG_NBC1995>);
  registry.Register(ID_DESIGN_EURO1996, RunGenerateDialog<CDLG_EURO1996>);
  registry.Register(ID_DESIGN_EURO1996_ELASTIC,
                    RunGenerateDialog<DLG_EURO1996_ELASTIC>);
  registry.Register(ID_DESIGN_JPN2000, RunGenerateDialog<CDLG_JPN2000>);
  registry.Register(ID_DESIGN_KS2000, RunGenerateDialog<DLG_KS2000>);
  registry.Register(ID_DESIGN_KS, RunGenerateDialog<DLG_KS>);
  registry.Register(ID_DESIGN_KS_BRIDGE, RunGenerateDialog<DLG_KS_BRIDGE>);

  // Print, Print Preview, Page Setup and Print Setup.
  RegisterPrintCommands(registry);
}

}  // namespace zel::app
