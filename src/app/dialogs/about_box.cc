#include "app/dialogs/about_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace zel::app {

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("About ZEL"));
  auto* text = new QLabel(QStringLiteral(
      "<b>ZEL</b> Version " ZEL_VERSION
      "<p>Design spectra, earthquake records, response spectra and Fourier "
      "spectra for earthquake engineers.</p>"
      "<p>Licensed under the GNU General Public License, version 3 or "
      "later. Charts are drawn with QCustomPlot.</p>"));
  text->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addWidget(buttons);
  setMinimumWidth(360);
}

}  // namespace zel::app
