// Thresholds. The ramp of the sources runs from 1 to 113: a little less than half of it fails.
#include "harness.h"
#include "plain_threshold.h"

namespace bench {

BENCH_FAMILY(threshold) {
  contest<Tav16s>({.name = "Threshold_LT_16s", .bytes = 4, .in_memory = 1, .curve = true},
                  {{ours, [](auto& x, int n) { tavsThreshold_LT_16s(x.a, x.out, n, 50); }},
                   {loop, [](auto& x, int n) { plain::raise<Tav16s>(x.a, 50, x.out, n); }}});
  contest<Tav32f>({.name = "Threshold_GT_32f", .bytes = 8, .in_memory = 1, .curve = true},
                  {{ours, [](auto& x, int n) { tavsThreshold_GT_32f(x.a, x.out, n, 60); }},
                   {loop, [](auto& x, int n) { plain::lower<Tav32f>(x.a, 60, x.out, n); }}});
  contest<Tav32f>({.name = "Threshold_LTValGTVal_32f", .bytes = 8, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsThreshold_LTValGTVal_32f(x.a, x.out, n, 25, 0, 90, 99); }},
                   {loop, [](auto& x, int n) { plain::replace_outside(x.a, 25, 0, 90, 99, x.out, n); }}});
  contest<Tav32f>({.name = "Threshold_LTAbs_32f", .bytes = 8, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsThreshold_LTAbs_32f(x.a, x.out, n, 50); }},
                   {loop, [](auto& x, int n) { plain::raise_magnitudes(x.a, 50, x.out, n); }}});
  contest<Tav16s>({.name = "Threshold_GTAbs_16s", .bytes = 4, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsThreshold_GTAbs_16s(x.a, x.out, n, 60); }},
                   {loop, [](auto& x, int n) { plain::lower_magnitudes(x.a, 60, x.out, n); }}});
  contest<Tav32fc>({.name = "Threshold_LT_32fc", .bytes = 16, .in_memory = 1},
                   {{ours, [](auto& x, int n) { tavsThreshold_LT_32fc(x.a, x.out, n, 70); }},
                    {loop, [](auto& x, int n) { plain::raise_magnitudes(x.a, 70, x.out, n); }}});
  contest<Tav32f>({.name = "Threshold_LTInv_32f", .bytes = 8, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsThreshold_LTInv_32f(x.a, x.out, n, 50); }},
                   {loop, [](auto& x, int n) { plain::limited_inverses(x.a, 50, x.out, n); }}});
}

}  // namespace bench
