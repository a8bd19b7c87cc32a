#include "core/plot/emf_records.h"

#include <gtest/gtest.h>

#include <set>

#include "core/plot/emf_reader.h"

namespace zel {
namespace {

using testing::I32At;
using testing::PointsOf;
using testing::ReadEmf;
using testing::TextOf;
using testing::U32At;

int CountOf(const testing::EmfPicture& p, std::uint32_t type) {
  int n = 0;
  for (const auto& r : p.records) n += r.type == type;
  return n;
}

TEST(EmfWriter, WritesRecordsThatAReaderWalks) {
  // 1600 x 1200 units at 64 to the millimetre: 25 x 18.75 mm.
  EmfWriter w(1600, 1200, 64, std::u16string(u"ZEL\0k\0", 6));
  const EmfPen red{{255, 0, 0}, 32};
  const EmfPen grey{{192, 192, 192}, 16};
  w.SelectPen(red);
  w.Polyline({{0, 0}, {100, 50}, {1599, 1199}});
  w.SelectPen(grey);
  w.SelectPen(red);                   // made once, selected again
  w.Polyline({{0, 0}, {40000, -5}});  // beyond 16 bits
  const EmfRect unused{10, 10, 20, 20};
  w.SetClip(&unused);
  w.SetClip(nullptr);
  w.SelectFont({176, 0, 900, 400, false, false, 0x22, u"Arial"});
  w.SetTextColour({0, 0, 255});
  w.TextOut({300, 900}, u"Sa (g)", {10, 10, 5, 10, 10, 10});
  w.TextOut({1, 2}, u"\u03b6=5", {9, 8, 7});  // odd length: padded
  const std::string bytes = w.Finish();

  const testing::EmfPicture p = ReadEmf(bytes);
  ASSERT_EQ(p.error, "");
  // Frame in hundredths of a millimetre; the reference device in whole
  // millimetres of exactly 64 units.
  EXPECT_EQ(I32At(bytes, 32), 2500);
  EXPECT_EQ(I32At(bytes, 36), 1875);
  EXPECT_EQ(I32At(bytes, 72), 25 * 64);
  EXPECT_EQ(I32At(bytes, 80), 25);
  EXPECT_EQ(I32At(bytes, 84), 19);
  EXPECT_EQ(U32At(bytes, 60), 7u);  // "ZEL\0k\0\0"
  EXPECT_EQ(bytes.substr(U32At(bytes, 64), 14),
            std::string("Z\0E\0L\0\0\0k\0\0\0\0\0", 14));

  EXPECT_EQ(CountOf(p, kEmrExtCreatePen), 2);
  EXPECT_EQ(CountOf(p, kEmrExtCreateFontIndirectW), 1);
  EXPECT_EQ(CountOf(p, kEmrDeleteObject), 3);  // all made, all deleted
  // A clip that nothing was drawn in is never written.
  EXPECT_EQ(CountOf(p, kEmrIntersectClipRect), 0);
  std::vector<testing::EmfRecord> lines, texts;
  for (const auto& r : p.records) {
    if (r.type == kEmrPolyline16 || r.type == kEmrPolyline) lines.push_back(r);
    if (r.type == kEmrExtTextOutW) texts.push_back(r);
    if (r.type == kEmrExtCreateFontIndirectW) {
      EXPECT_EQ(I32At(r.bytes, 12), -176);  // character height
      EXPECT_EQ(I32At(r.bytes, 20), 900);   // escapement
      EXPECT_EQ(r.bytes.size(), 332u);      // LOGFONTW with panose
    }
  }
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].type, kEmrPolyline16);
  EXPECT_EQ(PointsOf(lines[0])[2].y, 1199);
  EXPECT_EQ(I32At(lines[0].bytes, 16), 1599);  // bounds' right
  EXPECT_EQ(lines[1].type, kEmrPolyline);
  EXPECT_EQ(PointsOf(lines[1])[1].x, 40000);
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_EQ(TextOf(texts[0]), u"Sa (g)");
  EXPECT_EQ(TextOf(texts[1]), u"\u03b6=5");
  EXPECT_EQ(I32At(texts[0].bytes, 36), 300);  // reference point
  // The spacing array follows the padded string.
  const std::uint32_t dx = U32At(texts[1].bytes, 72);
  EXPECT_EQ(dx, 76u + 8u);
  EXPECT_EQ(I32At(texts[1].bytes, dx + 8), 7);
}

TEST(EmfWriter, ClipsOnlyWhereDrawnAndKeepsTheObjectTableShort) {
  EmfWriter w(1000, 1000, 10, u"");
  const EmfRect plot{100, 100, 900, 900};
  std::set<std::uint32_t> live;
  for (int i = 0; i < 1000; ++i) {
    w.SetClip(i % 2 == 0 ? &plot : nullptr);
    w.SelectPen({{0, 0, 0}, 1 + i});
    w.SelectBrush({static_cast<std::uint8_t>(i % 256), 0, 0});
    w.Rectangle({i % 900, 0, i % 900 + 10, 10});
  }
  const std::string bytes = w.Finish();
  const testing::EmfPicture p = ReadEmf(bytes);
  ASSERT_EQ(p.error, "");
  EXPECT_LE(U32At(bytes, 56) & 0xFFFF, 256u);
  EXPECT_EQ(CountOf(p, kEmrIntersectClipRect), 500);
  // Every object selected exists at that moment.
  for (const auto& r : p.records) {
    const std::uint32_t handle = r.bytes.size() >= 12 ? U32At(r.bytes, 8) : 0;
    if (r.type == kEmrExtCreatePen || r.type == kEmrCreateBrushIndirect) {
      EXPECT_TRUE(live.insert(handle).second) << handle;
    } else if (r.type == kEmrDeleteObject) {
      EXPECT_EQ(live.erase(handle), 1u) << handle;
    } else if (r.type == kEmrSelectObject && handle < 0x80000000u) {
      EXPECT_TRUE(live.count(handle)) << handle;
    }
  }
  EXPECT_TRUE(live.empty());
}

}  // namespace
}  // namespace zel
