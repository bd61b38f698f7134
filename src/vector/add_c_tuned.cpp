// tavsAddC_32f, tavsAddC_32f_I: scheduled for each variant.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(AddC_32f, &constant<plus_constant<Tav32f>>)
TAV_BIND(AddC_32f_I, &constant_in_place<plus_constant<Tav32f>>)

}  // namespace tav::TAV_VARIANT
