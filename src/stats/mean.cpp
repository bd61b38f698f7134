// tavsMean: the sum of an array divided by its length.
//
// Means of 16-bit integers are rounded in the mode that the caller has set, as sums are. The double quotient decides
// like the exact one: it is never so close to a tie as to be rounded into it. The mean of 32-bit integers is a function
// of its own, exact and to nearest.
#include "stats/exact_sums.h"
#include "stats/float_sums.h"
#include "stats/forms.h"

namespace tav::TAV_VARIANT {
namespace {

template <class T> struct mean_of_words {
  using src1 = T;
  using dst  = T;

  static T of(size_t len, const T* src, int s) {
    const auto sum = exact_sum_over(len, src);
    if constexpr (has_parts<T>)
      return {mean_of<Tav16s>(sum.re, len, s), mean_of<Tav16s>(sum.im, len, s)};
    else
      return mean_of<T>(sum, len, s);
  }
};

struct mean_of_integers {
  using src1 = Tav32s;
  using dst  = Tav32s;

  static Tav32s of(size_t len, const Tav32s* src, int s) {
    const int64_t  sum = exact_sum_over(len, src);
    const Tav64u   top = (Tav64u(1) << 31) - (sum < 0 ? 0 : 1);
    const fraction f   = scaled_fraction(sum < 0 ? -Tav64u(sum) : Tav64u(sum), Tav64u(len), s);
    Tav64u         v   = f.whole + (2 * f.rest + (f.whole & 1) > f.of ? 1 : 0);
    if (v > top) v = top;
    return sum < 0 ? Tav32s(-int64_t(v)) : Tav32s(v);
  }

 private:
  struct fraction {
    Tav64u whole, rest, of;  // whole + rest / of
  };

  // sum / len * 2^-s, or something above every Tav32s.
  static fraction scaled_fraction(Tav64u sum, Tav64u len, int s) {
    constexpr int a_step = 31;
    if (s > a_step) return {0, 0, 1};  // at most the half of 1, which is a tie
    if (s > 0) len <<= s;
    fraction f{sum / len, sum % len, len};
    if (sum == 0) return f;
    for (int64_t left = -int64_t(s); left > 0 && f.whole >> a_step == 0; left -= a_step) {
      const int by = left < a_step ? int(left) : a_step;
      f.rest <<= by;
      f.whole = (f.whole << by) + f.rest / len;
      f.rest %= len;
    }
    return f;
  }
};

__m128d divided(__m128d sum, size_t len) { return _mm_div_pd(sum, _mm_set1_pd(Tav64f(int(len)))); }

template <class T> struct mean_of_singles {
  using src1 = T;
  using dst  = T;
  using wide = std::conditional_t<has_parts<T>, Tav64fc, Tav64f>;

  static T of(size_t len, const T* src, int hint) {
    if (hint == fast_form) return number_of<T>(divided(fast_sum(len, src), len));
    const __m128d          sum = as_lanes(accurate_sum<wide>(len, src));
    const round_to_nearest scope;
    return settled(number_of<T>(divided(held(sum), len)));
  }
};

template <class T> struct mean_of_doubles {
  using src1 = T;
  using dst  = T;

  static T of(size_t len, const T* src) { return number_of<T>(divided(double_sum(len, src), len)); }
};

}  // namespace

TAV_BIND(Mean_16s_Sfs, &one_array<mean_of_words<Tav16s>, int>)
TAV_BIND(Mean_16sc_Sfs, &one_array<mean_of_words<Tav16sc>, int>)
TAV_BIND(Mean_32s_Sfs, &one_array<mean_of_integers, int>)
TAV_BIND(Mean_32f, &one_array<mean_of_singles<Tav32f>, int>)
TAV_BIND(Mean_32fc, &one_array<mean_of_singles<Tav32fc>, int>)
TAV_BIND(Mean_64f, &one_array<mean_of_doubles<Tav64f>>)
TAV_BIND(Mean_64fc, &one_array<mean_of_doubles<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
