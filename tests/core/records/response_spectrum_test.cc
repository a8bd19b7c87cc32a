#include "core/records/response_spectrum.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <string>
#include <vector>

#include "core/document/data_file.h"
#include "core/document/test_files.h"
#include "core/records/record_text.h"

namespace zel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using zel::testing::EvenRecord;
using zel::testing::OpenBytes;

constexpr double kTwoPiZel = 6.2831852;

SpectrumSettings Settings(int kind, std::vector<double> damping, double from,
                          double to, int count) {
  SpectrumSettings s;
  s.kind = kind;
  for (std::size_t k = 0; k < damping.size(); ++k) s.damping[k] = damping[k];
  s.damping_count = static_cast<int>(damping.size());
  s.period_from = from;
  s.period_to = to;
  s.period_count = count;
  s.record_name = "test";
  return s;
}

// Runs the spectrum of `record` (text) and returns the document.
CZELwDoc Spectrum(const SpectrumSettings& settings, const std::string& record,
                  std::vector<std::string>* messages = nullptr) {
  CZELwDoc doc;
  PrepareSpectrumDocument(doc, settings);
  MessageLog log;
  ComputeResponseSpectrum(doc, OpenBytes(record), log);
  if (messages != nullptr) *messages = log.texts();
  return doc;
}

double Ordinate(const CZELwDoc& doc, int curve, int j) {
  return doc.store().Value(static_cast<std::size_t>(j), 2 * curve + 1);
}
double Period(const CZELwDoc& doc, int curve, int j) {
  return doc.store().Value(static_cast<std::size_t>(j), 2 * curve);
}

std::vector<double> Constant(int n, double value) {
  return std::vector<double>(static_cast<std::size_t>(n), value);
}

// Undamped, the oscillator obeys d'' + w^2 d = -a(t) from rest; its exact
// responses to a step A and a ramp r t of ground acceleration are
// d = -A (1 - cos wt) / w^2 and d = -r (t - sin(wt) / w) / w^2.
TEST(ResponseSpectrumTest, UndampedStepAndRampMatchTheClosedForms) {
  const double a = 0.3;  // g
  const double dt = 0.005;
  // Step: period 1 s, a record of 2 s; the first half period lies on a
  // sample.
  const std::string step = EvenRecord(Constant(401, a), dt);
  const double omega = kTwoPiZel / 1.0;
  // Pseudo acceleration: w^2 * 2A / w^2 = 2A, in g.
  CZELwDoc psa = Spectrum(Settings(0, {0.0}, 1.0, 2.0, 1), step);
  EXPECT_NEAR(Ordinate(psa, 0, 0), 2 * a, 2 * a * 1e-9);
  // Absolute acceleration -w^2 d peaks at 2A as well.
  CZELwDoc abs = Spectrum(Settings(2, {0.0}, 1.0, 2.0, 1), step);
  EXPECT_NEAR(Ordinate(abs, 0, 0), 2 * a, 2 * a * 1e-9);
  // Relative velocity A sin(wt) / w peaks at A / w (mm/s).
  CZELwDoc sv = Spectrum(Settings(3, {0.0}, 1.0, 2.0, 1), step);
  EXPECT_NEAR(Ordinate(sv, 0, 0), a * 9815.0 / omega,
              a * 9815.0 / omega * 1e-9);
  // Relative displacement 2A / w^2 (mm).
  CZELwDoc sd = Spectrum(Settings(4, {0.0}, 1.0, 2.0, 1), step);
  const double sd_exact = 2 * a * 9815.0 / (omega * omega);
  EXPECT_NEAR(Ordinate(sd, 0, 0), sd_exact, sd_exact * 1e-9);

  // Ramp: a record whose first time is dt follows the ground from rest at
  // t = 0, so every step lies on the ramp; the displacement grows
  // monotonically and peaks at the last sample.
  const double rate = 0.2;  // g per second
  std::vector<double> ramp(1000);
  for (int i = 0; i < 1000; ++i) ramp[i] = rate * (i + 1) * dt;
  for (double period : {0.37, 1.3, 4.1}) {
    CZELwDoc doc = Spectrum(Settings(4, {0.0}, period, 2 * period, 1),
                            EvenRecord(ramp, dt, dt));
    const double w = kTwoPiZel / period;
    const double t = 1000 * dt;
    const double d_end = rate * 9815.0 * (t - std::sin(w * t) / w) / (w * w);
    EXPECT_NEAR(Ordinate(doc, 0, 0), d_end, d_end * 1e-9) << period;
  }
}

// The step loop written out independently, with complex exponentials for
// the free oscillation: e^{(-zeta w + i wd) dt} = C + i S.
double DirectPeakDisplacement(const std::vector<double>& accel, bool at_zero,
                              double period, double zeta, double dt) {
  const double w = kTwoPiZel / period;
  const double wd = w * std::sqrt(1 - zeta * zeta);
  const std::complex<double> z =
      std::exp(std::complex<double>(-zeta * w * dt, wd * dt));
  const double c = z.real(), s = z.imag();
  const double sigma = wd * zeta;  // the rotation rate as ZEL defines it
  const double r = zeta / std::sqrt(1 - zeta * zeta);
  const double s1 = wd * c - sigma * s, c1 = -wd * s - sigma * c;
  const double k1 = 2 * zeta / (w * dt);
  // Coefficients of the start and end forcing (divided by w^2 below).
  const double start_s = -r * (1 + k1) + 1 / (dt * wd);
  const double end_s = r * k1 - 1 / (dt * wd);
  const double a11 = c + r * s, a12 = s / wd;
  const double a21 = c1 + r * s1, a22 = s1 / wd;
  const double b1 = (k1 + start_s * s - (1 + k1) * c) / (w * w);
  const double b2 = (1 - k1 + end_s * s + k1 * c) / (w * w);
  const double e1 = (-1 / dt + start_s * s1 - (1 + k1) * c1) / (w * w);
  const double e2 = (1 / dt + end_s * s1 + k1 * c1) / (w * w);
  double d = 0, v = 0, peak = 0;
  const std::size_t n = accel.size();
  double p = at_zero ? -accel[0] : 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t next = i + (at_zero ? 1 : 0);
    const double q = next < n ? -accel[next] : 0.0;
    const double dn = a11 * d + a12 * v + b1 * p + b2 * q;
    v = a21 * d + a22 * v + e1 * p + e2 * q;
    d = dn;
    p = q;
    peak = std::max(peak, std::fabs(d));
  }
  return peak;
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

TEST(ResponseSpectrumTest, DampedCurvesFollowTheRecurrenceOfEveryKind) {
  const std::vector<double> accel = Quake(1500);
  const std::vector<double> damping = {0.0, 0.02, 0.05, 0.1, 0.2, 0.5};
  const CZELwDoc doc =
      Spectrum(Settings(4, damping, 0.05, 4.05, 40), EvenRecord(accel, 0.01));
  ASSERT_EQ(doc.curve_count, 6);
  for (int k = 0; k < 6; ++k) {
    EXPECT_EQ(doc.point_count[k], 39);  // stored without the last mark
    for (int j = 0; j < 40; ++j) {
      const double period = 0.05 + j * 0.1;
      const double expected =
          DirectPeakDisplacement(accel, true, period, damping[k], 0.01) *
          9815.0;
      EXPECT_NEAR(Ordinate(doc, k, j), expected, 1e-10 * expected)
          << "zeta " << damping[k] << " T " << period;
    }
  }
  EXPECT_EQ(doc.title, "Earthquake Response Spectrum");
  EXPECT_EQ(doc.window_title, "Earthquake Response Spectrum");
  EXPECT_EQ(doc.subtitle, "test");
  EXPECT_EQ(doc.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(doc.chart.legend.title, "Damping :");
  EXPECT_THAT(doc.chart.legend.entries, ElementsAre(" 0.00", " 0.02", " 0.05",
                                                    " 0.10", " 0.20", " 0.50"));
  EXPECT_EQ(doc.axis_display, 1);

  // Kinds from the same displacement peaks.
  const std::string text = EvenRecord(accel, 0.01);
  const CZELwDoc psa = Spectrum(Settings(0, damping, 0.05, 4.05, 40), text);
  const CZELwDoc psv = Spectrum(Settings(1, damping, 0.05, 4.05, 40), text);
  const CZELwDoc dva = Spectrum(Settings(5, damping, 0.05, 4.05, 40), text);
  for (int k = 0; k < 6; ++k) {
    for (int j = 0; j < 40; ++j) {
      const double w = kTwoPiZel / Period(doc, k, j);
      EXPECT_DOUBLE_EQ(Ordinate(psa, k, j), Ordinate(doc, k, j) * w * w / 9815);
      EXPECT_DOUBLE_EQ(Ordinate(psv, k, j), Ordinate(doc, k, j) * w);
      EXPECT_EQ(Ordinate(dva, k, j), Ordinate(psv, k, j));
    }
  }
  EXPECT_EQ(dva.tripartite, 1);
  EXPECT_EQ(dva.log_x + dva.log_y, 2);
  // Titles, type and unit words of every kind.
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
  for (int kind = 0; kind < 6; ++kind) {
    const CZELwDoc d = Spectrum(Settings(kind, {0.05}, 0.1, 1, 2), text);
    EXPECT_EQ(d.AxisTitle(1), kinds[kind].title);
    EXPECT_EQ(d.type, kinds[kind].type);
    EXPECT_EQ(d.unit, kinds[kind].unit);
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
  CZELwDoc doc = Spectrum(Settings(0, {0.0, 0.05}, 0.0, 3.0, 300), text);
  EXPECT_EQ(Period(doc, 0, 0), 1.000000013351432e-10);
  EXPECT_EQ(Period(doc, 1, 0), 1.000000013351432e-10);
  EXPECT_EQ(Period(doc, 0, 1), 0.01);
  EXPECT_EQ(Period(doc, 0, 123), 1.23);
  EXPECT_EQ(Period(doc, 0, 299), 2.99);
  EXPECT_EQ(doc.StoredPoints(0), 300u);
  // Zero-period pseudo acceleration = peak ground acceleration, in g.
  EXPECT_NEAR(Ordinate(doc, 0, 0), pga, pga * 1e-6);
  EXPECT_NEAR(Ordinate(doc, 1, 0), pga, pga * 1e-6);

  // Results in g: acceleration kinds are not divided by g.
  CZELwDoc in_g;
  PrepareSpectrumDocument(in_g, Settings(2, {0.05}, 0.0, 1.0, 2));
  in_g.results_in_g = 1;
  MessageLog log;
  ASSERT_EQ(ComputeResponseSpectrum(in_g, OpenBytes(text), log), 1);
  EXPECT_NEAR(Ordinate(in_g, 0, 0), pga, pga * 1e-6);

  // N = 1: a single point at "from".
  CZELwDoc one = Spectrum(Settings(0, {0.05}, 0.5, 3.0, 1), text);
  EXPECT_EQ(one.StoredPoints(0), 1u);
  EXPECT_EQ(Period(one, 0, 0), 0.5);
  EXPECT_EQ(one.point_count[0], 0);

  // A log axis raises "from" to 0.01 in single precision.
  SpectrumSettings log_axis = Settings(0, {0.05}, 0.0, 3.0, 10);
  log_axis.log_axis = true;
  CZELwDoc logged = Spectrum(log_axis, text);
  EXPECT_EQ(Period(logged, 0, 0), 0.009999999776482582);
  EXPECT_EQ(logged.log_x, 1);
  EXPECT_EQ(logged.log_y, 0);

  // A record whose first time is not 0 starts from rest one step earlier:
  // the same record without its sample at 0.0 (whose value is 0) and shifted
  // by one step gives the same spectrum.
  const std::vector<double>& with_zero = accel;
  std::vector<double> without(with_zero.begin() + 1, with_zero.end());
  const CZELwDoc a =
      Spectrum(Settings(3, {0.02}, 0.1, 2.1, 20), EvenRecord(with_zero, 0.01));
  const CZELwDoc b = Spectrum(Settings(3, {0.02}, 0.1, 2.1, 20),
                              EvenRecord(without, 0.01, 0.01));
  for (int j = 0; j < 20; ++j) {
    EXPECT_NEAR(Ordinate(a, 0, j), Ordinate(b, 0, j), 1e-9 * Ordinate(a, 0, j));
  }
  // With a non-zero first sample the two readings differ.
  const std::vector<double> abrupt = Quake(800);
  const CZELwDoc c =
      Spectrum(Settings(3, {0.02}, 0.1, 2.1, 20), EvenRecord(abrupt, 0.01));
  const CZELwDoc d = Spectrum(Settings(3, {0.02}, 0.1, 2.1, 20),
                              EvenRecord(abrupt, 0.01, 0.01));
  EXPECT_NE(Ordinate(c, 0, 5), Ordinate(d, 0, 5));
}

TEST(ResponseSpectrumTest, GrowthAtLongPeriodsAndBadSettingsNeverBreak) {
  // The rotation rate from the damped frequency makes a heavily damped,
  // long-period oscillator grow without bound: zeta 0.2 beyond about 8 s at
  // dt = 0.005. That is ZEL's established behaviour.
  std::vector<double> accel = Quake(8000);
  const std::string text = EvenRecord(accel, 0.005);
  const CZELwDoc doc = Spectrum(Settings(4, {0.05, 0.2}, 2.0, 20.0, 9), text);
  EXPECT_LT(Ordinate(doc, 1, 0), Ordinate(doc, 0, 0));  // 2 s: damped less
  EXPECT_LT(Ordinate(doc, 1, 1), Ordinate(doc, 0, 1));  // 4 s
  EXPECT_GT(Ordinate(doc, 1, 4), 1e3 * Ordinate(doc, 0, 4));  // 10 s: grown
  EXPECT_GT(Ordinate(doc, 1, 8), 1e6 * Ordinate(doc, 0, 8));  // 18 s
  // Over a record of 50000 samples it reaches 1e40 mm.
  const CZELwDoc huge = Spectrum(Settings(4, {0.2}, 20.0, 40.0, 1),
                                 EvenRecord(Quake(50000), 0.005));
  EXPECT_GT(Ordinate(huge, 0, 0), 1e30);

  // Huge, infinite and NaN ordinates write and read back.
  CZELwDoc odd = huge;
  odd.SetPoint(1, 0, 1.0, INFINITY, 0);
  odd.SetPoint(2, 0, 2.0, NAN, 0);
  odd.SetPoint(3, 0, 3.0, -INFINITY, 1);
  zel::testing::TempDir dir;
  MessageLog log;
  ASSERT_TRUE(WriteDataFile(odd, (dir / "odd.zel").string(), log));
  CZELwDoc back;
  EXPECT_EQ(ReadDataFile(back, (dir / "odd.zel").string(), log), 1);
  EXPECT_TRUE(std::isinf(back.store().Value(1, 1)));

  // Critical damping and a time step of 0 (time scale 0) make every
  // response NaN; a NaN never replaces the running peak, so the ordinates
  // stay 0.
  const CZELwDoc critical = Spectrum(Settings(0, {1.0}, 0.1, 1.0, 3), text);
  EXPECT_EQ(Ordinate(critical, 0, 1), 0.0);
  SpectrumSettings zero_time = Settings(0, {0.05}, 0.1, 1.0, 3);
  zero_time.time_scale = 0.0;
  EXPECT_EQ(Ordinate(Spectrum(zero_time, text), 0, 1), 0.0);
  // A record too short for a time step (three points) leaves it 0: the
  // same.
  const CZELwDoc short_record = Spectrum(Settings(0, {0.05}, 0.1, 1.0, 3),
                                         EvenRecord({0.1, 0.2, 0.3}, 0.01));
  EXPECT_EQ(short_record.StoredPoints(0), 3u);
  EXPECT_EQ(Ordinate(short_record, 0, 1), 0.0);

  // From = to: every period is "from".
  const CZELwDoc same = Spectrum(Settings(0, {0.05}, 1.0, 1.0, 4), text);
  EXPECT_EQ(Period(same, 0, 3), 1.0);
  EXPECT_EQ(Ordinate(same, 0, 3), Ordinate(same, 0, 0));

  // Settings the dialog never passes are refused with a message.
  std::vector<std::string> messages;
  Spectrum(Settings(0, {0.05}, 0.1, 1.0, 0), text, &messages);
  EXPECT_THAT(messages,
              ElementsAre("Error : The number of periods must be 1 to 5000!"));
  Spectrum(Settings(0, {0.05}, 0.1, 1.0, 5001), text, &messages);
  EXPECT_EQ(messages.size(), 1u);
  Spectrum(Settings(7, {0.05}, 0.1, 1.0, 3), text, &messages);
  EXPECT_THAT(messages, ElementsAre("Error : Unknown spectrum kind!"));
  Spectrum(Settings(0, {}, 0.1, 1.0, 3), text, &messages);
  EXPECT_THAT(
      messages,
      ElementsAre("Error : The number of damping ratios must be 1 to 6!"));
  // A read failure: the reader's message, then the spectrum's; no points.
  const CZELwDoc failed =
      Spectrum(Settings(0, {0.05}, 0.1, 1.0, 3), "garbage\n", &messages);
  EXPECT_THAT(messages, ElementsAre("Error : Wrong Format!",
                                    "an Error occurred while reading data!"));
  EXPECT_EQ(failed.StoredPoints(0), 0u);
}

TEST(ResponseSpectrumTest, ProgressRunsThroughThePeriodsOfEachCurve) {
  CZELwDoc doc;
  PrepareSpectrumDocument(doc, Settings(0, {0.02, 0.05}, 0.1, 1.0, 5));
  std::vector<int> positions;
  MessageLog log;
  ComputeResponseSpectrum(doc, OpenBytes(EvenRecord(Quake(300), 0.01)), log,
                          [&](int position, int range) {
                            EXPECT_EQ(range, 5);
                            positions.push_back(position);
                          });
  EXPECT_THAT(positions, ElementsAre(0, 1, 2, 3, 4, 0, 1, 2, 3, 4));
}

}  // namespace
}  // namespace zel
