// Short transforms: no tables, no work area. Up to 8 doubles and 32 singles straight-line code, then pair_passes.h.
#pragma once
#include "transform/fft/engine.h"
#include "transform/fft/first_pass.h"
#include "transform/fft/pair_passes.h"

namespace tav::TAV_VARIANT::fft {

// Signs of the second point of a register of two.
template <bool Inverse> struct second_point {
  static constexpr uint32_t sign                    = 0x80000000;
  alignas(16) static constexpr uint32_t negative[4] = {0, 0, sign, sign};
  alignas(16) static constexpr uint32_t turn[4]     = {0, 0, Inverse ? sign : 0, Inverse ? 0 : sign};
};

template <class Src, class Out> TAV_INLINE void direct2(Src src, Out out) {
  if constexpr (columns_of<typename Out::value> == 2) {
    const __m128 x = src.columns(0);
    out.put_columns(0, _mm_movelh_ps(x, x) + flipped(_mm_movehl_ps(x, x), second_point<false>::negative));
  } else {
    const __m128d a = src.columns(0), b = src.columns(1);
    out.put_columns(0, a + b);
    out.put_columns(1, a - b);
  }
}

template <bool Inverse, class Src, class Out> TAV_INLINE void direct4(Src src, Out out) {
  using T = typename Out::value;
  if constexpr (columns_of<T> == 2) {
    const __m128 a = src.columns(0), b = src.columns(2), s = a + b, d = a - b;
    const __m128 even = _mm_movelh_ps(s, d), odd = _mm_movehl_ps(d, s);
    const __m128 turned_odd = flipped(_mm_shuffle_ps(odd, odd, 0xB4), second_point<Inverse>::turn);
    out.put_columns(0, even + turned_odd);
    out.put_columns(2, even - turned_odd);
  } else {
    reg<T> y[4];
    rows4<Inverse, T>(distant_rows<Src, 4>{src, 1}, 0, 1, y);
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) out.put_columns(k, y[k]);
  }
}

// Of 8 points in singles: radix 4 over rows of two columns, then the two columns as radix 2. The odd column's turns by
// k eighths are products of its parts, as they lie and exchanged, with these.
template <bool Inverse> struct eighths {
  static constexpr float h = constants<float>::h, i = Inverse ? -1 : 1;
  alignas(16) static constexpr float as_is[2][4]     = {{1, 1, h, h}, {0, 0, -h, -h}};
  alignas(16) static constexpr float exchanged[2][4] = {{0, 0, i* h, -i* h}, {i, -i, i* h, -i* h}};
};

template <bool Inverse, class Src, class Out> TAV_INLINE void direct8(Src src, Out out) {
  using T = typename Out::value;
  if constexpr (columns_of<T> == 2) {
    reg<T> y[4];
    rows4<Inverse, T>(distant_rows<Src, 4>{src, 2}, 0, 1, y);
#pragma GCC unroll 2
    for (int k = 0; k < 2; ++k) {
      const __m128 even = _mm_movelh_ps(y[2 * k], y[2 * k + 1]), odd = _mm_movehl_ps(y[2 * k + 1], y[2 * k]);
      const __m128 turned_odd =
          times(parts_exchanged(odd), eighths<Inverse>::exchanged[k]) + times(odd, eighths<Inverse>::as_is[k]);
      out.put_columns(2 * k, even + turned_odd);
      out.put_columns(2 * k + 4, even - turned_odd);
    }
  } else {
    reg<T> y[8];
    rows8<Inverse, T>(distant_rows<Src, 8>{src, 1}, y);
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k) out.put_columns(k, y[k]);
  }
}

// All fits registers, with columns 2 and 3 first.
template <bool Inverse, class Src, class Out> TAV_INLINE void direct16(Src src, Out out) {
  using T              = float;
  constexpr const T* w = record_of_16<T>;
  planar<T>          low[2], high[2];
  reg<T>             y[4];
  rows4<Inverse, T>(distant_rows<Src, 4>{src + 2, 4}, 0, 1, y);
  turn_planar<Inverse, T>(y, high);
  const planar<T> c = product(high[0], w + 2 * twiddle_size<T>), d = product(high[1], w + twiddle_size<T>);
  rows4<Inverse, T>(distant_rows<Src, 4>{src, 4}, 0, 1, y);
  turn_planar<Inverse, T>(y, low);
  const planar<T> a = low[0], b = product(low[1], w);
  const both<T>   even = sum_and_difference(a, c), odd = sum_and_difference(b, d);
  finish4(out, 4, even.sum, even.difference, odd.sum, odd.difference);
}

// Not inlined: a stack that has to be aligned for the block would burden the shorter ones.
template <bool Inverse, class Src, class Out> __attribute__((noinline)) void direct32(Src src, Out out) {
  using T              = typename Out::value;
  constexpr int   step = gathered<Src, 8>::columns;
  alignas(64) T   block[64];
  const groups<T> inner{block};
#pragma GCC unroll 4
  for (int c = 0; c < 4; c += step)
    few<Inverse, 8, typename gathered<Src, 8>::value, T>(distant_rows<Src, 8>{src + c, 4},
                                                         [=](int i) { return inner + 8 * (c + i); });
#pragma GCC unroll 4
  for (int k = 0; k < 8; k += lanes<T>)
    radix4(inner + k, 16, 8, 24, out + k, 8, record_of_32<T> + k / lanes<T> * radix4_record<T>);
}

// The kernels by order, in one view.
template <bool Inverse, int Order, class Src, class Out> TAV_INLINE void direct(Src src, Out out) {
  if constexpr (Order == 0) out.put_point(src.point());
  if constexpr (Order == 1) direct2(src, out);
  if constexpr (Order == 2) direct4<Inverse>(src, out);
  if constexpr (Order == 3) direct8<Inverse>(src, out);
  if constexpr (sizeof(typename Out::value) == 8 && Order >= 4)
    pair_passes<Inverse, Order>(src, out);
  else if constexpr (Order == 4)
    direct16<Inverse>(src, out);
  else if constexpr (Order == 5)
    direct32<Inverse>(src, out);
}

template <class T> using direct_pairs_kernel = void (*)(const T* src, T* dst, const T* scale);
template <class T>
using direct_split_kernel = void (*)(const T* src_re, const T* src_im, T* dst_re, T* dst_im, const T* scale);

template <bool Inverse, bool Scaled, int Order, class T> void direct_pairs(const T* src, T* dst, const T* scale) {
  using view = pairs<T>;
  direct<Inverse, Order>(view{const_cast<T*>(src)}, result<view, Inverse, Scaled>{{dst}, scale});
}

// The inverse of split data is the forward transform with the arrays exchanged.
template <bool Scaled, int Order, class T>
void direct_split(const T* src_re, const T* src_im, T* dst_re, T* dst_im, const T* scale) {
  using view = split<T>;
  direct<false, Order>(view{const_cast<T*>(src_re), const_cast<T*>(src_im)},
                       result<view, false, Scaled>{{dst_re, dst_im}, scale});
}

template <bool Inverse, bool Scaled, int Order, class T> constexpr direct_pairs_kernel<T> pairs_kernel() {
  if constexpr (Order <= pairs_kernels_to<T>) return direct_pairs<Inverse, Scaled, Order, T>;
  return nullptr;
}
template <bool Scaled, int Order, class T> constexpr direct_split_kernel<T> split_kernel() {
  if constexpr (Order <= split_kernels_to<T>) return direct_split<Scaled, Order, T>;
  return nullptr;
}

inline constexpr int kernels = 9;  // as many orders as any type has

#define TAV_BY_ORDER(kernel, ...)                                                              \
  {                                                                                            \
    kernel<__VA_ARGS__, 0, T>(), kernel<__VA_ARGS__, 1, T>(), kernel<__VA_ARGS__, 2, T>(),     \
        kernel<__VA_ARGS__, 3, T>(), kernel<__VA_ARGS__, 4, T>(), kernel<__VA_ARGS__, 5, T>(), \
        kernel<__VA_ARGS__, 6, T>(), kernel<__VA_ARGS__, 7, T>(), kernel<__VA_ARGS__, 8, T>()  \
  }
// Static: an inline table of pointers would become a symbol of the library's.
template <class T>
static constexpr direct_pairs_kernel<T> direct_pairs_kernels[2][2][kernels] = {
    {TAV_BY_ORDER(pairs_kernel, false, false), TAV_BY_ORDER(pairs_kernel, false, true)},
    {TAV_BY_ORDER(pairs_kernel, true, false), TAV_BY_ORDER(pairs_kernel, true, true)}};
template <class T>
static constexpr direct_split_kernel<T> direct_split_kernels[2][kernels] = {TAV_BY_ORDER(split_kernel, false),
                                                                            TAV_BY_ORDER(split_kernel, true)};
#undef TAV_BY_ORDER

template <class T> void run_short_pairs(int order, direction towards, const T* scale, const T* src, T* dst) {
  direct_pairs_kernels<T>[towards == direction::inverse][scale != nullptr][order](src, dst, scale);
}

template <class T>
void run_short_split(int order, direction towards, const T* scale, const T* src_re, const T* src_im, T* dst_re,
                     T* dst_im) {
  const auto kernel = direct_split_kernels<T>[scale != nullptr][order];
  if (towards == direction::inverse)
    kernel(src_im, src_re, dst_im, dst_re, scale);
  else
    kernel(src_re, src_im, dst_re, dst_im, scale);
}

}  // namespace tav::TAV_VARIANT::fft
