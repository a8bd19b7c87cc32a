// The OK and Cancel buttons every modal dialog of ZEL ends with.
#ifndef ZEL_APP_DIALOGS_OK_CANCEL_BUTTONS_H_
#define ZEL_APP_DIALOGS_OK_CANCEL_BUTTONS_H_

class QDialog;
class QDialogButtonBox;

namespace zel::app {

// A button box whose OK accepts and whose Cancel rejects `dialog`; the
// caller places it in its layout.
QDialogButtonBox* OkCancelButtons(QDialog* dialog);

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_OK_CANCEL_BUTTONS_H_
