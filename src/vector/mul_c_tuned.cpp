// tavsMulC_32f, tavsMulC_64f, their forms in place, tavsMulC_32fc: scheduled for each variant.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(MulC_32f, &constant<times_constant<Tav32f>>)
TAV_BIND(MulC_64f, &constant<times_constant<Tav64f>>)
TAV_BIND(MulC_32fc, &constant<times_pair<Tav32fc>>)

TAV_BIND(MulC_32f_I, &constant_in_place<times_constant<Tav32f>>)
TAV_BIND(MulC_64f_I, &constant_in_place<times_constant<Tav64f>>)

}  // namespace tav::TAV_VARIANT
