// tavsDotProd of 16-bit integers: one exact sum for each pair of sources, and what the results make of it.
#include "stats/dot_words.h"
#include "stats/dot_scale.h"

namespace tav::TAV_VARIANT {

// Once for all the results.
template <class Op>
[[gnu::noinline]] typename Op::dst exact_dot(size_t len, const typename Op::src1* a, const typename Op::src2* b) {
  return reduce(Op(len), len, a, b);
}

template <class Op, class D> struct word_dot : types<typename Op::src1, typename Op::src2, D> {
  TAV_INLINE static D of(size_t len, const typename Op::src1* a, const typename Op::src2* b, auto... s) {
    return result_of_dot<D>(exact_dot<Op>(len, a, b), s...);
  }
};

TAV_BIND(DotProd_16s64s, (&two_arrays_to_one<word_dot<dot_of_words, Tav64s>>))
TAV_BIND(DotProd_16s32f, (&two_arrays_to_one<word_dot<dot_of_words, Tav32f>>))
TAV_BIND(DotProd_16s32s_Sfs, (&two_arrays_to_one<word_dot<dot_of_words, Tav32s>, int>))
TAV_BIND(DotProd_16s_Sfs, (&two_arrays_to_one<word_dot<dot_of_words, Tav16s>, int>))

TAV_BIND(DotProd_16s16sc64sc, (&two_arrays_to_one<word_dot<dot_of_words_and_pairs, Tav64sc>>))
TAV_BIND(DotProd_16s16sc32fc, (&two_arrays_to_one<word_dot<dot_of_words_and_pairs, Tav32fc>>))
TAV_BIND(DotProd_16s16sc32sc_Sfs, (&two_arrays_to_one<word_dot<dot_of_words_and_pairs, Tav32sc>, int>))
TAV_BIND(DotProd_16s16sc_Sfs, (&two_arrays_to_one<word_dot<dot_of_words_and_pairs, Tav16sc>, int>))

TAV_BIND(DotProd_16sc64sc, (&two_arrays_to_one<word_dot<dot_of_word_pairs, Tav64sc>>))
TAV_BIND(DotProd_16sc32fc, (&two_arrays_to_one<word_dot<dot_of_word_pairs, Tav32fc>>))
TAV_BIND(DotProd_16sc32sc_Sfs, (&two_arrays_to_one<word_dot<dot_of_word_pairs, Tav32sc>, int>))
TAV_BIND(DotProd_16sc_Sfs, (&two_arrays_to_one<word_dot<dot_of_word_pairs, Tav16sc>, int>))

}  // namespace tav::TAV_VARIANT
