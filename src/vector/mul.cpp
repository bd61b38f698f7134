// tavsMul_*: products of two arrays. Three of them are in mul_tuned.cpp.
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {

struct product_of_bytes {  // in 16 bits
  static int     one(int a, int b) { return a * b; }
  static __m128i many(__m128i a, __m128i b) { return _mm_mullo_epi16(a, b); }
};

struct product_32f32fc : types<Tav32f, Tav32fc, Tav32fc> {
  static constexpr kernel_shape shape = float_shape<Tav32fc>;

  static Tav32fc one(Tav32f a, Tav32fc b) { return {a * b.re, a * b.im}; }
  static __m128  many(__m128 a, __m128 b) { return _mm_unpacklo_ps(a, a) * b; }
};

TAV_BIND(Mul_8u16u, &two_sources<of_bytes<product_of_bytes>>)
TAV_BIND(Mul_16s, &two_sources<product_of<Tav16s>>)
TAV_BIND(Mul_16s32f, &two_sources<converted_16s<product_of<Tav32f>>>)
TAV_BIND(Mul_64f, &two_sources<product_of<Tav64f>>)
TAV_BIND(Mul_32f32fc, &two_sources<product_32f32fc>)
TAV_BIND(Mul_64fc, &two_sources<product_of<Tav64fc>>)

TAV_BIND(Mul_16s_I, &in_place<product_of<Tav16s>>)
TAV_BIND(Mul_64f_I, &in_place<product_of<Tav64f>>)
TAV_BIND(Mul_32f32fc_I, &in_place<product_32f32fc>)
TAV_BIND(Mul_32fc_I, &in_place<product_of<Tav32fc>>)
TAV_BIND(Mul_64fc_I, &in_place<product_of<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
