// tavsNorm_*, tavsNormDiff_* of 16-bit elements: exact integers, whatever the length, then scaled or made a float.
//
// A difference of two words has 17 bits. Its magnitude has 16 without a sign, so less 2^15 it is a word again, with
// which all goes as with an element: what is then missing is 2^15 for each element, or, in (c + 2^15)^2, 2^16 c + 2^30.
#include "stats/forms.h"
#include "stats/lane_sums.h"
#include "stats/norm_results.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {
namespace {

constexpr int offset = 0x8000;

// The elements of one array, or the magnitudes of differences less the offset.
TAV_INLINE __m128i centred(__m128i v) { return v; }
TAV_INLINE __m128i centred(__m128i a, __m128i b) {
  const __m128i magnitude = _mm_sub_epi16(_mm_max_epi16(a, b), _mm_min_epi16(a, b));
  return _mm_xor_si128(magnitude, _mm_set1_epi16(-offset));
}
TAV_INLINE int centred(Tav16s v) { return v; }
TAV_INLINE int centred(Tav16s a, Tav16s b) { return (a < b ? b - a : a - b) - offset; }

template <class Pick> TAV_INLINE int of_all_lanes(const Pick& pick, __m128i v) {
  v = pick(v, _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2)));
  v = pick(v, parts_exchanged(v));
  return Tav16s(_mm_cvtsi128_si32(pick(v, _mm_srli_epi32(v, 16))));
}

// The largest magnitude. Of elements it is that of the highest or the lowest one, of differences that of the highest.
template <int Arrays> struct largest_word {
  struct partial {
    __m128i high, low;
  };
  static constexpr reduce_shape shape{.step = 8, .partials = 2, .tail_again = true};

  partial start() const { return {_mm_set1_epi16(-offset), _mm_set1_epi16(0)}; }

  template <class... R> TAV_INLINE void many(partial& p, R... v) const { join(p, {centred(v...), centred(v...)}); }

  TAV_INLINE void join(partial& p, const partial& q) const {
    p.high = _mm_max_epi16(p.high, q.high);
    if constexpr (Arrays == 1) p.low = _mm_min_epi16(p.low, q.low);
  }

  TAV_INLINE int64_t total(const partial& p) const {
    const int high = of_all_lanes([](__m128i a, __m128i b) { return _mm_max_epi16(a, b); }, p.high);
    if constexpr (Arrays == 2) return high + offset;
    const int low = of_all_lanes([](__m128i a, __m128i b) { return _mm_min_epi16(a, b); }, p.low);
    return high > -low ? high : -low;
  }
  template <class... E> TAV_INLINE void one(int64_t& total, E... e) const {
    const int c = centred(e...), magnitude = Arrays == 2 ? c + offset : c < 0 ? -c : c;
    if (magnitude > total) total = magnitude;
  }
};

// Sums of magnitudes: of elements with their signs taken off by a product, of differences less the offsets. Four
// partial results with two arrays would not fit eight registers.
template <int Arrays> struct sum_of_words {
  using partial = __m128i;
  static constexpr reduce_shape shape{.step = 8, .partials = Arrays == 1 ? 4 : 2};

  partial start() const { return _mm_setzero_si128(); }

  template <class... R> TAV_INLINE void many(partial& p, R... v) const {
    const __m128i ones = _mm_set1_epi16(1), c = centred(v...);
    p = _mm_add_epi32(p, _mm_madd_epi16(c, Arrays == 1 ? _mm_sign_epi16(ones, c) : ones));
  }
  TAV_INLINE void join(partial& p, partial q) const { p = _mm_add_epi32(p, q); }

  TAV_INLINE int64_t                    total(partial p) const { return sum_of_lanes_32(p); }
  template <class... E> TAV_INLINE void one(int64_t& total, E... e) const {
    const int c = centred(e...);
    total += Arrays == 1 && c < 0 ? -c : c;
  }
};

// Sums of squares, of differences less 2^30 and 2^16 times the word each.
template <int Arrays> struct sum_of_word_squares {
  struct partial {
    __m128i squares, words;
  };
  static constexpr reduce_shape shape{.step = 8};

  partial start() const { return {_mm_setzero_si128(), _mm_setzero_si128()}; }

  template <class... R> TAV_INLINE void many(partial& p, R... v) const {
    const __m128i c = centred(v...);
    join(p, {neighbours_unsigned(squares_of_words(c)), Arrays == 2 ? _mm_madd_epi16(c, _mm_set1_epi16(1)) : c});
  }

  TAV_INLINE void join(partial& p, const partial& q) const {
    p.squares = _mm_add_epi64(p.squares, q.squares);
    if constexpr (Arrays == 2) p.words = _mm_add_epi32(p.words, q.words);
  }

  TAV_INLINE int64_t total(const partial& p) const {
    const int64_t squares = sum_of_lanes_64(p.squares);
    return Arrays == 2 ? squares + sum_of_lanes_32(p.words) * (2 * offset) : squares;
  }
  template <class... E> TAV_INLINE void one(int64_t& total, E... e) const {
    const int c = centred(e...);
    total += c * c;
    if constexpr (Arrays == 2) total += int64_t(c) * (2 * offset);
  }
};

// The norms as integers, of one array or of the difference of two.

struct largest_of_words {
  template <class... S> static int64_t of(size_t len, const S*... src) {
    return reduce(largest_word<sizeof...(S)>{}, len, src...);
  }
};

template <template <int> class Sum, int64_t Offset> struct summed {
  template <class... S> static int64_t of(size_t len, const S*... src) {
    const int64_t sum = sum_of_blocks<block_of_words>(Sum<sizeof...(S)>{}, len, src...);
    return sizeof...(S) == 2 ? sum + int64_t(len) * Offset : sum;
  }
};
using magnitudes = summed<sum_of_words, offset>;
using squares    = summed<sum_of_word_squares, int64_t(offset) * offset>;

// What becomes of them.

template <class Norm> struct as_float : types<Tav16s, Tav16s, Tav32f> {
  template <class... S> static Tav32f of(size_t len, const S*... src) {
    return Tav32f(double_of(Norm::of(len, src...)));
  }
};

struct root_as_float : types<Tav16s, Tav16s, Tav32f> {
  template <class... S> static Tav32f of(size_t len, const S*... src) {
    return Tav32f(root(double_of(squares::of(len, src...))));
  }
};

template <class Norm, class D> struct shifted : types<Tav16s, Tav16s, D> {
  static D of(size_t len, const Tav16s* src, int s) { return norm_shifted<D>(Norm::of(len, src), s); }
  static D of(size_t len, const Tav16s* src1, const Tav16s* src2, int s) {
    return norm_shifted<D>(Norm::of(len, src1, src2), s);
  }
};

struct rounded_root : types<Tav16s, Tav16s, Tav32s> {
  static Tav32s of(size_t len, const Tav16s* src, int s) { return norm_root_scaled(squares::of(len, src), s); }
  static Tav32s of(size_t len, const Tav16s* src1, const Tav16s* src2, int s) {
    return norm_root_scaled(squares::of(len, src1, src2), s);
  }
};

}  // namespace

TAV_BIND(Norm_Inf_16s32f, &one_array<as_float<largest_of_words>>)
TAV_BIND(Norm_L1_16s32f, &one_array<as_float<magnitudes>>)
TAV_BIND(Norm_L2_16s32f, &one_array<root_as_float>)
TAV_BIND(Norm_Inf_16s32s_Sfs, (&one_array<shifted<largest_of_words, Tav32s>, int>))
TAV_BIND(Norm_L1_16s32s_Sfs, (&one_array<shifted<magnitudes, Tav32s>, int>))
TAV_BIND(Norm_L1_16s64s_Sfs, (&one_array<shifted<magnitudes, Tav64s>, int>))
TAV_BIND(Norm_L2Sqr_16s64s_Sfs, (&one_array<shifted<squares, Tav64s>, int>))
TAV_BIND(Norm_L2_16s32s_Sfs, (&one_array<rounded_root, int>))

TAV_BIND(NormDiff_Inf_16s32f, &two_arrays_to_one<as_float<largest_of_words>>)
TAV_BIND(NormDiff_L1_16s32f, &two_arrays_to_one<as_float<magnitudes>>)
TAV_BIND(NormDiff_L2_16s32f, &two_arrays_to_one<root_as_float>)
TAV_BIND(NormDiff_Inf_16s32s_Sfs, (&two_arrays_to_one<shifted<largest_of_words, Tav32s>, int>))
TAV_BIND(NormDiff_L1_16s32s_Sfs, (&two_arrays_to_one<shifted<magnitudes, Tav32s>, int>))
TAV_BIND(NormDiff_L1_16s64s_Sfs, (&two_arrays_to_one<shifted<magnitudes, Tav64s>, int>))
TAV_BIND(NormDiff_L2Sqr_16s64s_Sfs, (&two_arrays_to_one<shifted<squares, Tav64s>, int>))
TAV_BIND(NormDiff_L2_16s32s_Sfs, (&two_arrays_to_one<rounded_root, int>))

}  // namespace tav::TAV_VARIANT
