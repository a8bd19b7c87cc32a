// The design-spectrum dialogs: defaults, notifications, the OK sequence and
// the documents they make.
#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
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
#include "core/codes/kds2019.h"
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

bool Enabled(QDialog& d, const char* name) {
  QWidget* w = d.findChild<QWidget*>(name);
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

// What a core generator saves from `params` into a bare document, as the
// command line does.
template <class Generate, class Params>
std::string Expected(Generate generate, const Params& params) {
  CZELwDoc doc;
  MessageLog log;
  EXPECT_TRUE(generate(doc, params, log));
  return Saved(doc);
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

TEST_F(DesignDialogs, DefaultsLabelsAndTheCommandLineDocument) {
  const struct {
    int id;
    const char* caption;
    const char* values;  // name=text ...
    std::vector<const char*> labels;
  } dialogs[] = {
      {ID_DESIGN_ATC,
       "ATC 3-06",
       "soil=0 aa=1 av=1 r=1",
       {"Soil Profile Type", "S1 (1.0)", "S2 (1.2)", "S3 (1.5)",
        "EPA related coefficient (Aa) :", "EPV related coefficient (Av) :",
        "Response Modification Coef. (R):"}},
      {ID_DESIGN_UBC,
       "UBC 88-94",
       "soil=0 z=1 rw=1 importance=1",
       {"Soil Profile Type", "Seismic Zone Factor (Z) :",
        "Numerical Coefficient (Rw) :", "Importance Factor ( I ) :"}},
      {ID_DESIGN_UBC97,
       "UBC(1997)",
       "option=0 zone=4 soil=3 source=1 distance=10.0 ca=0.44 cv=0.64 r=1 "
       "importance=1",
       {"Seismic Coefficients Calculation Option", "Automatic", "User Defined",
        "Seismic Coefficient (Ca) :", "Seismic Coefficient (Cv) :",
        "Numerical Coefficient (R) :", "Importance Factor ( I ) :",
        "Data for Automatic Calculation", "Seismic Zone Factor (Z) :",
        "Soil Profile Type (S) :", "For Zone 4", "Seismic Source Type  :",
        "Closest Distance to Known Seismic Source (km)   :"}},
      {ID_DESIGN_IBC2000,
       "IBC2000(ASCE7-98)",
       "ss=0.25 s1=0.1 importance=1.0 r=1 site=3 category=3",
       {"Mapped Spectral Response Acceleration at Short Period(Ss):",
        "Mapped Spectral Response Acceleration at 1 sec Period(S1):",
        "Importance Factor ( I ) :", "Response Modification Coef. (R):",
        "Site Class", "Seismic Design Category"}},
      {ID_DESIGN_KDS2019,
       "KDS(41-17-00:2019)",
       "zone=0 epa=0.22 site=1 fa=1.38 fv=1.38 sds=0.506 sd1=0.2024 "
       "importance=1.2 r=4",
       {"Design Spectral Response Acceleration", "Seismic Zone", "EPA(S)",
        "Site Class", "Fa", "Fv", "Sds", "Sd1", "g", "Importance Factor (Ie)",
        "Response Modification Coef. (R)"}},
  };
  frame().UpdateCommandUI();
  for (const auto& c : dialogs) {
    SCOPED_TRACE(c.caption);
    EXPECT_TRUE(frame().CommandAction(c.id)->isEnabled());
    const CodeEntry* code = nullptr;
    Open(c.id, [&c, &code](DesignCodeDialog& d) {
      code = &d.code();
      const ParamValues shown = d.Values();
      for (const QString& value :
           QString(c.values).split(' ') +
               QStringList{"from=0", "to=6", "steps=100"}) {
        const QStringList pair = value.split('=');
        EXPECT_EQ(shown.at(pair[0].toStdString()), pair[1].toStdString());
      }
      QStringList texts;
      for (auto* l : d.findChildren<QLabel*>()) texts << l->text();
      for (auto* g : d.findChildren<QGroupBox*>()) texts << g->title();
      for (auto* b : d.findChildren<QAbstractButton*>()) texts << b->text();
      std::vector<const char*> labels = c.labels;
      labels.insert(labels.end(), {"Output Period", "From", "To", "Step"});
      for (const char* label : labels)
        EXPECT_TRUE(texts.contains(label)) << label;
      PressOk(d);
    });
    EXPECT_EQ(dialog_titles_.last(), c.caption);
    // The command line generates from the same texts into a bare document.
    const auto generate = [code](CZELwDoc& doc, const ParamValues& v,
                                 MessageSink& m) {
      return code->generate(v, doc, m);
    };
    const CZELwDoc& made = *frame().ActiveDocument();
    EXPECT_GE(made.store().Size(0), 101u);
    EXPECT_EQ(Saved(made), Expected(generate, DefaultValues(*code)));
    EXPECT_EQ(child()->windowTitle().toStdString(), code->title);
  }
  EXPECT_TRUE(messages().empty());
}

TEST_F(DesignDialogs, Ubc97AutomaticCoefficients) {
  Open(ID_DESIGN_UBC97, [this](DesignCodeDialog& d) {
    EXPECT_FALSE(Enabled(d, "ca"));
    EXPECT_TRUE(Enabled(d, "source"));
    Choose(d, "zone", 3);  // Zone3, soil SD: no near-source factors
    EXPECT_EQ(d.Values().at("ca"), "0.36");
    EXPECT_EQ(d.Values().at("cv"), "0.54");
    EXPECT_FALSE(Enabled(d, "source"));
    EXPECT_FALSE(Enabled(d, "distance"));
    Choose(d, "zone", 4);
    Choose(d, "source", 0);
    Type(d, "distance", "3.5");  // Na 1.35, Nv 1.8
    EXPECT_EQ(d.Values().at("ca"), "0.594");
    EXPECT_EQ(d.Values().at("cv"), "1.152");
    Choose(d, "soil", 4);
    EXPECT_EQ(d.Values().at("ca"), "0.486");  // 0.36 * 1.35
    Choose(d, "soil", 3);
    Type(d, "distance", "-2");  // "-" reads as 0 km, "-2" is refused
    EXPECT_EQ(messages(), std::vector<std::string>{
                              "Error! Distance must not be negative value."});
    EXPECT_EQ(d.Values().at("ca"), "0.66");
    EXPECT_EQ(d.Values().at("cv"), "1.28");
    Choose(d, "option", 1);
    EXPECT_TRUE(Enabled(d, "ca"));
    EXPECT_FALSE(Enabled(d, "zone"));
    EXPECT_FALSE(Enabled(d, "distance"));
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
  EXPECT_EQ(Saved(*frame().ActiveDocument()), Expected(GenerateUbc97, p));
  EXPECT_EQ(frame().ActiveDocument()->subtitle, "Ca=0.4  Cv=0.56");
  EXPECT_EQ(child()->windowTitle(), "UBC(1997) Design Spectrum");
}

TEST_F(DesignDialogs, Kds2019Notifications) {
  Open(ID_DESIGN_KDS2019, [](DesignCodeDialog& d) {
    auto coefficients = [&d] {
      const ParamValues v = d.Values();
      return v.at("epa") + " " + v.at("fa") + " " + v.at("fv") + " " +
             v.at("sds") + " " + v.at("sd1");
    };
    Choose(d, "zone", 1);
    EXPECT_EQ(coefficients(), "0.14 1.4 1.46 0.326667 0.136267");
    Choose(d, "site", 4);
    EXPECT_EQ(coefficients(), "0.14 1.6 2.88 0.373333 0.2688");
    Choose(d, "zone", 0);
    Choose(d, "site", 2);
    Type(d, "epa", "0.35");
    EXPECT_EQ(coefficients(), "0.35 1.3 1.5 0.758333 0.35");
    Choose(d, "site", kKds2019SiteS6);  // hand entry: zeros first
    EXPECT_EQ(coefficients(), "0.35 0 0 0 0");
    Choose(d, "zone", 1);
    Type(d, "epa", "0.1");
    EXPECT_EQ(coefficients(), "0.1 0 0 0 0");
    Type(d, "sds", "0.5");
    Type(d, "sd1", "0.2");
    PressOk(d);
  });
  Kds2019Params p;
  p.zone = 1;
  p.site = kKds2019SiteS6;
  p.s = 0.1;
  p.fa = p.fv = 0.0;
  p.sds = 0.5;
  p.sd1 = 0.2;
  EXPECT_EQ(Saved(*frame().ActiveDocument()), Expected(GenerateKds2019, p));
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

TEST_F(DesignDialogs, FailedCheckLeavesAnEmptyDocumentAndTheDialog) {
  const struct {
    int id;
    const char* field;
    const char* text;
    const char* message;
  } cases[] = {
      {ID_DESIGN_ATC, "steps", "0",
       "The edit value in 'Step' must be greater than or equal to 1"},
      {ID_DESIGN_UBC, "from", "-1",
       "The edit value in 'From' must be greater than or equal to 0"},
      {ID_DESIGN_UBC97, "ca", "abc", "The value Ca must be greater than zero"},
      {ID_DESIGN_IBC2000, "to", "0",
       "The edit value in 'To' must be greater than the edit value in 'From'"},
      {ID_DESIGN_KDS2019, "steps", "0",
       "The edit value in 'Step' must be greater than or equal to 1"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    messages_->Clear();
    const int before = WindowCount();
    Open(c.id, [&](DesignCodeDialog& d) {
      if (c.id == ID_DESIGN_UBC97) Choose(d, "option", 1);
      Type(d, c.field, c.text);
      for (int attempt = 1; attempt <= 2; ++attempt) {
        PressOk(d);
        EXPECT_EQ(d.result(), QDialog::Rejected);
        EXPECT_EQ(WindowCount(), before + attempt);
        EXPECT_EQ(frame().ActiveDocument()->store().Size(0), 0u);
        EXPECT_EQ(frame().ActiveDocument()->point_count[0], 0);
        EXPECT_EQ(d.Values().at(c.field), c.text);
      }
      EXPECT_EQ(messages(), std::vector<std::string>(2, c.message));
    });
    EXPECT_EQ(app_->new_document_mode(), kNewDocumentDesignSpectrum);
  }
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
