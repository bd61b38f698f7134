// tavsNorm_*, tavsNormDiff_* of floats, real and complex: a NaN anywhere makes the result one.
#include "stats/forms.h"
#include "stats/lane_sums.h"
#include "stats/norm_terms.h"

namespace tav::TAV_VARIANT {
namespace {

template <class R> TAV_INLINE R added(R v) { return v; }
template <class R> TAV_INLINE R added(several<R, 2> v) { return v.r[0] + v.r[1]; }

template <class Terms> struct sum_of {
  using T       = typename Terms::result;
  using partial = reg<T>;
  static constexpr reduce_shape shape{.step = Terms::step};

  partial start() const { return partial{}; }

  template <class... V> TAV_INLINE void many(partial& p, V... v) const { join(p, added(Terms::many(v...))); }
  TAV_INLINE void                       join(partial& p, partial q) const { p = p + q; }

  TAV_INLINE T                          total(partial p) const { return sum_of_lanes(p); }
  template <class... E> TAV_INLINE void one(T& total, E... e) const { total += Terms::one(e...); }
};

TAV_INLINE __m128  larger(__m128 a, __m128 b) { return _mm_max_ps(a, b); }
TAV_INLINE __m128d larger(__m128d a, __m128d b) { return _mm_max_pd(a, b); }
TAV_INLINE __m128  either_nan(__m128 a, __m128 b) { return _mm_cmpunord_ps(a, b); }
TAV_INLINE __m128d either_nan(__m128d a, __m128d b) { return _mm_cmpunord_pd(a, b); }
TAV_INLINE __m128  united(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
TAV_INLINE __m128d united(__m128d a, __m128d b) { return _mm_or_pd(a, b); }

TAV_INLINE Tav32f largest_lane(__m128 v) {
  const __m128 half = larger(v, _mm_movehl_ps(v, v));
  return _mm_cvtss_f32(_mm_max_ss(half, _mm_shuffle_ps(half, half, _MM_SHUFFLE(1, 1, 1, 1))));
}
TAV_INLINE Tav64f largest_lane(__m128d v) { return _mm_cvtsd_f64(_mm_max_sd(v, _mm_unpackhi_pd(v, v))); }

// The processor's maximum may lose a NaN, so they are noted beside it.
template <class Terms> struct largest_of {
  using T = typename Terms::result;
  struct partial {
    reg<T> largest, nans;
  };
  static constexpr reduce_shape shape{.step = Terms::step, .partials = 2, .tail_again = true};

  partial start() const { return {reg<T>{}, reg<T>{}}; }

  template <class... V> TAV_INLINE void many(partial& p, V... v) const {
    const auto terms = Terms::many(v...);
    join(p, {larger(terms.r[0], terms.r[1]), either_nan(terms.r[0], terms.r[1])});
  }

  TAV_INLINE void join(partial& p, const partial& q) const {
    p.largest = larger(p.largest, q.largest);
    p.nans    = united(p.nans, q.nans);
  }

  TAV_INLINE T total(const partial& p) const {
    if (_mm_movemask_epi8(as_bits(p.nans)) != 0) return std::numeric_limits<T>::quiet_NaN();
    return largest_lane(p.largest);
  }
  template <class... E> TAV_INLINE void one(T& total, E... e) const {
    const T v = Terms::one(e...);
    if (v > total || v != v) total = v;
  }
};

// Rules: how a norm comes from its terms.

template <class Terms> struct largest_term {
  template <class... S> static auto of(size_t len, const S*... src) { return reduce(largest_of<Terms>{}, len, src...); }
};

template <class Terms> struct sum {
  template <class... S> TAV_INLINE static auto of(size_t len, const S*... src) {
    return reduce(sum_of<Terms>{}, len, src...);
  }
};

// Sums of singles go on in a double every now and then: the longer a sum, the less of an element it takes in.
constexpr size_t block_of_singles = 0x8000;

template <class Terms> struct sum_in_singles {
  template <class... S> static Tav32f of(size_t len, const S*... src) {
    if (len <= block_of_singles) return sum<Terms>::of(len, src...);
    Tav64f total = 0;
    in_blocks<block_of_singles>([&](size_t n, const S*... block) { total += Tav64f(sum<Terms>::of(n, block...)); }, len,
                                src...);
    return Tav32f(total);
  }
};

template <class Rule> struct root_of_sum {
  template <class... S> static auto of(size_t len, const S*... src) { return root(Rule::of(len, src...)); }
};

// The squares of pairs add up to those of their parts.
template <class Rule> struct on_parts {
  template <class... C> static auto of(size_t len, const C*... src) { return Rule::of(2 * len, parts_of(src)...); }
};

template <class S, class D, class Rule> struct norm : types<S, S, D> {
  template <class... A> static D of(size_t len, const A*... src) { return D(Rule::of(len, src...)); }
};

template <class T> using magnitudes = real_terms<magnitude_term, T>;
template <class T> using squares    = real_terms<square_term, T>;
using pair_squares                  = pair_terms<squared_term>;
using pair_magnitudes               = pair_terms<root_term>;

using inf_32f  = norm<Tav32f, Tav32f, largest_term<magnitudes<Tav32f>>>;
using inf_64f  = norm<Tav64f, Tav64f, largest_term<magnitudes<Tav64f>>>;
using inf_32fc = norm<Tav32fc, Tav32f, root_of_sum<largest_term<pair_squares>>>;
using inf_64fc = norm<Tav64fc, Tav64f, root_of_sum<largest_term<pair_squares>>>;

using l1_32f  = norm<Tav32f, Tav32f, sum_in_singles<magnitudes<Tav32f>>>;
using l1_64f  = norm<Tav64f, Tav64f, sum<magnitudes<Tav64f>>>;
using l1_32fc = norm<Tav32fc, Tav64f, sum<pair_magnitudes>>;
using l1_64fc = norm<Tav64fc, Tav64f, sum<pair_magnitudes>>;

using l2_32f  = norm<Tav32f, Tav32f, root_of_sum<sum_in_singles<squares<Tav32f>>>>;
using l2_64f  = norm<Tav64f, Tav64f, root_of_sum<sum<squares<Tav64f>>>>;
using l2_32fc = norm<Tav32fc, Tav64f, on_parts<root_of_sum<sum<wide_squares>>>>;
using l2_64fc = norm<Tav64fc, Tav64f, on_parts<root_of_sum<sum<squares<Tav64f>>>>>;

}  // namespace

TAV_BIND(Norm_Inf_32f, &one_array<inf_32f>)
TAV_BIND(Norm_Inf_64f, &one_array<inf_64f>)
TAV_BIND(Norm_Inf_32fc32f, &one_array<inf_32fc>)
TAV_BIND(Norm_Inf_64fc64f, &one_array<inf_64fc>)
TAV_BIND(Norm_L1_32f, &one_array<l1_32f>)
TAV_BIND(Norm_L1_64f, &one_array<l1_64f>)
TAV_BIND(Norm_L1_32fc64f, &one_array<l1_32fc>)
TAV_BIND(Norm_L1_64fc64f, &one_array<l1_64fc>)
TAV_BIND(Norm_L2_32f, &one_array<l2_32f>)
TAV_BIND(Norm_L2_64f, &one_array<l2_64f>)
TAV_BIND(Norm_L2_32fc64f, &one_array<l2_32fc>)
TAV_BIND(Norm_L2_64fc64f, &one_array<l2_64fc>)

TAV_BIND(NormDiff_Inf_32f, &two_arrays_to_one<inf_32f>)
TAV_BIND(NormDiff_Inf_64f, &two_arrays_to_one<inf_64f>)
TAV_BIND(NormDiff_Inf_32fc32f, &two_arrays_to_one<inf_32fc>)
TAV_BIND(NormDiff_Inf_64fc64f, &two_arrays_to_one<inf_64fc>)
TAV_BIND(NormDiff_L1_32f, &two_arrays_to_one<l1_32f>)
TAV_BIND(NormDiff_L1_64f, &two_arrays_to_one<l1_64f>)
TAV_BIND(NormDiff_L1_32fc64f, &two_arrays_to_one<l1_32fc>)
TAV_BIND(NormDiff_L1_64fc64f, &two_arrays_to_one<l1_64fc>)
TAV_BIND(NormDiff_L2_32f, &two_arrays_to_one<l2_32f>)
TAV_BIND(NormDiff_L2_64f, &two_arrays_to_one<l2_64f>)
TAV_BIND(NormDiff_L2_32fc64f, &two_arrays_to_one<l2_32fc>)
TAV_BIND(NormDiff_L2_64fc64f, &two_arrays_to_one<l2_64fc>)

}  // namespace tav::TAV_VARIANT
