// Real transforms of power-of-two length in the three packed formats, and what their set-up costs.
#include <algorithm>

#include "fft.h"

namespace bench {
namespace {

// A format makes its spectrum of FFTW's, which are the bins 0 to N/2 as pairs.
struct ccs {
  template <class T> static std::vector<T> packed(std::vector<T> bins) { return bins; }
};
struct pack {
  template <class T> static std::vector<T> packed(std::vector<T> bins) {
    bins.erase(bins.begin() + 1);
    bins.pop_back();
    return bins;
  }
};
struct perm {
  template <class T> static std::vector<T> packed(std::vector<T> bins) {
    bins[1] = bins[bins.size() - 2];
    bins.resize(bins.size() - 2);
    return bins;
  }
};

template <class Context, class T, auto* Run, class Format> class forward {
 public:
  using context                    = Context;
  static constexpr int point_bytes = sizeof(T);

  explicit forward(int order)
      : n_(1 << order),
        context_(order),
        peer_(fftw<T>::plan_real(n_, in_, pooled<typename fftw<T>::pair>(1), FFTW_MEASURE)) {}

  void run() { Run(in_, out_, context_.get(), context_.work()); }
  void run_peer() { peer_.execute(); }
  bool same() {
    fill(in_, size_t(n_));
    run_peer();
    const std::vector<T> right = Format::packed(values_of(out_, size_t(n_) + 2));
    run();
    return alike(right, values_of(out_, right.size()));
  }

 private:
  int             n_;
  T *             in_ = pooled<T>(0), *out_ = pooled<T>(1);
  Context         context_;
  fftw_plan_of<T> peer_;
};

// FFTW destroys its source, which therefore is an array of its own, and zero when times are taken: of anything else it
// would make infinities in the end.
template <class Context, class T, auto* Run, class Format> class inverse {
 public:
  using context                    = Context;
  static constexpr int point_bytes = sizeof(T);

  explicit inverse(int order)
      : n_(1 << order),
        context_(order),
        peer_(fftw<T>::plan_from_real(n_, pooled<typename fftw<T>::pair>(2), out_, FFTW_MEASURE)) {}

  void run() { Run(in_, out_, context_.get(), context_.work()); }
  void run_peer() { peer_.execute(); }
  bool same() {
    T* const     bins  = pooled<T>(2);
    const size_t slots = size_t(n_) + 2;
    fill(bins, slots);
    bins[1] = bins[n_ + 1]    = 0;
    const std::vector<T> mine = Format::packed(values_of(bins, slots));
    run_peer();
    const std::vector<T> right = values_of(out_, size_t(n_));
    std::fill(bins, bins + slots, T(0));

    std::copy(mine.begin(), mine.end(), in_);
    run();
    return alike(right, values_of(out_, size_t(n_)));
  }

 private:
  int             n_;
  T *             in_ = pooled<T>(0), *out_ = pooled<T>(1);
  Context         context_;
  fftw_plan_of<T> peer_;
};

using of_32f = BENCH_FFT_CONTEXT(R_32f);
using of_64f = BENCH_FFT_CONTEXT(R_64f);

double goal(int) { return few_registers ? 1.1 : 1.05; }

}  // namespace

BENCH_FAMILY(fft_real) {
  transforms<forward<of_32f, Tav32f, &tavsFFTFwd_RToPerm_32f, perm>>("FFTFwd_RToPerm_32f", all_orders, goal);
  transforms<inverse<of_32f, Tav32f, &tavsFFTInv_PermToR_32f, perm>>("FFTInv_PermToR_32f", all_orders, goal);
  transforms<forward<of_64f, Tav64f, &tavsFFTFwd_RToPerm_64f, perm>>("FFTFwd_RToPerm_64f", all_orders, goal);
  transforms<inverse<of_64f, Tav64f, &tavsFFTInv_PermToR_64f, perm>>("FFTInv_PermToR_64f", all_orders, goal);
  transforms<forward<of_32f, Tav32f, &tavsFFTFwd_RToCCS_32f, ccs>>("FFTFwd_RToCCS_32f");
  transforms<inverse<of_32f, Tav32f, &tavsFFTInv_CCSToR_32f, ccs>>("FFTInv_CCSToR_32f");
  transforms<forward<of_32f, Tav32f, &tavsFFTFwd_RToPack_32f, pack>>("FFTFwd_RToPack_32f");
  transforms<inverse<of_32f, Tav32f, &tavsFFTInv_PackToR_32f, pack>>("FFTInv_PackToR_32f");
  transforms<forward<of_64f, Tav64f, &tavsFFTFwd_RToCCS_64f, ccs>>("FFTFwd_RToCCS_64f");
  transforms<inverse<of_64f, Tav64f, &tavsFFTInv_CCSToR_64f, ccs>>("FFTInv_CCSToR_64f");
  transforms<forward<of_64f, Tav64f, &tavsFFTFwd_RToPack_64f, pack>>("FFTFwd_RToPack_64f");
  transforms<inverse<of_64f, Tav64f, &tavsFFTInv_PackToR_64f, pack>>("FFTInv_PackToR_64f");
  set_up<forward<of_32f, Tav32f, &tavsFFTFwd_RToPerm_32f, perm>>("FFTInitAlloc_R_32f and Free");
  set_up<forward<of_64f, Tav64f, &tavsFFTFwd_RToPerm_64f, perm>>("FFTInitAlloc_R_64f and Free");
}

}  // namespace bench
