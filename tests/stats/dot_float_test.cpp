// tavsDotProd of floats: whole numbers exactly, others within what rounding can do in the precision promised; NaNs and
// infinities at every position, the caller's rounding mode, the same bits at every alignment.
#include "harness/forms.h"
#include "oracle/dot_product.h"
#include "stats/dot_calls.h"

using namespace test;

namespace {

template <class T> constexpr bool complex_type = requires(T v) { v.re; };

template <class T> auto part_like() {
  if constexpr (complex_type<T>)
    return T{}.re;
  else
    return T{};
}

// An element from one part after the other.
template <class T, class Next> void assign(T& v, const Next& next) {
  using part = decltype(part_like<T>());
  if constexpr (complex_type<T>)
    v.re = part(next()), v.im = part(next());
  else
    v = part(next());
}

const auto whole_numbers = [](source_of_data& data, auto& v) { assign(v, [&] { return data.below(17) - 8; }); };

const auto reals = [](source_of_data& data, auto& v) {
  assign(v, [&] {
    const double size = ldexp(1 + data.bits() / 0x1p32, data.below(20) - 10);
    return data.below(2) ? size : -size;
  });
};

template <class T> auto real_part(T v) {
  if constexpr (complex_type<T>)
    return v.re;
  else
    return v;
}

template <class D> D result_of(const oracle::bounded_pair& sum) {
  if constexpr (complex_type<D>)
    return {decltype(D::re)(sum.re.sum), decltype(D::im)(sum.im.sum)};
  else
    return D(sum.re.sum);
}

template <auto* Export> void check_whole_numbers() {
  check_dot_layouts<Export>(dot_lengths(), whole_numbers, [](const auto& a, const auto& b) {
    return result_of<typename dot_call<Export>::result>(oracle::float_dot(a, b));
  });
}

// n terms in any order: at most n roundings of partial sums, and two for each product, none of which is larger than all
// magnitudes together.
template <class F> void expect_near(F got, const oracle::bounded_sum& sum, size_t n) {
  const long double eps = std::numeric_limits<F>::epsilon() / 2;
  EXPECT_LE(fabsl(got - sum.sum), eps * (long double)(n + 1) * sum.magnitudes) << "of " << n;
}

template <auto* Export> void check_reals() {
  using on = dot_call<Export>;
  each_build<Export>([] {
    source_of_data data(31);
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 31, 32, 33, 100, 1000, 50000}) {
      std::vector<typename on::src1> a(static_cast<size_t>(n));
      std::vector<typename on::src2> b(static_cast<size_t>(n));
      for (auto& v : a) reals(data, v);
      for (auto& v : b) reals(data, v);
      const auto                sum = oracle::float_dot(a, b);
      const typename on::result got = on::of(a, b);
      if constexpr (complex_type<typename on::result>)
        expect_near(got.re, sum.re, size_t(n)), expect_near(got.im, sum.im, size_t(n));
      else
        expect_near(got, sum.re, size_t(n));
    }
  });
}

// The bits are those of the first layout.
template <auto* Export> void check_alignments() {
  check_dot_layouts<Export>(lengths_around({1000}, 40), reals,
                            [](const auto& a, const auto& b) { return dot_call<Export>::of(a, b); });
}

// One part of one element is special, and all others are 1: what its products are decides.
template <class T> T ones_but(int part, double special) {
  using F = decltype(part_like<T>());
  if constexpr (complex_type<T>)
    return part == 0 ? T{F(special), 1} : T{1, F(special)};
  else
    return F(special);
}

template <class D> void expect_like(D got, long double re, long double im, const testing::Message& where) {
  const auto like = [](long double x, long double y) { return (x != x && y != y) || x == y; };
  if constexpr (complex_type<D>)
    EXPECT_TRUE(like(got.re, re) && like(got.im, im)) << where;
  else
    EXPECT_TRUE(like(got, re)) << where;
}

template <auto* Export, class A, class B, class D> void check_special(double special, bool in_first) {
  for (int n = 1; n < 36; ++n)
    for (int i = 0; i < n; ++i)
      for (int part = 0; part < 2; ++part) {
        std::vector<A> a(size_t(n), ones_but<A>(0, 1.0));
        std::vector<B> b(size_t(n), ones_but<B>(0, 1.0));
        if (in_first)
          a[size_t(i)] = ones_but<A>(part, special);
        else
          b[size_t(i)] = ones_but<B>(part, special);
        const auto sum = oracle::float_dot(a, b);
        expect_like<D>(dot_call<Export>::of(a, b), sum.re.sum, sum.im.sum,
                       testing::Message() << special << " at " << i << " of " << n << ", part " << part);
        if (testing::Test::HasFailure()) return;
      }
}

template <auto* Export> void check_specials() {
  using on = dot_call<Export>;
  each_build<Export>([] {
    for (double special : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity()})
      for (bool in_first : {true, false})
        check_special<Export, typename on::src1, typename on::src2, typename on::result>(special, in_first);
  });
}

template <class T> T real_number(double x) {
  using part = decltype(part_like<T>());
  if constexpr (complex_type<T>)
    return {part(x), 0};
  else
    return part(x);
}

// 1 and products far below a unit in its last place: only upward they are seen.
template <auto* Export> void check_rounding_modes() {
  using on = dot_call<Export>;
  using A  = typename on::src1;
  using B  = typename on::src2;
  each_build<Export>([] {
    for (int n : {2, 5, 16, 17, 64, 100})
      for (unsigned mode : {0u, rounding_mode::down, rounding_mode::up, rounding_mode::to_zero}) {
        std::vector<A>       a(size_t(n), real_number<A>(1e-20));
        const std::vector<B> b(size_t(n), real_number<B>(1));
        a[size_t(n) / 2] = real_number<A>(1);
        const rounding_mode scope(mode);
        const auto          got = real_part(on::of(a, b));
        if (mode == rounding_mode::up)
          EXPECT_GT(got, 1) << n;
        else
          EXPECT_EQ(got, 1) << n << " " << std::hex << mode;
      }
  });
}

template <auto* Export> void check_all() {
  check_whole_numbers<Export>();
  check_reals<Export>();
  check_alignments<Export>();
  check_specials<Export>();
  check_rounding_modes<Export>();
}

TEST(DotProdOfFloats, As32f) { check_all<&::tavsDotProd_32f>(); }
TEST(DotProdOfFloats, As32fc) { check_all<&::tavsDotProd_32fc>(); }
TEST(DotProdOfFloats, As32f32fc) { check_all<&::tavsDotProd_32f32fc>(); }
TEST(DotProdOfFloats, As32f64f) { check_all<&::tavsDotProd_32f64f>(); }
TEST(DotProdOfFloats, As32fc64fc) { check_all<&::tavsDotProd_32fc64fc>(); }
TEST(DotProdOfFloats, As32f32fc64fc) { check_all<&::tavsDotProd_32f32fc64fc>(); }
TEST(DotProdOfFloats, As64f) { check_all<&::tavsDotProd_64f>(); }
TEST(DotProdOfFloats, As64fc) { check_all<&::tavsDotProd_64fc>(); }
TEST(DotProdOfFloats, As64f64fc) { check_all<&::tavsDotProd_64f64fc>(); }

// Singles become doubles before they are multiplied: no product is rounded, and large ones do not swallow small ones.
TEST(DotProdOfFloats, ProductsOfSinglesAreExact) {
  const Tav32f near_one = 1 + 0x1p-23f;
  for (size_t n = 1; n < 20; ++n) {
    std::vector<Tav32f> a(n, 0), b(n, 0);
    a[n - 1] = b[n - 1] = near_one;
    EXPECT_EQ(dot_call<&::tavsDotProd_32f64f>::of(a, b), Tav64f(near_one) * near_one);
    a[n - 1] = 0;
    a.insert(a.end(), {1e8f, 1, -1e8f}), b.insert(b.end(), {1, 1, 1});
    EXPECT_EQ(dot_call<&::tavsDotProd_32f64f>::of(a, b), 1);
  }
}

}  // namespace
