// tavsCountInRange_32s: how many elements lie between two bounds.
//
// One comparison for both bounds: x - (lower + 1), as an unsigned number, is below upper - lower - 1 for these elements
// alone. Lanes have signed comparisons only, so both sides are moved by 2^31.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/reduce_shape.h"

namespace tav::TAV_VARIANT {

class elements_in_range {
 public:
  using partial = __m128i;  // counts; no lane can overflow, for all of them together count up to the length
  static constexpr reduce_shape shape{.step = lanes<Tav32s>};

  elements_in_range(Tav32s lower, Tav32s upper)
      : first_(Tav32u(lower) + 1 - top_bit), end_((upper > lower ? Tav32u(upper) - Tav32u(lower) - 1 : 0) - top_bit) {}

  static __m128i start() { return _mm_setzero_si128(); }
  void           many(__m128i& p, __m128i v) const {
              const __m128i from_first = _mm_sub_epi32(v, _mm_set1_epi32(int(first_)));
              p = in_register(_mm_sub_epi32(p, _mm_cmpgt_epi32(_mm_set1_epi32(int(end_)), from_first)));
  }
  static void join(__m128i& p, __m128i q) { p = _mm_add_epi32(p, q); }
  static int  total(__m128i p) {
     p = _mm_add_epi32(p, _mm_unpackhi_epi64(p, p));
     return _mm_cvtsi128_si32(_mm_add_epi32(p, _mm_srli_epi64(p, 32)));
  }
  void one(int& count, Tav32s v) const { count += Tav32s(Tav32u(v) - first_) < Tav32s(end_); }

 private:
  static constexpr Tav32u top_bit = 0x80000000;

  Tav32u first_, end_;
};

static TavStatus count_in_range(const Tav32s* src, int len, int* count, Tav32s lower, Tav32s upper) {
  if (const TavStatus bad = check_vector(len, src, count)) return bad;
  poke(count, reduce(elements_in_range(lower, upper), size_t(len), src));
  return tavStatusOk;
}

TAV_BIND(CountInRange_32s, &count_in_range)

}  // namespace tav::TAV_VARIANT
