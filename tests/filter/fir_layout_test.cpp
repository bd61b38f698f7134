// FIR filters with taps in floats at all alignments and page ends: records within the sizes they report, and blocks
// within their arrays.
#include <gtest/gtest.h>

#include <limits>

#include "filter/fir_calls.h"
#include "harness/layouts.h"
#include "oracle/fir.h"

using namespace test;

namespace {

template <class F> class FirLayout : public testing::Test {};
using families = testing::Types<fir_32f, fir_32fc, fir_64f, fir_64fc, fir_64f_32f, fir_64fc_32fc, fir_32f_16s,
                                fir_32fc_16sc, fir_64f_32s, fir_32s, fir_64f_16s, fir_64fc_32sc, fir_64fc_16sc>;
TYPED_TEST_SUITE(FirLayout, families);

template <class T> T from_wide(const oracle::wide_pair& v) {
  if constexpr (is_pair<T>)
    return {part_of<T>(v.re), part_of<T>(v.im)};
  else
    return T(v.re);
}

// Small whole numbers: results are exact.
template <class F> struct problem {
  std::vector<typename F::taps> h;
  std::vector<typename F::data> x, y;

  problem(int tapsLen, int len) {
    source_of_data data(uint32_t(tapsLen + len));
    h = wholes<typename F::taps>(data, size_t(tapsLen), 9);
    x = wholes<typename F::data>(data, size_t(len), 99);
    for (size_t i = 0; i < x.size(); ++i) y.push_back(from_wide<typename F::data>(oracle::fir(h, x, i).value));
  }
};

// Results that are whole numbers, the very ones or off by rounding.
inline constexpr long double exactly = 0, by_rounding = 0.05L;

template <class T> bool alike(const std::vector<T>& got, const std::vector<T>& want, long double within = by_rounding) {
  const auto distance = [](const T& a, const T& b) {
    const auto v = oracle::wide(a), w = oracle::wide(b);
    return fabsl(v.re - w.re) + fabsl(v.im - w.im);
  };
  for (size_t i = 0; i < got.size(); ++i)
    if (!(distance(got[i], want[i]) <= within)) return false;
  return true;
}

template <class F> void check_block(const problem<F>& p, arena& from, arena& to, const layout& l, long double within) {
  using D               = typename F::data;
  const int           n = int(p.x.size());
  const fir_filter<F> f(p.h);
  array<D>            src(from, p.x.size(), l.src), dst(to, p.x.size(), l.dst);
  src.assign(p.x);
  ASSERT_EQ(filter_block<F>(src.data(), dst.data(), n, f.get(), 0), tavStatusOk);
  ASSERT_TRUE(alike(dst.values(), p.y, within));
  ASSERT_TRUE(dst.guards_intact() && src.guards_intact());
  ASSERT_LT(first_difference(src.values(), p.x), 0);

  ASSERT_EQ(call<F::set_dly>(f.get(), nullptr), tavStatusOk);
  ASSERT_EQ(filter_in_place<F>(src.data(), n, f.get(), 0), tavStatusOk);
  ASSERT_TRUE(alike(src.values(), p.y, within));
  ASSERT_TRUE(src.guards_intact());
}

TYPED_TEST(FirLayout, BlocksAtAnyAddress) {
  using F = TypeParam;
  arena from(16 * 6000), to(16 * 6000);
  each_build<F::block>([&] {
    for (int tapsLen : {1, 2, 3, 4, 7, 12, 31, 32, 34, 45})
      for (int len : {1, 2, 3, 4, 6, 9, 12, 19, 26, 36, 37, 49, 50, 75, 97}) {
        const problem<F> p(tapsLen, len);
        for (const layout& l : all_layouts()) {
          SCOPED_TRACE(testing::Message() << tapsLen << " taps, length " << len << ", " << l);
          check_block(p, from, to, l, exactly);
          if (this->HasFatalFailure()) return;
        }
      }
    for (int tapsLen : {20, 64, 100})
      for (int len : {512, 705, 5000}) {
        const problem<F> p(tapsLen, len);
        for (const layout& l : few_layouts()) {
          SCOPED_TRACE(testing::Message() << tapsLen << " taps, length " << len << ", " << l);
          check_block(p, from, to, l, by_rounding);
          if (this->HasFatalFailure()) return;
        }
      }
  });
}

// What stands before and behind a block has no part in it, not even times zero.
TYPED_TEST(FirLayout, NeighboursHaveNoPart) {
  using F = TypeParam;
  using D = typename F::data;
  if constexpr (!is_integer<F>) {
    each_build<F::block>([&] {
      const part_of<D> nan = std::numeric_limits<part_of<D>>::quiet_NaN();
      for (int tapsLen : {1, 4, 6, 31, 32, 33, 34, 35, 48})
        for (int len = 1; len <= 130; ++len)
          for (size_t offset = 8; offset < 12; ++offset) {
            const problem<F> p(tapsLen, len);
            D                edge{};
            if constexpr (is_pair<D>)
              edge = {nan, nan};
            else
              edge = nan;
            std::vector<D> src(p.x.size() + 24, edge), y(p.x.size());
            std::copy(p.x.begin(), p.x.end(), src.begin() + long(offset));
            const fir_filter<F> f(p.h);
            ASSERT_EQ(filter_block<F>(src.data() + offset, y.data(), len, f.get(), 0), tavStatusOk);
            ASSERT_TRUE(alike(y, p.y, exactly)) << tapsLen << " taps, length " << len << ", offset " << offset;
          }
    });
  }
}

// Everything that a record is used for, in just the memory it asked for.
template <class F> void check_record(arena& home, int tapsLen, placement where) {
  using D  = typename F::data;
  int size = 0;
  ASSERT_EQ(call<F::get_size>(tapsLen, &size), tavStatusOk);
  const int          len = 1100;
  const problem<F>   p(tapsLen, len);
  array<Tav8u>       memory(home, size_t(size), where);
  typename F::state* state = nullptr;
  tavcore_fake_reset();
  ASSERT_EQ(call<F::init>(&state, p.h.data(), tapsLen, nullptr, memory.data()), tavStatusOk);
  const auto boundary = in_singles<F> ? 16u : 32u;
  EXPECT_EQ(uintptr_t(state) % boundary, 0u);
  EXPECT_LT(uintptr_t(state) - uintptr_t(memory.data()), boundary);

  std::vector<D> y(p.x.size()), last(size_t(tapsLen) * 4 + 8, p.x[0]);
  ASSERT_EQ(filter_block<F>(p.x.data(), y.data(), len, state, 0), tavStatusOk);
  EXPECT_TRUE(alike(y, p.y));
  for (D& v : last) ASSERT_EQ(filter_one<F>(v, &v, state, 0), tavStatusOk);
  for (int n : {1, tapsLen + 3, tapsLen + 4, tapsLen + 5, 3 * tapsLen})
    ASSERT_EQ(filter_block<F>(p.x.data(), y.data(), std::min(n, len), state, 0), tavStatusOk);
  ASSERT_EQ(call<F::set_taps>(p.h.data(), state), tavStatusOk);
  ASSERT_EQ(call<F::set_dly>(state, nullptr), tavStatusOk);
  y = p.x;
  ASSERT_EQ(filter_in_place<F>(y.data(), len, state, 0), tavStatusOk);
  EXPECT_TRUE(alike(y, p.y));
  EXPECT_TRUE(memory.guards_intact());
  EXPECT_EQ(call<F::free>(state), tavStatusOk);
  EXPECT_EQ(call<F::free>(state), tavStatusOk) << "a record of Init is left as it is";
  EXPECT_EQ(tavcore_fake_read().allocations, 0);
}

TYPED_TEST(FirLayout, RecordsKeepToTheirSizes) {
  using F      = TypeParam;
  int greatest = 0;
  ASSERT_EQ(call<F::get_size>(300, &greatest), tavStatusOk);
  arena home(size_t(greatest) + 64);
  each_build<F::init>([&] {
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 66, 67, 127, 128, 300})
      for (const placement where :
           {placement{placement::begins_at_page}, placement{placement::ends_at_page}, placement{placement::inside, 0},
            placement{placement::inside, 1}, placement{placement::inside, 8}, placement{placement::inside, 15}}) {
        SCOPED_TRACE(testing::Message() << n << " taps, " << where);
        check_record<F>(home, n, where);
        if (this->HasFatalFailure()) return;
      }
  });
}

}  // namespace
