// The whole program against careless and hostile typing: every Generate
// dialog with its defaults and with each field at 0, a negative value, 1e300,
// "nan" and text; every Option and View command on each chart made; each
// chart saved and opened again with File Open.
#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QTest>
#include <cmath>
#include <string>
#include <vector>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/test_files.h"
#include "core/records/record_fixtures.h"

namespace zel::app::testing {
namespace {

constexpr const char* kBadTexts[] = {"0", "-3", "1e300", "nan", "abc"};

// The fields a user can type into, as indexes into the dialog's line edits
// (the same for every instance of a dialog).
std::vector<int> TypableFields(QDialog& d) {
  std::vector<int> fields;
  const QList<QLineEdit*> edits = d.findChildren<QLineEdit*>();
  for (int i = 0; i < edits.size(); ++i) {
    QWidget* owner = edits[i];
    if (auto* combo = qobject_cast<QComboBox*>(owner->parentWidget())) {
      owner = combo;
    }
    if (owner->isVisibleTo(&d) && owner->isEnabled() &&
        !edits[i]->isReadOnly()) {
      fields.push_back(i);
    }
  }
  return fields;
}

void TypeInto(QDialog& d, int field, const char* text) {
  QLineEdit* edit = d.findChildren<QLineEdit*>().value(field);
  ASSERT_NE(edit, nullptr) << field;
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
  edit->clearFocus();  // the dialogs re-check a field when it loses focus
}

class Robustness : public AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    std::filesystem::create_directory(dir_ / "dbase");
    // A short record under the first catalog entry's name.
    zel::testing::WriteAll(
        dir_ / "dbase" / "Elcent_h.dbs",
        zel::testing::EvenRecord(zel::testing::Sine(400, 2.0, 0.01), 0.01));
    app_->SetProgramFolder((dir_ / "").string());
  }

  // Every message so far is a sentence a user can read.
  void ExpectReadableMessages() {
    for (const std::string& text : messages()) {
      EXPECT_FALSE(text.empty());
      for (const char c : text) {
        EXPECT_TRUE(c == '\n' || c == '\t' ||
                    static_cast<unsigned char>(c) >= 0x20)
            << text;
      }
    }
  }

  // Runs every enabled Option and View command on the active chart (their
  // dialogs answered with what they show), then saves it and opens the file
  // again: File Open must read back what Save wrote, without a message.
  void ExerciseActiveChart(const std::string& what) {
    SCOPED_TRACE(what);
    answer_ = [](QDialog& d) {
      d.accept();
      return d.result();
    };
    for (const CommandEntry& entry : CommandTable()) {
      const std::string menu = entry.menu;
      if (entry.id == 0 || (menu != "Option" && menu != "View")) continue;
      if (entry.scope != MenuScope::kWithDocument) continue;
      frame().UpdateCommandUI();
      if (!frame().CommandAction(entry.id)->isEnabled()) continue;
      frame().OnCommand(entry.id);
      QApplication::processEvents();
    }
    ASSERT_NE(child(), nullptr);
    const std::string path = (dir_ / "saved.zel").string();
    std::filesystem::remove(path);
    next_save_ = QString::fromStdString(path);
    const std::size_t before = messages().size();
    frame().OnCommand(ID_FILE_SAVE);
    if (!std::filesystem::exists(path)) {
      // Refusing to save a chart without points is allowed, with a word.
      EXPECT_GT(messages().size(), before);
      return;
    }
    const int windows = WindowCount();
    next_open_ = QString::fromStdString(path);
    frame().OnCommand(ID_FILE_OPEN);
    EXPECT_EQ(WindowCount(), windows + 1);
    EXPECT_EQ(messages().size(), before) << messages().back();
  }

  void CloseAll() {
    frame().mdi_area()->closeAllSubWindows();
    QApplication::processEvents();
  }

  // Opens the dialog of `id`, lets `fill` type into it, presses OK once and
  // gives up when the dialog stays open.
  void RunDialog(int id, std::function<void(QDialog&)> fill) {
    answer_ = [fill](QDialog& d) {
      fill(d);
      d.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
      return d.result();
    };
    frame().OnCommand(id);
    QApplication::processEvents();
  }

  zel::testing::TempDir dir_;
};

TEST_F(Robustness, EveryGenerateDialogWithEveryBadValue) {
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.id == 0 || std::string(entry.menu) != "Generate") continue;
    frame().UpdateCommandUI();
    if (!frame().CommandAction(entry.id)->isEnabled()) continue;
    SCOPED_TRACE(entry.text);

    std::vector<int> fields;
    RunDialog(entry.id, [&](QDialog& d) { fields = TypableFields(d); });
    EXPECT_FALSE(fields.empty());
    ASSERT_EQ(WindowCount(), 1) << "defaults make a chart";
    ExerciseActiveChart("defaults");
    CloseAll();

    for (const int field : fields) {
      for (const char* text : kBadTexts) {
        const std::string what =
            "field " + std::to_string(field) + " = " + text;
        RunDialog(entry.id, [&](QDialog& d) { TypeInto(d, field, text); });
        if (WindowCount() > 0 && child()->GetDocument().StoredPoints(0) > 0) {
          ExerciseActiveChart(what);
        }
        CloseAll();
      }
    }
  }
  ExpectReadableMessages();
}

}  // namespace
}  // namespace zel::app::testing
