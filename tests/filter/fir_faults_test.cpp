// The statuses of the FIR filters with taps in floats, and which records their calls take.
#include "filter/fir_faults.h"
#include "filter/fir_calls.h"

using namespace test;

#define CASE(form, plain, self, scaled)                 \
  TAV_FAULTS(FIRGetStateSize##form, fir_size_in_order)  \
  TAV_FAULTS(FIRInit##form, fir_set_up<0, 1, 4>)        \
  TAV_FAULTS(FIRInitAlloc##form, fir_set_up<0, 1>)      \
  TAV_FAULTS(FIRFree##form, fir_pointers_then_id)       \
  TAV_FAULTS(FIR##form##plain, fir_block<1 + scaled>)   \
  TAV_FAULTS(FIR##form##self, fir_block<1 + scaled>)    \
  TAV_FAULTS(FIROne##form##plain, fir_pointers_then_id) \
  TAV_FAULTS(FIRGetTaps##form, fir_pointers_then_id)    \
  TAV_FAULTS(FIRSetTaps##form, fir_pointers_then_id)    \
  TAV_FAULTS(FIRGetDlyLine##form, fir_pointers_then_id) \
  TAV_FAULTS(FIRSetDlyLine##form, fir_state_then_id)
CASE(_32f, , _I, 0)
CASE(_32fc, , _I, 0)
CASE(_64f, , _I, 0)
CASE(_64fc, , _I, 0)
CASE(64f_32f, , _I, 0)
CASE(64fc_32fc, , _I, 0)
CASE(32f_16s, _Sfs, _ISfs, 1)
CASE(32fc_16sc, _Sfs, _ISfs, 1)
CASE(64f_32s, _Sfs, _ISfs, 1)
CASE(_32s, _Sfs, _ISfs, 1)
CASE(64f_16s, _Sfs, _ISfs, 1)
CASE(64fc_32sc, _Sfs, _ISfs, 1)
CASE(64fc_16sc, _Sfs, _ISfs, 1)
#undef CASE

namespace {

// By type: the ids of single-rate and multi-rate records.
struct ids {
  int single, multi;
};

constexpr uint32_t id_of(int n) { return 0x46490000u | uint32_t('0' + n / 10) << 8 | uint32_t('0' + n % 10); }

// A record of no taps that says it is the caller's.
struct forged {
  alignas(16) uint32_t words[64] = {};
  explicit forged(int n) { words[0] = id_of(n); }
  template <class State> State* as() { return reinterpret_cast<State*>(words); }
};

template <class F> void check_ids(const ids& own, bool streams = false) {
  each_build<F::free>([&] {
    for (int n = 1; n <= 34; ++n) {
      SCOPED_TRACE(testing::Message() << "FI" << n);
      const bool  filter = n == own.single || n == own.multi, stream = streams && (n == 33 || n == 34);
      forged      record(n);
      auto* const state = record.as<typename F::state>();
      EXPECT_EQ(call<F::free>(state), filter || stream ? tavStatusOk : tavStatusBadContext);
      EXPECT_EQ(record.words[0], id_of(n)) << "the id stays";

      typename F::taps h[1]{};
      typename F::data x[4]{};
      if (filter) {  // of no taps: nothing is read or written
        EXPECT_EQ(call<F::get_taps>(state, h), tavStatusOk);
        EXPECT_EQ(call<F::get_dly>(state, x), tavStatusOk);
        EXPECT_EQ(call<F::set_dly>(state, x), tavStatusOk);
        EXPECT_EQ(call<F::set_dly>(state, nullptr), tavStatusOk);
      } else {
        EXPECT_EQ(call<F::get_taps>(state, h), tavStatusBadContext);
        EXPECT_EQ(call<F::set_taps>(h, state), tavStatusBadContext);
        EXPECT_EQ(call<F::get_dly>(state, x), tavStatusBadContext);
        EXPECT_EQ(call<F::set_dly>(state, x), tavStatusBadContext);
      }
      if (n != own.single) {
        EXPECT_EQ(filter_one<F>(x[0], x, state, 0), tavStatusBadContext);
      }
      if (!filter && !stream) {
        EXPECT_EQ(filter_block<F>(x, x + 2, 2, state, 0), tavStatusBadContext);
        EXPECT_EQ(filter_in_place<F>(x, 2, state, 0), tavStatusBadContext);
      }
    }
  });
}

TEST(FirIds, OfEachType) {
  check_ids<fir_32f>({1, 3}, true);
  check_ids<fir_32fc>({2, 4});
  check_ids<fir_32f_16s>({5, 7});
  check_ids<fir_32fc_16sc>({6, 8});
  check_ids<fir_64f>({13, 15});
  check_ids<fir_64fc>({14, 16});
  check_ids<fir_64f_32f>({17, 19});
  check_ids<fir_64fc_32fc>({18, 20});
  check_ids<fir_64f_32s>({21, 23});
  check_ids<fir_32s>({21, 23});
  check_ids<fir_64fc_32sc>({22, 24});
  check_ids<fir_64f_16s>({25, 27});
  check_ids<fir_64fc_16sc>({26, 28});
}

// The first word of a record is its id.
template <class F> uint32_t first_word() {
  const std::vector<typename F::taps> h(3);
  const fir_filter<F>                 f(h);
  return *reinterpret_cast<const uint32_t*>(f.get());
}

TEST(FirIds, StandFirst) {
  EXPECT_EQ(first_word<fir_32f>(), 0x46493031u);
  EXPECT_EQ(first_word<fir_64fc_16sc>(), 0x46493236u);
  EXPECT_EQ(first_word<fir_32s>(), 0x46493231u);
}

}  // namespace
