// tavsSubC_*, an array less a constant, and tavsSubCRev_*, a constant less an array. Four of them are in
// sub_c_tuned.cpp.
//
// A complex constant of 0 spares no work in place: the difference is formed even so.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(SubC_64f, &constant<minus_constant<Tav64f>>)
TAV_BIND(SubC_32fc, &constant<minus_constant<Tav32fc>>)
TAV_BIND(SubC_64fc, &constant<minus_constant<Tav64fc>>)

TAV_BIND(SubC_64f_I, &constant_in_place<minus_constant<Tav64f>>)
TAV_BIND(SubC_32fc_I, &constant_in_place<first_is_constant<difference_of<Tav32fc>>>)
TAV_BIND(SubC_64fc_I, &constant_in_place<first_is_constant<difference_of<Tav64fc>>>)

TAV_BIND(SubCRev_64f, &constant<constant_minus<Tav64f>>)
TAV_BIND(SubCRev_32fc, &constant<constant_minus<Tav32fc>>)
TAV_BIND(SubCRev_64fc, &constant<constant_minus<Tav64fc>>)

TAV_BIND(SubCRev_32f_I, &constant_in_place<constant_minus<Tav32f>>)
TAV_BIND(SubCRev_64f_I, &constant_in_place<constant_minus<Tav64f>>)
TAV_BIND(SubCRev_32fc_I, &constant_in_place<constant_minus<Tav32fc>>)
TAV_BIND(SubCRev_64fc_I, &constant_in_place<constant_minus<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
