// tavsDiv_*: the quotients of 8- and 16-bit integers and of singles, built once for each variant.
#include "vector/div_float_ops.h"
#include "vector/div_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Div_8u_Sfs, (&two_sources_scaled<quotient_of<Tav8u>>))
TAV_BIND(Div_16s_Sfs, (&two_sources_scaled<quotient_of<Tav16s>>))
TAV_BIND(Div_16u_Sfs, (&two_sources_scaled<quotient_of<Tav16u>>))
TAV_BIND(Div_32f, &divided<quotients_32f>)

TAV_BIND(Div_8u_ISfs, (&into_second<&::tavsDiv_8u_Sfs, Tav8u, Tav8u, int, int>))
TAV_BIND(Div_16s_ISfs, (&into_second<&::tavsDiv_16s_Sfs, Tav16s, Tav16s, int, int>))
TAV_BIND(Div_16u_ISfs, (&into_second<&::tavsDiv_16u_Sfs, Tav16u, Tav16u, int, int>))

}  // namespace tav::TAV_VARIANT
