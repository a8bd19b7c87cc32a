// A running program whose message boxes, file dialogs and modal dialogs are
// answered by the test.
#ifndef ZEL_TESTS_APP_APP_FIXTURE_H_
#define ZEL_TESTS_APP_APP_FIXTURE_H_

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QSettings>
#include <functional>
#include <memory>

#include "app/shell/child_frame.h"
#include "app/shell/main_frame.h"
#include "app/shell/zelw_app.h"
#include "core/document/messages.h"

namespace zel::app::testing {

class AppFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    QSettings(RecentFileList::kOrganisation, RecentFileList::kApplication)
        .clear();
    Interaction ui;
    auto log = std::make_unique<MessageLog>();
    messages_ = log.get();
    ui.messages = std::move(log);
    ui.open_file = [this](QWidget*, const QString& filter) {
      open_filters_ << filter;
      return next_open_;
    };
    ui.save_file = [this](QWidget*, const QString& filter,
                          const QString& suffix) {
      save_filters_ << filter + QStringLiteral(" default ") + suffix;
      return next_save_;
    };
    ui.ask_yes_no = [this](QWidget*, const QString& question) {
      questions_ << question;
      return answer_yes_;
    };
    ui.run_dialog = [this](QDialog& dialog) {
      dialog_titles_ << dialog.windowTitle();
      return answer_ ? answer_(dialog) : int(QDialog::Rejected);
    };
    app_ = std::make_unique<CZELwApp>(std::move(ui));
    ASSERT_TRUE(app_->InitInstance({}));
  }

  void TearDown() override {
    app_.reset();
    QApplication::processEvents();
  }

  CMainFrame& frame() { return *app_->GetMainFrame(); }
  CChildFrame* child() { return frame().ActiveChild(); }
  const std::vector<std::string>& messages() { return messages_->texts(); }
  int WindowCount() {
    return static_cast<int>(frame().mdi_area()->subWindowList().size());
  }

  std::unique_ptr<CZELwApp> app_;
  MessageLog* messages_ = nullptr;
  QString next_open_;
  QString next_save_;
  QStringList open_filters_;
  QStringList save_filters_;
  QStringList dialog_titles_;
  QStringList questions_;
  bool answer_yes_ = false;
  // Fills in and answers a modal dialog; Cancel when unset.
  std::function<int(QDialog&)> answer_;
};

}  // namespace zel::app::testing

#endif  // ZEL_TESTS_APP_APP_FIXTURE_H_
