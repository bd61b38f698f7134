// tavsDiv_*: the other quotients of two arrays. The first source is the divisor.
#include "vector/div_float_ops.h"
#include "vector/div_ops.h"

namespace tav::TAV_VARIANT {

template <class Op, factor_range Range>
struct quotient_in_double : types<typename Op::src1, typename Op::src2, typename Op::dst> {
  template <class D, class... S> static TavStatus run(int s, D* to, size_t len, S... src) {
    const round_to_nearest_masked scope;
    return elementwise(Op(in_double(limited(s, Range), Op::highest)), to, len, src...);
  }
};

// Below the range every part other than 0 saturates, even though some exact results would not.
using quotient_16sc = quotient_in_double<quotients_16sc, factor_range{-32, 32}>;

using quotient_32s16s = quotient_in_double<quotients<Tav16s, Tav32s, Tav16s, in_double>, factor_range{-29, 31}>;

// The quotient is rounded to double precision first and then to an integer: at factors below 0 the result may lie one
// beside the exact one next to a tie.
using quotient_32s = quotient_in_double<quotients<Tav32s, Tav32s, Tav32s, in_double>, factor_range{-62, 32}>;

TAV_BIND(Div_16sc_Sfs, (&two_sources_scaled<quotient_16sc>))
TAV_BIND(Div_32s16s_Sfs, (&two_sources_scaled<quotient_32s16s>))
TAV_BIND(Div_32s_Sfs, (&two_sources_scaled<quotient_32s>))
TAV_BIND(Div_32fc, &divided<quotients_32fc>)
TAV_BIND(Div_64f, &divided<quotients_64f>)
TAV_BIND(Div_64fc, &divided<quotients_64fc>)

TAV_BIND(Div_16sc_ISfs, (&into_second<&::tavsDiv_16sc_Sfs, Tav16sc, Tav16sc, int, int>))
TAV_BIND(Div_32s_ISfs, (&into_second<&::tavsDiv_32s_Sfs, Tav32s, Tav32s, int, int>))
TAV_BIND(Div_32f_I, (&into_second<&::tavsDiv_32f, Tav32f, Tav32f, int>))
TAV_BIND(Div_32fc_I, (&into_second<&::tavsDiv_32fc, Tav32fc, Tav32fc, int>))
TAV_BIND(Div_64f_I, (&into_second<&::tavsDiv_64f, Tav64f, Tav64f, int>))
TAV_BIND(Div_64fc_I, (&into_second<&::tavsDiv_64fc, Tav64fc, Tav64fc, int>))

}  // namespace tav::TAV_VARIANT
