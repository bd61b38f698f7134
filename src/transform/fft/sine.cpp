// The quarter wave in extended precision: 64 bits of mantissa leave the rounding to single and double the only error
// that counts. The values come from our own series, not from the C library, so that both targets have the same.
#include "transform/fft/sine.h"

#include "frame/rounding.h"

namespace tav {
namespace {

// Taylor series, enough terms for a quarter of pi: the first one left out is below 2^-70.
long double sine_of(long double x) {
  constexpr long double one_over[] = {1.0L / (2 * 3),   1.0L / (4 * 5),   1.0L / (6 * 7),
                                      1.0L / (8 * 9),   1.0L / (10 * 11), 1.0L / (12 * 13),
                                      1.0L / (14 * 15), 1.0L / (16 * 17), 1.0L / (18 * 19)};
  const long double     square     = x * x;
  long double           sum        = 1;
  for (int k = 9; k-- > 0;) sum = 1 - square * one_over[k] * sum;
  return x * sum;
}

long double cosine_of(long double x) {
  constexpr long double one_over[] = {1.0L / (1 * 2),   1.0L / (3 * 4),   1.0L / (5 * 6),   1.0L / (7 * 8),
                                      1.0L / (9 * 10),  1.0L / (11 * 12), 1.0L / (13 * 14), 1.0L / (15 * 16),
                                      1.0L / (17 * 18), 1.0L / (19 * 20)};
  const long double     square     = x * x;
  long double           sum        = 1;
  for (int k = 10; k-- > 0;) sum = 1 - square * one_over[k] * sum;
  return sum;
}

// Beyond an eighth of a turn the cosine of the rest is the sine: no angle is above a quarter of pi.
template <class T> void fill(T* table, int order) {
  const extended_mode scope;
  const size_t        quarter = size_t(1) << (order - 2);
  const long double   step    = 6.28318530717958647692528676655900577L / (4 * (long double)quarter);
  for (size_t i = 0; i <= quarter / 2; ++i) table[i] = T(sine_of((long double)i * step));
  for (size_t i = quarter / 2 + 1; i <= quarter; ++i) table[i] = T(cosine_of((long double)(quarter - i) * step));
}

}  // namespace

void fill_quarter_wave(Tav32f* table, int order) { fill(table, order); }
void fill_quarter_wave(Tav64f* table, int order) { fill(table, order); }

}  // namespace tav
