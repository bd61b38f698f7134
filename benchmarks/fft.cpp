// Complex transforms of power-of-two length, interleaved and split, and what their set-up costs.
#include "fft.h"

namespace bench {
namespace {

// Both write their results to the second array of the pool.
template <class T, class Duel> bool same_results(Duel& duel, int n) {
  fill(pooled<T>(0), 2 * size_t(n));  // planning has overwritten it
  duel.run();
  const std::vector<T> mine = values_of(pooled<T>(1), 2 * size_t(n));
  duel.run_peer();
  return alike(mine, values_of(pooled<T>(1), 2 * size_t(n)));
}

template <class Context, class C, auto* Run, int Sign> class interleaved {
 public:
  using context                    = Context;
  using T                          = decltype(C::re);
  static constexpr int point_bytes = sizeof(C);

  explicit interleaved(int order)
      : n_(1 << order), context_(order), peer_(fftw<T>::plan_complex(n_, pairs(0), pairs(1), Sign, FFTW_MEASURE)) {}

  void run() { Run(in_, out_, context_.get(), context_.work()); }
  void run_peer() { peer_.execute(); }
  bool same() { return same_results<T>(*this, n_); }

 private:
  static auto* pairs(int array) { return pooled<typename fftw<T>::pair>(array); }

  int             n_;
  C *             in_ = pooled<C>(0), *out_ = pooled<C>(1);
  Context         context_;
  fftw_plan_of<T> peer_;
};

// FFTW's inverse is the forward transform with the parts exchanged.
template <class Context, class T, auto* Run, int Sign> class split {
 public:
  using context                    = Context;
  static constexpr int point_bytes = 2 * sizeof(T);

  explicit split(int order) : n_(1 << order), context_(order), peer_(plan()) {}

  void run() { Run(in_, in_ + n_, out_, out_ + n_, context_.get(), context_.work()); }
  void run_peer() { peer_.execute(); }
  bool same() { return same_results<T>(*this, n_); }

 private:
  typename fftw<T>::plan plan() const {
    const typename fftw<T>::length points{n_, 1, 1};
    const int                      re = Sign == FFTW_FORWARD ? 0 : n_, im = n_ - re;
    return fftw<T>::plan_split(1, &points, 0, nullptr, in_ + re, in_ + im, out_ + re, out_ + im, FFTW_MEASURE);
  }

  int             n_;
  T *             in_ = pooled<T>(0), *out_ = pooled<T>(1);
  Context         context_;
  fftw_plan_of<T> peer_;
};

using of_32fc = BENCH_FFT_CONTEXT(C_32fc);
using of_32f  = BENCH_FFT_CONTEXT(C_32f);
using of_64fc = BENCH_FFT_CONTEXT(C_64fc);
using of_64f  = BENCH_FFT_CONTEXT(C_64f);

using forward_32fc = interleaved<of_32fc, Tav32fc, &tavsFFTFwd_CToC_32fc, FFTW_FORWARD>;
using inverse_32fc = interleaved<of_32fc, Tav32fc, &tavsFFTInv_CToC_32fc, FFTW_BACKWARD>;
using forward_64fc = interleaved<of_64fc, Tav64fc, &tavsFFTFwd_CToC_64fc, FFTW_FORWARD>;
using inverse_64fc = interleaved<of_64fc, Tav64fc, &tavsFFTInv_CToC_64fc, FFTW_BACKWARD>;
using forward_32f  = split<of_32f, Tav32f, &tavsFFTFwd_CToC_32f, FFTW_FORWARD>;
using inverse_32f  = split<of_32f, Tav32f, &tavsFFTInv_CToC_32f, FFTW_BACKWARD>;
using forward_64f  = split<of_64f, Tav64f, &tavsFFTFwd_CToC_64f, FFTW_FORWARD>;
using inverse_64f  = split<of_64f, Tav64f, &tavsFFTInv_CToC_64f, FFTW_BACKWARD>;

double goal_of_singles(int order) {
  if (order <= 4) return few_registers ? 2.5 : 2.0;
  if (order <= 6) return few_registers ? 1.3 : 1.05;
  if (order <= 13) return few_registers ? 1.2 : 1.05;
  if (order <= 18) return few_registers ? 1.35 : 1.2;
  return few_registers ? 1.5 : 1.3;
}
double goal_of_doubles(int) { return few_registers ? 1.1 : 1.05; }

}  // namespace

BENCH_FAMILY(fft) {
  transforms<forward_32fc>("FFTFwd_CToC_32fc", all_orders, goal_of_singles);
  transforms<inverse_32fc>("FFTInv_CToC_32fc", all_orders, goal_of_singles);
  transforms<forward_64fc>("FFTFwd_CToC_64fc", all_orders, goal_of_doubles);
  transforms<inverse_64fc>("FFTInv_CToC_64fc", all_orders, goal_of_doubles);
  transforms<forward_32f>("FFTFwd_CToC_32f");
  transforms<inverse_32f>("FFTInv_CToC_32f");
  transforms<forward_64f>("FFTFwd_CToC_64f");
  transforms<inverse_64f>("FFTInv_CToC_64f");
  set_up<forward_32fc>("FFTInitAlloc_C_32fc and Free");
  set_up<forward_32f>("FFTInitAlloc_C_32f and Free");
  set_up<forward_64fc>("FFTInitAlloc_C_64fc and Free");
  set_up<forward_64f>("FFTInitAlloc_C_64f and Free");
}

}  // namespace bench
