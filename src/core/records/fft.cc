#include "core/records/fft.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace zel {
namespace {

constexpr double kTwoPi = 6.283185307179586;

void CheckPointer(const void* p, const char* name) {
  if (p == nullptr) {
    std::fprintf(stderr, "Error in fft_double():  %s == NULL\n", name);
    std::exit(1);
  }
}

}  // namespace

int CFFT::CheckPowerOfTwo(unsigned n) {
  if (n < 2) return 0;
  return (n & (n - 1)) == 0 ? 1 : 0;
}

unsigned CFFT::NumberOfBitsNeeded(unsigned n) {
  if (n < 2) {
    std::fprintf(stderr,
                 ">>> Error in fftmisc.c: argument %d to NumberOfBitsNeeded "
                 "is too small.\n",
                 static_cast<int>(n));
    std::exit(1);
  }
  for (unsigned i = 0;; ++i) {
    if ((n & (1u << i)) != 0) return i;
  }
}

unsigned CFFT::BitReverse(unsigned index, unsigned bits) {
  unsigned reversed = 0;
  for (unsigned i = 0; i < bits; ++i) {
    reversed = (reversed << 1) | (index & 1u);
    index >>= 1;
  }
  return reversed;
}

double CFFT::BinFrequency(unsigned n, unsigned index) {
  if (index >= n) return 0.0;
  if (index <= n / 2) return static_cast<double>(index) / n;
  return -static_cast<double>(n - index) / n;
}

void CFFT::fft_double(unsigned n, int inverse, const double* real_in,
                      const double* imag_in, double* real_out,
                      double* imag_out) const {
  const double angle_numerator = inverse != 0 ? -kTwoPi : kTwoPi;
  if (CheckPowerOfTwo(n) == 0) {
    std::fprintf(stderr, "Error in fft():  NumSamples=%u is not power of two\n",
                 n);
    std::exit(1);
  }
  CheckPointer(real_in, "RealIn");
  CheckPointer(real_out, "RealOut");
  CheckPointer(imag_out, "ImagOut");

  const unsigned bits = NumberOfBitsNeeded(n);
  for (unsigned i = 0; i < n; ++i) {
    const unsigned j = BitReverse(i, bits);
    real_out[j] = real_in[i];
    imag_out[j] = imag_in == nullptr ? 0.0 : imag_in[i];
  }

  unsigned block_end = 1;
  for (unsigned block_size = 2; block_size <= n; block_size <<= 1) {
    const double delta = angle_numerator / block_size;
    const double sm2 = std::sin(-2 * delta);
    const double sm1 = std::sin(-delta);
    const double cm2 = std::cos(-2 * delta);
    const double cm1 = std::cos(-delta);
    const double w = 2 * cm1;
    for (unsigned i = 0; i < n; i += block_size) {
      // Twiddle factors by the three-term recurrence of cos and sin.
      double ar[3] = {0.0, cm1, cm2};
      double ai[3] = {0.0, sm1, sm2};
      for (unsigned j = i, k = 0; k < block_end; ++j, ++k) {
        ar[0] = w * ar[1] - ar[2];
        ar[2] = ar[1];
        ar[1] = ar[0];
        ai[0] = w * ai[1] - ai[2];
        ai[2] = ai[1];
        ai[1] = ai[0];
        const unsigned m = j + block_end;
        const double tr = ar[0] * real_out[m] - ai[0] * imag_out[m];
        const double ti = ar[0] * imag_out[m] + ai[0] * real_out[m];
        real_out[m] = real_out[j] - tr;
        imag_out[m] = imag_out[j] - ti;
        real_out[j] += tr;
        imag_out[j] += ti;
      }
    }
    block_end = block_size;
  }

  if (inverse != 0) {
    for (unsigned i = 0; i < n; ++i) {
      real_out[i] /= n;
      imag_out[i] /= n;
    }
  }
}

}  // namespace zel
