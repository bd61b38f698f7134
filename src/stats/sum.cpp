// tavsSum: the sum of an array.
//
// Those of integers are rounded in the mode that the caller has set, not to nearest: it is not looked at.
#include "stats/exact_sums.h"
#include "stats/float_sums.h"
#include "stats/forms.h"

namespace tav::TAV_VARIANT {
namespace {

template <class T, class D> struct sum_of_integers {
  using src1 = T;
  using dst  = D;

  static D of(size_t len, const T* src, int s) {
    const auto sum = exact_sum_over(len, src);
    if constexpr (requires { sum.re; })
      return {rounded_to<part_of<D>>(times_scale(as_double(sum.re), s)),
              rounded_to<part_of<D>>(times_scale(as_double(sum.im), s))};
    else
      return rounded_to<D>(times_scale(as_double(sum), s));
  }
};

template <class T> struct sum_of_singles {
  using src1 = T;
  using dst  = T;

  static T of(size_t len, const T* src, int hint) {
    return hint == fast_form ? number_of<T>(fast_sum(len, src)) : accurate_sum<T>(len, src);
  }
};

template <class T> struct sum_of_doubles {
  using src1 = T;
  using dst  = T;

  static T of(size_t len, const T* src) { return number_of<T>(double_sum(len, src)); }
};

}  // namespace

TAV_BIND(Sum_16s_Sfs, &one_array<sum_of_integers<Tav16s, Tav16s>, int>)
TAV_BIND(Sum_16s32s_Sfs, &one_array<sum_of_integers<Tav16s, Tav32s>, int>)
TAV_BIND(Sum_16sc_Sfs, &one_array<sum_of_integers<Tav16sc, Tav16sc>, int>)
TAV_BIND(Sum_16sc32sc_Sfs, &one_array<sum_of_integers<Tav16sc, Tav32sc>, int>)
TAV_BIND(Sum_32s_Sfs, &one_array<sum_of_integers<Tav32s, Tav32s>, int>)
TAV_BIND(Sum_32f, &one_array<sum_of_singles<Tav32f>, int>)
TAV_BIND(Sum_32fc, &one_array<sum_of_singles<Tav32fc>, int>)
TAV_BIND(Sum_64f, &one_array<sum_of_doubles<Tav64f>>)
TAV_BIND(Sum_64fc, &one_array<sum_of_doubles<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
