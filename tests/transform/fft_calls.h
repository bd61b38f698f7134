// The transforms of floats by type: their exports, their records, and calls that look the same for interleaved, split
// and real data.
#pragma once
#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"
#include "harness/tavcore_fake.h"

namespace test {

template <class Sample, class Record, auto* GetSize, auto* Init, auto* InitAlloc, auto* Free, auto* GetBufSize,
          auto* Forward, auto* Inverse, auto* ForwardInPlace, auto* InverseInPlace, bool Split>
struct fft_family {
  using sample                           = Sample;  // a point
  using part                             = decltype(Sample::re);
  using record                           = Record;
  static constexpr auto* get_size        = GetSize;
  static constexpr auto* init            = Init;
  static constexpr auto* init_alloc      = InitAlloc;
  static constexpr auto* free            = Free;
  static constexpr auto* get_buf_size    = GetBufSize;
  static constexpr auto* forward         = Forward;
  static constexpr auto* inverse         = Inverse;
  static constexpr auto* forward_on_self = ForwardInPlace;
  static constexpr auto* inverse_on_self = InverseInPlace;
  static constexpr bool  split           = Split;
};

#define TAV_FFT_FAMILY(type, sample, is_split)                                                     \
  fft_family<sample, FftContext_C_##type, &::tavsFFTGetSize_C_##type, &::tavsFFTInit_C_##type,     \
             &::tavsFFTInitAlloc_C_##type, &::tavsFFTFree_C_##type, &::tavsFFTGetBufSize_C_##type, \
             &::tavsFFTFwd_CToC_##type, &::tavsFFTInv_CToC_##type, &::tavsFFTFwd_CToC_##type##_I,  \
             &::tavsFFTInv_CToC_##type##_I, is_split>

using fft_32fc = TAV_FFT_FAMILY(32fc, Tav32fc, false);
using fft_32f  = TAV_FFT_FAMILY(32f, Tav32fc, true);
using fft_64fc = TAV_FFT_FAMILY(64fc, Tav64fc, false);
using fft_64f  = TAV_FFT_FAMILY(64f, Tav64fc, true);
#undef TAV_FFT_FAMILY

// Real ones, by format. Formats are numbered as `spectrum_format`.
enum class spectrum_format { perm, pack, ccs };

template <class Part, class Record, spectrum_format Format, auto* GetSize, auto* Init, auto* InitAlloc, auto* Free,
          auto* GetBufSize, auto* Forward, auto* Inverse, auto* ForwardInPlace, auto* InverseInPlace>
struct fft_real_family {
  using sample                           = Part;
  using part                             = Part;
  using record                           = Record;
  static constexpr auto  format          = Format;
  static constexpr auto* get_size        = GetSize;
  static constexpr auto* init            = Init;
  static constexpr auto* init_alloc      = InitAlloc;
  static constexpr auto* free            = Free;
  static constexpr auto* get_buf_size    = GetBufSize;
  static constexpr auto* forward         = Forward;
  static constexpr auto* inverse         = Inverse;
  static constexpr auto* forward_on_self = ForwardInPlace;
  static constexpr auto* inverse_on_self = InverseInPlace;
};

#define TAV_FFT_REAL_FAMILY(type, name, kind)                                                                        \
  fft_real_family<Tav##type, FftContext_R_##type, spectrum_format::kind, &::tavsFFTGetSize_R_##type,                 \
                  &::tavsFFTInit_R_##type, &::tavsFFTInitAlloc_R_##type, &::tavsFFTFree_R_##type,                    \
                  &::tavsFFTGetBufSize_R_##type, &::tavsFFTFwd_RTo##name##_##type, &::tavsFFTInv_##name##ToR_##type, \
                  &::tavsFFTFwd_RTo##name##_##type##_I, &::tavsFFTInv_##name##ToR_##type##_I>

using fft_perm_32f = TAV_FFT_REAL_FAMILY(32f, Perm, perm);
using fft_pack_32f = TAV_FFT_REAL_FAMILY(32f, Pack, pack);
using fft_ccs_32f  = TAV_FFT_REAL_FAMILY(32f, CCS, ccs);
using fft_perm_64f = TAV_FFT_REAL_FAMILY(64f, Perm, perm);
using fft_pack_64f = TAV_FFT_REAL_FAMILY(64f, Pack, pack);
using fft_ccs_64f  = TAV_FFT_REAL_FAMILY(64f, CCS, ccs);
#undef TAV_FFT_REAL_FAMILY

template <class F> inline constexpr bool is_real = requires { F::format; };

// A record of InitAlloc for one scope.
template <class F> class fft_context {
 public:
  fft_context(int order, int flag) { EXPECT_EQ(call<F::init_alloc>(&record_, order, flag, 0), tavStatusOk); }
  ~fft_context() { EXPECT_EQ(call<F::free>(record_), tavStatusOk); }
  fft_context(const fft_context&)            = delete;
  fft_context& operator=(const fft_context&) = delete;

  typename F::record* get() const { return record_; }
  int                 buf_size() const {
                    int size = -1;
                    EXPECT_EQ(call<F::get_buf_size>(record_, &size), tavStatusOk);
                    return size;
  }

 private:
  typename F::record* record_ = nullptr;
};

// Where the data of a call lies. Split data is two arrays of equal length.
struct fft_layout {
  placement src, dst;
  bool      in_place;
  int       buf_offset;  // -1: no work area is given
};

template <class F> struct fft_arrays {
  using T = typename F::part;
  arena& home;
  size_t n;

  // Both parts of split data lie one behind the other at the same offset.
  array<T> place(placement where) const { return array<T>(home, 2 * n, where); }
  size_t   at(size_t i, int part) const { return F::split ? i + part * n : 2 * i + part; }

  void assign(const array<T>& a, const std::vector<typename F::sample>& x) const {
    uint8_t* const to = reinterpret_cast<uint8_t*>(a.data());
    for (size_t i = 0; i < n; ++i) {
      memcpy(to + at(i, 0) * sizeof(T), &x[i].re, sizeof(T));
      memcpy(to + at(i, 1) * sizeof(T), &x[i].im, sizeof(T));
    }
  }
  std::vector<typename F::sample> values(const array<T>& a) const {
    const uint8_t* const            from = reinterpret_cast<const uint8_t*>(a.data());
    std::vector<typename F::sample> x(n);
    for (size_t i = 0; i < n; ++i) {
      memcpy(&x[i].re, from + at(i, 0) * sizeof(T), sizeof(T));
      memcpy(&x[i].im, from + at(i, 1) * sizeof(T), sizeof(T));
    }
    return x;
  }
};

template <class F, bool Inverse>
TavStatus run_fft(const typename F::part* src, typename F::part* dst, size_t n, const typename F::record* ctx,
                  Tav8u* buf) {
  constexpr auto* out = Inverse ? F::inverse : F::forward;
  constexpr auto* on  = Inverse ? F::inverse_on_self : F::forward_on_self;
  if constexpr (is_real<F>) {
    return src == dst ? call<on>(dst, ctx, buf) : call<out>(src, dst, ctx, buf);
  } else if constexpr (F::split) {
    if (src == dst) return call<on>(dst, dst + n, ctx, buf);
    return call<out>(src, src + n, dst, dst + n, ctx, buf);
  } else {
    using C = typename F::sample;
    if (src == dst) return call<on>(reinterpret_cast<C*>(dst), ctx, buf);
    return call<out>(reinterpret_cast<const C*>(src), reinterpret_cast<C*>(dst), ctx, buf);
  }
}

}  // namespace test
