// FIR filters of several numbers of taps, beside plain loops, a dot product for each output, and overlap-save on FFTW
// built for SSE2.
#include <fftw3.h>
#include <string.h>
#include <volk/volk.h>

#include <memory>

#include "harness.h"
#include "plain_fir.h"

namespace bench {
namespace {

constexpr int samples = 4096;

// A signal with its history in front, taps, and a result.
template <class T, class Tap> struct problem {
  int              taps;
  std::vector<T>   signal;
  std::vector<Tap> h;
  T *              src, *dst = static_cast<T*>(pool(1));

  explicit problem(int n) : taps(n), signal(size_t(samples + n)), h(size_t(n)) {
    fill(signal.data(), signal.size(), 1000);
    fill(h.data(), h.size(), 1.0 / n);
    src = static_cast<T*>(pool(0)) + n;  // the history ends at the array's boundary, more or less
    memcpy(src - (n - 1), signal.data(), sizeof(T) * size_t(samples + n - 1));
  }

  static void fill(auto* x, size_t n, double size) {
    using part    = std::conditional_t<std::is_same_v<decltype(*x), int16_t&>, int16_t, float>;
    auto* const p = reinterpret_cast<part*>(x);
    for (size_t i = 0; i < n * sizeof(*x) / sizeof(part); ++i)
      p[i] = part((double(i * 7919 % 1024) / 1024 - 0.4) * size);
  }
};

// Overlap-save with the product of the spectra in place. The transform is eight times the filter or longer, which
// serves FFTW best.
template <class T> class fftw_filter;

inline int transform_size(int taps) {
  int n = 256;
  while (n < 8 * taps) n *= 2;
  return n;
}

inline fftwf_complex* pairs(void* p) { return static_cast<fftwf_complex*>(p); }

inline void multiply(float* a, const float* b, int pairs_count) {
  for (int i = 0; i < 2 * pairs_count; i += 2) {
    const float re = a[i] * b[i] - a[i + 1] * b[i + 1];
    a[i + 1]       = a[i] * b[i + 1] + a[i + 1] * b[i];
    a[i]           = re;
  }
}

template <class T> class fftw_filter {
 public:
  static constexpr bool real = std::is_same_v<T, float>;

  explicit fftw_filter(const std::vector<T>& h) : taps_(int(h.size())), n_(transform_size(taps_)) {
    block_ = static_cast<T*>(fftwf_malloc(sizeof(T) * size_t(n_)));
    bins_  = static_cast<float*>(fftwf_malloc(8 * size_t(n_ + 2)));
    if constexpr (real) {
      forward_ = fftwf_plan_dft_r2c_1d(n_, block_, pairs(bins_), FFTW_MEASURE);
      inverse_ = fftwf_plan_dft_c2r_1d(n_, pairs(bins_), block_, FFTW_MEASURE);
    } else {
      forward_ = fftwf_plan_dft_1d(n_, pairs(block_), pairs(bins_), FFTW_FORWARD, FFTW_MEASURE);
      inverse_ = fftwf_plan_dft_1d(n_, pairs(bins_), pairs(block_), FFTW_BACKWARD, FFTW_MEASURE);
    }
    memset(static_cast<void*>(block_), 0, sizeof(T) * size_t(n_));
    memcpy(block_, h.data(), sizeof(T) * h.size());
    fftwf_execute(forward_);
    spectrum_.assign(bins_, bins_ + 2 * bins());
    for (float& v : spectrum_) v /= float(n_);
  }
  ~fftw_filter() {
    fftwf_destroy_plan(forward_), fftwf_destroy_plan(inverse_);
    fftwf_free(block_), fftwf_free(bins_);
  }
  fftw_filter(const fftw_filter&)            = delete;
  fftw_filter& operator=(const fftw_filter&) = delete;

  void run(const T* src, T* dst) {
    const int history = taps_ - 1, fresh = n_ - history;
    for (int done = 0; done < samples; done += fresh) {
      const int n = std::min(fresh, samples - done);
      memcpy(block_, src + done - history, sizeof(T) * size_t(history + n));
      memset(static_cast<void*>(block_ + history + n), 0, sizeof(T) * size_t(fresh - n));
      fftwf_execute(forward_);
      multiply(bins_, spectrum_.data(), bins());
      fftwf_execute(inverse_);
      memcpy(dst + done, block_ + history, sizeof(T) * size_t(n));
    }
  }

 private:
  int bins() const { return real ? n_ / 2 + 1 : n_; }

  int                taps_, n_;
  T*                 block_;
  float*             bins_;
  fftwf_plan         forward_, inverse_;
  std::vector<float> spectrum_;
};

template <class T> entry entry_of(const char* name, T run) {
  return {name, [run](benchmark::State& state) {
            for (auto _ : state) {
              run();
              benchmark::ClobberMemory();
            }
          }};
}

// The contenders' results differ by rounding only.
template <class P>
void compare(const row& r, const std::vector<entry>&, const char* who, const std::vector<P>& mine, const P* theirs,
             double tolerance) {
  double error = 0, size = 0;
  for (size_t i = 0; i < mine.size(); ++i)
    error += (mine[i] - theirs[i]) * double(mine[i] - theirs[i]), size += mine[i] * double(mine[i]);
  require_same(r, who, error <= tolerance * size);
}

template <class P, class T> std::vector<P> results(const T* dst) {
  const P* const p = reinterpret_cast<const P*>(dst);
  return {p, p + samples * sizeof(T) / sizeof(P)};
}

double goal_of(int taps) { return taps <= 8 ? 2.0 : taps < 64 ? 1.0 : 1.1; }

// One contest: the contenders by name, each with its run.
template <class P, class T> class match {
 public:
  match(const row& r, const T* dst) : row_(r), dst_(dst) {}

  template <class Run> void add(const char* name, Run run) {
    run();
    if (entries_.empty())
      mine_ = results<P>(dst_);
    else
      compare(row_, entries_, name, mine_, reinterpret_cast<const P*>(dst_), 1e-6);
    entries_.push_back(entry_of(name, run));
  }
  void hold() { measure_point(row_, {samples * sizeof(T), "4096 samples"}, samples, entries_); }

 private:
  row                row_;
  const T*           dst_;
  std::vector<P>     mine_;
  std::vector<entry> entries_;
};

std::string named(const char* function, int taps) {
  return std::string(function) + ", " + std::to_string(taps) + " taps";
}

// The state is primed with the history, so that the first outputs are those of the peers.
void singles(int taps) {
  const std::string name = named("FIR_32f", taps);
  const row         r{.name = name.c_str(), .bytes = 8, .in_cache = goal_of(taps), .in_memory = 0};
  if (!wanted(r)) return;
  problem<float, float> p(taps);
  FIRState_32f*         state = nullptr;
  tavsFIRInitAlloc_32f(&state, p.h.data(), taps, nullptr);
  std::vector<float> newest_first(p.src - taps, p.src), reversed(p.h.rbegin(), p.h.rend());
  std::reverse(newest_first.begin(), newest_first.end());

  match<float, float> m(r, p.dst);
  m.add(ours, [&] {
    tavsFIRSetDlyLine_32f(state, newest_first.data());
    tavsFIR_32f(p.src, p.dst, samples, state);
  });
  m.add(loop, [&] { plain::fir(p.src - (taps - 1), p.dst, samples, p.h.data(), taps); });
  m.add("loop by taps", [&] { plain::fir_by_taps(p.src - (taps - 1), p.dst, samples, p.h.data(), taps); });
  require_confined("volk_32f_x2_dot_prod_32f");
  m.add("VOLK", [&] {
    for (int i = 0; i < samples; ++i)
      volk_32f_x2_dot_prod_32f(p.dst + i, p.src - (taps - 1) + i, reversed.data(), unsigned(taps));
  });
  std::unique_ptr<fftw_filter<float>> peer;
  if (taps >= 32) {
    peer = std::make_unique<fftw_filter<float>>(p.h);
    m.add("FFTW SSE2", [&] { peer->run(p.src, p.dst); });
  }
  m.hold();
  tavsFIRFree_32f(state);
}

void pairs_of_singles(int taps) {
  const std::string name = named("FIR_32fc", taps);
  const row         r{.name = name.c_str(), .bytes = 16, .in_cache = goal_of(taps), .in_memory = 0};
  if (!wanted(r)) return;
  problem<Tav32fc, Tav32fc> p(taps);
  FIRState_32fc*            state = nullptr;
  tavsFIRInitAlloc_32fc(&state, p.h.data(), taps, nullptr);
  std::vector<Tav32fc> newest_first(p.src - taps, p.src);
  std::reverse(newest_first.begin(), newest_first.end());

  match<float, Tav32fc> m(r, p.dst);
  m.add(ours, [&] {
    tavsFIRSetDlyLine_32fc(state, newest_first.data());
    tavsFIR_32fc(p.src, p.dst, samples, state);
  });
  m.add(loop, [&] { plain::fir(p.src - (taps - 1), p.dst, samples, p.h.data(), taps); });
  fftw_filter<Tav32fc> peer(p.h);
  m.add("FFTW SSE2", [&] { peer.run(p.src, p.dst); });
  m.hold();
  tavsFIRFree_32fc(state);
}

void integers(int taps) {
  const std::string name = named("FIR32f_16s_Sfs", taps);
  const row         r{.name = name.c_str(), .bytes = 4, .in_cache = goal_of(taps), .in_memory = 0};
  if (!wanted(r)) return;
  problem<int16_t, float> p(taps);
  FIRState32f_16s*        state = nullptr;
  tavsFIRInitAlloc32f_16s(&state, p.h.data(), taps, nullptr);
  std::vector<int16_t> newest_first(p.src - taps, p.src);
  std::reverse(newest_first.begin(), newest_first.end());

  match<int16_t, int16_t> m(r, p.dst);
  m.add(ours, [&] {
    tavsFIRSetDlyLine32f_16s(state, newest_first.data());
    tavsFIR32f_16s_Sfs(p.src, p.dst, samples, state, -2);
  });
  m.add(loop, [&] { plain::fir(p.src - (taps - 1), p.dst, samples, p.h.data(), taps, -2); });
  m.hold();
  tavsFIRFree32f_16s(state);
}

}  // namespace

BENCH_FAMILY(fir) {
  for (int taps : {8, 32, 64, 256, 1024}) singles(taps);
  for (int taps : {32, 256}) pairs_of_singles(taps);
  for (int taps : {32, 256}) integers(taps);
}

}  // namespace bench
