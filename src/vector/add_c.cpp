// tavsAddC_*: an array plus a constant. Two of them are in add_c_tuned.cpp.
//
// A complex constant of 0 spares no work in place: there -0.0 becomes 0.0.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(AddC_64f, &constant<plus_constant<Tav64f>>)
TAV_BIND(AddC_32fc, &constant<plus_constant<Tav32fc>>)
TAV_BIND(AddC_64fc, &constant<plus_constant<Tav64fc>>)

TAV_BIND(AddC_16s_I, &constant_in_place<plus_constant<Tav16s>>)
TAV_BIND(AddC_64f_I, &constant_in_place<plus_constant<Tav64f>>)
TAV_BIND(AddC_32fc_I, &constant_in_place<second_is_constant<sum_of<Tav32fc>>>)
TAV_BIND(AddC_64fc_I, &constant_in_place<second_is_constant<sum_of<Tav64fc>>>)

}  // namespace tav::TAV_VARIANT
