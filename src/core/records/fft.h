// CFFT: the iterative radix-2 discrete Fourier transform used by the
// frequency spectrum of a record.
#ifndef ZEL_CORE_RECORDS_FFT_H_
#define ZEL_CORE_RECORDS_FFT_H_

namespace zel {

class CFFT {
 public:
  CFFT() = default;
  virtual ~CFFT() = default;

  // Transforms n complex values (real_in, imag_in; imag_in may be null for
  // zeros) into real_out, imag_out; `inverse` non-zero gives the inverse
  // transform, divided by n. A count that is not a power of two of at least
  // 2, or a missing array, is a programming error: a line on standard error
  // and the process ends with exit code 1.
  void fft_double(unsigned n, int inverse, const double* real_in,
                  const double* imag_in, double* real_out,
                  double* imag_out) const;

  // 1 when n >= 2 and n has a single bit set, else 0.
  static int CheckPowerOfTwo(unsigned n);
  // log2 of the power of two n (its count of trailing zero bits).
  static unsigned NumberOfBitsNeeded(unsigned n);
  // `index` with its lowest `bits` bits in reverse order.
  static unsigned BitReverse(unsigned index, unsigned bits);
  // Frequency of bin `index` as a fraction of the sampling rate: 0 for
  // index >= n, index / n up to n / 2, -(n - index) / n above.
  static double BinFrequency(unsigned n, unsigned index);
};

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_FFT_H_
