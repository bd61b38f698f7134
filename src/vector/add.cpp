// tavsAdd_*: sums of two arrays.
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {

struct sum_16s32s : types<Tav16s, Tav32s, Tav32s> {  // wraps
  static constexpr kernel_shape shape = shape_32_bit;

  static Tav32s  one(Tav16s a, Tav32s b) { return Tav32s(Tav32u(Tav32s(a)) + Tav32u(b)); }
  static __m128i many(__m128i a, __m128i b) { return _mm_add_epi32(low_half_as_32s(a), b); }
};

TAV_BIND(Add_8u16u, &two_sources<of_bytes<sum_of<Tav16u>>>)
TAV_BIND(Add_16s, &two_sources<sum_of<Tav16s>>)
TAV_BIND(Add_16u, &two_sources<sum_of<Tav16u>>)
TAV_BIND(Add_32u, &two_sources<sum_of<Tav32u>>)
TAV_BIND(Add_16s32f, &two_sources<converted_16s<sum_of<Tav32f>>>)
TAV_BIND(Add_32f, &two_sources<sum_of<Tav32f>>)
TAV_BIND(Add_64f, &two_sources<sum_of<Tav64f>>)
TAV_BIND(Add_32fc, (&two_sources_of_parts<&::tavsAdd_32f, Tav32fc>))
TAV_BIND(Add_64fc, (&two_sources_of_parts<&::tavsAdd_64f, Tav64fc>))

TAV_BIND(Add_16s_I, &in_place<sum_of<Tav16s>>)
TAV_BIND(Add_16s32s_I, &in_place<sum_16s32s>)
TAV_BIND(Add_32f_I, &in_place<sum_of<Tav32f>>)
TAV_BIND(Add_64f_I, &in_place<sum_of<Tav64f>>)
TAV_BIND(Add_32fc_I, (&in_place_of_parts<&::tavsAdd_32f_I, Tav32fc>))
TAV_BIND(Add_64fc_I, (&in_place_of_parts<&::tavsAdd_64f_I, Tav64fc>))

}  // namespace tav::TAV_VARIANT
