// tavsDivC_*: floats by a constant, the forms built once for each variant.
#include "vector/div_c_float.h"

namespace tav::TAV_VARIANT {

TAV_BIND(DivC_32f, (&by_reciprocal<Tav32f, &::tavsMulC_32f>))
TAV_BIND(DivC_32f_I, (&by_reciprocal_in_place<Tav32f, &::tavsMulC_32f_I>))
TAV_BIND(DivC_32fc, (&by_reciprocal<Tav32fc, &::tavsMulC_32fc>))
TAV_BIND(DivC_64f, (&by_reciprocal<Tav64f, &::tavsMulC_64f>))
TAV_BIND(DivC_64f_I, (&by_reciprocal_in_place<Tav64f, &::tavsMulC_64f_I>))

}  // namespace tav::TAV_VARIANT
