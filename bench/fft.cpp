// Complex transforms of power-of-two length, interleaved and split, beside FFTW built for SSE2.
#include <fftw3.h>

#include <memory>

#include "harness.h"

namespace bench {
namespace {

// FFTW in both precisions under one name.
struct singles {
  using part                    = Tav32f;
  using sample                  = Tav32fc;
  using context                 = FftContext_C_32fc;
  using split_context           = FftContext_C_32f;
  using plan                    = fftwf_plan;
  static constexpr auto destroy = fftwf_destroy_plan;
  static constexpr auto execute = fftwf_execute;

  static constexpr auto make = tavsFFTInitAlloc_C_32fc;
  static constexpr auto free = tavsFFTFree_C_32fc;
  static constexpr auto size = tavsFFTGetBufSize_C_32fc;
  static constexpr auto run  = tavsFFTFwd_CToC_32fc;
  static constexpr auto self = tavsFFTFwd_CToC_32fc_I;

  static constexpr auto split_make = tavsFFTInitAlloc_C_32f;
  static constexpr auto split_free = tavsFFTFree_C_32f;
  static constexpr auto split_run  = tavsFFTFwd_CToC_32f;

  static plan interleaved(int n, part* in, part* out) {
    return fftwf_plan_dft_1d(n, reinterpret_cast<fftwf_complex*>(in), reinterpret_cast<fftwf_complex*>(out),
                             FFTW_FORWARD, FFTW_MEASURE);
  }
  static plan split(int n, part* in, part* out) {
    const fftwf_iodim length{n, 1, 1};
    return fftwf_plan_guru_split_dft(1, &length, 0, nullptr, in, in + n, out, out + n, FFTW_MEASURE);
  }
};

struct doubles {
  using part                    = Tav64f;
  using sample                  = Tav64fc;
  using context                 = FftContext_C_64fc;
  using split_context           = FftContext_C_64f;
  using plan                    = fftw_plan;
  static constexpr auto destroy = fftw_destroy_plan;
  static constexpr auto execute = fftw_execute;

  static constexpr auto make = tavsFFTInitAlloc_C_64fc;
  static constexpr auto free = tavsFFTFree_C_64fc;
  static constexpr auto size = tavsFFTGetBufSize_C_64fc;
  static constexpr auto run  = tavsFFTFwd_CToC_64fc;
  static constexpr auto self = tavsFFTFwd_CToC_64fc_I;

  static constexpr auto split_make = tavsFFTInitAlloc_C_64f;
  static constexpr auto split_free = tavsFFTFree_C_64f;
  static constexpr auto split_run  = tavsFFTFwd_CToC_64f;

  static plan interleaved(int n, part* in, part* out) {
    return fftw_plan_dft_1d(n, reinterpret_cast<fftw_complex*>(in), reinterpret_cast<fftw_complex*>(out), FFTW_FORWARD,
                            FFTW_MEASURE);
  }
  static plan split(int n, part* in, part* out) {
    const fftw_iodim length{n, 1, 1};
    return fftw_plan_guru_split_dft(1, &length, 0, nullptr, in, in + n, out, out + n, FFTW_MEASURE);
  }
};

template <class P> void fill(typename P::part* x, int n) {
  for (int i = 0; i < 2 * n; ++i) x[i] = typename P::part((i * 7919 % 1024) / 1024.0 - 0.5);
}

// The contenders' results differ by rounding only.
template <class P> bool alike(const typename P::part* a, const typename P::part* b, int n) {
  double error = 0, size = 0;
  for (int i = 0; i < 2 * n; ++i) error += (a[i] - b[i]) * double(a[i] - b[i]), size += a[i] * double(a[i]);
  return error <= 1e-10 * size;
}

// One length: ours and FFTW's, from the first array of the pool to the others; our work area lies behind.
template <class P> class length {
 public:
  using T = typename P::part;

  explicit length(int order) : n_(1 << order) {
    int size = 0;
    P::make(&context_, order, fftScaleNone, 0);
    P::split_make(&split_context_, order, fftScaleNone, 0);
    P::size(context_, &size);
    work_ = std::make_unique<Tav8u[]>(size_t(size) + 1);
    plan_ = P::interleaved(n_, in_, out_), split_plan_ = P::split(n_, in_, out_);
    fill<P>(in_, n_);
  }
  ~length() {
    P::free(context_), P::split_free(split_context_);
    P::destroy(plan_), P::destroy(split_plan_);
  }
  length(const length&)            = delete;
  length& operator=(const length&) = delete;

  void run() { P::run(samples(in_), samples(out_), context_, work_.get()); }
  void run_split() { P::split_run(in_, in_ + n_, out_, out_ + n_, split_context_, work_.get()); }
  void run_peer() { P::execute(plan_); }
  void run_split_peer() { P::execute(split_plan_); }

  void compare(const row& r, void (length::*ours_run)(), void (length::*peer)()) {
    (this->*ours_run)();
    const std::vector<T> mine(out_, out_ + 2 * n_);
    (this->*peer)();
    require_same(r, "FFTW", alike<P>(mine.data(), out_, n_));
  }

 private:
  static typename P::sample* samples(T* p) { return reinterpret_cast<typename P::sample*>(p); }

  int                        n_;
  T *                        in_ = static_cast<T*>(pool(0)), *out_ = static_cast<T*>(pool(1));
  typename P::context*       context_       = nullptr;
  typename P::split_context* split_context_ = nullptr;
  typename P::plan           plan_, split_plan_;
  std::unique_ptr<Tav8u[]>   work_;
};

template <class P, class L = length<P>>
void transforms(const char* name, bool split, const std::vector<int>& orders, double (*goal)(int order)) {
  for (int order : orders) {
    const std::string place = "2^" + std::to_string(order);
    row               r{.name = name, .bytes = 2 * sizeof(typename P::sample), .in_cache = goal(order)};
    r.in_memory = r.in_cache;
    if (!wanted(r)) return;
    L          l(order);
    const auto ours_run = split ? &L::run_split : &L::run, peer = split ? &L::run_split_peer : &L::run_peer;
    l.compare(r, ours_run, peer);
    const auto entry_of = [&l](const char* contender, void (L::*run)()) {
      return entry{contender, [&l, run](benchmark::State& state) {
                     for (auto _ : state) {
                       (l.*run)();
                       benchmark::ClobberMemory();
                     }
                   }};
    };
    measure_point(r, {sizeof(typename P::sample) << order, place.c_str()}, 1 << order,
                  {entry_of(ours, ours_run), entry_of("FFTW SSE2", peer)});
  }
}

constexpr bool few_registers = sizeof(void*) == 4;

double goal_of_singles(int order) {
  if (order <= 4) return few_registers ? 2.5 : 2.0;
  if (order <= 6) return few_registers ? 1.3 : 1.05;
  if (order <= 13) return few_registers ? 1.2 : 1.05;
  if (order <= 18) return few_registers ? 1.35 : 1.2;
  return few_registers ? 1.5 : 1.3;
}
double goal_of_doubles(int) { return few_registers ? 1.1 : 1.05; }
double no_goal(int) { return 0; }

const std::vector<int> all_orders{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
const std::vector<int> few_orders{4, 6, 8, 10, 12, 14, 16, 18};

}  // namespace

BENCH_FAMILY(fft) {
  transforms<singles>("FFTFwd_CToC_32fc", false, all_orders, goal_of_singles);
  transforms<doubles>("FFTFwd_CToC_64fc", false, all_orders, goal_of_doubles);
  transforms<singles>("FFTFwd_CToC_32f", true, few_orders, no_goal);
  transforms<doubles>("FFTFwd_CToC_64f", true, few_orders, no_goal);
}

}  // namespace bench
