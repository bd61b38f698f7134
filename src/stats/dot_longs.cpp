// tavsDotProd of 32-bit integers: the exact sum, scaled once.
#include "stats/dot_long.h"
#include "stats/dot_scale.h"

namespace tav::TAV_VARIANT {

// Above 32 places all but 31 bits of the sum go on, with a 1 in the last place if those were not all 0. Up to 32 places
// a sum that 64 bits do not hold is too large for a result.
static Tav32s scaled_dot(dot_of_96_bits sum, int s) {
  sum.carry();
  if (s > 32) {
    const bool more = (sum.low & 0x7FFFFFFF) != 0;
    return scaled_dot<Tav32s>((sum.high * 2 + Tav64s(sum.low >> 31)) | more, s - 31);
  }
  if (sum.high != Tav32s(sum.high)) return sum.high < 0 ? INT32_MIN : INT32_MAX;
  return scaled_dot<Tav32s>(Tav64s(Tav64u(sum.high) << 32 | sum.low), s);
}

static Tav32sc scaled_dot(const dot_pair_of_96_bits& sum, int s) {
  return {scaled_dot(sum.re, s), scaled_dot(sum.im, s)};
}

template <class Op>
[[gnu::noinline]] void add_dot(typename Op::dst& sum, size_t len, const typename Op::src1* a,
                               const typename Op::src2* b) {
  sum.add(reduce(Op(len), len, a, b));
}

// In blocks that keep the sums of the factors within 64 bits.
template <class Op, class D> struct long_dot : types<typename Op::src1, typename Op::src2, D> {
  static D of(size_t len, const typename Op::src1* src1, const typename Op::src2* src2, int s) {
    constexpr size_t block = size_t(1) << 28;
    typename Op::dst sum;
    in_blocks<block>([&](size_t count, auto* a, auto* b) { add_dot<Op>(sum, count, a, b); }, len, src1, src2);
    return scaled_dot(sum, s);
  }
};

TAV_BIND(DotProd_32s_Sfs, (&two_arrays_to_one<long_dot<dot_of_longs<Tav32s>, Tav32s>, int>))
TAV_BIND(DotProd_16s32s32s_Sfs, (&two_arrays_to_one<long_dot<dot_of_longs<Tav16s>, Tav32s>, int>))
TAV_BIND(DotProd_32s32sc_Sfs, (&two_arrays_to_one<long_dot<dot_of_longs_and_pairs, Tav32sc>, int>))
TAV_BIND(DotProd_32sc_Sfs, (&two_arrays_to_one<long_dot<dot_of_long_pairs, Tav32sc>, int>))

}  // namespace tav::TAV_VARIANT
