// The checks of tavsDotProd: pointers, the result's among them, then the length.
#include "harness/faults.h"

using namespace test;

namespace {

constexpr auto length_before_result = pointers_then_length_at<1>;
constexpr auto length_before_scaled = pointers_then_length_at<2>;

}  // namespace

// clang-format off
#define CASE(form) TAV_FAULTS(DotProd_##form, length_before_result)
CASE(16s64s) CASE(16sc64sc) CASE(16s16sc64sc) CASE(16s32f) CASE(16sc32fc) CASE(16s16sc32fc)
CASE(32f) CASE(32fc) CASE(32f32fc) CASE(32f64f) CASE(32fc64fc) CASE(32f32fc64fc) CASE(64f) CASE(64fc) CASE(64f64fc)
#undef CASE

#define CASE(form) TAV_FAULTS(DotProd_##form##_Sfs, length_before_scaled)
CASE(16s) CASE(16s32s) CASE(16sc) CASE(16sc32sc) CASE(16s16sc) CASE(16s16sc32sc)
CASE(32s) CASE(16s32s32s) CASE(32sc) CASE(32s32sc)
#undef CASE
    // clang-format on
