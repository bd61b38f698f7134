// tavsMul_32f, tavsMul_32f_I, tavsMul_32fc: scheduled for each variant.
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Mul_32f, &two_sources<product_of<Tav32f>>)
TAV_BIND(Mul_32f_I, &in_place<product_of<Tav32f>>)
TAV_BIND(Mul_32fc, &two_sources<product_of<Tav32fc>>)

}  // namespace tav::TAV_VARIANT
