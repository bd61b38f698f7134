// IIR filters of arbitrary order.
#include "filter/iir_calls.h"
#include "fuzz/filters.h"

namespace fuzz {
namespace {

template <class State, class T> T delay_type(TavStatus (*)(const State*, T*));

template <class F> struct iir_row {
  using state                       = typename F::state;
  using tap                         = typename F::tap;
  using data                        = typename F::data;
  using dly                         = decltype(delay_type(F::get_delay));
  static constexpr auto* get_size   = F::get_state_size;
  static constexpr auto* init       = F::init;
  static constexpr auto* init_alloc = F::init_alloc;
  static constexpr auto* set_taps   = F::set_taps;
  static constexpr auto* free       = F::free;
  static constexpr auto* block      = F::block;
  static constexpr auto* in_place   = F::in_place;
  static constexpr auto* one        = F::one;
  static constexpr auto* get_dly    = F::get_delay;
  static constexpr auto* set_dly    = F::set_delay;

  static size_t tap_count(int order) { return 2 * (size_t(order) + 1); }
  static size_t dly_count(int order) { return size_t(order); }
};

// Of the same states, with taps in floats.
template <class F, class Tap, auto* GetStateSize, auto* Init, auto* InitAlloc, auto* SetTaps>
struct iir_row_from_floats : iir_row<F> {
  using tap                        = Tap;
  static constexpr auto get_size   = GetStateSize;
  static constexpr auto init       = Init;
  static constexpr auto init_alloc = InitAlloc;
  static constexpr auto set_taps   = SetTaps;
};
using iir_32s_16s32f =
    iir_row_from_floats<test::iir_32s_16s, Tav32f, &tavsIIRGetStateSize32s_16s32f, &tavsIIRInit32s_16s32f,
                        &tavsIIRInitAlloc32s_16s32f, &tavsIIRSetTaps32s_16s32f>;
using iir_32sc_16sc32fc =
    iir_row_from_floats<test::iir_32sc_16sc, Tav32fc, &tavsIIRGetStateSize32sc_16sc32fc, &tavsIIRInit32sc_16sc32fc,
                        &tavsIIRInitAlloc32sc_16sc32fc, &tavsIIRSetTaps32sc_16sc32fc>;

}  // namespace

void add_iir_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(name) {#name, nullptr, &call_filter<iir_row<name>>}
  rows.insert(rows.end(), {TAV_ROW(iir_32f), TAV_ROW(iir_32fc), TAV_ROW(iir_32f_16s), TAV_ROW(iir_32fc_16sc),
                           TAV_ROW(iir_32s_16s), TAV_ROW(iir_32sc_16sc), TAV_ROW(iir_64f), TAV_ROW(iir_64fc),
                           TAV_ROW(iir_64f_32f), TAV_ROW(iir_64fc_32fc), TAV_ROW(iir_64f_32s), TAV_ROW(iir_64fc_32sc),
                           TAV_ROW(iir_64f_16s), TAV_ROW(iir_64fc_16sc)});
#undef TAV_ROW
  rows.push_back({"iir_32s_16s32f", nullptr, &call_filter<iir_32s_16s32f>});
  rows.push_back({"iir_32sc_16sc32fc", nullptr, &call_filter<iir_32sc_16sc32fc>});
}

}  // namespace fuzz
