// Copies of bits, and packed numbers.
#include "harness.h"
#include "plain_loops.h"

namespace bench {

template <auto Ours, auto Loop, int From, int To> static void bit_copy(const char* name, bool curve = false) {
  contest<Tav8u>({.name = name, .bytes = 2, .curve = curve},
                 {{ours, [](auto& x, int n) { Ours(x.a, From, x.out, To, 8 * n - 8); }},
                  {loop, [](auto& x, int n) { Loop(x.a, From, x.out, To, 8 * n - 8); }}});
}

BENCH_FAMILY(bits) {
  bit_copy<tavsCopy_1u, plain::copy_bits, 0, 0>("Copy_1u, bit 0 to 0");
  bit_copy<tavsCopy_1u, plain::copy_bits, 3, 3>("Copy_1u, bit 3 to 3");
  bit_copy<tavsCopy_1u, plain::copy_bits, 3, 5>("Copy_1u, bit 3 to 5", true);
  bit_copy<tavsCopyLE_1u, plain::copy_bits, 3, 5>("CopyLE_1u, bit 3 to 5");
  bit_copy<tavsCopyBE_1u, plain::copy_bits_from_bottom, 3, 5>("CopyBE_1u, bit 3 to 5");

  const call<Tav32u> widths_in_b = [](auto& x, int n) {
    for (int i = 0; i < n; ++i) x.a[i] = 0x9E3779B9u * unsigned(i), x.b[i] = unsigned(i) * 7 % 33, x.out[i] = 0;
  };
  contest<Tav32u>({.name = "PackBits_32u8u", .bytes = 10},
                  {{ours,
                    [](auto& x, int n) {
                      int total;
                      tavsPackBits_32u8u(x.a, reinterpret_cast<const Tav32s*>(x.b), n, reinterpret_cast<Tav8u*>(x.out),
                                         0, &total);
                    }},
                   {loop,
                    [](auto& x, int n) {
                      plain::pack_bits(x.a, reinterpret_cast<const Tav32s*>(x.b), n, reinterpret_cast<Tav8u*>(x.out));
                    }}},
                  widths_in_b);
}

}  // namespace bench
