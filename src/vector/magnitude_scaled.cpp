// tavsMagnitude_*_Sfs: the root of exact squares, times 2^-s, rounded once.
#include "vector/rounded_roots.h"
#include "vector/squares.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {
namespace {

template <class Root> struct magnitudes_16s {
  static constexpr kernel_shape shape{.round_bytes = 16};

  Root root;

  Tav16s  one(Tav16sc v) const { return Tav16s(_mm_cvtsi128_si32(many({{in_a_lane(v), _mm_setzero_si128()}}))); }
  Tav16s  one(Tav16s re, Tav16s im) const { return one({re, im}); }
  __m128i many(several<__m128i, 2> v) const {
    return _mm_packs_epi32(root.of(squares_of_words(v.r[0])), root.of(squares_of_words(v.r[1])));
  }
  __m128i many(__m128i re, __m128i im) const { return many(in_pairs(re, im)); }
};

struct scaled_magnitude_16s : types<Tav16s, Tav16s, Tav16s> {
  template <class... S> static TavStatus run(int s, Tav16s* dst, size_t len, S... src) {
    return with_root<roots_of_32_bits, scale_range{16, -15}>(s, dst, len, [&]<class Root>(const Root& root) {
      return elementwise(magnitudes_16s<Root>{root}, dst, len, src...);
    });
  }
};

template <class Root> struct magnitudes_32s {
  static constexpr kernel_shape shape = wide_shape;

  Root root;

  Tav32s  one(Tav32sc v) const { return _mm_cvtsi128_si32(many({{in_a_lane(v), _mm_setzero_si128()}})); }
  __m128i many(several<__m128i, 2> v) const {
    const __m128  low = roots(v.r[0]), high = roots(v.r[1]);
    const __m128i r = _mm_castps_si128(_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
    return _mm_sub_epi32(r, _mm_srli_epi32(r, 31));  // 2^31 becomes one less
  }

 private:
  __m128 roots(__m128i pairs) const { return _mm_castsi128_ps(root.of(squares_of_long_words(pairs))); }
};

struct scaled_magnitude_32s : types<Tav32s, Tav32s, Tav32s> {
  static TavStatus run(int s, Tav32s* dst, size_t len, const Tav32sc* src) {
    return with_root<roots_of_64_bits, scale_range{32, -31}>(s, dst, len, [&]<class Root>(const Root& root) {
      return elementwise(magnitudes_32s<Root>{root}, dst, len, src);
    });
  }
};

}  // namespace

TAV_BIND(Magnitude_16s_Sfs, &two_sources_scaled<scaled_magnitude_16s>)
TAV_BIND(Magnitude_16sc_Sfs, (&pairs_scaled<scaled_magnitude_16s, Tav16sc>))
TAV_BIND(Magnitude_32sc_Sfs, (&pairs_scaled<scaled_magnitude_32s, Tav32sc>))

}  // namespace tav::TAV_VARIANT
