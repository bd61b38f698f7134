// States of cascades: sizes, set-up in no more memory than they tell, refused allocations, taps that cannot be.
#include "filter/biquad_checks.h"

#include "harness/tavcore_fake.h"

using namespace test;

namespace {

template <class F> class BiquadRecord : public testing::Test {};
TYPED_TEST_SUITE(BiquadRecord, biquad_forms, biquad_form_names);

constexpr int64_t wider_pointers = sizeof(void*) == 4 ? 0 : 48;  // what the record takes more on 64 bits

template <class A, bool Mixed> int64_t size_of_state(int64_t n) {
  const int64_t s = Mixed ? 2048 : 1024;
  if (std::is_same_v<A, Tav32f>) {
    const int64_t lists = (((20 * n + 15) >> 4) + ((8 * n + 15) >> 4)) * 16;
    return Mixed ? 160 * n + 8232 + lists + 80 : ((160 * n + 4151) & ~15) + 128 * n + 16 + lists + 80;
  }
  if (std::is_same_v<A, Tav32fc>) return ((40 * n + 31) & ~31) + ((16 * n + 31) & ~31) + (148 * n + s) * 8 + 128;
  if (std::is_same_v<A, Tav64f>) return 16 * n + (32 * n + s) * 8 + ((40 * n + 15) & ~15) + 48;
  return 32 * n + ((80 * n + 15) & ~15) + 48 + (64 * n + s) * 16 + 32;
}

TYPED_TEST(BiquadRecord, Sizes) {
  using F = TypeParam;
  for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 31, 100, 1000, 100000}) {
    int size = 0;
    ASSERT_EQ(call<F::get_size>(n, &size), tavStatusOk);
    EXPECT_EQ(size, (size_of_state<typename F::arithmetic, is_mixed<F>>(n)) + wider_pointers) << n;
  }
}

TEST(BiquadRecordDf1, Sizes) {
  for (int64_t n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 31, 100, 1000, 100000}) {
    int size = 0;
    ASSERT_EQ(call<&tavsIIRGetStateSize_BiQuad_DF1_32f>(int(n), &size), tavStatusOk);
    EXPECT_EQ(size, (((20 * n + 15) >> 4) + n) * 16 + 48 + 128 * n + 32 + wider_pointers);
    ASSERT_EQ(call<&tavsIIRGetStateSize64f_BiQuad_DF1_32s>(int(n), &size), tavStatusOk);
    EXPECT_EQ(size, ((40 * n + 15) & ~15) + 256 * n + 16432 + 48 * n + wider_pointers);
  }
}

TYPED_TEST(BiquadRecord, WorksInTheMemoryThatItAsksFor) { check_biquad_memory<TypeParam>(); }

TYPED_TEST(BiquadRecord, RefusedAllocations) {
  using F = TypeParam;
  source_of_data     data(8);
  const auto         taps    = stable_taps<F>(2, 0.8, data);
  typename F::state* state   = nullptr;
  const auto         no_line = static_cast<const delay_of<F>*>(nullptr);
  tavcore_fake_reset();
  ASSERT_EQ((init_alloc_biquads<F>(&state, taps.data(), 2, no_line)), tavStatusOk);
  const int allocations = tavcore_fake_read().allocations;
  EXPECT_EQ(allocations, converts_taps<F> ? 2 : 1);
  EXPECT_EQ(tavcore_fake_read().live, 1);
  ASSERT_EQ(call<F::free>(state), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
  for (int k = 0; k < allocations; ++k) {
    tavcore_fake_refuse_after(k);
    typename F::state* const before = reinterpret_cast<typename F::state*>(&data);
    state                           = before;
    EXPECT_EQ((init_alloc_biquads<F>(&state, taps.data(), 2, no_line)), tavStatusNoMemory);
    EXPECT_EQ(state, before);
    EXPECT_EQ(tavcore_fake_read().live, 0);
  }
  if constexpr (converts_taps<F>) {
    int size = 0;
    ASSERT_EQ(call<F::get_size>(2, &size), tavStatusOk);
    std::vector<Tav8u> block(size_t(size), 0), kept = block;
    tavcore_fake_refuse_after(0);
    EXPECT_EQ((init_biquads<F>(&state, taps.data(), 2, no_line, block.data())), tavStatusNoMemory);
    EXPECT_EQ(block, kept);
  }
  tavcore_fake_reset();
}

// More sections than memory can be told of.
TYPED_TEST(BiquadRecord, SizesPast32Bits) {
  using F            = TypeParam;
  const int sections = std::numeric_limits<int>::max();
  int       size     = 0;
  EXPECT_EQ(call<F::get_size>(sections, &size), tavStatusOk);
  typename F::state*    state = nullptr;
  const typename F::tap tap{};
  EXPECT_EQ((init_alloc_biquads<F>(&state, &tap, sections, static_cast<const delay_of<F>*>(nullptr))),
            tavStatusNoMemory);
  EXPECT_EQ(state, nullptr);
}

// b0 and a0 must not be 0, wherever: neither at set-up nor later. Sections before the first bad one are changed.
TYPED_TEST(BiquadRecord, LeadingCoefficientsOfZero) {
  using F = TypeParam;
  source_of_data data(4);
  const auto     good = stable_taps<F>(3, 0.8, data), others = stable_taps<F>(3, 0.6, data);
  const auto     x       = noise<F>(40, data);
  const auto     no_line = static_cast<const delay_of<F>*>(nullptr);
  for (size_t section : {0, 1, 2})
    for (size_t tap : {0, 3}) {
      auto bad               = others;
      bad[6 * section + tap] = {};
      if constexpr (!is_pair<typename F::tap> && !converts_taps<F>) bad[6 * section + tap] = typename F::tap(-0.0);
      tavcore_fake_reset();
      typename F::state* state = nullptr;
      EXPECT_EQ((init_alloc_biquads<F>(&state, bad.data(), 3, no_line)), tavStatusDivideByZero);
      EXPECT_EQ(tavcore_fake_read().live, 0);
      int size = 0;
      ASSERT_EQ(call<F::get_size>(3, &size), tavStatusOk);
      std::vector<Tav8u> block(size_t(size), 0);
      EXPECT_EQ((init_biquads<F>(&state, bad.data(), 3, no_line, block.data())), tavStatusDivideByZero);
      EXPECT_EQ(state, nullptr);

      auto mixture = good;
      std::copy_n(others.begin(), 6 * section, mixture.begin());
      const biquad_state<F> changed(good), wanted(mixture);
      EXPECT_EQ(set_biquads<F>(bad.data(), changed.get()), tavStatusDivideByZero);
      auto a = x, b = x;
      ASSERT_EQ((filter_biquads<F>(x.data(), a.data(), 40, changed.get(), 0)), tavStatusOk);
      ASSERT_EQ((filter_biquads<F>(x.data(), b.data(), 40, wanted.get(), 0)), tavStatusOk);
      EXPECT_EQ(first_difference(a, b), -1);
    }
}

// Of a complex coefficient both parts have to be 0.
TEST(BiquadRecordComplex, OnePartOfZeroIsNoZero) {
  for (Tav32fc v : {Tav32fc{0, 1}, Tav32fc{1, 0}}) {
    const std::vector<Tav32fc>  taps{v, {}, {}, v, {}, {}};
    const biquad_state<bq_32fc> state(taps);
    const Tav32fc               x{3, -2};
    Tav32fc                     y{};
    ASSERT_EQ(call<&tavsIIROne_32fc>(x, &y, state.get()), tavStatusOk);
    EXPECT_EQ(y.re, 3);
    EXPECT_EQ(y.im, -2);
  }
}

// A NaN is no zero.
TEST(BiquadRecordReal, NanPasses) {
  const float                nan = std::numeric_limits<float>::quiet_NaN();
  std::vector<float>         taps{nan, 0, 0, nan, 0, 0};
  const biquad_state<bq_32f> state(taps);
}

}  // namespace
