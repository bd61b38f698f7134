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

}  // namespace

void add_biquad_rows(std::vector<row>& rows);

void add_iir_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(name) rows.push_back({#name, nullptr, &call_filter<iir_row<name>>});
  TAV_ROW(iir_32f)
  TAV_ROW(iir_32fc) TAV_ROW(iir_32f_16s) TAV_ROW(iir_32fc_16sc) TAV_ROW(iir_32s_16s) TAV_ROW(iir_32sc_16sc)
      TAV_ROW(iir_64f) TAV_ROW(iir_64fc) TAV_ROW(iir_64f_32f) TAV_ROW(iir_64fc_32fc) TAV_ROW(iir_64f_32s)
          TAV_ROW(iir_64fc_32sc) TAV_ROW(iir_64f_16s) TAV_ROW(iir_64fc_16sc)
#undef TAV_ROW
              add_biquad_rows(rows);
}

}  // namespace fuzz
