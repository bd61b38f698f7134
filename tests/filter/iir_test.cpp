// Filters of arbitrary order against the definition: all forms, orders and lengths around the ends of the short blocks
// and of the long ones, any split of a stream, what is done to taps and delay line between.
#include <gtest/gtest.h>

#include "filter/iir_calls.h"
#include "harness/forms.h"
#include "harness/layouts.h"

using namespace test;

namespace {

template <class F> class Iir : public testing::Test {};
TYPED_TEST_SUITE(Iir, iir_forms);

// A stream and what comes of it.
template <class F> struct stream {
  using D = typename F::data;

  stream(const iir_taps<F>& t, const std::vector<typename F::tap>& d, size_t n, source_of_data& data)
      : taps(t), delay(d), src(samples<D>(n, data)) {
    oracle::iir filter = oracle_of(taps);
    if (!delay.empty()) filter.set_delay(delay_values<F>(delay));
    for (const D& x : src) want.push_back(filter.next(wide(x)));
    for (size_t i = 0; i < taps.order(); ++i) end.push_back(filter.delay(i));
  }

  // Filters in pieces of the lengths that next() tells, by the calls that how() tells.
  template <class Length, class How> void check(int scale, const Length& next, const How& how) const {
    const iir_state<F> state(taps, delay.empty() ? nullptr : delay.data());
    std::vector<D>     dst(src.size());
    for (size_t i = 0, n; i < src.size(); i += n) {
      n = std::min(size_t(next()), src.size() - i);
      run<F>(how(), state.get(), src.data() + i, dst.data() + i, n, scale);
      if (testing::Test::HasFatalFailure()) return;
    }
    for (size_t i = 0; i < src.size(); ++i)
      ASSERT_TRUE(within(dst[i], want[i], exponent_of_scale<F>(scale)))
          << "order " << taps.order() << ", sample " << i << ": " << testing::PrintToString(wide(dst[i])) << ", not "
          << testing::PrintToString(want[i].value) << " within " << want[i].error << ", scale " << scale;
    using A      = typename F::arithmetic;
    const auto d = state.delay();
    for (size_t i = 0; i < d.size(); ++i) {
      A entry;
      memcpy(static_cast<void*>(&entry), &d[i], sizeof entry);
      ASSERT_TRUE(within(entry, end[i])) << "order " << taps.order() << ", entry " << i << " of the delay line";
    }
  }

  iir_taps<F>                  taps;
  std::vector<typename F::tap> delay;
  std::vector<D>               src;
  std::vector<oracle::bounded> want, end;
};

template <class F> std::vector<typename F::tap> some_delay(size_t order, source_of_data& data) {
  std::vector<typename F::tap> d(order);
  const auto                   v = samples<typename F::arithmetic>(order, data);
  memcpy(static_cast<void*>(d.data()), v.data(), order * sizeof d[0]);
  return d;
}

// The scale that brings most results into the range of integers.
template <class F> constexpr int ordinary_scale = is_scaled<F> ? 3 : 0;

template <class F> void check_splits(const stream<F>& s, source_of_data& data) {
  const int  order = int(s.taps.order()), scale = ordinary_scale<F>;
  const auto fixed = [&](int n, iir_call how) {
    SCOPED_TRACE(testing::Message() << "in blocks of " << n);
    s.check(
        scale, [&] { return n; }, [&] { return how; });
  };
  fixed(int(s.src.size()), iir_call::block);
  fixed(int(s.src.size()), iir_call::in_place);
  fixed(int(s.src.size()), iir_call::one_by_one);
  for (int n : {4 * order - 1, 4 * order, 4 * order + 1, 4 * order + 2, 4 * order + 3, 4 * order + 4, 4 * order + 17})
    fixed(n, n % 2 ? iir_call::block : iir_call::in_place);
  for (int k = 0; k < 2; ++k) {
    SCOPED_TRACE("any mixture");
    s.check(
        scale, [&] { return 1 + data.below(6 * order + 2); }, [&] { return iir_call(data.below(3)); });
  }
}

TYPED_TEST(Iir, EqualsTheDefinition) {
  using F = TypeParam;
  each_build<F::block>([&] {
    source_of_data data(1);
    for (size_t order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 20})
      for (long double radius : {0.7L, 0.995L}) {
        SCOPED_TRACE(testing::Message() << "order " << order << ", radius " << radius);
        const auto      taps = iir_taps<F>::drawn(order, radius, data);
        const stream<F> s(taps, some_delay<F>(order, data), order < 3 ? 400 : 200, data);
        check_splits(s, data);
        if (this->HasFatalFailure()) return;
      }
  });
}

TYPED_TEST(Iir, LongBlocks) {
  using F = TypeParam;
  each_build<F::block>([&] {
    source_of_data data(2);
    for (size_t order : {1, 4, 6}) {
      const auto      taps = iir_taps<F>::drawn(order, 0.9L, data);
      const stream<F> s(taps, {}, 2200, data);
      for (int n : {1023, 1024, 1025, 1024 + 4 * int(order) + 1, 2048 + 7}) {
        SCOPED_TRACE(testing::Message() << "order " << order << ", blocks of " << n);
        for (iir_call how : {iir_call::block, iir_call::in_place})
          s.check(
              ordinary_scale<F>, [&] { return n; }, [&] { return how; });
        if (this->HasFatalFailure()) return;
      }
    }
  });
}

// Next to the unit circle, where errors stay for long; and orders whose blocks are all short.
TYPED_TEST(Iir, PolesNextToTheUnitCircleAndHighOrders) {
  using F = TypeParam;
  each_build<F::block>([&] {
    source_of_data data(3);
    for (auto [order, radius] : {std::pair<size_t, long double>{1, 0.99999L},
                                 {2, 0.99999L},
                                 {4, 0.9999L},
                                 {6, 0.9999L},
                                 {100, 0.9L},
                                 {255, 0.5L},
                                 {256, 0.5L},
                                 {300, 0.5L}}) {
      SCOPED_TRACE(testing::Message() << "order " << order << ", radius " << radius);
      const auto      taps = iir_taps<F>::drawn(order, radius, data);
      const stream<F> s(taps, some_delay<F>(order, data), order > 200 ? 1030 : 600, data);
      for (iir_call how : {iir_call::block, iir_call::in_place})
        s.check(
            ordinary_scale<F> + 6 * is_scaled<F>, [&] { return 1030; }, [&] { return how; });
      if (this->HasFatalFailure()) return;
    }
  });
}

// Alignment and page ends make no difference to a bit; nothing is read or written outside.
TYPED_TEST(Iir, AtAnyAddress) {
  using F = TypeParam;
  using D = typename F::data;
  for (size_t order : {1, 2, 6}) {
    SCOPED_TRACE(testing::Message() << "order " << order);
    source_of_data     data(4);
    const auto         taps = iir_taps<F>::drawn(order, 0.5L, data);
    const iir_state<F> state(taps);
    const auto         filtered = [&](iir_call how, const D* src, D* dst, size_t len) {
      state.set_delay(nullptr);
      if (how == iir_call::in_place && src == dst) {
        if constexpr (is_scaled<F>)
          return call<F::in_place>(dst, int(len), state.get(), 1);
        else
          return call<F::in_place>(dst, int(len), state.get());
      }
      run<F>(how, state.get(), src, dst, len, 1);
      return TavStatus(tavStatusOk);
    };
    const auto lengths = lengths_around({60, 1024, 1024 + 4 * int(order)}, order == 2 ? 32 : 4 * int(order) + 6);
    check_layouts<F::block, D, D>(
        lengths, [&](D* dst, int len, const D* src) { return filtered(iir_call::block, src, dst, size_t(len)); },
        [&](std::vector<D>& dst, const std::vector<D>& src) {
          return filtered(iir_call::block, src.data(), dst.data(), src.size());
        });
    check_layouts<F::in_place, D>(
        lengths, [&](D* dst, int len) { return filtered(iir_call::in_place, dst, dst, size_t(len)); },
        [&](std::vector<D>& dst) {
          const auto src = dst;
          return filtered(iir_call::block, src.data(), dst.data(), src.size());
        });
    if (this->HasFatalFailure()) return;
  }
}

TYPED_TEST(Iir, OneSampleAtAnyAddress) {
  using F = TypeParam;
  using D = typename F::data;
  source_of_data     data(5);
  const iir_state<F> state(iir_taps<F>::identity(3));
  const D            x = samples<D>(1, data)[0];
  check_layouts<F::one, D>(
      {1}, [&](D* dst, int) { return run<F>(iir_call::one_by_one, state.get(), &x, dst, 1, 0), tavStatusOk; },
      [&](std::vector<D>& dst) { return dst[0] = x, tavStatusOk; });
}

// What follows is never heard before it: a NaN or an infinity leaves the outputs before it alone.
TYPED_TEST(Iir, Causal) {
  using F = TypeParam;
  using D = typename F::data;
  source_of_data data(6);
  if constexpr (std::is_floating_point_v<part_of<D>>) {
    for (size_t k = 0; k < 5 * 40; ++k) {
      const size_t   order = std::array<size_t, 5>{1, 2, 3, 4, 7}[k / 40], at = k % 40;
      const auto     taps = iir_taps<F>::drawn(order, 0.5L, data);
      const auto     src  = samples<D>(40, data);
      std::vector<D> clean(40), spoilt(40), with = src;
      if constexpr (is_pair<D>)
        with[at].im = std::numeric_limits<part_of<D>>::quiet_NaN();
      else
        with[at] = std::numeric_limits<D>::infinity();
      run<F>(iir_call::block, iir_state<F>(taps).get(), src.data(), clean.data(), 40, 0);
      run<F>(iir_call::block, iir_state<F>(taps).get(), with.data(), spoilt.data(), 40, 0);
      for (size_t i = 0; i < at; ++i)
        ASSERT_TRUE(same(clean[i], spoilt[i])) << "order " << order << ", at " << at << ", output " << i;
      ASSERT_FALSE(same(clean[at], spoilt[at]));
    }
  }
}

// New taps act on the delay line that is there; a failed call leaves the old ones.
TYPED_TEST(Iir, TapsAndDelayLineInMidStream) {
  using F = TypeParam;
  using D = typename F::data;
  each_build<F::set_taps>([&] {
    source_of_data data(7);
    for (size_t order : {1, 2, 5}) {
      const auto         first = iir_taps<F>::drawn(order, 0.8L, data), second = iir_taps<F>::drawn(order, 0.6L, data);
      const iir_state<F> state(first, some_delay<F>(order, data).data());
      std::vector<D>     src    = samples<D>(50, data), dst(50);
      const int          scale  = ordinary_scale<F>;
      const auto         expect = [&](const iir_taps<F>& taps) {
        oracle::iir filter = oracle_of(taps);
        filter.set_delay(delay_values<F>(state.delay()));
        run<F>(iir_call::block, state.get(), src.data(), dst.data(), 50, scale);
        for (size_t i = 0; i < 50; ++i)
          ASSERT_TRUE(within(dst[i], filter.next(wide(src[i])), exponent_of_scale<F>(scale))) << "sample " << i;
      };
      expect(first);
      ASSERT_EQ(set_taps(second, state.get()), tavStatusOk);
      expect(second);
      auto zero             = first;
      zero.given[order + 1] = {};
      ASSERT_EQ(set_taps(zero, state.get()), tavStatusDivideByZero);
      expect(second);
      const auto line = some_delay<F>(order, data);
      state.set_delay(line.data());
      EXPECT_EQ(first_difference(state.delay(), line), -1);
      expect(second);
      state.set_delay(nullptr);
      EXPECT_EQ(first_difference(state.delay(), std::vector<typename F::tap>(order)), -1);
      expect(second);
      if (this->HasFatalFailure()) return;
    }
  });
}

// Every scale factor on its own: with y = x the results are exact.
TYPED_TEST(Iir, ScaleFactors) {
  using F = TypeParam;
  using D = typename F::data;
  if constexpr (is_scaled<F>) {
    constexpr bool singles = sizeof(part_of<typename F::arithmetic>) == 4;
    each_build<F::block>([&] {
      source_of_data     data(8);
      const iir_state<F> state(iir_taps<F>::identity(2));
      const auto         src = data.values<D>(64);
      const auto         fit = [&](auto v, int s) {  // multiplied as singles and doubles are
        using P = decltype(v);
        if (singles && s >= 0 && s % 128 == 127) return P(0);
        return stored<P>(ldexpl(v, exponent_of_scale<F>(s)));
      };
      std::vector<int> factors{INT_MIN, INT_MIN + 1, INT_MAX, 1000, -1000};
      for (int s = -260; s <= 260; ++s) factors.push_back(s);
      for (int s : factors)
        for (iir_call how : {iir_call::block, iir_call::in_place, iir_call::one_by_one}) {
          std::vector<D> dst(64), want(64);
          for (size_t i = 0; i < 64; ++i) {
            if constexpr (is_pair<D>)
              want[i] = {fit(src[i].re, s), fit(src[i].im, s)};
            else
              want[i] = fit(src[i], s);
          }
          run<F>(how, state.get(), src.data(), dst.data(), 64, s);
          ASSERT_EQ(first_difference(dst, want), -1) << "scale factor " << s << ", call " << int(how);
        }
    });
  }
}

// A filter that makes NaNs gives the upper limit where results are integers.
TYPED_TEST(Iir, NanAsAnInteger) {
  using F = TypeParam;
  using D = typename F::data;
  if constexpr (is_scaled<F> && !integer_taps<F>) {
    auto taps = iir_taps<F>::identity(1);
    if constexpr (is_pair<D>)
      taps.given[0].re = std::numeric_limits<part_of<typename F::tap>>::quiet_NaN();
    else
      taps.given[0] = std::numeric_limits<typename F::tap>::quiet_NaN();
    const iir_state<F> state(taps);
    std::vector<D>     src(20), dst(20);
    for (iir_call how : {iir_call::block, iir_call::one_by_one}) {
      run<F>(how, state.get(), src.data(), dst.data(), 20, 0);
      for (const D& v : dst) EXPECT_EQ(wide(v).real(), (long double)std::numeric_limits<part_of<D>>::max());
    }
  }
}

// Filters of floats follow the caller's rounding mode, those of integers are to nearest in any.
TYPED_TEST(Iir, RoundingModes) {
  using F = TypeParam;
  using D = typename F::data;
  source_of_data data(9);
  const auto     taps    = iir_taps<F>::drawn(2, 0.5L, data);
  const auto     src     = samples<D>(40, data);
  const auto     results = [&](iir_call how) {
    std::vector<D> dst(40);
    run<F>(how, iir_state<F>(taps).get(), src.data(), dst.data(), 40, 2);
    return dst;
  };
  for (iir_call how : {iir_call::block, iir_call::one_by_one}) {
    const iir_state<F> state(taps);
    const auto         nearest = results(how);
    for (unsigned mode : rounding_modes) {
      state.set_delay(nullptr);
      std::vector<D> dst(40);
      {
        const rounding_mode set(mode);
        run<F>(how, state.get(), src.data(), dst.data(), 40, 2);
      }
      EXPECT_EQ(first_difference(dst, nearest) < 0, is_scaled<F>) << std::hex << mode;
    }
  }
}

}  // namespace
