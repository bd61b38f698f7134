// The 16s forms of tavsAdd, Sub, AddC, SubC, SubCRev with a scale factor.
#include "vector/narrow_sums.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Add_16s_Sfs, (&two_sources_scaled<scaled_sum<Tav16s>>))
TAV_BIND(Add_16s_ISfs, (&in_place_scaled<scaled_sum<Tav16s>>))
TAV_BIND(Sub_16s_Sfs, (&two_sources_scaled<scaled_difference<Tav16s>>))
TAV_BIND(Sub_16s_ISfs, (&in_place_scaled<scaled_difference<Tav16s>>))
TAV_BIND(AddC_16s_Sfs, (&constant_scaled<scaled_plus_constant<Tav16s>>))
TAV_BIND(AddC_16s_ISfs, (&constant_in_place_scaled<scaled_plus_constant<Tav16s>>))
TAV_BIND(SubC_16s_Sfs, (&constant_scaled<scaled_minus_constant<Tav16s>>))
TAV_BIND(SubC_16s_ISfs, (&constant_in_place_scaled<scaled_minus_constant<Tav16s>>))
TAV_BIND(SubCRev_16s_Sfs, (&constant_scaled<scaled_constant_minus<Tav16s>>))
TAV_BIND(SubCRev_16s_ISfs, (&constant_in_place_scaled<scaled_constant_minus<Tav16s>>))

}  // namespace tav::TAV_VARIANT
