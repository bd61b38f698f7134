// What a Fourier transform must do, whatever its length: an impulse becomes a row of roots of unity, a shift turns the
// spectrum, sums go through, the power stays, and the other direction brings the points back.
//
// Each bound follows from the error that one transform may have.
#pragma once
#include "oracle/roots_of_unity.h"
#include "transform/fft_runs.h"

namespace test {

template <class F, bool Inverse> class fft_properties {
 public:
  using T = typename F::part;
  using C = typename F::sample;

  explicit fft_properties(int order)
      : order_(order),
        n_(size_t(1) << order),
        limit_(oracle::error_limit<T>(order)),
        root_(order),
        context_(order, fftScaleNone),
        room_(n_) {}

  void check() {
    SCOPED_TRACE(testing::Message() << "order " << order_ << (Inverse ? ", inverse" : ", forward"));
    impulses();
    const points<F> x = steps(uint32_t(order_)), spectrum = run(x);
    keeps_power(x, spectrum);
    comes_back(x, spectrum);
    goes_through_sums(x, spectrum);
    for (size_t by : {size_t(1), n_ / 2, n_ / 8 * 3 + 5}) turns_with_shift(x, spectrum, by % n_);
    is_the_same_anywhere(x, spectrum);
  }

 private:
  using wide = oracle::wide_complex;

  static wide as_wide(const C& v) { return {v.re, v.im}; }

  // Norms of a signal, and of its difference from what is right.
  static long double size(const points<F>& x) {
    long double sum = 0;
    for (const C& v : x) sum += std::norm(as_wide(v));
    return sqrtl(sum);
  }
  template <class Right> static long double error(const points<F>& is, const Right& right) {
    long double sum = 0;
    for (size_t k = 0; k < is.size(); ++k) sum += std::norm(as_wide(is[k]) - right(k));
    return sqrtl(sum);
  }

  points<F> run(const points<F>& x, const fft_layout& l = {}) { return room_.template run<Inverse>(x, context_, l); }

  // exp(+-2 pi i k m / n), as the direction has it
  wide turn(uint64_t k, uint64_t m) const { return Inverse ? root_(k * m) : std::conj(root_(k * m)); }

  // Multiples of 2^-11 between -1 and 1: sums of a few of them are exact.
  points<F> steps(uint32_t seed) const {
    source_of_data data(seed);
    points<F>      x(n_);
    const auto     v = [&] { return T(data.below(4096) - 2048) / 2048; };
    for (C& point : x) point = {v(), v()};
    return x;
  }

  void impulses() {
    const C value{T(0.75), T(-0.5)};
    for (size_t at : {size_t(0), size_t(1), n_ / 2, n_ - 1, n_ / 8 * 5 + 77}) {
      at %= n_;
      const auto right = [&](size_t k) { return oracle::product(as_wide(value), turn(k, at)); };
      const auto is    = run(impulse<F>(n_, at, value));
      EXPECT_LE(error(is, right), limit_ * sqrtl(n_) * std::abs(as_wide(value))) << "impulse at " << at;
    }
  }

  void keeps_power(const points<F>& x, const points<F>& spectrum) {
    const long double right = size(x) * sqrtl(n_);
    EXPECT_LE(fabsl(size(spectrum) - right), limit_ * right) << "power";
  }

  void comes_back(const points<F>& x, const points<F>& spectrum) {
    const auto back = room_.template run<!Inverse>(spectrum, context_, {{}, {}, true, 5});
    const auto n    = (long double)n_;
    EXPECT_LE(error(back, [&](size_t i) { return n * as_wide(x[i]); }), 2 * limit_ * n * size(x)) << "round trip";
  }

  void goes_through_sums(const points<F>& x, const points<F>& spectrum) {
    const wide      a{3, -2}, b{-1, 4};
    const points<F> y = steps(uint32_t(order_) + 100), other = run(y);
    points<F>       z(n_);
    for (size_t i = 0; i < n_; ++i) {
      const wide sum = oracle::product(a, as_wide(x[i])) + oracle::product(b, as_wide(y[i]));
      z[i]           = {T(sum.real()), T(sum.imag())};
    }
    const points<F> is = run(z);

    const auto right = [&](size_t k) {
      return oracle::product(a, as_wide(spectrum[k])) + oracle::product(b, as_wide(other[k]));
    };
    EXPECT_LE(error(is, right), limit_ * (size(is) + std::abs(a) * size(spectrum) + std::abs(b) * size(other)))
        << "linearity";
  }

  void turns_with_shift(const points<F>& x, const points<F>& spectrum, size_t by) {
    points<F> shifted(n_);
    for (size_t i = 0; i < n_; ++i) shifted[(i + by) % n_] = x[i];
    const auto right = [&](size_t k) { return oracle::product(as_wide(spectrum[k]), turn(k, by)); };
    EXPECT_LE(error(run(shifted), right), 2 * limit_ * size(spectrum)) << "shift by " << by;
  }

  void is_the_same_anywhere(const points<F>& x, const points<F>& spectrum) {
    using p                     = placement;
    const fft_layout in_place   = {{}, {}, true, -1};
    const fft_layout odd        = {{p::inside, 4}, {p::inside, 12}, false, 3};
    const fft_layout odd_itself = {{}, {p::inside, 4}, true, 1};
    EXPECT_EQ(first_difference(run(x, in_place), spectrum), -1) << "in place";
    EXPECT_EQ(first_difference(run(x, odd), spectrum), -1) << "unaligned";
    EXPECT_EQ(first_difference(run(x, odd_itself), spectrum), -1) << "in place, unaligned";
  }

  int                    order_;
  size_t                 n_;
  long double            limit_;
  oracle::roots_of_unity root_;
  fft_context<F>         context_;
  fft_room<F>            room_;
};

template <class F> void check_properties(int order) {
  each_build<F::forward>([&] {
    fft_properties<F, false>(order).check();
    fft_properties<F, true>(order).check();
  });
}

}  // namespace test
