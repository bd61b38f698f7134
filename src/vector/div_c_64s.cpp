// tavsDivC_64s_ISfs: on the extended-precision unit, whose 64 bits hold every element.
//
// Two things set it apart from the other divisions by a constant: the length is unsigned, and a zero constant is no
// error but a warning.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

// 2^-s; beyond 2^200 either way nothing new happens.
static long double scale_of(int s) {
  constexpr int most = 200, bias = 1023, fraction_bits = 52;
  const int     e    = s > most ? -most : s < -most ? most : -s;
  const int64_t bits = int64_t(bias + e) << fraction_bits;
  double        power;
  __builtin_memcpy(&power, &bits, sizeof power);
  return power;
}

// To nearest. What lies below the range becomes the least integer by itself.
static Tav64s saturated(long double v) {
  constexpr long double most = INT64_MAX;
  Tav64s                result;
  __asm__("fistpll %0" : "=m"(result) : "t"(v > most ? most : v) : "st");
  return result;
}

static TavStatus over_zero(Tav64s* srcDst, size_t len) {
  for (size_t i = 0; i < len; ++i) {
    const Tav64s v = peek(srcDst + i);
    poke(srcDst + i, v > 0 ? Tav64s(INT64_MAX) : v < 0 ? Tav64s(INT64_MIN) : Tav64s(0));
  }
  return tavStatusWarnDivideByZero;
}

static TavStatus divided_by_constant_64s(Tav64s val, Tav64s* srcDst, unsigned int len, int scaleFactor) {
  if (!srcDst) return tavStatusNullPointer;
  if (len == 0) return tavStatusBadSize;
  if (val == 0) return over_zero(srcDst, len);
  const extended_mode mode;
  const long double   divisor = val, scale = scale_of(scaleFactor);
  for (size_t i = 0; i < len; ++i)
    poke(srcDst + i, saturated(static_cast<long double>(peek(srcDst + i)) / divisor * scale));
  return tavStatusOk;
}

TAV_BIND(DivC_64s_ISfs, &divided_by_constant_64s)

}  // namespace tav::TAV_VARIANT
