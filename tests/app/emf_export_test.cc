// The chart saved as an Enhanced Metafile: its own drawing as vector records,
// text as characters, curves as polylines inside the picture.
#include <QString>
#include <cmath>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/test_files.h"
#include "core/plot/emf_reader.h"
#include "core/plot/emf_records.h"
#include "core/records/chart_setup.h"

namespace zel::app::testing {
namespace {

using zel::testing::I32At;
using zel::testing::ReadAll;
using zel::testing::TempDir;

TEST_F(AppFixture, MetafileHoldsTheChartsTextAndCurves) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->curve_count = 3;
  for (int c = 0; c < 3; ++c) {
    for (int i = 0; i < 40; ++i) {
      doc->SetPoint(i, c, 0.1 * i, (c + 1) * std::sin(0.2 * i), i == 39);
    }
  }
  doc->title = "Three curves \xce\xb6";  // a Greek zeta: UTF-16, not bytes
  doc->subtitle = "damping 2, 5 and 10 %";
  SetUpChart(*doc);
  doc->chart.axis_titles = {"Period Tn (sec)", "Sa (g)"};
  doc->chart.labels.push_back({"", "Free note", 50.0, 40.0});
  doc->UpdateAllViews();

  TempDir dir;
  next_save_ = QString::fromStdString((dir / "c.emf").string());
  frame().OnCommand(ID_FILE_SAVE);
  EXPECT_TRUE(messages().empty());
  const std::string bytes = ReadAll(dir / "c.emf");
  const zel::testing::EmfPicture p = zel::testing::ReadEmf(bytes);
  ASSERT_EQ(p.error, "");

  // The header's bounds: the view's size in sixteenths of a pixel.
  const QSize size = child()->GetView().size();
  EXPECT_EQ(I32At(bytes, 16) + 1, size.width() * 16);
  EXPECT_EQ(I32At(bytes, 20) + 1, size.height() * 16);
  // Runs of one script come as records of their own, in order.
  std::u16string texts;
  int curves = 0;
  bool turned_font = false;
  for (const auto& r : p.records) {
    if (r.type == kEmrExtTextOutW) texts += zel::testing::TextOf(r);
    if (r.type == kEmrExtCreateFontIndirectW) {
      turned_font |= I32At(r.bytes, 20) == 900;  // the Y axis title
    }
    if (r.type != kEmrPolyline16 && r.type != kEmrPolyline) continue;
    const auto points = zel::testing::PointsOf(r);
    curves += points.size() >= 40;
    for (const auto& pt : points) {
      EXPECT_TRUE(pt.x >= 0 && pt.x <= I32At(bytes, 16) && pt.y >= 0 &&
                  pt.y <= I32At(bytes, 20))
          << pt.x << "," << pt.y;
    }
  }
  EXPECT_EQ(curves, 3);
  EXPECT_TRUE(turned_font);
  for (const std::u16string want :
       {u"Three curves \u03b6", u"Free note", u"Sa (g)", u"Period Tn (sec)"}) {
    EXPECT_NE(texts.find(want), std::u16string::npos)
        << QString::fromStdU16String(texts).toStdString();
  }
}

}  // namespace
}  // namespace zel::app::testing
