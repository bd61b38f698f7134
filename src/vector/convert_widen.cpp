// tavsConvert from integers to wider ones, and to floats.
#include "vector/convert_to_float.h"

namespace tav::TAV_VARIANT {

// Each element twice in a lane of the double width, the upper one kept.
struct convert_8s16s : types<Tav8s, Tav8s, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 16};

  static Tav16s        one(Tav8s a) { return a; }
  static pair_of_lanes many(__m128i v) {
    return {{_mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8), _mm_srai_epi16(_mm_unpackhi_epi8(v, v), 8)}};
  }
};

struct convert_16s32s : types<Tav16s, Tav16s, Tav32s> {
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 8};

  static Tav32s        one(Tav16s a) { return a; }
  static pair_of_lanes many(__m128i v) { return narrow_row<Tav16s>::widen(v); }
};

TAV_BIND(Convert_8s16s, &one_source<convert_8s16s>)
TAV_BIND(Convert_16s32s, &one_source<convert_16s32s>)

TAV_BIND(Convert_8s32f, (&one_source<to_floats<Tav8s, Tav32f>>))
TAV_BIND(Convert_8u32f, (&one_source<to_floats<Tav8u, Tav32f>>))
TAV_BIND(Convert_16u32f, (&one_source<to_floats<Tav16u, Tav32f>>))
TAV_BIND(Convert_32s64f, (&one_source<to_floats<Tav32s, Tav64f>>))

TAV_BIND(Convert_16s32f_Sfs, (&one_source_scaled<to_scaled_floats<Tav16s, Tav32f>>))
TAV_BIND(Convert_16s64f_Sfs, (&one_source_scaled<to_scaled_floats<Tav16s, Tav64f>>))
TAV_BIND(Convert_32s32f_Sfs, (&one_source_scaled<to_scaled_floats<Tav32s, Tav32f>>))
TAV_BIND(Convert_32s64f_Sfs, (&one_source_scaled<to_scaled_floats<Tav32s, Tav64f>>))

}  // namespace tav::TAV_VARIANT
