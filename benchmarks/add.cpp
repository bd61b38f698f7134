// Sums of two arrays.
#include <volk/volk.h>

#include "harness.h"
#include "plain_loops.h"

namespace bench {

BENCH_FAMILY(add) {
  contest<Tav32f>({.name = "Add_32f", .bytes = 12, .in_cache = 1.05, .in_memory = 1.25, .curve = true},
                  {{ours, [](auto& x, int n) { tavsAdd_32f(x.a, x.b, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::add(x.a, x.b, x.out, n); }},
                   volk<Tav32f>("volk_32f_x2_add_32f",
                                [](auto& x, int n) { volk_32f_x2_add_32f_a(x.out, x.a, x.b, unsigned(n)); })});
  contest<Tav64f>({.name = "Add_64f", .bytes = 24, .in_cache = 1.05, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsAdd_64f(x.a, x.b, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::add(x.a, x.b, x.out, n); }},
                   volk<Tav64f>("volk_64f_x2_add_64f",
                                [](auto& x, int n) { volk_64f_x2_add_64f_a(x.out, x.a, x.b, unsigned(n)); })});
  contest<Tav32f>({.name = "AddC_32f", .bytes = 8, .in_cache = 1.05, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsAddC_32f(x.a, 7, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::add_constant(x.a, 7, x.out, n); }},
                   volk<Tav32f>("volk_32f_s32f_add_32f",
                                [](auto& x, int n) { volk_32f_s32f_add_32f_a(x.out, x.a, 7, unsigned(n)); })});
  contest<Tav16s>({.name = "Add_16s", .bytes = 6, .in_cache = 5, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsAdd_16s(x.a, x.b, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::add_saturating(x.a, x.b, x.out, n); }}},
                  [](auto& x, int n) {  // one sum in seven saturates
                    for (int i = 0; i < n; ++i) {
                      x.a[i]   = Tav16s(i % 7 == 0 ? 30000 : 300 - i % 600);
                      x.b[i]   = Tav16s(i % 7 == 0 ? 30000 : i % 1000);
                      x.out[i] = 0;
                    }
                  });
}

}  // namespace bench
