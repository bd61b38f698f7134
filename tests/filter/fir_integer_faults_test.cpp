// The statuses of the integer FIR filters, and which records their calls take.
#include "filter/fir_faults.h"

#include "filter/fir_integer_calls.h"

using namespace test;

#define CASE(form)                                      \
  TAV_FAULTS(FIRGetStateSize##form, fir_size_in_order)  \
  TAV_FAULTS(FIRInit##form, fir_set_up<0, 1, 5>)        \
  TAV_FAULTS(FIRInitAlloc##form, fir_set_up<0, 1>)      \
  TAV_FAULTS(FIRFree##form, fir_pointers_then_id)       \
  TAV_FAULTS(FIR##form##_Sfs, fir_block<2>)             \
  TAV_FAULTS(FIR##form##_ISfs, fir_block<2>)            \
  TAV_FAULTS(FIROne##form##_Sfs, fir_pointers_then_id)  \
  TAV_FAULTS(FIRGetTaps##form, fir_pointers_then_id)    \
  TAV_FAULTS(FIRSetTaps##form, fir_pointers_then_id)    \
  TAV_FAULTS(FIRGetDlyLine##form, fir_pointers_then_id) \
  TAV_FAULTS(FIRSetDlyLine##form, fir_state_then_id)
CASE(_16s)
CASE(32s_16s)
CASE(32sc_16sc)
#undef CASE
#define CASE(form)                                     \
  TAV_FAULTS(FIRGetStateSize##form, fir_size_in_order) \
  TAV_FAULTS(FIRInit##form, fir_set_up<0, 1, 4>)       \
  TAV_FAULTS(FIRInitAlloc##form, fir_set_up<0, 1>)     \
  TAV_FAULTS(FIRGetTaps##form, fir_pointers_then_id)   \
  TAV_FAULTS(FIRSetTaps##form, fir_pointers_then_id)
CASE(32s_16s32f)
CASE(32sc_16sc32fc)
#undef CASE

namespace {

using namespace test::words;

template <class F> struct ids;
template <> struct ids<fir_16s> {
  static constexpr uint32_t single = 0x46493239, multi = 0x46493330, streams[] = {0x46493331, 0x46493332};
};
template <> struct ids<fir_32s_16s> {
  static constexpr uint32_t single = 0x46493039, multi = 0x46493131, streams[] = {0, 0};
};
template <> struct ids<fir_32sc_16sc> {
  static constexpr uint32_t single = 0x46493130, multi = 0x46493132, streams[] = {0, 0};
};

template <class F> class FirIntegerIds : public testing::Test {};
using families = testing::Types<fir_16s, fir_32s_16s, fir_32sc_16sc>;
TYPED_TEST_SUITE(FirIntegerIds, families);

void set_id(void* state, uint32_t id) { memcpy(state, &id, sizeof id); }

TYPED_TEST(FirIntegerIds, WhichRecordsAreTaken) {
  using F = TypeParam;
  each_build<F::block>([] {
    source_of_data  data(1);
    const auto      h = data.values<typename F::taps>(3);
    const filter<F> f(h, 0);
    uint32_t        id = 0;
    memcpy(&id, f.get(), sizeof id);
    EXPECT_EQ(id, ids<F>::single);

    std::vector<typename F::taps> taps(3);
    typename F::data              x[3]{}, y[3];
    int                           factor    = 0;
    const auto                    accessors = [&](TavStatus expected) {
      EXPECT_EQ(call<F::get_taps>(f.get(), taps.data(), &factor), expected);
      EXPECT_EQ(call<F::set_taps>(taps.data(), f.get(), 0), expected);
      EXPECT_EQ(call<F::get_dly>(f.get(), y), expected);
      EXPECT_EQ(call<F::set_dly>(f.get(), x), expected);
    };
    set_id(f.get(), ids<F>::multi);
    accessors(tavStatusOk);
    EXPECT_EQ(call<F::one>(x[0], y, f.get(), 0), tavStatusBadContext);
    for (uint32_t stream : ids<F>::streams) {
      set_id(f.get(), stream);
      accessors(tavStatusBadContext);
      EXPECT_EQ(call<F::one>(x[0], y, f.get(), 0), tavStatusBadContext);
      if (stream == 0) {
        EXPECT_EQ(call<F::block>(x, y, 3, f.get(), 0), tavStatusBadContext);
      }
    }
    set_id(f.get(), ids<F>::single);
  });
}

// Free takes every id of the family and leaves it where it is.
TYPED_TEST(FirIntegerIds, Release) {
  using F = TypeParam;
  each_build<F::free>([] {
    source_of_data data(1);
    const auto     h = data.values<typename F::taps>(5);
    for (uint32_t id : {ids<F>::single, ids<F>::multi, ids<F>::streams[0], ids<F>::streams[1]}) {
      if (id == 0) continue;
      tavcore_fake_reset();
      typename F::state* state = nullptr;
      ASSERT_EQ(call<F::init_alloc>(&state, h.data(), 5, 0, static_cast<const typename F::data*>(nullptr)),
                tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().live, 1);
      set_id(state, id);
      EXPECT_EQ(call<F::free>(state), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().live, 0);
      EXPECT_EQ(tavcore_fake_read().damaged, 0);
    }
  });
}

TYPED_TEST(FirIntegerIds, MemoryOfTheCallersStays) {
  using F = TypeParam;
  each_build<F::free>([] {
    source_of_data  data(1);
    const auto      h = data.values<typename F::taps>(5);
    const filter<F> f(h, 0, nullptr, placement{placement::inside, 3});
    uint8_t         before[48], after[48];
    memcpy(before, f.get(), sizeof before);
    tavcore_fake_reset();
    EXPECT_EQ(call<F::free>(f.get()), tavStatusOk);
    EXPECT_EQ(call<F::free>(f.get()), tavStatusOk);
    EXPECT_EQ(tavcore_fake_read().releases, 0);
    memcpy(after, f.get(), sizeof after);
    EXPECT_EQ(memcmp(before, after, sizeof before), 0);
  });
}

TYPED_TEST(FirIntegerIds, NoMemory) {
  using F = TypeParam;
  each_build<F::init_alloc>([] {
    source_of_data     data(1);
    const auto         h     = data.values<typename F::taps>(5);
    auto* const        mark  = reinterpret_cast<typename F::state*>(&data);
    typename F::state* state = mark;
    tavcore_fake_reset();
    tavcore_fake_refuse_after(0);
    EXPECT_EQ(call<F::init_alloc>(&state, h.data(), 5, 0, static_cast<const typename F::data*>(nullptr)),
              tavStatusNoMemory);
    EXPECT_EQ(state, mark);
    tavcore_fake_reset();
  });
}

}  // namespace
