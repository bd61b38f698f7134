// Arrays back to front, and the bytes of each element back to front.
#include <volk/volk.h>

#include "harness.h"
#include "plain_loops.h"

namespace bench {

// One contest of ours and the plain loop; `bytes` is what one of the two arrays takes per element.
template <class T, auto Ours, auto Loop> static void apart(const char* name, bool curve = false) {
  contest<T>(
      {.name = name, .bytes = 2.0 * sizeof(T), .curve = curve},
      {{ours, [](auto& x, int n) { Ours(x.a, x.out, n); }}, {loop, [](auto& x, int n) { Loop(x.a, x.out, n); }}});
}

template <class T, auto Ours, auto Loop> static void in_place(const char* name) {
  contest<T>({.name = name, .bytes = 2.0 * sizeof(T)},
             {{ours, [](auto& x, int n) { Ours(x.a, n); }}, {loop, [](auto& x, int n) { Loop(x.a, n); }}});
}

template <class T, auto Ours, auto Loop, auto Volk> static void in_place(const char* name, const char* kernel) {
  contest<T>({.name = name, .bytes = 2.0 * sizeof(T)},
             {{ours, [](auto& x, int n) { Ours(x.a, n); }},
              {loop, [](auto& x, int n) { Loop(x.a, n); }},
              volk<T>(kernel, [](auto& x, int n) { (*Volk)(x.a, unsigned(n)); })});
}

BENCH_FAMILY(flip) {
  apart<Tav8u, tavsFlip_8u, plain::flip<Tav8u>>("Flip_8u");
  apart<Tav16u, tavsFlip_16u, plain::flip<Tav16u>>("Flip_16u");
  apart<Tav32f, tavsFlip_32f, plain::flip<Tav32f>>("Flip_32f", true);
  apart<Tav64f, tavsFlip_64f, plain::flip<Tav64f>>("Flip_64f");
  in_place<Tav8u, tavsFlip_8u_I, plain::flip_in_place<Tav8u>>("Flip_8u_I");
  in_place<Tav32f, tavsFlip_32f_I, plain::flip_in_place<Tav32f>>("Flip_32f_I");
}

BENCH_FAMILY(swap_bytes) {
  apart<Tav16u, tavsSwapBytes_16u, plain::swap_bytes<Tav16u>>("SwapBytes_16u");
  apart<Tav32u, tavsSwapBytes_32u, plain::swap_bytes<Tav32u>>("SwapBytes_32u", true);
  apart<Tav64u, tavsSwapBytes_64u, plain::swap_bytes<Tav64u>>("SwapBytes_64u");
  in_place<Tav16u, tavsSwapBytes_16u_I, plain::swap_bytes_in_place<Tav16u>, &volk_16u_byteswap_a>("SwapBytes_16u_I",
                                                                                                  "volk_16u_byteswap");
  in_place<Tav32u, tavsSwapBytes_32u_I, plain::swap_bytes_in_place<Tav32u>, &volk_32u_byteswap_a>("SwapBytes_32u_I",
                                                                                                  "volk_32u_byteswap");
  in_place<Tav64u, tavsSwapBytes_64u_I, plain::swap_bytes_in_place<Tav64u>, &volk_64u_byteswap_a>("SwapBytes_64u_I",
                                                                                                  "volk_64u_byteswap");
  contest<Tav8u>({.name = "SwapBytes_24u", .bytes = 2},
                 {{ours, [](auto& x, int n) { tavsSwapBytes_24u(x.a, x.out, n / 3); }},
                  {loop, [](auto& x, int n) { plain::swap_bytes_24(x.a, x.out, n / 3); }}});
}

}  // namespace bench
