// tavsDivC_*: floats by a constant, the other forms.
#include "vector/div_c_float.h"

namespace tav::TAV_VARIANT {

TAV_BIND(DivC_32fc_I, (&by_reciprocal_in_place<Tav32fc, &::tavsMulC_32fc_I>))
TAV_BIND(DivC_64fc, (&by_reciprocal<Tav64fc, &::tavsMulC_64fc>))
TAV_BIND(DivC_64fc_I, (&by_reciprocal_in_place<Tav64fc, &::tavsMulC_64fc_I>))

}  // namespace tav::TAV_VARIANT
