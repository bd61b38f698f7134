// tavsUpdateLinear_16s32s_I, tavsUpdatePower_16s32s_I: s = a s + (1 - a) v for each value v of the source, exactly over
// the integers, and saturated once at the end.
//
// That takes no wide numbers. No value exceeds 2^30. For a of at least 2 in magnitude, from |s| = 3 * 2^30 on
// |a s| - |(1 - a) v| is at least |s|: the magnitude never falls again, only the sign alternates if a is negative. So
// beyond 2^32 the result is known. For a of 1 or less in magnitude s stays below 2^31 + 2 * 2^31 * 2^30, which 64 bits
// hold.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

namespace {

constexpr Tav64s never_less = Tav64s(1) << 32;

TAV_INLINE Tav32s saturated_32s(Tav64s s) { return s > INT32_MAX ? INT32_MAX : s < INT32_MIN ? INT32_MIN : Tav32s(s); }

struct shifted_sample {
  static constexpr int highest_shift = 15;
  int                  shift;
  Tav32s               operator()(Tav16s x) const { return x >> shift; }
};

struct shifted_power {
  static constexpr int highest_shift = 31;
  int                  shift;
  Tav32s               operator()(Tav16s x) const { return x * x >> shift; }
};

constexpr size_t alike_at_once = lanes<Tav16s>;

TAV_INLINE bool alike(const Tav16s* src) {
  const __m128i equal = _mm_cmpeq_epi16(load<access::unaligned, alike_at_once>(src), repeated(peek(src)));
  return _mm_movemask_epi8(equal) == 0xFFFF;
}

template <class Value> Tav32s updated(const Tav16s* src, size_t len, const Value& value, Tav64s a, Tav64s s) {
  const Tav64s b     = 1 - a;
  const Tav64s limit = a < -1 || a > 1 ? never_less : INT64_MAX;
  // With a = 1 nothing is taken in, and with a = 0 nothing is kept.
  for (size_t i = a == 1 ? len : a == 0 ? len - 1 : 0; i < len; ++i) {
    const Tav64s v = value(peek(src + i));
    // Once s has the value of a source that does not change, as in silence, it keeps it.
    if (s == v && len - i >= alike_at_once && alike(src + i)) {
      i += alike_at_once - 1;
      continue;
    }
    s = a * s + b * v;
    if (s > limit || s < -limit) {
      const bool turned = a < 0 && (len - 1 - i) % 2 != 0;
      return (s < 0) != turned ? INT32_MIN : INT32_MAX;
    }
  }
  return saturated_32s(s);
}

// Nothing is ever rounded, so the rounding mode makes no difference.
template <class Value>
TavStatus update(const Tav16s* src, int len, Tav32s* srcDst, int shift, Tav16s alpha, int /*roundMode*/) {
  if (const TavStatus bad = check_vector(len, src, srcDst)) return bad;
  const Value value{shift < 0 ? 0 : shift > Value::highest_shift ? Value::highest_shift : shift};
  poke(srcDst, updated(src, size_t(len), value, alpha, peek(srcDst)));
  return tavStatusOk;
}

}  // namespace

TAV_BIND(UpdateLinear_16s32s_I, &update<shifted_sample>)
TAV_BIND(UpdatePower_16s32s_I, &update<shifted_power>)

}  // namespace tav::TAV_VARIANT
