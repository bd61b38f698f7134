// Real transforms of 1 to 16 points, of doubles to 32: straight-line code without tables.
#include "transform/fft/direct.h"
#include "transform/fft/real.h"
#include "transform/fft/real_sixteen.h"
#include "transform/fft/recombination.h"

namespace tav::TAV_VARIANT::fft {
namespace {

// The factors of bins 1 ... N/4 in the order of a record's tables.
template <class T, int N> struct constant_factors {
  alignas(16) T forward[N / 2], inverse[N / 2];
  constexpr constant_factors() : forward{}, inverse{} {
    for (int k = 0; k < N / 4; ++k) {
      const int         at = k / lanes<T> * 2 * lanes<T> + k % lanes<T>, turn = 32 / N * (k + 1);
      const long double c = cosine_of_32(turn), s = cosine_of_32(turn + 24);
      forward[at]            = T(0.5L - 0.5L * s);
      forward[at + lanes<T>] = T(-0.5L * c);
      inverse[at]            = T(-s);
      inverse[at + lanes<T>] = T(c);
    }
  }
};
template <class T, int N> inline constexpr constant_factors<T, N> factors_of;

template <bool Scaled, class T> struct slots {
  T*       p;
  const T* scale;

  void put(int i, T v) const { poke(p + i, Scaled ? v * *scale : v); }
};

template <int Order, bool Scaled, class T> void forward_of(const T* src, T* dst, const T* scale) {
  constexpr int                n = 1 << Order;
  [[maybe_unused]] constexpr T h = constants<T>::h;
  const slots<Scaled, T>       out{dst, scale};
  const auto                   x = [src](int i) { return peek(src + i); };
  if constexpr (Order == 0) {
    out.put(0, x(0));
  } else if constexpr (Order == 1) {
    const T a = x(0), b = x(1);
    out.put(0, a + b), out.put(1, a - b);
  } else if constexpr (Order == 2) {
    const T s0 = x(0) + x(2), d0 = x(0) - x(2), s1 = x(1) + x(3), d1 = x(3) - x(1);
    out.put(0, s0 + s1), out.put(1, s0 - s1), out.put(2, d0), out.put(3, d1);
  } else if constexpr (Order == 3) {
    const T s0 = x(0) + x(4), s1 = x(1) + x(5), s2 = x(2) + x(6), s3 = x(3) + x(7);
    const T d0 = x(0) - x(4), d1 = x(1) - x(5), d2 = x(2) - x(6), d3 = x(3) - x(7);
    const T even = s0 + s2, odd = s1 + s3, p = h * (d1 - d3), q = h * (d1 + d3);
    out.put(0, even + odd), out.put(1, even - odd);
    out.put(2, d0 + p), out.put(3, -d2 - q);
    out.put(4, s0 - s2), out.put(5, s3 - s1);
    out.put(6, d0 - p), out.put(7, d2 - q);
  } else if constexpr (Order == 4) {
    sixteen_forward<Scaled>(src, dst, scale);
  } else {
    direct<false, Order - 1>(pairs<T>{const_cast<T*>(src)}, result<pairs<T>, false, Scaled>{{dst}, scale});
    put_real_bins(dst, peek(dst), peek(dst + 1));
#pragma GCC unroll 4
    for (int k = 0; k < n / 4; k += lanes<T>) {
      T *const low = dst + 2 + 2 * k, *const high = dst + n - 2 * (lanes<T> + k);
      step_of_bins<false, T>(low, high, low, high, factors_of<T, n>.forward + 2 * k);
    }
  }
}

template <int Order, bool Scaled, class T> void inverse_of(const half_spectrum<T>& src, T* dst, const T* scale) {
  constexpr int                n = 1 << Order;
  [[maybe_unused]] constexpr T h = constants<T>::h;
  const slots<Scaled, T>       out{dst, scale};
  const T                      first = src.first, middle = src.middle;
  const auto                   twice = [&src](int i) {
    const T v = peek(src.bins + i);
    return v + v;
  };
  if constexpr (Order == 0) {
    out.put(0, first);
  } else if constexpr (Order == 1) {
    out.put(0, first + middle), out.put(1, first - middle);
  } else if constexpr (Order == 2) {
    const T re = twice(0), im = twice(1), s = first + middle, d = first - middle;
    out.put(0, s + re), out.put(1, d - im), out.put(2, s - re), out.put(3, d + im);
  } else if constexpr (Order == 3) {
    const T re1 = twice(0), im1 = twice(1), re2 = twice(2), im2 = twice(3), re3 = twice(4), im3 = twice(5);
    const T s = first + middle, d = first - middle, e0 = s + re2, e1 = d - im2, e2 = s - re2, e3 = d + im2;
    const T p = re1 - re3, q = im1 + im3, o0 = re1 + re3, o1 = h * (p - q), o2 = im3 - im1, o3 = -h * (p + q);
    out.put(0, e0 + o0), out.put(1, e1 + o1), out.put(2, e2 + o2), out.put(3, e3 + o3);
    out.put(4, e0 - o0), out.put(5, e1 - o1), out.put(6, e2 - o2), out.put(7, e3 - o3);
  } else if constexpr (Order == 4) {
    sixteen_inverse<Scaled>(src, dst, scale);
  } else {
    put_real_bins(dst, first, middle);
#pragma GCC unroll 4
    for (int k = 0; k < n / 4; k += lanes<T>)
      step_of_bins<true>(src.bins + 2 * k, src.bins + n - 2 * (1 + lanes<T> + k), dst + 2 + 2 * k,
                         dst + n - 2 * (lanes<T> + k), factors_of<T, n>.inverse + 2 * k);
    direct<true, Order - 1>(pairs<T>{dst}, result<pairs<T>, true, Scaled>{{dst}, scale});
  }
}

template <class T> using forward_kernel = void (*)(const T*, T*, const T*);
template <class T> using inverse_kernel = void (*)(const half_spectrum<T>&, T*, const T*);

#define TAV_BY_ORDER(kernel, T)                                                                           \
  {                                                                                                       \
    {kernel<0, false, T>, kernel<1, false, T>, kernel<2, false, T>,                                       \
     kernel<3, false, T>, kernel<4, false, T>, kernel<real_direct_to<T>, false, T>},                      \
    {                                                                                                     \
      kernel<0, true, T>, kernel<1, true, T>, kernel<2, true, T>, kernel<3, true, T>, kernel<4, true, T>, \
          kernel<real_direct_to<T>, true, T>                                                              \
    }                                                                                                     \
  }
template <class T> constexpr forward_kernel<T> forward_kernels[2][6] = TAV_BY_ORDER(forward_of, T);
template <class T> constexpr inverse_kernel<T> inverse_kernels[2][6] = TAV_BY_ORDER(inverse_of, T);
#undef TAV_BY_ORDER

}  // namespace

template <class T> void run_short_forward(int order, const T* scale, const T* src, T* dst) {
  forward_kernels<T>[scale != nullptr][order](src, dst, scale);
}
template <class T> void run_short_inverse(int order, const T* scale, const half_spectrum<T>& src, T* dst) {
  inverse_kernels<T>[scale != nullptr][order](src, dst, scale);
}

TAV_FFT_REAL_SHORT(, Tav32f)
TAV_FFT_REAL_SHORT(, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
