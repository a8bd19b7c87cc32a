// The design-spectrum dialogs: defaults, notifications, the OK sequence and
// the documents they make.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTest>
#include <clocale>
#include <utility>
#include <vector>

#include "app/dialogs/design_code_dialog.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/codes/period_grid.h"
#include "core/codes/ubc97_coefficients.h"
#include "core/codes/us_codes.h"
#include "core/document/data_file.h"
#include "core/document/test_files.h"

namespace zel::app::testing {
namespace {

// Replaces a field's text key by key, as the user types it.
void Type(QDialog& d, const char* name, const char* text) {
  auto* combo = d.findChild<QComboBox*>(name);
  QLineEdit* edit = combo ? combo->lineEdit() : d.findChild<QLineEdit*>(name);
  ASSERT_NE(edit, nullptr) << name;
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

// Picks a list entry or clicks a radio button.
void Choose(QDialog& d, const char* name, int index) {
  if (auto* radio =
          d.findChild<QAbstractButton*>(name + QString::number(index))) {
    radio->click();
    return;
  }
  auto* combo = d.findChild<QComboBox*>(name);
  ASSERT_NE(combo, nullptr) << name;
  combo->setCurrentIndex(index);
  emit combo->activated(index);
}

void PressOk(QDialog& d) {
  d.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

// Whether the user can type into, pick or click the control.
bool Enabled(QDialog& d, const std::string& name) {
  auto* w = d.findChild<QWidget*>(QString::fromStdString(name));
  auto* edit = qobject_cast<QLineEdit*>(w);
  return w->isEnabled() && (edit == nullptr || !edit->isReadOnly());
}

// The document as a saved .zel file.
std::string Saved(const CZELwDoc& doc) {
  const zel::testing::TempDir dir;
  MessageLog log;
  EXPECT_TRUE(WriteDataFile(doc, (dir / "saved.zel").string(), log));
  return zel::testing::ReadAll(dir / "saved.zel");
}

// What the command line saves for `code` from the controls' texts `values`.
std::string CommandLineBytes(const CodeEntry& code, const ParamValues& values) {
  CZELwDoc doc;
  MessageLog log;
  EXPECT_TRUE(code.generate(values, doc, log));
  return Saved(doc);
}

// The Design Response Spectra entry of a code.
int MenuCommand(const CodeEntry& code) {
  for (const CommandEntry& entry : CommandTable()) {
    if (entry.submenu != nullptr &&
        std::string(entry.submenu) == "Design Response Spectra" &&
        code.menu_text == entry.text) {
      return entry.id;
    }
  }
  return 0;
}

class DesignDialogs : public AppFixture {
 protected:
  // Opens the dialog of a menu entry and hands it to `act`; the dialog's
  // result is the command's.
  template <class Act>
  void Open(int id, Act act) {
    answer_ = [act](QDialog& d) {
      act(dynamic_cast<DesignCodeDialog&>(d));
      return d.result();
    };
    frame().OnCommand(id);
  }
};

TEST_F(DesignDialogs, EveryCodeShowsItsFieldsAndSavesTheCommandLineBytes) {
  frame().UpdateCommandUI();
  for (const CodeEntry& code : DesignCodes()) {
    SCOPED_TRACE(code.id);
    const int id = MenuCommand(code);
    ASSERT_NE(id, 0);
    EXPECT_TRUE(frame().CommandAction(id)->isEnabled());
    const ParamValues defaults = DefaultValues(code);
    Open(id, [&](DesignCodeDialog& d) {
      EXPECT_EQ(&d.code(), &code);
      EXPECT_EQ(d.Values(), defaults);
      QStringList texts;
      for (auto* l : d.findChildren<QLabel*>()) texts << l->text();
      for (auto* g : d.findChildren<QGroupBox*>()) texts << g->title();
      for (auto* b : d.findChildren<QAbstractButton*>()) texts << b->text();
      for (const ParamDescriptor& param : code.params) {
        SCOPED_TRACE(param.name);
        EXPECT_TRUE(texts.contains(QString::fromStdString(param.label)));
        const QString group = QString::fromStdString(param.group);
        EXPECT_TRUE(group.isEmpty() || texts.contains(group.section('/', -1)));
        for (const std::string& item : param.items) {
          if (param.radio) {
            EXPECT_TRUE(texts.contains(QString::fromStdString(item)));
          }
        }
        // Each control in the state the code gives it.
        const FieldState state = GetFieldState(code, defaults, param.name);
        auto* w = d.findChild<QWidget*>(QString::fromStdString(param.name));
        ASSERT_NE(w, nullptr);
        EXPECT_EQ(w->isVisibleTo(&d), state != FieldState::kHidden);
        EXPECT_EQ(Enabled(d, param.name), state == FieldState::kEnabled);
      }
      PressOk(d);
    });
    EXPECT_EQ(dialog_titles_.last().toStdString(), code.caption);
    EXPECT_EQ(Saved(*frame().ActiveDocument()),
              CommandLineBytes(code, defaults));
    EXPECT_EQ(child()->windowTitle().toStdString(), code.title);
  }
  EXPECT_TRUE(messages().empty());
}

TEST_F(DesignDialogs, TypingPickingAndClickingReachTheCode) {
  Open(ID_DESIGN_UBC97, [this](DesignCodeDialog& d) {
    Choose(d, "zone", 3);  // Zone3, soil SD: no near-source factors
    EXPECT_EQ(d.Values().at("cv"), "0.54");
    EXPECT_FALSE(Enabled(d, "distance"));
    Choose(d, "zone", 4);
    Choose(d, "source", 0);
    Type(d, "distance", "3.5");  // Na 1.35, Nv 1.8
    EXPECT_EQ(d.Values().at("ca"), "0.594");
    EXPECT_EQ(d.Values().at("cv"), "1.152");
    // No message box while "-2" is typed; one when the field is left, and
    // OK refuses it. The fields keep what "-" on the way (0 km) gave.
    Type(d, "distance", "-2");
    EXPECT_TRUE(messages().empty());
    QFocusEvent leave(QEvent::FocusOut);
    QApplication::sendEvent(d.findChild<QLineEdit*>("distance"), &leave);
    QApplication::sendEvent(d.findChild<QLineEdit*>("distance"), &leave);
    EXPECT_EQ(d.Values().at("ca"), "0.66");
    PressOk(d);
    EXPECT_EQ(messages(), std::vector<std::string>(2, kDistanceMessage));
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(frame().ActiveDocument()->store().Size(0), 0u);
    Choose(d, "option", 1);
    EXPECT_TRUE(Enabled(d, "ca"));
    EXPECT_FALSE(Enabled(d, "zone"));
    Type(d, "ca", "0.4");
    Type(d, "cv", "0.56");
    Type(d, "r", "2");
    PressOk(d);
  });
  Ubc97Params p;
  p.option = Ubc97Params::kUserDefined;
  p.ca = 0.4;
  p.cv = 0.56;
  p.r = 2.0;
  CZELwDoc expected;
  MessageLog log;
  ASSERT_TRUE(GenerateUbc97(expected, p, log));
  EXPECT_EQ(Saved(*frame().ActiveDocument()), Saved(expected));
}

TEST_F(DesignDialogs, SiteClassENoteComesBeforeAnyDocument) {
  Open(ID_DESIGN_IBC2000, [this](DesignCodeDialog& d) {
    Type(d, "from", "-1");  // a grid fault is not reached
    Choose(d, "site", 4);
    for (const char* ss : {"1.2", "0.5"}) {
      Type(d, "ss", ss);
      Type(d, "s1", ss == std::string("1.2") ? "0.1" : "0.41");
      PressOk(d);
    }
    EXPECT_EQ(WindowCount(), 0);
    EXPECT_EQ(messages().size(), 2u);
    EXPECT_EQ(messages().front(),
              "Note! In case of Site Class 'E' and Ss > 1.0 or S1 > 0.4, Site "
              "Specific geotechnical investigation and dynamic site response "
              "analyses shall be performed to determine appropriate values");
    Type(d, "from", "0");
    Type(d, "ss", "1.0");  // the limits themselves are accepted
    Type(d, "s1", "0.4");
    PressOk(d);
  });
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(frame().ActiveDocument()->title, "IBC2000(ASCE7-98)");
}

TEST_F(DesignDialogs, TheReliefIsReadFromItsBoxNotFromTheSite) {
  // Checked under Sd, the box stays checked, though disabled, on Sa.
  Open(ID_DESIGN_KBC2005, [](DesignCodeDialog& d) {
    d.findChild<QCheckBox*>("relieve")->click();
    Choose(d, "site", 0);
    EXPECT_FALSE(Enabled(d, "relieve"));
    PressOk(d);
  });
  const std::string& label = frame().ActiveDocument()->subtitle;
  EXPECT_EQ(label.substr(label.size() - 12), " Relieve=Yes");
}

TEST_F(DesignDialogs, FailedCheckLeavesTheDialogAndAnyEmptyDocumentOpen) {
  for (const CodeEntry& code : DesignCodes()) {
    if (FindParam(code, "steps") == nullptr) continue;  // no period grid
    SCOPED_TRACE(code.id);
    messages_->Clear();
    const int before = WindowCount();
    ParamValues values = DefaultValues(code);
    values["steps"] = "0";
    // A code that checks everything first makes no document at all.
    MessageLog precheck;
    const int made = PrecheckCode(code, values, precheck) ? 1 : 0;
    Open(MenuCommand(code), [&](DesignCodeDialog& d) {
      Type(d, "steps", "0");
      for (int attempt = 1; attempt <= 2; ++attempt) {
        PressOk(d);
        EXPECT_EQ(d.result(), QDialog::Rejected);
        EXPECT_EQ(WindowCount(), before + made * attempt);
        if (made != 0) {
          EXPECT_EQ(frame().ActiveDocument()->store().Size(0), 0u);
        }
        EXPECT_EQ(d.Values().at("steps"), "0");
      }
      EXPECT_EQ(messages(), std::vector<std::string>(2, kStepMessage));
    });
  }
  EXPECT_EQ(app_->new_document_mode(), kNewDocumentDesignSpectrum);
}

TEST_F(DesignDialogs, GermanLocaleKeepsTheDecimalPoint) {
  const std::string c_locale = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.utf8") == nullptr) {
    GTEST_SKIP() << "no German locale installed";
  }
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  Open(ID_DESIGN_UBC97, [](DesignCodeDialog& d) {
    EXPECT_EQ(d.findChild<QLineEdit*>("ca")->text(), "0.44");
    Choose(d, "zone", 3);
    EXPECT_EQ(d.findChild<QLineEdit*>("cv")->text(), "0.54");
    PressOk(d);
  });
  QLocale::setDefault(QLocale::c());
  std::setlocale(LC_ALL, c_locale.c_str());
  EXPECT_EQ(frame().ActiveDocument()->subtitle, "Ca=0.36  Cv=0.54");
}

}  // namespace
}  // namespace zel::app::testing
