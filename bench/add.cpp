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
}

}  // namespace bench
