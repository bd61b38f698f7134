// The states of the filters of arbitrary order: the sizes they report, that set-up and calls keep to them at any
// address, ownership, what a refused allocation or a bad tap leaves behind, and which ids are accepted.
#include <gtest/gtest.h>

#include "filter/iir_calls.h"
#include "harness/arena.h"

using namespace test;

namespace {

template <class F> class IirRecord : public testing::Test {};
TYPED_TEST_SUITE(IirRecord, iir_forms);

// Where pointers have 64 bits the head of a record is 48 bytes longer, nothing else.
constexpr int64_t pointer_growth = sizeof(void*) == 4 ? 0 : 48;

template <class F> int64_t formula(int64_t n) {
  using A             = typename F::arithmetic;
  const bool    mixed = !std::is_same_v<A, typename F::data>;
  const int64_t s     = mixed ? 2048 : 1024;
  if (std::is_same_v<A, Tav32f>) return ((4 * n + 19) & ~15) + ((8 * n + 19) & ~15) + 4 * (8 * n + 16 + s) + 120;
  if (std::is_same_v<A, Tav32fc>) return ((16 * n + 39) & ~31) + ((8 * n + 39) & ~31) + (16 * n + 36 + s) * 8 + 176;
  if (std::is_same_v<A, Tav64f>) return ((8 * n + 23) & ~15) + ((16 * n + 23) & ~15) + 48 + (s + 6 * n + 14) * 8 + 32;
  return (14 * n + (n + 1024) * (mixed ? 2 : 1) + 10) * 16 + 48 * n + 112;
}

template <auto* Query> int size_of_state(int order) {
  int size = -1;
  EXPECT_EQ(call<Query>(order, &size), tavStatusOk);
  return size;
}

TYPED_TEST(IirRecord, Sizes) {
  each_build<TypeParam::get_state_size>([] {
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 17, 100, 1023, 1 << 20, INT32_MAX})
      EXPECT_EQ(size_of_state<TypeParam::get_state_size>(n), int32_t(uint32_t(formula<TypeParam>(n) + pointer_growth)))
          << "order " << n;
  });
}

TEST(IirRecordSizes, OfFloatTapsForStatesOfIntegerTaps) {
  for (int n : {1, 4, 7, 30}) {
    EXPECT_EQ(size_of_state<&::tavsIIRGetStateSize32s_16s32f>(n), size_of_state<&::tavsIIRGetStateSize32s_16s>(n));
    EXPECT_EQ(size_of_state<&::tavsIIRGetStateSize32sc_16sc32fc>(n), size_of_state<&::tavsIIRGetStateSize32sc_16sc>(n));
  }
}

template <class F> std::vector<typename F::data> filtered(typename F::state* s, size_t n) {
  using D = typename F::data;
  source_of_data data(3);
  std::vector<D> dst(n);
  run<F>(iir_call::block, s, samples<D>(n, data).data(), dst.data(), n, 3);
  return dst;
}

// In a block of just the size told, between guard bytes, and at the ends of a page.
TYPED_TEST(IirRecord, KeepsToItsSize) {
  using F = TypeParam;
  each_build<F::init>([&] {
    source_of_data data(1);
    for (size_t order : {1, 2, 3, 4, 5, 6, 7, 8, 11, 40, 300}) {
      const auto             taps = iir_taps<F>::drawn(order, 0.5L, data);
      const iir_state<F>     expected(taps);
      const auto             want = filtered<F>(expected.get(), 1200);
      const size_t           size = size_t(size_of_state<F::get_state_size>(int(order)));
      arena                  home(size + 64);
      std::vector<placement> all{{placement::begins_at_page}, {placement::ends_at_page}};
      for (unsigned offset = 0; offset < 32; ++offset) all.push_back({placement::inside, offset});
      for (const placement& where : all) {
        const array<Tav8u> block(home, size, where);
        memset(block.data(), 0xFF, size);
        typename F::state* s = nullptr;
        ASSERT_EQ(init<F>(&s, taps, block.data()), tavStatusOk);
        EXPECT_EQ(uintptr_t(s) % 32, 0u);
        EXPECT_LT(uintptr_t(s) - uintptr_t(block.data()), 32u);
        ASSERT_EQ(first_difference(filtered<F>(s, 1200), want), -1) << "order " << order << ", " << where;
        ASSERT_EQ(set_taps(taps, s), tavStatusOk);
        ASSERT_TRUE(block.guards_intact()) << "order " << order << ", " << where;
        tavcore_fake_reset();
        EXPECT_EQ(call<F::free>(s), tavStatusOk);
        EXPECT_EQ(call<F::free>(s), tavStatusOk) << "the id of a state in the caller's memory stays";
        EXPECT_EQ(tavcore_fake_read().releases, 0);
      }
    }
  });
}

TYPED_TEST(IirRecord, InitAllocTakesAndGivesBack) {
  using F = TypeParam;
  each_build<F::init_alloc>([&] {
    source_of_data data(2);
    const auto     taps   = iir_taps<F>::drawn(3, 0.5L, data);
    const int      blocks = integer_taps<F> ? 2 : 1;
    for (int granted = 0; granted < blocks; ++granted) {
      typename F::state* s = nullptr;
      tavcore_fake_reset();
      tavcore_fake_refuse_after(granted);
      EXPECT_EQ(init_alloc<F>(&s, taps), tavStatusNoMemory);
      EXPECT_EQ(s, nullptr);
      EXPECT_EQ(tavcore_fake_read().live, 0);
    }
    tavcore_fake_reset();
    typename F::state* s = nullptr;
    ASSERT_EQ(init_alloc<F>(&s, taps), tavStatusOk);
    EXPECT_EQ(tavcore_fake_read().allocations, blocks);
    EXPECT_EQ(tavcore_fake_read().live, 1);
    filtered<F>(s, 2000);
    EXPECT_EQ(tavcore_fake_read().allocations, blocks) << "a call allocated";
    EXPECT_EQ(call<F::free>(s), tavStatusOk);
    EXPECT_EQ(tavcore_fake_read().live, 0);
    EXPECT_EQ(tavcore_fake_read().damaged, 0);

    auto zero     = taps;
    zero.given[4] = {};
    s             = nullptr;
    EXPECT_EQ(init_alloc<F>(&s, zero), tavStatusDivideByZero);
    EXPECT_EQ(s, nullptr);
    EXPECT_EQ(tavcore_fake_read().live, 0);
    std::vector<Tav8u> block(size_t(size_of_state<F::get_state_size>(3)));
    EXPECT_EQ(init<F>(&s, zero, block.data()), tavStatusDivideByZero);
    EXPECT_EQ(s, nullptr);
    EXPECT_EQ(tavcore_fake_read().live, 0);
    tavcore_fake_reset();
  });
}

// Sizes beyond what can be asked for.
TYPED_TEST(IirRecord, OrdersTooLargeToAllocate) {
  using F                 = TypeParam;
  typename F::state*    s = nullptr;
  const typename F::tap tap{};
  for (int order : {INT32_MAX, INT32_MAX / 2, 1 << 28, 1 << 26}) {
    if constexpr (integer_taps<F>)
      EXPECT_EQ(call<F::init_alloc>(&s, &tap, order, 0, nullptr), tavStatusNoMemory);
    else
      EXPECT_EQ(call<F::init_alloc>(&s, &tap, order, nullptr), tavStatusNoMemory);
    EXPECT_EQ(s, nullptr);
  }
}

// Integer taps are converted in memory taken for the call: without it the state stays as it is.
template <class F> void check_refused_taps() {
  source_of_data     data(4);
  const auto         first = iir_taps<F>::drawn(3, 0.5L, data), second = iir_taps<F>::drawn(3, 0.7L, data);
  const iir_state<F> state(first), twin(first);
  const int          held = tavcore_fake_read().live;
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  EXPECT_EQ(set_taps(second, state.get()), tavStatusNoMemory);
  std::vector<Tav8u> block(size_t(size_of_state<F::get_state_size>(3)));
  typename F::state* s = nullptr;
  EXPECT_EQ(init<F>(&s, first, block.data()), tavStatusNoMemory);
  EXPECT_EQ(s, nullptr);
  tavcore_fake_reset();
  EXPECT_EQ(first_difference(filtered<F>(state.get(), 100), filtered<F>(twin.get(), 100)), -1);
  EXPECT_EQ(set_taps(second, state.get()), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, held) << "the memory of the conversion is given back";
}
TEST(IirIntegerTaps, RefusedMemory) {
  check_refused_taps<iir_32s_16s>();
  check_refused_taps<iir_32sc_16sc>();
}

// The forms with float taps make the same states.
template <class F, auto* Init, auto* InitAlloc, auto* SetTaps> void check_float_taps() {
  using A = typename F::arithmetic;
  source_of_data data(5);
  for (size_t order : {1, 2, 6}) {
    const auto     taps = iir_taps<F>::drawn(order, 0.5L, data);
    std::vector<A> floats;
    for (auto v : taps.values()) floats.push_back(narrow<A>(v));
    const iir_state<F> expected(taps);
    const auto         want = filtered<F>(expected.get(), 100);
    const auto         dly  = expected.delay();

    typename F::state* s = nullptr;
    ASSERT_EQ(call<InitAlloc>(&s, floats.data(), int(order), nullptr), tavStatusOk);
    EXPECT_EQ(first_difference(filtered<F>(s, 100), want), -1);
    EXPECT_EQ(call<F::set_delay>(s, nullptr), tavStatusOk);
    EXPECT_EQ(call<SetTaps>(floats.data(), s), tavStatusOk);
    EXPECT_EQ(first_difference(filtered<F>(s, 100), want), -1);
    EXPECT_EQ(call<F::free>(s), tavStatusOk);

    std::vector<Tav8u> block(size_t(size_of_state<F::get_state_size>(int(order))));
    ASSERT_EQ(call<Init>(&s, floats.data(), int(order), dly.data(), block.data() + 0), tavStatusOk);
    const auto more = filtered<F>(s, 100);
    EXPECT_EQ(first_difference(more, filtered<F>(expected.get(), 100)), -1) << "the delay line was not taken";
  }
}
TEST(IirFloatTaps, ForStatesOfIntegerTaps) {
  check_float_taps<iir_32s_16s, &::tavsIIRInit32s_16s32f, &::tavsIIRInitAlloc32s_16s32f, &::tavsIIRSetTaps32s_16s32f>();
  check_float_taps<iir_32sc_16sc, &::tavsIIRInit32sc_16sc32fc, &::tavsIIRInitAlloc32sc_16sc32fc,
                   &::tavsIIRSetTaps32sc_16sc32fc>();
}

// tapsFactor counts down: tap * 2^-tapsFactor, a negative one counts up.
TEST(IirIntegerTaps, FactorCountsDown) {
  for (int factor : {-10, -1, 0, 1, 5, 29}) {
    const Tav32s     one = factor < 0 ? 1024 : 1 << factor;  // 1, or 1024 * 2^-factor
    const Tav32s     taps[]{one, 0, one, 0};
    const Tav16s     x = 1000;
    Tav16s           y = 0;
    IIRState32s_16s* s = nullptr;
    ASSERT_EQ(call<&::tavsIIRInitAlloc32s_16s>(&s, taps, 1, factor, nullptr), tavStatusOk);
    EXPECT_EQ(call<&::tavsIIR32s_16s_Sfs>(&x, &y, 1, s, 0), tavStatusOk);
    EXPECT_EQ(y, 1000);
    const Tav32s twice[]{2 * one, 0, one, 0};
    EXPECT_EQ(call<&::tavsIIRSetTaps32s_16s>(twice, s, factor), tavStatusOk);
    EXPECT_EQ(call<&::tavsIIROne32s_16s_Sfs>(x, &y, s, 1), tavStatusOk);
    EXPECT_EQ(y, 1000);
    EXPECT_EQ(call<&::tavsIIRFree32s_16s>(s), tavStatusOk);
  }
  // The same taps with another factor for b: 3 * 2^-2 over 3 * 2^-2 is 1, whatever the factor; a[0] = 0 is refused.
  const Tav32s     zero[]{1, 0, 0, 0};
  IIRState32s_16s* s = nullptr;
  EXPECT_EQ(call<&::tavsIIRInitAlloc32s_16s>(&s, zero, 1, 3, nullptr), tavStatusDivideByZero);
}

// A state of one form is none of another's.
TYPED_TEST(IirRecord, RefusesOtherRecords) {
  using F = TypeParam;
  using D = typename F::data;
  const iir_state<F> state(iir_taps<F>::identity(1));
  uint32_t* const    id   = reinterpret_cast<uint32_t*>(state.get());
  const uint32_t     mine = *id;
  D                  x{};
  typename F::tap    d{};
  for (uint32_t other : {0u, mine ^ 0x100u, 0x49493034u + (mine == 0x49493033u || mine == 0x49493034u)}) {
    if (other == mine) continue;
    *id = other;
    if constexpr (is_scaled<F>) {
      EXPECT_EQ(call<F::block>(&x, &x, 1, state.get(), 0), tavStatusBadContext);
      EXPECT_EQ(call<F::one>(x, &x, state.get(), 0), tavStatusBadContext);
    } else {
      EXPECT_EQ(call<F::block>(&x, &x, 1, state.get()), tavStatusBadContext);
      EXPECT_EQ(call<F::one>(x, &x, state.get()), tavStatusBadContext);
    }
    EXPECT_EQ(call<F::get_delay>(state.get(), &d), tavStatusBadContext);
    EXPECT_EQ(call<F::set_delay>(state.get(), &d), tavStatusBadContext);
    EXPECT_EQ(set_taps(iir_taps<F>::identity(1), state.get()), tavStatusBadContext);
    EXPECT_EQ(call<F::free>(state.get()), tavStatusBadContext);
  }
  *id = mine;
}

// The ids are words of letters and digits.
template <class F> uint32_t id_of() {
  const iir_state<F> state(iir_taps<F>::identity(1));
  return *reinterpret_cast<const uint32_t*>(state.get());
}
TEST(IirIds, ByForm) {
  EXPECT_EQ(id_of<iir_32f>(), 0x49493031u);
  EXPECT_EQ(id_of<iir_32fc>(), 0x49493033u);
  EXPECT_EQ(id_of<iir_32f_16s>(), 0x49493035u);
  EXPECT_EQ(id_of<iir_32fc_16sc>(), 0x49493037u);
  EXPECT_EQ(id_of<iir_32s_16s>(), 0x49493039u);
  EXPECT_EQ(id_of<iir_32sc_16sc>(), 0x49493131u);
  EXPECT_EQ(id_of<iir_64f>(), 0x49493133u);
  EXPECT_EQ(id_of<iir_64fc>(), 0x49493135u);
  EXPECT_EQ(id_of<iir_64f_32f>(), 0x49493137u);
  EXPECT_EQ(id_of<iir_64fc_32fc>(), 0x49493139u);
  EXPECT_EQ(id_of<iir_64f_32s>(), 0x49493231u);
  EXPECT_EQ(id_of<iir_64fc_32sc>(), 0x49493233u);
  EXPECT_EQ(id_of<iir_64f_16s>(), 0x49493235u);
  EXPECT_EQ(id_of<iir_64fc_16sc>(), 0x49493237u);
}

}  // namespace
