// The real transforms of floats, in all formats: against the definition in long double, in every layout with the same
// bits, and there and back where the definition would take too long.
#include <gtest/gtest.h>

#include "oracle/fft.h"
#include "transform/fft_calls.h"

using namespace test;

namespace {

template <class F> class FftReal : public testing::Test {};
using families = testing::Types<fft_perm_32f, fft_pack_32f, fft_ccs_32f, fft_perm_64f, fft_pack_64f, fft_ccs_64f>;
TYPED_TEST_SUITE(FftReal, families);

using wide_values = std::vector<long double>;

template <class F> constexpr size_t slots(size_t n) {
  return F::format != spectrum_format::ccs ? n : n == 1 ? 2 : n + 2;
}

// Slot by slot from bins 0 ... N/2, and back.
template <class F> wide_values packed(const std::vector<oracle::wide_complex>& bins, size_t n) {
  wide_values x(slots<F>(n));
  if (F::format == spectrum_format::ccs) {
    for (size_t i = 0; i < x.size(); ++i) x[i] = i % 2 == 0 ? bins[i / 2].real() : bins[i / 2].imag();
    return x;
  }
  const bool pack = F::format == spectrum_format::pack;
  x[0]            = bins[0].real();
  if (n > 1) x[pack ? n - 1 : 1] = bins[n / 2].real();
  for (size_t k = 1; k < n / 2; ++k) {
    x[2 * k - pack]     = bins[k].real();
    x[2 * k - pack + 1] = bins[k].imag();
  }
  return x;
}
template <class F> std::vector<oracle::wide_complex> unpacked(const std::vector<typename F::part>& x, size_t n) {
  const bool                        pack = F::format == spectrum_format::pack;
  std::vector<oracle::wide_complex> bins(n / 2 + 1);
  bins[0] = x[0];
  if (n > 1) bins[n / 2] = x[F::format == spectrum_format::perm ? 1 : pack ? n - 1 : n];
  for (size_t k = 1; k < n / 2; ++k) bins[k] = {x[2 * k - pack], x[2 * k - pack + 1]};
  return bins;
}

template <class F> wide_values forward_by_definition(const std::vector<typename F::part>& x) {
  std::vector<oracle::wide_complex> points(x.begin(), x.end());
  oracle::transform(points, -1);
  points.resize(x.size() / 2 + 1);
  points[0] = points[0].real();
  if (x.size() > 1) points.back() = points.back().real();
  return packed<F>(points, x.size());
}
template <class F> wide_values inverse_by_definition(const std::vector<typename F::part>& x, size_t n) {
  std::vector<oracle::wide_complex> bins = unpacked<F>(x, n);
  bins.resize(n);
  for (size_t k = 1; k < n / 2; ++k) bins[n - k] = std::conj(bins[k]);
  oracle::transform(bins, 1);
  wide_values samples(n);
  for (size_t i = 0; i < n; ++i) samples[i] = bins[i].real();
  return samples;
}

template <class T> std::vector<T> noise(size_t n, uint32_t seed) {
  source_of_data data(seed);
  std::vector<T> x(n);
  for (T& v : x) v = T(int32_t(data.bits())) / T(1u << 31);
  return x;
}

template <class T> long double relative_error(const std::vector<T>& is, const wide_values& right) {
  long double error = 0, size = 0;
  for (size_t i = 0; i < right.size(); ++i) {
    error += (right[i] - is[i]) * (right[i] - is[i]);
    size += right[i] * right[i];
  }
  return sqrtl(error / size);
}

struct homes {
  arena source, dst, work;
  explicit homes(size_t bytes) : source(bytes), dst(bytes), work(2 * bytes + 4096) {}
};

// One call in that layout, with `made` elements of result; the guards of the arrays and of the work area are looked at.
template <class F, bool Inverse>
std::vector<typename F::part> transformed(const std::vector<typename F::part>& x, size_t made, size_t n,
                                          const fft_context<F>& context, const fft_layout& l, homes& h) {
  using T = typename F::part;
  array<T> src(h.source, x.size(), l.src), dst(h.dst, l.in_place ? std::max(made, x.size()) : made, l.dst);
  src.assign(x);
  if (l.in_place) memcpy(static_cast<void*>(dst.data()), x.data(), x.size() * sizeof(T));
  const int    size = context.buf_size();
  array<Tav8u> work(h.work, size_t(size), {placement::inside, unsigned(l.buf_offset < 0 ? 0 : l.buf_offset)});
  Tav8u*       buf  = l.buf_offset < 0 ? nullptr : work.data();
  const T*     read = l.in_place ? dst.data() : src.data();
  EXPECT_EQ((run_fft<F, Inverse>(read, dst.data(), n, context.get(), buf)), tavStatusOk);
  EXPECT_EQ(first_difference(src.values(), x), -1) << "the source was written";
  EXPECT_TRUE(src.guards_intact() && dst.guards_intact() && work.guards_intact());
  std::vector<T> y = dst.values();
  y.resize(made);
  return y;
}

std::vector<fft_layout> layouts() {
  using p = placement;
  return {{{p::inside, 0}, {p::inside, 0}, false, 0},         {{p::inside, 0}, {p::inside, 0}, true, 0},
          {{p::inside, 4}, {p::inside, 0}, false, 1},         {{p::inside, 0}, {p::inside, 8}, false, 15},
          {{p::inside, 12}, {p::inside, 4}, false, -1},       {{p::inside, 0}, {p::inside, 12}, true, 7},
          {{p::begins_at_page}, {p::ends_at_page}, false, 3}, {{p::ends_at_page}, {p::begins_at_page}, false, 9},
          {{p::inside, 3}, {p::inside, 5}, false, 2},         {{p::inside, 0}, {p::ends_at_page}, true, -1}};
}

template <class F, bool Inverse> void check_against_definition(int order, int flag, long double factor) {
  using T                = typename F::part;
  const size_t         n = size_t(1) << order, from = Inverse ? n == 1 ? 1 : slots<F>(n) : n;
  const size_t         made = Inverse ? n : slots<F>(n);
  const std::vector<T> x    = noise<T>(from, uint32_t(order * 10 + flag));
  wide_values          right;
  if (Inverse)
    right = inverse_by_definition<F>(x, n);
  else
    right = forward_by_definition<F>(x);
  for (auto& v : right) v *= factor;
  homes h((n + 2) * sizeof(T) + 64);
  each_build<F::forward>([&] {
    const fft_context<F> context(order, flag);
    std::vector<T>       first;
    for (const fft_layout& l : layouts()) {
      SCOPED_TRACE(testing::Message() << "order " << order << ", flag " << flag << (Inverse ? ", inverse" : ", forward")
                                      << ", src " << l.src << ", dst " << l.dst << ", in place " << l.in_place);
      const auto is = transformed<F, Inverse>(x, made, n, context, l, h);
      if (first.empty()) {
        first = is;
        ASSERT_LE(relative_error(is, right), oracle::error_limit<T>(order));
      }
      ASSERT_EQ(first_difference(is, first), -1) << "not the bits of the first layout";
    }
  });
}

TYPED_TEST(FftReal, IsTheDefinition) {
  for (int order = 0; order <= 16; ++order) {
    check_against_definition<TypeParam, false>(order, fftScaleNone, 1);
    check_against_definition<TypeParam, true>(order, fftScaleNone, 1);
    if (this->HasFatalFailure()) return;
  }
}

TYPED_TEST(FftReal, FlagsScale) {
  for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 13}) {
    const long double n = 1 << order;
    check_against_definition<TypeParam, false>(order, fftScaleForward, 1 / n);
    check_against_definition<TypeParam, true>(order, fftScaleForward, 1);
    check_against_definition<TypeParam, false>(order, fftScaleInverse, 1);
    check_against_definition<TypeParam, true>(order, fftScaleInverse, 1 / n);
    check_against_definition<TypeParam, false>(order, fftScaleBoth, 1 / sqrtl(n));
    check_against_definition<TypeParam, true>(order, fftScaleBoth, 1 / sqrtl(n));
    if (this->HasFatalFailure()) return;
  }
}

// Long transforms: an impulse gives a row of roots of unity; noise comes back from there and back.
template <class F> void check_long(int order) {
  using T            = typename F::part;
  const size_t     n = size_t(1) << order, at = n / 8 * 5 + 77, m = slots<F>(n);
  homes            h((n + 2) * sizeof(T) + 64);
  const fft_layout plain{{}, {}, false, 0}, in_place{{}, {}, true, 5},
      odd{{placement::inside, 4}, {placement::inside, 4}, false, -1};
  each_build<F::forward>([&] {
    SCOPED_TRACE(testing::Message() << "order " << order);
    const fft_context<F> context(order, fftScaleInverse);
    std::vector<T>       x(n);
    x[at]                                = 1;
    const auto                        is = transformed<F, false>(x, m, n, context, plain, h);
    std::vector<oracle::wide_complex> right(n / 2 + 1);
    for (size_t k = 0; k <= n / 2; ++k) right[k] = std::conj(oracle::root_of_unity(uint64_t(k) * at % n, n));
    right[0] = 1, right[n / 2] = right[n / 2].real();
    ASSERT_LE(relative_error(is, packed<F>(right, n)), oracle::error_limit<T>(order));

    x            = noise<T>(n, uint32_t(order));
    const auto y = transformed<F, false>(x, m, n, context, plain, h);
    ASSERT_EQ(first_difference(transformed<F, false>(x, m, n, context, in_place, h), y), -1);
    ASSERT_EQ(first_difference(transformed<F, false>(x, m, n, context, odd, h), y), -1);
    const auto back = transformed<F, true>(y, n, n, context, plain, h);
    ASSERT_LE(relative_error(back, wide_values(x.begin(), x.end())), 2 * oracle::error_limit<T>(order));
    ASSERT_EQ(first_difference(transformed<F, true>(y, n, n, context, in_place, h), back), -1);
    ASSERT_EQ(first_difference(transformed<F, true>(y, n, n, context, odd, h), back), -1);
  });
}

TYPED_TEST(FftReal, LongOnes) {
  for (int order = 17; order <= 20; ++order) check_long<TypeParam>(order);
}

// Bins 0 and N/2 are real: CCS has zeros there, and what stands there is not looked at.
TEST(FftRealCcs, PartsThatAreZero) {
  using F = fft_ccs_32f;
  each_build<F::forward>([&] {
    for (int order : {0, 1, 2, 3, 4, 5, 8}) {
      const size_t         n = size_t(1) << order;
      const fft_context<F> context(order, fftScaleNone);
      homes                h(n * 4 + 128);
      const auto x = transformed<F, false>(noise<float>(n, 3), slots<F>(n), n, context, {{}, {}, false, -1}, h);
      EXPECT_EQ(x[1], 0);
      auto other = x;
      other[1]   = 5;
      if (n > 1) {
        EXPECT_EQ(x[n + 1], 0);
        other[n + 1] = std::numeric_limits<float>::quiet_NaN();
      }
      EXPECT_EQ((transformed<F, true>(x, n, n, context, {{}, {}, false, -1}, h)),
                (transformed<F, true>(other, n, n, context, {{}, {}, true, -1}, h)));
    }
  });
}

}  // namespace
