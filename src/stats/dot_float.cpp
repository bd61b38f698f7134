// tavsDotProd_32f32fc, tavsDotProd_64f64fc: sums of products of real numbers and pairs.
#include "stats/dot_float.h"

namespace tav::TAV_VARIANT {

TAV_BIND(DotProd_32f32fc, &two_arrays_to_one<float_dot<dot_of_reals_and_pairs<Tav32fc>>>)
TAV_BIND(DotProd_64f64fc, &two_arrays_to_one<float_dot<dot_of_reals_and_pairs<Tav64fc>>>)

}  // namespace tav::TAV_VARIANT
