// tavsMulC_64s_ISfs, tavsMulC_64f64s_ISfs: products with integers of 64 bits. A product is rounded to extended
// precision first, and to an integer then.
#include "frame/bind.h"
#include "frame/rounding.h"
#include "vector/extended.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// Factors past these change nothing more: every product but zero is out of range by then, or rounds to zero. The
// scaled constant stays finite, so that an element of zero stays zero.
template <class T> constexpr int scale_limit         = 130;
template <> constexpr int        scale_limit<Tav64f> = 1300;

// The length is unsigned, here and in what the function ends in.
template <class T> TavStatus extended_mul_c(T val, Tav64s* srcDst, unsigned len, int scaleFactor) {
  if (const TavStatus bad = check_unsigned_length(len, srcDst)) return bad;
  if (val == 1 && scaleFactor == 0) return tavStatusOk;
  if (val == 0) return shared::zero_bytes(srcDst, size_t(len) * sizeof(Tav64s));
  constexpr int limit = scale_limit<T>;
  const int     s     = scaleFactor > limit ? limit : scaleFactor < -limit ? -limit : scaleFactor;

  const extended_mode scope;
  __asm__ volatile("" : "+m"(val));  // multiplied in the scope, not before it
  const extended multiplier = extended(val) * extended_power_of_two(-s);
  for (size_t i = 0; i < len; ++i) poke(srcDst + i, saturated(extended(peek(srcDst + i)) * multiplier));
  return tavStatusOk;
}

TAV_BIND(MulC_64s_ISfs, &extended_mul_c<Tav64s>)
TAV_BIND(MulC_64f64s_ISfs, &extended_mul_c<Tav64f>)

}  // namespace tav::TAV_VARIANT
