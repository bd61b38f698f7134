// tavsMul, MulC, AddProduct of 8- and 16-bit elements with a scale factor. MulC_16s is in narrow_product_tuned.cpp.
#include "vector/narrow_products.h"

namespace tav::TAV_VARIANT {

using complex_product       = scaled<complex_product_16sc, complex_product_range>;
using complex_by_a_constant = scaled<complex_times_constant_16sc, complex_product_range>;

TAV_BIND(Mul_8u_Sfs, (&two_sources_scaled<scaled_product<Tav8u>>))
TAV_BIND(Mul_8u_ISfs, (&in_place_scaled<scaled_product<Tav8u>>))
TAV_BIND(Mul_16s_Sfs, (&two_sources_scaled<scaled_product<Tav16s>>))
TAV_BIND(Mul_16s_ISfs, (&in_place_scaled<scaled_product<Tav16s>>))
TAV_BIND(Mul_16u_Sfs, (&two_sources_scaled<scaled_product<Tav16u>>))
TAV_BIND(Mul_16u_ISfs, (&in_place_scaled<scaled_product<Tav16u>>))
TAV_BIND(Mul_16sc_Sfs, (&two_sources_scaled<complex_product>))
TAV_BIND(Mul_16sc_ISfs, (&in_place_scaled<complex_product>))
TAV_BIND(Mul_16u16s_Sfs, (&two_sources_scaled<scaled<product_16u16s, scale_range{31, -15}>>))

TAV_BIND(MulC_8u_Sfs, (&constant_scaled<scaled_times_constant<Tav8u>>))
TAV_BIND(MulC_8u_ISfs, (&constant_in_place_scaled<scaled_times_constant<Tav8u>>))
TAV_BIND(MulC_16u_Sfs, (&constant_scaled<scaled_times_constant<Tav16u>>))
TAV_BIND(MulC_16u_ISfs, (&constant_in_place_scaled<scaled_times_constant<Tav16u>>))
TAV_BIND(MulC_16sc_Sfs, (&constant_scaled<complex_by_a_constant>))
TAV_BIND(MulC_16sc_ISfs, (&constant_in_place_scaled<complex_by_a_constant>))

TAV_BIND(AddProduct_16s_Sfs, (&accumulated_scaled<scaled<product_and_sum_16s, scale_range{31, -15}>>))

}  // namespace tav::TAV_VARIANT
