// tavsPolarToCart: sines and cosines over the whole range of angles, products bit by bit, integers exactly.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/polar.h"

using namespace test;

namespace {

template <class T> struct exports;
template <> struct exports<Tav32f> {
  static constexpr auto*       parts = &::tavsPolarToCart_32f;
  static constexpr auto*       pairs = &::tavsPolarToCart_32fc;
  static constexpr long double bound = 1.6L;
};
template <> struct exports<Tav64f> {
  static constexpr auto*       parts = &::tavsPolarToCart_64f;
  static constexpr auto*       pairs = &::tavsPolarToCart_64fc;
  static constexpr long double bound = 0.85L;
};
template <class T> using pair_of = std::conditional_t<sizeof(T) == 4, Tav32fc, Tav64fc>;

// Where a reduction goes wrong, if it does: at the limits of its paths, next to multiples of pi/2 of every size, at the
// two angles that come closest to one.
template <class T> void add_hard_angles(std::vector<T>& all) {
  using limits          = std::numeric_limits<T>;
  const auto add_around = [&](T v) {
    for (T w : {std::nextafter(v, T(0)), v, std::nextafter(v, limits::max())}) all.push_back(w), all.push_back(-w);
  };
  for (T v : {T(0), limits::denorm_min(), limits::min(), T(1e-5), T(0x1p22), T(0x1p23), T(0x1p31), T(0x1p52), T(0x1p53),
              limits::max()})
    add_around(v);
  add_around(T(16367173 * 0x1p72));
  if (sizeof(T) == 8) add_around(T(6381956970095103 * 0x1p797));
  for (int k = 1; k < 20000; ++k) add_around(T(k * (M_PIl / 2)));
  for (int k = 1; k < 20000; ++k) add_around(T(k * 233.0L * (M_PIl / 4)));
  for (int e = 0; e < limits::max_exponent - 1; ++e) add_around(T(ldexpl(M_PIl / 2, e))), add_around(T(ldexpl(1, e)));
}

template <class T> std::vector<T> angles() {
  source_of_data data(61);
  std::vector<T> all;
  add_hard_angles(all);
  const T reaches[] = {T(0.8), T(7), T(1000), T(4e6), T(2e7)};
  while (all.size() < 1000000) {
    const T sign = data.below(2) ? T(1) : T(-1), reach = reaches[data.below(5)];
    all.push_back(sign * reach * T(data.bits()) / T(0x1p32));
    if (const T any = data.value<T>(); std::isfinite(any)) all.push_back(any);
  }
  return all;
}

template <class T> struct parts {
  std::vector<T> re, im;

  parts(const std::vector<T>& magn, const std::vector<T>& phase) : re(phase.size()), im(phase.size()) {
    EXPECT_EQ(call<exports<T>::parts>(magn.data(), phase.data(), re.data(), im.data(), int(phase.size())), tavStatusOk);
  }
};

template <class T> void check_accuracy() {
  const auto phase = angles<T>();
  each_build<exports<T>::parts>([&] {
    const parts<T> got(std::vector<T>(phase.size(), 1), phase);
    for (size_t i = 0; i < phase.size(); ++i) {
      const auto want = oracle::from_polar(1, phase[i]);
      ASSERT_LE(oracle::ulps_off(got.re[i], want.re), exports<T>::bound) << std::hexfloat << "cosine of " << phase[i];
      ASSERT_LE(oracle::ulps_off(got.im[i], want.im), exports<T>::bound) << std::hexfloat << "sine of " << phase[i];
    }
  });
}

TEST(PolarToCart, SineAndCosineOf32f) { check_accuracy<Tav32f>(); }
TEST(PolarToCart, SineAndCosineOf64f) { check_accuracy<Tav64f>(); }

// The magnitude is a factor, rounded once; the forms with pairs compute the same.
template <class T> void check_products() {
  source_of_data data(62);
  const auto     phase = angles<T>(), magn = data.values<T>(phase.size());
  const parts<T> of_one(std::vector<T>(phase.size(), 1), phase), got(magn, phase);

  std::vector<pair_of<T>> pairs(phase.size());
  ASSERT_EQ(call<exports<T>::pairs>(magn.data(), phase.data(), pairs.data(), int(phase.size())), tavStatusOk);
  for (size_t i = 0; i < phase.size(); ++i) {
    ASSERT_TRUE(same(got.re[i], magn[i] * of_one.re[i]) && same(got.im[i], magn[i] * of_one.im[i])) << i;
    ASSERT_TRUE(same(pairs[i], pair_of<T>{got.re[i], got.im[i]})) << i;
  }
}

TEST(PolarToCart, ProductsOf32f) { check_products<Tav32f>(); }
TEST(PolarToCart, ProductsOf64f) { check_products<Tav64f>(); }

template <class T> void check_special_angles() {
  using limits = std::numeric_limits<T>;
  const std::vector<T> phase{0, -T(0), limits::infinity(), 1, -limits::infinity(), limits::quiet_NaN(), 2, 3};
  const parts<T>       got(std::vector<T>(8, 1), phase);
  for (int i : {0, 1}) {
    EXPECT_EQ(got.re[i], 1);
    EXPECT_TRUE(same(got.im[i], phase[i])) << "the sine of a zero has its sign";
  }
  for (int i : {2, 4, 5}) EXPECT_TRUE(std::isnan(got.re[i]) && std::isnan(got.im[i])) << phase[i];
  for (int i : {3, 6, 7}) EXPECT_FALSE(std::isnan(got.re[i]) || std::isnan(got.im[i])) << "beside a NaN";
}

TEST(PolarToCart, SpecialAnglesOf32f) { check_special_angles<Tav32f>(); }
TEST(PolarToCart, SpecialAnglesOf64f) { check_special_angles<Tav64f>(); }

// Layouts: an element comes out as it does by itself.

const std::set<int> lengths = lengths_around({100}, 40);

template <auto* Export, class T, class C> void check_pair_layouts() {
  check_layouts<Export, C, T, T>(
      lengths, [](C* dst, int len, const T* m, const T* p) { return call<Export>(m, p, dst, len); },
      [](std::vector<C>& dst, const std::vector<T>& m, const std::vector<T>& p) {
        for (size_t i = 0; i < dst.size(); ++i) Export(&m[i], &p[i], &dst[i], 1);
        return tavStatusOk;
      });
}
TEST(PolarToCart, LayoutsOf32fc) { check_pair_layouts<&::tavsPolarToCart_32fc, Tav32f, Tav32fc>(); }
TEST(PolarToCart, LayoutsOf64fc) { check_pair_layouts<&::tavsPolarToCart_64fc, Tav64f, Tav64fc>(); }

// The destination that the layouts move about is the real one or the imaginary one, and the other lies at a page end.
template <auto* Export, class T> void check_part_layouts(bool real) {
  arena          other_home(200 * sizeof(T));
  std::vector<T> other;
  check_layouts<Export, T, T, T>(
      lengths,
      [&](T* dst, int len, const T* m, const T* p) {
        const array<T> second(other_home, size_t(len), {placement::ends_at_page});
        T *const re = real ? dst : second.data(), *const im = real ? second.data() : dst;
        const TavStatus status = call<Export>(m, p, re, im, len);
        EXPECT_EQ(first_difference(second.values(), other), -1) << "length " << len;
        EXPECT_TRUE(second.guards_intact());
        return status;
      },
      [&](std::vector<T>& dst, const std::vector<T>& m, const std::vector<T>& p) {
        other.resize(dst.size());
        for (size_t i = 0; i < dst.size(); ++i)
          Export(&m[i], &p[i], real ? &dst[i] : &other[i], real ? &other[i] : &dst[i], 1);
        return tavStatusOk;
      });
}
TEST(PolarToCart, LayoutsOf32f) {
  check_part_layouts<&::tavsPolarToCart_32f, Tav32f>(true);
  check_part_layouts<&::tavsPolarToCart_32f, Tav32f>(false);
}
TEST(PolarToCart, LayoutsOf64f) {
  check_part_layouts<&::tavsPolarToCart_64f, Tav64f>(true);
  check_part_layouts<&::tavsPolarToCart_64f, Tav64f>(false);
}

TEST(PolarToCart, OntoItsSources) {
  source_of_data data(63);
  for (int len = 1; len < 20; ++len)
    for (bool swapped : {false, true}) {
      auto                magn = data.values<Tav32f>(size_t(len)), phase = data.values<Tav32f>(size_t(len));
      const parts<Tav32f> want(magn, phase);
      Tav32f *const re = swapped ? phase.data() : magn.data(), *const im = swapped ? magn.data() : phase.data();
      ASSERT_EQ(call<&::tavsPolarToCart_32f>(magn.data(), phase.data(), re, im, len), tavStatusOk);
      EXPECT_EQ(first_difference(swapped ? phase : magn, want.re), -1) << len;
      EXPECT_EQ(first_difference(swapped ? magn : phase, want.im), -1) << len;
    }
}

TEST(PolarToCart, InAnyModeOfTheCaller) {
  const auto                phase = angles<Tav32f>();
  const std::vector<Tav64f> wide(phase.begin(), phase.end());
  const std::vector<Tav32f> magn(phase.size(), 1.7f);
  const std::vector<Tav64f> wide_magn(phase.size(), 1.7);
  const parts<Tav32f>       want(magn, phase);
  const parts<Tav64f>       want_wide(wide_magn, wide);
  for (unsigned mode : rounding_modes) {
    const rounding_mode set(mode);
    const parts<Tav32f> got(magn, phase);
    const parts<Tav64f> got_wide(wide_magn, wide);
    EXPECT_TRUE(first_difference(got.re, want.re) < 0 && first_difference(got.im, want.im) < 0) << mode;
    EXPECT_TRUE(first_difference(got_wide.re, want_wide.re) < 0 && first_difference(got_wide.im, want_wide.im) < 0)
        << mode;
  }
}

}  // namespace

#define CASE(form) TAV_FAULTS(PolarToCart_##form, pointers_then_length)
CASE(32f) CASE(32fc) CASE(64f) CASE(64fc)
#undef CASE
