// tavsAdd, Sub, AddC, SubC, SubCRev of 8- and 16-bit elements with a scale factor. The 16s forms are in
// narrow_sum_tuned.cpp.
//
// The first source of Sub is the one that is subtracted; in place, the source is subtracted from the destination.
#include "vector/narrow_sums.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Add_8u_Sfs, (&two_sources_scaled<scaled_sum<Tav8u>>))
TAV_BIND(Add_8u_ISfs, (&in_place_scaled<scaled_sum<Tav8u>>))
TAV_BIND(Add_16u_Sfs, (&two_sources_scaled<scaled_sum<Tav16u>>))
TAV_BIND(Add_16u_ISfs, (&in_place_scaled<scaled_sum<Tav16u>>))
TAV_BIND(Add_16sc_Sfs, (&two_sources_of_parts<&::tavsAdd_16s_Sfs, Tav16sc, int>))
TAV_BIND(Add_16sc_ISfs, (&in_place_of_parts<&::tavsAdd_16s_ISfs, Tav16sc, int>))

TAV_BIND(Sub_8u_Sfs, (&two_sources_scaled<scaled_difference<Tav8u>>))
TAV_BIND(Sub_8u_ISfs, (&in_place_scaled<scaled_difference<Tav8u>>))
TAV_BIND(Sub_16u_Sfs, (&two_sources_scaled<scaled_difference<Tav16u>>))
TAV_BIND(Sub_16u_ISfs, (&in_place_scaled<scaled_difference<Tav16u>>))
TAV_BIND(Sub_16sc_Sfs, (&two_sources_of_parts<&::tavsSub_16s_Sfs, Tav16sc, int>))
TAV_BIND(Sub_16sc_ISfs, (&in_place_of_parts<&::tavsSub_16s_ISfs, Tav16sc, int>))

TAV_BIND(AddC_8u_Sfs, (&constant_scaled<scaled_plus_constant<Tav8u>>))
TAV_BIND(AddC_8u_ISfs, (&constant_in_place_scaled<scaled_plus_constant<Tav8u>>))
TAV_BIND(AddC_16u_Sfs, (&constant_scaled<scaled_plus_constant<Tav16u>>))
TAV_BIND(AddC_16u_ISfs, (&constant_in_place_scaled<scaled_plus_constant<Tav16u>>))
TAV_BIND(AddC_16sc_Sfs, (&constant_scaled<scaled_plus_constant<Tav16sc>>))
TAV_BIND(AddC_16sc_ISfs, (&constant_in_place_scaled<scaled_plus_constant<Tav16sc>>))

TAV_BIND(SubC_8u_Sfs, (&constant_scaled<scaled_minus_constant<Tav8u>>))
TAV_BIND(SubC_8u_ISfs, (&constant_in_place_scaled<scaled_minus_constant<Tav8u>>))
TAV_BIND(SubC_16u_Sfs, (&constant_scaled<scaled_minus_constant<Tav16u>>))
TAV_BIND(SubC_16u_ISfs, (&constant_in_place_scaled<scaled_minus_constant<Tav16u>>))
TAV_BIND(SubC_16sc_Sfs, (&constant_scaled<scaled_minus_constant<Tav16sc>>))
TAV_BIND(SubC_16sc_ISfs, (&constant_in_place_scaled<scaled_minus_constant<Tav16sc>>))

TAV_BIND(SubCRev_8u_Sfs, (&constant_scaled<scaled_constant_minus<Tav8u>>))
TAV_BIND(SubCRev_8u_ISfs, (&constant_in_place_scaled<scaled_constant_minus<Tav8u>>))
TAV_BIND(SubCRev_16u_Sfs, (&constant_scaled<scaled_constant_minus<Tav16u>>))
TAV_BIND(SubCRev_16u_ISfs, (&constant_in_place_scaled<scaled_constant_minus<Tav16u>>))
TAV_BIND(SubCRev_16sc_Sfs, (&constant_scaled<scaled_constant_minus<Tav16sc>>))
TAV_BIND(SubCRev_16sc_ISfs, (&constant_in_place_scaled<scaled_constant_minus<Tav16sc>>))

}  // namespace tav::TAV_VARIANT
