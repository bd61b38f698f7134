// Integer FIR filters against their definition: any pieces in any way, taps and delay lines replaced on the way.
#include <limits.h>

#include "filter/fir_integer_calls.h"

using namespace test;
using namespace test::words;

namespace {

template <class F> class FirInteger : public testing::Test {};
using families = testing::Types<fir_16s, fir_32s_16s, fir_32sc_16sc>;
TYPED_TEST_SUITE(FirInteger, families);

placement somewhere(source_of_data& data) {
  const int where = data.below(20);
  if (where >= 18) return {where == 18 ? placement::begins_at_page : placement::ends_at_page};
  return {placement::inside, unsigned(where % 16)};
}

struct homes {
  arena src{1 << 16}, dst{1 << 16};
};
homes& places() {
  static homes h;
  return h;
}

template <class F, class D = typename F::data>
void check_piece(way how, typename F::state* state, model<F>& m, int len, int scale, source_of_data& data) {
  array<D>   src(places().src, size_t(len), somewhere(data)), dst(places().dst, size_t(len), somewhere(data));
  const auto x = data.values<D>(size_t(len));
  src.assign(x);
  if (how == way::in_place) dst.assign(x);
  ASSERT_EQ(run<F>(how, src.data(), dst.data(), len, state, scale), tavStatusOk);
  std::vector<D> expected;
  for (const D& v : x) expected.push_back(m.filter(v, scale));
  const auto got = dst.values();
  if (const long i = first_difference(got, expected); i >= 0)
    FAIL() << "sample " << i << " of " << len << ", " << m.kept.taps.size() << " taps, way " << int(how) << ": "
           << testing::PrintToString(got[size_t(i)]) << ", not " << testing::PrintToString(expected[size_t(i)]);
  ASSERT_TRUE(src.guards_intact() && dst.guards_intact());
}

// Factors by which sums fit, more or less, and any others.
template <class F> int some_scale(const model<F>& m, source_of_data& data) {
  return data.below(4) ? m.kept.scale + 12 + data.below(8) : data.below(80) - 40;
}

template <class F> void check_signal(int n, const std::vector<int>& pieces, uint32_t seed, bool change = false) {
  using D = typename F::data;
  using T = typename F::taps;
  source_of_data data(seed);
  const int      factor = data.below(40) - 20;
  const auto     h      = data.values<T>(size_t(n));
  const auto     dly    = data.values<D>(size_t(n));
  const bool     given = data.below(2), in_memory = data.below(2);
  const D* const before = given ? dly.data() : nullptr;

  std::optional<filter<F>> f;
  if (in_memory)
    f.emplace(h, factor, before, somewhere(data));
  else
    f.emplace(h, factor, before);
  model<F> m{oracle::kept(h, factor), {}};
  if (given) m.set_delay(dly);
  for (int len : pieces) {
    check_piece<F>(way(data.below(ways)), f->get(), m, len, some_scale(m, data), data);
    if (testing::Test::HasFatalFailure()) return;
    std::vector<D> remembered(dly.size());
    ASSERT_EQ(call<F::get_dly>(f->get(), remembered.data()), tavStatusOk);
    ASSERT_EQ(first_difference(remembered, m.delay()), -1) << "another delay line";
    if (!change) continue;
    if (data.below(3) == 0) {
      const auto other = data.values<T>(size_t(n));
      ASSERT_EQ(call<F::set_taps>(other.data(), f->get(), len), tavStatusOk);
      m.kept = oracle::kept(other, len);
    }
    if (data.below(4) == 0) {
      const auto other = data.values<D>(size_t(n));
      ASSERT_EQ(call<F::set_dly>(f->get(), other.data()), tavStatusOk);
      m.set_delay(other);
    } else if (data.below(6) == 0) {
      ASSERT_EQ(call<F::set_dly>(f->get(), static_cast<const D*>(nullptr)), tavStatusOk);
      m.signal.clear();
    }
  }
}

std::vector<int> some_pieces(uint32_t seed, int total, int longest) {
  source_of_data   data(seed);
  std::vector<int> pieces;
  for (; total > 0; total -= pieces.back()) pieces.push_back(1 + data.below(1 + data.below(longest)));
  return pieces;
}

TYPED_TEST(FirInteger, AnyPieces) {
  each_build<TypeParam::block>([&] {
    for (int n = 1; n <= 80; ++n) {
      check_signal<TypeParam>(n, some_pieces(uint32_t(n), 500, 150), uint32_t(n));
      check_signal<TypeParam>(n, some_pieces(uint32_t(n) + 500, 300, 40), uint32_t(n) + 500, true);
      if (this->HasFatalFailure()) return;
    }
  });
}

TYPED_TEST(FirInteger, EachLengthAtOnce) {
  each_build<TypeParam::block>([&] {
    for (int n : {1, 2, 5, 8, 17})
      for (int len = 1; len <= 90; ++len) check_signal<TypeParam>(n, {len, len}, uint32_t(len * 90 + n));
  });
}

TYPED_TEST(FirInteger, LongPieces) {
  each_build<TypeParam::block>([&] {
    for (int n : {1, 3, 16, 31, 32, 33, 64})
      check_signal<TypeParam>(n, {511, 512, 513, 1, 1024, 4095, 4096, 4097, 3, 600, 1025}, uint32_t(n));
  });
}

TYPED_TEST(FirInteger, ManyTaps) {
  each_build<TypeParam::block>([&] {
    for (int n : {127, 255, 256, 257, 511, 600})
      check_signal<TypeParam>(n, {600, 1, n - 1, n, n + 1, n + 12, 2 * n, 1, 1, 1300}, uint32_t(n), true);
  });
}

TYPED_TEST(FirInteger, EachFactor) {
  using F = TypeParam;
  each_build<F::block>([&] {
    source_of_data data(4);
    const auto     h = data.values<typename F::taps>(4);
    for (int factor : {0, 5, INT_MIN, INT_MAX}) {
      const filter<F> f(h, factor);
      model<F>        m{oracle::kept(h, factor), {}};
      for (int scale = -40; scale <= 40; ++scale)
        for (int i = 0; i < ways; ++i) check_piece<F>(way(i), f.get(), m, 20, scale, data);
      for (int scale : {INT_MIN, INT_MIN + 1, INT_MAX, 1 << 20, -(1 << 20)})
        check_piece<F>(way::block, f.get(), m, 20, scale, data);
    }
  });
}

// Sums beyond 32 bits wrap, and so does the step that rounds the largest.
TEST(FirIntegerWraps, SumAndRounding) {
  const std::vector<Tav16s> h(4, 32767), x(12, -32768);
  std::vector<Tav16s>       y(12);
  const filter<fir_16s>     f(h, 0);
  model<fir_16s>            m{oracle::kept(h, 0), {}};
  ASSERT_EQ(call<&::tavsFIR_16s_Sfs>(x.data(), y.data(), 12, f.get(), 16), tavStatusOk);
  for (size_t i = 0; i < x.size(); ++i) EXPECT_EQ(y[i], m.filter(x[i], 16)) << i;
  EXPECT_EQ(y[1], -32767) << "-2^31 + 2^16 over 2^16";
  EXPECT_EQ(y[2], 16386) << "-3 * 2^30 + 3 * 2^15 wraps to 2^30 and some";

  const std::vector<Tav16s> g{1, 2, 2, 32767, 32767}, z{32767, 32767, 32767, 32767, 1};
  for (way how : {way::block, way::singly}) {
    const filter<fir_16s> largest(g, 0);
    std::vector<Tav16s>   out(5);
    ASSERT_EQ(run<fir_16s>(how, z.data(), out.data(), 5, largest.get(), 15), tavStatusOk);
    EXPECT_EQ(out[3], 32767);
    EXPECT_EQ(out[4], -32768) << "2^31 - 1 and the half that rounds";
  }
}

}  // namespace
