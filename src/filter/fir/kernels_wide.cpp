// The kernels of complex singles and of doubles: each sum is made in order, from the newest sample on, and the lanes of
// a register are sums of neighbouring outputs.
//
// A complex sum is kept as two, one with the real parts of the taps and one with the imaginary parts, which are put
// together at the end: so no product needs a shuffle.
#include "filter/fir/kernels.h"
#include "filter/fir/taps.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT::fir {
namespace {

// Parts of samples, as a register.
template <class T> using lane_group = reg<part<T>>;

template <class T> TAV_INLINE lane_group<T> read(const T* x) {
  return load<access::unaligned, lanes<part<T>>>(parts_of(x));
}
template <class T> TAV_INLINE lane_group<T> aligned_read(const part<T>* x) {
  return load<access::aligned, lanes<part<T>>>(x);
}

// What a tap, or a register of samples' own taps, multiplies with; `im` of complex taps only.
template <class T> struct factors { lane_group<T> re, im = re; };

template <class T> TAV_INLINE factors<T> repeated_tap(const part<T>* taps) {
  if constexpr (is_complex<T>)
    return {loaded_once(aligned_read<T>(taps)), loaded_once(aligned_read<T>(taps + lanes<part<T>>))};
  else
    return {aligned_read<T>(taps)};
}

template <class T> TAV_INLINE factors<T> own_taps(lane_group<T> taps) {
  if constexpr (is_complex<T>)
    return {real_parts(taps), imaginary_parts(taps)};
  else
    return {taps};
}

template <class T> struct sums {
  lane_group<T> re, im;

  TAV_INLINE void begin(lane_group<T> x, const factors<T>& h) {
    re = x * h.re;
    if constexpr (is_complex<T>) im = x * h.im;
  }
  TAV_INLINE void add(lane_group<T> x, const factors<T>& h) {
    if constexpr (is_complex<T>) x = loaded_once(x), im += x * h.im;
    re += x * h.re;
  }
  TAV_INLINE lane_group<T> value() const {
    if constexpr (is_complex<T>)
      return difference_and_sum(re, turned_round(im));
    else
      return re;
  }
};

// Samples in a register, and registers in a round: what fits the eight or sixteen there are.
template <class T> inline constexpr int in_register = lanes<part<T>> / parts<T>;
template <class T> inline constexpr int in_round    = is_complex<T> ? (few_registers ? 2 : 4) : 6;

template <int K, class T> TAV_INLINE void outputs(const float_record<T>& r, const T* x, T* y) {
  constexpr int  step = in_register<T>;
  sums<T>        s[K];
  const T*       newest = x + r.taps_len - 1;
  const part<T>* taps   = r.repeated;
  factors<T>     h      = repeated_tap<T>(taps);
#pragma GCC unroll 8
  for (int q = 0; q < K; ++q) s[q].begin(read(newest + q * step), h);
#pragma GCC unroll 1
  for (int k = 1; k < r.taps_len; ++k) {
    --newest;
    h = repeated_tap<T>(taps += repeated_size<T>);
#pragma GCC unroll 8
    for (int q = 0; q < K; ++q) s[q].add(read(newest + q * step), h);
  }
#pragma GCC unroll 8
  for (int q = 0; q < K; ++q) store<access::unaligned>(parts_of(y + q * step), s[q].value());
}

// The one output of a register's place for two: the lower half.
template <class T> T lower_output(const float_record<T>& r, const T* x) {
  static_assert(sizeof(T) == 8);
  const auto lower = [](const T* p) {
    if constexpr (is_complex<T>)
      return load<access::unaligned, 2>(parts_of(p));
    else
      return _mm_load_sd(parts_of(p));
  };
  sums<T> s;
  s.begin(lower(x + r.taps_len - 1), repeated_tap<T>(r.repeated));
  for (int k = 1; k < r.taps_len; ++k)
    s.add(lower(x + r.taps_len - 1 - k), repeated_tap<T>(r.repeated + k * repeated_size<T>));
  T value;
  _mm_storel_epi64(reinterpret_cast<__m128i*>(&value), as_bits(s.value()));
  return value;
}

template <class T> void filter(const float_record<T>& r, const T* x, T* y, size_t n) {
  constexpr size_t step = in_register<T>, round = step * in_round<T>;
  size_t           i = 0;
  for (; n - i >= round; i += round) outputs<in_round<T>>(r, x + i, y + i);
  for (; n - i >= step; i += step) outputs<1>(r, x + i, y + i);
  if constexpr (step == 2)
    if (i != n) poke(y + i, lower_output(r, x + i));
}

// One output: the lanes are sums over every second or fourth product.
template <class T> T inner_product(const float_record<T>& r, const T* x) {
  constexpr int step = in_register<T>;
  const int     n = r.taps_len, in_pairs = n / (2 * step) * (2 * step);
  const T*      h = r.reversed;
  sums<T>       a{}, b{};
  for (int i = 0; i < in_pairs; i += 2 * step) {
    a.add(read(x + i), own_taps<T>(aligned_read<T>(parts_of(h + i))));
    b.add(read(x + i + step), own_taps<T>(aligned_read<T>(parts_of(h + i + step))));
  }
  lane_group<T> total = a.value() + b.value();
  for (int i = in_pairs; i < n; ++i) {
    const auto one = [](const T* p) { return from_bits<part<T>>(load_low<8>(p)); };
    sums<T>    last;
    if constexpr (step == 2)
      last.begin(one(x + i), own_taps<T>(one(h + i)));
    else
      last.begin(read(x + i), own_taps<T>(aligned_read<T>(parts_of(h + i))));
    total += last.value();
  }
  T value;
  if constexpr (step == 2) total += from_bits<part<T>>(_mm_unpackhi_epi64(as_bits(total), as_bits(total)));
  __builtin_memcpy(&value, &total, sizeof value);
  return value;
}

}  // namespace

#define TAV_FIR_KERNELS(T)                                                                    \
  void run_taps(const float_record<T>& r, const T* x, T* y, size_t n) { filter(r, x, y, n); } \
  T    newest_output(const float_record<T>& r) { return inner_product(r, r.delay.window()); }
TAV_FIR_KERNELS(Tav32fc)
TAV_FIR_KERNELS(Tav64f)
TAV_FIR_KERNELS(Tav64fc)
#undef TAV_FIR_KERNELS

}  // namespace tav::TAV_VARIANT::fir
