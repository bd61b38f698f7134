// Other kernels for cascades of biquads, in turns with the library's: what is left to gain. docs/performance/limits.md
// reads the outcome. All compute four outputs at a time from look-ahead rows.
#include <xmmintrin.h>

#include "harness.h"

namespace bench {
namespace {

constexpr int   sections = 4;
constexpr float b[3] = {0.2f, 0.1f, 0.05f}, a1 = -0.9f, a2 = 0.2f;
enum source : int { x_2, x_1, x0, x1, x2, x3, y_2, y_1, row_count };

// What each of the samples and outputs before adds to the next four outputs: the response to it alone.
struct alignas(16) look_ahead_rows {
  float of[row_count][4];

  look_ahead_rows() {
    for (int k = 0; k < row_count; ++k) {
      float x[6] = {}, y[6] = {};
      (k < y_2 ? x[k] : y[k - y_2]) = 1;
      for (int i = 2; i < 6; ++i) {
        y[i]         = b[0] * x[i] + b[1] * x[i - 1] + b[2] * x[i - 2] - a1 * y[i - 1] - a2 * y[i - 2];
        of[k][i - 2] = y[i];
      }
    }
  }
} const rows[sections];

template <int Lane> __m128 times_row(const look_ahead_rows& r, source which, __m128 v) {
  return _mm_shuffle_ps(v, v, Lane * 0x55) * _mm_load_ps(r.of[which]);
}

// One after the other; what outputs add summed by itself; the inputs' sum in two halves as well.
enum class order { in_turn, outputs_apart, inputs_halved };

template <order Order> __m128 next(const look_ahead_rows& r, __m128 x_before, __m128 x, __m128 y_before) {
  __m128 sum = times_row<2>(r, x_2, x_before);
  sum += times_row<3>(r, x_1, x_before);
  sum += times_row<0>(r, x0, x);
  if constexpr (Order == order::inputs_halved) {
    __m128 half = times_row<1>(r, x1, x);
    half += times_row<2>(r, x2, x);
    half += times_row<3>(r, x3, x);
    sum += half;
  } else {
    sum += times_row<1>(r, x1, x);
    sum += times_row<2>(r, x2, x);
    sum += times_row<3>(r, x3, x);
  }
  __asm__ volatile("" : "+x"(sum));  // what inputs add stands before what outputs add: other orders spill
  if constexpr (Order == order::in_turn) return sum + times_row<2>(r, y_2, y_before) + times_row<3>(r, y_1, y_before);
  return sum + (times_row<2>(r, y_2, y_before) + times_row<3>(r, y_1, y_before));
}

// From rest, so many sections in a pass. The arrays have room for the whole of the last four.
template <int InPass, order Order> void cascade(const arrays<Tav32f>& arrays, int n) {
  const float* src = arrays.a;
  float* const dst = arrays.out;
  for (int first = 0; first < sections; first += InPass, src = dst) {
    __m128 before[InPass + 1]{};
    for (int i = 0; i < n; i += 4) {
      __m128 v = _mm_loadu_ps(src + i);
#pragma GCC unroll 4
      for (int s = 0; s < InPass; ++s) {
        const __m128 y = next<Order>(rows[first + s], before[s], v, before[s + 1]);
        before[s]      = v;
        v              = y;
      }
      before[InPass] = v;
      _mm_storeu_ps(dst + i, v);
    }
  }
}

void library(const arrays<Tav32f>& x, int n) {
  static IIRState_32f* const state = [] {
    std::vector<float> taps;
    for (int s = 0; s < sections; ++s) taps.insert(taps.end(), {b[0], b[1], b[2], 1, a1, a2});
    IIRState_32f* made = nullptr;
    tavsIIRInitAlloc_BiQuad_32f(&made, taps.data(), sections, nullptr);
    return made;
  }();
  tavsIIRSetDlyLine_32f(state, nullptr);
  tavsIIR_32f(x.a, x.out, n, state);
}

}  // namespace

BENCH_FAMILY(iir_kernels) {
  near_contest<Tav32f, Tav32f>({.name = "IIR_32f, 4 biquads, other kernels", .bytes = 8}, 1e-5,
                               {{ours, library},
                                {"1 section a pass", cascade<1, order::outputs_apart>},
                                {"2 sections", cascade<2, order::outputs_apart>},
                                {"2 sections, in turn", cascade<2, order::in_turn>},
                                {"2 sections, inputs halved", cascade<2, order::inputs_halved>},
                                {"4 sections", cascade<4, order::outputs_apart>}});
}

}  // namespace bench
