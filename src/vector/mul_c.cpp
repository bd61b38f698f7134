// tavsMulC_*: an array times a constant. Five of them are in mul_c_tuned.cpp, those that give integers in
// mul_c_to_16s.cpp.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(MulC_64fc, &constant<times_pair<Tav64fc>>)

TAV_BIND(MulC_16s_I, &constant_in_place<times_constant<Tav16s>>)
TAV_BIND(MulC_32fc_I, &constant_in_place<times_pair<Tav32fc>>)
TAV_BIND(MulC_64fc_I, &constant_in_place<times_pair<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
