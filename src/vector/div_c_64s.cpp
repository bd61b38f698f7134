// tavsDivC_64s_ISfs: quotients of 64-bit integers in extended precision.
//
// Two things set it apart from the other divisions by a constant: the length is unsigned, and a zero constant is no
// error but a warning.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/rounding.h"
#include "vector/extended.h"

namespace tav::TAV_VARIANT {

constexpr int beyond_all_factors = 200;  // at 2^200 and 2^-200 nothing but the sign counts any more

static TavStatus over_zero(Tav64s* srcDst, size_t len) {
  for (size_t i = 0; i < len; ++i) {
    const Tav64s v = peek(srcDst + i);
    poke(srcDst + i, v > 0 ? Tav64s(INT64_MAX) : v < 0 ? Tav64s(INT64_MIN) : Tav64s(0));
  }
  return tavStatusWarnDivideByZero;
}

static TavStatus divided_by_constant_64s(Tav64s val, Tav64s* srcDst, unsigned int len, int scaleFactor) {
  if (const TavStatus bad = check_unsigned_length(len, srcDst)) return bad;
  if (val == 0) return over_zero(srcDst, len);
  const extended_mode mode;
  constexpr int       most    = beyond_all_factors;
  const int           s       = scaleFactor > most ? most : scaleFactor < -most ? -most : scaleFactor;
  const extended      divisor = val, scale = extended_power_of_two(-s);
  for (size_t i = 0; i < len; ++i) poke(srcDst + i, saturated(extended(peek(srcDst + i)) / divisor * scale));
  return tavStatusOk;
}

TAV_BIND(DivC_64s_ISfs, &divided_by_constant_64s)

}  // namespace tav::TAV_VARIANT
