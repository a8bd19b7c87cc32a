#include "core/records/response_spectrum.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::ElementsAre;
using zel::testing::EvenRecord;
using zel::testing::Settings;
using zel::testing::SpectrumOf;

constexpr double kTwoPiZel = 6.2831852;

double Ordinate(const CZELwDoc& doc, int curve, int j) {
  return doc.store().Value(static_cast<std::size_t>(j), 2 * curve + 1);
}
double Period(const CZELwDoc& doc, int curve, int j) {
  return doc.store().Value(static_cast<std::size_t>(j), 2 * curve);
}

std::vector<double> Quake(int n) {
  std::vector<double> a(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    const double t = i * 0.01;
    a[i] = 0.3 * std::sin(7.1 * t) * std::exp(-0.2 * t) +
           0.1 * std::cos(23.0 * t + 0.4) + 0.05 * std::sin(2.3 * t);
  }
  return a;
}

// The oscillator obeys d'' + 2 zeta w d' + w^2 d = -a(t) from rest. Its
// exact response to a step A of ground acceleration is
// d = -A/w^2 (1 - e^(-zeta w t) (cos wd t + zeta / sqrt(1 - zeta^2) sin wd t)),
// d' = -A/wd e^(-zeta w t) sin wd t, and d'' + A = -w^2 d - 2 zeta w d';
// to a ramp r t, d = -r (t - 2 zeta / w) / w^2 + e^(-zeta w t) (c1 cos wd t +
// c2 sin wd t) with c1 = -2 zeta r / w^3, c2 = (r / w^2 + zeta w c1) / wd.
TEST(ResponseSpectrumTest, StepAndRampMatchTheClosedForms) {
  // Period 1 s, 1 s of record at 0.005 s, the exact responses taken at the
  // samples. Light damping agrees to 1e-4 by default: ZEL's rotation rate
  // (from wd, not w) departs from the exact oscillator, more so in the
  // velocity. The exact rate agrees to rounding.
  const double a = 0.3, g = 9815.0, w = kTwoPiZel, dt = 0.005;
  const std::string step = EvenRecord(std::vector<double>(201, a), dt);
  const struct {
    const char* title;
    const char* type;
    const char* unit;
  } kinds[] = {{"Pseudo Acceleration (g)", "ACCEL", "GRAV"},
               {"Pseudo Velocity (mm/sec)", "VELO", "MM"},
               {"Absolute Acceleration (g)", "ACCEL", "GRAV"},
               {"Relative Velocity (mm/sec)", "VELO", "MM"},
               {"Relative Displacement (mm)", "DISP", "MM"},
               {"Pseudo Velocity (mm/sec)", "VELO", "MM"}};
  const struct {
    double zeta;
    bool exact;
    double tolerance;
  } cases[] = {{0.0, false, 1e-9},
               {0.02, false, 1e-4},
               {0.05, true, 1e-10},
               {0.2, true, 1e-10}};
  for (const auto [zeta, exact, tolerance] : cases) {
    const double root = std::sqrt(1 - zeta * zeta), wd = w * root;
    double sd = 0, sv = 0, sa = 0;
    for (int i = 1; i <= 200; ++i) {
      const double t = i * dt, decay = std::exp(-zeta * w * t);
      const double d =
          -a * g / (w * w) *
          (1 - decay * (std::cos(wd * t) + zeta / root * std::sin(wd * t)));
      const double v = -a * g / wd * decay * std::sin(wd * t);
      sd = std::max(sd, std::fabs(d));
      sv = std::max(sv, std::fabs(v));
      sa = std::max(sa, std::fabs(w * w * d + 2 * zeta * w * v) / g);
    }
    const double closed[] = {sd * w * w / g, sd * w, sa, sv, sd, sd * w};
    for (int kind = 0; kind < 6; ++kind) {
      SCOPED_TRACE(::testing::Message() << zeta << " " << kind);
      SpectrumSettings settings = Settings(kind, {zeta}, 1, 2, 1);
      settings.exact_damping = exact;
      const CZELwDoc doc = SpectrumOf(step, settings);
      EXPECT_NEAR(Ordinate(doc, 0, 0), closed[kind], closed[kind] * tolerance);
      EXPECT_EQ(doc.AxisTitle(1), kinds[kind].title);
      EXPECT_EQ(doc.type, kinds[kind].type);
      EXPECT_EQ(doc.unit, kinds[kind].unit);
      EXPECT_EQ(doc.tripartite, kind == 5 ? 1 : 0);
      EXPECT_EQ(doc.log_x + doc.log_y, kind == 5 ? 2 : 0);
      EXPECT_EQ(doc.window_title, exact ? "Earthquake Response Spectrum (exact)"
                                        : "Earthquake Response Spectrum");
      EXPECT_EQ(doc.subtitle, "test");
      EXPECT_EQ(doc.AxisTitle(0), "Period Tn (sec)");
      EXPECT_EQ(doc.chart.legend.title,
                exact ? "Damping : (exact)" : "Damping :");
      EXPECT_THAT(doc.chart.legend.entries,
                  ElementsAre(CFormat(" %1.2f", zeta)));
      EXPECT_EQ(doc.axis_display, 1);
    }
  }

  // Ramp: a record whose first time is dt follows the ground from rest at
  // t = 0, so every step lies on the ramp; the displacement grows
  // monotonically and peaks at the last sample.
  const double rate = 0.2;  // g per second
  std::vector<double> ramp(1000);
  for (int i = 0; i < 1000; ++i) ramp[i] = rate * (i + 1) * dt;
  for (double zeta : {0.0, 0.05, 0.2}) {
    for (double period : {0.37, 1.3, 4.1}) {
      SpectrumSettings settings = Settings(4, {zeta}, period, 2 * period, 1);
      settings.exact_damping = zeta > 0;
      const CZELwDoc doc = SpectrumOf(EvenRecord(ramp, dt, dt), settings);
      const double w = kTwoPiZel / period, r = rate * g;
      const double wd = w * std::sqrt(1 - zeta * zeta);
      const double c1 = -2 * zeta * r / (w * w * w);
      const double c2 = (r / (w * w) + zeta * w * c1) / wd;
      double sd = 0;
      for (int i = 1; i <= 1000; ++i) {
        const double t = i * dt;
        sd = std::max(
            sd, std::fabs(-r * (t - 2 * zeta / w) / (w * w) +
                          std::exp(-zeta * w * t) *
                              (c1 * std::cos(wd * t) + c2 * std::sin(wd * t))));
      }
      EXPECT_NEAR(Ordinate(doc, 0, 0), sd, sd * 1e-10) << zeta << " " << period;
    }
  }
}

TEST(ResponseSpectrumTest, GridZeroPeriodAndStartOfRecord) {
  // The ground starts from rest, as recorded motions do: an abrupt start
  // would leave an undamped zero-period oscillator ringing.
  std::vector<double> accel = Quake(800);
  accel[0] = 0.0;
  const std::string text = EvenRecord(accel, 0.01);
  double pga = 0;
  for (double a : accel) pga = std::max(pga, std::fabs(a));

  // Half-open grid: 0 (substituted), 0.01, ..., 2.99; 3.0 is not computed.
  // The zero-period pseudo acceleration is the peak ground acceleration.
  const CZELwDoc doc = SpectrumOf(text, Settings(0, {0.0, 0.05}, 0, 3, 300));
  EXPECT_EQ(doc.StoredPoints(0), 300u);
  for (int k : {0, 1}) {
    EXPECT_EQ(Period(doc, k, 0), 1.000000013351432e-10);
    EXPECT_NEAR(Ordinate(doc, k, 0), pga, pga * 1e-6);
  }
  EXPECT_EQ(Period(doc, 0, 1), 0.01);
  EXPECT_EQ(Period(doc, 0, 123), 1.23);
  EXPECT_EQ(Period(doc, 0, 299), 2.99);

  // Results in g: acceleration kinds are not divided by g.
  SpectrumSettings in_g = Settings(2, {0.05}, 0.0, 1.0, 2);
  in_g.results_in_g = true;
  EXPECT_NEAR(Ordinate(SpectrumOf(text, in_g), 0, 0), pga, pga * 1e-6);

  // N = 1: a single point at "from".
  const CZELwDoc one = SpectrumOf(text, Settings(0, {0.05}, 0.5, 3.0, 1));
  EXPECT_EQ(one.StoredPoints(0), 1u);
  EXPECT_EQ(Period(one, 0, 0), 0.5);
  EXPECT_EQ(one.point_count[0], 0);

  // A log axis raises "from" to 0.01 in single precision.
  SpectrumSettings log_axis = Settings(0, {0.05}, 0.0, 3.0, 10);
  log_axis.log_axis = true;
  const CZELwDoc logged = SpectrumOf(text, log_axis);
  EXPECT_EQ(Period(logged, 0, 0), 0.009999999776482582);
  EXPECT_EQ(logged.period_from, 0.009999999776482582);
  EXPECT_EQ(logged.log_x, 1);
  EXPECT_EQ(logged.log_y, 0);

  // Log-spaced periods: "from" and "to" included, a constant ratio; on a log
  // axis "from" 0 is raised as before, otherwise it is refused.
  log_axis.log_grid = true;
  log_axis.period_to = 5.0;
  const CZELwDoc geometric = SpectrumOf(text, log_axis);
  EXPECT_EQ(Period(geometric, 0, 0), 0.009999999776482582);
  EXPECT_EQ(Period(geometric, 0, 9), 5.0);
  const double ratio = std::pow(5.0 / 0.009999999776482582, 1.0 / 9);
  for (int j = 1; j < 10; ++j) {
    EXPECT_NEAR(Period(geometric, 0, j) / Period(geometric, 0, j - 1), ratio,
                1e-13);
  }
  log_axis.log_axis = false;
  std::vector<std::string> messages;
  EXPECT_EQ(SpectrumOf(text, log_axis, &messages).StoredPoints(0), 0u);
  EXPECT_THAT(messages, ElementsAre("Error : Log-spaced periods need From and "
                                    "To greater than 0!"));

  // A record whose first time is not 0 starts from rest one step earlier:
  // the same record without its sample at 0.0 (whose value is 0) and shifted
  // by one step gives the same spectrum...
  const SpectrumSettings sv = Settings(3, {0.02}, 0.1, 2.1, 20);
  const std::vector<double> without(accel.begin() + 1, accel.end());
  const CZELwDoc a = SpectrumOf(text, sv);
  const CZELwDoc b = SpectrumOf(EvenRecord(without, 0.01, 0.01), sv);
  for (int j = 0; j < 20; ++j) {
    EXPECT_NEAR(Ordinate(a, 0, j), Ordinate(b, 0, j), 1e-9 * Ordinate(a, 0, j));
  }
  // ...while a non-zero first sample is read differently at 0.0 and later.
  const std::vector<double> abrupt = Quake(800);
  EXPECT_NE(Ordinate(SpectrumOf(EvenRecord(abrupt, 0.01), sv), 0, 5),
            Ordinate(SpectrumOf(EvenRecord(abrupt, 0.01, 0.01), sv), 0, 5));
}

TEST(ResponseSpectrumTest, GrowthAtLongPeriodsAndBadSettingsNeverBreak) {
  // The rotation rate from the damped frequency makes a heavily damped,
  // long-period oscillator grow without bound: zeta 0.2 beyond about 8 s at
  // dt = 0.005. That is ZEL's established behaviour.
  const std::string text = EvenRecord(Quake(8000), 0.005);
  const CZELwDoc doc = SpectrumOf(text, Settings(4, {0.05, 0.2}, 2.0, 20.0, 9));
  EXPECT_LT(Ordinate(doc, 1, 1), Ordinate(doc, 0, 1));  // 4 s: damped less
  EXPECT_GT(Ordinate(doc, 1, 4), 1e3 * Ordinate(doc, 0, 4));  // 10 s: grown
  EXPECT_GT(Ordinate(doc, 1, 8), 1e6 * Ordinate(doc, 0, 8));  // 18 s
  // The exact rate: more damping, less response, at every period; without
  // damping both rules give the same bits.
  SpectrumSettings exact = Settings(4, {0.0, 0.05, 0.2}, 2.0, 20.0, 9);
  exact.exact_damping = true;
  const CZELwDoc textbook = SpectrumOf(text, exact);
  const CZELwDoc undamped = SpectrumOf(text, Settings(4, {0.0}, 2.0, 20.0, 9));
  for (int j = 0; j < 9; ++j) {
    EXPECT_EQ(Ordinate(textbook, 0, j), Ordinate(undamped, 0, j));
    EXPECT_LT(Ordinate(textbook, 2, j), Ordinate(textbook, 1, j));
  }

  // Critical damping makes every response NaN; a NaN never replaces the
  // running peak, so the ordinates stay 0. A time step of 0 (time scale 0)
  // or none at all (three points) is refused by the reader: no points.
  // From = to: every period is "from".
  EXPECT_EQ(Ordinate(SpectrumOf(text, Settings(0, {1.0}, 0.1, 1, 3)), 0, 1),
            0.0);
  SpectrumSettings zero_time = Settings(0, {0.05}, 0.1, 1.0, 3);
  zero_time.time_scale = 0.0;
  EXPECT_EQ(SpectrumOf(text, zero_time).StoredPoints(0), 0u);
  EXPECT_EQ(
      SpectrumOf(EvenRecord({0.1, 0.2, 0.3}, 0.01), zero_time).StoredPoints(0),
      0u);
  const CZELwDoc same = SpectrumOf(text, Settings(0, {0.05}, 1.0, 1.0, 4));
  EXPECT_EQ(Period(same, 0, 3), 1.0);
  EXPECT_EQ(Ordinate(same, 0, 3), Ordinate(same, 0, 0));

  // Settings the dialog never passes are refused with a message and no
  // points.
  const struct {
    SpectrumSettings settings;
    const char* message;
  } refusals[] = {
      {Settings(0, {0.05}, 0.1, 1.0, 0),
       "Error : The number of periods must be 1 to 5000!"},
      {Settings(0, {0.05}, 0.1, 1.0, 5001),
       "Error : The number of periods must be 1 to 5000!"},
      {Settings(7, {0.05}, 0.1, 1.0, 3), "Error : Unknown spectrum kind!"},
      {Settings(0, {}, 0.1, 1.0, 3),
       "Error : The number of damping ratios must be 1 to 6!"},
  };
  for (const auto& r : refusals) {
    std::vector<std::string> messages;
    EXPECT_EQ(SpectrumOf(text, r.settings, &messages).StoredPoints(0), 0u);
    EXPECT_THAT(messages, ElementsAre(r.message));
  }
}

TEST(ResponseSpectrumTest, ProgressRisesThroughEachCurveOnceItsPointsAreIn) {
  // On one thread the calling thread reports after every block; on two it
  // only reports while the workers integrate.
  const SpectrumSettings settings = Settings(4, {0.05, 0.2}, 0.1, 2.1, 200);
  for (int threads : {1, 2}) {
    CZELwDoc doc;
    PrepareSpectrumDocument(doc, settings);
    MessageLog log;
    ASSERT_EQ(
        ReadRecordFile(
            doc, zel::testing::OpenBytes(EvenRecord(Quake(20000), 0.005)), log),
        1);
    std::vector<int> positions;
    bool stored_first = true;
    SpectrumRun run;
    run.kernel.threads = threads;
    run.progress = [&](int position, int range) {
      EXPECT_EQ(range, 200);
      const auto curve = std::count(positions.begin(), positions.end(), 199);
      stored_first = stored_first && doc.StoredPoints(static_cast<int>(curve)) >
                                         std::size_t(position);
      positions.push_back(position);
    };
    ComputeResponseSpectrum(doc, settings, doc.record_samples,
                            doc.record_time_step, log, run);
    EXPECT_TRUE(stored_first) << threads;
    EXPECT_EQ(std::count(positions.begin(), positions.end(), 199), 2);
    EXPECT_EQ(positions.back(), 199);
    for (std::size_t i = 1; i < positions.size(); ++i) {
      EXPECT_TRUE(positions[i - 1] == 199 || positions[i] > positions[i - 1]);
    }
    EXPECT_GE(positions.size(), threads == 1 ? 10u : 1u);
  }
}

}  // namespace
}  // namespace zel
