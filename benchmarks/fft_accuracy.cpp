// The error of the transforms beside FFTW's: a program of its own, which prints two tables.
//
// An error is the norm of the difference from the transform in long double, relative to the norm of that, over noise.
// It should be at most 1.05 times FFTW's. FFTW plans by estimate here, so that each run prints the same.
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include "fft_calls.h"
#include "oracle/fft.h"

namespace bench {
namespace {

constexpr int    first_order = 1, last_order = 16;
constexpr size_t points_tried = 1 << 16;
constexpr double limit        = 1.05;

using wide = std::vector<long double>;

template <class T> std::vector<T> noise(size_t n, unsigned seed) {
  std::mt19937   bits(seed);
  std::vector<T> x(n);
  const auto     value = [&] { return T(int32_t(bits())) / T(1u << 31); };
  for (T& v : x) v = value() + value() / T(1u << 31);  // all bits of a double
  return x;
}

// Points as pairs of parts, in long double.
wide transformed(const wide& x, int sign) {
  std::vector<oracle::wide_complex> points(x.size() / 2);
  for (size_t i = 0; i < points.size(); ++i) points[i] = {x[2 * i], x[2 * i + 1]};
  oracle::transform(points, sign);
  wide result;
  for (const auto& p : points) result.insert(result.end(), {p.real(), p.imag()});
  return result;
}

// A kind of transform has a source of noise, what is right for it, and the results of FFTW and of ours, all in the
// layout of FFTW. The complex ones, of either sign:
template <class T_, int Sign> struct complex_kind {
  using T = T_;
  static std::vector<T> source(size_t n, unsigned seed) { return noise<T>(2 * n, seed); }
  static wide           right(const wide& x) { return transformed(x, Sign); }
  static std::vector<T> peer(std::vector<T> x) {
    auto* const p = reinterpret_cast<typename fftw<T>::pair*>(x.data());
    fftw_plan_of<T>(fftw<T>::plan_complex(int(x.size() / 2), p, p, Sign, FFTW_ESTIMATE)).execute();
    return x;
  }
};

template <class Context, class C, auto* Run, int Sign> struct interleaved : complex_kind<decltype(C::re), Sign> {
  using T       = decltype(C::re);
  using context = Context;
  static std::vector<T> ours(const Context& context, std::vector<T> x) {
    C* const p = reinterpret_cast<C*>(x.data());
    Run(p, p, context.get(), context.work());
    return x;
  }
};

template <class Context, class T, auto* Run, int Sign> struct split : complex_kind<T, Sign> {
  using context = Context;
  static std::vector<T> ours(const Context& context, std::vector<T> x) {
    const size_t   n = x.size() / 2;
    std::vector<T> re(n), im(n);
    for (size_t i = 0; i < n; ++i) re[i] = x[2 * i], im[i] = x[2 * i + 1];
    Run(re.data(), im.data(), re.data(), im.data(), context.get(), context.work());
    for (size_t i = 0; i < n; ++i) x[2 * i] = re[i], x[2 * i + 1] = im[i];
    return x;
  }
};

template <class Context, class T_, auto* Run> struct real_forward {
  using T       = T_;
  using context = Context;
  static std::vector<T> source(size_t n, unsigned seed) { return noise<T>(n, seed); }
  static wide           right(const wide& x) {
              wide pairs(2 * x.size());
              for (size_t i = 0; i < x.size(); ++i) pairs[2 * i] = x[i];
    wide bins = transformed(pairs, -1);
              bins.resize(x.size() + 2);
              return bins;
  }
  static std::vector<T> peer(std::vector<T> x) {
    std::vector<T> bins(x.size() + 2);
    auto* const    p = reinterpret_cast<typename fftw<T>::pair*>(bins.data());
    fftw_plan_of<T>(fftw<T>::plan_real(int(x.size()), x.data(), p, FFTW_ESTIMATE)).execute();
    return bins;
  }
  static std::vector<T> ours(const Context& context, const std::vector<T>& x) {
    std::vector<T> bins(x.size() + 2);
    Run(x.data(), bins.data(), context.get(), context.work());
    return bins;
  }
};

template <class Context, class T_, auto* Run> struct real_inverse {
  using T       = T_;
  using context = Context;
  static std::vector<T> source(size_t n, unsigned seed) {
    std::vector<T> bins = noise<T>(n + 2, seed);
    bins[1] = bins[n + 1] = 0;
    return bins;
  }
  static wide right(const wide& bins) {
    const size_t n = bins.size() - 2;
    wide         all(bins), samples;
    for (size_t k = n / 2 - 1; k > 0; --k) all.insert(all.end(), {bins[2 * k], -bins[2 * k + 1]});
    all = transformed(all, 1);
    for (size_t i = 0; i < n; ++i) samples.push_back(all[2 * i]);
    return samples;
  }
  static std::vector<T> peer(std::vector<T> bins) {
    std::vector<T> x(bins.size() - 2);
    auto* const    p = reinterpret_cast<typename fftw<T>::pair*>(bins.data());
    fftw_plan_of<T>(fftw<T>::plan_from_real(int(x.size()), p, x.data(), FFTW_ESTIMATE)).execute();
    return x;
  }
  static std::vector<T> ours(const Context& context, const std::vector<T>& bins) {
    std::vector<T> x(bins.size() - 2);
    Run(bins.data(), x.data(), context.get(), context.work());
    return x;
  }
};

template <class T> long double squared_error(const std::vector<T>& is, const wide& right) {
  long double error = 0, size = 0;
  for (size_t i = 0; i < right.size(); ++i)
    error += (is[i] - right[i]) * (is[i] - right[i]), size += right[i] * right[i];
  return error / size;
}

struct errors {
  double ours, peer;
};

template <class Kind> errors errors_of(int order) {
  const size_t                 n = size_t(1) << order;
  const typename Kind::context context(order);
  long double                  mine = 0, peers = 0;
  const unsigned               rounds = unsigned(std::max<size_t>(points_tried / n, 4));
  for (unsigned seed = 0; seed < rounds; ++seed) {
    const auto x     = Kind::source(n, seed * 100 + unsigned(order));
    const wide right = Kind::right(wide(x.begin(), x.end()));
    mine += squared_error(Kind::ours(context, x), right);
    peers += squared_error(Kind::peer(x), right);
  }
  return {double(sqrtl(mine / rounds)), double(sqrtl(peers / rounds))};
}

struct column {
  const char* name;
  double      epsilon;
  errors (*of)(int order);
};
template <class Kind> column column_of(const char* name) {
  return {name, std::numeric_limits<typename Kind::T>::epsilon(), errors_of<Kind>};
}

using c_32fc = BENCH_FFT_CONTEXT(C_32fc);
using c_32f  = BENCH_FFT_CONTEXT(C_32f);
using c_64fc = BENCH_FFT_CONTEXT(C_64fc);
using c_64f  = BENCH_FFT_CONTEXT(C_64f);
using r_32f  = BENCH_FFT_CONTEXT(R_32f);
using r_64f  = BENCH_FFT_CONTEXT(R_64f);

const column columns[] = {
    column_of<interleaved<c_32fc, Tav32fc, &tavsFFTFwd_CToC_32fc, -1>>("Fwd_CToC_32fc"),
    column_of<interleaved<c_32fc, Tav32fc, &tavsFFTInv_CToC_32fc, 1>>("Inv_CToC_32fc"),
    column_of<split<c_32f, Tav32f, &tavsFFTFwd_CToC_32f, -1>>("Fwd_CToC_32f"),
    column_of<split<c_32f, Tav32f, &tavsFFTInv_CToC_32f, 1>>("Inv_CToC_32f"),
    column_of<real_forward<r_32f, Tav32f, &tavsFFTFwd_RToCCS_32f>>("Fwd_RToCCS_32f"),
    column_of<real_inverse<r_32f, Tav32f, &tavsFFTInv_CCSToR_32f>>("Inv_CCSToR_32f"),
    column_of<interleaved<c_64fc, Tav64fc, &tavsFFTFwd_CToC_64fc, -1>>("Fwd_CToC_64fc"),
    column_of<interleaved<c_64fc, Tav64fc, &tavsFFTInv_CToC_64fc, 1>>("Inv_CToC_64fc"),
    column_of<split<c_64f, Tav64f, &tavsFFTFwd_CToC_64f, -1>>("Fwd_CToC_64f"),
    column_of<split<c_64f, Tav64f, &tavsFFTInv_CToC_64f, 1>>("Inv_CToC_64f"),
    column_of<real_forward<r_64f, Tav64f, &tavsFFTFwd_RToCCS_64f>>("Fwd_RToCCS_64f"),
    column_of<real_inverse<r_64f, Tav64f, &tavsFFTInv_CCSToR_64f>>("Inv_CCSToR_64f"),
};

int print_tables() {
  printf("Relative error in units of epsilon, tavSP / FFTW:\n\n| function |");
  for (int order = first_order; order <= last_order; ++order) printf(" 2^%d |", order);
  printf(" worst ratio |\n|---|");
  for (int order = first_order; order <= last_order + 1; ++order) printf("--:|");
  printf("\n");
  int above = 0;
  for (const column& c : columns) {
    double worst = 0;
    int    where = 0;
    printf("| %s |", c.name);
    for (int order = first_order; order <= last_order; ++order) {
      const errors e = c.of(order);
      printf(" %.3f / %.3f |", e.ours / c.epsilon, e.peer / c.epsilon);
      const double ratio = e.ours / std::max(e.peer, 0.01 * c.epsilon);  // nothing to compare where FFTW is exact
      if (ratio > worst) worst = ratio, where = order;
    }
    printf(" %.2f at 2^%d%s |\n", worst, where, worst > limit ? ", **above the limit**" : "");
    above += worst > limit;
  }
  return above;
}

}  // namespace
}  // namespace bench

int main() { return bench::print_tables() == 0 ? 0 : 1; }
