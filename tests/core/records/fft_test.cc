#include "core/records/fft.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>
#include <vector>

namespace zel {
namespace {

// The forward transform runs its twiddle factors through e^{+i 2 pi k t / n}
// (the recurrence starts from the angles -2d and -d and steps upwards), the
// inverse through e^{-i...}; magnitudes are those of either convention.
TEST(FftTest, TransformsLikeADirectDftForwardAndBack) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(-1.0, 1.0);
  for (unsigned n : {2u, 4u, 8u, 64u, 512u}) {
    std::vector<double> re(n), im(n), out_re(n), out_im(n);
    for (unsigned i = 0; i < n; ++i) re[i] = unit(random), im[i] = unit(random);
    CFFT fft;
    fft.fft_double(n, 0, re.data(), im.data(), out_re.data(), out_im.data());
    for (unsigned k = 0; k < n; ++k) {
      std::complex<double> sum = 0;
      for (unsigned t = 0; t < n; ++t) {
        sum += std::complex<double>(re[t], im[t]) *
               std::polar(1.0, 2 * M_PI * k * t / n);
      }
      EXPECT_NEAR(out_re[k], sum.real(), 1e-10 * n) << n << " " << k;
      EXPECT_NEAR(out_im[k], sum.imag(), 1e-10 * n) << n << " " << k;
    }
    // The inverse transform, divided by n, gives the input back.
    std::vector<double> back_re(n), back_im(n);
    fft.fft_double(n, 1, out_re.data(), out_im.data(), back_re.data(),
                   back_im.data());
    for (unsigned i = 0; i < n; ++i) {
      EXPECT_NEAR(back_re[i], re[i], 1e-12 * n);
      EXPECT_NEAR(back_im[i], im[i], 1e-12 * n);
    }
  }
}

// Bit reversal and the bit count are proven by the transform above.
TEST(FftTest, HelpersAndFatalMisuse) {
  EXPECT_EQ(CFFT::CheckPowerOfTwo(1) + CFFT::CheckPowerOfTwo(0x80000000u), 1);
  EXPECT_EQ(CFFT::BinFrequency(8, 4), 0.5);
  EXPECT_EQ(CFFT::BinFrequency(8, 6), -0.25);
  EXPECT_EQ(CFFT::BinFrequency(8, 9), 0.0);

  std::vector<double> a(8), b(8), c(8);
  EXPECT_EXIT(CFFT().fft_double(6, 0, a.data(), nullptr, b.data(), c.data()),
              ::testing::ExitedWithCode(1),
              "Error in fft\\(\\):  NumSamples=6 is not power of two");
  EXPECT_EXIT(CFFT().fft_double(8, 0, nullptr, nullptr, b.data(), c.data()),
              ::testing::ExitedWithCode(1),
              "Error in fft_double\\(\\):  RealIn == NULL");
  EXPECT_EXIT(CFFT::NumberOfBitsNeeded(1), ::testing::ExitedWithCode(1),
              ">>> Error in fftmisc.c: argument 1 to NumberOfBitsNeeded is "
              "too small.");
}

}  // namespace
}  // namespace zel
