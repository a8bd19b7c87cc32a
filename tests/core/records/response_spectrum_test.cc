#include "core/records/response_spectrum.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <string>
#include <vector>

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

// Undamped, the oscillator obeys d'' + w^2 d = -a(t) from rest; its exact
// responses to a step A and a ramp r t of ground acceleration are
// d = -A (1 - cos wt) / w^2 and d = -r (t - sin(wt) / w) / w^2.
TEST(ResponseSpectrumTest, UndampedStepAndRampMatchTheClosedForms) {
  // Step: period 1 s, a record of 2 s; the first half period lies on a
  // sample. Peaks: |d| = 2A / w^2, |v| = A / w, |d'' + a| = 2A.
  const double a = 0.3, g = 9815.0, w = kTwoPiZel;
  const std::string step = EvenRecord(std::vector<double>(401, a), 0.005);
  const struct {
    double exact;
    const char* title;
    const char* type;
    const char* unit;
  } kinds[] = {
      {2 * a, "Pseudo Acceleration (g)", "ACCEL", "GRAV"},
      {2 * a * g / w, "Pseudo Velocity (mm/sec)", "VELO", "MM"},
      {2 * a, "Absolute Acceleration (g)", "ACCEL", "GRAV"},
      {a * g / w, "Relative Velocity (mm/sec)", "VELO", "MM"},
      {2 * a * g / (w * w), "Relative Displacement (mm)", "DISP", "MM"},
      {2 * a * g / w, "Pseudo Velocity (mm/sec)", "VELO", "MM"}};
  for (int kind = 0; kind < 6; ++kind) {
    const CZELwDoc doc = SpectrumOf(step, Settings(kind, {0.0}, 1, 2, 1));
    const double exact = kinds[kind].exact;
    EXPECT_NEAR(Ordinate(doc, 0, 0), exact, exact * 1e-9) << kind;
    EXPECT_EQ(doc.AxisTitle(1), kinds[kind].title);
    EXPECT_EQ(doc.type, kinds[kind].type);
    EXPECT_EQ(doc.unit, kinds[kind].unit);
    EXPECT_EQ(doc.tripartite, kind == 5 ? 1 : 0);
    EXPECT_EQ(doc.log_x + doc.log_y, kind == 5 ? 2 : 0);
  }

  // Ramp: a record whose first time is dt follows the ground from rest at
  // t = 0, so every step lies on the ramp; the displacement grows
  // monotonically and peaks at the last sample.
  const double rate = 0.2, dt = 0.005;  // g per second
  std::vector<double> ramp(1000);
  for (int i = 0; i < 1000; ++i) ramp[i] = rate * (i + 1) * dt;
  for (double period : {0.37, 1.3, 4.1}) {
    const CZELwDoc doc = SpectrumOf(EvenRecord(ramp, dt, dt),
                                    Settings(4, {0.0}, period, 2 * period, 1));
    const double w = kTwoPiZel / period, t = 1000 * dt;
    const double d_end = rate * 9815.0 * (t - std::sin(w * t) / w) / (w * w);
    EXPECT_NEAR(Ordinate(doc, 0, 0), d_end, d_end * 1e-9) << period;
  }
}

// The step loop of a record starting at 0.0, written out independently with
// complex exponentials for the free oscillation: e^{(-zeta w + i wd) dt} =
// C + i S, and the rotation rate wd zeta in the derivatives.
double DirectPeakDisplacement(const std::vector<double>& accel, double period,
                              double zeta, double dt) {
  const double w = kTwoPiZel / period, root = std::sqrt(1 - zeta * zeta);
  const double wd = w * root, sigma = wd * zeta, r = zeta / root;
  const std::complex<double> z =
      std::exp(std::complex<double>(-zeta * w * dt, wd * dt));
  const double c = z.real(), s = z.imag();
  const double s1 = wd * c - sigma * s, c1 = -wd * s - sigma * c;
  const double k1 = 2 * zeta / (w * dt);
  const double start_s = -r * (1 + k1) + 1 / (dt * wd);
  const double end_s = r * k1 - 1 / (dt * wd);
  const double b1 = (k1 + start_s * s - (1 + k1) * c) / (w * w);
  const double b2 = (1 - k1 + end_s * s + k1 * c) / (w * w);
  const double e1 = (-1 / dt + start_s * s1 - (1 + k1) * c1) / (w * w);
  const double e2 = (1 / dt + end_s * s1 + k1 * c1) / (w * w);
  double d = 0, v = 0, peak = 0, p = -accel[0];
  for (std::size_t i = 0; i < accel.size(); ++i) {
    const double q = i + 1 < accel.size() ? -accel[i + 1] : 0.0;
    const double next = (c + r * s) * d + s / wd * v + b1 * p + b2 * q;
    v = (c1 + r * s1) * d + s1 / wd * v + e1 * p + e2 * q;
    d = next;
    p = q;
    peak = std::max(peak, std::fabs(d));
  }
  return peak;
}

TEST(ResponseSpectrumTest, DampedCurvesFollowTheStepLoopForEveryKind) {
  const std::vector<double> accel = Quake(1500);
  const std::string text = EvenRecord(accel, 0.01);
  const std::vector<double> damping = {0.0, 0.02, 0.05, 0.1, 0.2, 0.5};
  const CZELwDoc sd = SpectrumOf(text, Settings(4, damping, 0.05, 4.05, 40));
  const CZELwDoc psa = SpectrumOf(text, Settings(0, damping, 0.05, 4.05, 40));
  const CZELwDoc psv = SpectrumOf(text, Settings(1, damping, 0.05, 4.05, 40));
  const CZELwDoc dva = SpectrumOf(text, Settings(5, damping, 0.05, 4.05, 40));
  for (int k = 0; k < 6; ++k) {
    EXPECT_EQ(sd.point_count[k], 39);  // stored without the last mark
    for (int j = 0; j < 40; ++j) {
      const double period = 0.05 + j * 0.1;
      const double expected =
          DirectPeakDisplacement(accel, period, damping[k], 0.01) * 9815.0;
      EXPECT_NEAR(Ordinate(sd, k, j), expected, 1e-8 * expected)
          << "zeta " << damping[k] << " T " << period;
      // Pseudo values with w, not the damped frequency; kind 5 = kind 1.
      const double w = kTwoPiZel / Period(sd, k, j);
      EXPECT_DOUBLE_EQ(Ordinate(psa, k, j), Ordinate(sd, k, j) * w * w / 9815);
      EXPECT_DOUBLE_EQ(Ordinate(psv, k, j), Ordinate(sd, k, j) * w);
      EXPECT_EQ(Ordinate(dva, k, j), Ordinate(psv, k, j));
    }
  }
  EXPECT_EQ(sd.title, "Earthquake Response Spectrum");
  EXPECT_EQ(sd.window_title, "Earthquake Response Spectrum");
  EXPECT_EQ(sd.subtitle, "test");
  EXPECT_EQ(sd.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(sd.chart.legend.title, "Damping :");
  EXPECT_THAT(sd.chart.legend.entries, ElementsAre(" 0.00", " 0.02", " 0.05",
                                                   " 0.10", " 0.20", " 0.50"));
  EXPECT_EQ(sd.axis_display, 1);
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
  // Over a record of the full 50000 samples it passes 1e30 mm.
  const CZELwDoc huge = SpectrumOf(EvenRecord(Quake(50000), 0.005),
                                   Settings(4, {0.2}, 20.0, 40.0, 1));
  EXPECT_GT(Ordinate(huge, 0, 0), 1e30);

  // Critical damping and a time step of 0 (time scale 0) make every
  // response NaN; a NaN never replaces the running peak, so the ordinates
  // stay 0. A record too short for a time step (three points) leaves it 0:
  // the same. From = to: every period is "from".
  SpectrumSettings zero_time = Settings(0, {0.05}, 0.1, 1.0, 3);
  zero_time.time_scale = 0.0;
  const std::string short_record = EvenRecord({0.1, 0.2, 0.3}, 0.01);
  for (const CZELwDoc& zero :
       {SpectrumOf(text, Settings(0, {1.0}, 0.1, 1, 3)),
        SpectrumOf(text, zero_time),
        SpectrumOf(short_record, Settings(0, {0.05}, 0.1, 1.0, 3))}) {
    EXPECT_EQ(zero.StoredPoints(0), 3u);
    EXPECT_EQ(Ordinate(zero, 0, 1), 0.0);
  }
  const CZELwDoc same = SpectrumOf(text, Settings(0, {0.05}, 1.0, 1.0, 4));
  EXPECT_EQ(Period(same, 0, 3), 1.0);
  EXPECT_EQ(Ordinate(same, 0, 3), Ordinate(same, 0, 0));

  // Settings the dialog never passes are refused with a message; a read
  // failure gives the reader's message, then the spectrum's. No points.
  const struct {
    std::string record;
    SpectrumSettings settings;
    const char* message;
  } refusals[] = {
      {text, Settings(0, {0.05}, 0.1, 1.0, 0),
       "Error : The number of periods must be 1 to 5000!"},
      {text, Settings(0, {0.05}, 0.1, 1.0, 5001),
       "Error : The number of periods must be 1 to 5000!"},
      {text, Settings(7, {0.05}, 0.1, 1.0, 3),
       "Error : Unknown spectrum kind!"},
      {text, Settings(0, {}, 0.1, 1.0, 3),
       "Error : The number of damping ratios must be 1 to 6!"},
      {"garbage\n", Settings(0, {0.05}, 0.1, 1.0, 3), "Error : Wrong Format!"},
  };
  for (const auto& r : refusals) {
    std::vector<std::string> messages;
    EXPECT_EQ(SpectrumOf(r.record, r.settings, &messages).StoredPoints(0), 0u);
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages[0], r.message);
  }
}

TEST(ResponseSpectrumTest, ProgressRisesThroughEachCurveOnceItsPointsAreIn) {
  // On one thread the calling thread reports after every block; on two it
  // only reports while the workers integrate.
  for (int threads : {1, 2}) {
    SCOPED_TRACE(threads);
    std::vector<int> positions;
    bool stored_first = true;
    CZELwDoc* target = nullptr;
    SpectrumRun run;
    run.kernel.threads = threads;
    run.progress = [&](int position, int range) {
      EXPECT_EQ(range, 200);
      const int curve = static_cast<int>(
          std::count(positions.begin(), positions.end(), range - 1));
      stored_first =
          stored_first && target->StoredPoints(curve) > std::size_t(position);
      positions.push_back(position);
    };
    CZELwDoc doc;
    target = &doc;
    const SpectrumSettings settings = Settings(4, {0.05, 0.2}, 0.1, 2.1, 200);
    PrepareSpectrumDocument(doc, settings);
    MessageLog log;
    ASSERT_EQ(
        ReadRecordFile(
            doc, zel::testing::OpenBytes(EvenRecord(Quake(20000), 0.005)), log),
        1);
    ASSERT_EQ(ComputeResponseSpectrum(doc, settings, doc.record_samples,
                                      doc.record_time_step, log, run),
              1);
    EXPECT_TRUE(stored_first);
    EXPECT_EQ(std::count(positions.begin(), positions.end(), 199), 2);
    EXPECT_EQ(positions.back(), 199);
    for (std::size_t i = 1; i < positions.size(); ++i) {
      if (positions[i - 1] != 199) {
        EXPECT_GT(positions[i], positions[i - 1]);
      }
    }
    EXPECT_GE(positions.size(), threads == 1 ? 10u : 1u);
  }
}

}  // namespace
}  // namespace zel
