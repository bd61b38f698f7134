// tavsSubC_16s_I, tavsSubC_32f, tavsSubC_32f_I, tavsSubCRev_32f: scheduled for each variant.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(SubC_32f, &constant<minus_constant<Tav32f>>)
TAV_BIND(SubC_16s_I, &constant_in_place<minus_constant<Tav16s>>)
TAV_BIND(SubC_32f_I, &constant_in_place<minus_constant<Tav32f>>)
TAV_BIND(SubCRev_32f, &constant<constant_minus<Tav32f>>)

}  // namespace tav::TAV_VARIANT
