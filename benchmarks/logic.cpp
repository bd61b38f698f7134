// Logic and shifts.
#include <volk/volk.h>

#include "harness.h"
#include "plain_loops.h"

namespace bench {

BENCH_FAMILY(logic) {
  const auto row_of = [](const char* name, double bytes) {
    return row{.name = name, .bytes = bytes, .in_memory = 1.25};
  };
  contest<Tav8u>(row_of("And_8u", 3), {{ours, [](auto& x, int n) { tavsAnd_8u(x.a, x.b, x.out, n); }},
                                       {loop, [](auto& x, int n) { plain::bitwise_and(x.a, x.b, x.out, n); }}});
  row masks   = row_of("And_32u", 12);
  masks.curve = true;
  contest<Tav32u>(masks, {{ours, [](auto& x, int n) { tavsAnd_32u(x.a, x.b, x.out, n); }},
                          {loop, [](auto& x, int n) { plain::bitwise_and(x.a, x.b, x.out, n); }},
                          volk<Tav32u>("volk_32i_x2_and_32i", [](auto& x, int n) {
                            const auto words = [](Tav32u* p) { return reinterpret_cast<Tav32s*>(p); };
                            volk_32i_x2_and_32i_a(words(x.out), words(x.a), words(x.b), unsigned(n));
                          })});
  contest<Tav16u>(row_of("XorC_16u", 4),
                  {{ours, [](auto& x, int n) { tavsXorC_16u(x.a, 0x1234, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::bitwise_xor<Tav16u>(x.a, 0x1234, x.out, n); }}});
}

BENCH_FAMILY(shift) {
  const auto row_of = [](const char* name, double bytes) {
    return row{.name = name, .bytes = bytes, .in_memory = 1.25};
  };
  contest<Tav16s>(row_of("LShiftC_16s", 4), {{ours, [](auto& x, int n) { tavsLShiftC_16s(x.a, 3, x.out, n); }},
                                             {loop, [](auto& x, int n) { plain::shift_left(x.a, 3, x.out, n); }}});
  contest<Tav8u>(row_of("RShiftC_8u", 2), {{ours, [](auto& x, int n) { tavsRShiftC_8u(x.a, 3, x.out, n); }},
                                           {loop, [](auto& x, int n) { plain::shift_right(x.a, 3, x.out, n); }}});
  contest<Tav32s>(row_of("RShiftC_32s", 8), {{ours, [](auto& x, int n) { tavsRShiftC_32s(x.a, 3, x.out, n); }},
                                             {loop, [](auto& x, int n) { plain::shift_right(x.a, 3, x.out, n); }}});
}

}  // namespace bench
