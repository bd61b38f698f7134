// tavsDotProd of floats and doubles, built for each variant.
#include "stats/dot_float.h"

namespace tav::TAV_VARIANT {

TAV_BIND(DotProd_32f, &two_arrays_to_one<float_dot<dot_of_reals<Tav32f>>>)
TAV_BIND(DotProd_64f, &two_arrays_to_one<float_dot<dot_of_reals<Tav64f>>>)
TAV_BIND(DotProd_32fc, &two_arrays_to_one<float_dot<dot_of_pairs<Tav32fc>>>)
TAV_BIND(DotProd_64fc, &two_arrays_to_one<float_dot<dot_of_pairs<Tav64fc>>>)
TAV_BIND(DotProd_32f64f, &two_arrays_to_one<float_dot<dot_of_widened<dot_of_reals<Tav64f>>>>)
TAV_BIND(DotProd_32fc64fc, &two_arrays_to_one<float_dot<dot_of_widened<dot_of_pairs<Tav64fc>>>>)
TAV_BIND(DotProd_32f32fc64fc, &two_arrays_to_one<float_dot<dot_of_widened<dot_of_reals_and_pairs<Tav64fc>>>>)

}  // namespace tav::TAV_VARIANT
