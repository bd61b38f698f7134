// What holds for cascades of either structure.
#pragma once
#include "filter/biquad_forms.h"
#include "harness/layouts.h"

namespace test {

// Wherever source and destination lie, and in place, the bits are the same.
template <class F> void check_biquad_layouts(std::initializer_list<int> lengths, uint32_t seed) {
  using D = typename F::sample;
  source_of_data data(seed);
  arena          from(1100 * sizeof(D)), to(1100 * sizeof(D));
  for (int sections : {1, 2, 3}) {
    const auto taps = stable_taps<F>(sections, 0.8, data);
    for (int len : lengths) {
      const auto     x = noise<F>(size_t(len), data);
      std::vector<D> want(x.size());
      ASSERT_EQ((filter_biquads<F>(x.data(), want.data(), len, biquad_state<F>(taps).get(), 0)), tavStatusOk);
      for (const layout& l : len < 20 ? all_layouts() : few_layouts()) {
        array<D> src(from, x.size(), l.src), dst(to, x.size(), l.dst);
        src.assign(x);
        ASSERT_EQ((filter_biquads<F>(src.data(), dst.data(), len, biquad_state<F>(taps).get(), 0)), tavStatusOk);
        ASSERT_EQ(first_difference(dst.values(), want), -1) << len << " samples, " << l;
        ASSERT_TRUE(dst.guards_intact() && src.guards_intact() && first_difference(src.values(), x) == -1) << l;
        ASSERT_EQ((filter_biquads<F>(src.data(), src.data(), len, biquad_state<F>(taps).get(), 0)), tavStatusOk);
        ASSERT_EQ(first_difference(src.values(), want), -1) << "in place, " << len << " samples, " << l;
        ASSERT_TRUE(src.guards_intact());
      }
    }
  }
}

// A state at every address, in exactly the bytes told, with blocks that touch all of the record.
template <class F> void check_biquad_memory() {
  source_of_data data(3);
  for (int n : {1, 2, 3, 7}) {
    const auto taps = stable_taps<F>(n, 0.8, data);
    const auto x    = noise<F>(1500, data);
    auto       want = x;
    ASSERT_EQ((filter_biquads<F>(x.data(), want.data(), 1500, biquad_state<F>(taps).get(), 0)), tavStatusOk);
    int size = 0;
    ASSERT_EQ(call<F::get_size>(n, &size), tavStatusOk);
    arena                  home(size_t(size) + 64);
    std::vector<placement> places{{placement::begins_at_page}, {placement::ends_at_page}};
    for (unsigned offset = 0; offset < 64; ++offset) places.push_back({placement::inside, offset});
    for (const placement& p : places) {
      const array<Tav8u>       block(home, size_t(size), p);
      typename F::state*       state = nullptr;
      std::vector<delay_of<F>> line(size_t(4 * n));
      ASSERT_EQ((init_biquads<F>(&state, taps.data(), n, static_cast<const delay_of<F>*>(nullptr), block.data())),
                tavStatusOk);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(state) % 32, 0u);
      EXPECT_LT(reinterpret_cast<uintptr_t>(state) - reinterpret_cast<uintptr_t>(block.data()), 32u);
      auto y = x;
      ASSERT_EQ((filter_biquads<F>(y.data(), y.data(), 1500, state, 0)), tavStatusOk);
      ASSERT_EQ(first_difference(y, want), -1) << p;
      ASSERT_EQ(call<F::get_delay>(static_cast<const typename F::state*>(state), line.data()), tavStatusOk);
      ASSERT_EQ(call<F::free>(state), tavStatusOk);
      ASSERT_EQ(call<F::free>(state), tavStatusOk) << "a state in the caller's memory stays";
      ASSERT_TRUE(block.guards_intact()) << p;
    }
  }
}

}  // namespace test
