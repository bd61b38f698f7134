// tavsDiv_Round_*: quotients with a choice of rounding.
//
// To nearest with ties to even is tavsDiv_*. The other two modes cut off, ties away after a step of one half: with the
// division itself rounding toward zero no quotient reaches an integer or a tie it lies below, so single precision is
// exact at every factor.
#include "vector/div_ops.h"
#include "vector/round_mode.h"

namespace tav::TAV_VARIANT {

using round_toward_zero_masked =
    sse_mode<sse_bits::rounding | sse_bits::all_masks, sse_bits::toward_zero | sse_bits::all_masks>;

template <class T, auto* To_even>
TavStatus divided_and_rounded(const T* src1, const T* src2, T* dst, int len, int roundMode, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  if (roundMode < 0 || roundMode > 2) return tavStatusBadRoundMode;
  const rounding how = rounding_of(roundMode);
  if (how == rounding::ties_to_even) return forward<To_even>(src1, src2, dst, len, scaleFactor);

  const round_toward_zero_masked scope;
  using unit = in_single<true>;
  return elementwise(quotients<T, T, T, unit>(unit(limited(scaleFactor, division_row<T>::factors), quads<T>::highest,
                                                   how == rounding::ties_away ? 0.5f : 0.0f)),
                     dst, size_t(len), src1, src2);
}

TAV_BIND(Div_Round_8u_Sfs, (&divided_and_rounded<Tav8u, &::tavsDiv_8u_Sfs>))
TAV_BIND(Div_Round_16s_Sfs, (&divided_and_rounded<Tav16s, &::tavsDiv_16s_Sfs>))
TAV_BIND(Div_Round_16u_Sfs, (&divided_and_rounded<Tav16u, &::tavsDiv_16u_Sfs>))

TAV_BIND(Div_Round_8u_ISfs, (&into_second<&::tavsDiv_Round_8u_Sfs, Tav8u, Tav8u, int, int, int>))
TAV_BIND(Div_Round_16s_ISfs, (&into_second<&::tavsDiv_Round_16s_Sfs, Tav16s, Tav16s, int, int, int>))
TAV_BIND(Div_Round_16u_ISfs, (&into_second<&::tavsDiv_Round_16u_Sfs, Tav16u, Tav16u, int, int, int>))

}  // namespace tav::TAV_VARIANT
