// Products of two arrays, and of an array and a constant.
#include <volk/volk.h>

#include "harness.h"
#include "plain_loops.h"

namespace bench {
namespace {

lv_32fc_t*        pairs(Tav32fc* p) { return reinterpret_cast<lv_32fc_t*>(p); }
constexpr Tav32fc constant{3, -2};
constexpr char    complex_products[] = "Complex products";

}  // namespace

BENCH_FAMILY(mul) {
  contest<Tav32f>({.name = "Mul_32f", .bytes = 12, .in_cache = 1.05, .in_memory = 1.25, .curve = true},
                  {{ours, [](auto& x, int n) { tavsMul_32f(x.a, x.b, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::multiply(x.a, x.b, x.out, n); }},
                   volk<Tav32f>("volk_32f_x2_multiply_32f",
                                [](auto& x, int n) { volk_32f_x2_multiply_32f_a(x.out, x.a, x.b, unsigned(n)); })});
  contest<Tav32f>({.name = "MulC_32f", .bytes = 8, .in_cache = 1.5, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsMulC_32f(x.a, 3, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::multiply_by(x.a, 3, x.out, n); }},
                   volk<Tav32f>("volk_32f_s32f_multiply_32f",
                                [](auto& x, int n) { volk_32f_s32f_multiply_32f_a(x.out, x.a, 3, unsigned(n)); })});
  const double goal = sizeof(void*) == 4 ? 1.35 : 1.1;
  contest<Tav32fc>(
      {.name = "Mul_32fc", .bytes = 24, .in_cache = goal, .in_memory = 1, .curve = true, .account = complex_products},
      {{ours, [](auto& x, int n) { tavsMul_32fc(x.a, x.b, x.out, n); }},
       {loop, [](auto& x, int n) { plain::multiply(x.a, x.b, x.out, n); }},
       volk<Tav32fc>("volk_32fc_x2_multiply_32fc", [](auto& x, int n) {
         volk_32fc_x2_multiply_32fc_a(pairs(x.out), pairs(x.a), pairs(x.b), unsigned(n));
       })});
  contest<Tav32fc>({.name = "MulC_32fc", .bytes = 16, .in_cache = goal, .in_memory = 1, .account = complex_products},
                   {{ours, [](auto& x, int n) { tavsMulC_32fc(x.a, constant, x.out, n); }},
                    {loop, [](auto& x, int n) { plain::multiply_by(x.a, constant, x.out, n); }},
                    volk<Tav32fc>("volk_32fc_s32fc_multiply_32fc", [](auto& x, int n) {
                      const lv_32fc_t c(constant.re, constant.im);
                      volk_32fc_s32fc_multiply_32fc_a(pairs(x.out), pairs(x.a), c, unsigned(n));
                    })});
}

}  // namespace bench
