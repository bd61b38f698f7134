// tavsMulC_16s with a scale factor.
#include "vector/narrow_products.h"

namespace tav::TAV_VARIANT {

TAV_BIND(MulC_16s_Sfs, (&constant_scaled<scaled_times_constant<Tav16s>>))
TAV_BIND(MulC_16s_ISfs, (&constant_in_place_scaled<scaled_times_constant<Tav16s>>))

}  // namespace tav::TAV_VARIANT
