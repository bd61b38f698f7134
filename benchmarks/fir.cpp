// FIR filters of several numbers of taps, beside plain loops, a dot product for each output, and overlap-save on FFTW
// built for SSE2.
#include "fir.h"

#include <fftw3.h>
#include <volk/volk.h>

#include <complex>
#include <memory>

#include <liquid/liquid.h>

#include "plain_fir.h"

namespace bench {
namespace {

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

  void run(const T* src, T* dst, int samples) {
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

const char* account_of(int taps) { return taps == 8 ? "FIR, 8 taps" : taps == 32 ? "FIR, 32 taps" : ""; }
double      goal_of(int taps) { return taps <= 8 ? 2.0 : taps < 64 ? 1.0 : 1.1; }

constexpr double rounding = 1e-6;

void singles(int taps) {
  const std::string name = named("FIR_32f", taps);
  const row         r{.name     = name.c_str(),
                      .bytes    = 8,
                      .in_cache = goal_of(taps),
                      .curve    = true,
                      .taps     = taps,
                      .account  = account_of(taps)};
  if (!wanted(r)) return;
  problem<float, float> p(taps);
  FIRState_32f*         state = nullptr;
  tavsFIRInitAlloc_32f(&state, p.h.data(), taps, p.newest_first.data());
  const std::vector<float> reversed(p.h.rbegin(), p.h.rend());
  const firfilt_rrrf       liquid = firfilt_rrrf_create(p.h.data(), unsigned(taps));
  firfilt_rrrf_write(liquid, p.src - taps, unsigned(taps));

  match<float, float> m(r, p.dst, rounding);
  m.add(ours, [&p, state](int n) { tavsFIR_32f(p.src, p.dst, n, state); });
  m.add(loop, [&p](int n) { plain::fir(p.oldest(), p.dst, n, p.h.data(), p.taps()); });
  m.add("loop by taps", [&p](int n) { plain::fir_by_taps(p.oldest(), p.dst, n, p.h.data(), p.taps()); });
  require_confined("volk_32f_x2_dot_prod_32f");
  m.add("VOLK", [&](int n) {
    for (int i = 0; i < n; ++i)
      volk_32f_x2_dot_prod_32f(p.dst + i, p.oldest() + i, reversed.data(), unsigned(p.taps()));
  });
  m.add("liquid-dsp", [&p, liquid](int n) { firfilt_rrrf_execute_block(liquid, p.src, unsigned(n), p.dst); });
  std::unique_ptr<fftw_filter<float>> peer;
  if (taps >= 32) {
    peer = std::make_unique<fftw_filter<float>>(p.h);
    m.add("FFTW SSE2", [&](int n) { peer->run(p.src, p.dst, n); });
  }
  m.hold();
  firfilt_rrrf_destroy(liquid);
  tavsFIRFree_32f(state);
}

void pairs_of_singles(int taps) {
  const std::string name = named("FIR_32fc", taps);
  const row         r{.name = name.c_str(), .bytes = 16, .in_cache = goal_of(taps)};
  if (!wanted(r)) return;
  problem<Tav32fc, Tav32fc> p(taps);
  FIRState_32fc*            state = nullptr;
  tavsFIRInitAlloc_32fc(&state, p.h.data(), taps, p.newest_first.data());
  const auto         standard = [](Tav32fc* v) { return reinterpret_cast<std::complex<float>*>(v); };
  const firfilt_cccf liquid   = firfilt_cccf_create(standard(p.h.data()), unsigned(taps));
  firfilt_cccf_write(liquid, standard(p.src - taps), unsigned(taps));

  match<float, Tav32fc> m(r, p.dst, rounding);
  m.add(ours, [&p, state](int n) { tavsFIR_32fc(p.src, p.dst, n, state); });
  m.add(loop, [&p](int n) { plain::fir(p.oldest(), p.dst, n, p.h.data(), p.taps()); });
  m.add("liquid-dsp", [&p, liquid, standard](int n) {
    firfilt_cccf_execute_block(liquid, standard(p.src), unsigned(n), standard(p.dst));
  });
  fftw_filter<Tav32fc> peer(p.h);
  m.add("FFTW SSE2", [&](int n) { peer.run(p.src, p.dst, n); });
  m.hold();
  firfilt_cccf_destroy(liquid);
  tavsFIRFree_32fc(state);
}

void integers(int taps) {
  const std::string name = named("FIR32f_16s_Sfs", taps);
  const row         r{.name = name.c_str(), .bytes = 4, .in_cache = goal_of(taps)};
  if (!wanted(r)) return;
  problem<int16_t, float> p(taps);
  FIRState32f_16s*        state = nullptr;
  tavsFIRInitAlloc32f_16s(&state, p.h.data(), taps, p.newest_first.data());

  match<int16_t, int16_t> m(r, p.dst, rounding);
  m.add(ours, [&p, state](int n) { tavsFIR32f_16s_Sfs(p.src, p.dst, n, state, -2); });
  m.add(loop, [&p](int n) { plain::fir(p.oldest(), p.dst, n, p.h.data(), p.taps(), -2); });
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
