// tavsAdd_64s_Sfs, tavsAddC_64s_Sfs, tavsAddC_64u_Sfs: sums of 64 bits saturate first, and are scaled then.
#include "frame/bind.h"
#include "vector/forms.h"
#include "vector/long_lanes.h"
#include "vector/move_forms.h"
#include "vector/scale.h"

namespace tav::TAV_VARIANT {

template <class T, class Scale> struct long_sum {
  static constexpr kernel_shape shape{.round_bytes = 16};
  using D = typename T::type;

  Scale scale;

  D one(D a, D b) const {
    D sum;
    _mm_storel_epi64(reinterpret_cast<__m128i*>(&sum), many(load_low<8>(&a), load_low<8>(&b)));
    return sum;
  }
  __m128i many(__m128i a, __m128i b) const { return scale.template of<T>(T::sum(a, b)); }
};

template <class T, class Scale> struct long_sum_c : long_sum<T, Scale> {
  using D = typename T::type;

  D       val;
  __m128i vals;

  D       one(D a) const { return long_sum<T, Scale>::one(a, val); }
  __m128i many(__m128i a) const { return long_sum<T, Scale>::many(a, vals); }
};

// Runs `with` one of the scales.
template <class T, class With> struct each_long_scale {
  const With& with;
  rounding    how;

  TavStatus none() const { return with(long_unscaled{}); }
  TavStatus down(int s) const { return with(long_down(s, how)); }
  TavStatus up(int by) const { return with(long_up(by, T::top_bits)); }
};

struct add_64s : types<Tav64s, Tav64s, Tav64s> {
  static TavStatus run(int s, Tav64s* dst, size_t len, const Tav64s* src1, const Tav64s* src2) {
    constexpr scale_range range{.zero_above = 63, .sign_from = -63};
    const auto            with = [&]<class Scale>(const Scale& scale) {
      return elementwise(long_sum<signed_long, Scale>{scale}, dst, len, src1, src2);
    };
    return with_scale<range>(s, dst, len, each_long_scale<signed_long, decltype(with)>{with, rounding::ties_to_even});
  }
};

// The length is unsigned, here and in what the function ends in.
template <class T, class D = typename T::type>
TavStatus long_add_c(const D* src, D val, D* dst, unsigned len, int scaleFactor, int roundMode) {
  if (const TavStatus bad = check_unsigned_length(len, src, dst)) return bad;
  if (val == 0 && scaleFactor == 0) return copied(dst, len, src);
  constexpr scale_range range{.zero_above = 64, .sign_from = -T::top_bits};
  const auto            with = [&]<class Scale>(const Scale& scale) {
    return elementwise(long_sum_c<T, Scale>{{scale}, val, repeated(val)}, dst, len, src);
  };
  return with_scale<range>(scaleFactor, dst, len, each_long_scale<T, decltype(with)>{with, rounding_of(roundMode)});
}

TAV_BIND(Add_64s_Sfs, &two_sources_scaled<add_64s>)
TAV_BIND(AddC_64s_Sfs, &long_add_c<signed_long>)
TAV_BIND(AddC_64u_Sfs, &long_add_c<unsigned_long>)

}  // namespace tav::TAV_VARIANT
