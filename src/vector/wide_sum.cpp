// tavsAdd_*, tavsSub_*, tavsAddC_*, tavsSubC_*, tavsSubCRev_* of 32 bits, scaled.
#include "frame/bind.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

constexpr scale_range sums{.zero_above = 32, .sign_from = -31};

template <class T> struct wide_sum : wide_types<exact_sum, T, T, T> {
  static exact_sum exact(__m128i a, __m128i b) { return sum_of(a, b); }
};

template <class T> struct wide_difference : wide_types<exact_sum, T, T, T> {
  static exact_sum exact(__m128i a, __m128i b) { return difference_of(a, b); }
};

template <class T> struct wide_difference_reversed : wide_types<exact_sum, T, T, T> {
  static exact_sum exact(__m128i a, __m128i b) { return difference_of(b, a); }
};

using add = scaled<wide_sum<Tav32s>, sums>;
using sub = scaled<wide_difference_reversed<Tav32s>, sums>;  // the first source is taken from the second

template <class T> using add_c     = scaled<zero_keeps<by_constant<wide_sum<T>>>, sums>;
template <class T> using sub_c     = scaled<zero_keeps<by_constant<wide_difference<T>>>, sums>;
template <class T> using sub_c_rev = scaled<by_constant<wide_difference_reversed<T>>, sums>;

TAV_BIND(Add_32s_Sfs, &two_sources_scaled<add>)
TAV_BIND(Add_32s_ISfs, &in_place_scaled<add>)
TAV_BIND(Add_32sc_Sfs, (&two_sources_of_parts<&::tavsAdd_32s_Sfs, Tav32sc, int>))
TAV_BIND(Add_32sc_ISfs, (&in_place_of_parts<&::tavsAdd_32s_ISfs, Tav32sc, int>))

TAV_BIND(Sub_32s_Sfs, &two_sources_scaled<sub>)
TAV_BIND(Sub_32s_ISfs, &in_place_scaled<sub>)
TAV_BIND(Sub_32sc_Sfs, (&two_sources_of_parts<&::tavsSub_32s_Sfs, Tav32sc, int>))
TAV_BIND(Sub_32sc_ISfs, (&in_place_of_parts<&::tavsSub_32s_ISfs, Tav32sc, int>))

TAV_BIND(AddC_32s_Sfs, &constant_scaled<add_c<Tav32s>>)
TAV_BIND(AddC_32s_ISfs, &constant_in_place_scaled<add_c<Tav32s>>)
TAV_BIND(AddC_32sc_Sfs, &constant_scaled<add_c<Tav32sc>>)
TAV_BIND(AddC_32sc_ISfs, &constant_in_place_scaled<add_c<Tav32sc>>)

TAV_BIND(SubC_32s_Sfs, &constant_scaled<sub_c<Tav32s>>)
TAV_BIND(SubC_32s_ISfs, &constant_in_place_scaled<sub_c<Tav32s>>)
TAV_BIND(SubC_32sc_Sfs, &constant_scaled<sub_c<Tav32sc>>)
TAV_BIND(SubC_32sc_ISfs, &constant_in_place_scaled<sub_c<Tav32sc>>)

TAV_BIND(SubCRev_32s_Sfs, &constant_scaled<sub_c_rev<Tav32s>>)
TAV_BIND(SubCRev_32s_ISfs, &constant_in_place_scaled<sub_c_rev<Tav32s>>)
TAV_BIND(SubCRev_32sc_Sfs, &constant_scaled<sub_c_rev<Tav32sc>>)
TAV_BIND(SubCRev_32sc_ISfs, &constant_in_place_scaled<sub_c_rev<Tav32sc>>)

}  // namespace tav::TAV_VARIANT
