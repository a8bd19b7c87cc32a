#include "app/dialogs/dlg_record_info.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "core/records/ground_motion.h"

namespace zel::app {

DLG_RecordInfo::DLG_RecordInfo(const CZELwDoc& doc, QWidget* parent)
    : QDialog(parent),
      table_(new QTableWidget),
      copy_(new QPushButton(QStringLiteral("Copy"))) {
  setWindowTitle(QStringLiteral("Record Information"));
  const GroundMotionParameters p =
      ComputeGroundMotionParameters(doc.record_samples, doc.record_time_step);
  text_ = GroundMotionText(doc.record_name, p);

  const std::vector<ParameterRow> rows = GroundMotionRows(p);
  table_->setColumnCount(2);
  table_->setRowCount(static_cast<int>(rows.size()));
  table_->setHorizontalHeaderLabels(
      {QStringLiteral("Parameter"), QStringLiteral("Value")});
  for (int i = 0; i < table_->rowCount(); ++i) {
    const ParameterRow& row = rows[static_cast<std::size_t>(i)];
    table_->setItem(i, 0,
                    new QTableWidgetItem(QString::fromStdString(row.label)));
    auto* value = new QTableWidgetItem(QString::fromStdString(row.text));
    value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table_->setItem(i, 1, value);
  }
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(
      0, QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setStretchLastSection(true);

  auto* name = new QLabel(QString::fromStdString(doc.record_name));
  name->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->addButton(copy_, QDialogButtonBox::ActionRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(copy_, &QPushButton::clicked, this, [this] {
    QApplication::clipboard()->setText(QString::fromStdString(text_));
  });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(name);
  layout->addWidget(table_);
  layout->addWidget(buttons);
  table_->resizeRowsToContents();
  resize(600, 500);
}

}  // namespace zel::app
