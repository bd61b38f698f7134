// tavsAdd_*: sums of two arrays.
#include "frame/bind.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

struct add_32f : types<Tav32f, Tav32f, Tav32f> {
  static constexpr kernel_shape shape{.vector_from = 11, .round_bytes = 32, .stream_above = 0x2AAA};

  static Tav32f one(Tav32f a, Tav32f b) { return a + b; }
  static __m128 many(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
};

TAV_BIND(Add_32f, &two_sources<add_32f>)

}  // namespace tav::TAV_VARIANT
